#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <string>
#include <utility>

#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// Number of black pixels.
inline int inkOf(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ink += image.pixelColor(x, y) == Qt::black;
  return ink;
}

/// A list of 200 by 200 pixels with rows of 16 pixels, twelve of them visible, between two line
/// edits on the active form. Can record the events of the list and the signals of the widget. A
/// report is a failure of the test.
class WidgetTest : public testing::Test, public __nvList {
 protected:
  WidgetTest() {
    make();
    lineAfter.setParent(&form);
    form.resize(220, 260);
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    widget->setFocus();
  }
  ~WidgetTest() override {
    delete widget;
    for (const auto& box : application.boxes) ADD_FAILURE() << box.text;
  }

  void make() {
    widget = new NvListWidget(&form);
    widget->setGeometry(0, 20, 200, 200);
    widget->show();
    list().MinHeight(16);
  }
  nvList& list() { return widget->list(); }
  QLineEdit& edit() { return *widget->editBox(); }

  void add(const std::string& text) { list().ItemsAdd({.aText = text, .aAllowEdit = true}); }
  /// Adds items with the texts 0, 1, ...
  void fill(int count) {
    for (int i = 0; i < count; ++i) add(std::to_string(i));
  }
  /// The current row, and the selected ones in brackets.
  std::string state() {
    std::string rows;
    for (const int index : widget->selectedIndexes())
      rows += (rows.empty() ? "" : " ") + std::to_string(index);
    return std::to_string(list().ListIndex()) + " (" + rows + ")";
  }

  void mirror() {
    widget->setMirrorsLayout(true);
    widget->setLayoutDirection(Qt::RightToLeft);
  }
  /// Between the layout from left to right, which the points below are of, and that of the widget.
  QRect mirrored(const QRect& area) const {
    return widget->place().isMirrored()
               ? QRect(widget->width() - area.right() - 1, area.y(), area.width(), area.height())
               : area;
  }
  QPoint mirrored(QPoint at) const { return mirrored(QRect(at, QSize(1, 1))).topLeft(); }

  // ---- the hand: rows are those of the window; events are those of a real mouse ----

  static QPoint row(int index, int x = 60) { return {x, 12 + 16 * index}; }
  void press(QPoint at, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(widget, Qt::LeftButton, keys, mirrored(at));
  }
  void release(QPoint at, Qt::KeyboardModifiers keys = {}) {
    if (widget) QTest::mouseRelease(widget, Qt::LeftButton, keys, mirrored(at));
  }
  void click(int index, Qt::KeyboardModifiers keys = {}, int x = 60) {
    press(row(index, x), keys);
    release(row(index, x), keys);
  }
  void doubleClick(int index) {
    click(index);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, mirrored(row(index)));
    release(row(index));
  }
  void drag(QPoint at) {
    const QPoint to = mirrored(at);
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(widget, &move);
  }
  void turn(QPoint delta) {
    const QPointF at(50, 50);
    QWheelEvent event(at, widget->mapToGlobal(at), {}, delta, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }
  void key(int code, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(widget, static_cast<Qt::Key>(code), keys);
  }

  // ---- what is recorded ----

  /// Returns the events and signals since the last call, each with its arguments.
  std::string heard() { return std::exchange(told, {}); }
  void hearEvents() { list().addSink(*this); }
  void hearSignals() {
    const auto on = [&](auto signal, const char* name) {
      QObject::connect(widget, signal,
                       [this, name](auto... values) { this->hear(name, values...); });
    };
    on(&NvListWidget::currentChanged, "current");
    on(&NvListWidget::selectionChanged, "selection");
    on(&NvListWidget::scrolled, "scrolled");
    on(&NvListWidget::itemChecked, "checked");
    on(&NvListWidget::itemEdited, "edited");
    on(&NvListWidget::itemMoved, "moved");
    on(&NvListWidget::itemActivated, "activated");
    on(&NvListWidget::contextMenuRequested, "menu");
    on(&NvListWidget::wrongIndex, "wrong");
    on(&NvListWidget::inputFailed, "inputFailed");
    QObject::connect(widget, &NvListWidget::itemAboutToBeChecked,
                     [this](int, bool& cancel) { cancel = preventsChecks; });
  }

  template <class... Values>
  void hear(const std::string& name, Values... values) {
    EXPECT_TRUE(widget) << name << " after the end";
    told += (told.empty() ? "" : ", ") + name;
    ((told += " " + word(values)), ...);
    const auto act = onEvent;
    act(name);
  }

  void Click() override { hear("Click"); }
  void DblClick() override { hear("DblClick"); }
  void ItemCheck(std::int32_t& Item, Boolean& Cancel) override {
    Cancel = refusesChecks;
    hear("ItemCheck", Item);
  }
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float&, float&) override {
    hear("MouseDown", Button, Shift);
  }
  void MouseUp(std::int16_t& Button, std::int16_t&, float&, float&) override {
    hear("MouseUp", Button);
  }
  void Scroll() override { hear("Scroll"); }
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
    const std::int16_t code = KeyCode;
    if (swallowsKeys) KeyCode = 0;
    hear("KeyDown", code, Shift);
  }
  void KeyPress(std::int16_t& KeyAscii) override { hear("KeyPress", KeyAscii); }
  void KeyUp(std::int16_t& KeyCode, std::int16_t&) override { hear("KeyUp", KeyCode); }
  void ErrorWrongIndex(Variant&) override { hear("ErrorWrongIndex"); }

  HeadlessApplication application;
  QWidget form;
  QLineEdit lineBefore{&form};
  QPointer<NvListWidget> widget;
  QLineEdit lineAfter;
  bool refusesChecks = false;
  bool preventsChecks = false;
  bool swallowsKeys = false;
  /// What the host does in an event or signal.
  std::function<void(const std::string& name)> onEvent = [](const std::string&) {};

 private:
  static std::string word(int number) { return std::to_string(number); }
  static std::string word(const QString& text) { return text.toStdString(); }
  static std::string word(QPoint at) { return word(at.x()) + "," + word(at.y()); }

  std::string told;
};

}  // namespace norvane
