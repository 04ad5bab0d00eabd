#include "platform/host/host.h"

#include <cstdarg>
#include <cstdio>
#include <string>

#include "platform/encodings.h"
#include "platform/readable_paths.h"
#include "platform/terminal_text.h"

namespace {

Host* installedHost = nullptr;

// Never destroyed: what prints in the destructor of a global still finds it.
Host& defaultHost() {
    static Host& host = *new Host;
    return host;
}

}  // namespace

Host& Host::current() {
    return installedHost ? *installedHost : defaultHost();
}

Host* Host::install(Host* host) {
    Host* before = installedHost;
    installedHost = host;
    return before;
}

void Host::print(std::string_view text) {
    const std::string utf8 = terminalText(encodings::toUtf8(paths::readable(text)));
    std::fwrite(utf8.data(), 1, utf8.size(), stderr);
}

void acutPrint(std::string_view text) {
    Host::current().print(text);
}

void acutPrintf(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    char buffer[512];
    const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    if (length >= 0 && static_cast<size_t>(length) < sizeof buffer) {
        acutPrint({buffer, static_cast<size_t>(length)});
    } else if (length >= 0) {
        std::string text(static_cast<size_t>(length), '\0');
        std::vsnprintf(text.data(), text.size() + 1, format, again);
        acutPrint(text);
    }
    va_end(again);
    va_end(arguments);
}

void acedPostCommandPrompt() {
    Host::current().postCommandPrompt();
}
