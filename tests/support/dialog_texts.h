// Whether the words of a dialog fit into its controls, in every language.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "core_api/settings.h"
#include "platform/window/dialog.h"

/// Dialog units that the text of a control needs on one line. A character is four wide; an "&"
/// underlines the one behind it.
inline int neededWidth(const ControlTemplate& control) {
    const std::string text = control.text.text();
    const auto characters =
        static_cast<int>(text.size() - std::count(text.begin(), text.end(), '&'));
    switch (control.kind) {
        case Control::button:
            return characters * 4 + 12;
        case Control::checkBox:
        case Control::radioButton:
            return characters * 4 + 14;
        case Control::label:
            return characters * 4;
        default:
            return 0;
    }
}

inline void expectTextsFit(const DialogResource& resource) {
    const Language before = gSettings.current().language;
    for (int i = 0; i < languageCount; ++i) {
        gSettings.current().language = static_cast<Language>(i);
        for (const ControlTemplate& control : resource.controls) {
            const int lines = control.kind == Control::label ? control.place.bottom / 8 : 1;
            EXPECT_LE(neededWidth(control), control.place.right * std::max(lines, 1))
                << control.text.text() << " in dialog " << resource.number;
            EXPECT_LE(control.place.left + control.place.right, resource.size.right)
                << "item " << control.id;
            EXPECT_LE(control.place.top + control.place.bottom, resource.size.bottom)
                << "item " << control.id;
        }
    }
    gSettings.current().language = before;
}
