// Standards named, checked and tested.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/library.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(List, NamesEveryStandardWithItsInputsAndOutputs) {
    const Library library;
    const auto result = library.call({"list"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "Childs/Base\n  in   P (Double)\n  out  W (Double)\n"
              "Failing\n  in   P (Double)\n  out  W (Double)\n"
              "Parents/Frame\n  in   P (Double)\n  out  W (Double)\n"
              "Plate\n  in   Section (String), Thickness (Double)\n"
              "  out  Width (Double), Bolts (Int), Name (String)\n");
    library.write("Connection Standards/Broken.tws", "x");
    const auto broken = library.call({"list"});
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_THAT(broken.err, HasSubstr(library / "Connection Standards/Broken.tws:1"));
    EXPECT_THAT(broken.out, HasSubstr("Plate\n"));
}

TEST(Check, PrintsFindingsWithTheirPlacesAndFailsOnErrorsAlone) {
    const Library library;
    const std::string folder = library / "Connection Standards/";
    const auto clean = library.call({"check", "Plate", "Frame"});
    EXPECT_EQ(clean.exitCode, 0) << clean.out;
    EXPECT_EQ(clean.out, "");

    const auto failing = library.call({"check", "Plate", folder + "Failing.tws"});
    EXPECT_EQ(failing.exitCode, 1);
    EXPECT_THAT(failing.out, HasSubstr(folder + "Failing.tws:6:1: error: "));

    library.add("Unused", {"Input", "Double P", "Double U", "Output", "Double W", "Calc", "W=P"});
    const auto warned = library.call({"check", "Unused"});
    EXPECT_EQ(warned.exitCode, 0);
    EXPECT_THAT(warned.out, HasSubstr(folder + "Unused.tws:3:1: warning: "));

    EXPECT_EQ(library.call({"check", "Nope", "Plate"}).exitCode, 1);
    EXPECT_THAT(library.call({"check", folder}).err, HasSubstr("is a folder"));

    const auto broken = library.write("Connection Standards/Broken.tws", "vormant-sheet 1\nsize\n");
    EXPECT_THAT(library.call({"check", "Broken"}).out, StartsWith(broken + ":2: error: the size"));
}

TEST(Test, SaysWhichCaseWhichOutputAndByHowMuch) {
    const Library library;
    const std::string file = library.write("Connection Standards/Plate.cases.csv",
                                           "Section,Thickness,Width?,Name?,tolerance\n"
                                           "a,2,37.3,a / 37.3,\n"
                                           "a,2,37,a / 37.3,0.2\n"
                                           "\"b\n\",2,37.4,c,0.2\n"
                                           "a,2.5,38.3000009,a / 38.3,\n");
    const auto result = library.call({"test", "Plate"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "Plate: 4 cases, 2 not as expected\n");
    EXPECT_THAT(result.err, HasSubstr(file + ":3: case 2: Width is 37.3, expected 37, off by 0.3"));
    EXPECT_THAT(result.err, HasSubstr("(tolerance 0.2)\n"));
    EXPECT_THAT(result.err, HasSubstr(file + ":4: case 3: Name is b"));
    EXPECT_EQ(result.err.find("Width is 37.3, expected 37.4"), std::string::npos);
    EXPECT_EQ(result.err.find("case 4"), std::string::npos);
}

TEST(Test, CaseFilesThatDoNotFitAreRefused) {
    const Library library;
    const struct {
        std::string content;
        std::string message;
    } cases[] = {
        {"", ": there is no header"},
        {"Section,Thickness,Width?\n", ": there are no cases"},
        {"Section,Width?\na,1\n", ":1: there is no column for the input Thickness"},
        {"Section,Thickness\na,1\n", ":1: no column is an expected output"},
        {"Section,Thickness,Width\na,1,2\n", ":1: column \"Width\" is neither"},
        {"Section?,Thickness,Width?\na,1,2\n", ":1: column \"Section?\" is neither"},
        {"Section,Thickness,Gap?\na,1,2\n", ":1: column \"Gap?\" is neither"},
        {"Section,Thickness,Width?,width?\na,1,2,2\n", ":1: column \"width?\" stands there twice"},
        {"Section,Thickness,Width?\na,1\n", ":2: case 1: there are 2 fields, the header has 3"},
        {"Section,Thickness,Width?\na,x,1\n", ":2: case 1: Thickness is a number"},
        {"Section,Thickness,Width?,tolerance\na,1,1,-1\n", ":2: case 1: the tolerance"},
        {"Section,Thickness,Width?\na,\"1,1\n", ":2: case 1: a quoted field has no end"},
        {"Section,Thickness,Width?\n\xFF,1,1\n", ":2: case 1: byte 0xFF"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.message);
        const auto file = library.write("Connection Standards/Plate.cases.csv", row.content);
        const auto result = library.call({"test", "Plate"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr(row.message));
        EXPECT_THAT(result.err, testing::StartsWith("vormant: " + file));
        EXPECT_EQ(result.out.find("as expected\n") == std::string::npos,
                  result.err.find(": case ") == std::string::npos)
            << "a file without cases has no result: " << result.out;
    }
    const std::string file = library / "Connection Standards/Plate.cases.csv";
    std::filesystem::remove(file);
    std::filesystem::create_symlink("/dev/zero", file);
    EXPECT_THAT(library.call({"test", "Plate"}).err, HasSubstr("not an ordinary file"));
}

TEST(Test, AllRunsEveryStandardThatHasCases) {
    const Library library;
    EXPECT_EQ(library.call({"test", "--all"}).exitCode, 1) << "nothing was tested";
    library.write("Connection Standards/Plate.cases.csv", "Section,Thickness,Width?\na,2,37.3\n");
    library.write("Connection Standards/Childs/Base.cases.csv", "P,W?\n2,4\n");
    const auto good = library.call({"test", "--all"});
    EXPECT_EQ(good.exitCode, 0) << good.err;
    EXPECT_EQ(good.out, "Childs/Base: 1 cases, all as expected\nPlate: 1 cases, all as expected\n");
    library.write("Connection Standards/Failing.cases.csv", "P,W?\n2,0.5\n");
    const auto bad = library.call({"test", "--all"});
    EXPECT_EQ(bad.exitCode, 1) << "an equation of it fails";
    EXPECT_THAT(bad.err, HasSubstr("Failing.cases.csv:2: case 1: row 6: W=P+"));
    EXPECT_THAT(library.call({"test", "Frame"}).err, HasSubstr("Frame.cases.csv: No such file"));
}

}  // namespace
