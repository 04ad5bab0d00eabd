#include "cli/standards/library.h"

#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/suggestion.h"
#include "cli/io/typed_paths.h"
#include "core_api/program_data.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "platform/files.h"
#include "runs/library_standards.h"

namespace cli {

namespace {

std::string shownName(const Vor_String& nameInside) {
    std::string name;
    exchange::appendUtf8(name, nameInside);
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

std::string lines(const std::vector<StandardName>& standards) {
    std::string text;
    for (const auto& standard : standards) text += "\n  " + standard.name;
    return text;
}

void reportWhatThereIs(const std::string& typed, const std::vector<StandardName>& standards,
                       const std::vector<StandardName>& matches) {
    const std::string missing = "there is no standard \"" + typed + "\"";
    if (gSettings.libDir().isEmpty())
        return complain(missing +
                        "; name a file, or the library with --library or VORMANT_LIBRARY");
    if (matches.size() > 1)
        return complain("several standards are called \"" + typed + "\":" + lines(matches));
    if (standards.empty())
        return complain(missing + "; there is none in " + shownPath(gSettings.libDir()) +
                        ": check that it is the library, and its permissions");
    std::vector<std::string> words;
    for (const auto& standard : standards) {
        words.push_back(standard.name);
        words.push_back(standard.name.substr(standard.name.rfind('/') + 1));
    }
    const std::string hint = didYouMean(nearest(typed, words));
    complain(missing + (hint.empty() ? "; the" : hint + " The") +
             " library has:" + lines(standards));
}

}  // namespace

Vor_String StandardName::mappingName() const {
    return runs::nameInLibrary(path).value_or(path);
}

bool openLibrary(const std::string& folder) {
    const std::string chosen = folder.empty() ? programData("library").value_or("") : folder;
    if (chosen.empty()) return true;
    const auto inside = insidePath(chosen);
    if (!inside) return false;
    if (!files::isFolder(*inside)) {
        complainAt(chosen, 0,
                   "is no folder; the library is a folder that holds \"Connection "
                   "Standards\"");
        return false;
    }
    gSettings.setLibDir(*inside);
    return true;
}

std::vector<StandardName> allStandards() {
    std::vector<StandardName> standards;
    for (const auto& [name, path] : runs::libraryStandards())
        standards.push_back({shownName(name), path});
    return standards;
}

std::optional<StandardName> findStandard(const std::string& typed) {
    const auto inside = insidePath(typed);
    if (!inside) return std::nullopt;
    if (files::exists(*inside)) {
        const auto name = runs::nameInLibrary(*inside);
        return StandardName{name ? shownName(*name) : typed, *inside};
    }
    if (files::isFolder(*inside)) {
        complainAt(typed, 0, "is a folder; name a standard or a file");
        return std::nullopt;
    }
    const auto standards = allStandards();
    std::vector<StandardName> matches;
    for (const auto& standard : standards) {
        const Vor_String name = standard.mappingName();
        if (name.equal(*inside)) return standard;
        if (getFileName(name).equal(*inside)) matches.push_back(standard);
    }
    if (matches.size() == 1) return matches.front();
    reportWhatThereIs(typed, standards, matches);
    return std::nullopt;
}

}  // namespace cli
