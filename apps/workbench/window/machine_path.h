// Paths of the module as the machine and its users write them.
#pragma once

#include <QFileInfo>
#include <QString>
#include <string>

#include "platform/paths.h"

inline QString machinePath(const std::string& path) {
    return QString::fromStdString(paths::toMachine(path));
}

/// Both paths lead to one file that exists, however they are written.
inline bool isSameFile(const std::string& a, const std::string& b) {
    if (a.empty() || b.empty()) return false;
    const QFileInfo first(machinePath(a)), second(machinePath(b));
    return first.exists() && first.canonicalFilePath() == second.canonicalFilePath();
}
