// Reading and writing cells.
#include <cmath>

#include "core_api/text/number_text.h"
#include "spread/control/formula/coerce.h"
#include "spread/control/grid.h"

namespace control {
namespace {

using formula::Value;

std::string_view withoutBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<double> decimalNumber(std::string_view text) {
    text = withoutBlanks(text);
    const std::optional<double> number = takeNumber(text);
    return text.empty() ? number : std::nullopt;
}

// A general cell takes a text for a number only when nothing of the text is lost: "12.5" becomes
// 12.5, while "007", "1.50" and "1e5" stay the texts that they are.
std::optional<double> numberWrittenAs(std::string_view text) {
    if (text.empty() || text.size() >= formula::numberTextSize) return std::nullopt;
    const char first = text[0];
    if (first != '-' && (first < '0' || first > '9')) return std::nullopt;
    std::string_view rest = text;
    const std::optional<double> number = takeNumber(rest);
    if (!number || !rest.empty()) return std::nullopt;
    char buffer[formula::numberTextSize];
    if (std::string_view(buffer, formula::writeNumber(*number, buffer)) != text)
        return std::nullopt;
    return number;
}

/// What a cell of `type` stores for a written value; nothing when it refuses.
class Acceptance {
  public:
    explicit Acceptance(const CellType& type) : m_type(type) {}

    std::optional<Value> of(const Value& value) {
        switch (value.type()) {
            case ValueType::empty:
            case ValueType::missing:
                return Value();
            case ValueType::number:
                return ofNumber(value.number());
            case ValueType::boolean:
                return ofBoolean(value);
            case ValueType::error:
                return value;
            case ValueType::text:
                return ofText(value);
            default:
                return std::nullopt;
        }
    }

  private:
    std::optional<Value> ofNumber(double number) {
        if (!std::isfinite(number)) return std::nullopt;
        if (m_type.isNumber()) {
            number = roundAsWritten(number, m_type.decimals);
            return m_type.takes(number) ? std::optional(Value(number)) : std::nullopt;
        }
        if (!m_type.keepsText()) return Value(number);
        return Value::borrowedText({m_buffer, formula::writeNumber(number, m_buffer)});
    }

    std::optional<Value> ofBoolean(const Value& value) {
        if (m_type.isNumber() || m_type.kind == CellKind::checkBox)
            return ofNumber(value.truth() ? 1 : 0);
        if (m_type.keepsText()) return Value::borrowedText(value.truth() ? "TRUE" : "FALSE");
        return value;
    }

    std::optional<Value> ofText(const Value& value) {
        const std::string_view text = value.text();
        if (text.empty()) return Value();
        if (m_type.isNumber()) {
            if (const auto number = decimalNumber(text)) return ofNumber(*number);
            if (withoutBlanks(text).empty()) return Value();
            if (const auto error = formula::errorFromText(text)) return Value(*error);
            return std::nullopt;
        }
        if (!m_type.keepsText())
            if (const auto number = numberWrittenAs(text)) return Value(*number);
        return value;
    }

