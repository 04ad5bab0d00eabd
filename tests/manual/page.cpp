#include "manual/page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core_api/text/text_helpers.h"
#include "test_folders.h"

namespace manual {

std::string read(std::string_view path) {
    std::ifstream file(VORMANT_SOURCE_DIR "/" + std::string(path), std::ios::binary);
    EXPECT_TRUE(file) << path;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::string> pages() {
    std::vector<std::string> paths{"README.md", "library/README.md"};
    for (const auto& entry : std::filesystem::directory_iterator(VORMANT_SOURCE_DIR "/docs"))
        if (entry.path().extension() == ".md")
            paths.push_back("docs/" + entry.path().filename().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (const Vor_String& line : splitStringAtSymbol(text, '\n', false))
        lines.push_back(line.str());
    return lines;
}

std::vector<std::vector<std::string>> tableRows(std::string_view page) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : linesOf(page)) {
        if (!line.starts_with("| ") || !line.ends_with("|")) continue;
        auto& row = rows.emplace_back();
        for (const Vor_String& cell :
             splitStringAtSymbol(std::string_view(line).substr(1, line.size() - 2), '|', true))
            row.push_back(cell.str());
    }
    return rows;
}

Example exampleIn(const std::vector<std::string>& row) {
    const auto isCode = [](const std::string& cell, std::string_view start) {
        return cell.size() > 2 && cell.starts_with(start) && cell.ends_with('`');
    };
    for (size_t i = 0; i + 1 < row.size(); ++i)
        if (isCode(row[i], "`=") && isCode(row[i + 1], "`"))
            return {row[i].substr(2, row[i].size() - 3),
                    row[i + 1].substr(1, row[i + 1].size() - 2)};
    return {};
}

std::vector<Call> calls(std::string_view page) {
    std::vector<Call> calls;
    bool isConsole = false;
    for (const std::string& line : linesOf(page)) {
        if (line.starts_with("```")) {
            isConsole = line == "```console";
        } else if (isConsole && line.starts_with("$ ")) {
            calls.push_back({line.substr(2), {}});
        } else if (isConsole && !calls.empty()) {
            const bool goesOn = calls.back().output.empty() && calls.back().command.ends_with('\\');
            if (goesOn)
                calls.back().command += "\n" + line;
            else
                calls.back().output.push_back(line);
        }
    }
    return calls;
}

}  // namespace manual
