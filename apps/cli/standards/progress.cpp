#include "cli/standards/progress.h"

#include <unistd.h>

#include <cstdio>

namespace cli {

// Results that scroll over the same screen are progress enough.
Progress::Progress(const exchange::LineSource& source)
    : m_source(source), m_isShown(isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO)) {}

Progress::~Progress() {
    if (m_hasText) std::fputs("\r\033[K", stderr);
}

void Progress::showIfDue() {
    const auto now = Clock::now();
    if (now < m_due) return;
    m_due = now + std::chrono::milliseconds(250);
    m_hasText = true;
    const double seconds = std::chrono::duration<double>(now - m_start).count();
    std::fprintf(stderr, "\r\033[K%lld lines, %.0f a second", m_lines,
                 static_cast<double>(m_lines) / seconds);
    if (m_source.size() > 0)
        std::fprintf(stderr, ", %.0f %%",
                     100.0 * static_cast<double>(m_source.consumed()) /
                         static_cast<double>(m_source.size()));
    std::fflush(stderr);
}

}  // namespace cli
