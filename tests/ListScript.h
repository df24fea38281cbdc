#pragma once

#include "HearingList.h"
#include "Scenario.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include <nvlist/core/storedProperties.h>
#include <nvlist/values/text.h>

namespace norvane {

/// A list of five items that is driven by scripts.
class ListScript : public HearingListTest, public testing::WithParamInterface<Scenario> {
 protected:
  ListScript() { fill(5); }

  /// Runs the commands of a script, separated by semicolons, and returns their outputs. Rows are
  /// those of the window. The name of a stored property sets that property. A value is a number, a
  /// 'text' or @, which is empty.
  std::string run(const std::string& script) {
    std::istringstream commands(script);
    std::string outputs;
    for (std::string command; std::getline(commands, command, ';');) {
      std::istringstream in(command);
      std::vector<std::string> words;
      std::string verb, rest;
      std::getline(in >> verb >> std::ws, rest);
      std::istringstream text(rest);
      for (std::string word; text >> word;) words.push_back(word);
      const std::string output = perform(verb, words, rest);
      if (!output.empty()) outputs += (outputs.empty() ? "" : " / ") + output;
    }
    return outputs;
  }

  void check() {
    EXPECT_EQ(run(GetParam().script), GetParam().expected);
    EXPECT_EQ(reports(), "");
  }

  HeadlessContainer& form = headless.container();
  HeadlessTextBox& box() { return *form.textBoxes().at(0); }

 private:
  using Words = std::vector<std::string>;

