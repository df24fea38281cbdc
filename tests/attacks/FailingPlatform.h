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

class FailingSurface final : public Surface {
 public:
  FailingSurface(Surface& inner, CallOut& out) : to_(inner), on_(out) {}

  void Cls() override { on_(), to_.Cls(); }
  void Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) override {
    on_(), to_.Line(mode, x1, y1, x2, y2, colour);
  }
  void PSet(float x, float y, Colour colour) override { on_(), to_.PSet(x, y, colour); }
  void PaintPicture(const Picture& picture, float x, float y) override {
    on_(), to_.PaintPicture(picture, x, y);
  }
  void PaintPicture(const Picture& picture, float x, float y, float w, float h) override {
    on_(), to_.PaintPicture(picture, x, y, w, h);
  }
  float TextWidth(std::string_view text) override { return on_(), to_.TextWidth(text); }
  float TextHeight(std::string_view text) override { return on_(), to_.TextHeight(text); }
  float CurrentX() const override { return on_(), to_.CurrentX(); }
  void CurrentX(float x) override { on_(), to_.CurrentX(x); }
  float CurrentY() const override { return on_(), to_.CurrentY(); }
  void CurrentY(float y) override { on_(), to_.CurrentY(y); }
  float ScaleWidth() const override { return on_(), to_.ScaleWidth(); }
  float ScaleHeight() const override { return on_(), to_.ScaleHeight(); }
  void BackColor(Colour colour) override { on_(), to_.BackColor(colour); }
  void ForeColor(Colour colour) override { on_(), to_.ForeColor(colour); }
  void Font(const norvane::Font& font) override { on_(), to_.Font(font); }
  void FontBold(Boolean on) override { on_(), to_.FontBold(on); }
  void FontItalic(Boolean on) override { on_(), to_.FontItalic(on); }
  void FontUnderline(Boolean on) override { on_(), to_.FontUnderline(on); }
  std::uintptr_t hDC() const override { return on_(), to_.hDC(); }
  void DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                 const Rectangle& rectangle, TextFormat format) override {
    on_(), to_.DrawTextA(hDC, text, length, rectangle, format);
  }
  void DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) override {
    on_(), to_.DrawFocusRect(hDC, rectangle);
  }
  void StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bits) override {
    on_(), to_.StretchDIBits(hDC, target, bits);
  }
  void Print(std::string_view text) override { on_(), to_.Print(text); }

 private:
  Surface& to_;
  CallOut& on_;
};

class FailingTextBox final : public TextBox {
 public:
  FailingTextBox(std::unique_ptr<TextBox> inner, CallOut& out) : to_(std::move(inner)), on_(out) {}

  void Font(const norvane::Font& font) override { on_(), to_->Font(font); }
  void ForeColor(Colour colour) override { on_(), to_->ForeColor(colour); }
  std::string Text() const override { return on_(), to_->Text(); }
  void Text(const std::string& text) override { on_(), to_->Text(text); }
  Bounds place() const override { return on_(), to_->place(); }
  void Move(const Bounds& bounds) override { on_(), to_->Move(bounds); }
  bool Visible() const override { return on_(), to_->Visible(); }
  void Visible(bool isVisible) override { on_(), to_->Visible(isVisible); }
  void SetFocus() override { on_(), to_->SetFocus(); }
  void select(std::int32_t start, std::int32_t length) override {
    on_(), to_->select(start, length);
  }

 private:
  std::unique_ptr<TextBox> to_;
  CallOut& on_;
};

class FailingTimer final : public Timer {
 public:
  FailingTimer(std::unique_ptr<Timer> inner, CallOut& out) : to_(std::move(inner)), on_(out) {}

  std::int32_t Interval() const override { return on_(), to_->Interval(); }
  void Interval(std::int32_t milliseconds) override { on_(), to_->Interval(milliseconds); }
  Boolean Enabled() const override { return on_(), to_->Enabled(); }
  void Enabled(Boolean on) override { on_(), to_->Enabled(on); }

 private:
  std::unique_ptr<Timer> to_;
  CallOut& on_;
};

class FailingContainer final : public Container {
 public:
  FailingContainer(Container& inner, CallOut& out)
      : to_(inner), on_(out), surface_(inner.surface(), out) {}
  FailingContainer(std::unique_ptr<Container> inner, CallOut& out) : FailingContainer(*inner, out) {
    own_ = std::move(inner);
  }

  void attach(UserControl* control) override {
    on_();
    to_.attach(control);
  }
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view name) override { on_(), to_.PropertyChanged(name); }
  Boolean UserMode() override { return on_(), to_.UserMode(); }
  norvane::Font AmbientFont() override { return on_(), to_.AmbientFont(); }
  std::string Name() override { return on_(), to_.Name(); }
  bool EventsWaiting() override { return on_(), to_.EventsWaiting(); }
  void DoEvents() override { on_(), to_.DoEvents(); }
  void move(const Bounds& bounds) override { on_(), to_.move(bounds); }
  void show(bool isVisible) override { on_(), to_.show(isVisible); }
  void enable(bool isEnabled) override { on_(), to_.enable(isEnabled); }
  void SetCapture() override { on_(), to_.SetCapture(); }
  void ReleaseCapture() override { on_(), to_.ReleaseCapture(); }
  std::int32_t hwnd() override { return on_(), to_.hwnd(); }
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override {
    on_(), to_.hookWheel(std::move(procedure));
  }
  void paintLater() override { on_(), to_.paintLater(); }
  std::unique_ptr<Container> addChild() override {
    on_();
    return std::make_unique<FailingContainer>(to_.addChild(), on_);
  }
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override {
    on_();
    return std::make_unique<FailingTextBox>(to_.addTextBox(std::move(keyPress)), on_);
  }
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override {
    on_();
    return std::make_unique<FailingTimer>(to_.addTimer(std::move(tick)), on_);
  }

 private:
  std::unique_ptr<Container> own_;
  Container& to_;
  CallOut& on_;
  FailingSurface surface_;
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
