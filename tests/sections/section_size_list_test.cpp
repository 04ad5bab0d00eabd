// The sizes offered for a section.
#include "sections/section_size_list.h"

#include <gtest/gtest.h>

#include "core_api/sections/section_tables.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/window/controls.h"
#include "support/printed.h"
#include "support/temporary_folder.h"

namespace {

TEST(SectionSizeList, OffersTheActiveSizesByTheirNames) {
    const TemporaryFolder folder;
    folder.write("prof/IPE.pr",
                 "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench\th\n"
                 "200\t1\tIPE 200\tIPE 200 NL\t\t\t200\n"
                 "220\t0\tIPE 220\t\t\t\t220\n"
                 "240\t1\t\t\t\t\t240\n");
    folder.write("prof/OFF.pr", "1\nSysName\tI/O\tEnglish\n1\t0\tone\n");
    folder.write("prof/BAD.pr", "1\nSysName\t\\x\n");
    gSettings.setLibDir(folder.inside());
    gSectionTables.reload();
    Printed host;  // hears of the damaged table
    const HostScope scope(host);
    const struct {
        const char* section;
        Language language;
        const char* names;
        const char* entries;
        int selected;
    } cases[] = {
        {"IPE-200", Language::english, "IPE-200,IPE-240", "IPE 200,IPE-240,<varies>", 0},
        {"IPE-200", Language::dutch, "IPE-200,IPE-240", "IPE 200 NL,IPE-240,<wisselend>", 0},
        {"IPE-240", Language::english, "IPE-200,IPE-240", "IPE 200,IPE-240,<varies>", 1},
        {"IPE-220", Language::english, "IPE-200,IPE-240", "IPE 200,IPE-240,<varies>", -1},
        {"IPE", Language::english, "IPE-200,IPE-240", "IPE 200,IPE-240,<varies>", -1},
        {"OFF-1", Language::english, "", "<varies>", -1},
        {"NONE-1", Language::english, "", "<varies>", -1},
        {"BAD-1", Language::english, "", "<varies>", -1},
        {"", Language::english, "", "<varies>", -1},
        {"User Sections\\Box-1.dwg", Language::english, "User Sections\\Box-1.dwg",
         "Box-1,<varies>", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.section);
        gSettings.current().language = c.language;
        CComboBox list;
        list.add("old");
        EXPECT_EQ(arrToStr(fillSizeList(list, c.section), ",").str(), c.names);
        std::string entries;
        for (const auto& item : list.items()) entries += (entries.empty() ? "" : ",") + item.text;
        EXPECT_EQ(entries, c.entries);
        EXPECT_EQ(list.selected(), c.selected);
    }
    gSettings = Vor_Settings();
    gSectionTables.reload();
}

}  // namespace
