// What is drawn over the cells of every view of a sheet: frames of the references in the formula
// being typed, and the cells that mean something in a standard.
#pragma once

#include <memory>

#include "workbench/sheet/formula_typing.h"
#include "workbench/sheet/standard_marks.h"

class QPainter;
class QTableView;

struct SheetMarks {
    FormulaTyping::Marks references;
    std::shared_ptr<const StandardMarks> standard;  ///< null in other sheets

    /// Over what `view` shows of `grid`.
    void draw(QPainter& painter, const QTableView& view, const control::Grid& grid) const;
};
