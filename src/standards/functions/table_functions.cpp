// Look-ups in the data files of a library.
#include "core_api/text/text_helpers.h"
#include "standards/data_files.h"
#include "standards/functions/families.h"

namespace {

constexpr int keyDecimals = 6;  // of a number that is part of a key

/// The key arguments, from the second on, joined as the tables write them. The first that is
/// neither text nor number ends them.
Vor_String joinedKey(FunctionArguments& arguments) {
    Vor_StringArray parts;
    for (int i = 1; i < arguments.count(); ++i) {
        if (const auto number = arguments.number(i))
            parts.append(Vor_String(*number, keyDecimals));
        else if (auto text = arguments.text(i))
            parts.append(std::move(*text));
        else
            break;
    }
    return arrToStr(parts, ";");
}

int findSectionRow(const LookupTable& table, const Vor_String& key) {
    for (int i = 0; i < table.rows().length(); ++i)
        if (systemNameOf(table.rows()[i][0]).equal(key)) return i;
    return -1;
}

FunctionResult lookUp(FunctionArguments& arguments, bool keysAreSections) {
    const auto file = arguments.text(0);
    if (!file || arguments.count() < 2) return std::nullopt;
    const auto table = readLookupTable(*file);
    if (!table) return std::nullopt;
    const Vor_String key = joinedKey(arguments);
    const int row = keysAreSections ? findSectionRow(*table, key) : table->findRow(key);
    if (row < 0 || table->rows()[row].length() < 2) return std::nullopt;
    return table->rows()[row][1];
}

}  // namespace

FunctionResult getCell(FunctionArguments& arguments) {
    return lookUp(arguments, false);
}

FunctionResult getProfCell(FunctionArguments& arguments) {
    return lookUp(arguments, true);
}
