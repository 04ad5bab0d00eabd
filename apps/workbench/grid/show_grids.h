// Gives the grids of the module's dialogs their views.
#pragma once

class QtWindowSystem;

void showGrids(QtWindowSystem& system);
