// Every starter of the module as an entry of a menu: what it is called, what it works on here, and
// what is said of it afterwards.
#pragma once

#include <functional>
#include <span>

#include "core_api/text/vor_string.h"

class ModuleData;
class QMenu;

/// Said on the command line after the title of the entry; the numbers of the words count on.
enum class Outcome {
    changed,
    cancelled,
    opened,
    closed,
    noneOpen,
    succeeded,
    failed,
    noMacro,
    noSections,
    noPictures,
    noStandards,
    noMembers,
};

struct Starter {
    enum class Group { macros, tables, sections, buildings, standards, other };

    Group group;
    int title;  ///< text number
    Outcome (*start)(ModuleData& data);
};

/// In the order of the menu.
std::span<const Starter> starters();

/// Starts it and prints what came of it.
Outcome start(const Starter& starter, ModuleData& data);

/// A sub-menu for each group. `data` is borrowed.
void addStarters(QMenu& menu, ModuleData& data);
