// What sections are called by another system, for the exchange of models: pairs of this system's
// full section name and the other's, kept in a record file (core_api/files.h) of a title record and
// one record a pair.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/host/error_status.h"

class VORMANT_API SectionTranslation {
  public:
    struct Pair {
        Vor_String section;
        Vor_String otherName;
        bool operator==(const Pair&) const = default;
    };
    /// In the order of the file.
    Vor_Array<Pair> pairs;

    /// The other system's name of a section, letter case aside; empty when there is none.
    Vor_String otherName(std::string_view section) const;
    /// This system's name of what the other calls `otherName`.
    Vor_String section(std::string_view otherName) const;
    /// Adds or changes a pair.
    void set(const Vor_String& section, const Vor_String& otherName);

    bool operator==(const SectionTranslation&) const = default;
};

/// `file` is a name in the library folder, or a path. No such file gives no pairs; records that
/// have not both names are left out. eInvalidInput, with `translation` as it was and `message` set
/// ("file:line: what is wrong; what to do"), when the file cannot be read.
VORMANT_API ErrorStatus readSectionTranslation(const Vor_String& file,
                                               SectionTranslation& translation,
                                               Vor_String* message = nullptr);
/// Leaves out pairs that lack a name. The titles stand over the two columns of the file. All or
/// nothing.
VORMANT_API ErrorStatus writeSectionTranslation(const Vor_String& file,
                                                const Vor_String& sectionTitle,
                                                const Vor_String& otherTitle,
                                                const SectionTranslation& translation,
                                                Vor_String* message = nullptr);
