// A registry of the test's own, so that dialogs keep their sizes in no user's.
#pragma once

#include <stdlib.h>

#include "support/temporary_folder.h"

class OwnSettings {
  public:
    OwnSettings() { ::setenv("XDG_CONFIG_HOME", m_folder.path().c_str(), 1); }
    ~OwnSettings() { ::unsetenv("XDG_CONFIG_HOME"); }

    const TemporaryFolder& folder() const { return m_folder; }

  private:
    TemporaryFolder m_folder;
};
