#include "platform/registry/registry.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <utility>

#include "platform/encodings.h"
#include "platform/escaped_text.h"
#include "platform/exclusive_change.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "platform/paths.h"

namespace registry {

namespace {

constexpr std::string_view header = "registry 1";
constexpr std::size_t sizeLimit = 4u << 20;

struct FoldedLess {
    using Name = std::pair<std::string, std::string>;
    bool operator()(const Name& a, const Name& b) const {
        const int order = encodings::compareFolded(a.first, b.first);
        return order != 0 ? order < 0 : encodings::compareFolded(a.second, b.second) < 0;
    }
};

using Values = std::map<std::pair<std::string, std::string>, std::string, FoldedLess>;

struct RootFile {
    std::string path;  // inside path, as it was when read
    std::optional<files::Stamp> stamp;
    Values values;
    std::string damage;  // why the file cannot be used; empty when it can
};

std::optional<std::string> configurationFolder() {
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    if (configured && configured[0] == '/') return std::string(configured) + "/vormant/";
    const char* home = std::getenv("HOME");
    if (home && home[0] == '/') return std::string(home) + "/.config/vormant/";
    return std::nullopt;
}

std::optional<std::string> pathOf(Root root) {
    const auto folder = configurationFolder();
    if (!folder) return std::nullopt;
    return paths::toInside(*folder + (root == Root::user ? "user" : "machine") + ".registry");
}

bool parse(std::string_view text, const std::string& path, Values& values, std::string& damage) {
    int number = 1;
    const auto fail = [&](const char* what) {
        damage = path + ":" + std::to_string(number) + ": " + what;
        return false;
    };
    if (takeLine(text) != header) return fail("this is no settings file of version 1; remove it");
    while (!text.empty()) {
        ++number;
        std::string_view line = takeLine(text);
        const bool hasParts = std::count(line.begin(), line.end(), '\t') == 2;
        auto key = unescaped(takePart(line, '\t'));
        auto name = unescaped(takePart(line, '\t'));
        auto value = unescaped(line);
        if (!hasParts || !key || !name || !value || key->empty())
            return fail("this is no key, name and value separated by tabs; remove the line");
        values[{std::move(*key), std::move(*name)}] = std::move(*value);
    }
    return true;
}

void load(RootFile& file) {
    file.values.clear();
    file.damage.clear();
    if (!file.stamp) return;  // no file yet
    const auto text = files::readWhole(file.path, file.damage, sizeLimit);
    Values values;
    if (text && parse(*text, file.path, values, file.damage)) file.values = std::move(values);
    if (!file.damage.empty()) acutPrint(file.damage + "\n");
}

enum class Read { ifChanged, anew };

// The root's file in its present state. Null when there is no place for it.
RootFile* current(Root root, Read read = Read::ifChanged) {
    static std::array<RootFile, 2> rootFiles;
    const auto path = pathOf(root);
    if (!path) return nullptr;
    RootFile& file = rootFiles[static_cast<std::size_t>(root)];
    const auto stamp = files::stampOf(*path);
    // What is written comes from what is read: no stamp is fine enough for that.
    if (read == Read::anew || file.path != *path || file.stamp != stamp) {
        file.path = *path;
        file.stamp = stamp;
        load(file);
    }
    return &file;
}

bool save(RootFile& file, Values values, std::string& error) {
    std::string text(header);
    text += '\n';
    for (const auto& [name, value] : values) {
        appendEscaped(text, name.first);
        text += '\t';
        appendEscaped(text, name.second);
        text += '\t';
        appendEscaped(text, value);
        text += '\n';
    }
    if (!files::writeWhole(file.path, text, error)) return false;
    file.values = std::move(values);
    file.stamp = files::stampOf(file.path);
    return true;
}

bool change(Root root, std::string_view key, std::string_view name, const std::string* value,
            std::string& error) {
    const auto path = pathOf(root);
    if (!path) {
        error = "cannot keep settings: there is no configuration folder; set XDG_CONFIG_HOME";
        return false;
    }
    const auto exclusive = files::ExclusiveChange::take(*path, error);
    if (!exclusive) return false;
    RootFile* file = current(root, Read::anew);
    if (!file->damage.empty()) {
        error = file->damage;
        return false;
    }
    Values values = file->values;
    const std::pair<std::string, std::string> place{key, name};
    const auto found = values.find(place);
    if (value ? found != values.end() && found->second == *value : found == values.end())
        return true;  // nothing to change
    if (value)
        values[place] = *value;
    else
        values.erase(found);
    return save(*file, std::move(values), error);
}

}  // namespace

std::optional<std::string> read(Root root, std::string_view key, std::string_view name) {
    const RootFile* file = current(root);
    if (!file) return std::nullopt;
    const auto found = file->values.find({std::string(key), std::string(name)});
    return found == file->values.end() ? std::nullopt : std::optional(found->second);
}

bool write(Root root, std::string_view key, std::string_view name, std::string_view value,
           std::string& error) {
    const std::string text(value);
    return change(root, key, name, &text, error);
}

bool remove(Root root, std::string_view key, std::string_view name, std::string& error) {
    return change(root, key, name, nullptr, error);
}

}  // namespace registry
