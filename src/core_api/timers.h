// Where time goes. Each phase of a standards run is bracketed by a named global Vor_Timer; while
// profiling is off, as it is unless asked for, a bracket costs one test of a flag and no clock is
// read. Timers have no effect on results.
#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

#include "core_api/text/vor_string.h"

/// Whether timers run. Switched between runs, never inside a bracket.
extern VORMANT_API bool gProfiling;

class VORMANT_API Vor_Timer {
  public:
    /// `name` must live as long as the timer: a literal. Timers are globals and report in the
    /// order of their making.
    explicit Vor_Timer(const char* name);
    ~Vor_Timer();
    Vor_Timer(const Vor_Timer&) = delete;
    Vor_Timer& operator=(const Vor_Timer&) = delete;

    /// Brackets may be nested in themselves (a child standard runs inside its parent's run); the
    /// time of the outermost counts.
    void start() {
        if (gProfiling) startClock();
    }
    void end() {
        if (gProfiling) endClock();
    }
    void reset();

    const char* name() const { return m_name; }
    double seconds() const { return std::chrono::duration<double>(m_total).count(); }
    /// Brackets closed, nested ones included.
    std::int64_t count() const { return m_count; }

  private:
    using Clock = std::chrono::steady_clock;

    void startClock();
    void endClock();

    const char* m_name;
    Clock::time_point m_started{};
    Clock::duration m_total{};
    std::int64_t m_count = 0;
    int m_depth = 0;
};

/// Brackets a scope.
class Vor_FunctionTimer {
  public:
    explicit Vor_FunctionTimer(Vor_Timer& timer) : m_timer(timer) { m_timer.start(); }
    ~Vor_FunctionTimer() { m_timer.end(); }
    Vor_FunctionTimer(const Vor_FunctionTimer&) = delete;
    Vor_FunctionTimer& operator=(const Vor_FunctionTimer&) = delete;

  private:
    Vor_Timer& m_timer;
};

/// All timers that live, in the order of their making.
VORMANT_API std::vector<Vor_Timer*> allTimers();
VORMANT_API void resetTimers();
/// One line for each timer that counted: name, number of brackets, milliseconds in all,
/// microseconds each.
VORMANT_API Vor_String timerReport();
