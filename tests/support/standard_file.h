// Standards for tests: documents written from the texts of their cells, in a library of their own.
#pragma once

#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "core_api/settings.h"
#include "support/temporary_folder.h"

/// A document with one list of texts a row; empty texts leave their cells empty.
inline std::string documentOf(const std::vector<std::vector<std::string>>& rows) {
    std::string cells;
    size_t columns = 1;
    int count = 0;
    for (size_t row = 0; row < rows.size(); ++row) {
        columns = std::max(columns, rows[row].size());
        for (size_t column = 0; column < rows[row].size(); ++column) {
            if (rows[row][column].empty()) continue;
            cells += static_cast<char>('A' + column) + std::to_string(row + 1) + " \"";
            for (const char c : rows[row][column]) cells += c == '\\' ? "\\\\" : std::string(1, c);
            cells += "\n";
            ++count;
        }
    }
    return "vormant-sheet 1\nsize " + std::to_string(columns) + " " + std::to_string(rows.size()) +
           "\ncells\n" + cells + "end " + std::to_string(count) + "\n";
}

/// `document`, as documentOf gives it, with formulas in cells that were empty: address and text
/// without "=". The sheet gets four columns and
/// forty rows.
inline std::string withFormulas(std::string document,
                                const std::vector<std::pair<std::string, std::string>>& formulas) {
    const size_t size = document.find("size ") + 5;
    document.replace(size, document.find('\n', size) - size, "4 40");
    const size_t end = document.rfind("end ");
    const size_t count = std::stoul(document.substr(end + 4)) + formulas.size();
    document.erase(end);
    for (const auto& [cell, formula] : formulas) document += cell + " =" + formula + "\n";
    return document + "end " + std::to_string(count) + "\n";
}

/// Sections in the usual order, each list of texts below its marker, one a row.
inline std::string standardOf(const std::vector<std::string>& inputs,
                              const std::vector<std::string>& outputs,
                              const std::vector<std::string>& locals,
                              const std::vector<std::string>& equations) {
    std::vector<std::vector<std::string>> rows;
    const auto add = [&](const char* marker, const std::vector<std::string>& texts) {
        rows.push_back({marker});
        for (const std::string& text : texts) rows.push_back({text});
    };
    add("Input", inputs);
    add("Output", outputs);
    add("Local", locals);
    add("Calc", equations);
    return documentOf(rows);
}

/// A library folder that the settings point to as long as it lives.
class TemporaryLibrary : public TemporaryFolder {
  public:
    TemporaryLibrary() : m_before(gSettings) { gSettings.setLibDir(inside()); }
    ~TemporaryLibrary() { gSettings = m_before; }

    /// Writes a standard; `name` with slashes, without extension. Its inside path. The file is
    /// made older than it is, as files just written are not kept in memory, and each differently.
    std::string writeStandard(const std::string& name, const std::string& document) {
        const std::string file = "Connection Standards/" + name + ".tws";
        std::filesystem::remove(path() / file);  // writing over it would wait for the disk
        const std::string inside = write(file, document);
        std::filesystem::last_write_time(path() / file, m_longAgo += std::chrono::seconds(1));
        return inside;
    }
    /// Makes the folders older than they are, so that what was found in them is remembered.
    void ageFolders() {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path()))
            if (entry.is_directory())
                std::filesystem::last_write_time(entry, m_longAgo += std::chrono::seconds(1));
        std::filesystem::last_write_time(path(), m_longAgo += std::chrono::seconds(1));
    }
    std::string writeData(const std::string& name, std::string_view content) const {
        return write("Connection Standards/Data/" + name, content);
    }

  private:
    Vor_Settings m_before;
    std::filesystem::file_time_type m_longAgo =
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(10);
};
