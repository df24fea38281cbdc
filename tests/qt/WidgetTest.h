#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QScroller>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/NvListKeys.h>
#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// A list of 200 by 200 pixels with rows of 16 pixels, twelve of them visible, between two line
/// edits on the active form. It is driven by scripts, and can record the events of the list and the
/// signals of the widget. A report is a failure of the test.
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
    QToolTip::hideText();
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
  /// Between the layout from left to right, which the points below are of, and that of the widget.
  QRect mirrored(const QRect& area) const {
    return widget->place().isMirrored()
               ? QRect(widget->width() - area.right() - 1, area.y(), area.width(), area.height())
               : area;
  }
  QPoint mirrored(QPoint at) const { return mirrored(QRect(at, QSize(1, 1))).topLeft(); }

  /// Runs the commands of a script, separated by semicolons, until the widget ends. Returns their
  /// outputs. Rows are those of the window; an output without text is "-". The name of a stored
  /// property of the list, or of a property of the widget, sets that property. Keys and texts go to
  /// the widget with the focus.
  std::string run(const std::string& script) {
    std::istringstream commands(script);
    std::string outputs;
    for (std::string command; widget && std::getline(commands, command, ';');) {
      std::istringstream words(command);
      std::string verb, rest;
      std::getline(words >> verb >> std::ws, rest);
      int first = 0, second = 60;
      std::istringstream(rest) >> first >> second;
      const std::string output = perform(verb, rest, first, second);
      if (output != nothing) outputs += (outputs.empty() ? "" : " / ") + output;
    }
    return outputs;
  }

  /// What the host does in an event: commands with a + between them.
  void on(const std::string& event, std::string deed) {
    std::ranges::replace(deed, '+', ';');
    onEvent = [this, event, deed](const std::string& name) {
      if (name == event) run(deed);
    };
  }

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

  // ---- what is recorded ----

  /// Returns the events and signals since the last call, each with its arguments.
  std::string heard() { return std::exchange(told, {}); }
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
  void ItemCheck(std::int32_t& Item, Boolean&) override { hear("ItemCheck", Item); }
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
  bool preventsChecks = false;
  bool swallowsKeys = false;
  /// What the host does in an event or signal.
  std::function<void(const std::string& name)> onEvent = [](const std::string&) {};

 private:
  static constexpr const char* nothing = "nothing";

  std::string perform(const std::string& verb, const std::string& text, int a, int b) {
    QWidget* const focused = QApplication::focusWidget();
    const auto send = [](QObject* to, QEvent&& event) { QApplication::sendEvent(to, &event); };
    // clang-format off
    // The host.
    if (verb == "fill") fill(a);
    else if (verb == "add") add(text);
    else if (verb == "clear") list().ItemsClear();
    else if (verb == "disable") list().ItemEnabled(a, false);
    else if (verb == "select") list().ListIndex(a);
    else if (verb == "scroll") list().TopIndex(a);
    else if (verb == "edit") list().SetEdit(a);
    else if (verb == "fit") list().CheckScroll();
    else if (verb == "remove") list().ItemsRemove(a);
    else if (verb == "check") list().ItemChecked(a, b != 0);
    else if (verb == "load") list().ListInput(text);
    else if (verb == "setText") list().ItemText(a, text.substr(text.find(' ') + 1));
    else if (verb == "deselect") widget->clearSelection();
    else if (verb == "scrollTo") widget->scrollTo(a);
    else if (verb == "typingInterval") widget->findChild<NvListKeys*>()->setTypingInterval(a);
    else if (verb == "preventChecks") preventsChecks = a != 0;
    else if (verb == "hearEvents") list().addSink(*this);
    else if (verb == "hearSignals") hearSignals();
    else if (verb == "swallowKeys") swallowsKeys = true;
    else if (verb == "mirror") run("mirrorsLayout 1; layoutDirection RightToLeft");
    else if (verb == "resize") widget->resize(a, b), QCoreApplication::processEvents();
    else if (verb == "keys")
      QObject::connect(new NvListKeys(*widget), &NvListKeys::deleteRequested,
                       [this] { hear("deleteRequested"); });
    else if (verb == "drops") allowDrops();
    else if (verb == "end") delete widget;
    else if (verb == "endSoon") QTimer::singleShot(0, widget, [this] { delete widget; });
    else if (verb == "yieldOften") yieldOften();
    else if (verb == "loop") QTimer::singleShot(0, widget, [this] { run("clear"); }), QTest::qWait(1);
    else if (verb == "close") widget->close();
    else if (verb == "throw") throw 1;
    else if (verb == "on") on(text.substr(0, text.find(' ')), text.substr(text.find(' ') + 1));
    else if (const auto* property = storedProperty(verb)) property->set(list(), a);
    // The user.
    else if (verb == "click") click(a, {}, b);
    else if (verb == "shiftClick") click(a, Qt::ShiftModifier);
    else if (verb == "ctrlClick") click(a, Qt::ControlModifier);
    else if (verb == "double") {
      click(a);
      QTest::mouseDClick(widget, Qt::LeftButton, {}, mirrored(row(a)));
      release(row(a));
    }
    else if (verb == "press") press(row(a));
    else if (verb == "pressAt") press({a, b});
    else if (verb == "dragTo") drag({a, b});
    else if (verb == "drag") drag(row(a));
    else if (verb == "release") release(row(a, b));
    else if (verb == "releaseAt") release({a, b});
    else if (verb == "button") QTest::mouseClick(widget, Qt::MouseButton(a), {}, row(8));
    else if (verb == "wheel") turn({0, a});
    else if (verb == "sideways") turn({a, 0});
    else if (verb == "touch") QScroller::scroller(widget)->scrollTo(QPointF(a, b), 0);
    else if (verb == "hold") return hold(a);
    else if (verb == "holdColour")
      return sendDrag<QDragEnterEvent>(a, "application/x-color") ? "taken" : "refused";
    else if (verb == "drop") hold(a), sendDrag<QDropEvent>(a);
    else if (verb == "dragOff") send(widget, QDragLeaveEvent());
    else if (verb == "dragOut") return dragOut(a, b);
    else if (verb == "type") QTest::keyClicks(focused, QString::fromStdString(text));
    else if (verb == "key") {
      const QKeyCombination keys = QKeySequence(QString::fromStdString(text))[0];
      QTest::keyClick(focused, keys.key(), keys.keyboardModifiers());
    }
    else if (verb == "repeat") send(focused, QKeyEvent(QEvent::KeyRelease, Qt::Key_A, {}, "a", true));
    else if (verb == "compose") {
      QInputMethodEvent composed;
      composed.setCommitString(QString::fromStdString(text));
      send(focused, QInputMethodEvent("ni hao", {}));
      send(focused, std::move(composed));
    }
    else if (verb == "menu")
      send(widget, QContextMenuEvent(QContextMenuEvent::Mouse, row(a), widget->mapToGlobal(row(a))));
    else if (verb == "menuKey") send(widget, QContextMenuEvent(QContextMenuEvent::Keyboard, {}, {}));
    else if (verb == "leave") lineAfter.setFocus();
    else if (verb == "enter") widget->setFocus();
    else if (verb == "popUp") send(focused, QFocusEvent(QEvent::FocusOut, Qt::PopupFocusReason));
    // Outputs. Places are those of the layout from left to right.
    else if (verb == "forget") heard();
    else if (verb == "heard") return shown(heard());
    else if (verb == "state") return state();
    else if (verb == "reach") EXPECT_TRUE(QTest::qWaitFor([&] { return list().TopIndex() == a; }));
    else if (verb == "rest") QTest::qWait(200);
    else if (verb == "top") return std::to_string(list().TopIndex());
    else if (verb == "left") return std::to_string(list().horizontalBar().Value());
    else if (verb == "text") return list().ItemText(a);
    else if (verb == "texts") return texts();
    else if (verb == "checked") return list().ItemChecked(a) ? "yes" : "no";
    else if (verb == "clipboard") return QApplication::clipboard()->text().toStdString();
    else if (verb == "editing")
      return edit().isVisible() ? shown(edit().text().toStdString()) : "closed";
    else if (verb == "hasFocus") return list().state().HasFocus ? "yes" : "no";
    else if (verb == "rect") return shown(widget->itemRect(a));
    else if (verb == "at") return std::to_string(widget->indexAt(mirrored(QPoint(a, b))));
    else if (verb == "box") {
      EXPECT_EQ(edit().alignment().testFlag(Qt::AlignAbsolute), widget->place().isMirrored());
      return shown(edit().geometry());
    }
    else if (verb == "mark") return mark->isVisible() ? shown(mark->geometry()) : "-";
    else if (verb == "tip") return shown(tipAt(a));
    else if (verb == "pressed") return widget->place().mouse().pressed() ? "yes" : "no";
    else if (verb == "focus")
      return focused == widget ? "list" : focused == &edit() ? "edit" : "other";
    else EXPECT_TRUE(widget->setProperty(verb.c_str(), QString::fromStdString(text))) << verb;
    // clang-format on
    return nothing;
  }

  void yieldOften() {
    nvList& control = list();
    for (int i = 0; i < 2000 && widget; ++i) control.ItemsAdd(i), control.ItemsRemove(0);
  }

  void allowDrops() {
    auto* const drop = new NvListDrop(*widget);
    drop->setDragsRows(true);
    mark = widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).last();
    QObject::connect(drop, &NvListDrop::dropped, [this](const QMimeData* data, int index) {
      hear("dropped", data->text(), index);
    });
  }
  template <class Event>
  bool sendDrag(int y, const char* type = "text/plain") {
    QMimeData data;
    data.setData(type, "text");
    Event event(mirrored(QPoint(60, y)), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  /// Holds a text over the list. Returns where the mark is.
  std::string hold(int y) {
    const bool isTaken = sendDrag<QDragEnterEvent>(y) && sendDrag<QDragMoveEvent>(y);
    return isTaken ? shown(mark->geometry()) : "refused";
  }
  /// The text that is dragged out by a press on a row and a move to another.
  std::string dragOut(int from, int to) {
    QString dragged;
    // The drag deletes itself later.
    const auto look = [&] {
      if (const auto* const data = widget->findChild<QDrag*>()) dragged = data->mimeData()->text();
    };
    QTimer::singleShot(0, widget, [&] {
      look();
      QDrag::cancel();
    });
    press(row(from)), drag(row(to));
    if (dragged.isEmpty()) look();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return dragged.replace('\n', '+').toStdString();
  }

  std::string tipAt(int index) {
    const QPoint at = mirrored(row(index));
    // A hidden tip keeps its text for a while.
    QToolTip::showText(widget->mapToGlobal(at), "none", widget);
    QHelpEvent help(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &help);
    const QString tip = QToolTip::text().remove("none");
    return tip.isEmpty() ? "" : tip.split("pre-wrap'>").last().remove("</p>").toStdString();
  }

  /// The current row, and the selected ones in brackets.
  std::string state() {
    std::string rows;
    for (const int index : widget->selectedIndexes())
      rows += (rows.empty() ? "" : " ") + std::to_string(index);
    return std::to_string(list().ListIndex()) + " (" + rows + ")";
  }
  std::string texts() {
    std::string result;
    for (int i = 0; i < list().ItemsCount(); ++i) result += (i ? " " : "") + list().ItemText(i);
    return result;
  }
  std::string shown(const QRect& area) {
    if (area.isEmpty()) return "none";
    const QRect plain = mirrored(area);
    return std::to_string(plain.x()) + " " + std::to_string(plain.y()) + " " +
           std::to_string(plain.width()) + "x" + std::to_string(plain.height());
  }
  static std::string shown(const std::string& text) { return text.empty() ? "-" : text; }

  static std::string word(int number) { return std::to_string(number); }
  static std::string word(const QString& text) { return text.toStdString(); }
  static std::string word(QPoint at) { return word(at.x()) + "," + word(at.y()); }

  std::string told;
  QPointer<QWidget> mark;
};

}  // namespace norvane
