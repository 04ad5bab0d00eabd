#include "standards/prepared_standard.h"

#include <algorithm>

#include "core_api/text/text_index.h"
#include "platform/encodings.h"
#include "spread/control/formula/places.h"

namespace {

bool comesBefore(control::CellAddress a, control::CellAddress b) {
    return a.row != b.row ? a.row < b.row : a.col < b.col;
}

/// Those of `filled` (as filledCells gives them) that lie in `rows`.
std::span<const control::CellAddress> cellsIn(const std::vector<control::CellAddress>& filled,
                                              RowRange rows) {
    if (rows.first > rows.last) return {};
    const auto isAbove = [](control::CellAddress cell, int row) { return cell.row < row; };
    const auto first = std::lower_bound(filled.begin(), filled.end(), rows.first, isAbove);
    return {first, std::lower_bound(first, filled.end(), rows.last + 1, isAbove)};
}

/// True when it is plain to see that `program` reads nothing in or below `firstRow`.
bool readsOnlyAbove(const formula::Program& program, control::CellAddress host, int firstRow) {
    using formula::Op;
    if (program.isVolatile()) return false;  // may look anywhere (OFFSET, INDIRECT)
    for (const formula::Instruction& i : program.code()) {
        switch (i.op) {
            case Op::cell:
            case Op::reference:
                if (formula::rowOf(i, host.row) >= firstRow) return false;
                break;
            case Op::area:  // some functions read beyond one area what they read in another
            case Op::place:
            case Op::range:
                return false;
            default:
                break;
        }
    }
    return true;
}

/// The same of every formula that stands in the sheet.
bool formulasReadOnlyAbove(const control::Sheet& sheet, int firstRow) {
    bool onlyAbove = true;
    sheet.eachFormula([&](const formula::Program& program, int col, int row) {
        onlyAbove = onlyAbove && readsOnlyAbove(program, {col, row}, firstRow);
    });
    return onlyAbove;
}

bool readsCalc(const control::Grid& grid, control::CellAddress cell) {
    std::string buffer;
    return encodings::equalFolded(grid.text(cell.col, cell.row, control::Reading::value, buffer),
                                  markerWords[static_cast<size_t>(Marker::calc)]);
}

/// The text that the cell holds, in the block it shares with others; null for all else.
control::TextBlock* textOf(const control::Grid& grid, control::CellAddress cell) {
    const control::Cell* found = grid.sheet().find(cell.col, cell.row);
    const bool isText = found && found->type == control::ValueType::text && found->formula == 0;
    return isText ? found->text : nullptr;
}

}  // namespace

PreparedStandard::PreparedStandard(Vor_Spread& spread) {
    const auto filled = filledCells(spread.grid());
    m_layout = StandardLayout(spread.grid(), filled);
    const auto inputs = cellsIn(filled, m_layout.declarationRows(Marker::input));
    const auto outputs = cellsIn(filled, m_layout.declarationRows(Marker::output));
    const auto locals = cellsIn(filled, m_layout.declarationRows(Marker::local));
    m_declarations.reserve(static_cast<int>(inputs.size() + outputs.size() + locals.size()));
    declare(spread, inputs, TwCellType::input);
    declare(spread, outputs, TwCellType::output);
    declare(spread, locals, TwCellType::local);

    TextIndex names(m_declarations.length());
    for (int i = 0; i < m_declarations.length(); ++i) {
        const TwVarCell& variable = m_declarations[i];
        if (names.add(variable.name(), i) >= 0) {
            m_duplicates.append(i);
            m_duplicateNames.append(variable.name());
        }
        const control::CellAddress cell{variable.column(), variable.row()};
        const bool isBefore =
            !m_layout.has(Marker::calc) || comesBefore(cell, m_layout.cell(Marker::calc));
        if (variable.valueType() == TwValueType::String && isBefore)
            m_textsBeforeCalc.push_back(cell);
    }

    const auto equations = cellsIn(filled, m_layout.equationRows());
    m_equations.reserve(equations.size());
    for (const control::CellAddress cell : equations) m_equations.emplace_back().cell = cell;
}

void PreparedStandard::expectTexts(const TwVarCells& variables) {
    const RowRange rows = m_layout.equationRows();
    for (const TwVarCell& variable : variables) {
        const control::CellAddress cell{variable.column(), variable.row()};
        if (cell.row < rows.first || cell.row > rows.last) continue;
        const auto at =
            std::find_if(m_equations.begin(), m_equations.end(),
                         [&](const auto& other) { return !comesBefore(other.cell, cell); });
        if (at == m_equations.end() || at->cell != cell) m_equations.emplace(at)->cell = cell;
    }
}

