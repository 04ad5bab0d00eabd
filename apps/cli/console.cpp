#include "console.h"

#include <cstdio>
#include <string>

#include "io/texts.h"
#include "io/typed_paths.h"

namespace cli {

namespace {

void writeError(const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

void complain(std::string_view message) {
    writeError("vormant: " + shortened(std::string(message)) + "\n");
}

void complainAt(std::string_view file, long long line, std::string_view message) {
    std::string text = "vormant: " + std::string(file) + ":";
    if (line > 0) text += std::to_string(line) + ":";
    writeError(text + " " + shortened(std::string(message)) + "\n");
}

void complainText(std::string_view windows1252) {
    complain(shownMessage(windows1252));
}

void complainLines(const std::vector<std::string>& windows1252) {
    std::string message;
    for (const auto& line : windows1252) {
        if (!message.empty()) message += "\n  ";
        message += line;
    }
    complainText(message);
}

}  // namespace cli
