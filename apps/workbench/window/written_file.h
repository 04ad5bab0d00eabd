// What Qt writes is made in memory first and then written like every other file: whole, flushed, or
// not at all.
#pragma once

#include <QByteArray>
#include <QString>

/// Machine path. False, with `error` set and the old file as it was, on any failure.
bool writeFile(const QString& path, const QByteArray& bytes, QString& error);

/// The bytes of a PDF file as they would be on any day: without the moment it was made, and with a
/// number made from its content in the place of a random one.
QByteArray withoutMoment(QByteArray pdf);
