#include "spread/tw_sheet_settings.h"

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "platform/registry/registry.h"
#include "spread/vor_spread.h"

namespace {

constexpr int cornerCol = 0;
constexpr int cornerRow = 0;

// Every field with its key, in the order in which they are written.
template <class Settings, class Visit>
void eachField(Settings& settings, Visit&& visit) {
    visit("headerFile", settings.headerFile);
    visit("footerFile", settings.footerFile);
    visit("defaultFont", settings.defaultFont);
    visit("defaultTextHeight", settings.defaultTextHeight);
    visit("marginLeft", settings.marginLeft);
    visit("marginRight", settings.marginRight);
    visit("marginTop", settings.marginTop);
    visit("marginBottom", settings.marginBottom);
    visit("smartPrint", settings.smartPrint);
    visit("colors", settings.colors);
    visit("colHeader", settings.colHeader);
    visit("rowHeader", settings.rowHeader);
    visit("cellSeperators", settings.cellSeperators);
    visit("border", settings.border);
    visit("varNames", settings.varNames);
    visit("varValues", settings.varValues);
}

struct Reader {
    const TwPropList& list;
    void operator()(const char* key, Vor_String& text) const {
        if (auto value = list.getText(key)) text = *value;
    }
    void operator()(const char* key, int& number) const {
        if (const auto value = list.getInt(key)) number = *value;
    }
    void operator()(const char* key, bool& on) const {
        if (const auto value = list.getBool(key)) on = *value;
    }
    void operator()(const char* key, Vor_StringArray& texts) const {
        if (auto values = list.getTexts(key); !values.isEmpty()) texts = values;
    }
};

// A text loses the separator of the list: all of the list would be lost otherwise.
Vor_String withoutSeparator(const Vor_String& text) {
    return stripSymbols(text, TwPropList::separator, true, true);
}

struct Writer {
    TwPropList& list;
    void operator()(const char* key, const Vor_String& text) const {
        list.setText(key, withoutSeparator(text));
    }
    void operator()(const char* key, const int& number) const { list.setInt(key, number); }
    void operator()(const char* key, const bool& on) const { list.setBool(key, on); }
    void operator()(const char* key, const Vor_StringArray& texts) const {
        Vor_StringArray safe;
        for (const Vor_String& text : texts) safe.append(withoutSeparator(text));
        list.setTexts(key, safe);
    }
};

Vor_String settingsFolder() {
    Vor_String folder = gSettings.vorDir();
    folder.replaceSubString("/", "\\");
    return ensureEndBSlash(folder);
}

Vor_String settingsPath(const Vor_String& name) {
    return settingsFolder() + name + ".twd";
}

/// A header or footer may lie beside the settings file that names it, so that both can be moved.
/// It goes before one of the same name in the folder that a program was started in.
void formatBesideSettings(Vor_String& reference) {
    const bool isWholePath = reference.beginsWith("\\") || reference.hasSubString(":");
    const Vor_String beside = settingsFolder() + reference;
    if (!reference.isEmpty() && !isWholePath && files::exists(beside)) reference = beside;
}

}  // namespace

void TwSheetSettings::fromList(const TwPropList& list) {
    eachField(*this, Reader{list});
}

TwPropList TwSheetSettings::toList() const {
    TwPropList list;
    eachField(*this, Writer{list});
    return list;
}

bool TwSheetSettings::readFromFile(const Vor_String& name) {
    *this = {};
    loaded = true;
    std::string error;
    const std::optional<std::string> text = files::readWhole(settingsPath(name), error);
    if (!text) return false;
    TwPropList list;
    list.read(*text);
    fromList(list);
    formatBesideSettings(headerFile);
    formatBesideSettings(footerFile);
    return true;
}

bool TwSheetSettings::writeToFile(const Vor_String& name, std::string& error) const {
    return files::writeWhole(settingsPath(name), toList().write(), error);
}

bool TwSheetSettings::readFromSheet(const Vor_Spread& sheet) {
    *this = {};
    loaded = true;
    Vor_String tag;
    if (!sheet.isAttached() || !sheet.getCellTag(cornerCol, cornerRow, tag)) return false;
    TwPropList list;
    list.read(tag);
    fromList(list);
    return true;
}

bool TwSheetSettings::writeToSheet(Vor_Spread& sheet) const {
    return loaded && sheet.isAttached() && sheet.setCellTag(cornerCol, cornerRow, toList().write());
}

bool TwEditorRegistry::read() {
    constexpr size_t longest = 256;  // bytes
    const auto readText = [](const char* name, Vor_String& text) {
        const auto value = registry::read(registry::Root::machine, key, name);
        if (!value || value->size() > longest) return false;
        text = *value;
        return true;
    };
    const bool hasLanguage = readText("Language", language);
    const bool hasSettings = readText("Default Settings", defaultSettings);
    return hasLanguage && hasSettings;
}
