#include "platform/window/resizer.h"

#include <algorithm>

namespace {

/// One direction: the ends of a control when its window grew by `growth`.
void stretch(int& first, int& last, bool isFirstHeld, bool isLastHeld, int growth) {
    if (!isLastHeld) return;
    last += growth;
    if (!isFirstHeld) first += growth;
    last = std::max(last, first);
}

}  // namespace

void Resizer::add(const CWnd& control, unsigned anchor, CSize size) {
    m_entries.push_back({control.id(), anchor, control.rect(), size});
}

void Resizer::apply(CWnd& window) const {
    const CSize now = window.rect().size();
    for (const Entry& entry : m_entries) {
        CWnd* control = window.item(entry.id);
        if (!control) continue;
        CRect rect = entry.rect;
        stretch(rect.left, rect.right, entry.anchor & anchorLeft, entry.anchor & anchorRight,
                now.width - entry.size.width);
        stretch(rect.top, rect.bottom, entry.anchor & anchorTop, entry.anchor & anchorBottom,
                now.height - entry.size.height);
        if (rect != control->rect()) control->move(rect);
    }
}
