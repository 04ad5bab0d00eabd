#include "workbench/shell/workbench_settings.h"

#include <algorithm>
#include <cstdlib>

#include "core_api/library_names.h"
#include "platform/registry/registry.h"

namespace {

constexpr const char* key = "Software\\Vormant\\Workbench";

std::string read(const std::string& name) {
    return registry::read(registry::Root::user, key, name).value_or("");
}

int readNumber(const std::string& name, int least, int most, int otherwise) {
    const std::string text = read(name);
    const int number = std::atoi(text.c_str());
    return text.empty() || number < least || number > most ? otherwise : number;
}

std::string recentName(int index) {
    return "Recent" + std::to_string(index);
}

}  // namespace

WorkbenchSettings WorkbenchSettings::load() {
    WorkbenchSettings settings;
    settings.library = read("Library");
    settings.author = read("Author");
    settings.language = static_cast<Language>(readNumber("Language", 0, languageCount - 1, 0));
    settings.diagnostics = readNumber("Diagnostics", 0, 1, 1) == 1;
    settings.outside = readNumber("Outside", 0, 1, 0) == 1;
    settings.scalePercent = readNumber("Scale", 100, 200, 100);
    for (int i = 0; i < mostRecent; ++i)
        if (const std::string folder = read(recentName(i)); !folder.empty())
            settings.recent.push_back(folder);
    return settings;
}

bool WorkbenchSettings::save(std::string& error) const {
    const auto write = [&](const std::string& name, const std::string& value) {
        return registry::write(registry::Root::user, key, name, value, error);
    };
    for (int i = 0; i < mostRecent; ++i) {
        const auto at = static_cast<size_t>(i);
        if (!write(recentName(i), at < recent.size() ? recent[at] : "")) return false;
    }
    return write("Library", library) && write("Author", author) &&
           write("Language", std::to_string(static_cast<int>(language))) &&
           write("Diagnostics", diagnostics ? "1" : "0") && write("Outside", outside ? "1" : "0") &&
           write("Scale", std::to_string(scalePercent));
}

void WorkbenchSettings::noteLibrary(const std::string& folder) {
    library = folder;
    std::erase(recent, folder);
    recent.insert(recent.begin(), folder);
    if (recent.size() > static_cast<size_t>(mostRecent)) recent.resize(mostRecent);
}

void WorkbenchSettings::apply() const {
    gSettings.current().language = sessionLanguage.value_or(language);
    gSettings.current().diagnostics = diagnostics;
    applyNameRule();
}

void WorkbenchSettings::applyNameRule() const {
    setLibraryNameRule({outside ? OutsideNames::allowed : OutsideNames::refused,
                        "allow it in the settings of the workbench"});
}
