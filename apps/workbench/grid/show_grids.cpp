#include "workbench/grid/show_grids.h"

#include "workbench/grid/cell_font.h"
#include "workbench/grid/grid_view.h"
#include "workbench/window/qt_window_system.h"

void showGrids(QtWindowSystem& system) {
    measureWithCellFonts();  // dialogs fit their columns before a view of them is made
    system.showGridsWith(
        [](TSpread& spread, QWidget* parent) { return new GridView(spread, parent); },
        [](QWidget& grid) { static_cast<GridView&>(grid).sync(); });
}
