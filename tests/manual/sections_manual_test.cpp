// The manual's page of sections lists the types and their value columns as they are.
#include <gtest/gtest.h>

#include "core_api/text/text_helpers.h"
#include "manual/page.h"
#include "platform/encodings.h"
#include "sections/section_types.h"

namespace {

TEST(SectionsManual, ListsTheValueColumnsOfEveryType) {
    int type = 0;
    for (const auto& row : manual::tableRows(manual::read("docs/sections.md"))) {
        if (row.size() != 3 || row[0] != std::to_string(type + 1)) continue;
        ++type;
        EXPECT_EQ(row[1], encodings::toUtf8(sectionTypeText(type)));
        EXPECT_EQ(row[2], arrToStr(sectionTypeColumns(type), ", ").str());
    }
    EXPECT_EQ(type, sectionTypeCount);
}

}  // namespace
