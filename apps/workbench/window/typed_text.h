// The edge where typed text enters: what Windows-1252 lacks is refused there, in words.
#pragma once

#include <QWidget>

/// Tells beside `field` which character of `text` cannot be kept.
void refuseTyped(QWidget& field, const QString& text);
/// The same as a sentence in the working language; empty when all of it can be kept.
QString refusalOf(const QString& text);
