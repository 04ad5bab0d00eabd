#include "cli/standards/run_report_output.h"

#include "cli/io/typed_paths.h"
#include "cli/standards/variables.h"
#include "exchange/json_writer.h"

namespace cli {

namespace {

void writeVariables(exchange::JsonWriter& json, std::string_view key,
                    const std::vector<runs::RunReport::Variable>& variables) {
    json.key(key);
    json.beginObject();
    for (const auto& variable : variables) {
        json.key(variable.name);
        json.text(variable.value);
    }
    json.endObject();
}

void writeReport(exchange::JsonWriter& json, const runs::RunReport& report);

void writeEquation(exchange::JsonWriter& json, const runs::ReportedEquation& equation) {
    json.beginObject();
    json.key("row");
    json.number(equation.row);
    json.key("column");
    json.number(equation.column);
    const auto text = [&](std::string_view key, std::string_view value) {
        json.key(key);
        json.text(value);
    };
    text("text", equation.text);
    text("name", equation.name);
    text("formula", equation.formula);
    text("value", equation.value);
    json.key("ok");
    json.truth(equation.ok);
    if (!equation.message.empty()) text("message", equation.message);
    if (equation.child) {
        json.key("child");
        writeReport(json, *equation.child);
    }
    json.endObject();
}

void writeReport(exchange::JsonWriter& json, const runs::RunReport& report) {
    json.beginObject();
    json.key("standard");
    json.utf8(shownPath(report.path));
    json.key("ok");
    json.truth(report.allWell());
    writeVariables(json, "inputs", report.inputs);
    writeVariables(json, "outputs", report.outputs);
    writeVariables(json, "locals", report.locals);
    json.key("equations");
    json.beginArray();
    for (const auto& equation : report.equations) writeEquation(json, equation);
    json.endArray();
    if (!report.unreadInputs.empty()) {
        json.key("unreadInputs");
        json.beginArray();
        for (const std::string& input : report.unreadInputs) json.text(input);
        json.endArray();
    }
    json.key("messages");
    json.beginArray();
    for (const auto& lines : report.messages) {
        json.beginArray();
        for (const auto& line : lines) json.text(line);
        json.endArray();
    }
    if (!report.failure.isEmpty()) {
        json.beginArray();
        json.text(report.failure);
        json.endArray();
    }
    json.endArray();
    json.endObject();
}

}  // namespace

std::string reportAsJson(const runs::RunReport& report) {
    std::string text;
    exchange::JsonWriter json(text);
    writeReport(json, report);
    return text;
}

}  // namespace cli
