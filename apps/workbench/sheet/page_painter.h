// Draws the printed pages that the module lays out.
#pragma once

#include "spread/printing/print_job.h"

class QPainter;

/// `dots` of the painter to a millimetre of the paper.
void paintPage(QPainter& painter, const printing::PrintedPage& page, double dots);
