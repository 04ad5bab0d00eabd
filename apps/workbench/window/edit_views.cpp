// Fields to type into, of one line or several.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "platform/window/controls.h"
#include "workbench/window/control_views.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/qt_window_system.h"
#include "workbench/window/typed_text.h"

namespace {

class LineView : public ViewOf<CEdit, QLineEdit> {
  public:
    LineView(QtWindowSystem& system, CEdit& window, QLineEdit* line)
        : ViewOf(system, window, line) {
        connect(line, &QLineEdit::textEdited, this, [this](const QString& text) { type(text); });
        connect(line, &QLineEdit::selectionChanged, this, [this] { takeSelectionOver(); });
        connect(line, &QLineEdit::cursorPositionChanged, this, [this] { takeSelectionOver(); });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::text) showText();
        if (change == WindowChange::selection) showSelection();
        if (change == WindowChange::style) {
            shown().setReadOnly(model().hasStyle(styleReadOnly));
            shown().setAlignment(model().hasStyle(styleRight) ? Qt::AlignRight : Qt::AlignLeft);
        }
        WindowView::apply(change);
    }
    void applyOwnChanges() override { showText(); }

  private:
    void showText() {
        const QString text = toQt(model().text());
        if (text != shown().text()) shown().setText(text);
    }
    void showSelection() {
        const int start = model().selectionStart();
        const int length = model().selectionEnd() - start;
        if (length > 0)
            shown().setSelection(start, length);
        else
            shown().setCursorPosition(start);
    }
    void type(const QString& text) {
        if (isFollowing() || !window()) return;
        if (!canBeKept(text)) {
            const auto length = static_cast<int>(text.size() - toQt(model().text()).size());
            const int before = shown().cursorPosition() - length;
            refuseTyped(shown(), text);
            follow(WindowChange::text);
            shown().setCursorPosition(before);
            return;
        }
        act([&] { model().userTypes(fromQt(text)); });
        takeSelectionOver();
    }
    void takeSelectionOver() {
        if (isFollowing() || !window()) return;
        const bool hasSelection = shown().hasSelectedText();
        const int start = hasSelection ? shown().selectionStart() : shown().cursorPosition();
        model().userSelects(start, hasSelection ? shown().selectionEnd() : start);
    }
};

class TextView : public ViewOf<CEdit, QPlainTextEdit> {
  public:
    TextView(QtWindowSystem& system, CEdit& window, QPlainTextEdit* edit)
        : ViewOf(system, window, edit) {
        edit->setTabChangesFocus(true);
        connect(edit, &QPlainTextEdit::textChanged, this, [this] { type(); });
        connect(edit, &QPlainTextEdit::cursorPositionChanged, this,
                [this] { takeSelectionOver(); });
        connect(edit, &QPlainTextEdit::selectionChanged, this, [this] { takeSelectionOver(); });
    }

  protected:
    void apply(WindowChange change) override {
        if (change == WindowChange::text) showText();
        if (change == WindowChange::selection) showSelection();
        if (change == WindowChange::style) shown().setReadOnly(model().hasStyle(styleReadOnly));
        WindowView::apply(change);
    }
    void applyOwnChanges() override { showText(); }

  private:
    void showText() {
        QString text = toQt(model().text());
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (text != shown().toPlainText()) shown().setPlainText(text);
    }
    void showSelection() {
        QTextCursor cursor = shown().textCursor();
        cursor.setPosition(std::min(model().selectionStart(), endOfText()));
        cursor.setPosition(std::min(model().selectionEnd(), endOfText()), QTextCursor::KeepAnchor);
        shown().setTextCursor(cursor);
    }
    int endOfText() const { return shown().document()->characterCount() - 1; }
    void type() {
        if (isFollowing() || !window()) return;
        const QString text = shown().toPlainText();
        if (canBeKept(text)) {
            act([&] { model().userTypes(fromQt(text)); });
            takeSelectionOver();
        } else {
            refuseTyped(shown(), text);
            follow(WindowChange::text);
        }
    }
    void takeSelectionOver() {
        if (isFollowing() || !window()) return;
        const QTextCursor cursor = shown().textCursor();
        model().userSelects(cursor.selectionStart(), cursor.selectionEnd());
    }
};

}  // namespace

WindowView* makeEditView(QtWindowSystem& system, CEdit& edit, QWidget* parent) {
    if (edit.hasStyle(styleMultiline))
        return new TextView(system, edit, new QPlainTextEdit(parent));
    return new LineView(system, edit, new QLineEdit(parent));
}
