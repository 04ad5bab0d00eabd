// The one modeless constraints dialog. It confirms through its data's own call, since its caller
// has long gone on.
#pragma once

#include <memory>

#include "frame/starter_dialogs.h"

class ConstraintsWindow : public EditConstrDialog {
  public:
    ~ConstraintsWindow() override;
    void setModeless(bool isModeless) { m_isModeless = isModeless; }

  protected:
    void onTaken() override;
    void onOK() override;
    void onCancel() override;

  private:
    void endSoon();

    bool m_isModeless = false;
    int m_timer = 0;
};

/// The open one, or null.
std::unique_ptr<ConstraintsWindow>& constraintsWindow();
