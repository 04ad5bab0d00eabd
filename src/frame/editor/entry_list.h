// Lists in the editor of named values: a heading, and below it the rows of one entry after the
// other. The user inserts and deletes entries.
#pragma once

#include "core_api/text/vor_array.h"
#include "frame/editor/named_value.h"

/// Both calls move entries, so rows that were described before refer to them no longer.
struct EntryList {
    int length = 0;
    /// Makes a copy of entry `from`, or a new one for -1, the entry `to`.
    std::function<void(int from, int to)> insert;
    std::function<void(int index)> remove;
};

/// `rowsOf` gives the rows of one entry.
NamedValues listValues(const ValueName& heading, EntryList list,
                       const std::function<NamedValues(int index)>& rowsOf);

/// `rowsOf(Entry&, index)` gives the rows of an entry. `renew(Entry&, entries)` changes a copy, or
/// an entry without values, before it goes into the list.
template <class Entry, class RowsOf, class Renew>
NamedValues listValues(const ValueName& heading, Vor_Array<Entry>& entries, RowsOf rowsOf,
                       Renew renew) {
    const auto insert = [&entries, renew](int from, int to) {
        Entry made = entries.isIndex(from) ? entries[from] : Entry();
        renew(made, entries);
        entries.insertAt(to, std::move(made));
    };
    const auto remove = [&entries](int index) { entries.removeAt(index); };
    return listValues(heading, EntryList{entries.length(), insert, remove},
                      [&](int index) { return rowsOf(entries[index], index); });
}

/// Copies are like what they are copied from.
template <class Entry, class RowsOf>
NamedValues listValues(const ValueName& heading, Vor_Array<Entry>& entries, RowsOf rowsOf) {
    return listValues(heading, entries, rowsOf, [](Entry&, const Vor_Array<Entry>&) {});
}

/// What the rows of an entry are called by: its number while it has no name.
Vor_String entryOwner(const Vor_String& name, int index);

/// `name` while none of `taken` is like it, letter case aside; else the same with another number:
/// "Hole", "Hole_1", "Hole_2". Empty stays empty.
Vor_String freeName(const Vor_StringArray& taken, const Vor_String& name);

/// The names of entries that have one.
template <class Entry>
Vor_StringArray namesOf(const Vor_Array<Entry>& entries) {
    Vor_StringArray names;
    for (const Entry& each : entries) names.append(each.name);
    return names;
}