Vor_StringArray PreparedStandard::shiftingNames() const {
    Vor_StringArray names;
    for (const int index : m_duplicates)
        if (!m_declarations[index].isLocal()) names.append(m_declarations[index].name());
    return names;
}

TwVarCells PreparedStandard::variables() const {
    TwVarCells variables = m_declarations;
    variables.removeAll(m_duplicates);
    return variables;
}

std::shared_ptr<PreparedStandard> PreparedStandard::ofDocument(Vor_Spread& spread) {
    std::shared_ptr<void>& attachment = spread.document()->attachment();
    if (!attachment) attachment = std::make_shared<PreparedStandard>(spread);
    return std::static_pointer_cast<PreparedStandard>(attachment);
}

void PreparedStandard::declare(Vor_Spread& spread, std::span<const control::CellAddress> cells,
                               TwCellType type) {
    for (const control::CellAddress cell : cells) {
        TwVarCell variable;
        if (variable.initialize(spread, cell.col, cell.row, type) == Acad::eOk)
            m_declarations.append(std::move(variable));
    }
}

bool PreparedStandard::calcMarkerHolds(const control::Grid& grid) const {
    for (const control::CellAddress cell : m_textsBeforeCalc)
        if (readsCalc(grid, cell)) return false;
    return !m_layout.has(Marker::calc) || readsCalc(grid, m_layout.cell(Marker::calc));
}

const PreparedEquation& PreparedStandard::equationIn(PreparedEquation& known,
                                                     const TwVarCells& variables,
                                                     const control::Grid& grid,
                                                     PreparedEquation& changed) {
    control::TextBlock* text = textOf(grid, known.cell);
    if (text && text == known.text.block()) return known;
    if (text && !known.text.block()) {
        known = prepare(SharedText::of(text), known.cell, variables, grid);
        return known;
    }
    std::string buffer;
    changed = prepare(
        SharedText(grid.text(known.cell.col, known.cell.row, control::Reading::value, buffer)),
        known.cell, variables, grid);
    return changed;
}

/// All cells hold the texts that their equations were prepared from, now where they were not yet.
bool PreparedStandard::knowsAllTexts(const TwVarCells& variables, const control::Grid& grid) {
    // Hidden runs change nothing there: one look saves a look at every cell.
    const bool showsDocument = grid.document() && grid.document()->attachment().get() == this &&
                               grid.isAsLoadedFrom(m_layout.equationRows().first);
    if (showsDocument && m_isOfDocument) return true;
    for (PreparedEquation& equation : m_equations) {
        control::TextBlock* text = textOf(grid, equation.cell);
        control::TextBlock* known = equation.text.block();
        if (text && text == known) continue;
        if (!text || known) return false;
        PreparedEquation unused;
        (void)equationIn(equation, variables, grid, unused);
    }
    m_isOfDocument = showsDocument;
    return true;
}

bool PreparedStandard::needsNoEquationCells(const TwVarCells& variables,
                                            const control::Grid& grid) {
    const int firstRow = m_layout.equationRows().first;
    if (!knowsAllTexts(variables, grid) || !formulasReadOnlyAbove(grid.sheet(), firstRow))
        return false;
    if (!m_readsEquationCells) {
        const auto reads = [&](const PreparedEquation& equation) {
            return equation.program && !readsOnlyAbove(*equation.program, equation.cell, firstRow);
        };
        const auto isThere = [&](const TwVarCell& cell) { return cell.row() >= firstRow; };
        m_readsEquationCells = std::any_of(m_equations.begin(), m_equations.end(), reads) ||
                               std::any_of(variables.begin(), variables.end(), isThere);
    }
    return !*m_readsEquationCells;
}

PreparedEquation PreparedStandard::prepare(SharedText text, control::CellAddress cell,
                                           const TwVarCells& variables, const control::Grid& grid) {
    // A variable list that still has its namesakes counts differently.
    if (!m_references || m_references->count() != variables.length())
        m_references = std::make_unique<VariableReferences>(makeReferences(variables));
    return prepareEquation(std::move(text), cell, variables, *m_references, grid.sheet());
}
