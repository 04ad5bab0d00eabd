#include "workbench/sheet/sheet_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "workbench/window/dialog_font.h"
#include "workbench/window/typed_text.h"

SheetClipboard& SheetClipboard::shared() {
    static SheetClipboard clipboard;
    return clipboard;
}

bool SheetClipboard::copy(SheetSpread& from) {
    m_cutFrom = nullptr;
    m_clip = from.editor().copy(from.chosen());
    if (!m_clip) return false;
    QGuiApplication::clipboard()->setText(toQt(m_clip->text()));
    return true;
}

bool SheetClipboard::cut(SheetSpread& from) {
    if (!copy(from)) return false;
    m_cutFrom = &from;
    return true;
}

bool SheetClipboard::paste(SheetSpread& to, editor::PasteWhat what, QString& why) {
    QString text = QGuiApplication::clipboard()->text();
    text.replace("\r\n", "\n");
    const control::Block target = to.chosen();
    const bool isOwn = m_clip && m_clip->isOn(fromQt(text));
    const bool isCutHere = isOwn && std::exchange(m_cutFrom, nullptr) == &to;
    if (isCutHere && to.grid().copyText(m_clip->source()) == m_clip->text())
        return to.editor().pasteCut(*m_clip, target.col1, target.row1);
    if (isOwn) return to.editor().paste(*m_clip, target, what);
    if (text.isEmpty() || what == editor::PasteWhat::formats) return true;
    why = refusalOf(text);
    return why.isEmpty() && to.editor().pasteText(fromQt(text), target);
}
