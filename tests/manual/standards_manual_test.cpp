// The examples of functions that standards add give the results that the manual shows.
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "manual/page.h"
#include "standards/tw_standards_ss.h"
#include "test_folders.h"

namespace {

TEST(StandardsManual, ExamplesGiveTheResultsShown) {
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library");
    TwStandardsSS sheet;
    sheet.attachHidden();
    ASSERT_EQ(sheet.loadFile("EndPlate"), Acad::eOk);
    sheet.registerFunctions();
    int examples = 0;
    for (const auto& row : manual::tableRows(manual::read("docs/writing-standards.md"))) {
        const manual::Example example = manual::exampleIn(row);
        if (example.formula.empty()) continue;
        ++examples;
        Vor_String result;
        ASSERT_TRUE(sheet.setFormula(1, 1, Vor_String(example.formula))) << example.formula;
        ASSERT_TRUE(sheet.getCellText(1, 1, result, Vor_Spread::Reading::value));
        EXPECT_EQ(result.str(), example.result) << example.formula;
    }
    EXPECT_GE(examples, 15);
}

}  // namespace
