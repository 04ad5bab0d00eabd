#include "workbench/window/dialog_navigation.h"

#include <algorithm>
#include <vector>

#include "platform/window/dialog.h"

namespace {

void collect(const CDialog& dialog, std::vector<CWnd*>& stops) {
    CWnd* const first = dialog.nextTabItem(nullptr, false);
    for (CWnd* stop = first; stop;) {
        // A dialog that is no page lies over this one in a frame of its own.
        const auto* inner = dynamic_cast<const CDialog*>(stop);
        if (!inner) stops.push_back(stop);
        if (inner && inner->isPage()) collect(*inner, stops);
        stop = dialog.nextTabItem(stop, false);
        if (stop == first) break;
    }
}

}  // namespace

CWnd* nextInTabOrder(CDialog& dialog, const CWnd* from, bool backwards) {
    std::vector<CWnd*> stops;
    collect(dialog, stops);
    if (stops.empty()) return nullptr;
    const auto found = std::find(stops.begin(), stops.end(), from);
    if (found == stops.end()) return backwards ? stops.back() : stops.front();
    if (backwards) return found == stops.begin() ? stops.back() : *(found - 1);
    return found + 1 == stops.end() ? stops.front() : *(found + 1);
}

CButton* defaultButton(const CDialog& dialog) {
    for (CWnd* child : dialog.children()) {
        auto* button = dynamic_cast<CButton*>(child);
        if (button && button->hasStyle(styleDefault)) return button;
    }
    return dialog.itemAs<CButton>(IDOK);
}
