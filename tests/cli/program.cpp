#include "cli/program.h"
#include "test_folders.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace program {

namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

int wait(pid_t child) {
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

Result run(const std::vector<std::string>& arguments, std::string_view input) {
    return run({.program = VORMANT_PROGRAM, .folder = ".", .environment = {}}, arguments, input);
}

Result run(const Surroundings& surroundings, const std::vector<std::string>& arguments,
           std::string_view input) {
    const Folder streams;
    const std::string in = streams.write("in", input);
    const std::string out = streams / "out", err = streams / "err";

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT, 0600);

    posix_spawn_file_actions_addchdir_np(&actions, surroundings.folder.c_str());

    std::string name = std::filesystem::path(surroundings.program).filename();
    std::vector<char*> argv{name.data()};
    for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    // The first of two equal names counts.
    std::vector<char*> environment;
    for (const auto& each : surroundings.environment)
        environment.push_back(const_cast<char*>(each.c_str()));
    for (char** each = environ; *each; ++each) environment.push_back(*each);
    environment.push_back(nullptr);
    pid_t child = 0;
    EXPECT_EQ(posix_spawn(&child, surroundings.program.c_str(), &actions, nullptr, argv.data(),
                          environment.data()),
              0);
    posix_spawn_file_actions_destroy(&actions);
    const int exitCode = wait(child);
    return {exitCode, contentOf(out), contentOf(err)};
}

Folder::Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "vormant-cli-XXXXXX").string();
    EXPECT_NE(::mkdtemp(name.data()), nullptr);
    m_path = name;
}

Folder::~Folder() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

std::string Folder::write(std::string_view name, std::string_view content) const {
    const auto path = m_path / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
}

std::string Folder::read(std::string_view name) const {
    return contentOf(m_path / name);
}

std::vector<std::string> Folder::names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_path))
        names.push_back(entry.path().lexically_relative(m_path).string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace program
