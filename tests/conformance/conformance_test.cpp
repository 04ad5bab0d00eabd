// Runs the formula cases that lie beside the checkout and says how many agree, by family and by
// function. Those that do not are listed in known_differences.txt with the reason: a difference
// that is not listed fails, and so does a listed one that is gone. To work on functions:
//
//   VORMANT_CONFORMANCE_FUNCTION=ROUND,CEILING   only cases that are about these (or a family)
//   VORMANT_CONFORMANCE_SHOW=1                   every case that fails, with what it gave
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>

#include "conformance/cases.h"
#include "spread/control/formula/functions/families.h"
#include "spread/control/sheet.h"
#include "support/called_functions.h"
#include "test_folders.h"

namespace conformance {
namespace {

// Tags of what the engine does not claim to do.
const std::set<std::string, std::less<>> unclaimedTags = {"lambda"};

constexpr const char* listFile = VORMANT_SOURCE_DIR "/tests/conformance/known_differences.txt";

struct Tally {
    int passed = 0;
    int tried = 0;
    double rate() const { return tried == 0 ? 100 : 100.0 * passed / tried; }
    void add(bool pass) {
        ++tried;
        passed += pass;
    }
};

constexpr const char* lacksCharacters = "a character that Windows-1252 lacks";

struct Results {
    Tally all;
    std::map<std::string, Tally> families;
    std::map<std::string, Tally> functions;
    std::map<std::string, int> missingFunctions;
    std::map<std::string, int> leftOut;
    std::set<std::string> different;  // ids
};

std::string familyOf(const std::string& name) {
    static const std::map<std::string, std::string> families = [] {
        std::map<std::string, std::string> map;
        const auto add = [&](const char* family, std::span<const formula::FunctionSpec> specs) {
            for (const auto& spec : specs) map.emplace(spec.name, family);
        };
        add("maths", formula::mathFunctions());
        add("trigonometry", formula::trigonometryFunctions());
        add("statistics", formula::statisticsFunctions());
        add("matrices", formula::matrixFunctions());
        add("logic", formula::logicFunctions());
        add("look-up", formula::lookupFunctions());
        add("text", formula::textFunctions());
        add("information", formula::informationFunctions());
        add("dates", formula::dateFunctions());
        add("engineering", formula::engineeringFunctions());
        return map;
    }();
    const auto found = families.find(name);
    return found == families.end() ? "operators" : found->second;
}

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool isWanted(const Case& test) {
    static const std::string wanted = "," + setting("VORMANT_CONFORMANCE_FUNCTION") + ",";
    return wanted == ",," || wanted.find("," + test.function + ",") != wanted.npos ||
           wanted.find("," + familyOf(test.function) + ",") != wanted.npos;
}

// Why a case is not tried; empty when it is.
std::string reasonToLeaveOut(const Case& test, Results& results) {
    bool missing = false;
    for (const auto& name : std::set(test.functions.begin(), test.functions.end())) {
        if (formula::findFunction(name)) continue;
        ++results.missingFunctions[name];
        missing = true;
    }
    if (missing) return "a function that is not there";
    for (const auto& tag : test.tags)
        if (unclaimedTags.contains(tag)) return "tag " + tag;
    if (!test.unreadable.empty()) return lacksCharacters;
    return "";
}

void show(const Case& test, const std::optional<formula::Value>& got, const std::string& error) {
    std::string answer = error;
    if (got) cli::appendValueJson(answer, *got);
    std::printf("FAILS %s\n  case %s\n  got  %s\n", test.function.c_str(), test.json.c_str(),
                answer.c_str());
}

Results runAll(const std::vector<Case>& cases) {
    Results results;
    const bool showing = !setting("VORMANT_CONFORMANCE_SHOW").empty();
    control::Sheet sheet;
    for (const Case& test : cases) {
        if (!isWanted(test)) continue;
        if (const auto reason = reasonToLeaveOut(test, results); !reason.empty()) {
            ++results.leftOut[reason];
            continue;
        }
        std::string error;
        const auto got = cli::evaluate(test.record, sheet, error);
        const bool pass = got && agrees(test, *got);
        results.all.add(pass);
        results.families[familyOf(test.function)].add(pass);
        results.functions[test.function].add(pass);
        if (!pass) results.different.insert(test.id);
        if (!pass && showing) show(test, got, error);
    }
    return results;
}

void print(const Results& results) {
    std::printf("\n%-22s %6s %6s %8s\n", "family", "agree", "tried", "per cent");
    for (const auto& [name, tally] : results.families)
        std::printf("%-22s %6d %6d %8.1f\n", name.c_str(), tally.passed, tally.tried, tally.rate());
    std::printf("%-22s %6d %6d %8.1f\n\nfunctions with cases that do not agree:\n", "all",
                results.all.passed, results.all.tried, results.all.rate());
    for (const auto& [name, tally] : results.functions)
        if (tally.passed < tally.tried)
            std::printf("  %-20s %6d %6d %8.1f\n", name.c_str(), tally.passed, tally.tried,
                        tally.rate());
    std::printf("\nleft out:\n");
    for (const auto& [reason, count] : results.leftOut)
        std::printf("  %6d  %s\n", count, reason.c_str());
    std::printf("functions that are not there, with the cases that call them:\n ");
    for (const auto& [name, count] : results.missingFunctions)
        std::printf(" %s:%d", name.c_str(), count);
    std::printf("\n\n");
}

/// The ids of the list, without its reasons. Every id stands below a reason, once.
std::set<std::string> knownDifferences() {
    std::set<std::string> ids;
    std::ifstream file(listFile);
    EXPECT_TRUE(file) << listFile;
    bool hasReason = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("//"))
            hasReason = true;
        else if (line.empty())
            hasReason = false;
        else
            EXPECT_TRUE(hasReason && ids.insert(line).second) << line;
    }
    return ids;
}

