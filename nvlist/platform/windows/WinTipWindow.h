#pragma once

#include <memory>

#include <nvlist/platform/TipWindow.h>
#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// A tool tip of the common controls; its window keeps all state.
class WinTipWindow final : public TipWindow {
 public:
  /// Creates a tip window owned by the form, a window handle. Returns nullptr if it cannot be
  /// created.
  static std::shared_ptr<TipWindow> create(std::int32_t form);
  ~WinTipWindow() override;

  std::int32_t handle() override;
  bool addTool(const TipTool& tool) override;
  void deleteTool(const TipTool& tool) override;
  void updateText(const TipTool& tool) override;
  std::int32_t toolCount() override;
  bool enumerateTool(std::int32_t index, TipTool& tool) override;
  Colour backColour() override;
  void backColour(Colour colour) override;
  Colour textColour() override;
  std::int32_t textColour(Colour colour) override;
  std::int32_t delay(TipDelay which) override;
  void delay(TipDelay which, std::int32_t milliseconds) override;
  Rectangle margin() override;
  void margin(const Rectangle& sides) override;
  std::int32_t maxTipWidth() override;
  void maxTipWidth(std::int32_t pixels) override;

 private:
  explicit WinTipWindow(HWND window) : window_(window) {}
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(window_, message, wParam, lParam);
  }

  HWND window_;
};

}  // namespace norvane
