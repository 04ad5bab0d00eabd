#include "core_api/sections/section_catalogue.h"

#include <charconv>

#include "core_api/library_folder.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"

namespace {

constexpr const char* groupsFile = "Groups.dat";
constexpr const char* typesFile = "Types.dat";

Vor_StringArray titles(std::initializer_list<const char*> own) {
    Vor_StringArray all;
    for (const char* each : own) all.append(each);
    all.appendAll(gMacroLangs.GetAllLanguages());
    return all;
}
Vor_StringArray groupTitles() {
    return titles({"Number", "Enabled", "Picture"});
}
Vor_StringArray typeTitles() {
    return titles({"Enabled", "Picture", "Group", "Remark"});
}

Vor_StringArray namesFrom(const Vor_StringArray& record, int first) {
    Vor_StringArray names;
    for (int i = first; i < record.length(); ++i) names.append(record[i]);
    return names;
}

/// Reads the records below the titles one after the other, and says where one is wrong.
class Reader {
  public:
    Reader(const RecordRows& records, std::string_view source, Vor_String& message)
        : m_records(records), m_source(source), m_message(message) {}

    bool hasTitles(const Vor_StringArray& titles) {
        m_columns = titles.length();
        if (!m_records.isEmpty() && m_records[0] == titles) return true;
        return refuse("the titles are others than \"" + arrToStr(titles, "\", \"") +
                      "\"; is this file of another version?");
    }
    bool next() { return ++m_row < m_records.length(); }
    const Vor_StringArray& record() const { return m_records[m_row]; }
    bool isWhole() {
        return record().length() == m_columns ||
               refuse("there are " + std::to_string(record().length()) + " fields in place of " +
                      std::to_string(m_columns) + "; one for each title is needed");
    }
    bool flag(int column, bool& value) {
        const std::string_view text = record()[column];
        if (text != "0" && text != "1")
            return refuse("\"" + std::string(text) + "\" is neither 1 (enabled) nor 0");
        value = text == "1";
        return true;
    }
    bool number(int column, long& value) {
        const std::string_view text = record()[column];
        const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return (error == std::errc() && stop == text.data() + text.size()) ||
               refuse("\"" + std::string(text) + "\" is no whole number");
    }
    bool refuse(const Vor_String& why) {
        m_message = std::string(m_source) + ":" + std::to_string(m_row + 1) + ": " + why.str();
        return false;
    }

  private:
    const RecordRows& m_records;
    std::string_view m_source;
    Vor_String& m_message;
    int m_row = 0;
    int m_columns = 0;
};

const char* flagText(bool on) {
    return on ? "1" : "0";
}

/// The names of a record have a place for every language, whatever a host made of them.
void appendNames(Vor_StringArray& record, Vor_StringArray names) {
    names.setLength(gMacroLangs.GetNrLanguages());
    record.appendAll(names);
}

Vor_String pathOf(const char* file) {
    return sectionCatalogueFolder() + file;
}

template <class List>
bool readList(const char* file, List& list, Vor_String& message,
              bool (*take)(const RecordRows&, std::string_view, List&, Vor_String&)) {
    const Vor_String path = pathOf(file);
    list = List();
    if (!ObjectExportFileExists(path)) return true;
    Vor_String name;
    RecordRows records;
    return readFile(path, name, records, &message) && take(records, path, list, message);
}

}  // namespace

Vor_String sectionCatalogueFolder() {
    return gSettings.libDir() + "prof\\";
}

CatalogueStamps sectionCatalogueStamps() {
    return {files::stampOf(pathOf(groupsFile)), files::stampOf(pathOf(typesFile))};
}

bool readGroupRecords(const RecordRows& records, std::string_view source, SectionGroupArray& groups,
                      Vor_String& message) {
    Reader reader(records, source, message);
    if (!reader.hasTitles(groupTitles())) return false;
    SectionGroupArray read;
    while (reader.next()) {
        SectionGroupArray::Group group;
        if (!reader.isWhole() || !reader.number(0, group.id) || !reader.flag(1, group.isEnabled))
            return false;
        group.image = reader.record()[2];
        group.names = namesFrom(reader.record(), 3);
        if (!read.append(std::move(group)))
            return reader.refuse("another group has this number; give each a number of its own");
    }
    groups = std::move(read);
    return true;
}

bool readTypeRecords(const RecordRows& records, std::string_view source,
                     Vor_Array<SectionType>& types, Vor_String& message) {
    Reader reader(records, source, message);
    if (!reader.hasTitles(typeTitles())) return false;
    Vor_Array<SectionType> read;
    while (reader.next()) {
        SectionType type;
        if (!reader.isWhole() || !reader.flag(0, type.isEnabled) || !reader.number(2, type.group))
            return false;
        type.image = reader.record()[1];
        type.remark = reader.record()[3];
        type.names = namesFrom(reader.record(), 4);
        read.append(std::move(type));
    }
    types = std::move(read);
    return true;
}

RecordRows groupRecords(const SectionGroupArray& groups) {
    RecordRows records{groupTitles()};
    for (int i = 0; i < groups.length(); ++i) {
        Vor_StringArray record{std::to_string(groups.getId(i)), flagText(groups.getEnabled(i)),
                               groups.getImage(i)};
        appendNames(record, groups.getLangs(i));
        records.append(std::move(record));
    }
    return records;
}

RecordRows typeRecords(const Vor_Array<SectionType>& types) {
    RecordRows records{typeTitles()};
    for (const SectionType& type : types) {
        Vor_StringArray record{flagText(type.isEnabled), type.image, std::to_string(type.group),
                               type.remark};
        appendNames(record, type.names);
        records.append(std::move(record));
    }
    return records;
}

bool readSectionCatalogue(SectionCatalogue& catalogue, Vor_String* message) {
    Vor_String why;
    SectionCatalogue read;
    const bool isRead = hasLibraryFolder(&why) &&
                        readList(groupsFile, read.groups, why, readGroupRecords) &&
                        readList(typesFile, read.types, why, readTypeRecords);
    if (isRead) catalogue = std::move(read);
    if (!isRead && message) *message = why;
    return isRead;
}

bool writeSectionCatalogue(const SectionCatalogue& catalogue, Vor_String* message) {
    Vor_String why;
    const Vor_String folder = gSettings.libDir() + "prof\\";
    const bool isWritten = hasLibraryFolder(&why) &&
                           ObjectExportCreateDirectory(folder, &why) == Acad::eOk &&
                           writeFile(pathOf(groupsFile), groupRecords(catalogue.groups), &why) &&
                           writeFile(pathOf(typesFile), typeRecords(catalogue.types), &why);
    if (!isWritten && message) *message = why;
    return isWritten;
}
