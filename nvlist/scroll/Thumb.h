#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/drawing/Surface.h>
#include <nvlist/scroll/Part.h>
#include <nvlist/scroll/differences.h>
#include <nvlist/scroll/values.h>

namespace norvane::scroll {

/// The mouse on a thumb, in pixels of the thumb.
struct ThumbEvents {
  virtual void Thumb_MouseDown(std::int16_t Button, float X, float Y) = 0;
  virtual void Thumb_MouseUp() = 0;
  virtual void Thumb_MouseMove(std::int16_t Button, float X, float Y) = 0;

 protected:
  ~ThumbEvents() = default;
};

/// The thumb of a bar. It paints itself by hover and press and forwards the mouse to its bar, which
/// moves and sizes it. It does not know the value or the range.
class Thumb : public Part {
 public:
  void UserControl_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y) override;
  void UserControl_Resize() override;
  void UserControl_Paint() override { RedrawScroll(); }

 protected:
  /// The owner outlives the thumb.
  Thumb(std::unique_ptr<Container> place, ThumbEvents& owner, const ThumbKind& kind)
      : Part(std::move(place), kind.module), owner_(owner), kind_(kind) {}

  /// The fill in custom style: at rest, while pressed and while hovered. Default: the button face.
  Colour Bar() const { return fill_.rest; }
  void Bar(Colour value) { assign("Bar", fill_.rest, value); }
  Colour BarDown() const { return fill_.down; }
  void BarDown(Colour value) { assign("BarDown", fill_.down, value); }
  Colour BarHover() const { return fill_.hover; }
  void BarHover(Colour value) { assign("BarHover", fill_.hover, value); }

 private:
  /// The colours of the edges in a style.
  struct EdgeColors {
    Colour corner = 0;  ///< the track, where a corner is cut off
    Colour lower = 0;   ///< the line at the bottom
    Colour round = 0;   ///< the pixels beside a corner
  };

  void repaint() override { RedrawScroll(); }
  void RedrawScroll();
  void chooseImage();
  void chooseEdgeColors();
  void paintBody(Trap& on, float W);
  void paintEdges(Trap& on, float W, float H);
  void paintGrip(Trap& on, float W, float H);
  void paintSilverOutline(Trap& on, float W, float H);
  void line(Trap& on, float x1, float y1, float x2, float y2, Colour colour);
  void point(Trap& on, float x, float y, Colour colour);

  ThumbEvents& owner_;
  const ThumbKind& kind_;
  StateColours fill_;
  std::int16_t ThumbImage_ = 0;
  EdgeColors EdgeColors_;
};

}  // namespace norvane::scroll
