// The pane that shows what the module prints, and the host that stands in for a CAD program.
#pragma once

#include <QPlainTextEdit>

#include "platform/host/host.h"
#include "platform/window/wnd.h"

class CommandPane : public QPlainTextEdit {
  public:
    explicit CommandPane(QWidget* parent = nullptr);
    /// Windows-1252; lines end in "\n".
    void print(std::string_view text);
};

/// Prints on the pane. `window` is what the module's dialogs take as their parent, `widget` the
/// widget that stands for it; all borrowed.
class WorkbenchHost : public Host, private DynamicLinker, private CommandStack {
  public:
    WorkbenchHost(CommandPane& pane, CWnd& window, QWidget& widget)
        : m_pane(pane), m_window(window), m_widget(widget) {}

    void print(std::string_view text) override { m_pane.print(text); }
    void focusMainWindow() override;
    CWnd* mainWindow() override { return &m_window; }
    DynamicLinker* dynamicLinker() override { return this; }
    CommandStack* commandStack() override { return this; }

  private:
    // Nothing is locked here, every window may have many pages, and no command has a group.
    bool unlockApplication(void* application) override { return application != nullptr; }
    bool registerAppMDIAware(void* application) override { return application != nullptr; }
    bool removeGroup(std::string_view) override { return false; }

    CommandPane& m_pane;
    CWnd& m_window;
    QWidget& m_widget;
};
