// A folder of its own for one test, gone afterwards.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "vormant-XXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// The inside path of a file or folder in it; `name` with backslashes.
    std::string inside(std::string_view name = {}) const {
        std::string path = m_path.string() + "\\" + std::string(name);
        for (char& c : path) c = c == '/' ? '\\' : c;
        return path;
    }
    /// Writes a file, with the folders above it; `name` with slashes. Its inside path.
    std::string write(const std::string& name, std::string_view content) const {
        std::filesystem::create_directories((m_path / name).parent_path());
        std::ofstream(m_path / name, std::ios::binary) << content;
        return inside(name);
    }
    std::string read(const std::string& name) const {
        std::ifstream file(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    int fileCount() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(m_path), {}));
    }

  private:
    std::filesystem::path m_path;
};
