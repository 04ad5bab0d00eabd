#include "grid/show_grids.h"

#include "grid/cell_font.h"
#include "grid/grid_view.h"
#include "window/qt_window_system.h"

void showGrids(QtWindowSystem& system) {
    measureWithCellFonts();  // dialogs fit their columns before a view of them is made
    system.showGridsWith(
        [](TSpread& spread, QWidget* parent) { return new GridView(spread, parent); },
        [](QWidget& grid) { static_cast<GridView&>(grid).sync(); });
}
