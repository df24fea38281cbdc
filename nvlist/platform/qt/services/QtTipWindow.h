#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <nvlist/platform/TipStore.h>

namespace norvane {

/// Tool tips for widgets: a small window beside the mouse while it is over a tool. It starts with
/// the font and the colours of Qt's tool tips. Tools are identified by handleOf() (QtWindow.h).
///
/// A tip closes when the mouse leaves the widget, when a button is pressed on it, or after its
/// time. It opens again only after the mouse has left.
class QtTipWindow final : public QObject, public TipStore {
 public:
  /// For the widgets on a form. No tip opens once the form is destroyed.
  explicit QtTipWindow(QWidget& form);
  ~QtTipWindow() override;

  bool addTool(const TipTool& tool) override;
  void deleteTool(const TipTool& tool) override;
  void updateText(const TipTool& tool) override;
  using TipStore::backColour;
  void backColour(Colour colour) override;
  using TipStore::textColour;
  std::int32_t textColour(Colour colour) override;
  using TipStore::margin;
  void margin(const Rectangle& sides) override;
  using TipStore::maxTipWidth;
  void maxTipWidth(std::int32_t pixels) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class Tip;

  bool isTool(const QWidget& widget) const;
  /// The text for the widget under the mouse.
  QString text() const;
  void enter(QWidget& widget);
  void leave(QWidget& widget);
  /// Starts the timer, which runs out after the mouse has rested for that delay.
  void waitFor(TipDelay which);
  void timeOver();
  void show();
  void hide();
  /// Updates an open tip to the current text and look.
  void refresh();
  bool isShown() const;

  QPointer<QWidget> form_;
  /// The widget under the mouse.
  QPointer<QWidget> tool_;
  QPointer<Tip> tip_;
  QTimer timer_;
  QPoint restsAt_;
  QElapsedTimer sinceHidden_;
};

}  // namespace norvane
