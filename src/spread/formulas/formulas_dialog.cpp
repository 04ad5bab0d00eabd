#include "spread/formulas/formulas_dialog.h"

#include <utility>

#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"
#include "platform/window/window_system.h"
#include "spread/formulas/calculating_sheet.h"

using Reading = Vor_Spread::Reading;

namespace {

using Dlg = TwFormulasDlg;

constexpr unsigned besideFile = anchorTopRight;
constexpr ControlTemplate controls[] = {
    {Control::edit, Dlg::fileNameBox, {}, {7, 7, 229, 14}, 0, anchorWide},
    {Control::button, Dlg::loadButton, dialText(21501), {243, 7, 90, 14}, styleDefault, besideFile},
    {Control::radioButton, Dlg::defaultStyle, dialText(21503), {7, 27, 60, 10}, styleNewGroup},
    {Control::radioButton, Dlg::a1Style, dialText(21504), {71, 27, 40, 10}},
    {Control::radioButton, Dlg::r1c1Style, dialText(21505), {115, 27, 50, 10}},
    {Control::button, Dlg::saveButton, dialText(21502), {243, 25, 90, 14}, 0, besideFile},
    {Control::checkBox, Dlg::autoCalculate, dialText(21506), {7, 45, 130, 10}},
    {Control::button, Dlg::recalculate, dialText(21507), {243, 43, 90, 14}, 0, besideFile},
    {Control::placeholder, Dlg::gridItem, {}, {7, 63, 326, 132}, 0, anchorAll},
    {Control::button, IDCANCEL, dialText(285), {243, 202, 90, 14}, 0, anchorBottomRight},
};
constexpr DialogResource resource{
    Dlg::resourceNumber, dialText(21500), {0, 0, 340, 223}, controls, true};

constexpr int emptyCols = 8;
constexpr int emptyRows = 10;
constexpr control::Block numberCells{1, 1, 6, 6};
constexpr double largestTyped = 9999;

constexpr int formulaCol = 4;    // the formulas of these cells …
constexpr int formulaRows = 5;   // … are shown …
constexpr int textCol = 1;       // … in these
constexpr int longText = 32767;  // of any formula

}  // namespace

TwFormulasDlg::TwFormulasDlg(CWnd* parent) : CDialog(resource, parent) {}

TwFormulasDlg::~TwFormulasDlg() {
    destroyNow();  // before the grid, which is one of the children
}

void TwFormulasDlg::onInit() {
    WindowSystem::current().bringToFront(*this);
    item(fileNameBox)->setText(fileName);
    prepareGrid();
    if (!fileName.isEmpty()) {
        m_isLoaded = load(fileName);
        acutPrintf("Loading spreadsheet:%s\n", fileName.c_str());
        if (!m_isLoaded) showWhyNotLoaded();
    }
    switch (mode) {
        case Mode::readFile:
            readFile();
            return endDialog(IDOK);
        case Mode::evaluateCell:
            evaluate();
            break;
        case Mode::lookUp:
            lookUp();
            break;
        case Mode::none:
            break;
    }
    if (!WindowSystem::isAttended()) endDialog(IDOK);
}

// Where a program reads a file nobody is asked to press a button.
void TwFormulasDlg::showWhyNotLoaded() {
    if (mode == Mode::readFile)
        acutPrint(text() + "\n" + m_grid.lastError() + "\n");
    else
        showWarning(text(), m_grid.lastError());
}

void TwFormulasDlg::prepareGrid() {
    m_grid.attach(this, gridItem, true);
    m_grid.grid().setOption(control::Option::userFormulas, true);
    setAutoCalculate(false);
    itemAs<CButton>(autoCalculate)->setCheck(0);
    itemAs<CButton>(defaultStyle)->setCheck(1);
    registerFromTable(m_grid);
    m_grid.setNrRows(emptyRows);
    m_grid.setNrCols(emptyCols, false);
    m_grid.setCellType(numberCells, control::numberType(2, 0, -largestTyped, largestTyped));
}

bool TwFormulasDlg::load(const Vor_String& path) {
    OpenFile file;
    file.opening(path.str());
    const bool isDone = m_grid.loadFromFile(path);
    if (isDone) m_file = std::move(file);
    registerFromTable(m_grid);  // a document comes without functions
    return isDone;
}

void TwFormulasDlg::save() {
    const Vor_String path = typedPath();
    const auto write = [&](std::string& why) {
        if (m_grid.saveToFile(path)) return true;
        why = m_grid.lastError();
        return false;
    };
    std::string error;
    const OpenFile::Saved saved = m_file.save(path.str(), write, error);
    if (saved == OpenFile::Saved::reload) return loadTyped();
    if (error.empty()) return;
    acutPrintf("Save failed\n");
    showWarning(text(), error);
}

void TwFormulasDlg::loadTyped() {
    if (load(typedPath())) return;
    acutPrintf("Load failed\n");
    showWarning(text(), m_grid.lastError());
}

void TwFormulasDlg::readFile() {
    title.clear();
    if (header) header->clear();
    if (rows) rows->clear();
    if (!m_isLoaded) return;
    m_grid.getCellText(1, 1, title, Reading::data);
    if (header) m_grid.getRow(Vor_Spread::headerIndex, *header);
    if (rows) m_grid.getAllRows(*rows);
}

void TwFormulasDlg::evaluate() {
    {
        const CalculatingSheet scope(m_grid);
        m_grid.reCalcCell(cellColumn, cellRow);
    }
    m_grid.getCellText(cellColumn, cellRow, cellText, Reading::data);
}

void TwFormulasDlg::lookUp() {
    const CalculatingSheet scope(m_grid);
    lookUpInTable(m_grid, call);
}

void TwFormulasDlg::showFormulasAsText(int referenceStyle) {
    m_grid.setRefStyle(referenceStyle);
    for (int row = 1; row <= formulaRows; ++row) {
        Vor_String formula;
        m_grid.getCellText(formulaCol, row, formula, Reading::formula);
        if (row == formulaRows && formula.isEmpty()) continue;
        m_grid.setTextCell({textCol, row, textCol, row}, longText);
        m_grid.setData(textCol, row, formula);
    }
    m_grid.setColWidthInPixels(textCol, m_grid.grid().fitWidth(textCol));
}

void TwFormulasDlg::setAutoCalculate(bool on) {
    m_grid.grid().setOption(control::Option::automaticRecalculation, on);
    item(recalculate)->enable(!on);
}

Vor_String TwFormulasDlg::typedPath() const {
    return item(fileNameBox)->text();
}

void TwFormulasDlg::onCommand(int id, int code) {
    if (code != clicked) return;
    switch (id) {
        case saveButton:
            return save();
        case loadButton:
            return loadTyped();
        case defaultStyle:
        case a1Style:
        case r1c1Style:
            return showFormulasAsText(id - defaultStyle);
        case autoCalculate:
            return setAutoCalculate(itemAs<CButton>(autoCalculate)->isChecked());
        case recalculate:
            m_grid.reCalcAll();
            return;
        default:
            return CDialog::onCommand(id, code);
    }
}
