#include "core_api/timers.h"

#include <algorithm>
#include <cstdio>

bool gProfiling = false;

namespace {

// Timers are globals of many files, so the list must be there before any of them.
std::vector<Vor_Timer*>& registry() {
    static std::vector<Vor_Timer*> timers;
    return timers;
}

}  // namespace

Vor_Timer::Vor_Timer(const char* name) : m_name(name) {
    registry().push_back(this);
}

Vor_Timer::~Vor_Timer() {
    std::erase(registry(), this);
}

void Vor_Timer::startClock() {
    if (m_depth++ == 0) m_started = Clock::now();
}

void Vor_Timer::endClock() {
    if (m_depth == 0) return;  // profiling was switched on inside the bracket
    ++m_count;
    if (--m_depth == 0) m_total += Clock::now() - m_started;
}

void Vor_Timer::reset() {
    m_total = {};
    m_count = 0;
    m_depth = 0;
}

std::vector<Vor_Timer*> allTimers() {
    return registry();
}

void resetTimers() {
    for (Vor_Timer* timer : registry()) timer->reset();
}

Vor_String timerReport() {
    Vor_String report;
    for (const Vor_Timer* timer : registry()) {
        if (timer->count() == 0) continue;
        char line[160];
        std::snprintf(line, sizeof line, "%-28s %9lld x %12.3f ms %10.3f us each\n", timer->name(),
                      static_cast<long long>(timer->count()), timer->seconds() * 1e3,
                      timer->seconds() * 1e6 / static_cast<double>(timer->count()));
        report += line;
    }
    return report;
}