    const CellType& m_type;
    char m_buffer[formula::numberTextSize];
};

std::string_view textOf(const Value& value, const CellType& type, bool keepZeros,
                        std::string& buffer) {
    switch (value.type()) {
        case ValueType::number:
            if (type.isNumber()) {
                NumberBuffer digits;
                buffer = writeNumber(digits, value.number(), type.decimals, keepZeros);
            } else {
                char digits[formula::numberTextSize];
                buffer.assign(digits, formula::writeNumber(value.number(), digits));
            }
            return buffer;
        case ValueType::text:
            return value.text();
        case ValueType::boolean:
            return value.truth() ? "TRUE" : "FALSE";
        case ValueType::error:
            return formula::errorText(value.error());
        default:
            return {};
    }
}

std::string_view find(const CellTexts& texts, int col, int row) {
    if (texts.empty()) return {};
    const auto found = texts.find(cellKey(isHeader(col) ? 0 : col, isHeader(row) ? 0 : row));
    return found == texts.end() ? std::string_view() : std::string_view(found->second);
}

std::string_view find(const std::map<int, std::string>& texts, int index) {
    const auto found = texts.find(index);
    return found == texts.end() ? std::string_view() : std::string_view(found->second);
}

void put(CellTexts& texts, int col, int row, std::string_view text) {
    const int64_t key = cellKey(isHeader(col) ? 0 : col, isHeader(row) ? 0 : row);
    if (text.empty())
        texts.erase(key);
    else
        texts[key] = text;
}

std::string_view headerText(const SideTables& sides, int col, int row) {
    if (isHeader(col) && isHeader(row)) return sides.cornerText;
    return isHeader(row) ? find(sides.cols.texts, col) : find(sides.rows.texts, row);
}

void setHeaderText(SideTables& sides, int col, int row, std::string_view text) {
    if (isHeader(col) && isHeader(row)) {
        sides.cornerText = text;
        return;
    }
    auto& texts = isHeader(row) ? sides.cols.texts : sides.rows.texts;
    const int index = isHeader(row) ? col : row;
    if (text.empty())
        texts.erase(index);
    else
        texts[index] = text;
}

}  // namespace

bool Grid::writeValue(int col, int row, const Value& value) {
    if (!isInside(col, row)) return false;
    Acceptance acceptance(format(col, row).type);
    const std::optional<Value> accepted = acceptance.of(value);
    if (!accepted) return false;
    markTouched(col, row);
    m_sheet->setValue(col, row, *accepted);
    return true;
}

bool Grid::writeNumber(int col, int row, const CellType& type, double number) {
    if (!isInside(col, row)) return false;
    if (!type.takes(number)) {
        (void)setType(col, row, type);
        return false;
    }
    markTouched(col, row);
    m_sheet->put(col, row, Value(number), ownFormat(m_sheet->find(col, row), col, type));
    return true;
}

bool Grid::writeEmpty(int col, int row, const CellType& type) {
    if (!isInside(col, row)) return false;
    const Cell* cell = m_sheet->find(col, row);
    if (!cell || (cell->type == ValueType::empty && !cell->formula)) return setType(col, row, type);
    markTouched(col, row);
    m_sheet->put(col, row, Value(), ownFormat(cell, col, type));
    return true;
}

Cell* Grid::plainCell(int col, int row, const CellType& type) {
    Cell* cell = isInside(col, row) ? m_sheet->plainCell(col, row) : nullptr;
    if (!cell || !(m_formats[shownFormat(cell, col)].type == type)) return nullptr;
    m_changed = true;
    // One that has another format than in the document was noted when it got that.
    const Cell* original = m_document ? m_document->sheet().find(col, row) : nullptr;
    if (!original || original->format == cell->format) markTouched(col, row);
    return cell;
}

Value Grid::shown(const CellType& type, const Value& value) {
    if (value.isNumber() && type.isNumber())
        return Value(roundAsWritten(value.number(), type.decimals));
    if (value.isBoolean() && (type.isNumber() || type.kind == CellKind::checkBox))
        return Value(value.truth() ? 1.0 : 0.0);
    return value;
}

std::string_view Grid::shownText(const CellType& type, const Value& value, std::string& buffer) {
    return textOf(shown(type, value), type, false, buffer);
}

Value Grid::shownValue(int col, int row) const {
    if (!isInside(col, row)) return Value();
    return shown(format(col, row).type, m_sheet->value(col, row));
}

bool Grid::setData(int col, int row, std::string_view text) {
    if (isInside(col, row)) return writeValue(col, row, Value::borrowedText(text));
    if (!isAddress(col, row)) return false;
    setHeaderText(changeSides(), col, row, text);
    return true;
}

std::string_view Grid::text(int col, int row, Reading reading, std::string& buffer) const {
    if (!isAddress(col, row)) return {};
    if (reading == Reading::tag) return find(m_sides->tags, col, row);
    if (!isInside(col, row))
        return reading == Reading::formula ? std::string_view() : headerText(*m_sides, col, row);
    if (reading == Reading::formula) return m_sheet->formula(col, row).value_or("");
    const CellType& type = format(col, row).type;
    return textOf(shown(type, m_sheet->value(col, row)), type, reading == Reading::data, buffer);
}

std::string Grid::text(int col, int row, Reading reading) const {
    std::string buffer;
    const std::string_view read = text(col, row, reading, buffer);
    return read.data() == buffer.data() ? std::move(buffer) : std::string(read);
}

bool Grid::setTag(int col, int row, std::string_view text) {
    if (!isAddress(col, row)) return false;
    put(changeSides().tags, col, row, text);
    return true;
}

bool Grid::setNote(int col, int row, std::string_view text) {
    if (!isAddress(col, row)) return false;
    put(changeSides().notes, col, row, text);
    return true;
}

std::string_view Grid::note(int col, int row) const {
    return isAddress(col, row) ? find(m_sides->notes, col, row) : std::string_view();
}

void Grid::clearCells(const Block& block) {
    const std::optional<Block> inside = resolved(block);
    if (!inside) return;
    const Area area{inside->row1, inside->row2, static_cast<uint16_t>(inside->col1),
                    static_cast<uint16_t>(inside->col2)};
    std::vector<CellAddress> filled;
    m_sheet->cells().each(area, [&](int row, int col, const Cell& cell) {
        if (cell.type != ValueType::empty || cell.formula != 0) filled.push_back({col, row});
    });
    for (const CellAddress& cell : filled) {
        markTouched(cell.col, cell.row);
        m_sheet->setValue(cell.col, cell.row, Value());
    }
    const auto isIn = [&](const auto& entry) {
        const int col = keyCol(entry.first), row = keyRow(entry.first);
        return col >= inside->col1 && col <= inside->col2 && row >= inside->row1 &&
               row <= inside->row2;
    };
    if (std::any_of(m_sides->tags.begin(), m_sides->tags.end(), isIn))
        std::erase_if(changeSides().tags, isIn);
    if (std::any_of(m_sides->notes.begin(), m_sides->notes.end(), isIn))
        std::erase_if(changeSides().notes, isIn);
}

void Grid::putCell(int col, int row, const Cell& content, const TextBlock* formula, bool isArray) {
    if (!isInside(col, row)) return;
    markTouched(col, row);
    if (formula) {
        m_sheet->putFormula(col, row, formula->view(), content.value(), isArray, content.dirty);
        m_sheet->setFormat(col, row, content.format);
    } else if (content.type == ValueType::empty && content.format == inheritedFormat) {
        m_sheet->clearCell(col, row);
    } else {
        m_sheet->putBack(col, row, content);
    }
}

bool Grid::setFormula(int col, int row, std::string_view text, formula::ParseError* error) {
    formula::ParseError reason;
    formula::ParseError& why = error ? *error : reason;
    if (!isInside(col, row)) {
        why = {"the cell lies outside the sheet", 0};
        return false;
    }
    if (!text.empty()) {
        if (!m_sheet->setFormula(col, row, text, why)) return false;
        markTouched(col, row);
        return true;
    }
    if (!m_sheet->formula(col, row)) return true;
    markTouched(col, row);
    const std::string kept(m_sheet->value(col, row).isText() ? m_sheet->value(col, row).text()
                                                             : std::string_view());
    const Value value = m_sheet->value(col, row);
    m_sheet->setValue(col, row, value.isText() ? Value::borrowedText(kept) : value);
    return true;
}

void Grid::setFormula(int col, int row, const formula::ProgramRef& program, TextBlock* text) {
    markTouched(col, row);
    m_sheet->setFormula(col, row, program, text);
}

}  // namespace control
