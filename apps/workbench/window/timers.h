// Timers that call until they are killed.
#pragma once

#include <functional>
#include <unordered_map>

class QTimer;

class Timers {
  public:
    using Call = std::function<void(int timer)>;
    ~Timers();
    /// A number that is never 0 and never used twice.
    int start(int milliseconds, Call call);
    /// Also from inside its own call. False when there is no such timer.
    bool kill(int timer);

  private:
    std::unordered_map<int, QTimer*> m_timers;
    int m_last = 0;
};
