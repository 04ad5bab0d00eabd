#include "cutstock/item_list.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "core_api/files.h"
#include "cutstock/item_names.h"
#include "cutstock/item_rows.h"

namespace cutstock {

namespace {

constexpr std::string_view columnsWord = "Columns", itemWord = "Item", partWord = "Part";

std::optional<int> numberOf(const Vor_String& field) {
    const std::string_view text = field.view();
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

/// Takes one record after the other into its data, each with nothing or what is wrong with it.
class ListReader {
  public:
    Vor_String take(const Vor_StringArray& record) {
        const auto number = record.length() > 1 ? numberOf(record[1]) : std::nullopt;
        if (!number) return "a line begins with Columns, Item or Part, and then a number";
        if (record[0].view() == columnsWord) return takeColumns(*number, record);
        if (record[0].view() == itemWord) return takeItem(*number, record);
        if (record[0].view() == partWord) return takePart(*number, record);
        return "\"" + record[0] + "\": a line begins with Columns, Item or Part";
    }

    DlgCSP2Data data;

  private:
    static Vor_StringArray cellsOf(const Vor_StringArray& record) {
        Vor_StringArray cells;
        for (int i = 2; i < record.length(); ++i) cells.append(record[i]);
        return cells;
    }
    Vor_String takeColumns(int table, const Vor_StringArray& record) {
        if (table < 1 || table > DlgCSP2Data::tableCount) return "tables are numbered 1 to 3";
        data.tables[static_cast<size_t>(table - 1)].columnNames = cellsOf(record);
        return {};
    }
    Vor_String takeItem(int number, const Vor_StringArray& record) {
        if (record.length() != 3) return "an item has a number and a name";
        if (m_ids.contains(number)) return "two items have this number; give one of them another";
        Vor_String wrongName = m_names.add(record[2]);
        if (!wrongName.isEmpty()) return wrongName;
        m_ids.insert(number);
        data.itemIds.append(number);
        data.itemNames.append(record[2]);
        return {};
    }
    Vor_String takePart(int number, const Vor_StringArray& record) {
        if (!m_ids.contains(number)) return "no item above has this number";
        data.tables[0].rowItemIds.append(number);
        data.tables[0].rows.append(cellsOf(record));
        return {};
    }

    std::unordered_set<int> m_ids;
    ItemNames m_names;
};

void add(RecordRows& records, std::string_view word, int number, const Vor_StringArray& cells) {
    Vor_StringArray record{word, Vor_String(number, 0)};
    record.appendAll(cells);
    records.append(std::move(record));
}

}  // namespace

bool readItemList(std::string_view text, std::string_view source, DlgCSP2Data& data,
                  Vor_String& message) {
    RecordRows records;
    if (!readRecords(text, source, records, message)) return false;
    ListReader reader;
    for (int i = 0; i < records.length(); ++i) {
        const Vor_String wrong = reader.take(records[i]);
        if (wrong.isEmpty()) continue;
        message = std::string(source) + ":" + std::to_string(i + 1) + ": " + wrong.str();
        return false;
    }
    reader.data.savesAll = data.savesAll;
    data = std::move(reader.data);
    return true;
}

Vor_String itemListText(const DlgCSP2Data& data) {
    RecordRows records;
    std::unordered_set<int> ids;
    for (int i = 0; i < DlgCSP2Data::tableCount; ++i)
        add(records, columnsWord, i + 1, data.tables[static_cast<size_t>(i)].columnNames);
    for (int i = 0; isItem(data, i); ++i) {
        ids.insert(data.itemIds[i]);
        add(records, itemWord, data.itemIds[i], {data.itemNames[i]});
    }
    const Csp2Table& parts = data.tables[0];
    for (int i = 0; i < std::min(parts.rows.length(), parts.rowItemIds.length()); ++i)
        if (ids.contains(parts.rowItemIds[i]))
            add(records, partWord, parts.rowItemIds[i], parts.rows[i]);
    return writeRecords(records);
}

}  // namespace cutstock
