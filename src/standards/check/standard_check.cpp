#include "standards/check/standard_check.h"

#include "platform/encodings.h"
#include "standards/run_observer.h"
#include "standards/words.h"

namespace {

constexpr std::string_view genPrefix = "gen_";

bool isGenName(std::string_view word) {
    return word.size() > genPrefix.size() &&
           encodings::equalFolded(word.substr(0, genPrefix.size()), genPrefix);
}

Vor_String withGenNumbers(std::string_view text, const TwVarCells& variables) {
    std::string replaced;
    eachWord(
        text,
        [&](std::string_view word) {
            int index = 0;
            const bool isGen =
                isGenName(word) && variables.findVarCell(Vor_String(word), index) != Acad::eOk;
            replaced += isGen ? std::string_view("1") : word;
        },
        [&](std::string_view other) { replaced += other; });
    return Vor_String(std::move(replaced));
}

}  // namespace

bool OpenedStandard::open(const Vor_String& name) {
    sheet.attachHidden();
    if (sheet.loadFile(name) != Acad::eOk) return false;
    sheet.registerFunctions();
    if (sheet.initVarCells() == Acad::eOk) variables = sheet.prepared()->variables();
    return true;
}

std::vector<PreparedEquation> OpenedStandard::equations() {
    std::vector<PreparedEquation> equations;
    for (const PreparedEquation& known : sheet.prepared()->equations()) {
        Vor_String text;
        sheet.getCellText(known.cell.col, known.cell.row, text, Vor_Spread::Reading::value);
        if (!text.isEmpty())
            equations.push_back(sheet.prepared()->prepare(
                SharedText(withGenNumbers(text, variables)), known.cell, variables, sheet.grid()));
    }
    return equations;
}

bool StandardCheck::open(const Vor_String& name) {
    if (!OpenedStandard::open(name)) {
        error({}, lastRunFailure());
        return false;
    }
    uses.resize(static_cast<size_t>(variables.length()));
    return true;
}

void StandardCheck::read(int variable, control::CellAddress cell) {
    Use& use = uses[static_cast<size_t>(variable)];
    use.isRead = true;
    if (!variables[variable].isInput() && !use.isAssigned && use.readTooEarly.row == 0)
        use.readTooEarly = cell;
}
