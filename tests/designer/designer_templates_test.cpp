#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "designer/designer_templates.h"
#include "frame/starters.h"
#include "support/temporary_folder.h"

namespace {

using testing::HasSubstr;

TEST(DesignerControls, ExtensionTextsAreSplitByTheType) {
    const struct {
        int type;
        const char* text;
        const char* merged;
    } cases[] = {
        {ctVarCombo, "a;b;c", "a;b;c"},
        {ctVarCombo, "", ""},
        {ctFlexFixButton, "group;x;y;z", "group;x;y;z"},
        {ctFlexFixButton, "group", "group;;;"},
        {ctFlexFixButton, "a;b;c;d;dropped", "a;b;c;d"},
        {ctValueButton, "V;2;3;4;list", "V;2;3;4;list"},
        {ctValueButtonRef, "V", "V;;;;"},
        {ctValueButtonRef, "1;2;3;4;5;6", "1;2;3;4;5"},
    };
    for (const auto& each : cases) {
        Vor_DesignerControl control;
        control.type = each.type;
        control.flexPart4 = control.extPart4 = "old";
        EXPECT_TRUE(control.setSplitExtComboList(each.text));
        EXPECT_EQ(control.getMergedExtComboList(), each.merged) << each.type << " " << each.text;
    }
}

class Templates : public testing::Test {
  protected:
    Templates() { gSettings.setLibDir(m_folder.path().string()); }
    ~Templates() override { gSettings.setLibDir(""); }
    /// Writes a template with these controls and gives its path.
    Vor_String write(const std::string& name, const std::vector<Vor_DesignerControl>& controls) {
        Vor_PropertyList properties;
        properties.setInt("nrOfControls", static_cast<int>(controls.size()));
        for (size_t i = 0; i < controls.size(); ++i)
            controls[i].setToPropList(properties, static_cast<int>(i));
        m_folder.write("Dialog Templates/Dialog Design/" + name + ".txt",
                       properties.write().view());
        return getDesignerRootFolder() + name + ".txt";
    }
    TemporaryFolder m_folder;
};

Vor_DesignerControl control(int type, const char* contents) {
    Vor_DesignerControl made;
    made.type = type;
    made.contents = contents;
    made.topLeftX = 0.25;
    made.bottomRightY = 0.75;
    return made;
}

TEST_F(Templates, ComeBackInTheirOrder) {
    Vor_DesignerControl button = control(ctFlexFixButton, "Gap");
    button.flexGroup = "Bolts";
    const Vor_String path = write("EndPlate", {control(ctVarEdit, "Width"), button});
    Vor_Array<Vor_DesignerControl> controls;
    Vor_String message;
    ASSERT_EQ(readDesignerTemplate(path, controls, message), Acad::eOk) << message.str();
    ASSERT_EQ(controls.length(), 2);
    EXPECT_EQ(controls[0].contents, "Width");
    EXPECT_EQ(controls[0].topLeftX, 0.25);
    EXPECT_EQ(controls[1].flexGroup, "Bolts");
    EXPECT_EQ(controls[1].bottomRightY, 0.75);
    Vor_StringArray names;
    getModuleImages(names);
    ASSERT_EQ(names.length(), 1);
    EXPECT_EQ(names[0], "EndPlate");
}

TEST_F(Templates, NamesOfEditsAreGivenByNameAndByPath) {
    const Vor_String path =
        write("EndPlate", {control(ctVarEdit, "Width"), control(ctLabel, "mm"),
                           control(ctVarCombo, "Bolt"), control(ctVarEdit, "Gap")});
    for (const Vor_String& asked : {Vor_String("EndPlate"), path}) {
        Vor_StringArray names{"before"};
        EXPECT_TRUE(GetImageDlgCtrlNames(asked, names));
        ASSERT_EQ(names.length(), 2);
        EXPECT_EQ(names[0], "Width");
        EXPECT_EQ(names[1], "Gap");
    }
    Vor_StringArray names{"before"};
    EXPECT_FALSE(GetImageDlgCtrlNames("Missing", names));
    EXPECT_EQ(names.length(), 1);
}

TEST_F(Templates, ThoseThatClaimTooMuchAreRefused) {
    m_folder.write("Dialog Templates/Dialog Design/Bad.txt",
                   "properties 1\ni\tnrOfControls\t2000000000\nend\n");
    Vor_Array<Vor_DesignerControl> controls;
    Vor_String message;
    EXPECT_NE(readDesignerTemplate(getDesignerRootFolder() + "Bad.txt", controls, message),
              Acad::eOk);
    EXPECT_THAT(message.str(), HasSubstr("Bad.txt"));
}

}  // namespace
