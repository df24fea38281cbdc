#include <nvlist/platform/qt/place/QtKeys.h>

#include <algorithm>
#include <limits>
#include <span>

namespace norvane {
namespace {

struct KeyRow {
  int key;
  std::int16_t code;
};

constexpr KeyRow keys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},         {Qt::Key_Backtab, 9}, {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},      {Qt::Key_Shift, 16},  {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},      {Qt::Key_Pause, 19},  {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},      {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},       {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},       {Qt::Key_Print, 44},  {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},   {Qt::Key_Help, 47},       {Qt::Key_Meta, 91},   {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145}};

/// Punctuation by its keys on a US keyboard.
constexpr KeyRow markKeys[] = {
    {Qt::Key_ParenRight, 48},   {Qt::Key_Exclam, 49},        {Qt::Key_At, 50},
    {Qt::Key_NumberSign, 51},   {Qt::Key_Dollar, 52},        {Qt::Key_Percent, 53},
    {Qt::Key_AsciiCircum, 54},  {Qt::Key_Ampersand, 55},     {Qt::Key_Asterisk, 56},
    {Qt::Key_ParenLeft, 57},    {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222}};

constexpr KeyRow keypadKeys[] = {{Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},
                                 {Qt::Key_Minus, 109},    {Qt::Key_Period, 110},
                                 {Qt::Key_Comma, 110},    {Qt::Key_Slash, 111}};

std::int16_t codeIn(std::span<const KeyRow> rows, int key) {
  const auto row = std::ranges::find(rows, key, &KeyRow::key);
  return row == rows.end() ? std::int16_t{0} : row->code;
}

}  // namespace

std::int16_t shiftOf(Qt::KeyboardModifiers modifiers) {
  return static_cast<std::int16_t>((modifiers & Qt::ShiftModifier ? 1 : 0) |
                                   (modifiers & Qt::ControlModifier ? 2 : 0) |
                                   (modifiers & Qt::AltModifier ? 4 : 0));
}

Qt::KeyboardModifiers modifiersOf(std::int16_t shift) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, shift & 1);
  modifiers.setFlag(Qt::ControlModifier, shift & 2);
  modifiers.setFlag(Qt::AltModifier, shift & 4);
  return modifiers;
}

std::int16_t buttonsOf(Qt::MouseButtons buttons) {
  // Qt uses the same numbers for these three.
  return static_cast<std::int16_t>(buttons & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
}

std::int16_t keyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  const bool isOnKeypad = event.modifiers() & Qt::KeypadModifier;
  if (key >= Qt::Key_0 && key <= Qt::Key_9)
    return static_cast<std::int16_t>(key - Qt::Key_0 + (isOnKeypad ? 96 : 48));
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return static_cast<std::int16_t>(key);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
    return static_cast<std::int16_t>(key - Qt::Key_F1 + 112);
  if (const std::int16_t code = codeIn(keys, key)) return code;
  if (isOnKeypad)
    if (const std::int16_t code = codeIn(keypadKeys, key)) return code;
  return codeIn(markKeys, key);
}

std::int16_t characterOf(const QKeyEvent& event) {
  const QString text = event.text();
  // Qt reports a character for Delete, which types none.
  if (text.size() != 1 || event.key() == Qt::Key_Delete) return 0;
  const char16_t character = text[0].unicode();
  return character <= std::numeric_limits<std::int16_t>::max()
             ? static_cast<std::int16_t>(character)
             : std::int16_t{0};
}

std::int16_t wheelKeysOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
  return static_cast<std::int16_t>(
      (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
      (modifiers & Qt::ShiftModifier ? 4 : 0) | (modifiers & Qt::ControlModifier ? 8 : 0) |
      (buttons & Qt::MiddleButton ? 16 : 0));
}

}  // namespace norvane
