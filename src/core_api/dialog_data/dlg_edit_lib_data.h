// What the section library dialog works on: the table files of the library, the drawn section
// templates, and the catalogue of section groups and types.
#pragma once

#include "core_api/sections/section_catalogue.h"
#include "core_api/text/vor_string_array.h"

class VORMANT_API DlgEditLibData {
  public:
    virtual ~DlgEditLibData() = default;

    /// Lists the table files and the drawn templates of the library's "prof\" folder.
    void GetAvailableFiles();

    /// Without folder and ".pr".
    Vor_StringArray tableNames;
    /// File names ending in ".dwg".
    Vor_StringArray templateNames;

    /// Takes the catalogue from the files of the library. False, with the catalogue empty, when one
    /// cannot be read; catalogueProblem() says why until it is written.
    bool readCatalogue();
    /// Writes the catalogue to the library, also in place of files that could not be read.
    bool writeCatalogue(Vor_String* message = nullptr);
    enum class Written { yes, no, changedMeanwhile };
    /// The same while other programs that change it wait. When one has written a file since it was
    /// read, nothing is written, and the next call replaces what is there now.
    Written writeCatalogueAsRead(Vor_String& message);
    const Vor_String& catalogueProblem() const { return m_problem; }

    SectionCatalogue catalogue;

  private:
    Vor_String m_problem;
    std::optional<CatalogueStamps> m_stamps;  // of what was read; none: it never was
};