  static Variant valueOf(const std::string& word) {
    if (word == "@") return {};
    if (word[0] == '\'') return word.substr(1, word.size() - 2);
    const double number = numberOf(word).value();
    const bool isWhole =
        number == std::trunc(number) && number >= -2147483648.0 && number <= 2147483647.0;
    return isWhole ? Variant(static_cast<std::int32_t>(number)) : Variant(number);
  }
  std::string perform(const std::string& verb, const Words& words, const std::string& rest) {
    const auto real = [&](std::size_t i, float otherwise = 0) {
      return i < words.size() ? static_cast<float>(numberOf(words[i]).value_or(0)) : otherwise;
    };
    const auto number = [&](std::size_t i, float otherwise = 0) {
      return static_cast<std::int16_t>(std::clamp(real(i, otherwise), -32768.0F, 32767.0F));
    };
    const auto value = [&](std::size_t i) { return valueOf(words.at(i)); };
    const auto each = [&](const std::function<void(const Variant&)>& act) {
      for (const std::string& word : words) act(valueOf(word));
    };
    std::int16_t code = number(0);
    // clang-format off
    // The host.
    if (verb == "fill") fill(code);
    else if (verb == "begin") fill(5), list.ListIndex(2), heard();
    else if (verb == "clear") list.ItemsClear();
    else if (verb == "add") each([&](auto& text) { list.ItemsAdd(text); });
    else if (verb == "addKey") list.ItemsAdd({.aText = value(0), .aKey = value(1)});
    else if (verb == "addChecked") list.ItemsAdd({.aText = value(0), .aChecked = true});
    else if (verb == "many") for (int i = 0; i < code; ++i) list.ItemsAdd(i);
    else if (verb == "wide") wide(code, number(1));
    else if (verb == "insert") list.ItemsAdd(value(0), value(1));
    else if (verb == "remove") each([&](auto& index) { list.ItemsRemove(Variant(index)); });
    else if (verb == "removeFirst") for (int i = 0; i < code; ++i) list.ItemsRemove(0);
    else if (verb == "removeDouble") list.ItemsRemoveDouble(code != 0);
    else if (verb == "removeSelected") list.ItemsSelectedRemove();
    else if (verb == "setIndex") list.ListIndex(value(0).toInt32());
    else if (verb == "choose") list.Text(value(0).toText());
    else if (verb == "setTop") list.TopIndex(value(0).toInt32());
    else if (verb == "disable") each([&](auto& index) { list.ItemEnabled(index, false); });
    else if (verb == "editable") each([&](auto& index) { list.ItemAllowEdit(index, true); });
    else if (verb == "select") each([&](auto& index) { list.ItemSelected(index, true); });
    else if (verb == "deselect") each([&](auto& index) { list.ItemSelected(index, false); });
    else if (verb == "setText") list.ItemText(value(0), value(1).toText());
    else if (verb == "setFont")
      list.ItemBold(value(0), number(1) != 0), list.ItemItalic(value(0), number(2) != 0),
          list.ItemUnderline(value(0), number(3) != 0);
    else if (verb == "setAlignment")
      list.ItemAlignment(value(0), static_cast<cItemAlignment>(number(1)));
    else if (verb == "setForeColor") list.ItemForeColor(value(0), number(1));
    else if (verb == "setBackColor") list.ItemBackColor(value(0), number(1));
    else if (verb == "setSelectColors")
      list.ItemForeColorSelect(value(0), value(1)), list.ItemBackColorSelect(value(0), value(2));
    else if (verb == "setDisabledColor") list.ItemBackColorDis(value(0), value(1));
    else if (verb == "setIcons")
      list.ItemIcon(value(0), makeRef<NamedPicture>(words.at(1))),
          list.ItemIconSelected(value(0), makeRef<NamedPicture>(words.at(2)));
    else if (verb == "edit") list.SetEdit(value(0));
    else if (verb == "up") list.MoveItemUp(value(0), value(1));
    else if (verb == "down") list.MoveItemDown(value(0), value(1));
    else if (verb == "sort") list.Sort(static_cast<cSortMode>(code));
    else if (verb == "measure") list.AutoCheckScroll(true);
    else if (verb == "redraw") list.Redraw();
    else if (verb == "silent") Error().SilentError(number(0, 1) != 0);
    else if (verb == "resize") headless.resize(real(0), real(1));
    else if (const auto* property = storedProperty(verb)) property->set(list, value(0));
    // The user: a row, and Shift or the buttons; a point, a button and Shift; a key and Shift.
    else if (verb == "press") form.press(beside, rowAt(code), 1, number(1));
    else if (verb == "drag") form.moveTo(beside, rowAt(code), number(1, 1));
    else if (verb == "release") form.release(beside, rowAt(code));
    else if (verb == "click") click(code, number(1));
    else if (verb == "check") click(code, 0, inZone);
    else if (verb == "double")
      click(code, 0), form.doubleClick(beside, rowAt(code)), form.release(beside, rowAt(code));
    else if (verb == "pressAt") form.press(real(0), real(1), number(2, 1), number(3));
    else if (verb == "moveTo") form.moveTo(real(0), real(1), number(2), number(3));
    else if (verb == "releaseAt") form.release(real(0), real(1), number(2, 1));
    else if (verb == "step") step(value(0).toInt32(), value(1).toInt32(), number(2, 1));
    else if (verb == "wheel") EXPECT_TRUE(form.turnWheel(code));
    else if (verb == "wait") form.clock().advance(std::chrono::milliseconds(code));
    else if (verb == "key") list.UserControl_KeyDown(code, number(1)), lastCode = textOf(int{code});
    else if (verb == "keyUp") list.UserControl_KeyUp(code, number(1));
    else if (verb == "keyPress") list.UserControl_KeyPress(code);
    else if (verb == "enter") list.UserControl_EnterFocus();
    else if (verb == "leave") list.UserControl_LostFocus();
    else if (verb == "ambient") list.UserControl_AmbientChanged(rest);
    else if (verb == "type") box().typeText(rest);
    else if (verb == "character") return box().typeCharacter(code) ? "kept" : "taken";
    // What a handler does in one event, in each event or in a message: "throw", or a command, whose
    // output becomes an event.
    else if (verb == "posts") for (int i = 0; i < code; ++i) form.post({});
    else if (verb == "drain") while (form.waiting() > 0) form.DoEvents();
    else if (verb == "post") form.post([this, rest] { obey(rest); });
    else if (verb == "on")
      onEvent = [this, event = words.at(0), deed = rest.substr(words[0].size() + 1)](auto& heard) {
        if (heard.starts_with(event)) obey(deed);
      };
    else if (verb == "onEach")
      onEvent = [this, rest](auto& heard) { if (heard[0] != '[') obey(rest); };
    else if (verb == "onWrongIndex") onWrongIndex = [this, rest](Variant&) { obey(rest); };
    else if (verb == "cancel") cancel = Boolean::ofNumber(code);
    else if (verb == "newButton") newButton = code;
    else if (verb == "newKeyCode") newKeyCode = code;
    // Outputs. `ticks` counts the repaints in the next milliseconds; `face` and `picture` take the
    // possible beginnings of the lines they output; `seen` outputs what a repaint shows.
    else if (verb == "forget") heard();
    else if (verb == "events") return heard();
    else if (verb == "now") return now();
    else if (verb == "outcome") {
      const std::string events = heard();
      return events + " | " + now();
    } else if (verb == "arguments") return arguments;
    else if (verb == "reports") return reports();
    else if (verb == "find") return textOf(list.IsInList(value(0).toText()));
    else if (verb == "findKey") return textOf(list.IndexByKey(value(0)));
    else if (verb == "checkedCount") return textOf(list.ItemsCheckCount());
    else if (verb == "texts") return "<" + texts() + ">";
    else if (verb == "keys") return "<" + keys() + ">";
    else if (verb == "index") return textOf(list.ListIndex());
    else if (verb == "chosen") return list.Text();
    else if (verb == "top") return textOf(list.TopIndex());
    else if (verb == "bars")
      return barText(list.verticalBar()) + ", " + barText(list.horizontalBar());
    else if (verb == "range") return textOf(list.verticalBar().Max());
    else if (verb == "bar") return textOf(list.verticalBar().Value());
    else if (verb == "new") return textOf(list.NewIndex());
    else if (verb == "isSelected") return list.ItemSelected(value(0)) ? "yes" : "no";
    else if (verb == "visible") return textOf(list.VisibleItems());
    else if (verb == "rows") return "<" + rowsOf(headless.surface()) + ">";
    else if (verb == "count") return textOf(list.ItemsCount());
    else if (verb == "loop") return textOf(list.state().LoopIndex);
    else if (verb == "anchor") return textOf(list.state().SelectAnchor);
    else if (verb == "hover") return textOf(list.state().HoverIndex);
    else if (verb == "width") return textOf(list.state().MaxItemWidth);
    else if (verb == "suppressed") return list.state().SuppressRedraw ? "yes" : "no";
    else if (verb == "focus") return list.state().HasFocus ? "yes" : "no";
    else if (verb == "held")
      return std::string(list.state().ShiftDown ? "Shift" : "") + (list.state().CtrlDown ? "Ctrl" : "");
    else if (verb == "code") return lastCode;
    else if (verb == "waiting") return std::to_string(form.waiting());
    else if (verb == "editing") return editing();
    else if (verb == "ticks") {
      heard(), form.clock().advance(std::chrono::milliseconds(code));
      return std::to_string(std::ranges::count(heard(), '*'));
    } else if (verb == "face") return lines(headless.face(), rest);
    else if (verb == "seen")
      return lines(headless.face(), "Line|PaintPicture|DrawTextA|DrawFocusRect|ForeColor");
    else if (verb == "picture") return lines(headless.picture(), rest);
    else ADD_FAILURE() << "no verb " << verb;
    // clang-format on
    return "";
  }
  std::string keys() {
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i) result += item(i).Key;
    return result;
  }
  /// The texts of the items with a mark.
  std::string marked(Boolean ListItem::*mark) {
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i)
      if (item(i).*mark) result += (result.empty() ? "" : " ") + item(i).Text;
    return result;
  }
  /// "current: selected", and anything unusual: the top item, checked items.
  std::string now() {
    std::string result = textOf(list.ListIndex()) + ": " + marked(&ListItem::Selected);
    if (list.TopIndex() > 0) result += ", top " + textOf(list.TopIndex());
    const std::string checked = marked(&ListItem::Checked);
    return checked.empty() ? result : result + ", checked " + checked;
  }
  /// "closed", or the text and bounds of the edit box.
  std::string editing() {
    const Bounds& at = box().place();
    return box().Visible() ? box().Text() + " (" + textOf(at.Left) + ", " + textOf(at.Top) + ") " +
                                 textOf(at.Width) + "x" + textOf(at.Height)
                           : "closed";
  }
  static constexpr float beside = 50;  ///< outside of the check zone
  static constexpr float inZone = 8;
  static constexpr float rowAt(int row) { return 10 + 13.0F * static_cast<float>(row); }
  void click(int row, std::int16_t shift, float x = beside) {
    form.press(x, rowAt(row), 1, shift);
    form.release(beside, rowAt(row));
  }
  void obey(const std::string& deed) {
    if (deed == "throw") throw Failure(1000, "own");
    if (const std::string output = run(deed); !output.empty()) hear("[" + output + "]");
  }
  /// Fills the list with items, the first of which has a text of that many characters.
  void wide(int count, std::int16_t characters) {
    list.AutoCheckScroll(false);
    fill(0);
    list.AutoRedraw(false);
    for (int i = 0; i < count; ++i)
      list.ItemsAdd(i == 0 ? std::string(static_cast<std::size_t>(characters), 'm') : "i");
    list.AutoCheckScroll(true);
    list.AutoRedraw(true);
  }
  /// Clicks on a part of a bar: 0 is the thumb, 1 the near button, 2 the far button.
  void step(int bar, int part, int times) {
    HeadlessContainer& place = *form.children().at(static_cast<std::size_t>(bar));
    for (int i = 0; i < times; ++i) {
      place.children().at(static_cast<std::size_t>(part))->press(8, 3);
      form.release(0, 0);
    }
  }
  /// "on 13 at 5 (182 1 17x98)": whether the list shows the bar, its maximum, value and bounds.
  template <class Bar>
  static std::string barText(const Bar& bar) {
    const bool isOn = bar.Tag() == "True";
    EXPECT_EQ(static_cast<bool>(bar.Visible()), isOn);
    return (isOn ? "on " : "off ") + textOf(bar.Max()) + " at " + textOf(bar.Value()) + " (" +
           textOf(bar.Left()) + " " + textOf(bar.Top()) + " " + textOf(bar.Width()) + "x" +
           textOf(bar.Height()) + ")";
  }
  /// The lines that begin with one of several texts, which are separated by bars.
  static std::string lines(const std::string& recording, const std::string& beginnings) {
    std::string result;
    forEachLine(recording, [&](std::string_view line) {
      std::istringstream each(beginnings);
      for (std::string text; std::getline(each, text, '|');)
        if (line.starts_with(text)) result += (result.empty() ? "" : ", ") + std::string(line);
      return true;
    });
    return "<" + result + ">";
  }

  std::string lastCode;
};

}  // namespace norvane
