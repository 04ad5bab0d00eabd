// A standard as a filter over many lines, good and bad.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/library.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

TEST(Batch, AnswersCsvLineForLine) {
    const Library library;
    const auto result = library.call(
        {"batch", "Plate"}, "thickness,Section\n2,HEA 200\n\n2.5,\"x,\"\"y\"\"\"\r\n-1e1,\n");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "Width,Bolts,Name,error\n"
              "37.3,4,HEA 200 / 37.3,\n"
              "38.3,4,\"x,\"\"y\"\" / 38.3\",\n"
              "13.3,1, / 13.3,\n");
    EXPECT_EQ(result.err, "");
}

TEST(Batch, AnswersJsonLineForLineWithTypedValues) {
    const Library library;
    const auto result = library.call({"batch", "Plate", "--jsonl"},
                                     "{\"Thickness\":2,\"Section\":\"\\u00dc\"}\n"
                                     "{\"Section\":5,\"Thickness\":\"2.5\"}\n");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "{\"Width\":37.3,\"Bolts\":4,\"Name\":\"\xC3\x9C / 37.3\"}\n"
              "{\"Width\":38.3,\"Bolts\":4,\"Name\":\"5 / 38.3\"}\n");
}

TEST(Batch, AHeaderThatDoesNotFitStopsItBeforeAnythingRuns) {
    const Library library;
    const struct {
        std::string input;
        std::string message;
    } cases[] = {
        {"", "there is no header; it names Section (String), Thickness (Double)"},
        {"Section\nx\n", ":1: there is no column for the input Thickness"},
        {"Section,Thickness,Colour\nx,1,2\n", ":1: column \"Colour\" is no input"},
        {"Section,Thickness,Width\nx,1,2\n", ":1: column \"Width\" is no input"},
        {"Section,Thickness,section\nx,1,2\n", ":1: column \"section\" stands there twice"},
        {"Section,\"Thickness\n", ":1: a quoted field has no end"},
        {"Section,Th\xFFickness\n", "UTF-8"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.message);
        const auto result = library.call({"batch", "Plate"}, row.input);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr("vormant: (standard input)"));
        EXPECT_THAT(result.err, HasSubstr(row.message));
    }
}

TEST(Batch, ABadCsvLineGetsAnErrorRecordInItsPlace) {
    const Library library;
    const std::string megabyte(1 << 20, 'x');
    const struct {
        std::string line;
        std::string message;
    } cases[] = {
        {"x", "line 3: there are 1 fields, the header has 2"},
        {"x,1,2", "line 3: there are 3 fields, the header has 2"},
        {"x,ten", "line 3: "},
        {"x," + megabyte, "line 3: "},
        {"x,\"1", "line 3: a quoted field has no end"},
        {"x,\"1\"2", "line 3: a quoted field must be followed"},
        {"\xFF,1", "line 3: byte 0xFF"},
        {std::string("a\0b,1", 5), "line 3: a zero byte"},
        {"\xE4\xB8\xAD,1", "line 3: character U+4E2D"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.line.substr(0, 100));
        const auto result =
            library.call({"batch", "Plate"}, "Section,Thickness\na,2\n" + row.line + "\nb,2\n");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.out, StartsWith("Width,Bolts,Name,error\n37.3,4,a / 37.3,\n,,,"));
        EXPECT_THAT(result.out, HasSubstr(row.message));
        EXPECT_THAT(result.out, testing::EndsWith("\n37.3,4,b / 37.3,\n"));
        EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 4);
        EXPECT_THAT(result.err, HasSubstr("1 of 3 lines failed"));
        EXPECT_LT(result.out.size(), 2000u) << "the message repeats the megabyte";
    }
}

TEST(Batch, ABadJsonLineGetsAnErrorRecordInItsPlace) {
    const Library library;
    const std::string good = "{\"Section\":\"a\",\"Thickness\":2}\n";
    const struct {
        std::string line;
        std::string message;
    } cases[] = {
        {"nonsense", "line 2: is no JSON"},
        {"[1]", "line 2: "},
        {"5", "line 2: is no JSON object"},
        {"{\"Section\":\"x\"}", "line 2: the input Thickness is missing"},
        {"{\"Section\":\"x\",\"Thickness\":1,\"Colour\":2}", "line 2: \"Colour\" is no input"},
        {"{\"Section\":\"x\",\"Section\":\"y\"}", "line 2: \"Section\" stands there twice"},
        {"{\"Section\":[[1]]}", "line 2: a value must be a number or a text"},
        {"{\"Section\":{\"a\":1}}", "line 2: a value must be a number or a text"},
        {"{\"Section\":true}", "line 2: true and false"},
        {"{\"Section\":" + std::string(100000, '['), "line 2: a value must be"},
        {"{\"Section\":\"x\",\"Thickness\":1} x", "line 2: is no JSON"},
        {"{\"Section\":\"\\u0000\",\"Thickness\":1}", "line 2: a zero byte"},
        {"{\"Section\":\"x\",\"Thickness\":\"ten\"}", "line 2: "},
        {"{\"Section\":\"x\",\"Thickness\":1e999}", "line 2: "},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.line.substr(0, 100));
        const auto result =
            library.call({"batch", "Plate", "--jsonl"}, good + row.line + "\n" + good);
        EXPECT_EQ(result.exitCode, 1);
        std::vector<Json> records;
        std::istringstream lines(result.out);
        for (std::string line; std::getline(lines, line);) records.push_back(Json::parse(line));
        ASSERT_EQ(records.size(), 3u);
        EXPECT_EQ(records[0], records[2]);
        EXPECT_EQ(records[0]["Width"], 37.3);
        EXPECT_THAT(records[1]["error"].get<std::string>(), StartsWith(row.message));
    }
}

