#include "cli/bill/print_document.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "platform/paths.h"

namespace cli {

namespace {

constexpr const char* programName = "vormant-workbench";

bool isProgram(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

std::optional<std::string> inPath() {
    const char* all = std::getenv("PATH");
    std::string_view folders = all ? all : "";
    while (!folders.empty()) {
        const size_t end = std::min(folders.find(':'), folders.size());
        const auto program = std::filesystem::path(folders.substr(0, end)) / programName;
        if (end > 0 && isProgram(program)) return program.string();
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return std::nullopt;
}

/// The program's exit code; -1 when it cannot be started or was killed.
int call(const std::string& program, const std::array<std::string, 3>& arguments) {
    std::string name = programName;
    std::array<std::string, 3> copies = arguments;
    std::array<char*, 5> argv{name.data(), copies[0].data(), copies[1].data(), copies[2].data(),
                              nullptr};
    pid_t child = 0;
    if (::posix_spawn(&child, program.c_str(), nullptr, nullptr, argv.data(), environ) != 0)
        return -1;
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

std::optional<std::string> findPrinter() {
    if (const char* given = std::getenv("VORMANT_WORKBENCH")) {
        if (isProgram(given)) return given;
        complainAt(given, 0, "is no program; VORMANT_WORKBENCH has to name vormant-workbench");
        return std::nullopt;
    }
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error);
    if (const auto beside = own.parent_path() / programName; !error && isProgram(beside))
        return beside.string();
    if (const auto found = inPath()) return found;
    complain(
        "PDF files are printed by vormant-workbench, which is not installed here; install it, or "
        "write .xlsx or .sss");
    return std::nullopt;
}

bool printDocument(const Vor_String& document, const Vor_String& pdf) {
    const auto program = findPrinter();
    if (!program) return false;
    const int code = call(*program, {"--print", paths::toMachine(document), paths::toMachine(pdf)});
    if (code == 0) return true;
    complainAt(shownPath(pdf), 0, "was not printed by vormant-workbench");
    return false;
}

}  // namespace cli
