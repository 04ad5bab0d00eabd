#include "core_api/library_names.h"

#include <filesystem>
#include <utility>

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/paths.h"

namespace {

LibraryNameRule& rule() {
    static LibraryNameRule current;
    return current;
}

/// Absolute, links followed; empty when there is no such file or folder.
std::filesystem::path realPath(std::string_view inside) {
    std::error_code error;
    auto real = std::filesystem::canonical(paths::toMachine(inside), error);
    return error ? std::filesystem::path() : real;
}

bool isBelow(const std::filesystem::path& file, std::string_view folder) {
    const auto real = folder.empty() ? std::filesystem::path() : realPath(folder);
    if (real.empty()) return false;
    const auto relative = file.lexically_relative(real);
    return !relative.empty() && *relative.begin() != "..";
}

}  // namespace

void setLibraryNameRule(LibraryNameRule made) {
    rule() = std::move(made);
}

const LibraryNameRule& libraryNameRule() {
    return rule();
}

bool mayBeOwnPath(std::string_view name) {
    const bool isBare = name.find_first_of("\\/") == std::string_view::npos;
    switch (rule().outside) {
        case OutsideNames::refused:
            return name.starts_with('\\') || name.starts_with('/') || paths::isExact(name);
        case OutsideNames::allowed:
            return !isBare || paths::isExact(name);
        default:
            return true;
    }
}

std::optional<Vor_String> outsideRefusal(std::string_view path, std::string_view home) {
    if (rule().outside != OutsideNames::refused || paths::isExact(path)) return std::nullopt;
    const auto file = realPath(path);
    for (const std::string_view folder :
         {gSettings.libDir().view(), gSettings.vorDir().view(), home})
        if (isBelow(file, folder)) return std::nullopt;
    return "\"" + Vor_String(path) + "\" lies outside of the library: put the file into it, or " +
           rule().advice;
}
