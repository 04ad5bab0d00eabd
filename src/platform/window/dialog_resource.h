// Dialogs as tables: a number, a title and the controls. A table is constant data beside the dialog
// that uses it; texts by number are looked up when the dialog is made, in the language of that
// moment.
#pragma once

#include <span>
#include <string>

#include "platform/export.h"
#include "platform/window/geometry.h"

/// A text written out, or one that a function knows by its number.
struct DialogText {
    constexpr DialogText() = default;
    constexpr DialogText(const char* literal) : m_literal(literal) {}
    constexpr DialogText(std::string (*lookUp)(int), int number)
        : m_lookUp(lookUp), m_number(number) {}

    std::string text() const { return m_lookUp ? m_lookUp(m_number) : std::string(m_literal); }

  private:
    const char* m_literal = "";
    std::string (*m_lookUp)(int) = nullptr;
    int m_number = 0;
};

enum class Control { label, edit, button, checkBox, radioButton, group, list, combo, placeholder };

struct ControlTemplate {
    Control kind = Control::label;
    int id = 0;
    DialogText text;
    CRect place;  ///< left, top, width, height in dialog units (a quarter of a character's width,
                  ///< an eighth of its height)
    unsigned style = 0;
};

struct DialogResource {
    int number = 0;
    DialogText title;
    CRect size;  ///< 0, 0, width, height in dialog units
    std::span<const ControlTemplate> controls;
};

/// The window class that stands for a control.
VORMANT_API const char* classNameOf(Control kind);
/// From a place in dialog units to a rectangle in pixels.
VORMANT_API CRect pixelsOf(const CRect& place);
