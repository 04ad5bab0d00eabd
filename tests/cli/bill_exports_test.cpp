// Bills of random tables, in every kind of file, against plain sums over the rows of the table.
#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <random>

#include "cli/program.h"
#include "cli/zip_entry.h"
#include "core_api/text/delimited_text.h"
#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "spread/control/document.h"
#include "spread/control/grid.h"
#include "test_folders.h"

namespace {

using Cells = std::vector<std::vector<std::string>>;  // by rows, UTF-8

// --- what the files show ------------------------------------------------------------------------

void put(Cells& cells, size_t row, size_t col, std::string text) {
    if (text.empty()) return;
    cells.resize(std::max(cells.size(), row + 1));
    cells[row].resize(std::max(cells[row].size(), col + 1));
    cells[row][col] = std::move(text);
}

std::string numberText(double number) {
    return Vor_String(number, 6).str();
}

Cells cellsOfDocument(const std::string& text) {
    std::string error;
    const auto document = control::readDocument(text, "bill", error);
    EXPECT_TRUE(document) << error;
    control::Grid grid;
    grid.adopt(document);
    Cells cells;
    for (int row = 0; row <= grid.rows(); ++row)
        for (int col = 1; col <= grid.cols(); ++col)
            put(cells, static_cast<size_t>(row), static_cast<size_t>(col - 1),
                encodings::toUtf8(grid.text(col, row == 0 ? control::headerIndex : row,
                                            control::Reading::value)));
    return cells;
}

/// Without the apostrophes that guard texts.
Cells cellsOfCsv(const std::string& text) {
    DelimitedText lines(text, ',');
    std::vector<std::string> fields;
    Cells cells;
    for (size_t row = 0; lines.next(fields); ++row)
        for (size_t col = 0; col < fields.size(); ++col)
            put(cells, row, col, fields[col].substr(fields[col].starts_with('\'') ? 1 : 0));
    return cells;
}

std::string unescaped(std::string text) {
    for (const auto& [entity, character] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
        for (size_t at = 0; (at = text.find(entity, at)) != text.npos; ++at)
            text.replace(at, std::strlen(entity), character);
    return text;
}

/// What stands between `open` and `close` from `at` on, which moves behind it. Empty at the end.
std::string_view between(std::string_view text, size_t& at, std::string_view open,
                         std::string_view close) {
    const size_t begin = text.find(open, at);
    if (begin == text.npos) return at = text.npos, std::string_view();
    const size_t end = text.find(close, begin + open.size());
    at = end;
    return text.substr(begin + open.size(), end - begin - open.size());
}

Cells cellsOfWorkbook(const std::string& archive) {
    const std::string texts = zipEntry(archive, "xl/sharedStrings.xml");
    const std::string sheet = zipEntry(archive, "xl/worksheets/sheet1.xml");
    std::vector<std::string> shared;
    for (size_t at = 0;;) {
        const auto item = between(texts, at, "<t", "</t>");
        if (at == texts.npos) break;
        shared.push_back(unescaped(std::string(item.substr(item.find('>') + 1))));
    }
    Cells cells;
    for (size_t at = 0;;) {
        const auto cell = between(sheet, at, "<c r=\"", "<c r=\"");
        if (cell.empty()) break;
        const auto value = [&] {
            size_t from = 0;
            return std::string(between(cell, from, "<v>", "</v>"));
        }();
        if (!value.empty()) {
            const auto number = cell.find("t=\"s\"") != cell.npos ? shared.at(std::stoul(value))
                                                                  : numberText(std::stod(value));
            put(cells, std::stoul(std::string(cell.substr(1))) - 1,
                static_cast<size_t>(cell[0] - 'A'), number);
        }
        if (at == sheet.npos) break;
    }
    return cells;
}

// --- the plain twin -----------------------------------------------------------------------------

struct Row {
    std::string name, phase, code;
    std::optional<long long> count, grams;
};

std::string kilograms(long long grams) {
    return numberText(static_cast<double>(grams) / 1000);
}

/// As a sheet rounds it: one decimal, halves away from zero.
std::string rounded(long long grams) {
    const long long tenths = (std::abs(grams) + 50) / 100;
    return numberText((grams < 0 ? -1.0 : 1.0) * static_cast<double>(tenths) / 10);
}

std::vector<Row> randomRows(std::mt19937& random) {
    const auto any = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    constexpr const char* names[] = {"IPE-200", "=1+1", "a,b", "say \"x\"",
                                     "+49",     "",     "<&>", "\xC3\x9C"};
    constexpr const char* phases[] = {"A", "a", "A1", "A01", "B 2", "B 10", ""};
    std::vector<Row> rows(1 + static_cast<size_t>(any(30)));
    for (Row& row : rows) {
        row.name = names[any(8)];
        row.phase = phases[any(7)];
        row.code = any(2) ? "007" : "-x";
        if (any(6) != 0) row.count = any(9);
        if (any(6) != 0) row.grams = any(4000) * 25 - 20000;
    }
    rows[0].count = 1;
    rows[0].grams = 1250;  // never a column of whole numbers
    return rows;
}

std::string tableOf(const std::vector<Row>& rows) {
    std::string text = "Name,Phase,Code,Count,Total mass\n";
    for (const Row& row : rows) {
        for (const std::string& each : {row.name, row.phase, row.code}) {
            appendField(text, each, ',');
            text += ',';
        }
        text += (row.count ? std::to_string(*row.count) : "") + ",";
        text += (row.grams ? kilograms(*row.grams) : "") + "\n";
    }
    return text;
}

struct Sums {
    std::optional<long long> count, grams;
    void add(const Row& row) {
        if (row.count) count = count.value_or(0) + *row.count;
        if (row.grams) grams = grams.value_or(0) + *row.grams;
    }
    std::string shown() const {
        return (count ? std::to_string(*count) : "") + "|" + (grams ? rounded(*grams) : "");
    }
};

/// The rows of sums in a bill's cells, by their label in small letters.
std::map<std::string, std::string> sumRows(const Cells& cells) {
    std::map<std::string, std::string> sums;
    for (const auto& row : cells) {
        const auto cell = [&](size_t col) { return col < row.size() ? row[col] : std::string(); };
        const bool isSum = cell(0).starts_with("Subtotal") || cell(0).starts_with("Total");
        if (!isSum || !cell(2).empty()) continue;
        const auto label = encodings::lowered(cell(0));
        EXPECT_TRUE(sums.emplace(label, cell(3) + "|" + cell(4)).second) << "twice: " << label;
    }
    return sums;
}

TEST(BillExports, ShowTheSumsOfTheFedRowsAndTheCellsOfTheSheet) {
    const program::Folder folder;
    for (unsigned seed = 1; seed <= 25; ++seed) {
        std::mt19937 random(seed);
        const std::vector<Row> rows = randomRows(random);
        const bool isGrouped = seed % 3 != 0;
        std::map<std::string, Sums> sums;
        for (const Row& row : rows) {
            sums["total"].add(row);
            const std::string label = "subtotal" + (row.phase.empty() ? "" : " " + row.phase);
            if (isGrouped) sums[encodings::lowered(label)].add(row);
        }
        const std::string table = folder.write("t.csv", tableOf(rows));
        const auto make = [&](const char* name) {
            const auto result =
                program::run({"--library", VORMANT_SOURCE_DIR "/library", "bill", table, "-o",
                              folder / name, "--group", isGrouped ? "Phase" : "none", "--json"});
            EXPECT_EQ(result.exitCode, 0) << result.err;
            EXPECT_EQ(result.err, "");
            const auto totals = nlohmann::json::parse(result.out)["totals"];
            EXPECT_EQ(numberText(totals["Total mass"]), kilograms(*sums["total"].grams)) << seed;
            return folder.read(name);
        };
        const Cells cells = cellsOfDocument(make("b.sss"));
        std::map<std::string, std::string> expected;
        for (const auto& [label, sum] : sums) expected[label] = sum.shown();
        EXPECT_EQ(sumRows(cells), expected) << "seed " << seed;
        EXPECT_TRUE(isGrouped || cells.size() == rows.size() + 2) << "a header and a total";
        EXPECT_EQ(cellsOfCsv(make("b.csv")), cells) << "seed " << seed;
        EXPECT_EQ(cellsOfWorkbook(make("b.xlsx")), cells) << "seed " << seed;
    }
}

}  // namespace
