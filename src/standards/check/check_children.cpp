// Calls of other standards.
#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "standards/check/standard_check.h"
#include "standards/native_functions.h"
#include "standards/run_chain.h"
#include "standards/run_observer.h"

namespace {

/// Walks from child to child, the way down to the one it is at in `chain`.
class ChildWalk {
  public:
    explicit ChildWalk(const Vor_String& start) { m_chain.append(withoutDetours(start)); }

    /// How calls come back to a standard that is running, or the empty text.
    Vor_String circleThrough(const Vor_String& called) {
        const Vor_String path = withoutDetours(called);
        const int seen = m_chain.find(path);
        m_chain.append(path);
        Vor_String circle;
        if (seen >= 0)
            circle = describe(seen);
        else if (m_chain.length() > mostNestedRuns + 1)
            circle = "standards call each other more than " + Vor_String(mostNestedRuns, 0) +
                     " deep from here";
        else if (!m_walked.contains(path))
            circle = circleBelow(path);
        m_chain.removeAt(m_chain.length() - 1);
        return circle;
    }

  private:
    Vor_String circleBelow(const Vor_String& path) {
        m_walked.append(path);
        OpenedStandard child;
        if (!child.open(path)) return {};
        for (const PreparedEquation& equation : child.equations()) {
            ChildCall call;
            Vor_String reason;
            if (equation.kind != PreparedEquation::Kind::childCall ||
                !parseChildCall(equation.expression(), *equation.detail, call, reason))
                continue;
            const Vor_String circle = circleThrough(child.sheet.findChildFile(call.file));
            if (!circle.isEmpty()) return circle;
        }
        return {};
    }

    Vor_String describe(int from) const {
        Vor_StringArray files;
        for (int i = from; i < m_chain.length(); ++i) files.append(getFileName(m_chain[i]));
        return "the calls go in a circle: " + arrToStr(files, " > ");
    }

    Vor_StringArray m_chain;
    Vor_StringArray m_walked;
};

/// The variables of a call against those that the child declares.
void checkBinding(StandardCheck& check, control::CellAddress cell, OpenedStandard& child,
                  const std::vector<int>& bound) {
    if (const Vor_StringArray names = child.sheet.prepared()->shiftingNames(); !names.isEmpty()) {
        check.error(cell, "the child declares more than once: " + arrToStr(names, ", ") +
                              ": its results come back in wrong places; rename them there");
        // What the call does with which variable nobody can say.
        for (const int index : bound) {
            if (index < 0) continue;
            check.read(index, cell);
            check.uses[static_cast<size_t>(index)].isAssigned = true;
        }
        return;
    }
    size_t position = 0;
    for (const TwVarCell& wanted : child.variables) {
        if (wanted.isLocal()) continue;
        if (position >= bound.size()) {
            check.error(cell, "the call names too few variables: the child's \"" + wanted.name() +
                                  "\" gets none");
            return;
        }
        const int index = bound[position++];
        if (index < 0) continue;
        const TwVarCell& given = check.variables[index];
        if (!wanted.isOutput()) {
            check.read(index, cell);
        } else if (given.isInput()) {
            check.error(cell, "the input \"" + given.name() +
                                  "\" stands in the place of the "
                                  "child's output \"" +
                                  wanted.name() + "\": name an output");
        } else if (given.isLocal()) {
            control::CellAddress& drops = check.uses[static_cast<size_t>(index)].dropsResult;
            if (drops.row == 0) drops = cell;
        } else {
            check.uses[static_cast<size_t>(index)].isAssigned = true;
        }
    }
    if (position < bound.size())
        check.warn(cell,
                   "the call names more variables than the child has inputs and outputs: "
                   "the last are ignored");
}

}  // namespace

void checkChildCall(StandardCheck& check, const PreparedEquation& equation) {
    ChildCall call;
    Vor_String reason;
    if (!parseChildCall(equation.expression(), *equation.detail, call, reason)) {
        check.error(equation.cell, reason);
        return;
    }
    std::vector<int> bound;
    for (const Vor_String& name : call.variables) {
        int index = -1;
        if (check.variables.findVarCell(name, index) != Acad::eOk)
            check.error(equation.cell, "the call names \"" + name +
                                           "\", which is no variable of "
                                           "this standard: declare it");
        bound.push_back(index);
    }
    const Vor_String path = check.sheet.findChildFile(call.file);
    if (!ObjectExportFileExists(path)) {
        check.error(equation.cell, "there is no child file \"" + call.file +
                                       "\" beside this standard or in the standards folders");
        return;
    }
    const Vor_String circle = ChildWalk(check.sheet.filePath()).circleThrough(path);
    if (!circle.isEmpty()) check.error(equation.cell, circle);
    OpenedStandard child;
    if (!child.open(path))
        check.error(equation.cell, "the child cannot be loaded: " + lastRunFailure());
    else
        checkBinding(check, equation.cell, child, bound);
}
