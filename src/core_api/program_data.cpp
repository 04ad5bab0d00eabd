#include "core_api/program_data.h"

#include <filesystem>

#include "core_api/settings.h"
#include "platform/paths.h"

std::optional<std::string> programData(std::string_view name) {
    // bin/vormant has it one folder up, apps/cli/vormant of a build tree two.
    constexpr int highest = 3;
    std::error_code error;
    std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return std::nullopt;
    for (int i = 0; i < highest; ++i) {
        folder = folder.parent_path();
        const auto data = folder / "share" / "vormant" / name;
        if (std::filesystem::is_directory(data, error)) return data.string();
    }
    return std::nullopt;
}

void useProgramData() {
    const auto data = programData("");
    const auto folder = data ? paths::toInside(*data) : std::nullopt;
    if (folder) gSettings.setVorDir(*folder);
}
