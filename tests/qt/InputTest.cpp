#include "WidgetTest.h"

#include <QInputMethodEvent>

#include <nvlist/platform/qt/NvListKeys.h>
#include <nvlist/platform/qt/drawing/QtColour.h>

namespace norvane {
namespace {

class Input : public WidgetTest {
 protected:
  Input() {
    list().AllowEdit(true);
    fill(40);
    hearEvents();
  }
};

TEST_F(Input, ADragScrollsByARealTimer) {
  list().AllowItemMoving(true);
  press(row(1)), drag({60, 230});
  EXPECT_TRUE(QTest::qWaitFor([&] { return list().TopIndex() == 28; }, 2000));
}

TEST_F(Input, TheEditBoxComposesUndoesAndScrolls) {
  click(2), list().SetEdit(2);
  const QImage before = edit().grab().toImage();
  QInputMethodEvent composing("ni hao", {}), composed;
  QCoreApplication::sendEvent(&edit(), &composing);
  EXPECT_NE(edit().grab().toImage(), before) << "the composed text is visible";
  EXPECT_EQ(edit().text(), "") << "in place of the selection";
  composed.setCommitString("你好");
  QCoreApplication::sendEvent(&edit(), &composed);
  EXPECT_EQ(edit().text(), "你好");
  QTest::keyClick(&edit(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit().text(), "2");
  QTest::keyClicks(&edit(), " and a text that is far too long for the box and goes on");
  // Painting scrolls it.
  edit().grab();
  EXPECT_LE(edit().inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), edit().width())
      << "the cursor stays in view";
}

TEST_F(Input, WhatIsEditedCanBeReadOnADesktopOfAnyColours) {
  const auto background = [&](Qt::GlobalColor desktop, Colour text) {
    QPalette palette = form.palette();
    palette.setColor(QPalette::Base, desktop);
    form.setPalette(palette);
    list().ForeColor(text);
    list().SetEdit(2);
    EXPECT_EQ(edit().palette().color(QPalette::Text), QColor(rgbOf(text, palette)));
    return edit().palette().color(QPalette::Base);
  };
  EXPECT_EQ(background(Qt::yellow, 0), QColor(Qt::yellow));
  EXPECT_EQ(background(Qt::black, 0), QColor(Qt::white));
  EXPECT_EQ(background(Qt::white, 0xFFFFFF), QColor(Qt::black));
}

/// In each event and signal, and while the list yields.
TEST_F(Input, AHandlerMayEndTheWidget) {
  const auto menu = [&] {
    QContextMenuEvent event(QContextMenuEvent::Mouse, row(1), widget->mapToGlobal(row(1)));
    QApplication::sendEvent(widget, &event);
  };
  const auto finishEdit = [&] {
    list().SetEdit(0);
    QTest::keyPress(&edit(), Qt::Key_Return);
  };
  const auto endSoon = [&] { QTimer::singleShot(0, widget, [&] { delete widget; }); };
  const auto yieldOften = [&] {
    endSoon();
    nvList& control = list();
    for (int i = 0; i < 2000 && widget; ++i) control.ItemsAdd(i), control.ItemsRemove(0);
  };
  // Yields, and would then open the box.
  const auto pressTheCurrentRow = [&] { endSoon(), click(0); };
  const auto withKeys = [&](int code) {
    list().Style(cCheckBoxes);
    QObject::connect(new NvListKeys(*widget), &NvListKeys::deleteRequested, [&] { delete widget; });
    key(code);
  };
  const std::pair<const char*, std::function<void()>> endings[] = {
      {"MouseDown", [&] { click(2); }},
      {"MouseUp", [&] { click(2); }},
      {"Click", [&] { click(2); }},
      {"DblClick", [&] { doubleClick(2); }},
      {"ItemCheck", [&] { click(2, {}, 9); }},
      {"ErrorWrongIndex", [&] { list().ListIndex(99); }},
      {"Scroll",
       [&] {
         turn({0, -120});
       }},
      {"Scroll",
       [&] {
         press({190, 190});
       }},
      {"KeyDown", [&] { QTest::keyPress(widget, Qt::Key_A); }},
      {"KeyPress", [&] { QTest::keyPress(widget, 'a'); }},
      {"KeyUp", [&] { QTest::keyRelease(widget, Qt::Key_A); }},
      {"many yields", yieldOften},
      {"the yield of a press", pressTheCurrentRow},
      {"current", [&] { click(2); }},
      {"current", [&] { list().ListIndex(2); }},
      {"selection", [&] { click(2); }},
      {"scrolled", [&] { list().TopIndex(4); }},
      {"checked", [&] { click(2, {}, 9); }},
      {"activated", [&] { QTest::keyPress(widget, Qt::Key_Return); }},
      {"menu", menu},
      {"wrong", [&] { list().ListIndex(99); }},
      {"edited", finishEdit},
      {"ItemCheck", [&] { withKeys(Qt::Key_Space); }},
      {"a request to delete", [&] { withKeys(Qt::Key_Delete); }}};
  for (const auto& [event, act] : endings) {
    SCOPED_TRACE(std::string(event) + " " + std::to_string(&act - &endings[0].second));
    delete widget;
    make();
    list().AllowEdit(true);
    fill(40);
    list().ListIndex(0);
    hearEvents(), hearSignals();
    onEvent = [this, ending = event](const std::string& name) {
      if (name == ending) delete widget;
    };
    act();
    EXPECT_FALSE(widget);
    onEvent = [](const std::string&) {};
    QTest::qWait(3);
  }
}

}  // namespace
}  // namespace norvane
