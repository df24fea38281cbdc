#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <nvlist/platform/TipStore.h>

namespace norvane {

/// Tips over widgets: a small window beside the mouse, over a widget that was given as a tool. It
/// starts with the font and the colours of Qt's own tips. Tools are known by handleOf()
/// (QtWindow.h).
///
/// A tip goes when the mouse leaves the widget or presses on it, and when its time is over; it
/// shows again only after the mouse has left.
class QtTipWindow final : public QObject, public TipStore {
 public:
  /// For the widgets on a form. Once the form is gone nothing shows.
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
  /// Of the widget that the mouse is over.
  QString text() const;
  void enter(QWidget& widget);
  void leave(QWidget& widget);
  /// Lets the timer run out once the mouse has rested so long.
  void waitFor(TipDelay which);
  void timeOver();
  void show();
  void hide();
  /// Gives a tip that shows the look and the text of now.
  void refresh();
  bool isShown() const;

  QPointer<QWidget> form_;
  /// Over which the mouse is.
  QPointer<QWidget> tool_;
  QPointer<Tip> tip_;
  QTimer timer_;
  QPoint restsAt_;
  QElapsedTimer sinceHidden_;
};

}  // namespace norvane
