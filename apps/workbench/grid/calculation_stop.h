// A calculation that takes longer than a moment shows a window with a button that stops it.
#pragma once

/// For all sheets of the program, once an application exists.
void offerToStopCalculations();
