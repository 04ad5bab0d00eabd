// The trace of a run as a tree for a view: a row an equation, child calls to unfold.
#pragma once

#include <QAbstractItemModel>

#include "runs/calculation.h"

class CalculationModel : public QAbstractItemModel {
  public:
    enum Column { cellColumn, equationColumn, resultColumn, numbersColumn, ruleColumn, columns };

    using QAbstractItemModel::QAbstractItemModel;

    /// Borrowed; null for none. The same equations as before keep what is unfolded and selected.
    void show(const runs::Calculation* calculation);
    const runs::CalculationLine* line(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return columns; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    /// One line's place in the tree; the nodes stay while the shape stays.
    struct Node {
        const runs::CalculationLine* line = nullptr;
        Node* parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Node>> children;
    };
    static std::vector<std::unique_ptr<Node>> nodesOf(const runs::Calculation& calculation,
                                                      Node* parent);
    static bool takeOver(std::vector<std::unique_ptr<Node>>& nodes,
                         const runs::Calculation& calculation);
    static Node* nodeOf(const QModelIndex& index) {
        return static_cast<Node*>(index.internalPointer());
    }
    void notifyChanged(const QModelIndex& parent);

    std::vector<std::unique_ptr<Node>> m_roots;
};
