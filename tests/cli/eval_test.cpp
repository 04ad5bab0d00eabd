// Formulas without a sheet, one at a time and as a filter.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/program.h"

namespace {

using testing::HasSubstr;

TEST(Eval, PrintsTheResultOfOneFormula) {
    const struct {
        std::vector<std::string> arguments;
        std::string out;
    } cases[] = {
        {{"=ROUND(A1/3,2)", "--cell", "A1=10"}, "3.33"},
        {{"ROUND(A1/3,2)", "--cell", "A1=10"}, "3.33"},
        {{"SUM(A1:A10)", "--cell", "A1=1", "--cell", "A3==A1*5"}, "6"},
        {{"A1=TRUE", "--cell", "A1=true"}, "TRUE"},
        {{"LEN(A1)", "--cell", "A1=a=b"}, "3"},
        {{"A1&A2", "--cell", "A1=007", "--cell", "A2= x"}, "7 x"},
        {{"1/0"}, "#DIV/0!"},
        {{"A1", "--cell", "A1==A1"}, "#CIRC!"},
        {{"\"\xC3\xBC\xE2\x82\xAC\""}, "\xC3\xBC\xE2\x82\xAC"},
        {{"1e20*10"}, "1e+21"},
        {{"2^0.5"}, "1.4142135623730951"},
        {{"-0"}, "0"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        std::vector<std::string> call = {"sheet", "eval", "--"};
        call.insert(call.begin() + 2, row.arguments.begin() + 1, row.arguments.end());
        call.push_back(row.arguments.front());
        const auto result = program::run(call);
        EXPECT_EQ(result.out, row.out + "\n");
        EXPECT_EQ(result.exitCode, 0) << result.err;
    }
}

TEST(Eval, ARefusedFormulaFailsAndSaysWhere) {
    for (const std::string formula : {"1+", "ROUND(1", "NOSUCH(1)", "A1:", ")"}) {
        SCOPED_TRACE(formula);
        const auto result = program::run({"sheet", "eval", formula});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr("vormant: the formula is refused: "));
    }
    const std::string deep = std::string(50000, '(') + "1" + std::string(50000, ')');
    EXPECT_EQ(program::run({"sheet", "eval", deep}).exitCode, 1);
}

TEST(EvalFilter, AnswersEveryLineInOrder) {
    const struct {
        std::string line;
        std::string answer;
    } lines[] = {
        {R"x({"id":7,"cells":{"A1":10,"A2":"=A1*2"},"cell":"B1","formula":"ROUND(A2/3,2)"})x",
         R"({"id":7,"got":{"type":"number","value":6.67}})"},
        {R"({"formula":"A1&\"\\\u0001\"","cells":{"A1":{"text":"=5"}},"id":"a\"b"})",
         R"({"id":"a\"b","got":{"type":"text","value":"=5\\\u0001"}})"},
        {R"({"id":null,"formula":"=A1","cells":{"A1":{"error":"#N/A"}}})",
         R"({"id":null,"got":{"type":"error","value":"#N/A"}})"},
        {R"({"id":true,"formula":"A1=\"12\"","cells":{"A1":"12"}})",
         R"({"id":true,"got":{"type":"bool","value":true}})"},
        {R"x({"id":1,"formula":"SUM(A1:A3*B1:B3)","tags":["array"],"cell":"D5",)x"
         R"("cells":{"A1":1,"A2":2,"A3":3,"B1":4,"B2":5,"B3":6}})",
         R"({"id":1,"got":{"type":"number","value":32}})"},
        {R"({"id":2,"formula":"B1","cells":{"B1":"=C1","C1":"=B1"}})",
         R"({"id":2,"got":{"type":"error","value":"#CIRC!"}})"},
    };
    std::string input, expected;
    for (const auto& [line, answer] : lines) {
        input += line + "\n\n";
        expected += answer + "\n";
    }
    const auto result = program::run({"sheet", "eval", "--jsonl"}, input);
    EXPECT_EQ(result.out, expected);
    EXPECT_EQ(result.exitCode, 0) << result.err;
}

TEST(EvalFilter, ABadLineGetsAnErrorRecordAndTheNextIsAnswered) {
    const struct {
        std::string line;
        std::string id;
        std::string message;
    } lines[] = {
        {"nonsense", "null", "no JSON"},
        {"[1,2]", "null", "no JSON object"},
        {"{\"id\":1}", "1", "\\\"formula\\\""},
        {R"({"id":1,"formula":5})", "1", "\\\"formula\\\""},
        {R"({"id":"x","formula":"1+"})", "\"x\"", "refused"},
        {R"({"id":[1],"formula":"A1","cells":{"A1":[1]}})", "null", "cell A1"},
        {R"({"id":1,"formula":"A1","cells":{"A1":"=1+"}})", "1", "formula in A1"},
        {R"({"id":1,"formula":"A1","cells":{"AAAA1":1}})", "1", "AAAA1"},
        {R"({"id":1,"formula":"A1","cells":{"A1":{"error":"#WHAT"}}})", "1", "error value"},
        {R"({"id":1,"formula":"1","cell":"A1:B2"})", "1", "\\\"cell\\\""},
        {"{\"id\":1,\"formula\":\"\\\"\xE4\xB8\xAD\\\"\"}", "1", "U+4E2D"},
        {"{\"id\":1,\"formula\":\"\xFF\"}", "null", "no JSON"},
        {std::string("{\"id\":1\0}", 9), "null", "no JSON"},
        {std::string(100000, '['), "null", "nested deeper"},
        {"{\"id\":\"" + std::string(65, '['), "null", "no JSON"},
        {"{\"cells\":" + std::string(1 << 20, '1') + "}", "null", "line"},
    };
    for (const auto& [line, id, message] : lines) {
        SCOPED_TRACE(line.substr(0, 100));
        const auto result =
            program::run({"sheet", "eval", "--jsonl"}, line + "\n{\"id\":9,\"formula\":\"1\"}");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.err, "vormant: 1 of 2 lines failed; see their error records\n");
        EXPECT_THAT(result.out, testing::StartsWith("{\"id\":" + id + ",\"error\":\"line 1: "));
        EXPECT_THAT(result.out, HasSubstr(message));
        EXPECT_THAT(result.out,
                    testing::EndsWith("{\"id\":9,\"got\":{\"type\":\"number\",\"value\":1}}\n"));
    }
}

TEST(EvalFilter, ReadsAFileAndNamesOneItCannotRead) {
    const program::Folder folder;
    const auto file = folder.write("lines", "{\"id\":1,\"formula\":\"2\"}");
    EXPECT_THAT(program::run({"sheet", "eval", "--jsonl", "--input", file}).out,
                HasSubstr("\"value\":2"));
    const auto absent = program::run({"sheet", "eval", "--jsonl", "--input", folder / "absent"});
    EXPECT_EQ(absent.exitCode, 1);
    EXPECT_THAT(absent.err, HasSubstr((folder / "absent") + ": No such file"));
}

}  // namespace
