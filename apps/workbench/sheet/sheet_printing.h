// Sheets on paper: printers, their preview and PDF files.
#pragma once

#include <QString>

#include "spread/vor_spread.h"

class QPagedPaintDevice;
class QWidget;

/// Every page of the sheet on `device`, whose paper is taken and turned as the sheet needs it; its
/// margins are set to none, those of the sheet count. False when the device cannot begin.
bool printSheet(Vor_Spread& spread, QPagedPaintDevice& device);
/// A4. False, with why, when the file cannot be written; the old one is kept then.
bool writeSheetPdf(Vor_Spread& spread, const QString& path, QString& error);
/// Ask for a printer; previewSheet shows the pages first. They give why nothing was printed, an
/// empty text when it was, or when the user did not want to.
QString askAndPrint(Vor_Spread& spread, QWidget* parent);
QString previewSheet(Vor_Spread& spread, QWidget* parent);
/// What is wrong with the header or footer files, a line each; the sheet is printed without them.
QString printProblems(Vor_Spread& spread);
