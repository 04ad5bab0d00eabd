#include "cli/sheets/eval_record.h"

#include <nlohmann/json.hpp>

#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"

namespace cli {

namespace {

using Json = nlohmann::json;

bool textFrom(const Json& json, std::string& text, std::string& error) {
    return exchange::fromUtf8(json.get_ref<const std::string&>(), text, error);
}

bool contentFromObject(const Json& json, CellContent& content, std::string& error) {
    const auto text = json.find("text");
    const auto code = json.find("error");
    if (text != json.end() && text->is_string()) {
        return textFrom(*text, content.emplace<std::string>(), error);
    }
    if (code != json.end() && code->is_string()) {
        const auto known = formula::errorFromText(code->get_ref<const std::string&>());
        if (known) content = *known;
        error = "unknown error value";
        return known.has_value();
    }
    error = R"(an object must be {"text": …} or {"error": …})";
    return false;
}

bool contentFromJson(const Json& json, CellContent& content, std::string& error) {
    if (json.is_number()) {
        content = json.get<double>();
    } else if (json.is_boolean()) {
        content = json.get<bool>();
    } else if (json.is_object()) {
        return contentFromObject(json, content, error);
    } else if (json.is_string()) {
        std::string text;
        if (!textFrom(json, text, error)) return false;
        if (text.starts_with('='))
            content = FormulaText{text.substr(1)};
        else
            content = std::move(text);
    } else {
        error = "must be a number, true, false, a text or an object";
        return false;
    }
    return true;
}

bool readCells(const Json& cells, EvalRecord& record, std::string& error) {
    if (!cells.is_object()) {
        error = R"("cells" must be an object)";
        return false;
    }
    for (const auto& [name, json] : cells.items()) {
        const auto address = cellAddress(name);
        CellContent content;
        std::string reason = "no cell has this address";
        if (!address || !contentFromJson(json, content, reason)) {
            error = "cell " + name + ": " + reason;
            return false;
        }
        record.cells.push_back({*address, std::move(content)});
    }
    return true;
}

bool readFields(const Json& json, EvalRecord& record, std::string& error) {
    if (const auto cells = json.find("cells"); cells != json.end())
        if (!readCells(*cells, record, error)) return false;
    if (const auto cell = json.find("cell"); cell != json.end()) {
        const auto address =
            cell->is_string() ? cellAddress(cell->get_ref<const std::string&>()) : std::nullopt;
        if (!address) {
            error = R"("cell" must be the address of a cell)";
            return false;
        }
        record.address = *address;
    }
    if (const auto tags = json.find("tags"); tags != json.end() && tags->is_array())
        record.isArray = std::find(tags->begin(), tags->end(), "array") != tags->end();
    const auto text = json.find("formula");
    if (text == json.end() || !text->is_string()) {
        error = R"("formula" is missing or no text)";
        return false;
    }
    if (!textFrom(*text, record.formula, error)) return false;
    if (record.formula.starts_with('=')) record.formula.erase(0, 1);
    return true;
}

/// Millions of brackets would take gigabytes once parsed.
bool isTooDeep(std::string_view json) {
    constexpr int deepest = 64;
    int depth = 0;
    bool inText = false;
    for (size_t i = 0; i < json.size() && depth <= deepest; ++i) {
        const char c = json[i];
        if (inText && c == '\\') ++i;
        if (c == '"') inText = !inText;
        if (inText) continue;
        if (c == '[' || c == '{') ++depth;
        if (c == ']' || c == '}') --depth;
    }
    return depth > deepest;
}

void place(control::Sheet& sheet, const EvalRecord::Cell& cell) {
    const auto [col, row] = cell.address;
    if (const auto* number = std::get_if<double>(&cell.content))
        sheet.setValue(col, row, *number);
    else if (const auto* truth = std::get_if<bool>(&cell.content))
        sheet.setValue(col, row, formula::Value::boolean(*truth));
    else if (const auto* text = std::get_if<std::string>(&cell.content))
        sheet.setValue(col, row, formula::Value::borrowedText(*text));
    else if (const auto* code = std::get_if<formula::ErrorCode>(&cell.content))
        sheet.setValue(col, row, *code);
}

std::string refusal(const std::string& where, const formula::ParseError& problem) {
    std::string message = where + " is refused: ";
    exchange::appendUtf8(message, problem.message);
    return message + " (character " + std::to_string(problem.position + 1) + ")";
}

}  // namespace

CellContent contentFromText(std::string_view text) {
    if (text.starts_with('=')) return FormulaText{std::string(text.substr(1))};
    if (encodings::equalFolded(text, "TRUE")) return true;
    if (encodings::equalFolded(text, "FALSE")) return false;
    if (isNumber(text)) return textToDouble(text);
    return std::string(text);
}

std::optional<control::CellAddress> cellAddress(std::string_view text) {
    const auto area = formula::Calculation::parseReference(text, true, 1, 1);
    if (!area || !area->isOneCell()) return std::nullopt;
    return control::CellAddress{area->col1, area->row1};
}

bool readEvalRecord(std::string_view json, EvalRecord& record, std::string& error) {
    record = EvalRecord();
    if (isTooDeep(json)) {
        error = "nested deeper than any record";
        return false;
    }
    const Json parsed = Json::parse(json, nullptr, false);
    if (!parsed.is_object()) {
        error = parsed.is_discarded() ? "the line is no JSON" : "the line is no JSON object";
        return false;
    }
    if (const auto id = parsed.find("id"); id != parsed.end() && id->is_primitive())
        record.id = id->dump();
    return readFields(parsed, record, error);
}

std::optional<formula::Value> evaluate(const EvalRecord& record, control::Sheet& sheet,
                                       std::string& error) {
    sheet.clear();
    for (const auto& cell : record.cells) place(sheet, cell);
    formula::ParseError problem;
    for (const auto& [address, content] : record.cells) {
        const auto* text = std::get_if<FormulaText>(&content);
        if (text && !sheet.setFormula(address.col, address.row, text->text, problem)) {
            error = refusal("the formula in " + cellName(address), problem);
            return std::nullopt;
        }
    }
    const auto [col, row] = record.address;
    const bool accepted = record.isArray ? sheet.setArrayFormula(col, row, record.formula, problem)
                                         : sheet.setFormula(col, row, record.formula, problem);
    if (!accepted) {
        error = refusal("the formula", problem);
        return std::nullopt;
    }
    sheet.recalculateCell(col, row);
    return sheet.value(col, row);
}

void appendValueJson(std::string& line, const formula::Value& value) {
    line += "{\"type\":";
    switch (value.type()) {
        case formula::ValueType::number:
            line += "\"number\",\"value\":";
            exchange::appendNumber(line, value.number());
            break;
        case formula::ValueType::boolean:
            line += value.truth() ? "\"bool\",\"value\":true" : "\"bool\",\"value\":false";
            break;
        case formula::ValueType::text:
            line += "\"text\",\"value\":";
            exchange::appendJsonText(line, value.text());
            break;
        case formula::ValueType::error:
            line += "\"error\",\"value\":";
            exchange::appendJsonText(line, formula::errorText(value.error()));
            break;
        default:
            line += "\"empty\",\"value\":null";
    }
    line += '}';
}

}  // namespace cli
