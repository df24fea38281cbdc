#pragma once

#include <functional>
#include <string>

#include <nvlist/drawing/Surface.h>
#include <nvlist/platform/TextBox.h>

namespace norvane {

/// An edit box without a screen. The program does the typing.
class HeadlessTextBox final : public TextBox {
 public:
  explicit HeadlessTextBox(std::function<void(std::int16_t&)> keyPress)
      : keyPress_(std::move(keyPress)) {}

  norvane::Font font;
  Colour foreColor = 0;
  bool hasFocus = false;
  /// The selection, in characters.
  std::int32_t selectionStart = 0;
  std::int32_t selectionLength = 0;
  /// Whether SetFocus fails, as on a hidden form. Default: false.
  bool refusesFocus = false;

  /// Draws the box from (0, 0) on: its text on the desktop's background for windows.
  void draw(Surface& onto) const;

  /// Replaces the whole text, as typing does while all of it is selected.
  void typeText(const std::string& text) { text_ = text; }
  /// Types one character. Returns false if the control swallowed it. A hidden box ignores it and
  /// returns true.
  bool typeCharacter(std::int16_t KeyAscii);

  void Font(const norvane::Font& value) override { font = value; }
  void ForeColor(Colour colour) override { foreColor = colour; }
  std::string Text() const override { return text_; }
  void Text(const std::string& text) override { text_ = text; }
  Bounds place() const override { return place_; }
  void Move(const Bounds& bounds) override { place_ = bounds; }
  bool Visible() const override { return isVisible_; }
  void Visible(bool isVisible) override;
  void SetFocus() override;
  void select(std::int32_t start, std::int32_t length) override;

 private:
  std::function<void(std::int16_t&)> keyPress_;
  std::string text_;
  Bounds place_;
  bool isVisible_ = false;
};

}  // namespace norvane
