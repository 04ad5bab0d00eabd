#include "mapping/mapping_file.h"

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/cached_files.h"

namespace {

constexpr std::string_view header = "Mapping version 1.0";
constexpr char itemSeparator = '\xBF';
constexpr std::string_view variableSeparator = "\x83";

struct Item {
    Vor_String variable;
    Vor_String mapping;
};

std::optional<Vor_StringArray> readLines(std::string_view path, Vor_String* message) {
    Vor_StringArray lines;
    if (ObjectExportReadFile(path, lines, message) != Acad::eOk) return std::nullopt;
    if (!lines.isEmpty() && lines[0].hasSubString("Mapping") && lines[0].hasSubString("version"))
        lines.removeAt(0);
    return lines;
}

}  // namespace

Vor_String standardsFolder() {
    return gSettings.libDir() + "Connection Standards\\";
}

Vor_String mappingFilePath(const Vor_String& standardsName) {
    return changeExtension(standardsFolder() + standardsName + ".tws", "map");
}

std::shared_ptr<const Vor_StringArray> readMappingLines(const Vor_String& standardsName,
                                                        Vor_String* message) {
    static CachedFiles<Vor_StringArray> known;
    const Vor_String file = mappingFilePath(standardsName);
    Vor_String why;
    auto lines = known.get(file, [&](std::string_view path) { return readLines(path, &why); });
    if (lines || !message) return lines;
    std::string error = "the mapping file has changed just now; try again";
    if (why.isEmpty()) (void)files::readWhole(file, error);
    *message = why.isEmpty() ? Vor_String(error) : why;
    return lines;
}

bool writeMappingLines(const Vor_String& standardsName, Vor_StringArray lines,
                       Vor_String* message) {
    lines.insertAt(0, header);
    return ObjectExportWriteFile(mappingFilePath(standardsName), lines, message) == Acad::eOk;
}

Vor_String mappingLineKey(const Vor_String& line) {
    return getSubstrBefore(line, "=", false);
}

int findMappingLine(const Vor_StringArray& lines, const Vor_String& key) {
    for (int i = 0; i < lines.length(); ++i)
        if (mappingLineKey(lines[i]).equal(key, true)) return i;
    return -1;
}

Vor_String makeMappingLine(const Vor_String& key, const Vor_Array<TwObjectMap>& objects) {
    std::vector<Item> items;
    Vor_StringArray variables;
    for (const TwObjectMap& object : objects) {
        Item item;
        if (object.setMappingToStrs(item.mapping, item.variable) != Acad::eOk) continue;
        variables.append(item.variable);
        items.push_back(std::move(item));
    }
    const Vor_StringArray servesTwo = getDuplicates(variables);
    Vor_StringArray texts;
    for (const Item& item : items)
        if (!servesTwo.contains(item.variable) && !hasInvalidFileNameChars(item.variable))
            texts.append(item.variable + variableSeparator + item.mapping);
    return key + "=" + arrToStr(texts, std::string_view(&itemSeparator, 1));
}

std::optional<Vor_Array<TwObjectMap>> parseMappingLine(const Vor_String& line) {
    Vor_String key;
    Vor_String rest;
    if (!splitString(line, "=", key, rest)) return std::nullopt;
    Vor_Array<TwObjectMap> objects;
    for (const Vor_String& text : splitStringAtSymbol(rest, itemSeparator, true)) {
        Vor_String variable;
        Vor_String mapping;
        TwObjectMap object;
        if (splitString(text, variableSeparator, variable, mapping) &&
            object.getMappingFromStrs(variable, mapping) == Acad::eOk)
            objects.append(std::move(object));
    }
    return objects;
}
