#pragma once

#include <functional>

#include <nvlist/drawing/Recording.h>

namespace norvane {

/// The size of a character in every font, in pixels.
struct FontMeasure {
  float width = 7;
  float boldWidth = 8;
  float height = 13;
};

/// A surface that records the calls instead of drawing them.
///
/// Its image is the recording of the calls since the last Cls, which covers everything before it.
/// So the recording does not keep growing.
class RecordingSurface : public Surface {
 public:
  /// Size in pixels.
  RecordingSurface(float width, float height) : width_(width), height_(height) {}

  void resize(float width, float height);
  /// Sets the character size by which texts are measured from now on.
  void fontMeasure(const FontMeasure& measure) { measure_ = measure; }

  /// The calls since the last Cls, including the Cls. Calls beforeLook first.
  const Recording& image() const;
  /// If set, called before the image is read, so that pending changes can be drawn.
  std::function<void()> beforeLook;
  /// Clears the recording without recording a Cls.
  void forget();
  /// Draws the image onto another surface, starting with the colours and the font that were set
  /// when the image began.
  void replay(Surface& onto) const;
  /// The background colour when the image began: its Cls fills the surface with it.
  Colour background() const;
  /// How many times the image was cleared; a repaint clears it once.
  int frames() const;

  void Cls() override;
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override;
  void PSet(float x, float y, Colour colour) override;
  void PaintPicture(const Picture& picture, float x, float y) override;
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override;
  float TextWidth(std::string_view text) override;
  float TextHeight(std::string_view text) override;
  float CurrentX() const override { return currentX_; }
  void CurrentX(float x) override;
  float CurrentY() const override { return currentY_; }
  void CurrentY(float y) override;
  float ScaleWidth() const override { return width_; }
  float ScaleHeight() const override { return height_; }
  void BackColor(Colour colour) override;
  void ForeColor(Colour colour) override;
  void Font(const norvane::Font& font) override;
  void FontBold(Boolean on) override;
  void FontItalic(Boolean on) override;
  void FontUnderline(Boolean on) override;
  /// The calls that take a handle throw Failure 5 for any other.
  std::uintptr_t hDC() const override { return reinterpret_cast<std::uintptr_t>(&frame_); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override;
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override;
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) override;
  void Print(std::string_view text) override;

 protected:
  /// The settings that persist until they are changed.
  struct Settings {
    Colour backColor = colours::white;
    Colour foreColor = 0;
    norvane::Font font;
    Boolean bold = false;
    Boolean italic = false;
    Boolean underline = false;

    bool operator==(const Settings& other) const;
  };

  /// A recording with the settings at its beginning.
  struct Frame {
    Settings settings;
    Recording recording;

    bool operator==(const Frame&) const = default;
    void replay(Surface& onto) const;
  };

  /// The calls since the last Cls, without calling beforeLook.
  Frame& frame() { return frame_; }

  /// Called after each call that draws; not after those that only set a colour, a font or the
  /// position. It must not draw.
  virtual void drawn() {}

 private:
  void set(SurfaceCall&& call);
  void draw(SurfaceCall&& call);
  void requireOwn(std::uintptr_t hDC) const;

  float width_;
  float height_;
  FontMeasure measure_;
  float currentX_ = 0;
  float currentY_ = 0;
  Settings settings_;
  Frame frame_;
  int frames_ = 0;
};

}  // namespace norvane
