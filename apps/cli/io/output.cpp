#include "cli/io/output.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "cli/io/console.h"
#include "platform/terminal_text.h"

namespace cli {

Output::Output() : m_isTerminal(::isatty(STDOUT_FILENO) == 1) {
    m_buffer.reserve(2 * flushAt);
}

void Output::flush() {
    if (m_isTerminal) m_buffer = terminalText(m_buffer);
    std::string_view left = m_buffer;
    while (!left.empty() && m_error == 0) {
        const ssize_t count = ::write(STDOUT_FILENO, left.data(), left.size());
        if (count >= 0)
            left.remove_prefix(static_cast<size_t>(count));
        else if (errno != EINTR)
            m_error = errno;
    }
    m_buffer.clear();
}

bool Output::close() {
    flush();
    if (m_error == 0) return true;
    complain(std::string("the output cannot be written: ") + std::strerror(m_error));
    return false;
}

}  // namespace cli
