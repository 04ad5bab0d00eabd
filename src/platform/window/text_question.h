// The small dialog that asks for one line of text.
#pragma once

#include <string>

#include "platform/export.h"
#include "platform/window/wnd.h"

/// The number and the items of the dialog, for scripts.
inline constexpr int textQuestionNumber = 100;
inline constexpr int textQuestionField = 101;
inline constexpr int textQuestionLabel = 102;
inline constexpr int textQuestionPrompt = 103;

struct TextQuestion {
    std::string title;
    std::string label;   ///< beside the field; may be empty
    std::string prompt;  ///< above the field, lines separated by "\n"
    std::string preset;
    std::string ok = "Ok";
    std::string cancel;  ///< empty: no Cancel button; the dialog can still be closed
};

/// True, with what was typed in `answer`, when OK was pressed; else `answer` stays.
VORMANT_API bool askText(const TextQuestion& question, CWnd* parent, std::string& answer);
