// Tells a person at a terminal how far a long batch has come. Silent elsewhere.
#pragma once

#include <chrono>

#include "exchange/line_source.h"

namespace cli {

class Progress {
  public:
    explicit Progress(const exchange::LineSource& source);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more line is done.
    void step() {
        if (m_isShown && (++m_lines & 127) == 0) showIfDue();
    }

  private:
    using Clock = std::chrono::steady_clock;
    void showIfDue();

    const exchange::LineSource& m_source;
    bool m_isShown;
    bool m_hasText = false;
    long long m_lines = 0;
    Clock::time_point m_start = Clock::now();
    Clock::time_point m_due = m_start + std::chrono::seconds(1);
};

}  // namespace cli
