#include "workbench/sheet/cell_reference.h"

#include <QRegularExpression>

#include "core_api/text/text_helpers.h"
#include "exchange/sheet_writing.h"
#include "workbench/window/dialog_font.h"

using control::Block;

namespace {

// 0 for no letters or more than a sheet could have.
int columnOf(const QString& letters) {
    int col = 0;
    for (const QChar letter : letters) {
        col = col * 26 + letter.toUpper().unicode() - 'A' + 1;
        if (col > 1'000'000) return 0;
    }
    return col;
}

}  // namespace

QString blockName(const control::Grid& grid, const Block& block) {
    const QString first = toQt(exchange::cellName({block.col1, block.row1}));
    if (block.col1 == block.col2 && block.row1 == block.row2) return first;
    if (block.row1 == 1 && block.row2 == grid.rows() && grid.rows() > 1)
        return toQt(getAlfabet(block.col1).str() + ":" + getAlfabet(block.col2).str());
    if (block.col1 == 1 && block.col2 == grid.cols() && grid.cols() > 1)
        return QString("%1:%2").arg(block.row1).arg(block.row2);
    return first + ":" + toQt(exchange::cellName({block.col2, block.row2}));
}

std::optional<Block> blockNamed(const control::Grid& grid, const QString& name) {
    static const QRegularExpression form("^([A-Za-z]*)(\\d*)(?::([A-Za-z]*)(\\d*))?$");
    const auto found = form.match(QString(name).remove('$').remove(' '));
    if (!found.hasMatch() || name.trimmed().isEmpty()) return std::nullopt;
    const bool isPair = found.hasCaptured(3) || found.hasCaptured(4);
    Block block{columnOf(found.captured(1)), found.captured(2).toInt(), 0, 0};
    block.col2 = isPair ? columnOf(found.captured(3)) : block.col1;
    block.row2 = isPair ? found.captured(4).toInt() : block.row1;
    const bool wholeCols = isPair && block.row1 == 0 && block.row2 == 0;
    const bool wholeRows = isPair && block.col1 == 0 && block.col2 == 0;
    if (wholeCols) block.row1 = 1, block.row2 = grid.rows();
    if (wholeRows) block.col1 = 1, block.col2 = grid.cols();
    if (block.col1 > block.col2) std::swap(block.col1, block.col2);
    if (block.row1 > block.row2) std::swap(block.row1, block.row2);
    if (!grid.isInside(block.col1, block.row1) || !grid.isInside(block.col2, block.row2))
        return std::nullopt;
    return block;
}

std::string typedText(const control::Grid& grid, control::CellAddress cell) {
    const std::string formula = grid.text(cell.col, cell.row, control::Reading::formula);
    if (!formula.empty()) return "=" + formula;
    return grid.text(cell.col, cell.row, control::Reading::value);
}
