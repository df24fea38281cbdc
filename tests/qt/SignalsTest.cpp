#include <nvlist/objects/Trap.h>

#include "WidgetTest.h"

namespace norvane {
namespace {

class Signals : public WidgetTest {
 protected:
  Signals() { run("Style 1; MultiSelect 1; fill 20; hearSignals"); }
};

/// Not even at a widget that has the place of the first one in memory.
TEST_F(Signals, EndWithTheWidget) {
  alignas(NvListWidget) std::byte place[sizeof(NvListWidget)];
  auto* first = new (place) NvListWidget;
  first->addItem("a");
  int selections = 0;
  const auto count = [&] { ++selections; };
  QObject::connect(first, &NvListWidget::selectionChanged, count);
  QObject::connect(first, &NvListWidget::currentChanged, [&] {
    first->~NvListWidget();
    first = new (place) NvListWidget;
    QObject::connect(first, &NvListWidget::selectionChanged, count);
  });
  first->list().ListIndex(0);
  EXPECT_EQ(selections, 0);
  first->~NvListWidget();
}

/// Also where the receiver has ended.
TEST_F(Signals, AreConnectedAtAnyTime) {
  QString names;
  const auto hear = [&](const QString& name) { names += name + " "; };
  const auto connection = QObject::connect(widget, &NvListWidget::propertyChanged, hear);
  run("MinHeight 20");
  QObject::disconnect(connection);
  run("AllowEdit 1");
  {
    QObject receiver;
    QObject::connect(widget, &NvListWidget::propertyChanged, &receiver, hear);
    run("Enabled 1");
  }
  run("AllowEdit 1");
  EXPECT_EQ(names, "MinHeight Enabled ");
}

/// The index of a point is that of the row which a press there hits, also on the bar and the frame.
TEST_F(Signals, TheIndexAtAPointIsTheOneThatAClickHits) {
  // Rows from the first one on, from another one on, and too few to fill the list.
  for (const char* rows : {"scroll 0", "scroll 7", "clear; fill 3"}) {
    run(rows);
    for (int y = -2; y < 210; ++y)
      for (const int x : {-1, 60, 190}) {
        widget->clearSelection();
        const int index = widget->indexAt({x, y});
        press({x, y});
        const auto hit = widget->selectedIndexes();
        release({x, y});
        ASSERT_EQ(hit, index < 0 ? QList<int>() : QList<int>{index})
            << rows << " " << x << "," << y;
      }
  }
}

TEST_F(Signals, TextsAndKeysAreThoseOfQt) {
  const QString odd = "*[ä]?#";
  EXPECT_EQ(widget->addItem(odd, odd), 20);
  EXPECT_EQ(widget->itemText(20) + widget->itemKey(20), odd + odd);
  EXPECT_EQ(widget->indexOfText(odd), 20);
  EXPECT_EQ(widget->indexOfText("*"), -1);
  EXPECT_EQ(widget->indexOfKey(odd), 20);
}

TEST_F(WidgetTest, AHandlerMayDoAnything) {
  for (const std::string deed :
       {"end", "clear", "remove 0", "fill 200", "select 5", "loop", "close", "throw"})
    for (const std::string script : {"MouseDown: click 2",
                                     "MouseUp: click 2",
                                     "Click: click 2",
                                     "DblClick: double 2",
                                     "ItemCheck: click 2 9",
                                     "ItemCheck: Style 1; keys; key Space",
                                     "ErrorWrongIndex: select 99",
                                     "Scroll: wheel -120",
                                     "Scroll: pressAt 190 190",
                                     "KeyDown: type a",
                                     "KeyPress: type a",
                                     "KeyUp: type a",
                                     "current: click 2",
                                     "current: select 2",
                                     "selection: click 2",
                                     "scrolled: scroll 4",
                                     "checked: click 2 9",
                                     "activated: key Return",
                                     "menu: menu 1",
                                     "wrong: select 99",
                                     "edited: edit 0; key Return",
                                     "deleteRequested: keys; key Del"}) {
      SCOPED_TRACE(deed + " in " + script);
      delete widget;
      make();
      widget->setFocus();
      run("AllowEdit 1; fill 40; select 0; hearEvents; hearSignals");
      const std::size_t colon = script.find(':');
      on(script.substr(0, colon), deed);
      try {
        run(script.substr(colon + 1));
      } catch (int) {
        EXPECT_EQ(deed, "throw");
      }
      application.boxes.clear();
      EXPECT_FALSE(Trap::anyRuns());
      onEvent = [](const std::string&) {};
      EXPECT_TRUE(deed != "end" || !widget);
      EXPECT_EQ(run("clear; add x; texts"), widget ? "x" : "");
      QTest::qWait(deed == "end" ? 3 : 0);
    }
}

/// Also in a press, which would open the edit box.
TEST_F(WidgetTest, MayEndWhileItYields) {
  for (const char* script : {"endSoon; yieldOften", "endSoon; click 0"}) {
    delete widget;
    make();
    run("AllowEdit 1; fill 40; select 0");
    run(script);
    EXPECT_FALSE(widget) << script;
  }
}

}  // namespace
}  // namespace norvane
