// The one modeless constraints dialog. It confirms through its data's own call, since its caller
// has long gone on.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "frame/delayed_ends.h"
#include "frame/starter_dialogs.h"
#include "frame/starters.h"

class ConstraintsWindow : public EditConstrDialog {
  public:
    void setModeless(bool isModeless) { m_isModeless = isModeless; }
    /// Hears that the window goes, whatever made it; null for none.
    void whenDestroyed(std::function<void()> destroyed) { m_destroyed = std::move(destroyed); }
    bool isConfirmed() const { return m_isConfirmed; }

  protected:
    void onTaken() override;
    void onOK() override;
    void onCancel() override;
    void onDestroy() override;

  private:
    bool m_isModeless = false;
    bool m_isConfirmed = false;
    std::function<void()> m_destroyed;
};

/// Holds the window while it is open.
class OpenConstraints {
  public:
    OpenConstraints();

    /// Opens it on a copy of `data`, unless it is open already. False when it cannot be made.
    bool start(const EditConstrData& data, ConstraintsEnded ended);
    /// A busy window goes a moment later; false then.
    bool end();
    /// Without a prompt or a call of the host: the library goes.
    void drop();

  private:
    bool isOpen() const;
    /// As drop(), with the host's call.
    void close();

    std::unique_ptr<ConstraintsWindow> m_window;
    ConstraintsEnded m_ended;
    DelayedEnds m_delayed;
};

OpenConstraints& openConstraints();
