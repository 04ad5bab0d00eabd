// Standards that call others.
#include "core_api/library_names.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/mapping_file.h"
#include "mapping/start_dlg_standards_ss.h"
#include "standards/found_files.h"
#include "standards/native_functions.h"
#include "standards/run_chain.h"
#include "standards/run_failure.h"
#include "standards/run_observer.h"
#include "standards/tw_standards_ss.h"

namespace {

ErrorStatus fail(Vor_String& reason, const Vor_String& why) {
    reason = why;
    return Acad::eInvalidInput;
}

/// Copies without cells of the parent's variables, in the order of the call.
ErrorStatus bindVariables(const TwVarCells& parent, const Vor_StringArray& names, TwVarCells& bound,
                          Vor_String& reason) {
    for (const Vor_String& name : names) {
        int index = 0;
        if (parent.findVarCell(name, index) != Acad::eOk)
            return fail(reason, "the call names \"" + name +
                                    "\", which is no variable of this standard: declare it");
        TwVarCell copy = parent[index];
        copy.setCell(0, 0);
        bound.append(copy);
    }
    return Acad::eOk;
}

}  // namespace

std::vector<Vor_String> TwStandardsSS::childCandidates(const Vor_String& name) const {
    const Vor_String standards = standardsFolder();
    const bool isHost = libraryNameRule().outside == OutsideNames::asHost;
    Vor_String own = getPath(m_filePath);
    // As a path, not as a name that means the library.
    if (own.isEmpty() && !isHost) own = ".\\";
    std::vector<Vor_String> candidates;
    if (mayBeOwnPath(name)) candidates.push_back(name);
    candidates.push_back(own + ensureNoStartBSlash(name));
    if (isHost || !gSettings.libDir().isEmpty())
        for (const char* folder : {"", "Childs\\", "Data\\", "Parents\\"})
            candidates.push_back(standards + folder + name);
    return candidates;
}

std::optional<Vor_String> TwStandardsSS::searchChildFile(const Vor_String& name) const {
    return FoundFiles::instance().find(
        "child\n" + standardsFolder().str() + "\n" + getPath(m_filePath).str() + "\n" + name.str(),
        [&] { return childCandidates(name); });
}

Vor_String TwStandardsSS::findChildFile(const Vor_String& name) const {
    return searchChildFile(name).value_or(name);
}

ErrorStatus TwStandardsSS::callChild(const Vor_String& text, const Vor_String& functionName) {
    Vor_String reason;
    return runChild(text, functionName, {}, reason);
}

ErrorStatus TwStandardsSS::runChild(const Vor_String& text, const Vor_String& functionName,
                                    control::CellAddress caller, Vor_String& reason) {
    ChildCall call;
    if (!parseChildCall(text, functionName, call, reason)) return Acad::eInvalidInput;
    const std::optional<Vor_String> found = searchChildFile(call.file);
    if (const auto refusal = found ? std::nullopt : FoundFiles::refusal(childCandidates(call.file)))
        return fail(reason, *refusal);
    if (!found)
        return fail(reason, "there is no file \"" + call.file +
                                "\" beside this standard or in \"Connection Standards\", its "
                                "\"Childs\", \"Data\" or \"Parents\": name the file with its "
                                "extension");
    const Vor_String& path = *found;
    TwDlgStandardsData child;
    if (bindVariables(m_varCells, call.variables, child.varCells, reason) != Acad::eOk)
        return Acad::eInvalidInput;
    if (nativeFunctionOf(functionName) != static_cast<int>(NativeFunction::callChild))
        return Acad::eOk;
    if (path.equal(m_filePath) || RunningStandard::isRunning(path))
        return fail(reason, "\"" + path +
                                "\" is running already: a standard may not call itself, "
                                "directly or through others");
    if (RunningStandard::depth() > mostNestedRuns)
        return fail(reason, "standards call each other more than " + Vor_String(mostNestedRuns, 0) +
                                " deep: call fewer in a row");
    if (RunningStandard::count() >= mostRunsTogether)
        return fail(reason, "standards call each other more than " +
                                Vor_String(mostRunsTogether, 0) +
                                " times in this run: call fewer, or less often");

    child.mode = TwDlgStandardsData::Mode::variables;
    child.standardsName = path;
    child.genNames = m_genNames;
    child.genValues = m_genValues;
    RunObserver* observer = runObserver();
    if (observer) observer->childStarted(path, caller.row, caller.col);
    const bool done = StartDlgStandardsSS(child);
    if (observer) observer->childEnded(done);
    if (!done) return fail(reason, "the child failed: " + lastRunFailure());
    return takeResults(child.varCells, caller, reason);
}

/// What the parent declares as output takes the child's result.
ErrorStatus TwStandardsSS::takeResults(const TwVarCells& results, control::CellAddress caller,
                                       Vor_String& reason) {
    int position = -1;
    for (const TwVarCell& result : results) {
        ++position;
        int index = 0;
        if (!result.isOutput() || m_varCells.findVarCell(result.name(), index) != Acad::eOk)
            continue;
        TwVarCell& variable = m_varCells[index];
        if (variable.isInput())
            return fail(reason, "the child gives a value for \"" + variable.name() +
                                    "\", which is an input: declare it as an output");
        // What was only passed on to the child still comes from where it came from.
        if (RunningStandard::gaveBack(position) && static_cast<size_t>(index) < m_assignedIn.size())
            m_assignedIn[static_cast<size_t>(index)] = caller;
        if (variable.setValueFromOther(*this, result) != Acad::eOk)
            return fail(reason, "\"" + variable.name() + "\" takes no value \"" + result.value() +
                                    "\" from the child");
    }
    return Acad::eOk;
}
