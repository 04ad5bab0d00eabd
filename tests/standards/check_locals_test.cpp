// A local in the place of a child's result: taken for a mistake only when the result is missed.
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "standards/check/standards_check.h"
#include "support/temporary_folder.h"

namespace {

std::string sheet(const std::vector<std::string>& columnA) {
    std::string text = "vormant-sheet 1\nsize 1 " + std::to_string(columnA.size()) + "\ncells\n";
    for (size_t i = 0; i < columnA.size(); ++i)
        text += "A" + std::to_string(i + 1) + " \"" + columnA[i] + "\n";
    return text + "end " + std::to_string(columnA.size()) + "\n";
}

TEST(CheckedLocals, MayTakeResultsThatNobodyWants) {
    TemporaryFolder folder;
    gSettings.setLibDir(folder.inside());
    folder.write(
        "Connection Standards/Childs/Twice.tws",
        sheet({"Input", "Double T", "Output", "Double W", "Double V", "Calc", "W=2*T", "V=3*T"}));
    struct Case {
        std::string equation;
        bool isMissed;  ///< the result that the local does not keep
    };
    for (const auto& [equation, isMissed] : {
             Case{"Wanted=Wanted+Given", false},
             Case{"Wanted=Wanted+Other", true},
             Case{"Other=Given", true},
         }) {
        const std::string file = folder.write(
            "Connection Standards/Caller.tws",
            sheet({"Input", "Double Given", "Output", "Double Wanted", "Local", "Double Other",
                   "Calc", "CallChild(\"Twice.tws\",Given,Wanted,Other)", equation}));
        bool isWarned = false;
        const auto findings = checkStandard(file);
        for (const StandardsFinding& finding : findings)
            isWarned |= finding.row == 8 && finding.message.hasSubString("result is lost");
        EXPECT_EQ(isWarned, isMissed) << equation;
        EXPECT_EQ(findings.empty(), !isMissed) << equation;
    }
}

}  // namespace
