// Calculates the formula sheets beside this file, *.txt, and compares with the results that stand
// there. README.md explains their format.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "spread/control/formula/function.h"
#include "support/called_functions.h"
#include "support/formula_sheet.h"
#include "test_folders.h"

namespace {

using formula::Value;

const std::filesystem::path folder = VORMANT_SOURCE_DIR "/tests/formulas";
constexpr std::string_view givesMark = " ==> ";

/// Quotes stand twice inside.
std::string unquoted(std::string_view text) {
    std::string plain;
    for (size_t i = 1; i + 1 < text.size(); ++i) {
        plain += text[i];
        if (text[i] == '"') ++i;
    }
    return plain;
}

/// A number, a text in quotes, TRUE, FALSE, or an error by its name; nothing for anything else.
/// The value borrows from `text`.
std::optional<Value> readValue(std::string_view written, std::string& text) {
    if (written == "TRUE" || written == "FALSE") return Value::boolean(written == "TRUE");
    if (const auto error = formula::errorFromText(written)) return Value(*error);
    if (written.size() > 1 && written.front() == '"' && written.back() == '"') {
        text = unquoted(written);
        return Value::borrowedText(text);
    }
    if (isNumber(written)) return Value(textToDouble(written));
    return std::nullopt;
}

/// Numbers agree to eleven digits; types count.
bool agrees(const Value& got, const Value& expected) {
    if (got.type() != expected.type()) return false;
    if (!got.isNumber()) return FormulaSheet::shown(got) == FormulaSheet::shown(expected);
    const double scale = std::max(std::abs(got.number()), std::abs(expected.number()));
    return std::abs(got.number() - expected.number()) <= std::max(1e-11 * scale, 1e-15);
}

struct Place {
    int col = 0, row = 0;
};
/// "B12".
std::optional<Place> readPlace(std::string_view name) {
    Place place;
    size_t i = 0;
    for (; i < name.size() && name[i] >= 'A' && name[i] <= 'Z'; ++i)
        place.col = place.col * 26 + (name[i] - 'A' + 1);
    const auto [end, error] =
        std::from_chars(name.data() + i, name.data() + name.size(), place.row);
    const bool isGood = i > 0 && error == std::errc() && end == name.data() + name.size();
    return isGood ? std::optional(place) : std::nullopt;
}

/// The contents between bars, quotes aside.
std::vector<std::string_view> contentsOf(std::string_view line) {
    std::vector<std::string_view> contents;
    bool inText = false;
    size_t begin = 0;
    for (size_t i = 0; i <= line.size(); ++i) {
        if (i < line.size() && line[i] == '"') inText = !inText;
        if (i < line.size() && (line[i] != '|' || inText)) continue;
        contents.push_back(trimmed(line.substr(begin, i - begin)));
        begin = i + 1;
    }
    return contents;
}

class SheetFile {
  public:
    explicit SheetFile(const std::filesystem::path& path) : m_path(path) {
        std::ifstream file(path);
        for (std::string utf8; std::getline(file, utf8);) {
            const auto line = encodings::fromUtf8(utf8);
            m_lines.push_back(line ? *line : "not a text of Windows-1252");
        }
    }

    /// Every line; what a line is wrong about is reported with it.
    void run() {
        m_sheet = std::make_unique<FormulaSheet>();
        for (size_t i = 0; i < m_lines.size(); ++i) {
            const std::string_view line = trimmed(m_lines[i]);
            SCOPED_TRACE(m_path.filename().string() + ":" + std::to_string(i + 1) + ": " +
                         std::string(line));
            if (line.empty() || line.starts_with("//")) continue;
            if (line == "clear")
                m_sheet = std::make_unique<FormulaSheet>();
            else if (line.starts_with("down ") || line.starts_with("right "))
                EXPECT_TRUE(fill(line.starts_with("down "), line.substr(line.find(' ') + 1)));
            else
                EXPECT_TRUE(isCase(line)) << "is no line of a formula sheet";
        }
    }

    /// The formulas of its cases.
    std::vector<std::string> formulas() const {
        std::vector<std::string> found;
        for (const std::string& line : m_lines)
            if (line.starts_with("=")) found.push_back(line.substr(0, line.rfind(givesMark)));
        return found;
    }

  private:
    /// "A1: 1 | "x" | =B2"
    bool fill(bool isDown, std::string_view line) {
        const size_t colon = line.find(':');
        auto place = readPlace(line.substr(0, colon));
        if (colon == line.npos || !place) return false;
        for (const std::string_view content : contentsOf(line.substr(colon + 1))) {
            std::string text;
            if (content.starts_with('='))
                m_sheet->setFormula(place->col, place->row, content.substr(1));
            else if (const auto value = readValue(content, text))
                m_sheet->set(place->col, place->row, *value);
            else if (!content.empty())
                return false;
            ++(isDown ? place->row : place->col);
        }
        return true;
    }

    bool isCase(std::string_view line) {
        const size_t mark = line.rfind(givesMark);
        if (!line.starts_with('=') || mark == line.npos) return false;
        const std::string_view formula = line.substr(1, mark - 1);
        const std::string_view written = line.substr(mark + givesMark.size());
        if (written == "refused") {
            EXPECT_TRUE(m_sheet->refuses(formula));
            return true;
        }
        std::string text;
        const auto expected = readValue(written, text);
        if (!expected) return false;
        const Value got = m_sheet->value(formula);
        EXPECT_TRUE(agrees(got, *expected)) << "gives " << FormulaSheet::shown(got);
        return true;
    }

    std::filesystem::path m_path;
    std::vector<std::string> m_lines;
    std::unique_ptr<FormulaSheet> m_sheet;
};

std::vector<std::filesystem::path> sheetFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt") files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

class FormulaSheets : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(FormulaSheets, GiveTheirResults) {
    SheetFile(GetParam()).run();
}

INSTANTIATE_TEST_SUITE_P(Families, FormulaSheets, testing::ValuesIn(sheetFiles()),
                         [](const auto& info) { return info.param.stem().string(); });

TEST(FormulaSheets, HaveThreeCasesForEveryFunction) {
    std::map<std::string, int> cases;
    for (const auto& path : sheetFiles())
        for (const std::string& formula : SheetFile(path).formulas()) {
            const auto called = calledFunctions(formula);
            for (const std::string& name : std::set(called.begin(), called.end())) ++cases[name];
        }
    for (const formula::FunctionSpec* spec : formula::allFunctions())
        EXPECT_GE(cases[std::string(spec->name)], 3) << spec->name;
}

// The comparison itself must be able to fail.
TEST(FormulaSheets, AreComparedStrictly) {
    std::string text;
    EXPECT_FALSE(agrees(Value(1.0), Value::boolean(true)));
    EXPECT_FALSE(agrees(Value(1 + 1e-10), Value(1.0)));
    EXPECT_FALSE(agrees(Value(formula::ErrorCode::na), Value(formula::ErrorCode::value)));
    EXPECT_FALSE(agrees(Value::borrowedText("1"), *readValue("1", text)));
    EXPECT_TRUE(agrees(Value::borrowedText("a\"b"), *readValue("\"a\"\"b\"", text)));
    EXPECT_FALSE(readValue("\"a", text));
    EXPECT_FALSE(readValue("1 2", text));
}

}  // namespace
