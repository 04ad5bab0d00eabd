// The one rule for a window that is ended from inside its own call-back: while it, or a window
// below it, handles a message it is busy, and a busy window goes when the message has been handled.
// Whoever hands a message to a window opens a MessageScope for it; nothing else has to be done.
//
// CWnd::destroy() obeys the rule by itself. Owners that delete the object do it with retire(), or
// wait until isBusy() is false.
#pragma once

#include <memory>

#include "platform/export.h"

class CWnd;

/// A message that `window` handles, for the length of the handling. At the end of a scope the
/// windows that waited for it are destroyed, and retired objects deleted: touch none afterwards.
class VORMANT_API MessageScope {
  public:
    explicit MessageScope(const CWnd& window);
    ~MessageScope();
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

  private:
    friend class CWnd;
    const CWnd* m_window;  // null when it was deleted all the same
    MessageScope* m_outer;
};

/// Destroys the window and deletes its object: at once, or when it is no longer busy. Null is
/// accepted.
VORMANT_API void retire(std::unique_ptr<CWnd> window);
