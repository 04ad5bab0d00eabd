#include "standards/data_files.h"

#include <algorithm>
#include <unordered_map>

#include "core_api/files.h"
#include "core_api/library_names.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/cached_files.h"
#include "mapping/mapping_file.h"
#include "standards/found_files.h"
#include "standards/run_chain.h"
#include "standards/run_observer.h"

namespace {

void notifyObserver(const Vor_String& text) {
    if (RunObserver* observer = runObserver()) observer->dataFileFailed(text);
}

std::vector<Vor_String> dataFileCandidates(std::string_view name) {
    const Vor_String& library = gSettings.libDir();
    const Vor_String standards = standardsFolder();
    std::vector<Vor_String> candidates;
    if (mayBeOwnPath(name)) candidates.emplace_back(name);
    if (!library.isEmpty() || libraryNameRule().outside == OutsideNames::asHost)
        for (const Vor_String& folder : {standards + "Data\\", standards, library})
            candidates.push_back(folder + name);
    return candidates;
}

std::optional<Vor_StringArray> readLines(std::string_view path) {
    Vor_StringArray lines;
    Vor_String message;
    if (ObjectExportReadFile(path, lines, &message) == Acad::eOk) return lines;
    notifyObserver(message);
    return std::nullopt;
}

/// What a data file holds, for the length of one outermost run: equations ask for the same few
/// files again and again.
template <class Content>
class ReadInRun {
  public:
    template <class Read>
    std::shared_ptr<const Content> get(std::string_view name, Read&& read) {
        if (RunningStandard::serial() == 0) return readFrom(name, read);
        if (m_serial != RunningStandard::serial()) {
            m_read.clear();
            m_serial = RunningStandard::serial();
        }
        const auto [entry, isNew] = m_read.try_emplace(std::string(name));
        if (isNew) entry->second = readFrom(name, read);
        return entry->second;
    }

  private:
    template <class Read>
    std::shared_ptr<const Content> readFrom(std::string_view name, Read&& read) {
        if (const auto path = findDataFile(name)) return m_files.get(*path, read);
        if (const auto refusal = FoundFiles::refusal(dataFileCandidates(name))) {
            notifyObserver(*refusal);
            return nullptr;
        }
        notifyObserver("there is no data file \"" + Vor_String(name) + "\" in " +
                       standardsFolder() + "Data\\: put it there, or correct its name");
        return nullptr;
    }

    CachedFiles<Content> m_files;
    unsigned long long m_serial = 0;
    std::unordered_map<std::string, std::shared_ptr<const Content>> m_read;
};

bool beginsWithNumber(std::string_view text) {
    const size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const size_t point = text.substr(sign).starts_with('.') ? 1 : 0;
    const std::string_view digits = text.substr(sign + point);
    return !digits.empty() && digits[0] >= '0' && digits[0] <= '9';
}

std::optional<SizeList> parseSizeList(std::string_view path) {
    const auto lines = readLines(path);
    if (!lines) return std::nullopt;
    SizeList sizes;
    int lineNumber = 0;
    int damaged = 0;
    for (const Vor_String& line : *lines) {
        ++lineNumber;
        const Vor_String text = stripSymbols(
            removeLineComment(removeComments(line, "/*", "*/"), "//"), ' ', true, false);
        if (text.isEmpty()) continue;
        if (damaged == 0 && !beginsWithNumber(text)) damaged = lineNumber;
        Vor_String before;
        Vor_String after;
        if (!splitStringAtSymbol(text, 'x', before, after, true)) before = text;
        sizes.first.push_back(textToDouble(before));
        sizes.second.push_back(textToDouble(after));
    }
    if (damaged > 0)
        notifyObserver(Vor_String(path) + ":" + Vor_String(damaged, 0) +
                       ": this is no size and counts as 0: write a number, or width x thickness");
    return sizes;
}

std::optional<LookupTable> parseLookupTable(std::string_view path) {
    const auto lines = readLines(path);
    if (!lines) return std::nullopt;
    Vor_StringArray kept;
    for (const Vor_String& line : *lines) {
        Vor_String text = removeLineComment(line, "//");
        // The tab before a comment makes an empty value.
        const bool hadTab =
            line.view().substr(0, line.view().find("//")).find('\t') != std::string_view::npos;
        if (hadTab && !text.isEmpty() && text.view().find('\t') == std::string_view::npos)
            text += "\t";
        if (!text.isEmpty()) kept.append(std::move(text));
    }
    auto rows = arrToArrArr(kept, '\t');
    const auto hasValue = [](const Vor_StringArray& row) { return row.length() > 1; };
    if (std::none_of(rows.begin(), rows.end(), hasValue)) {
        notifyObserver(Vor_String(path) + ": there is no row in it: write key, tab, value");
        return std::nullopt;
    }
    return LookupTable(std::move(rows));
}

}  // namespace

std::optional<Vor_String> findDataFile(std::string_view name) {
    const Vor_String& library = gSettings.libDir();
    return FoundFiles::instance().find("data\n" + library.str() + "\n" + std::string(name),
                                       [&] { return dataFileCandidates(name); });
}

std::shared_ptr<const SizeList> readSizeList(std::string_view name) {
    static ReadInRun<SizeList> lists;
    return lists.get(name, parseSizeList);
}

LookupTable::LookupTable(Vor_Array<Vor_StringArray> rows)
    : m_rows(std::move(rows)), m_keys(m_rows.length()) {
    for (int i = 0; i < m_rows.length(); ++i) m_keys.add(m_rows[i][0], i);
}

std::shared_ptr<const LookupTable> readLookupTable(std::string_view name) {
    static ReadInRun<LookupTable> tables;
    return tables.get(name, parseLookupTable);
}
