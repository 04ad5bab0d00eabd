#include "workbench/run/calculation_model.h"

#include <QColor>
#include <QFont>

#include "core_api/text/text_helpers.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

using runs::Calculation;
using runs::CalculationLine;

std::vector<std::unique_ptr<CalculationModel::Node>> CalculationModel::nodesOf(
    const Calculation& calculation, Node* parent) {
    std::vector<std::unique_ptr<Node>> nodes;
    for (const CalculationLine& line : calculation.lines) {
        auto node = std::make_unique<Node>();
        node->line = &line;
        node->parent = parent;
        node->row = static_cast<int>(nodes.size());
        if (line.child) node->children = nodesOf(*line.child, node.get());
        nodes.push_back(std::move(node));
    }
    return nodes;
}

// The same equations with other values: true when the shape fits, with the lines exchanged.
bool CalculationModel::takeOver(std::vector<std::unique_ptr<Node>>& nodes,
                                const Calculation& calculation) {
    if (nodes.size() != calculation.lines.size()) return false;
    for (size_t i = 0; i < nodes.size(); ++i) {
        const CalculationLine& line = calculation.lines[i];
        static const Calculation none;
        if (!takeOver(nodes[i]->children, line.child ? *line.child : none)) return false;
        nodes[i]->line = &line;
    }
    return true;
}

void CalculationModel::show(const Calculation* calculation) {
    static const Calculation none;
    const Calculation& shown = calculation ? *calculation : none;
    if (!m_roots.empty() && takeOver(m_roots, shown)) {
        notifyChanged({});
        return;
    }
    beginResetModel();
    m_roots = nodesOf(shown, nullptr);
    endResetModel();
}

void CalculationModel::notifyChanged(const QModelIndex& parent) {
    const int rows = rowCount(parent);
    if (rows == 0) return;
    emit dataChanged(index(0, 0, parent), index(rows - 1, columns - 1, parent));
    for (int row = 0; row < rows; ++row) notifyChanged(index(row, 0, parent));
}

const CalculationLine* CalculationModel::line(const QModelIndex& index) const {
    return index.isValid() ? nodeOf(index)->line : nullptr;
}

QModelIndex CalculationModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& nodes = parent.isValid() ? nodeOf(parent)->children : m_roots;
    if (row < 0 || row >= static_cast<int>(nodes.size()) || column < 0 || column >= columns)
        return {};
    return createIndex(row, column, nodes[static_cast<size_t>(row)].get());
}

QModelIndex CalculationModel::parent(const QModelIndex& child) const {
    Node* parent = child.isValid() ? nodeOf(child)->parent : nullptr;
    return parent ? createIndex(parent->row, 0, parent) : QModelIndex();
}

int CalculationModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0) return 0;
    const auto& nodes = parent.isValid() ? nodeOf(parent)->children : m_roots;
    return static_cast<int>(nodes.size());
}

namespace {

QString textOf(const CalculationLine& line, int column) {
    switch (column) {
        case CalculationModel::cellColumn:
            return toQt(getAlfabet(line.column).str() + std::to_string(line.row));
        case CalculationModel::equationColumn:
            return toQt(line.name.empty() ? line.symbols : line.name + " = " + line.symbols);
        case CalculationModel::numbersColumn:
            return toQt(line.numbers == line.symbols ? std::string() : line.numbers);
        case CalculationModel::resultColumn:
            if (!line.ok) return uiText(wordFailed);
            return toQt(runs::shownValue(line.result, line.unit));
        default:
            return shownMessage(line.ok || line.message.empty() ? line.rule : line.message);
    }
}

}  // namespace

QVariant CalculationModel::data(const QModelIndex& index, int role) const {
    const CalculationLine* shown = line(index);
    if (!shown) return {};
    const bool isBad = !shown->ok || shown->isError;
    switch (role) {
        case Qt::DisplayRole:
            return textOf(*shown, index.column());
        case Qt::ToolTipRole:
            if (!shown->ok) return shownMessage(shown->message);
            return index.column() == resultColumn ? toQt(shown->result)
                                                  : textOf(*shown, index.column());
        case Qt::ForegroundRole:
            return isBad ? QVariant(QColor(0xA0, 0, 0)) : QVariant();
        case Qt::BackgroundRole:
            return isBad ? QVariant(QColor(0xFF, 0xE8, 0xE8)) : QVariant();
        case Qt::FontRole: {
            QFont font = dialogFont();
            font.setBold(index.column() == resultColumn);
            return font;
        }
        default:
            return {};
    }
}

QVariant CalculationModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    constexpr int words[columns] = {wordCell, wordEquation, wordValue, wordWithNumbers, wordRule};
    return section >= 0 && section < columns ? uiText(words[section]) : QString();
}
