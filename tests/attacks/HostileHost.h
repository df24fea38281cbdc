#pragma once

#include <functional>
#include <string>
#include <vector>

#include <nvlist/platform/headless/HeadlessApplication.h>

#include "Life.h"

namespace norvane::attacks {

/// Counts the places where the library calls out, and runs `trouble` in one of them.
struct CallOut {
  long calls = 0;
  long at = 0;  ///< counted from 1; 0: none
  std::function<void()> trouble = [] {};

  void operator()() {
    // Not in the trouble itself, which may raise events too.
    if (++calls != at) return;
    const std::function<void()> run = trouble;
    run();
  }
};

/// A program whose boxes call the host.
class HostileProgram final : public HeadlessApplication {
 public:
  explicit HostileProgram(CallOut& out) : out_(out) {}
  void MsgBox(std::string_view, std::int32_t, std::string_view) override { out_(); }

 private:
  CallOut& out_;
};

/// A host in each of whose handlers something may happen.
class HostileHost final : public __nvList {
 public:
  explicit HostileHost(CallOut& out) : out_(out) {}

  void Click() override { out_(); }
  void DblClick() override { out_(); }
  void ItemCheck(std::int32_t&, Boolean&) override { out_(); }
  void MouseUp(std::int16_t&, std::int16_t&, float&, float&) override { out_(); }
  void MouseMove(Variant&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&) override {
    out_();
  }
  void MouseDown(std::int16_t&, std::int16_t&, float&, float&) override { out_(); }
  void ErrorListInput() override { out_(); }
  void ErrorListSave() override { out_(); }
  void ListSaving(Variant&) override { out_(); }
  void ListReading(Variant&) override { out_(); }
  void Scroll() override { out_(); }
  void KeyDown(std::int16_t&, std::int16_t&) override { out_(); }
  void KeyPress(std::int16_t&) override { out_(); }
  void KeyUp(std::int16_t&, std::int16_t&) override { out_(); }
  void ErrorWrongIndex(Variant&) override { out_(); }

 private:
  CallOut& out_;
};

/// What a host does to the list in the middle of an operation.
struct NamedTrouble {
  const char* name;
  std::function<void(nvList&)> run;
};

inline const std::vector<NamedTrouble>& troublesForAList() {
  static const std::vector<NamedTrouble> troubles = {
      {"clear", [](nvList& list) { list.ItemsClear(); }},
      {"remove", [](nvList& list) { list.ItemsRemove(0); }},
      {"remove all but one",
       [](nvList& list) {
         while (list.ItemsCount() > 1) list.ItemsRemove(list.ItemsCount() - 1);
       }},
      {"add", [](nvList& list) { list.ItemsAdd({.aText = "new", .aIndex = 0}); }},
      {"add many",
       [](nvList& list) {
         list.AutoRedraw(false);
         for (int i = 0; i < 200; ++i) list.ItemsAdd(i);
         list.AutoRedraw(true);
       }},
      {"sort", [](nvList& list) { list.Sort(cAscending); }},
      {"select", [](nvList& list) { list.ListIndex(list.ItemsCount() - 1); }},
      {"scroll far", [](nvList& list) { list.TopIndex(1'000'000); }},
      {"load", [](nvList& list) { list.ListInput("image", true); }},
      {"save", [](nvList& list) { list.ListSave("other", true); }},
      {"duplicates", [](nvList& list) { list.ItemsRemoveDouble(); }},
      {"read properties", [](nvList& list) { list.UserControl_ReadProperties(PropertyBag()); }},
      {"edit", [](nvList& list) { list.SetEdit(0); }},
      {"wheel",
       [](nvList& list) {
         std::int16_t rotation = -1, keys = 0;
         float x = 0, y = 0;
         list.Wheel1_WheelScroll(rotation, keys, x, y);
       }},
      {"throw a failure", [](nvList&) { throw Failure(5, "the host failed"); }},
      {"throw anything", [](nvList&) { throw 1; }},
  };
  return troubles;
}

}  // namespace norvane::attacks
