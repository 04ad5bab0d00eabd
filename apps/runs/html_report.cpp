#include "runs/html_report.h"

#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"
#include "runs/report_words.h"

namespace runs {

namespace {

constexpr const char* style = R"(<style>
body { font-family: "DejaVu Sans", Arial, sans-serif; font-size: 9pt; color: #202020; }
h1 { font-size: 14pt; margin-bottom: 4px; }
h2 { font-size: 11pt; margin-top: 16px; margin-bottom: 6px; }
p { margin-top: 5px; margin-bottom: 5px; }
.quiet { color: #606060; }
.failed { color: #a00000; font-weight: bold; }
.numbers { color: #404080; }
* { mso-number-format: "\@"; } /* a spreadsheet that opens the page takes no text for a formula */
</style>
)";

std::string escaped(std::string_view windows1252) {
    std::string text;
    for (const char c : encodings::toUtf8(windows1252)) {
        switch (c) {
            case '&':
                text += "&amp;";
                break;
            case '<':
                text += "&lt;";
                break;
            case '>':
                text += "&gt;";
                break;
            case '"':
                text += "&quot;";
                break;
            default:
                text += c;
        }
    }
    return text;
}

/// An expression, which may go on in the next line after any of its commas.
std::string breakable(std::string_view windows1252) {
    std::string text;
    for (const char c : escaped(windows1252)) {
        text += c;
        if (c == ',') text += "&#8203;";
    }
    return text;
}

std::string element(const char* name, std::string_view html, std::string_view attributes = "") {
    std::string text = "<" + std::string(name);
    if (!attributes.empty()) text += " " + std::string(attributes);
    return text + ">" + std::string(html) + "</" + name + ">";
}

std::string word(int number) {
    return escaped(dialString(number));
}

/// One row of cells that are HTML already.
std::string tableRow(const std::vector<std::string>& cells, const char* cellName = "td") {
    std::string row;
    for (const std::string& cell : cells) row += element(cellName, cell, "align=\"left\"");
    return element("tr", row) + "\n";
}

constexpr const char* tableAttributes =
    "border=\"0\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\"";

/// "IPE-300" or "12.5 mm".
std::string withUnit(const std::string& value, const std::string& unit) {
    return escaped(shownValue(value, "")) + (unit.empty() ? "" : "&nbsp;" + escaped(unit));
}

std::string variables(const Calculation& calculation,
                      const std::vector<RunReport::Variable>& listed) {
    std::string rows =
        tableRow({word(wordName), word(wordValue), word(wordMeaning), word(wordRule)}, "th");
    for (const auto& variable : listed) {
        const DeclaredVariable* declared = calculation.standard.find(variable.name);
        rows +=
            tableRow({escaped(variable.name),
                      element("b", withUnit(variable.value, declared ? declared->unit : "")),
                      escaped(declared ? declared->meaning : ""),
                      element("span", escaped(declared ? declared->rule : ""), "class=\"quiet\"")});
    }
    return element("table", rows, tableAttributes);
}

/// The lines of an equation below each other.
std::string equation(const CalculationLine& line) {
    const std::string cell = getAlfabet(line.column).str() + std::to_string(line.row);
    std::string text = element("span", escaped(cell), "class=\"quiet\"") + "&nbsp; ";
    text += line.name.empty() ? breakable(line.symbols)
                              : element("b", escaped(line.name)) + " = " + breakable(line.symbols);
    if (!line.rule.empty())
        text += " &nbsp;" + element("span", "[" + escaped(line.rule) + "]", "class=\"quiet\"");
    if (line.numbers != line.symbols && !line.name.empty())
        text += "<br>" + element("span", "= " + breakable(line.numbers), "class=\"numbers\"");
    const std::string result = "= " + withUnit(line.result, line.unit);
    if (line.ok && !line.name.empty())
        text += "<br>" +
                (line.isError ? element("span", result, "class=\"failed\"") : element("b", result));
    if (!line.ok)
        text += "<br>" + element("span",
                                 word(wordFailed) + (line.message.empty() ? "" : ": ") +
                                     escaped(line.message),
                                 "class=\"failed\"");
    return text;
}

/// What a called standard was given, in one line.
std::string given(const Calculation& child) {
    std::string text;
    for (const auto& input : child.inputs) {
        const DeclaredVariable* declared = child.standard.find(input.name);
        if (!text.empty()) text += ", ";
        text += escaped(input.name) + " = " + withUnit(input.value, declared ? declared->unit : "");
    }
    return element("span", text, "class=\"quiet\"");
}

/// Called standards are set in, paragraph by paragraph: tables in tables grow too narrow.
std::string listing(const Calculation& calculation, int depth = 0) {
    constexpr int step = 28;  // pixels
    const auto paragraph = [&](const std::string& html, int level) {
        return element("p", html, "style=\"margin-left: " + std::to_string(level * step) + "px\"") +
               "\n";
    };
    std::string text;
    for (const CalculationLine& line : calculation.lines) {
        text += paragraph(equation(line), depth);
        if (!line.child) continue;
        text += paragraph(given(*line.child), depth + 1);
        text += listing(*line.child, depth + 1);
    }
    return text;
}

std::string section(int title, const std::string& html) {
    return element("h2", word(title)) + "\n" + html + "\n";
}

std::string headingLine(int title, const std::string& utf8) {
    if (utf8.empty()) return {};
    std::string text;
    for (const char c : utf8) text += c == '<' ? std::string("&lt;") : std::string(1, c);
    return element("p", word(title) + ": " + text) + "\n";
}

std::string messages(const Calculation& calculation) {
    std::string items;
    if (!calculation.failure.empty())
        items += element("p", escaped(calculation.failure), "class=\"failed\"");
    for (const auto& lines : calculation.messages)
        for (const std::string& line : lines)
            if (!line.empty()) items += element("p", escaped(line), "class=\"failed\"");
    return items.empty() ? items : section(wordMessages, items);
}

}  // namespace

std::string htmlReport(const Calculation& calculation, const ReportHeading& heading) {
    const std::string name = removeExtension(getFileName(calculation.standard.path)).str();
    std::string body = element("h1", escaped(name)) + "\n";
    for (const std::string& line : calculation.standard.title)
        body += element("p", escaped(line)) + "\n";
    body += headingLine(wordProject, heading.project) + headingLine(wordAuthor, heading.author) +
            headingLine(wordDate, heading.date);
    body += section(wordInputs, variables(calculation, calculation.inputs));
    body += section(wordResults, variables(calculation, calculation.outputs));
    body += messages(calculation);
    body += section(wordCalculation, listing(calculation));
    return "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">" +
           element("title", escaped(name)) + "\n" + style + "</head>\n" + element("body", body) +
           "\n</html>\n";
}

}  // namespace runs