TEST(Batch, AFailedEquationOrErrorResultIsNoResult) {
    const Library library;
    library.add("Divide", {"Input", "Double P", "Output", "Double W", "Calc", "W=1/P"});
    const auto divide = library.call({"batch", "Divide"}, "P\n2\n0\n4\n");
    EXPECT_EQ(divide.exitCode, 1);
    EXPECT_EQ(divide.out, "W,error\n0.5,\n,line 3: W is #DIV/0!\n0.25,\n");
    const auto failing = library.call({"batch", "Failing", "--jsonl"}, "{\"P\":2}\n");
    EXPECT_EQ(failing.exitCode, 1);
    EXPECT_THAT(failing.out, StartsWith("{\"error\":\"line 1: row 6: W=P+: "));
}

TEST(Batch, ADataFileThatIsMissingIsNamed) {
    const Library library;
    library.add("Table", {"Input", "Double P", "Output", "Double W", "Calc",
                          "W=TONUMBER(GETCELL(\"bolts.txt\",P))"});
    const std::string line = "{\"P\":2}\n";
    const auto missing = library.call({"batch", "Table", "--jsonl"}, line + line);
    EXPECT_THAT(missing.out, HasSubstr("line 2: W is #VALUE!: there is no data file"));
    library.write("Connection Standards/Data/bolts.txt", "// nothing\n");
    EXPECT_THAT(library.call({"run", "Table", "--set", "P=2"}).err,
                HasSubstr("bolts.txt: there is no row in it"));
    library.write("Connection Standards/Data/bolts.txt", "2\t5\n");
    EXPECT_EQ(library.call({"batch", "Table", "--jsonl"}, line).out, "{\"W\":5}\n");

    library.add("Sizes", {"Input", "Double P", "Output", "Double W", "Calc",
                          "W=STDSIZEWITHTOLERANCE(\"sizes.txt\",5,P,5,5)"});
    library.write("Connection Standards/Data/sizes.txt", "// mm\n12\nabout 15\n");
    const auto damaged = library.call({"run", "Sizes", "--set", "P=11"});
    EXPECT_THAT(damaged.out, HasSubstr("W  12\n"));
    EXPECT_THAT(damaged.err, HasSubstr("sizes.txt:3: this is no size"));
}

TEST(Batch, AChildThatFailsIsNamed) {
    const Library library;
    library.add("Caller", {"Input", "Double P", "Output", "Double W", "Calc",
                           "CallChild(\"Failing.tws\",P,W)"});
    EXPECT_THAT(library.call({"batch", "Caller", "--jsonl"}, "{\"P\":2}\n").out,
                StartsWith("{\"error\":\"line 1: " +
                           (library / "Connection Standards/Failing.tws") + ": row 6: W=P+: "));
}

TEST(Batch, ResultsDoNotLeakFromOneLineToTheNext) {
    const Library library;
    library.add("Maybe", {"Input", "Double P", "Output", "Double W", "String S", "Local",
                          "Double L", "Calc", "L=IF(P>1,L+P,L)", "W=L", "S=IF(P>1,\"big\",\"\")"});
    EXPECT_EQ(library.call({"batch", "Maybe"}, "P\n5\n1\n5\n").out,
              "W,S,error\n5,big,\n0,,\n5,big,\n");
}

TEST(Batch, ReadsFilesAndChildrenAndTakesOptions) {
    const Library library;
    const auto file = library.write("in.csv", "P\n5\n6\n");
    EXPECT_EQ(library.call({"batch", "Frame", file, "--no-header"}).out, "11,\n13,\n");
    EXPECT_EQ(library.call({"batch", "Frame", library / "absent"}).exitCode, 1);
    library.add("Gen", {"Input", "Double P", "Output", "Double W", "Calc", "W=gen_Length/P"});
    EXPECT_EQ(library.call({"batch", "Gen", "--gen", "gen_Length=60"}, "P\n4\n").out,
              "W,error\n15,\n");
}

}  // namespace
