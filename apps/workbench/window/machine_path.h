// Paths of the module as the machine and its users write them.
#pragma once

#include <QString>
#include <string>

#include "platform/paths.h"

inline QString machinePath(const std::string& path) {
    return QString::fromStdString(paths::toMachine(path));
}
