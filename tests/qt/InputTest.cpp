#include "WidgetScript.h"

#include <nvlist/platform/qt/drawing/QtColour.h>

namespace norvane {
namespace {

TEST_F(WidgetTest, WhatIsEditedCanBeReadOnADesktopOfAnyColours) {
  list().AllowEdit(true);
  fill(3);
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
