#include "cli/standards/variables.h"

#include "cli/io/console.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "runs/given_value.h"

namespace cli {

namespace {

/// Both parts in Windows-1252; nothing after telling what is wrong.
std::optional<exchange::Assignment> readAssignment(const std::string& option,
                                                   const std::string& text) {
    auto assignment = exchange::splitAssignment(text);
    std::string error = "write it as Name=Value";
    if (!assignment ||
        !exchange::fromUtf8(std::string(assignment->name), assignment->name, error) ||
        !exchange::fromUtf8(std::string(assignment->value), assignment->value, error)) {
        complain(option + " " + text + ": " + error);
        return std::nullopt;
    }
    return assignment;
}

bool setInput(TwVarCells& cells, std::vector<bool>& given, const exchange::Assignment& assignment,
              const std::string& typed) {
    int index = 0;
    if (cells.findVarCell(assignment.name, index) != Acad::eOk || !cells[index].isInput()) {
        complain("--set " + typed + ": the standard has no such input; it takes " +
                 describe(cells, TwCellType::input));
        return false;
    }
    if (given[static_cast<size_t>(index)]) {
        complain("--set " + typed + ": this input is given twice");
        return false;
    }
    given[static_cast<size_t>(index)] = true;
    if (const auto reason = runs::refusal(cells[index], assignment.value); !reason.isEmpty()) {
        complain("--set " + typed + ": " + encodings::toUtf8(reason));
        return false;
    }
    return cells[index].setNewValue(assignment.value) == Acad::eOk;
}

}  // namespace

std::string describe(const TwVarCells& variables, TwCellType kind) {
    std::string text;
    for (const auto& variable : variables) {
        if (variable.cellType() != kind) continue;
        if (!text.empty()) text += ", ";
        exchange::appendUtf8(text, variable.name());
        text += std::string(" (") + runs::typeName(variable.valueType()) + ")";
    }
    return text.empty() ? "nothing" : text;
}

bool setInputs(TwVarCells& cells, const std::vector<std::string>& assignments) {
    std::vector<bool> given(static_cast<size_t>(cells.length()));
    for (const auto& typed : assignments) {
        const auto assignment = readAssignment("--set", typed);
        if (!assignment || !setInput(cells, given, *assignment, typed)) return false;
    }
    for (int i = 0; i < cells.length(); ++i) {
        if (!cells[i].isInput() || given[static_cast<size_t>(i)]) continue;
        std::string name;
        exchange::appendUtf8(name, cells[i].name());
        complain("input " + name + " is not given; the standard takes " +
                 describe(cells, TwCellType::input));
        return false;
    }
    return true;
}

bool setGenValues(TwDlgStandardsData& data, const std::vector<std::string>& assignments) {
    for (const auto& typed : assignments) {
        const auto assignment = readAssignment("--gen", typed);
        if (!assignment) return false;
        if (data.genNames.contains(assignment->name)) {
            complain("--gen " + typed + ": this name is given twice");
            return false;
        }
        data.genNames.append(assignment->name);
        data.genValues.append(assignment->value);
    }
    return true;
}

}  // namespace cli
