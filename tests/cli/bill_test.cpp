// Bills from macros and tables.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/program.h"
#include "cli/zip_entry.h"
#include "test_folders.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Json = nlohmann::json;

class Bill : public testing::Test {
  protected:
    static program::Result call(std::vector<std::string> arguments, std::string_view input = {}) {
        arguments.insert(arguments.begin(), {"--library", VORMANT_SOURCE_DIR "/library", "bill"});
        return program::run(arguments, input);
    }
    program::Folder folder;
    std::string table = folder.write("t.csv",
                                     "Section,Length,Count,Colour,Total\n"
                                     "IPE-200,1000,2,red,44.8\nHEA-100,500,1,blue,8.4\n"
                                     "IPE-200,1000,3,red,67.2\nodd,,,,\n");
};

TEST_F(Bill, MacrosAreCountedAsOftenAsTheyAreNamed) {
    const auto result = call({"EndPlate", VORMANT_SOURCE_DIR "/library/Macros/FinPlate.macro",
                              "EndPlate.macro", "--columns", "name,section,Count,Total mass"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "Name,Section,Count,Total mass (kg)\nPL 8x100x200,PL 8,1,1.256\n"
              "Plate,PL 10,2,4.71\nBolts,M20,10,\n");
}

TEST_F(Bill, HeadingsKindsAndSumsAreInTheLanguageThatIsNamed) {
    const auto firstLines = [&](const char* code) {
        const auto result = call({"EndPlate", "--language", code, "--columns", "name,kind,count"});
        EXPECT_EQ(result.exitCode, 0) << result.err;
        return result.out.substr(0, result.out.find('\n', result.out.find('\n') + 1));
    };
    EXPECT_EQ(firstLines("en"), "Name,Kind,Count\nPlate,Plate,1");
    EXPECT_EQ(firstLines("nl"), "Naam,Soort,Aantal\nPlate,Plaat,1");
    EXPECT_EQ(firstLines("DE"), "Name,Art,Anzahl\nPlate,Blech,1");
    EXPECT_EQ(firstLines("fr"), "Nom,Genre,Nombre\nPlate,Platine,1");
    const auto result = call(
        {"EndPlate", "--language", "de", "-o", folder / "b.csv", "--columns", "Werkstoff,count"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(folder.read("b.csv"),
                AllOf(HasSubstr("Werkstoff,Anzahl\n"), HasSubstr("Zwischensumme Blech,1\n"),
                      HasSubstr("Summe,5\n")));
}

TEST_F(Bill, DocumentsHaveRowsSubtotalsAndVariables) {
    const std::string file = folder / "Frame 12.sss";
    const auto result =
        call({"EndPlate", "-o", file, "--title", "Frame \xC3\x9C", "--group", "material"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("no mass is known of Bolts (M20); the totals are without"));
    const std::string text = folder.read("Frame 12.sss");
    EXPECT_THAT(text, AllOf(HasSubstr("header B \"Name\n"), HasSubstr("\"Subtotal 8.8\n"),
                            HasSubstr("\"Subtotal S275\n"), HasSubstr("\"Total\n"),
                            HasSubstr("Frame \xC3\x9C"), HasSubstr("BillFilename")));
    EXPECT_THAT(text, HasSubstr("Bill header.sss")) << "the library's own settings are used";
}

// A size that was made from another one and kept its mass: 215 x 225 and 16.7 kg/m.
TEST_F(Bill, MassesThatDoNotFitTheirDimensionsAreUsedWithAWord) {
    folder.write("prof/HEA.pr",
                 "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\tHeight\tWidth\tWeb thickness\t"
                 "Flange thickness\tRadius\tMass kg/m\n"
                 "100\t1\t\t\t\t\t96\t100\t5\t8\t12\t16.7\n"
                 "225\t1\t\t\t\t\t215\t225\t5\t8\t12\t16.7\n");
    const std::string macro =
        folder.write("Braces.macro",
                     "properties 1\ni\tmacro.version\t1\ns\tmodule.Braces\tprofile\n"
                     "d\tmodule.Braces.var.Length\t2000\ns\tmodule.Braces.placement.A\tHEA-225\n"
                     "s\tmodule.Braces.placement.B\tHEA-100\nend\n");
    const auto run = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--library", folder.path().string(), "bill", macro});
        return program::run(arguments);
    };
    const auto printed = run({"--columns", "section,mass"});
    EXPECT_EQ(printed.out, "Section,Mass (kg)\nHEA-100,33.4\nHEA-225,33.4\n");
    EXPECT_THAT(printed.err, HasSubstr("(in the table / by the dimensions): HEA-225 (16.7 / "
                                       "37.04 kg/m); the bill has those of the table"));
    EXPECT_EQ(run({"--columns", "section,count"}).err, "");
    const auto summary = Json::parse(run({"-o", folder / "b.csv", "--json"}).out);
    EXPECT_EQ(summary["doubtfulMass"], Json({"HEA-225 (16.7 / 37.04 kg/m)"}));
}

TEST_F(Bill, TablesAreGroupedAndCountedTogether) {
    const auto result = call(
        {table, "--group", "Colour", "-o", folder / "b.csv", "--columns", "Section,Count,Total"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(folder.read("b.csv"),
              "Section,Count,Total\nodd,,\nSubtotal,,\nHEA-100,1,8.4\nSubtotal blue,1,8.4\n"
              "IPE-200,5,112\nSubtotal red,5,112\nTotal,6,120.4\n");
}

TEST_F(Bill, WorkbooksHaveAHeaderRowAndPictures) {
    const auto result =
        call({table, "--pictures", "--picture-height", "80", "-o", folder / "b.xlsx", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    const auto summary = Json::parse(result.out);
    EXPECT_EQ(summary["rows"], 4);
    EXPECT_EQ(summary["totals"]["Count"], 6);
    EXPECT_EQ(summary["totals"]["Total"], 120.4);
    const std::string archive = folder.read("b.xlsx");
    const std::string sheet = zipEntry(archive, "xl/worksheets/sheet1.xml");
    // A picture row below each of the three rows of a known section; 80 pixels are 60 points.
    EXPECT_THAT(sheet, AllOf(HasSubstr("<row r=\"3\" "), HasSubstr("ht=\"60\""),
                             HasSubstr("<mergeCell ref=\"B3:E3\"/>"), HasSubstr("ySplit=\"1\"")));
    EXPECT_THAT(zipEntry(archive, "xl/sharedStrings.xml"), HasSubstr("<t>Section</t>"));
    // The arrow in the first column, the picture behind it.
    EXPECT_THAT(zipEntry(archive, "xl/drawings/drawing1.xml"),
                AllOf(HasSubstr("<xdr:row>2</xdr:row>"), HasSubstr("<xdr:col>0</xdr:col>"),
                      HasSubstr("<xdr:col>1</xdr:col>")));
    EXPECT_EQ(zipEntry(archive, "xl/media/image1.bmp").substr(0, 2), "BM");
}

TEST_F(Bill, WrongCallsSayWhatThereIs) {
    const struct {
        std::vector<std::string> arguments;
        int exitCode;
        std::string message;
    } cases[] = {
        {{}, 2, "FROM is required"},
        {{"EndPlatte"},
         1,
         "no macro \"EndPlatte\"; name a file, or a macro of the library; did you "
         "mean EndPlate?"},
        {{"EndPlate", "--columns", "Colour"},
         2,
         "no column \"Colour\"; the columns are position, "},
        {{"EndPlate", "--group", "Colour"}, 2, "choose none, kind, section or material"},
        {{"EndPlate", "-o", "x.doc"}, 2, "choose .sss, .tws, .xlsx, .csv or .pdf"},
        {{"EndPlate", "--json"}, 2, "--output FILE"},
        {{"EndPlate", "-o", "x.sss", "--picture-height", "5000"}, 2, "--picture-height"},
        {{"EndPlate", "-o", "x.sss", "--settings", "None"}, 1, "no settings \"None\""},
        {{"EndPlate", "--language", "it"}, 2, "choose en, nl, de or fr"},
        {{"EndPlate", table}, 2, "macros, or of one CSV file"},
        {{table, "--group", "Material"},
         2,
         "the columns are Section, Length, Count, Colour, Total"},
        {{table, "--columns", "Mass"}, 2, "no column \"Mass\"; the columns are Section, "},
        {{table, "-o", table}, 2, "t.csv: is what the bill is made of; choose another file"},
        {{folder / "none.csv"}, 1, "none.csv"},
        {{folder.write("bad.csv", "A,B\n1,\"2\n")}, 1, "bad.csv:2: a quoted field has no end"},
        {{folder.write("empty.csv", "")}, 1, "the file is empty"},
        {{folder.write("semi.csv", "Section;Length\nIPE-200;6,5\n")},
         1,
         "semi.csv:1: the columns are not separated by commas"},
        {{folder.write("tabs.csv", "Section\tLength\n")}, 1, "save the table with commas"},
        {{folder.write("far.csv", "\xE4\xB8\xAD\n")}, 1, "far.csv:1: character U+4E2D"},
        {{folder.write("bad.macro", "nothing")}, 1, "bad.macro:1:"},
    };
    for (const auto& each : cases) {
        const auto result = call(each.arguments);
        EXPECT_EQ(result.exitCode, each.exitCode) << each.message;
        EXPECT_THAT(result.err, AllOf(HasSubstr(each.message), testing::StartsWith("vormant: ")));
        EXPECT_EQ(result.out, "");
    }
}

TEST_F(Bill, NoSpreadsheetRunsWhatATableHolds) {
    const std::string harmful = folder.write(
        "h.csv",
        "Name,=Head,Count\n=1+1,+1,1\n@A1,-3,1\n-3 mm,\"\tx\",1\n'=q,'a,1\n\"\rx\",-,-2\n");
    const std::string guarded =
        "Name,'=Head,Count\n'=1+1,'+1,1\n'@A1,-3,1\n'-3 mm,'\tx,1\n''=q,'a,1\n\"'\rx\",-,-2\n";
    EXPECT_EQ(call({harmful}).out, guarded);
    EXPECT_EQ(call({harmful, "-o", folder / "b.csv"}).exitCode, 0);
    EXPECT_EQ(folder.read("b.csv"), guarded + "Total,,2\n");
    EXPECT_EQ(call({harmful, "-o", folder / "b.xlsx"}).exitCode, 0);
    const std::string archive = folder.read("b.xlsx");
    EXPECT_THAT(zipEntry(archive, "xl/worksheets/sheet1.xml"), Not(HasSubstr("<f>")));
    EXPECT_THAT(zipEntry(archive, "xl/sharedStrings.xml"), HasSubstr("<t>=1+1</t>"));
}

TEST_F(Bill, ASetIsWholeOrNotThereAndReplacesNothingOfTheUser) {
    const std::string own = folder.write("Bill header.sss", "the user's own");
    ASSERT_EQ(call({table, "-o", folder / "b.sss"}).exitCode, 0);
    EXPECT_EQ(folder.read("Bill header.sss"), "the user's own");
    EXPECT_EQ(folder.read("Bill header 2.sss"),
              folder.read(VORMANT_SOURCE_DIR "/library/Bill header.sss"));
    const auto setting = [](const std::string& header) {
        return "headerFile\xA4"
               "4\xA4" +
               header + "\xA4";
    };
    const struct {
        std::string settings, message;
    } cases[] = {
        {folder.write("s/Secret.twd", setting(folder.write("s/key", "secret"))),
         "key:1: this is no sheet"},
        {folder.write("s/Outside.twd", setting(folder.write("key", "secret"))),
         "lies outside of the library"},
        {folder.write("s/Gone.twd", setting(folder / "none.sss")), "none.sss: it is not there"},
        {folder.write("s/Bare.twd", setting("Bill header.sss")),
         "does not lie beside the settings"},
        {folder.write("s/Self.twd", setting(folder.write("c/new.sss", ""))), "is the page header"},
        {folder.write("Dir.twd/x", "").substr(0, folder.path().string().size() + 8), "cannot read"},
    };
    for (const auto& each : cases) {
        const auto before = folder.names();
        const auto result = call({table, "-o", folder / "c/new.sss", "--settings", each.settings});
        EXPECT_EQ(result.exitCode, 1) << each.settings;
        EXPECT_THAT(result.err, HasSubstr(each.message));
        EXPECT_EQ(folder.names(), before);
        EXPECT_EQ(folder.read("c/new.sss"), "");
    }
    folder.write("lib2/prof/IPE.pr", "damaged");
    for (const bool hasPictures : {true, false}) {
        std::vector<std::string> arguments{"--library", folder / "lib2",    "bill", table,
                                           "-o",        folder / "c/p.xlsx"};
        if (hasPictures) arguments.emplace_back("--pictures");
        const auto made = program::run(arguments);
        EXPECT_EQ(made.exitCode, hasPictures ? 1 : 0) << made.err;
        EXPECT_EQ(
            made.err.find("IPE cannot be read, and no other table has IPE-200") != made.err.npos,
            hasPictures);
    }
    // Copies come first; a sheet that fails takes them along.
    std::filesystem::create_directories(folder.path() / "d/b.sss");
    EXPECT_EQ(call({table, "-o", folder / "d/b.sss"}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "d/Bill header.sss"));
}

TEST_F(Bill, AFileThatCannotBeReplacedStaysAndIsToldOnce) {
    const auto result = call({"EndPlate", "-o", folder / "none/b.sss"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err, HasSubstr("none/b.sss"));
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
}

TEST_F(Bill, PdfsNeedTheWorkbench) {
    ::setenv("VORMANT_WORKBENCH", (folder / "none").c_str(), 1);
    auto result = call({"EndPlate", "-o", folder / "b.pdf"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err, HasSubstr("VORMANT_WORKBENCH"));
    // A stand-in that keeps what it was given.
    const std::string printer =
        folder.write("printer", "#!/bin/sh\n[ \"$1\" = --print ] && cp \"$2\" \"$3\"\n");
    std::filesystem::permissions(printer, std::filesystem::perms::owner_all);
    ::setenv("VORMANT_WORKBENCH", printer.c_str(), 1);
    result = call({"EndPlate", "-o", folder / "Frame.pdf"});
    ::unsetenv("VORMANT_WORKBENCH");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(folder.read("Frame.pdf"),
                AllOf(HasSubstr("vormant-sheet"), HasSubstr("\xC2\xA4"
                                                            "Frame\xC2\xA4")));
}

}  // namespace
