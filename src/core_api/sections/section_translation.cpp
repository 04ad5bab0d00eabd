#include "core_api/sections/section_translation.h"

#include "core_api/files.h"
#include "core_api/library_folder.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"

namespace {

using Pair = SectionTranslation::Pair;

bool isWhole(const Pair& pair) {
    return !pair.section.isEmpty() && !pair.otherName.isEmpty();
}

bool isInLibrary(const Vor_String& file) {
    return getPath(file).isEmpty();
}

Vor_String pathOf(const Vor_String& file) {
    return isInLibrary(file) ? gSettings.libDir() + file : file;
}

bool hasFolder(const Vor_String& file, Vor_String* message = nullptr) {
    return !isInLibrary(file) || hasLibraryFolder(message);
}

/// The wanted member of the first pair whose `key` is `name`.
Vor_String lookUp(const Vor_Array<Pair>& pairs, Vor_String Pair::*key, std::string_view name,
                  Vor_String Pair::*wanted) {
    for (const Pair& pair : pairs)
        if ((pair.*key).equal(name)) return pair.*wanted;
    return {};
}

}  // namespace

Vor_String SectionTranslation::otherName(std::string_view section) const {
    return lookUp(pairs, &Pair::section, section, &Pair::otherName);
}

Vor_String SectionTranslation::section(std::string_view otherName) const {
    return lookUp(pairs, &Pair::otherName, otherName, &Pair::section);
}

void SectionTranslation::set(const Vor_String& section, const Vor_String& otherName) {
    for (Pair& pair : pairs) {
        if (!pair.section.equal(section)) continue;
        pair.otherName = otherName;
        return;
    }
    pairs.append({section, otherName});
}

ErrorStatus readSectionTranslation(const Vor_String& file, SectionTranslation& translation,
                                   Vor_String* message) {
    const Vor_String path = pathOf(file);
    const bool isThere = hasFolder(file) && ObjectExportFileExists(path);
    RecordRows records;
    Vor_String name;
    if (isThere && !readFile(path, name, records, message)) return Acad::eInvalidInput;
    translation.pairs.clear();
    for (int i = 1; i < records.length(); ++i) {  // after the titles
        if (records[i].length() < 2) continue;
        const Pair pair{records[i][0], records[i][1]};
        if (isWhole(pair)) translation.pairs.append(pair);
    }
    return Acad::eOk;
}

ErrorStatus writeSectionTranslation(const Vor_String& file, const Vor_String& sectionTitle,
                                    const Vor_String& otherTitle,
                                    const SectionTranslation& translation, Vor_String* message) {
    if (!hasFolder(file, message)) return Acad::eInvalidInput;
    RecordRows records{{sectionTitle, otherTitle}};
    for (const Pair& pair : translation.pairs)
        if (isWhole(pair)) records.append({pair.section, pair.otherName});
    return writeFile(pathOf(file), records, message) ? Acad::eOk : Acad::eInvalidInput;
}
