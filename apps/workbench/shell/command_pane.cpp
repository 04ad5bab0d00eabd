#include "workbench/shell/command_pane.h"

#include "workbench/window/ui_text.h"

namespace {

constexpr int mostLines = 10'000;

}  // namespace

CommandPane::CommandPane(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setMaximumBlockCount(mostLines);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setObjectName("commandPane");
}

void CommandPane::print(std::string_view text) {
    moveCursor(QTextCursor::End);
    insertPlainText(shownMessage(text));
    moveCursor(QTextCursor::End);
}

void WorkbenchHost::focusMainWindow() {
    m_widget.setFocus();
}
