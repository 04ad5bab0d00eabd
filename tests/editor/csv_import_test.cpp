// Text files of other programs: how their bytes, separators and numbers are read.
#include "spread/editor/csv_import.h"

#include <gtest/gtest.h>

namespace {

using control::Grid;
using control::Reading;
using editor::CsvSettings;
using editor::DecimalMark;
using namespace std::string_literals;

/// Numbers as they are, texts in quotes, formulas with "="; cells separated by "|", rows by "/".
std::string shown(const Grid& grid) {
    std::string all;
    for (int row = 1; row <= grid.rows(); ++row) {
        if (row > 1) all += '/';
        for (int col = 1; col <= grid.cols(); ++col) {
            if (col > 1) all += '|';
            const std::string formula = grid.text(col, row, Reading::formula);
            const std::string data = grid.text(col, row, Reading::data);
            const bool isText = grid.sheet().value(col, row).isText();
            all += !formula.empty() ? "=" + formula : isText ? "'" + data + "'" : data;
        }
    }
    return all;
}

TEST(CsvImport, ReadsWhatOtherProgramsWrite) {
    const struct {
        std::string bytes;
        CsvSettings settings;
        const char* cells;
    } cases[] = {
        {"a,1\nb,2.5\n", {}, "'a'|1/'b'|2.5"},
        {"a;1,5;x\r\nb;-1.234,25;\r\n", {}, "'a'|1.5|'x'/'b'|-1234.25|"},
        {"1,5;2,5\n3,5;4,5\n", {}, "1.5|2.5/3.5|4.5"},
        {"a;1.5\nb;2\n", {}, "'a'|1.5/'b'|2"},
        {"a;1,5;1.5;12.34,5\n", {}, "'a'|1.5|'1.5'|'12.34,5'"},
        {"1,5\t2\n3,5\t4\n", {}, "'1,5'|2/'3,5'|4"},
        {"1,5\t2\n", {'\t', DecimalMark::comma, true}, "1.5|2"},
        {"1;5,2\n", {',', DecimalMark::guessed, true}, "'1;5'|2"},
        {"\"x\"\"y,\nz\",\"1\"\n", {}, "'x\"y,\nz'|1"},
        {"\"open,2\nb,3\n", {}, "'\"open'|2/'b'|3"},
        {"007,1e3,-0.5,0,12345678901234567890\n", {}, "'007'|1000|-0.5|0|'12345678901234567890'"},
        {"1,=A1*2,=nonsense(\n", {}, "1|=A1*2|'=nonsense('"},
        {"1,=A1*2\n", {'\0', DecimalMark::guessed, false}, "1|'=A1*2'"},
        {"'=1+1,''=x,'a,'\n", {}, "'=1+1'|''=x'|''a'|'''"},
        {"a\n\nb", {}, "'a'//'b'"},
        {"", {}, ""},
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9;\xE2\x82\xAC\n",
         {},
         "'caf\xE9'|'\x80'"},
        {"caf\xC3\xA9,1\n", {}, "'caf\xE9'|1"},
        {"caf\xE9,1\n", {}, "'caf\xE9'|1"},
        {"\xFF\xFE"
         "a\0,\0\xE9\0\n\0"s,
         {},
         "'a'|'\xE9'"},
        {"\xFE\xFF\0a\0;\x20\xAC\0\n"s, {}, "'a'|'\x80'"},
    };
    for (const auto& each : cases) {
        Grid grid;
        grid.setCols(9);
        grid.setRows(9);
        grid.setData(9, 9, "old");
        std::string error;
        EXPECT_TRUE(editor::importCsv(grid, each.bytes, each.settings, error)) << error;
        EXPECT_EQ(shown(grid), each.cells) << each.bytes;
    }
}

TEST(CsvImport, RefusesWhatASheetCannotHold) {
    const struct {
        std::string bytes;
        const char* error;
    } cases[] = {
        {"a\nb\0"s, "Line 2: the zero byte; replace it in the file."},
        {"a\nb\xE4\xB8\xAD\n",
         "Line 2: the character U+4E2D is not in Windows-1252; replace it in the file."},
        {"\xFF\xFE"
         "a\0\n"s,
         "The file is no text in UTF-16: it ends inside a character."},
        {"\xFF\xFE\x3D\xD8"s, "The file is no text in UTF-16: it ends inside a character."},
        {"\xFF\xFE\x3D\xD8\x00\xDE"s,
         "Line 1: the character U+1F600 is not in Windows-1252; replace it in the file."},
        {"a\n" + std::string(16384, ','),
         "Line 2 has more fields than a sheet has columns (16384)."},
    };
    for (const auto& each : cases) {
        Grid grid;
        grid.setCols(1);
        grid.setRows(1);
        grid.setData(1, 1, "old");
        std::string error;
        EXPECT_FALSE(editor::importCsv(grid, each.bytes, {}, error));
        EXPECT_EQ(error, each.error);
        EXPECT_EQ(shown(grid), "'old'");
    }
}

}  // namespace
