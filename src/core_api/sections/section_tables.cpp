#include "core_api/sections/section_tables.h"

#include <algorithm>

#include "core_api/files.h"
#include "core_api/sections/section_table_file.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "platform/host/host.h"

Vor_SectionTableManager gSectionTables;

struct Vor_SectionTableManager::Entry {
    Vor_String name;
    Vor_String path;  // empty: registered, not from a file
    std::unique_ptr<SectionTable> table;
    bool isTried = false;  // a file that cannot be read is told of once

    void load();
};

struct Vor_SectionTableManager::UserNames {
    TextIndex index;  // borrows the cells of the tables
    std::vector<Place> places;
};

void Vor_SectionTableManager::Entry::load() {
    if (table || isTried) return;
    isTried = true;
    Vor_String message;
    table = readSectionTable(path, message);
    if (!table) acutPrint(message + "\n");
}

Vor_SectionTableManager::Vor_SectionTableManager() = default;
Vor_SectionTableManager::~Vor_SectionTableManager() = default;

Vor_String Vor_SectionTableManager::tablesFolder() const {
    return m_library + "prof\\";
}

void Vor_SectionTableManager::tablesChanged() {
    m_names.reset();
    m_userNames.reset();
}

void Vor_SectionTableManager::reload() {
    std::erase_if(m_entries, [](const auto& entry) { return !entry->path.isEmpty(); });
    m_isListed = false;
    tablesChanged();
}

void Vor_SectionTableManager::listLibrary() {
    const Vor_String& library = gSettings.libDir();
    if (m_isListed && library == m_library) return;
    reload();
    m_isListed = true;
    m_library = library;
    if (library.isEmpty()) return;
    std::vector<std::unique_ptr<Entry>> listed;
    for (const Vor_String& path : ObjectExportFindFiles(tablesFolder(), "*.pr")) {
        auto entry = std::make_unique<Entry>();
        entry->name = removeExtension(getFileName(path));
        entry->path = path;
        listed.push_back(std::move(entry));
    }
    m_entries.insert(m_entries.begin(), std::make_move_iterator(listed.begin()),
                     std::make_move_iterator(listed.end()));
}

int Vor_SectionTableManager::indexOf(std::string_view name) {
    listLibrary();
    if (!m_names) {
        m_names = std::make_unique<TextIndex>(static_cast<int>(m_entries.size()));
        // From the back: a registered table counts before a file of the same name.
        for (int i = static_cast<int>(m_entries.size()) - 1; i >= 0; --i) {
            m_names->add(m_entries[static_cast<size_t>(i)]->name, i);
        }
    }
    return m_names->find(name);
}

bool Vor_SectionTableManager::hasTable(std::string_view name, int& index) {
    const int found = indexOf(name);
    if (found >= 0) index = found;
    return found >= 0;
}

ErrorStatus Vor_SectionTableManager::addSectionTable(const Vor_String& fileName,
                                                     const Vor_String& drawnAs,
                                                     const Vor_StringArray& header,
                                                     const Vor_Array<Vor_StringArray>& rows) {
    const Vor_String name = removeExtension(getFileName(fileName));
    if (name.isEmpty() || indexOf(name) >= 0) return Acad::eInvalidInput;
    auto entry = std::make_unique<Entry>();
    entry->name = name;
    entry->table = std::make_unique<SectionTable>(name, drawnAs, header, rows);
    const Vor_String file = tablesFolder() + name + ".pr";
    auto place = m_entries.end();
    if (!m_library.isEmpty() && ObjectExportFileExists(file)) {
        entry->path = file;
        place = std::find_if(m_entries.begin(), m_entries.end(), [&](const auto& each) {
            return each->path.isEmpty() || encodings::compareFolded(each->name, name) > 0;
        });
    }
    m_entries.insert(place, std::move(entry));
    tablesChanged();
    return Acad::eOk;
}

ErrorStatus Vor_SectionTableManager::removeTable(int index) {
    listLibrary();
    if (index < 0 || index >= static_cast<int>(m_entries.size())) return Acad::eInvalidInput;
    m_entries.erase(m_entries.begin() + index);
    tablesChanged();
    return Acad::eOk;
}

Vor_StringArray Vor_SectionTableManager::tableNames() {
    listLibrary();
    Vor_StringArray names;
    for (const auto& entry : m_entries) names.append(entry->name);
    return names;
}

const SectionTable* Vor_SectionTableManager::table(int index) {
    listLibrary();
    if (index < 0 || index >= static_cast<int>(m_entries.size())) return nullptr;
    Entry& entry = *m_entries[static_cast<size_t>(index)];
    entry.load();
    return entry.table.get();
}

Vor_SectionTableManager::Place Vor_SectionTableManager::find(std::string_view name) {
    const size_t dash = name.find('-');
    if (dash != std::string_view::npos) {
        const SectionTable* found = table(indexOf(name.substr(0, dash)));
        const int row = found ? found->findRow(name.substr(dash + 1)) : -1;
        if (row >= 0) return {found, row};
    }
    return findUserName(name);
}

// Only here every table has to be read.
Vor_SectionTableManager::Place Vor_SectionTableManager::findUserName(std::string_view name) {
    listLibrary();
    if (!m_userNames) {
        m_userNames = std::make_unique<UserNames>();
        for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
            const SectionTable* each = table(i);
            for (int row = 0; each && row < each->rows().length(); ++row) {
                m_userNames->places.push_back({each, row});
                const auto number = static_cast<int>(m_userNames->places.size()) - 1;
                for (int language = 0; language < each->languageColumns(); ++language) {
                    const std::string_view userName = each->userName(row, language);
                    if (!userName.empty()) m_userNames->index.add(userName, number);
                }
            }
        }
    }
    const int number = m_userNames->index.find(name);
    return number < 0 ? Place{} : m_userNames->places[static_cast<size_t>(number)];
}

bool Vor_SectionTableManager::getSystemName(std::string_view name, Vor_String& systemName) {
    const Place place = find(name);
    if (place) systemName = place.table->fullName(place.row);
    return static_cast<bool>(place);
}

bool Vor_SectionTableManager::getUserName(std::string_view name, Vor_String& userName) {
    const Place place = find(name);
    const int language = static_cast<int>(gSettings.current().language);
    const std::string_view text =
        place ? place.table->userName(place.row, language) : std::string_view();
    if (!text.empty()) userName = text;
    return !text.empty();
}

ErrorStatus getSectionValue(std::string_view section, int index, Vor_String& text) {
    const auto place = gSectionTables.find(section);
    const Vor_String* value = place ? place.table->value(place.row, index) : nullptr;
    if (!value) return Acad::eInvalidInput;
    text = *value;
    return Acad::eOk;
}

ErrorStatus getSectionColumnNames(std::string_view section, Vor_StringArray& columns) {
    const auto place = gSectionTables.find(section);
    if (!place) return Acad::eInvalidInput;
    columns = place.table->valueColumns();
    return Acad::eOk;
}
