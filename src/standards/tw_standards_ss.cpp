#include "standards/tw_standards_ss.h"

#include "core_api/files.h"
#include "core_api/library_names.h"
#include "core_api/text/text_helpers.h"
#include "mapping/cell_types.h"
#include "mapping/mapping_file.h"
#include "mapping/run_timers.h"
#include "standards/found_files.h"
#include "standards/prepared_standard.h"
#include "standards/run_failure.h"
#include "standards/run_observer.h"
#include "standards/standards_functions.h"
#include "standards/standards_messages.h"

namespace {

Vor_String pathInLibrary(const Vor_String& name) {
    return standardsFolder() + name + ".tws";
}

/// The file of that name, else the standard of the library.
Vor_String findByName(const Vor_String& name) {
    const Vor_String inLibrary = pathInLibrary(name);
    if (!mayBeOwnPath(name)) return inLibrary;
    const auto candidates = [&] { return std::vector<Vor_String>{name, inLibrary}; };
    return FoundFiles::instance()
        .find("standard\n" + inLibrary.str(), candidates)
        .value_or(inLibrary);
}

}  // namespace

TwStandardsSS::TwStandardsSS() = default;
TwStandardsSS::~TwStandardsSS() = default;

ErrorStatus TwStandardsSS::loadFile(const Vor_String& name) {
    setBool(13, true);
    setBool(static_cast<int>(control::Option::userFormulas), true);
    setBool(static_cast<int>(control::Option::repaint), false);
    setBool(static_cast<int>(control::Option::automaticRecalculation), false);
    // Children and batches come with a file; only a bare name has to be looked for.
    const bool isFile = name.view().find_first_of("\\/") != std::string_view::npos ||
                        (name.endsWith(".tws") && mayBeOwnPath(name));
    Vor_String path = isFile ? name : findByName(name);
    m_goesOn = goesOnWith(path);
    m_readyWith.reset();
    if (m_goesOn) {
        m_varCells.mapping() = TwSSMapping();
        return Acad::eOk;
    }
    m_valuePlaces.clear();
    bool isLoaded = loadFromFile(path);
    if (!isLoaded && isFile && !ObjectExportFileExists(name)) {
        path = pathInLibrary(name);
        isLoaded = loadFromFile(path);
    }
    if (!isLoaded) {
        setRunFailure(lastError());
        return Acad::eInvalidInput;
    }
    m_filePath = path;
    m_prepared.reset();
    m_varCells.resetVarCells();
    m_varCells.mapping() = TwSSMapping();
    return Acad::eOk;
}

ErrorStatus TwStandardsSS::initVarCells() {
    if (m_goesOn && m_genNames.isEmpty()) {
        for (TwVarCell& variable : m_varCells) variable.typedValue().clear();
        return Acad::eOk;
    }
    if (m_goesOn) startAfresh();
    m_prepared = grid().isAsLoaded() ? PreparedStandard::ofDocument(*this)
                                     : std::make_shared<PreparedStandard>(*this);
    m_varCells.resetVarCells();
    for (const Marker needed : {Marker::input, Marker::output}) {
        if (m_prepared->layout().has(needed)) continue;
        setRunFailure(m_filePath + ": no cell reads \"" + markerWords[static_cast<size_t>(needed)] +
                      "\": add the marker above the declarations");
        return Acad::eInvalidInput;
    }
    m_varCells.takeCells(m_prepared->declarations());
    return Acad::eOk;
}

void TwStandardsSS::setGenVars(const Vor_StringArray& names, const Vor_StringArray& values) {
    m_genNames = names;
    m_genValues = values;
}

void TwStandardsSS::replaceGenVars() {
    if (m_genNames.isEmpty()) return;
    for (const control::CellAddress cell : filledCells(grid())) {
        Vor_String text;
        if (getCellText(cell.col, cell.row, text, Reading::value) &&
            replaceVariables(text, m_genNames, m_genValues, true))
            setData(cell.col, cell.row, text);
    }
}

void TwStandardsSS::registerFunctions() {
    if (m_knowsFunctions) return;  // they survive loading
    for (const StandardsFunctionRow& row : standardsFunctions())
        addCustomFunction(row.name, row.least, row.most, row.callback, 0);
    m_knowsFunctions = true;
}

void TwStandardsSS::dropDuplicates() {
    const Vor_Array<int>& duplicates = m_prepared->duplicates();
    if (duplicates.isEmpty() || m_varCells.length() < m_prepared->declarations().length()) return;
    const Vor_StringArray& names = m_prepared->duplicateNames();
    reportDuplicateNames(m_filePath, names);
    if (RunObserver* observer = runObserver())
        observer->warning(m_filePath + ": declared more than once: " + arrToStr(names, ", ") +
                          ": only the first declaration counts");
    m_varCells.removeAll(duplicates);
}

ErrorStatus TwStandardsSS::calcCells() {
    if (!m_prepared) return Acad::eInvalidInput;
    {
        const Vor_FunctionTimer timer(gRegisterFuntions);
        registerFunctions();
    }
    {
        const Vor_FunctionTimer timer(gFindDuplicates);
        dropDuplicates();
    }
    const Vor_FunctionTimer timer(gCalcCells);
    m_assignedIn.assign(static_cast<size_t>(m_varCells.length()), {});
    std::shared_ptr<PreparedStandard> prepared = m_prepared;
    if (!prepared->calcMarkerHolds(grid())) {
        prepared = std::make_shared<PreparedStandard>(*this);
        prepared->expectTexts(m_varCells);
    }
    if (!prepared->layout().has(Marker::calc)) {
        setRunFailure(m_filePath + ": no cell reads \"Calc\": add the marker above the equations");
        return Acad::eInvalidInput;
    }
    evaluateAll(*prepared);
    return Acad::eOk;
}

ErrorStatus TwStandardsSS::calcCell(int column, int row) {
    Vor_String text;
    if (!m_prepared || !getCellText(column, row, text, Reading::value) || text.isEmpty())
        return Acad::eInvalidInput;
    registerFunctions();
    m_assignedIn.resize(static_cast<size_t>(m_varCells.length()));
    return evaluate(*m_prepared,
                    m_prepared->prepare(SharedText(text), {column, row}, m_varCells, grid()),
                    nullptr);
}

ErrorStatus TwStandardsSS::getVarCoordName(const Vor_String& name, Vor_String& coordinate) const {
    const Vor_FunctionTimer timer(gCalcCellGetVarCoordName);
    int index = 0;
    if (m_varCells.findVarCell(name, index) != Acad::eOk) return Acad::eInvalidInput;
    coordinate = coordinateName(m_varCells[index]);
    return Acad::eOk;
}

control::CellAddress TwStandardsSS::assignedIn(int index) const {
    const auto at = static_cast<size_t>(index);
    return at < m_assignedIn.size() ? m_assignedIn[at] : control::CellAddress{};
}
