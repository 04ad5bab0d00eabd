#include "workbench/window/input_translation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int keyControl = 17;
constexpr int keyAlt = 18;

constexpr std::pair<int, int> namedKeys[] = {
    {Qt::Key_Backspace, keyBackspace},
    {Qt::Key_Tab, keyTab},
    {Qt::Key_Backtab, keyTab},
    {Qt::Key_Return, keyEnter},
    {Qt::Key_Enter, keyEnter},
    {Qt::Key_Shift, keyShift},
    {Qt::Key_Control, keyControl},
    {Qt::Key_Alt, keyAlt},
    {Qt::Key_Escape, keyEscape},
    {Qt::Key_Space, keySpace},
    {Qt::Key_PageUp, keyPageUp},
    {Qt::Key_PageDown, keyPageDown},
    {Qt::Key_End, keyEnd},
    {Qt::Key_Home, keyHome},
    {Qt::Key_Left, keyLeft},
    {Qt::Key_Up, keyUp},
    {Qt::Key_Right, keyRight},
    {Qt::Key_Down, keyDown},
    {Qt::Key_Insert, keyInsert},
    {Qt::Key_Delete, keyDelete},
};

std::optional<int> keyNumber(int key) {
    const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
    const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
    if (isDigit || isLetter) return key;  // Qt numbers them by their capital characters too
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return keyF1 + key - Qt::Key_F1;
    const auto* found = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                     [&](const auto& named) { return named.first == key; });
    if (found == std::end(namedKeys)) return std::nullopt;
    return found->second;
}

std::optional<MouseMessage::Kind> mouseKind(const QMouseEvent& event) {
    using Kind = MouseMessage::Kind;
    const bool isLeft = event.button() == Qt::LeftButton;
    const bool isRight = event.button() == Qt::RightButton;
    switch (event.type()) {
        case QEvent::MouseMove:
            return Kind::move;
        case QEvent::MouseButtonPress:
            if (isLeft) return Kind::leftDown;
            if (isRight) return Kind::rightDown;
            break;
        case QEvent::MouseButtonRelease:
            if (isLeft) return Kind::leftUp;
            if (isRight) return Kind::rightUp;
            break;
        case QEvent::MouseButtonDblClick:
            if (isLeft) return Kind::leftDouble;
            if (isRight) return Kind::rightDown;
            break;
        default:
            break;
    }
    return std::nullopt;
}

}  // namespace

std::optional<KeyMessage> keyMessage(const QKeyEvent& event) {
    const auto key = keyNumber(event.key());
    if (!key) return std::nullopt;
    KeyMessage message;
    message.key = *key;
    message.isDown = event.type() == QEvent::KeyPress;
    message.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    message.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    message.alt = event.modifiers().testFlag(Qt::AltModifier);
    return message;
}

std::optional<MouseMessage> mouseMessage(const QMouseEvent& event) {
    const auto kind = mouseKind(event);
    if (!kind) return std::nullopt;
    const QPoint point = event.position().toPoint();
    MouseMessage message;
    message.kind = *kind;
    message.point = {point.x(), point.y()};
    message.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    message.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    message.isLeftHeld = event.buttons().testFlag(Qt::LeftButton);
    return message;
}

Qt::CursorShape cursorShape(Cursor cursor) {
    switch (cursor) {
        case Cursor::cross:
            return Qt::CrossCursor;
        case Cursor::move:
            return Qt::SizeAllCursor;
        case Cursor::resizeHorizontal:
            return Qt::SizeHorCursor;
        case Cursor::resizeVertical:
            return Qt::SizeVerCursor;
        case Cursor::resizeDown:
            return Qt::SizeFDiagCursor;
        case Cursor::resizeUp:
            return Qt::SizeBDiagCursor;
        case Cursor::hand:
            return Qt::PointingHandCursor;
        case Cursor::wait:
            return Qt::WaitCursor;
        case Cursor::arrow:
            break;
    }
    return Qt::ArrowCursor;
}
