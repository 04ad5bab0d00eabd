#include "workbench/run/calculation_view.h"

#include "workbench/run/calculation_model.h"

QTreeView* makeCalculationView(CalculationModel& model) {
    auto* view = new QTreeView;
    view->setModel(&model);
    view->setObjectName("trace");
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    constexpr int widths[CalculationModel::columns] = {70, 230, 110, 230, 160};
    for (int column = 0; column < CalculationModel::columns; ++column)
        view->setColumnWidth(column, widths[column]);
    return view;
}
