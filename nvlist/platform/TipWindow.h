#pragma once

#include <cstdint>
#include <string>

#include <nvlist/values/Colour.h>
#include <nvlist/values/Rectangle.h>

namespace norvane {

/// One tool, which is what a tip belongs to: here always a control. Owner and id together name it.
struct TipTool {
  /// The id is the handle of a window.
  static constexpr std::uint32_t isWindow = 1;
  /// The tip window hears the mouse over the tool by itself.
  static constexpr std::uint32_t hearsMouse = 16;

  std::uint32_t flags = 0;
  /// Handle of the window that the tool stands in.
  std::int32_t owner = 0;
  std::int32_t id = 0;
  /// Of a tool that is no window.
  Rectangle rectangle;
  /// The module that holds the text, of the width of a pointer; unused here.
  std::intptr_t instance = 0;
  /// UTF-8; it ends at its first zero character.
  std::string text;
};

/// Which time of a tip window, in milliseconds. A negative one stands for the default.
enum class TipDelay : std::int32_t {
  /// Sets the other three: the initial time to this, the autopop time to ten times of it, and the
  /// reshow time to a fifth. Reads as the initial time.
  automatic = 0,
  /// From one tool to the tip of the next one. Default: 100.
  reshow = 1,
  /// How long a tip stays while the mouse rests. Default: 5000.
  autopop = 2,
  /// How long the mouse has to rest before a tip shows. Default: 500.
  initial = 3
};

/// The platform's window that shows tips, one at a time, for any number of tools. Destroying it
/// takes the tip away. Any call may throw.
class TipWindow {
 public:
  virtual ~TipWindow() = default;

  /// Never 0, and no other window's.
  virtual std::int32_t handle() = 0;

  /// Takes one more tool; false where it could not.
  virtual bool addTool(const TipTool& tool) = 0;
  /// Forgets the tool of that owner and id, where there is one.
  virtual void deleteTool(const TipTool& tool) = 0;
  /// Gives the tool of that owner and id another text, where there is one.
  virtual void updateText(const TipTool& tool) = 0;
  virtual std::int32_t toolCount() = 0;
  /// Copies the tool at a position from 0; false where there is none. The text of `tool` is a
  /// buffer: what fits into it comes to its front, with a zero character behind it, and nothing
  /// into an empty one.
  virtual bool enumerateTool(std::int32_t index, TipTool& tool) = 0;

  // Colours are red, green and blue; the top byte means nothing.
  virtual Colour backColour() = 0;
  virtual void backColour(Colour colour) = 0;
  virtual Colour textColour() = 0;
  /// The answer means nothing.
  virtual std::int32_t textColour(Colour colour) = 0;

  virtual std::int32_t delay(TipDelay which) = 0;
  virtual void delay(TipDelay which, std::int32_t milliseconds) = 0;
  /// Pixels between the border and the text, on each side.
  virtual Rectangle margin() = 0;
  virtual void margin(const Rectangle& sides) = 0;
  /// Pixels at which a line of text breaks, between words; -1, the default, for no limit.
  virtual std::int32_t maxTipWidth() = 0;
  virtual void maxTipWidth(std::int32_t pixels) = 0;
};

}  // namespace norvane
