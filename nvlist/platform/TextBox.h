#pragma once

#include <cstdint>
#include <string>

#include <nvlist/platform/Bounds.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Font.h>

namespace norvane {

/// The platform's own single-line edit control, with its selection, clipboard and input methods. A
/// new one is hidden. Any call may throw.
class TextBox {
 public:
  virtual ~TextBox() = default;

  virtual void Font(const norvane::Font& font) = 0;
  virtual void ForeColor(Colour colour) = 0;
  virtual std::string Text() const = 0;
  virtual void Text(const std::string& text) = 0;

  /// The bounds last set, in pixels of the control around it.
  virtual Bounds place() const = 0;
  virtual void Move(const Bounds& bounds) = 0;
  virtual bool Visible() const = 0;
  virtual void Visible(bool isVisible) = 0;

  /// Gives it the keyboard focus.
  virtual void SetFocus() = 0;
  /// Selects `length` characters, or as many as there are, starting at `start`. The first is 0.
  virtual void select(std::int32_t start, std::int32_t length) = 0;
};

}  // namespace norvane
