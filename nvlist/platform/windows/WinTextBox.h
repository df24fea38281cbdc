#pragma once

#include <functional>
#include <memory>

#include <nvlist/platform/TextBox.h>
#include <nvlist/platform/windows/WinPlace.h>

namespace norvane {

/// The system's edit control in front of a control. It is a window of its own, for the selection,
/// the clipboard and input methods, and is created when first shown. Once its window has been
/// destroyed with its parent, calls do nothing.
class WinTextBox final : public TextBox {
 public:
  WinTextBox(WinPlace& around, std::function<void(std::int16_t&)> keyPress);
  ~WinTextBox() override;

  void Font(const norvane::Font& font) override;
  void ForeColor(Colour colour) override;
  std::string Text() const override;
  void Text(const std::string& text) override;
  Bounds place() const override { return place_; }
  void Move(const Bounds& bounds) override;
  bool Visible() const override { return isVisible_; }
  void Visible(bool isVisible) override;
  /// Throws Failure 5 if the edit is not visible.
  void SetFocus() override;
  /// A character beyond 16 bits counts as one.
  void select(std::int32_t start, std::int32_t length) override;

  /// Sets the colours of the edit control `edit`. Returns nullptr for any other window.
  static HBRUSH colours(HWND edit, HDC dc);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  void create();
  void destroy();
  void applyFont();
  void applyPlace();

  WinPlace& around_;
  std::function<void(std::int16_t&)> keyPress_;
  HWND edit_ = nullptr;
  WNDPROC procedureBefore_ = nullptr;
  std::shared_ptr<GdiFace> face_;
  norvane::Font font_;
  Colour foreColor_ = 0;
  std::string text_;
  Bounds place_;
  bool isVisible_ = false;
};

}  // namespace norvane
