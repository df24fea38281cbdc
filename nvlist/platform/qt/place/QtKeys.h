#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <cstdint>

namespace norvane {

/// The sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
std::int16_t shiftOf(Qt::KeyboardModifiers modifiers);

/// The modifiers in such a sum.
Qt::KeyboardModifiers modifiersOf(std::int16_t shift);

/// The sum of 1 for left, 2 for right and 4 for middle.
std::int16_t buttonsOf(Qt::MouseButtons buttons);

/// The virtual-key code of Windows for a key, or 0 if it has none.
std::int16_t keyCodeOf(const QKeyEvent& event);

/// The character that a key typed, control characters included; 0 if it typed none, or one beyond
/// 16 bits.
std::int16_t characterOf(const QKeyEvent& event);

/// Keys and buttons as in a message of the mouse wheel: the sum of 1 for the left button, 2 for the
/// right button, 4 for Shift, 8 for Ctrl and 16 for the middle button.
std::int16_t wheelKeysOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

}  // namespace norvane
