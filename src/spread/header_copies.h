// The page header and footer of a sheet are files of their own; copies of them, with their
// pictures, lie beside the file that the sheet is saved as.
//
// What lies there already is never replaced: it may be somebody's. A file of the same content
// serves as the copy, beside another one the copy gets a number ("Bill header 2.sss").
//
// The copies get their names behind the sheet, in a rename each: a program that is killed while it
// saves leaves no copies without their sheet.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core_api/text/text_helpers.h"
#include "core_api/text/vor_string.h"
#include "platform/export.h"
#include "platform/staged_file.h"

/// Which header and footer files are copied when a sheet is saved.
enum class HeaderFiles {
    /// Those that may be used where they lie (core_api/library_names), as a name may come with a
    /// file that somebody sent; in our programs only sheets and bitmaps. What cannot be copied is
    /// reported, and the sheet is saved.
    whereUsable,
    /// Sheets and bitmaps, and nothing is saved unless everything that is named can be copied;
    /// where names may lead is the caller's to ask.
    allOrNothing,
};

class VORMANT_API HeaderCopies {
  public:
    /// Beside `sheet`, the path that the sheet is saved as.
    HeaderCopies(const Vor_String& sheet, HeaderFiles which)
        : m_sheet(sheet), m_folder(getPath(sheet)), m_which(which) {}

    /// Copies the file that `reference` names, which then names the copy, to be put in its place.
    /// False, with the reference as it was, when it names no file, or one that is not copied: then
    /// problem() says why.
    bool add(Vor_String& reference);
    /// What the last add() or putInPlace() could not do; empty when there was just no file to copy.
    const std::string& problem() const { return m_problem; }
    bool isEmpty() const { return m_staged.empty(); }
    /// All the copies, or none of them.
    bool putInPlace();

  private:
    struct Copy {
        Vor_String from, to;
        std::string content;
    };
    bool read(Copy& copy, bool (*isUsable)(const Copy&, std::string& problem));
    bool choosePlaces(Copy& header, Copy* picture);
    bool isFree(const Copy& copy) const;
    const Copy* stagedAs(const Vor_String& path) const;
    bool stage(const Copy& copy);

    Vor_String m_sheet, m_folder;
    HeaderFiles m_which;
    std::string m_problem;
    std::vector<std::pair<Copy, files::StagedFile>> m_staged;
};
