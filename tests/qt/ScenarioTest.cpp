// What users and hosts do to a list widget, as scripts.

#include "../Scenario.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <sstream>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/qt/NvListKeys.h>

#include "WidgetTest.h"

namespace norvane {
namespace {

class WidgetScript : public WidgetTest, public testing::WithParamInterface<Scenario> {
 protected:
  /// Runs the commands of the scenario, separated by semicolons, and compares their outputs. Rows
  /// are those of the window; an output without text is "-". The name of a stored property sets
  /// that property to a number. Keys and texts go to the widget with the focus.
  void check() {
    std::istringstream commands(GetParam().script);
    std::string outputs;
    for (std::string command; std::getline(commands, command, ';');) {
      std::istringstream words(command);
      std::string verb, rest;
      std::getline(words >> verb >> std::ws, rest);
      int first = 0, second = 60;
      std::istringstream(rest) >> first >> second;
      const std::string output = perform(verb, rest, first, second);
      if (output != nothing) outputs += (outputs.empty() ? "" : " / ") + output;
    }
    EXPECT_EQ(outputs, GetParam().expected);
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
    else if (verb == "deselect") widget->clearSelection();
    else if (verb == "scrollTo") widget->scrollTo(a);
    else if (verb == "typingInterval") widget->findChild<NvListKeys*>()->setTypingInterval(a);
    else if (verb == "refuseChecks") refusesChecks = true;
    else if (verb == "swallowKeys") swallowsKeys = true;
    else if (const auto* property = storedProperty(verb)) property->set(list(), a);
    // The user.
    else if (verb == "click") click(a, {}, b);
    else if (verb == "shiftClick") click(a, Qt::ShiftModifier);
    else if (verb == "ctrlClick") click(a, Qt::ControlModifier);
    else if (verb == "double") doubleClick(a);
    else if (verb == "press") press(row(a));
    else if (verb == "drag") drag(row(a));
    else if (verb == "release") release(row(a, b));
    else if (verb == "button") QTest::mouseClick(widget, Qt::MouseButton(a), {}, row(8));
    else if (verb == "wheel") turn({0, a});
    else if (verb == "sideways") turn({a, 0});
    else if (verb == "type") QTest::keyClicks(focused, QString::fromStdString(text));
    else if (verb == "key") {
      const QKeyCombination keys = QKeySequence(QString::fromStdString(text))[0];
      QTest::keyClick(focused, keys.key(), keys.keyboardModifiers());
    } else if (verb == "compose") {
      QInputMethodEvent composed;
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
    // Outputs.
    else if (verb == "forget") heard();
    else if (verb == "heard") return shown(heard());
    else if (verb == "state") return state();
    else if (verb == "top") return std::to_string(list().TopIndex());
    else if (verb == "left") return std::to_string(list().horizontalBar().Value());
    else if (verb == "text") return list().ItemText(a);
    else if (verb == "texts") return texts();
    else if (verb == "checked") return list().ItemChecked(a) ? "yes" : "no";
    else if (verb == "clipboard") return QApplication::clipboard()->text().toStdString();
    else if (verb == "editing")
      return edit().isVisible() ? shown(edit().text().toStdString()) : "closed";
    else if (verb == "hasFocus") return list().state().HasFocus ? "yes" : "no";
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
  static std::string shown(const std::string& text) { return text.empty() ? "-" : text; }
  std::string texts() {
    std::string result;
    for (int i = 0; i < list().ItemsCount(); ++i) result += (i ? " " : "") + list().ItemText(i);
    return result;
  }
};

// clang-format off
const Scenario ofAList[] = {
  {"clicks have their keys",
   "fill 40; shiftClick 4; ctrlClick 3; heard; state",
   "MouseDown 1 1, MouseUp 1, Click, MouseDown 1 2, MouseUp 1, Click / 3 (3)"},
  {"right, middle and other buttons", "fill 40; button 2; button 4; button 8; heard; state",
   "MouseDown 2 0, MouseUp 2, MouseDown 4 0, MouseUp 4 / 8 (8)"},
  {"a release outside is no click", "fill 40; press 3; release 3 300; heard",
   "MouseDown 1 0, MouseUp 1"},
  {"a double click checks", "fill 40; Style 1; double 5; heard",
   "MouseDown 1 0, MouseUp 1, Click, ItemCheck 5, DblClick, MouseUp 1"},
  {"a text is typed into the box",
   "AllowEdit 1; fill 40; click 2; click 2; editing; focus; forget; type Zoe; key Esc; key Down;"
   "editing; key Return; focus; heard; text 2", "2 / edit / Zoe / list / - / Zoe"},
  {"only a press on the rows closes the box without saving",
   "AllowEdit 1; fill 40; click 2; click 2; type gone; leave; editing; press 4; editing; text 2",
   "gone / closed / 2"},
  {"the focus is of the whole list",
   "AllowEdit 1; fill 40; select 2; hasFocus; leave; hasFocus; enter; hasFocus; edit 2; hasFocus",
   "yes / no / yes / no"},
  {"keys have their codes", "fill 40; select 2; key Shift+Down; type a; key Alt+F2; heard",
   "KeyDown 16 1, KeyDown 40 1, KeyUp 40, KeyUp 16, KeyDown 65 0, KeyPress 97, KeyUp 65, "
   "KeyDown 18 4, KeyDown 113 4, KeyUp 113, KeyUp 18"},
  {"a handler swallows a key, and Tab is the form's",
   "fill 40; swallowKeys; type a; key Tab; heard; focus", "KeyDown 65 0, KeyUp 65 / other"},
  {"a wheel scrolls by whole notches, and by parts where asked to",
   "fill 40; wheel -30; wheel -30; wheel -30; top; wheel -30; top; wheel -110; wheel 20; top;"
   "wheel -240; top; fineWheel 1; wheel -120; wheel 0; top; wheel 30; top",
   "0 / 1 / 1 / 2 / 3 / 28"},
  {"a disabled list has no wheel", "fill 40; scroll 5; Enabled 0; wheel -120; top", "6"},
  {"a sideways wheel moves the horizontal bar",
   "fill 40; add mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm; sideways -120; left;"
   "ScrollBars 3; fit; sideways -60; left; sideways -60; left; sideways 1200; left; top",
   "0 / 24 / 48 / 0 / 0"},
};

const Scenario ofItsSignals[] = {
  {"the selection", "select 3; heard; select 3; heard; click 3; heard; click 4; heard; shiftClick 6;"
   "heard; key Down; heard; deselect; heard; deselect; heard; select 7; heard; remove 7; heard;"
   "remove 7; heard",
   "current 3, selection / - / - / current 4, selection / current 6, selection / "
   "current 7, selection / selection / - / selection / selection / -"},
  {"only the user's checks", "select 4; shiftClick 6; forget; click 6 9; heard; check 6 0; heard",
   "selection, checked 6 1 / -"},
  {"scrolling that moves something",
   "scroll 5; heard; scrollTo 6; heard; scrollTo 17; heard; scrollTo -1; heard; clear; heard",
   "scrolled / - / scrolled / - / current 0, scrolled"},
  {"a command and what is refused",
   "select 7; forget; key Return; heard; disable 7; key Return; heard; select 99; heard;"
   "load no such file; heard; double 4; heard",
   "activated 7 / - / wrong 99 / inputFailed / current 4, selection, checked 4 1, activated 4"},
  {"an edit, a move and menus",
   "AllowEdit 1; click 2; click 2; forget; type Zoe; key Return; heard; menu 4; heard; menuKey;"
   "heard; AllowItemMoving 1; press 1; forget; drag 4; release 4; heard; text 3; clear; forget;"
   "menu 4; heard",
   "edited 2 Zoe / menu 4 60,76 / menu 2 1,50 / current 3, moved 1 3 / 1 / menu -1 60,76"},
};

/// With the keys that users know from other lists.
const Scenario withKeys[] = {
  {"page keys go to the edge, then by pages",
   "fill 40; disable 0; disable 39; select 5; forget; key PgDown; heard; state; top; key PgDown;"
   "state; top; key PgUp; state; top; key PgUp; state; top",
   "KeyDown 0 0, KeyUp 34 / 11 (11) / 0 / 22 (22) / 11 / 11 (11) / 11 / 1 (1) / 1"},
  {"Home and End go to the last enabled rows",
   "fill 40; disable 0; disable 39; select 5; key End; state; top; key PgDown; state; key PgUp;"
   "state; top; key Home; state; key Up; state; key Down; state; top",
   "38 (38) / 27 / 38 (38) / 27 (27) / 27 / 1 (1) / 1 (1) / 2 (2) / 1"},
  {"Shift extends the selection",
   "fill 9; disable 4; select 3; key Shift+Down; state; MultiSelect 1; select 3; key Shift+Down;"
   "state; key Shift+End; state; key Shift+Home; state; shiftClick 2;"
   "state; key Shift+Up; state; key Ctrl+A; state; key Ctrl+Space; state; key Down; state",
   "5 (5) / 5 (3 5) / 8 (3 5 6 7 8) / 0 (0 1 2 3) / 2 (2 3) / 1 (1 2 3) / 1 (0 1 2 3 5 6 7 8) / "
   "1 (0 2 3 5 6 7 8) / 2 (2)"},
  {"Space checks unless a handler refuses",
   "fill 3; select 1; key Space; checked 1; refuseChecks; key Space; checked 1", "yes / yes"},
  {"F2 edits, Escape gives up and Return writes",
   "AllowEdit 1; fill 30; select 20; key F2; type gone; key Esc; editing; focus; text 20;"
   "select 0; key F2; type first; key Return; text 0; key Down; state",
   "closed / list / 20 / first / 1 (1)"},
  {"what was edited is written when the user goes elsewhere",
   "AllowEdit 1; fill 30; select 2; key F2; popUp; editing; type left; leave; editing; text 2;"
   "enter; key F2; type clicked; click 5; editing; text 2; select 2; key F2; type turned;"
   "wheel -120; editing; text 2", "2 / closed / left / closed / clicked / closed / turned"},
  {"typing finds the next row with that beginning",
   "add &Alpha; add beta; add Berlin; add bern|right=9; add Ödipus; add a && b; disable 1;"
   "select 0; typingInterval 100000; type BERN; state; typingInterval -1; compose öd; state; type b; state;"
   "type z; state; key Space; checked 2", "3 (3) / 4 (4) / 2 (2) / 2 (2) / yes"},
  {"a letter repeated goes on, a blank belongs to the word",
   "add an ape; add ant; add bee; add and; add a fly; typingInterval 100000; type a f; state;"
   "checked 4; typingInterval -1; type a; state; typingInterval 100000; type a; state; type a;"
   "state",
   "4 (4) / no / 0 (0) / 1 (1) / 3 (3)"},
  {"Ctrl and C copy what is read in the selected rows",
   "MultiSelect 1; add &one|right=1; add two; add three; select 1; key Shift+Home; key Ctrl+C;"
   "clipboard", "one\t1\ntwo"},
  {"a click moves nothing, a drag does",
   "fill 5; AllowItemMoving 1; click 2; texts; press 2; drag 0; release 0; texts",
   "0 1 2 3 4 / 2 0 1 3 4"},
};
// clang-format on

class OfAList : public WidgetScript {
 protected:
  OfAList() { hearEvents(); }
};
TEST_P(OfAList, GivesItsOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Widget, OfAList, testing::ValuesIn(ofAList), nameOf);

class OfItsSignals : public WidgetScript {
 protected:
  OfItsSignals() {
    list().Style(cCheckBoxes);
    list().MultiSelect(true);
    fill(20);
    hearSignals();
  }
};
TEST_P(OfItsSignals, GivesItsOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Widget, OfItsSignals, testing::ValuesIn(ofItsSignals), nameOf);

class WithKeys : public WidgetScript {
 protected:
  WithKeys() {
    list().Style(cCheckBoxes);
    new NvListKeys(*widget);
    hearEvents();
  }
};
TEST_P(WithKeys, GivesItsOutputs) { check(); }
INSTANTIATE_TEST_SUITE_P(Widget, WithKeys, testing::ValuesIn(withKeys), nameOf);

}  // namespace
}  // namespace norvane
