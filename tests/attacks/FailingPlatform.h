#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <nvlist/platform/Container.h>
#include <nvlist/platform/headless/HeadlessApplication.h>

#include "../files/MemoryFiles.h"
#include "Life.h"

namespace norvane::attacks {

/// Forwards to an object of the platform. Each call counts, and may fail.
template <class Interface>
class Failing : public Interface {
 public:
  Failing(Interface& inner, CallOut& out) : inner_(inner), on_(out) {}
  Failing(std::unique_ptr<Interface> inner, CallOut& out)
      : own_(std::move(inner)), inner_(*own_), on_(out) {}

 protected:
  Interface& to() const { return on_(), inner_; }

 private:
  std::unique_ptr<Interface> own_;

 protected:
  Interface& inner_;
  CallOut& on_;
};

class FailingSurface final : public Failing<Surface> {
 public:
  using Failing::Failing;

  void Cls() override { to().Cls(); }
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override {
    to().Line(mode, x1, y1, x2, y2, colour);
  }
  void PSet(float x, float y, Colour colour) override { to().PSet(x, y, colour); }
  void PaintPicture(const Picture& picture, float x, float y) override {
    to().PaintPicture(picture, x, y);
  }
  void PaintPicture(const Picture& picture, float x, float y, float w, float h) override {
    to().PaintPicture(picture, x, y, w, h);
  }
  float TextWidth(std::string_view text) override { return to().TextWidth(text); }
  float TextHeight(std::string_view text) override { return to().TextHeight(text); }
  float CurrentX() const override { return to().CurrentX(); }
  void CurrentX(float x) override { to().CurrentX(x); }
  float CurrentY() const override { return to().CurrentY(); }
  void CurrentY(float y) override { to().CurrentY(y); }
  float ScaleWidth() const override { return to().ScaleWidth(); }
  float ScaleHeight() const override { return to().ScaleHeight(); }
  void BackColor(Colour colour) override { to().BackColor(colour); }
  void ForeColor(Colour colour) override { to().ForeColor(colour); }
  void Font(const norvane::Font& font) override { to().Font(font); }
  void FontBold(Boolean on) override { to().FontBold(on); }
  void FontItalic(Boolean on) override { to().FontItalic(on); }
  void FontUnderline(Boolean on) override { to().FontUnderline(on); }
  std::uintptr_t hDC() const override { return to().hDC(); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override {
    to().DrawTextA(hDC, text, length, rectangle, format);
  }
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override {
    to().DrawFocusRect(hDC, rectangle);
  }
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bits) override {
    to().StretchDIBits(hDC, target, bits);
  }
  void Print(std::string_view text) override { to().Print(text); }
};

class FailingTextBox final : public Failing<TextBox> {
 public:
  using Failing::Failing;

  void Font(const norvane::Font& font) override { to().Font(font); }
  void ForeColor(Colour colour) override { to().ForeColor(colour); }
  std::string Text() const override { return to().Text(); }
  void Text(const std::string& text) override { to().Text(text); }
  Bounds place() const override { return to().place(); }
  void Move(const Bounds& bounds) override { to().Move(bounds); }
  bool Visible() const override { return to().Visible(); }
  void Visible(bool isVisible) override { to().Visible(isVisible); }
  void SetFocus() override { to().SetFocus(); }
  void select(std::int32_t start, std::int32_t length) override { to().select(start, length); }
};

class FailingTimer final : public Failing<Timer> {
 public:
  using Failing::Failing;

 private:
  void start(std::int32_t milliseconds) override {
    to().Interval(milliseconds);
    to().Enabled(true);
  }
  void stop() override { to().Enabled(false); }
};

class FailingContainer final : public Failing<Container> {
 public:
  using Failing::Failing;

  void attach(UserControl* control) override { to().attach(control); }
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view name) override { to().PropertyChanged(name); }
  Boolean UserMode() override { return to().UserMode(); }
  norvane::Font AmbientFont() override { return to().AmbientFont(); }
  std::string Name() override { return to().Name(); }
  bool EventsWaiting() override { return to().EventsWaiting(); }
  void DoEvents() override { to().DoEvents(); }
  void move(const Bounds& bounds) override { to().move(bounds); }
  void show(bool isVisible) override { to().show(isVisible); }
  void enable(bool isEnabled) override { to().enable(isEnabled); }
  void SetCapture() override { to().SetCapture(); }
  void ReleaseCapture() override { to().ReleaseCapture(); }
  std::int32_t hwnd() override { return to().hwnd(); }
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override {
    to().hookWheel(std::move(procedure));
  }
  void paintLater() override { to().paintLater(); }
  std::unique_ptr<Container> addChild() override {
    return std::make_unique<FailingContainer>(to().addChild(), on_);
  }
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override {
    return std::make_unique<FailingTextBox>(to().addTextBox(std::move(keyPress)), on_);
  }
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override {
    return std::make_unique<FailingTimer>(to().addTimer(std::move(tick)), on_);
  }

 private:
  FailingSurface surface_{inner_.surface(), on_};
};

class FailingProgram final : public HeadlessApplication {
 public:
  explicit FailingProgram(CallOut& out) : on_(out) {}

  /// Whether a report has failed since the last call. That failure reaches the host.
  bool hasFailedToReport() { return std::exchange(hasFailedToReport_, false); }

  std::shared_ptr<ErrorHandler> createErrorHandler() override {
    return on_(), HeadlessApplication::createErrorHandler();
  }
  ApplicationFacts facts() override { return reporting(), HeadlessApplication::facts(); }
  std::string programPath() override { return on_(), HeadlessApplication::programPath(); }
  Variant readSetting(std::string_view key, std::string_view name) override {
    return reporting(), HeadlessApplication::readSetting(key, name);
  }
  void MsgBox(std::string_view, std::int32_t, std::string_view) override { reporting(); }

 private:
  void reporting() {
    hasFailedToReport_ = true;
    on_();
    hasFailedToReport_ = false;
  }

  CallOut& on_;
  bool hasFailedToReport_ = false;
};

class FailingFiles final : public MemoryFiles {
 public:
  explicit FailingFiles(CallOut& out) : on_(out) {}

  Picture loadPicture(std::vector<std::byte> file) override {
    return on_(), MemoryFiles::loadPicture(std::move(file));
  }

 protected:
  void operate() override { on_(); }

 private:
  CallOut& on_;
};

}  // namespace norvane::attacks
