// Dialogs that were ended while they were busy: a moment later they are ended again, from a timer
// on the same thread.
#pragma once

#include <functional>
#include <vector>

class DelayedEnds {
  public:
    /// Milliseconds that a busy dialog stays.
    static constexpr int delay = 50;

    /// `end` ends the dialog in `slot`; one that is still busy then waits once more.
    explicit DelayedEnds(std::function<void(int slot)> end) : m_end(std::move(end)) {}
    ~DelayedEnds() { cancelAll(); }
    DelayedEnds(const DelayedEnds&) = delete;
    DelayedEnds& operator=(const DelayedEnds&) = delete;

    /// A dialog that is ended twice waits once.
    void endLater(int slot);
    /// The dialog has gone, and the next one in its slot must not be ended.
    void cancel(int slot);
    void cancelAll();

  private:
    struct Pending {
        int timer = 0;
        int slot = 0;
    };

    void onTimer(int timer);

    std::function<void(int)> m_end;
    std::vector<Pending> m_pending;
};
