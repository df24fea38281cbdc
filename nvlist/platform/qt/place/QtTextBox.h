#pragma once

#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QRect>
#include <functional>

#include <nvlist/platform/TextBox.h>

namespace norvane {

/// Qt's line edit in front of a control. If the widget around it is destroyed first, the edit goes
/// with it, and all calls do nothing.
class QtTextBox final : public QObject, public TextBox {
 public:
  struct Handlers {
    std::function<void(std::int16_t& character)> keyPress;
    /// Called when the edit gets or loses the focus, and when the pointer enters it: with FocusIn,
    /// FocusOut or Enter.
    std::function<void(QEvent::Type)> notify;
    /// Where the parent shows an area of the control, which may be mirrored in it.
    std::function<QRect(const QRect&)> shown;
  };
  QtTextBox(QWidget& parent, Handlers handlers);
  ~QtTextBox() override;

  void Font(const norvane::Font& font) override;
  void ForeColor(Colour colour) override;
  std::string Text() const override;
  void Text(const std::string& text) override;
  Bounds place() const override { return place_; }
  void Move(const Bounds& bounds) override;
  /// Puts the edit to where its place is shown now.
  void follow();
  bool Visible() const override;
  void Visible(bool isVisible) override;
  void SetFocus() override;
  void select(std::int32_t start, std::int32_t length) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QLineEdit> edit_;
  const Handlers handlers_;
  Bounds place_;
};

}  // namespace norvane
