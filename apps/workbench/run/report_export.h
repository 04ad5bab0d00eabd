// A calculation into a file that people print and file.
#pragma once

#include <QString>

#include "runs/calculation.h"

/// By the extension: ".pdf" (A4), else HTML. False with the reason in `error` (to show).
bool writeReport(const runs::Calculation& calculation, const QString& author, const QString& path,
                 QString& error);
