// Calls the built program as a user would and looks at all that comes back.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace program {

struct Result {
    int exitCode = -1;  ///< -1 when the program was killed by a signal
    std::string out;
    std::string err;
};

/// Runs the program with `arguments` and `input` as its standard input.
Result run(const std::vector<std::string>& arguments, std::string_view input = {});

/// How a program is called, where that matters.
struct Surroundings {
    std::string program;                   ///< its file
    std::string folder = ".";              ///< that it is started in
    std::vector<std::string> environment;  ///< "NAME=value", added to that of the tests
};
Result run(const Surroundings& surroundings, const std::vector<std::string>& arguments,
           std::string_view input = {});

/// An empty folder that goes when the test is over.
class Folder {
  public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::string operator/(std::string_view name) const { return (m_path / name).string(); }
    /// Writes a file, folders above it too, and gives its path.
    std::string write(std::string_view name, std::string_view content) const;
    /// What a file holds; a test fails when it is not there.
    std::string read(std::string_view name) const;
    /// Names of everything in the folder, for "nothing was left behind".
    std::vector<std::string> names() const;

  private:
    std::filesystem::path m_path;
};

}  // namespace program
