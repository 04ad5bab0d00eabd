// Starters when memory runs out, at every point of their way: hosts expect no exceptions, and what
// the caller handed over is as it was.
#include <functional>
#include <utility>

#include "core_api/settings.h"
#include "designer/designer_templates.h"
#include "frame/entry_point.h"
#include "frame/failing_allocations.h"
#include "frame/frame_host.h"
#include "frame/starters.h"
#include "macros/sample_macro.h"
#include "spread/formulas/formulas_starters.h"
#include "spread/vor_spread.h"
#include "support/temporary_folder.h"

namespace {

/// What is called, and whether the caller's data then fits what came back.
struct Starter {
    const char* name;
    std::function<bool()> start;
    std::function<bool(bool)> isWhole = [](bool) { return true; };
};

class NoMemory : public testing::Test {
  protected:
    NoMemory() : m_scope(host) {
        attachLibrary(&m_instance);
        gSettings.setLibDir(folder.path().string());
        Vor_DesignerControl control;
        control.type = ctVarEdit;
        control.contents = "PlateThicknessOfTheStiffener";
        Vor_PropertyList properties;
        properties.setInt("nrOfControls", 1);
        control.setToPropList(properties, 0);
        folder.write("dialog.txt", properties.write().view());
        Vor_Spread table;
        table.attachHidden();
        table.setNrCols(3, false);
        table.setNrRows(2);
        table.setRow(1, Vor_StringArray{"HEA-200", "53.8", "a text that is not stored in place"});
        EXPECT_TRUE(table.saveToFile(folder.inside("table.sss")));
    }
    ~NoMemory() override {
        allocationsLeft = unlimited;
        gSettings.setLibDir("");
        detachLibrary();
    }

    /// Whether there was enough after `count` allocations.
    bool isEnough(const Starter& starter, long count, bool forGood) {
        const ModuleInstance before = gResourceOverride.current();
        bool result = false, hasThrown = false;
        isForGood = forGood;
        allocationsLeft = count;
        try {
            result = starter.start();
        } catch (...) {
            hasThrown = true;
        }
        const bool hasFailed = forGood ? allocationsLeft == 0 : allocationsLeft < 0;
        allocationsLeft = unlimited;
        EXPECT_FALSE(hasThrown) << starter.name << ", " << count;
        EXPECT_TRUE(starter.isWhole(result)) << starter.name << ", " << count;
        EXPECT_EQ(gResourceOverride.current(), before) << starter.name << ", " << count;
        return !hasFailed;
    }

    int m_instance = 0;
    OwnSettings settings;
    TemporaryFolder folder;
    FrameHost host;

  private:
    HostScope m_scope;
};

bool keepsProperties(TwMACallBackType, const TwMACallBackData&, MacroProfData&) {
    return true;
}

TEST_F(NoMemory, EndsNoStarterWithAnException) {
    const Vor_String path = folder.inside("table.sss"), dialog = folder.inside("dialog.txt");
    const Vor_String tab = "Braces", group = "Left", heading = "Connection";
    const Vor_StringArray macros{"c:\\macros\\end plate with haunch.dwg", "c:\\macros\\b.dwg"};
    const AcArray<bool> enabled{true, true};
    const std::string oldMacro = "the old one, whose name is not stored in place";
    Vor_String title, macro = oldMacro;
    Vor_StringArray header, names{"old"};
    Vor_Array<Vor_StringArray> rows;
    MacroData data = makeMacroData(sampleMacro());
    AcArray<AcDbObjectId> objects{AcDbObjectId(5)};
    bool isAlternative = false, forAll = true;
    int application = 0;
    const auto isMacroKept = [&](bool) { return macro == oldMacro && !isAlternative; };
    const Starter starters[] = {
        {"EvaluateSS", [&] { return EvaluateSS(), true; }},
        {"ReadSSFile", [&] { return ReadSSFile(path, title, header, rows); },
         [&](bool isRead) {
             const bool isEmpty = title.isEmpty() && header.isEmpty() && rows.isEmpty();
             return isRead ? title == "HEA-200" && header.length() == 3 && rows.length() == 2
                           : isEmpty;
         }},
        {"GetImageDlgCtrlNames", [&] { return GetImageDlgCtrlNames(dialog, names); },
         [&](bool isRead) {
             const Vor_StringArray got = std::exchange(names, Vor_StringArray{"old"});
             return got == Vor_StringArray{isRead ? "PlateThicknessOfTheStiffener" : "old"};
         }},
        {"StartDlgSelectMacro",
         [&] { return StartDlgSelectMacro(heading, macros, 64, 64, macro, isAlternative, true); },
         isMacroKept},
        {"StartDlgSelectMacro of enabled ones",
         [&] {
             return StartDlgSelectMacro(heading, macros, enabled, 64, 64, macro, isAlternative,
                                        true);
         },
         isMacroKept},
        {"StartDlgMacroProfAdv", [&] { return StartDlgMacroProfAdv(data, tab, group, true), true; },
         [&](bool) { return data == makeMacroData(sampleMacro()); }},
        {"StartDlgMacroProfAdv of objects",
         [&] { return StartDlgMacroProfAdv(&objects, forAll, keepsProperties), true; },
         [&](bool) { return forAll; }},
        {"StartDlgDesigner", [&] { return StartDlgDesigner(path); }},
        {"StartDlgMacro", [&] { return StartDlgMacro(data), true; }},
        {"acrxEntryPoint at the beginning",
         [&] { return acrxEntryPoint(AcRx::kInitAppMsg, &application) == AcRx::kRetOK; },
         [&](bool isOk) { return isOk && gBitmapChecked.isEmpty() == gBitmapUnchecked.isEmpty(); }},
        {"acrxEntryPoint at the end",
         [&] { return acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr) == AcRx::kRetOK; },
         [](bool isOk) { return isOk; }},
    };
    for (const Starter& starter : starters)
        for (const bool forGood : {false, true}) {
            gBitmapChecked = gBitmapUnchecked = CBitmap();
            long count = 0;
            while (!isEnough(starter, count, forGood)) ++count;
            EXPECT_GT(count, 0) << starter.name;
        }
}

}  // namespace
