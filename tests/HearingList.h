#pragma once

#include "Lists.h"

#include <functional>
#include <optional>
#include <utility>

#include <nvlist/values/numbers.h>

namespace norvane {

/// A list of ten rows of 13 pixels that records its events and notifications. After each event it
/// overwrites the arguments that the list does not read back.
class HearingListTest : public ListTest, public __nvList {
 protected:
  HearingListTest() {
    headless.resize(200, 133);
    list.addSink(*this);
    headless.container().onPropertyChanged = [this](std::string_view name) {
      hear(std::string(name));
    };
    heard();
  }

  void Click() override { hear("Click"); }
  void DblClick() override { hear("DblClick"); }
  void ItemCheck(std::int32_t& Item, Boolean& Cancel) override {
    hear("ItemCheck(" + std::to_string(std::exchange(Item, 77)) + ")");
    if (cancel) Cancel = cancel;
  }
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    hearMouse("MouseDown", Button, Shift, X, Y);
    Button = newButton.value_or(Button);
  }
  void MouseMove(Variant& TextUnderMouse, std::int32_t& IndexUnderMouse, std::int16_t& Button,
                 std::int16_t& Shift, float& X, float& Y) override {
    const std::string row = std::to_string(std::exchange(IndexUnderMouse, 77));
    hearMouse("MouseMove(" + row + " " + std::exchange(TextUnderMouse, 77).toText() + ")", Button,
              Shift, X, Y);
  }
  void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    hearMouse("MouseUp", Button, Shift, X, Y);
  }
  void Scroll() override { hear("Scroll"); }
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
    hear("KeyDown(" + std::to_string(KeyCode) + " " + std::to_string(std::exchange(Shift, 7)) +
         ")");
    KeyCode = newKeyCode.value_or(KeyCode);
  }
  void KeyPress(std::int16_t& KeyAscii) override {
    hear("KeyPress(" + std::to_string(std::exchange(KeyAscii, 77)) + ")");
  }
  void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) override {
    hear("KeyUp(" + std::to_string(KeyCode) + " " + std::to_string(Shift) + ")");
  }
  void ErrorWrongIndex(Variant& Index) override {
    hearRepaints();
    told += "(" + Index.toText() + ")";
    onWrongIndex(Index);
  }

  /// Returns what was recorded since the last call, in order: events, changed properties, rejected
  /// indexes in brackets, and a * for each repaint.
  std::string heard() {
    hearRepaints();
    return std::exchange(told, {});
  }

  /// Clears the list and adds items with the texts 0, 1, ..., none of them current.
  void fill(int count) {
    list.AutoRedraw(false);
    list.ItemsClear();
    for (int i = 0; i < count; ++i) {
      list.AutoRedraw(i == count - 1);
      list.ItemsAdd(i);
    }
    list.AutoRedraw(true);
    heard();
  }
  void disable(std::initializer_list<int> indexes) {
    for (const int index : indexes) list.ItemEnabled(index, false);
    heard();
  }

  /// The texts of the items with a mark.
  std::string marked(Boolean ListItem::*mark) {
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i)
      if (item(i).*mark) result += (result.empty() ? "" : " ") + item(i).Text;
    return result;
  }
  std::string selected() { return marked(&ListItem::Selected); }
  /// "current: selected", and anything unusual: the top item, checked items.
  std::string now() {
    std::string result = std::to_string(list.ListIndex()) + ": " + selected();
    if (list.TopIndex() > 0) result += ", top " + std::to_string(list.TopIndex());
    const std::string checked = marked(&ListItem::Checked);
    return checked.empty() ? result : result + ", checked " + checked;
  }
  /// What was recorded, followed by the state.
  std::string outcome() {
    const std::string events = heard();
    return events + " | " + now();
  }

  // ---- the hand: rows are those of the window, positions outside of the check zone ----

  static constexpr float besideZone = 50;
  static constexpr float inZone = 8;
  static constexpr float rowAt(int row) { return 10 + 13.0F * static_cast<float>(row); }
  void press(int row, std::int16_t shift = 0, float x = besideZone) {
    headless.container().press(x, rowAt(row), 1, shift);
  }
  void drag(int row, std::int16_t buttons = 1) {
    headless.container().moveTo(besideZone, rowAt(row), buttons);
  }
  void release(int row) { headless.container().release(besideZone, rowAt(row)); }
  void click(int row, std::int16_t shift = 0, float x = besideZone) {
    press(row, shift, x);
    release(row);
  }
  void doubleClick(int row) {
    click(row);
    headless.container().doubleClick(besideZone, rowAt(row));
    release(row);
  }
  std::int16_t key(std::int16_t code, std::int16_t shift = 0) {
    list.UserControl_KeyDown(code, shift);
    return code;
  }
  static constexpr std::int16_t up = 38;
  static constexpr std::int16_t down = 40;
  void wait(int milliseconds) {
    headless.container().clock().advance(std::chrono::milliseconds(milliseconds));
  }
  HeadlessTextBox& box() { return *headless.container().textBoxes().at(0); }

  /// "closed", or the text and bounds of an edit box.
  static std::string editing(const HeadlessTextBox& in) {
    const Bounds& at = in.place();
    return in.Visible() ? in.Text() + " (" + textOf(at.Left) + ", " + textOf(at.Top) + ") " +
                              textOf(at.Width) + "x" + textOf(at.Height)
                        : "closed";
  }

  // ---- the host ----

  std::function<void(Variant&)> onWrongIndex = [](Variant& Index) { Index = 0; };
  std::function<void(const std::string& event)> onEvent = [](const std::string&) {};
  std::optional<std::int16_t> newButton;   ///< the button set by the MouseDown handler
  std::optional<std::int16_t> newKeyCode;  ///< the key code set by the KeyDown handler
  Boolean cancel;
  std::string arguments;  ///< of the last mouse event

 protected:
  void hear(const std::string& event) {
    hearRepaints();
    told += (told.empty() ? "" : " ") + event;
    onEvent(event);
  }

 private:
  void hearRepaints() {
    const int repaints =
        headless.surface().frames() - std::exchange(frames, headless.surface().frames());
    told += std::string(static_cast<std::size_t>(repaints), '*');
  }
  void hearMouse(const std::string& event, std::int16_t Button, std::int16_t& Shift, float& X,
                 float& Y) {
    arguments = std::to_string(Button) + " " + std::to_string(std::exchange(Shift, 7)) + " " +
                textOf(std::exchange(X, 1e6F)) + " " + textOf(std::exchange(Y, 1e6F));
    hear(event);
  }

  std::string told;
  int frames = 0;
};

}  // namespace norvane
