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
    recorded += "(" + Index.toText() + ")";
    onWrongIndex(Index);
  }

  /// Returns what was recorded since the last call, in order: events, changed properties, rejected
  /// indexes in brackets, and a * for each repaint.
  std::string heard() {
    hearRepaints();
    return std::exchange(recorded, {});
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

  // What the host does.
  std::function<void(Variant&)> onWrongIndex = [](Variant& Index) { Index = 0; };
  std::function<void(const std::string& event)> onEvent = [](const std::string&) {};
  std::optional<std::int16_t> newButton;   ///< the button set by the MouseDown handler
  std::optional<std::int16_t> newKeyCode;  ///< the key code set by the KeyDown handler
  Boolean cancel;
  std::string arguments;  ///< of the last mouse event

  void hear(const std::string& event) {
    hearRepaints();
    recorded += (recorded.empty() ? "" : " ") + event;
    onEvent(event);
  }

 private:
  void hearRepaints() {
    const int repaints =
        headless.surface().frames() - std::exchange(frames, headless.surface().frames());
    recorded += std::string(static_cast<std::size_t>(repaints), '*');
  }
  void hearMouse(const std::string& event, std::int16_t Button, std::int16_t& Shift, float& X,
                 float& Y) {
    arguments = std::to_string(Button) + " " + std::to_string(std::exchange(Shift, 7)) + " " +
                textOf(std::exchange(X, 1e6F)) + " " + textOf(std::exchange(Y, 1e6F));
    hear(event);
  }

  std::string recorded;
  int frames = 0;
};

}  // namespace norvane
