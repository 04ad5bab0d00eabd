#include "standards/data_files.h"

#include <unordered_map>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/cached_files.h"
#include "mapping/mapping_file.h"
#include "standards/run_chain.h"

namespace {

std::optional<Vor_String> searchDataFile(std::string_view name) {
    const Vor_String standards = standardsFolder();
    const Vor_String candidates[] = {Vor_String(name), standards + "Data\\" + name,
                                     standards + name, gSettings.libDir() + name};
    for (const Vor_String& candidate : candidates)
        if (ObjectExportFileExists(candidate)) return candidate;
    return std::nullopt;
}

/// What findDataFile found during the run under way: a search that misses looks into folders.
class FoundFiles {
  public:
    const std::optional<Vor_String>& find(std::string_view name) {
        if (m_serial != RunningStandard::serial()) {
            m_found.clear();
            m_serial = RunningStandard::serial();
        }
        auto [entry, isNew] = m_found.try_emplace(std::string(name));
        if (isNew) entry->second = searchDataFile(name);
        return entry->second;
    }

  private:
    unsigned long long m_serial = 0;
    std::unordered_map<std::string, std::optional<Vor_String>> m_found;
};

std::optional<SizeList> parseSizeList(std::string_view path) {
    Vor_StringArray lines;
    if (ObjectExportReadFile(path, lines) != Acad::eOk) return std::nullopt;
    SizeList sizes;
    for (const Vor_String& line : lines) {
        const Vor_String text = stripSymbols(
            removeLineComment(removeComments(line, "/*", "*/"), "//"), ' ', true, false);
        if (text.isEmpty()) continue;
        Vor_String before;
        Vor_String after;
        if (!splitStringAtSymbol(text, 'x', before, after, true)) before = text;
        sizes.first.push_back(textToDouble(before));
        sizes.second.push_back(textToDouble(after));
    }
    return sizes;
}

std::optional<LookupTable> parseLookupTable(std::string_view path) {
    Vor_StringArray lines;
    if (ObjectExportReadFile(path, lines) != Acad::eOk) return std::nullopt;
    Vor_StringArray kept;
    for (const Vor_String& line : lines) {
        Vor_String text = removeLineComment(line, "//");
        if (!text.isEmpty()) kept.append(std::move(text));
    }
    if (kept.isEmpty()) return std::nullopt;
    return LookupTable(arrToArrArr(kept, '\t'));
}

}  // namespace

std::optional<Vor_String> findDataFile(std::string_view name) {
    static FoundFiles found;
    return RunningStandard::serial() == 0 ? searchDataFile(name) : found.find(name);
}

std::shared_ptr<const SizeList> readSizeList(std::string_view name) {
    static CachedFiles<SizeList> lists;
    const auto path = findDataFile(name);
    return path ? lists.get(*path, parseSizeList) : nullptr;
}

LookupTable::LookupTable(Vor_Array<Vor_StringArray> rows)
    : m_rows(std::move(rows)), m_keys(m_rows.length()) {
    for (int i = 0; i < m_rows.length(); ++i) m_keys.add(m_rows[i][0], i);
}

std::shared_ptr<const LookupTable> readLookupTable(std::string_view name) {
    static CachedFiles<LookupTable> tables;
    const auto path = findDataFile(name);
    return path ? tables.get(*path, parseLookupTable) : nullptr;
}