/// What is in `ids` and not in `others`, a line each.
std::string missing(const std::set<std::string>& ids, const std::set<std::string>& others) {
    std::string lines;
    for (const std::string& id : ids)
        if (!others.contains(id)) lines += id + '\n';
    return lines;
}

TEST(Conformance, ResultsAgreeWithIndependentPrograms) {
    const auto where = folder();
    if (!where) GTEST_SKIP() << "no formula cases beside the checkout";
    const auto cases = load(*where);
    const Results results = runAll(cases);
    print(results);
    ASSERT_GT(results.all.tried, 0) << "no case was tried";
    if (!setting("VORMANT_CONFORMANCE_FUNCTION").empty()) return;
    const std::set<std::string> known = knownDifferences();
    EXPECT_EQ(missing(results.different, known), "") << "they differ and are not listed";
    EXPECT_EQ(missing(known, results.different), "") << "they are listed and do not differ";
}

// The comparison itself must be able to fail.
TEST(Conformance, ComparesStrictly) {
    const auto expects = [](formula::Value value) {
        Case test;
        test.expected.type = value.type();
        if (value.isNumber()) test.expected.number = value.number();
        if (value.isText()) test.expected.text = value.text();
        if (value.isError()) test.expected.text = formula::errorText(value.error());
        if (value.isBoolean()) test.expected.truth = value.truth();
        return test;
    };
    using formula::Value;
    EXPECT_TRUE(agrees(expects(1e9), Value(1e9 + 0.5)));
    EXPECT_FALSE(agrees(expects(1e9), Value(1e9 + 2)));
    EXPECT_FALSE(agrees(expects(0.0), Value(1e-14)));
    EXPECT_FALSE(agrees(expects(1.0), Value::boolean(true)));
    EXPECT_FALSE(agrees(expects(Value::borrowedText("a")), Value::borrowedText("A")));
    EXPECT_FALSE(agrees(expects(formula::ErrorCode::na), Value(formula::ErrorCode::value)));

    Case test = expects(Value::borrowedText("3-4i"));
    test.complex = true;
    EXPECT_TRUE(agrees(test, Value::borrowedText("3.0000000001-4i")));
    EXPECT_FALSE(agrees(test, Value::borrowedText("3+4i")));
    EXPECT_THAT(calledFunctions("IF(A1>1,Sum(B1),\"LEN(\")&F.DIST( 1)"),
                testing::ElementsAre("IF", "SUM", "F.DIST"));
}

}  // namespace
}  // namespace conformance
