#pragma once

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScroller>
#include <QToolTip>
#include <algorithm>
#include <sstream>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/NvListKeys.h>

#include "WidgetTest.h"

namespace norvane {

/// A list widget that is driven by scripts.
class WidgetScript : public WidgetTest {
 protected:
  ~WidgetScript() override { QToolTip::hideText(); }

  /// Runs the commands of a script, separated by semicolons, until the widget ends. Returns their
  /// outputs. Rows are those of the window; an output without text is "-". The name of a stored
  /// property sets that property to a number. Keys and texts go to the widget with the focus.
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

 private:
  static constexpr const char* nothing = "nothing";

  std::string perform(const std::string& verb, const std::string& text, int a, int b) {
    QWidget* const focused = QApplication::focusWidget();
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
    else if (verb == "fineWheel") widget->setPassesFineWheel(a != 0);
    else if (verb == "remove") list().ItemsRemove(a);
    else if (verb == "check") list().ItemChecked(a, b != 0);
    else if (verb == "load") list().ListInput(text);
    else if (verb == "setText") list().ItemText(a, text.substr(text.find(' ') + 1));
    else if (verb == "deselect") widget->clearSelection();
    else if (verb == "scrollTo") widget->scrollTo(a);
    else if (verb == "typingInterval") widget->findChild<NvListKeys*>()->setTypingInterval(a);
    else if (verb == "refuseChecks") refusesChecks = true;
    else if (verb == "preventChecks") preventsChecks = a != 0;
    else if (verb == "hearEvents") hearEvents();
    else if (verb == "swallowKeys") swallowsKeys = true;
    else if (verb == "enable") widget->setEnabled(a != 0);
    else if (verb == "mirror") mirror();
    else if (verb == "resize") widget->resize(a, b), QCoreApplication::processEvents();
    else if (verb == "keys")
      QObject::connect(new NvListKeys(*widget), &NvListKeys::deleteRequested,
                       [this] { hear("deleteRequested"); });
    else if (verb == "noKeys") delete widget->findChild<NvListKeys*>();
    else if (verb == "tips") widget->setShowsCutTexts(a != 0);
    else if (verb == "toolTip") widget->setToolTip(QString::fromStdString(text));
    else if (verb == "drops") allowDrops();
    else if (verb == "end") delete widget;
    else if (verb == "endSoon") QTimer::singleShot(0, widget, [this] { delete widget; });
    else if (verb == "yieldOften") yieldOften();
    else if (verb == "on") on(text.substr(0, text.find(' ')), text.substr(text.find(' ') + 1));
    else if (const auto* property = storedProperty(verb)) property->set(list(), a);
    // The user.
    else if (verb == "click") click(a, {}, b);
    else if (verb == "shiftClick") click(a, Qt::ShiftModifier);
    else if (verb == "ctrlClick") click(a, Qt::ControlModifier);
    else if (verb == "double") doubleClick(a);
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
    else if (verb == "holdColour") return sendDrag<QDragEnterEvent>(a, false) ? "taken" : "refused";
    else if (verb == "drop") hold(a), sendDrag<QDropEvent>(a);
    else if (verb == "dragOff") {
      QDragLeaveEvent off;
      QCoreApplication::sendEvent(widget, &off);
    } else if (verb == "dragOut") return dragOut(a, b);
    else if (verb == "type") QTest::keyClicks(focused, QString::fromStdString(text));
    else if (verb == "key") {
      const QKeyCombination keys = QKeySequence(QString::fromStdString(text))[0];
      QTest::keyClick(focused, keys.key(), keys.keyboardModifiers());
    } else if (verb == "repeat") {
      QKeyEvent again(QEvent::KeyRelease, Qt::Key_A, {}, "a", true);
      QCoreApplication::sendEvent(focused, &again);
    } else if (verb == "compose") {
      QInputMethodEvent composing("ni hao", {}), composed;
      QCoreApplication::sendEvent(focused, &composing);
      composed.setCommitString(QString::fromStdString(text));
      QCoreApplication::sendEvent(focused, &composed);
    } else if (verb == "menu") menu(QContextMenuEvent::Mouse, row(a));
    else if (verb == "menuKey") menu(QContextMenuEvent::Keyboard, {});
    else if (verb == "leave") lineAfter.setFocus();
    else if (verb == "enter") widget->setFocus();
    else if (verb == "popUp") {
      QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
      QCoreApplication::sendEvent(focused, &menu);
    }
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
    else if (verb == "readable") return readable(a);
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
    else ADD_FAILURE() << "no verb " << verb;
    // clang-format on
    return nothing;
  }
  void menu(QContextMenuEvent::Reason reason, QPoint at) {
    QContextMenuEvent event(reason, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &event);
    EXPECT_TRUE(event.isAccepted());
  }

  /// What the host does in an event: commands with a + between them.
  void on(const std::string& event, std::string deed) {
    std::ranges::replace(deed, '+', ';');
    onEvent = [this, event, deed](const std::string& name) {
      if (name == event) run(deed);
    };
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
  /// Of a text or a colour.
  template <class Event>
  bool sendDrag(int y, bool isText = true) {
    QMimeData data;
    if (isText)
      data.setText("text");
    else
      data.setColorData(QColor(Qt::red));
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
  std::string readable(int child) {
    const QRect onScreen = QAccessible::queryAccessibleInterface(widget)->child(child)->rect();
    return shown(QRect(widget->mapFromGlobal(onScreen.topLeft()), onScreen.size()));
  }
  std::string shown(const QRect& area) {
    if (area.isEmpty()) return "none";
    const QRect plain = mirrored(area);
    return std::to_string(plain.x()) + " " + std::to_string(plain.y()) + " " +
           std::to_string(plain.width()) + "x" + std::to_string(plain.height());
  }
  static std::string shown(const std::string& text) { return text.empty() ? "-" : text; }
  std::string texts() {
    std::string result;
    for (int i = 0; i < list().ItemsCount(); ++i) result += (i ? " " : "") + list().ItemText(i);
    return result;
  }

  QPointer<QWidget> mark;
};

}  // namespace norvane
