#include "WidgetScript.h"

#include <QDialog>

namespace norvane {
namespace {

class Signals : public WidgetTest {
 protected:
  Signals() {
    list().Style(cCheckBoxes);
    list().MultiSelect(true);
    for (int i = 0; i < 20; ++i) widget->addItem(QString::number(i), "key" + QString::number(i));
    hearSignals();
  }
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
  std::string names;
  auto receiver = std::make_unique<QObject>();
  const auto connection =
      QObject::connect(widget, &NvListWidget::propertyChanged, receiver.get(),
                       [&](const QString& name) { names += name.toStdString() + " "; });
  list().MinHeight(20);
  EXPECT_EQ(names, "MinHeight ");
  QObject::disconnect(connection);
  list().MinHeight(21);
  QObject::connect(widget, &NvListWidget::propertyChanged, receiver.get(),
                   [&] { names += "again"; });
  list().MinHeight(22);
  receiver.reset();
  list().MinHeight(23);
  EXPECT_EQ(names, "MinHeight again");
}

/// A slot may open a dialog with another list, whose signals work meanwhile.
TEST_F(Signals, MayOpenADialog) {
  std::string inDialog;
  onEvent = [&](const std::string& name) {
    if (name != "current" || !inDialog.empty()) return;
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

/// The index of a point is that of the row which a press there hits, also on the bar and the frame.
TEST_F(Signals, TheIndexAtAPointIsTheOneThatAClickHits) {
  // Rows from the first one on, from another one on, and too few to fill the list.
  const std::pair<int, int> lists[] = {{20, 0}, {20, 7}, {3, 0}};
  for (const auto& [count, top] : lists) {
    while (widget->count() > count) list().ItemsRemove(0);
    list().TopIndex(top);
    for (int y = -2; y < 210; ++y)
      for (const int x : {-1, 60, 190}) {
        widget->clearSelection();
        const int index = widget->indexAt({x, y});
        press({x, y});
        const auto hit = widget->selectedIndexes();
        release({x, y});
        ASSERT_EQ(hit, index < 0 ? QList<int>() : QList<int>{index})
            << count << " " << top << " " << x << "," << y;
      }
  }
}

TEST_F(Signals, TextsAndKeysAreThoseOfQt) {
  const QString odd = "*[ä]?#";
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

/// In each event and signal, and while the list yields.
TEST_F(WidgetScript, AHandlerMayEndTheWidget) {
  const std::pair<const char*, const char*> endings[] = {
      {"MouseDown", "click 2"},
      {"MouseUp", "click 2"},
      {"Click", "click 2"},
      {"DblClick", "double 2"},
      {"ItemCheck", "click 2 9"},
      {"ItemCheck", "Style 1; keys; key Space"},
      {"ErrorWrongIndex", "select 99"},
      {"Scroll", "wheel -120"},
      {"Scroll", "pressAt 190 190"},
      {"KeyDown", "type a"},
      {"KeyPress", "type a"},
      {"KeyUp", "type a"},
      {"many yields", "endSoon; yieldOften"},
      {"the yield of a press, which would open the edit box then", "endSoon; click 0"},
      {"current", "click 2"},
      {"current", "select 2"},
      {"selection", "click 2"},
      {"scrolled", "scroll 4"},
      {"checked", "click 2 9"},
      {"activated", "key Return"},
      {"menu", "menu 1"},
      {"wrong", "select 99"},
      {"edited", "edit 0; key Return"},
      {"deleteRequested", "keys; key Del"}};
  for (const auto& [event, script] : endings) {
    SCOPED_TRACE(std::string(event) + ": " + script);
    delete widget;
    make();
    widget->setFocus();
    run("AllowEdit 1; fill 40; select 0");
    hearEvents(), hearSignals();
    run(std::string("on ") + event + " end;" + script);
    EXPECT_FALSE(widget);
    onEvent = [](const std::string&) {};
    QTest::qWait(3);
  }
}

}  // namespace
}  // namespace norvane
