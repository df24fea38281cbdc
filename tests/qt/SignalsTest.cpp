#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>

#include <nvlist/platform/headless/HeadlessApplication.h>

namespace norvane {
namespace {

/// A list of twenty rows of 16 pixels whose signals are recorded.
class Signals : public testing::Test {
 protected:
  Signals() {
    widget->resize(200, 150);
    list->Style(cCheckBoxes);
    list->MinHeight(16);
    list->MultiSelect(true);
    for (int i = 0; i < 20; ++i) widget->addItem(QString::number(i), "key" + QString::number(i));
    widget->show();
    connectAll();
  }
  ~Signals() override {
    delete widget;
    for (const auto& box : application.boxes) ADD_FAILURE() << box.text;
  }

  void connectAll() {
    const auto on = [&](auto signal, const char* name) {
      QObject::connect(widget, signal, [this, name](auto... values) {
        std::string text = name;
        ((text += " " + textOf(values)), ...);
        told += (told.empty() ? "" : ", ") + text;
        if (onSignal) onSignal(name);
      });
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
  }
  static std::string textOf(int number) { return std::to_string(number); }
  static std::string textOf(const QString& text) { return text.toStdString(); }
  static std::string textOf(QPoint at) { return textOf(at.x()) + "," + textOf(at.y()); }

  std::string heard() { return std::exchange(told, {}); }
  static QPoint row(int index, int x = 60) { return {x, 12 + 16 * index}; }
  void click(int index, Qt::KeyboardModifiers keys = {}, int x = 60) {
    QTest::mousePress(widget, Qt::LeftButton, keys, row(index, x));
    if (widget) QTest::mouseRelease(widget, Qt::LeftButton, keys, row(index, x));
  }

  HeadlessApplication application;
  QPointer<NvListWidget> widget = new NvListWidget;
  nvList* list = &widget->list();
  std::string told;
  std::function<void(const std::string& name)> onSignal;
};

TEST_F(Signals, followWhatTheUserAndTheHostDo) {
  const struct {
    const char* name;
    std::function<void()> act;
    const char* emitted;
  } cases[] = {
      {"host selects", [&] { list->ListIndex(3); }, "current 3, selection"},
      {"again", [&] { list->ListIndex(3); }, ""},
      {"click on the selected row", [&] { click(3); }, ""},
      {"click", [&] { click(4); }, "current 4, selection"},
      {"extend", [&] { click(6, Qt::ShiftModifier); }, "current 6, selection"},
      {"check", [&] { click(6, {}, 9); }, "selection, checked 6 1"},
      {"host checks", [&] { list->ItemChecked(6, false); }, ""},
      {"key", [&] { QTest::keyClick(widget, Qt::Key_Down); }, "current 7, selection"},
      {"clear", [&] { widget->clearSelection(); }, "selection"},
      {"clear nothing", [&] { widget->clearSelection(); }, ""},
      {"select without the current one", [&] { list->ListIndex(7); }, "selection"},
      {"remove a selected item", [&] { list->ItemsRemove(7); }, "selection"},
      {"remove another one", [&] { list->ItemsRemove(7); }, ""},
      {"return", [&] { QTest::keyClick(widget, Qt::Key_Return); }, "activated 7"},
      {"bad index", [&] { list->ListIndex(99); }, "wrong 99"},
      {"scroll", [&] { list->TopIndex(5); }, "scrolled"},
      {"scroll to the same", [&] { widget->scrollTo(6); }, ""},
      {"scroll into view", [&] { widget->scrollTo(17); }, "scrolled"},
      {"no file", [&] { list->ListInput("no such file"); }, "inputFailed"},
      {"clear all", [&] { list->ItemsClear(); }, "current 0, scrolled"},
  };
  for (const auto& c : cases) {
    c.act();
    EXPECT_EQ(heard(), c.emitted) << c.name;
  }
}

TEST_F(Signals, tellOfEditsMovesAndMenus) {
  list->AllowEdit(true);
  for (int i = 0; i < 20; ++i) list->ItemAllowEdit(i, true);
  click(2), click(2);
  auto* const edit = widget->findChild<QLineEdit*>();
  ASSERT_TRUE(edit && edit->isVisible());
  heard();
  QTest::keyClicks(edit, "Zoe");
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(heard(), "edited 2 Zoe");

  const auto menu = [&](QContextMenuEvent::Reason reason, QPoint at) {
    QContextMenuEvent event(reason, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &event);
    EXPECT_TRUE(event.isAccepted());
    return heard();
  };
  EXPECT_EQ(menu(QContextMenuEvent::Mouse, row(4)), "menu 4 60,76");
  EXPECT_EQ(menu(QContextMenuEvent::Keyboard, {}), "menu 2 1,50");
  list->ItemsClear();
  heard();
  EXPECT_EQ(menu(QContextMenuEvent::Mouse, row(4)), "menu -1 60,76");
}

TEST_F(Signals, tellOfAMoveByTheMouse) {
  list->AllowItemMoving(true);
  QTest::mousePress(widget, Qt::LeftButton, {}, row(1));
  heard();
  QMouseEvent move(QEvent::MouseMove, row(4), widget->mapToGlobal(row(4)), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(widget, &move);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, row(4));
  EXPECT_EQ(heard(), "current 3, moved 1 3");
  EXPECT_EQ(widget->itemText(3), "1");
}

TEST_F(Signals, mayPreventACheck) {
  bool isPrevented = true;
  QObject::connect(widget, &NvListWidget::itemAboutToBeChecked,
                   [&](int, bool& cancel) { cancel = isPrevented; });
  click(3, {}, 9);
  EXPECT_EQ(heard(), "current 3, selection");
  isPrevented = false;
  click(3, {}, 9);
  EXPECT_EQ(heard(), "checked 3 1");
}

/// Several changes in one call, or in a handler that it calls, are one change.
TEST_F(Signals, waitForTheEndOfTheCall) {
  struct Host : __nvList {
    Host(nvList& of, const std::string& record) : calls(of), heardSoFar(record) {}
    void Click() override {
      calls.ListIndex(8);
      calls.ListIndex(9);
      EXPECT_EQ(heardSoFar, "");
    }
    nvList& calls;
    const std::string& heardSoFar;
  } host(*list, told);
  list->addSink(host);
  QTest::mousePress(widget, Qt::LeftButton, {}, row(2));
  heard();
  QTest::mouseRelease(widget, Qt::LeftButton, {}, row(2));
  EXPECT_EQ(heard(), "current 9, selection, scrolled");
  list->removeSink(host);
}

/// A slot may open a dialog with another list, whose signals work meanwhile.
TEST_F(Signals, mayOpenADialog) {
  std::string inDialog;
  onSignal = [&](const std::string& name) {
    if (name != "current") return;
    onSignal = nullptr;
    QDialog dialog;
    NvListWidget other(&dialog);
    other.addItem("a");
    QObject::connect(&other, &NvListWidget::currentChanged,
                     [&](int index) { inDialog += std::to_string(index); });
    QTimer::singleShot(0, &dialog, [&] {
      other.list().ListIndex(0);
      dialog.accept();
    });
    dialog.exec();
  };
  click(2);
  EXPECT_EQ(inDialog, "0");
}

TEST_F(Signals, mayEndTheWidget) {
  const struct {
    const char* signal;
    std::function<void()> act;
  } cases[] = {
      {"current", [&] { click(2); }},
      {"current", [&] { widget->list().ListIndex(2); }},
      {"selection", [&] { click(2); }},
      {"scrolled", [&] { widget->list().TopIndex(4); }},
      {"checked", [&] { click(2, {}, 9); }},
      {"activated", [&] { QTest::keyPress(widget, Qt::Key_Return); }},
      {"menu",
       [&] {
         QContextMenuEvent event(QContextMenuEvent::Mouse, row(1), widget->mapToGlobal(row(1)));
         QApplication::sendEvent(widget, &event);
       }},
      {"wrong", [&] { widget->list().ListIndex(99); }},
      {"edited",
       [&] {
         widget->list().AllowEdit(true);
         widget->list().ItemAllowEdit(1, true);
         widget->list().ListIndex(1);
         widget->list().SetEdit(1);
         QTest::keyClick(widget->findChild<QLineEdit*>(), Qt::Key_Return);
       }},
  };
  for (const auto& c : cases) {
    if (!widget) {
      widget = new NvListWidget;
      widget->resize(200, 150);
      widget->list().Style(cCheckBoxes);
      widget->list().MinHeight(16);
      for (int i = 0; i < 20; ++i) widget->addItem(QString::number(i));
      widget->list().ListIndex(0);
      widget->show();
      connectAll();
    }
    onSignal = [&](const std::string& name) {
      if (name == c.signal) delete widget;
    };
    c.act();
    EXPECT_FALSE(widget) << c.signal << " " << &c - cases;
    onSignal = nullptr;
    QTest::qWait(3);
  }
}

/// What indexAt says is what a press hits, everywhere, also on the bar and on the frame.
TEST_F(Signals, theIndexAtAPointIsTheOneThatAClickHits) {
  list->AllowItemMoving(false);
  for (const int top : {0, 7})
    for (int y = -2; y < 160; ++y)
      for (const int x : {-1, 60, 190}) {
        list->TopIndex(top);
        widget->clearSelection();
        const int index = widget->indexAt({x, y});
        QTest::mousePress(widget, Qt::LeftButton, {}, {x, y});
        const auto hit = widget->selectedIndexes();
        QTest::mouseRelease(widget, Qt::LeftButton, {}, {x, y});
        ASSERT_EQ(hit, index < 0 ? QList<int>() : QList<int>{index}) << top << " " << x << "," << y;
      }
}

TEST_F(Signals, anItemsRectangleIsWhereItIsPainted) {
  list->IndentTop(5);
  list->TopIndex(2);
  list->ListIndex(4);
  const QRect rect = widget->itemRect(4);
  EXPECT_EQ(rect, QRect(1, 37, 181, 16));
  const QImage image = widget->grab().toImage();
  const QRgb selected = image.pixel(rect.center());
  EXPECT_EQ(image.pixel(100, rect.top()), selected);
  EXPECT_EQ(image.pixel(100, rect.bottom()), selected);
  EXPECT_NE(image.pixel(100, rect.top() - 1), selected);
  EXPECT_NE(image.pixel(100, rect.bottom() + 1), selected);
  EXPECT_EQ(widget->itemRect(0).top(), 5 - 32);
  EXPECT_TRUE(widget->itemRect(20).isEmpty());
}

TEST_F(Signals, textsAndKeysAreThoseOfQt) {
  const QString odd = QString::fromUtf8("*[ä]?#");
  widget->setItemText(5, odd);
  widget->setItemKey(5, odd);
  EXPECT_EQ(widget->itemText(5), odd);
  EXPECT_EQ(widget->indexOfText(odd), 5);
  EXPECT_EQ(widget->indexOfText("*"), -1);
  EXPECT_EQ(widget->indexOfKey(odd), 5);
  EXPECT_EQ(widget->indexOfKey("key7"), 7);
  EXPECT_EQ(widget->addItem("last"), 20);
  EXPECT_EQ(widget->count(), 21);
}

}  // namespace
}  // namespace norvane
