#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <cstdint>

namespace norvane {

/// The sum of 1 Shift, 2 Ctrl and 4 Alt.
std::int16_t shiftOf(Qt::KeyboardModifiers modifiers);

/// The sum of 1 left, 2 right and 4 middle.
std::int16_t buttonsOf(Qt::MouseButtons buttons);

/// The virtual-key code of Windows for a key; 0 for one that has none.
std::int16_t keyCodeOf(const QKeyEvent& event);

/// The character that a key made, control characters included; 0 where it made none or one beyond
/// 16 bits.
std::int16_t characterOf(const QKeyEvent& event);

/// Keys and buttons as a message of the wheel tells them: 1 left button, 2 right button, 4 Shift,
/// 8 Ctrl, 16 middle button.
std::int16_t wheelKeysOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

}  // namespace norvane
