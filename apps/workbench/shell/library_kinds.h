// What a library holds, by kind: the folder that each kind has, and how its files end. Says for any
// file what it is.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "core_api/text/vor_string.h"

enum class LibraryKind { standard, macro, sectionTable, dialogTemplate, cuttingStock };

struct LibraryFolder {
    LibraryKind kind;
    int title;
    const char* folder;                          ///< inside the library
    std::array<std::string_view, 3> extensions;  ///< with their dots; empty ones do not count
    bool opensElsewhere;                         ///< files outside the folder are of the kind, too

    Vor_String path() const;
    bool hasExtension(const Vor_String& file) const;
};

std::span<const LibraryFolder> libraryFolders();

/// Nothing for a file that is no part of a library.
std::optional<LibraryKind> libraryKindOf(const Vor_String& file);
