#pragma once

#include <vector>

#include <nvlist/platform/TipWindow.h>

namespace norvane {

/// A tip window that stores its tools and settings but shows nothing. A platform derives from it to
/// show tips.
class TipStore : public TipWindow {
 public:
  TipStore(std::int32_t handle, std::int32_t form) : handle_(handle), form_(form) {}

  std::int32_t form() const { return form_; }
  const std::vector<TipTool>& tools() const { return tools_; }

  std::int32_t handle() override { return handle_; }
  bool addTool(const TipTool& tool) override;
  void deleteTool(const TipTool& tool) override;
  void updateText(const TipTool& tool) override;
  std::int32_t toolCount() override { return static_cast<std::int32_t>(tools_.size()); }
  bool enumerateTool(std::int32_t index, TipTool& tool) override;
  Colour backColour() override { return backColour_; }
  void backColour(Colour colour) override { backColour_ = colour; }
  Colour textColour() override { return textColour_; }
  /// Returns 0.
  std::int32_t textColour(Colour colour) override;
  std::int32_t delay(TipDelay which) override;
  void delay(TipDelay which, std::int32_t milliseconds) override;
  Rectangle margin() override { return margin_; }
  void margin(const Rectangle& sides) override { margin_ = sides; }
  std::int32_t maxTipWidth() override { return maxTipWidth_; }
  void maxTipWidth(std::int32_t pixels) override { maxTipWidth_ = pixels; }

 private:
  static constexpr std::int32_t defaultInitial = 500;

  std::vector<TipTool>::iterator find(const TipTool& tool);

  std::int32_t handle_;
  std::int32_t form_;
  std::vector<TipTool> tools_;
  Colour backColour_ = 0xE1FFFF;
  Colour textColour_ = 0;
  std::int32_t initial_ = defaultInitial;
  std::int32_t autopop_ = defaultInitial * 10;
  std::int32_t reshow_ = defaultInitial / 5;
  Rectangle margin_;
  std::int32_t maxTipWidth_ = -1;
};

}  // namespace norvane
