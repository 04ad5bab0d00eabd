#include "cli/standards/batch_output.h"

#include "core_api/text/delimited_text.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"

namespace cli {

namespace {

/// The number of a numeric variable, however it is kept; nothing when it is empty.
std::optional<double> numberOf(const TwVarCell& cell) {
    if (!isNumeric(cell.valueType())) return std::nullopt;
    if (const double* number = cell.typedValue().number()) return *number;
    if (!isNumber(cell.value())) return std::nullopt;
    return textToDouble(cell.value());
}

}  // namespace

void BatchOutput::writeHeader(const TwVarCells& cells) {
    if (m_jsonLines) return;
    for (const auto& cell : cells) {
        if (!cell.isOutput()) continue;
        appendField(m_text, encodings::toUtf8(cell.name()), ',');
        m_text += ',';
    }
    m_text += "error\n";
}

void BatchOutput::writeOutputs(const TwVarCells& cells) {
    if (m_jsonLines) m_text += '{';
    bool isFirst = true;
    for (const auto& cell : cells) {
        if (!cell.isOutput()) continue;
        if (!m_jsonLines) {
            appendCsvValue(cell);
            m_text += ',';
            continue;
        }
        if (!isFirst) m_text += ',';
        isFirst = false;
        exchange::appendJsonText(m_text, cell.name());
        m_text += ':';
        appendJsonValue(cell);
    }
    m_text += m_jsonLines ? "}\n" : "\n";
}

void BatchOutput::writeError(const TwVarCells& cells, std::string_view message) {
    if (m_jsonLines) {
        m_text += "{\"error\":";
        exchange::appendJsonUtf8(m_text, message);
        m_text += "}\n";
        return;
    }
    for (const auto& cell : cells)
        if (cell.isOutput()) m_text += ',';
    appendField(m_text, message, ',');
    m_text += '\n';
}

void BatchOutput::appendCsvValue(const TwVarCell& cell) {
    if (const auto number = numberOf(cell))
        exchange::appendNumber(m_text, *number);
    else
        appendField(m_text, encodings::toUtf8(cell.value()), ',');
}

void BatchOutput::appendJsonValue(const TwVarCell& cell) {
    if (const auto number = numberOf(cell))
        exchange::appendNumber(m_text, *number);
    else if (isNumeric(cell.valueType()))
        m_text += "null";
    else
        exchange::appendJsonText(m_text, cell.value());
}

}  // namespace cli
