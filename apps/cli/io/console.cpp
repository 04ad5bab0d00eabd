#include "cli/io/console.h"

#include <cstdio>
#include <string>

#include "cli/io/typed_paths.h"
#include "exchange/texts.h"
#include "platform/terminal_text.h"

namespace cli {

namespace {

void writeError(const std::string& line) {
    const std::string text = terminalText(exchange::shortened(line));
    std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace

void complain(std::string_view message) {
    writeError("vormant: " + std::string(message) + "\n");
}

void complainAt(std::string_view file, long long line, std::string_view message) {
    std::string text = "vormant: " + std::string(file) + ":";
    if (line > 0) text += std::to_string(line) + ":";
    writeError(text + " " + std::string(message) + "\n");
}

void complainText(std::string_view windows1252) {
    complain(shownMessage(windows1252));
}

void complainAboutLines(long long failed, long long lines) {
    if (failed > 0)
        complain(std::to_string(failed) + " of " + std::to_string(lines) +
                 " lines failed; see their error records");
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
