// The one modeless constraints dialog. It confirms through its data's own call, since its caller
// has long gone on.
#pragma once

#include <memory>

#include "frame/delayed_ends.h"
#include "frame/starter_dialogs.h"

class ConstraintsWindow : public EditConstrDialog {
  public:
    void setModeless(bool isModeless) { m_isModeless = isModeless; }

  protected:
    void onTaken() override;
    void onOK() override;
    void onCancel() override;

  private:
    bool m_isModeless = false;
};

/// Holds the window while it is open.
class OpenConstraints {
  public:
    OpenConstraints();

    /// Opens it on a copy of `data`, unless it is open already. False when it cannot be made.
    bool start(const EditConstrData& data);
    /// A busy window goes a moment later; false then.
    bool end();
    /// Without a prompt: the library goes.
    void drop();

  private:
    std::unique_ptr<ConstraintsWindow> m_window;
    DelayedEnds m_delayed;
};

OpenConstraints& openConstraints();
