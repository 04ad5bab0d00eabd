#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/run_report_output.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"

namespace cli {

namespace {

using Variables = std::vector<runs::RunReport::Variable>;

void appendPadded(std::string& text, std::string_view windows1252, size_t width) {
    exchange::appendUtf8(text, windows1252);
    // A Windows-1252 byte is one character on the screen.
    if (windows1252.size() < width) text.append(width - windows1252.size(), ' ');
}

void appendVariables(std::string& text, const std::string& indent, const char* heading,
                     const Variables& variables) {
    if (variables.empty()) return;
    size_t width = 0;
    for (const auto& variable : variables) width = std::max(width, variable.name.size());
    text += indent + heading + "\n";
    for (const auto& variable : variables) {
        text += indent + "  ";
        appendPadded(text, variable.name, width);
        text += "  ";
        exchange::appendUtf8(text, variable.value);
        text += '\n';
    }
}

void appendReport(std::string& text, const runs::RunReport& report, std::string indent, bool trace);

void appendEquation(std::string& text, const runs::ReportedEquation& equation,
                    const std::string& indent) {
    const std::string cell = getAlfabet(equation.column).str() + std::to_string(equation.row);
    text += indent + "  ";
    appendPadded(text, cell, 5);
    text += ' ';
    exchange::appendUtf8(text, equation.text);
    text += '\n' + indent + "        ";
    if (!equation.ok) {
        text += "failed";
        if (!equation.message.empty()) text += ": " + shownMessage(equation.message);
    } else if (equation.child) {
        text += "calls " + shownPath(equation.child->path);
    } else {
        text += '=';
        exchange::appendUtf8(text, equation.formula);
        text += "  ->  ";
        exchange::appendUtf8(text, equation.value);
    }
    text += '\n';
    if (equation.child) appendReport(text, *equation.child, indent + "          ", true);
}

void appendReport(std::string& text, const runs::RunReport& report, std::string indent,
                  bool trace) {
    appendVariables(text, indent, "Inputs", report.inputs);
    if (trace && !report.equations.empty()) {
        text += indent + "Equations\n";
        for (const auto& equation : report.equations) appendEquation(text, equation, indent);
    }
    appendVariables(text, indent, "Outputs", report.outputs);
}

void complainAboutEquations(const runs::RunReport& report) {
    for (const auto& equation : report.equations) {
        if (equation.child) complainAboutEquations(*equation.child);
        if (equation.ok) continue;
        std::string message;
        exchange::appendUtf8(message, equation.text);
        message += ": ";
        message += equation.message.empty() ? "failed" : shownMessage(equation.message);
        complainAt(shownPath(report.path), equation.row, message);
    }
}

}  // namespace

std::string reportAsText(const runs::RunReport& report, bool trace) {
    std::string text = shownPath(report.path) + "\n\n";
    appendReport(text, report, "", trace);
    return text;
}

void complainAbout(const runs::RunReport& report) {
    complainAboutEquations(report);
    for (const std::string& input : report.unreadInputs)
        complainText(
            "the input \"" + Vor_String(input) +
            "\" could not be read: the macro does not have it, or nothing is mapped to it; "
            "it counts as empty");
    for (const auto& lines : report.messages) {
        // These are told in fewer words: as equations, as inputs, and as a warning.
        const bool isReportedElsewhere =
            lines.front().starts_with("The following equation failed") ||
            lines.front().starts_with("The following Input variable") ||
            lines.front().starts_with("There were duplicate variable");
        if (!isReportedElsewhere) complainLines(lines);
    }
    if (!report.failure.isEmpty()) complainText(report.failure);
}

}  // namespace cli
