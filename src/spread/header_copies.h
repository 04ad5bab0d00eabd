// The page header and footer of a sheet are files of their own; copies of them, with their
// pictures, lie beside the file that the sheet is saved as.
//
// What lies there already is never replaced: it may be somebody's. A file of the same content
// serves as the copy, beside another one the copy gets a number ("Bill header 2.sss").
#pragma once

#include <string>
#include <vector>

#include "core_api/text/vor_string.h"

/// Which header and footer files are copied when a sheet is saved.
enum class HeaderFiles {
    /// All that exist, whatever is in them: hosts answer for the names that they give.
    asNamed,
    /// Only sheets and bitmaps of the library (core_api/library_names), as a name may come with a
    /// file that somebody sent. What cannot be copied is reported, and the sheet is saved.
    sheetsOnly,
    /// Sheets and bitmaps, and nothing is saved unless everything that is named can be copied;
    /// where
    /// names may lead is the caller's to ask.
    allOrNothing,
};

class HeaderCopies {
  public:
    /// `folder` is the one of the saved sheet, with its backslash or empty.
    HeaderCopies(const Vor_String& folder, HeaderFiles which) : m_folder(folder), m_which(which) {}

    /// Copies the file that `reference` names, which then names the copy. False, with the reference
    /// as it was, when it names no file, or one that is not copied: then problem() says why.
    bool add(Vor_String& reference);
    /// What the last add() could not do; empty when there was just no file to copy.
    const std::string& problem() const { return m_problem; }
    /// Removes the copies again.
    void undo();

  private:
    struct Copy {
        Vor_String from, to;
        std::string content;
    };
    bool read(Copy& copy, bool (*isUsable)(const Copy&, std::string& problem));
    bool choosePlaces(Copy& header, Copy* picture);
    bool isFree(const Copy& copy) const;
    bool write(const Copy& copy);

    Vor_String m_folder;
    HeaderFiles m_which;
    std::string m_problem;
    std::vector<Vor_String> m_written;
};
