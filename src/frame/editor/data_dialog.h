// The editor of named values over its own copy of a data object: what a starter runs until, or
// unless, the object has a dialog made for it.
#pragma once

#include "frame/editor/descriptions.h"
#include "frame/editor/named_values_dialog.h"
#include "platform/host/host.h"

template <class Data, const EditorKind& kind>
class DataDialog : public NamedValuesDialog {
  public:
    DataDialog() : NamedValuesDialog(kind, Host::current().mainWindow()) {}

    Data& data() { return m_data; }

  protected:
    NamedValues describeData() override { return describe(m_data); }
    void rememberData() override { m_before = m_data; }
    void putDataBack() override { m_data = m_before; }

  private:
    Data m_data;
    Data m_before;
};
