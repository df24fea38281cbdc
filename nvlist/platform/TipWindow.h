#pragma once

#include <cstdint>
#include <string>

#include <nvlist/values/Colour.h>
#include <nvlist/values/Rectangle.h>

namespace norvane {

/// A tool: the area a tip belongs to, here always a control. Owner and id together identify it.
struct TipTool {
  /// The id is the handle of a window.
  static constexpr std::uint32_t isWindow = 1;
  /// The tip window watches the mouse over the tool by itself.
  static constexpr std::uint32_t receivesMouse = 16;

  std::uint32_t flags = 0;
  /// Handle of the window that contains the tool.
  std::int32_t owner = 0;
  std::int32_t id = 0;
  /// The area of a tool that is not a window.
  Rectangle rectangle = {};
  /// The module that contains the text resource. Unused.
  std::intptr_t instance = 0;
  /// UTF-8, up to the first zero character.
  std::string text = {};
};

/// The times of a tip window, in milliseconds. Setting a negative time restores its default.
enum class TipDelay : std::int32_t {
  /// Sets the other three: the initial time to the value, the autopop time to ten times the value,
  /// the reshow time to a fifth of it. Reads as the initial time.
  automatic = 0,
  /// The delay before the next tip when the mouse moves from tool to tool. Default: 100.
  reshow = 1,
  /// How long a tip stays visible while the mouse rests. Default: 5000.
  autopop = 2,
  /// How long the mouse must rest before a tip appears. Default: 500.
  initial = 3
};

/// The platform's window that shows tips, one at a time, for any number of tools. Its destruction
/// removes the tips. Any call may throw.
class TipWindow {
 public:
  virtual ~TipWindow() = default;

  /// A unique window handle, never 0.
  virtual std::int32_t handle() = 0;

  /// Adds a tool. Returns false on failure.
  virtual bool addTool(const TipTool& tool) = 0;
  /// Removes the tool with the same owner and id, if there is one.
  virtual void deleteTool(const TipTool& tool) = 0;
  /// Changes the text of the tool with the same owner and id, if there is one.
  virtual void updateText(const TipTool& tool) = 0;
  virtual std::int32_t toolCount() = 0;
  /// Copies the tool at an index, from 0, into `tool`; returns false if no tool has it. The text of
  /// `tool` is a buffer whose size stays the same: the tool's text is copied to its front, cut to
  /// fit, followed by a zero character. An empty buffer stays empty.
  virtual bool enumerateTool(std::int32_t index, TipTool& tool) = 0;

  // The top byte of colours is ignored.
  virtual Colour backColour() = 0;
  virtual void backColour(Colour colour) = 0;
  virtual Colour textColour() = 0;
  /// The result has no meaning.
  virtual std::int32_t textColour(Colour colour) = 0;

  virtual std::int32_t delay(TipDelay which) = 0;
  virtual void delay(TipDelay which, std::int32_t milliseconds) = 0;
  /// Pixels between the border and the text, on each side. Default: 0.
  virtual Rectangle margin() = 0;
  virtual void margin(const Rectangle& sides) = 0;
  /// The width in pixels at which lines break between words; -1, the default, means no limit.
  virtual std::int32_t maxTipWidth() = 0;
  virtual void maxTipWidth(std::int32_t pixels) = 0;
};

}  // namespace norvane
