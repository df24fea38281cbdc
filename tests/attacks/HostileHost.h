#pragma once

#include <functional>
#include <string>
#include <vector>

#include <nvlist/platform/headless/HeadlessApplication.h>

#include "../files/MemoryFiles.h"
#include "Life.h"

namespace norvane::attacks {

/// A program whose boxes call the host.
class HostileProgram final : public HeadlessApplication {
 public:
  explicit HostileProgram(CallOut& out) : out_(out) {}
  /// Whether a box has failed. That failure of the reporter reaches the host.
  bool hasFailed = false;
  void MsgBox(std::string_view, std::int32_t, std::string_view) override {
    hasFailed = true;
    out_();
    hasFailed = false;
  }

 private:
  CallOut& out_;
};

/// A host whose every handler is a call-out.
class HostileHost : public __nvList {
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

/// The life of a list whose host does something bad when it is called for the `at`-th time. The
/// caller creates the list.
struct HostileLife {
  explicit HostileLife(long at) : out{0, at} {
    for (auto& [name, bytes] : filesOfALife()) files.files[name] = bytes;
  }

  void run(const std::vector<Step>& steps, const std::function<void()>& beforeStep,
           const std::function<void()>& afterStep) {
    for (const Step& step : steps) {
      current = &step;
      beforeStep();
      program.hasFailed = false;
      hasLeaked = !ignoringFailures(step.run) && !program.hasFailed;
      afterStep();
    }
  }
  /// Whether the list works again once the host behaves.
  bool serves(nvList& list) {
    out.at = 0;
    list.removeSink(host);
    list.UserControl_ReadProperties(PropertyBag());
    list.ItemsAdd("end");
    return list.ItemsCount() == 1 && list.ItemText(0) == "end" && files.open == 0;
  }

  CallOut out;
  HostileProgram program{out};
  MemoryFiles files;
  HostileHost host{out};
  const Step* current = nullptr;
  bool hasLeaked = false;  ///< a failure has reached the caller of the current step
};

/// What a host does in the middle of an operation.
struct NamedTrouble {
  const char* name;
  std::function<void(HostileLife&, nvList&)> run;
};

/// Everything that needs the list alone.
inline std::vector<NamedTrouble> troublesForAList() {
  return {
      {"the same again", [](HostileLife& life, nvList&) { life.current->run(); }},
      {"unregister", [](HostileLife& life, nvList& list) { list.removeSink(life.host); }},
      {"clear", [](HostileLife&, nvList& list) { list.ItemsClear(); }},
      {"remove", [](HostileLife&, nvList& list) { list.ItemsRemove(0); }},
      {"remove all but one",
       [](HostileLife&, nvList& list) {
         while (list.ItemsCount() > 1) list.ItemsRemove(list.ItemsCount() - 1);
       }},
      {"add many",
       [](HostileLife&, nvList& list) {
         list.AutoRedraw(false);
         for (int i = 0; i < 200; ++i) list.ItemsAdd({.aText = i, .aIndex = 0});
         list.AutoRedraw(true);
       }},
      {"sort", [](HostileLife&, nvList& list) { list.Sort(cAscending); }},
      {"select", [](HostileLife&, nvList& list) { list.ListIndex(list.ItemsCount() - 1); }},
      {"scroll far", [](HostileLife&, nvList& list) { list.TopIndex(1'000'000); }},
      {"load", [](HostileLife&, nvList& list) { list.ListInput("image", true); }},
      {"save", [](HostileLife&, nvList& list) { list.ListSave("other", true); }},
      {"duplicates", [](HostileLife&, nvList& list) { list.ItemsRemoveDouble(); }},
      {"read properties",
       [](HostileLife&, nvList& list) { list.UserControl_ReadProperties(PropertyBag()); }},
      {"edit", [](HostileLife&, nvList& list) { list.SetEdit(0); }},
      {"wheel",
       [](HostileLife&, nvList& list) {
         std::int16_t rotation = -1, keys = 0;
         float x = 0, y = 0;
         list.Wheel1_WheelScroll(rotation, keys, x, y);
       }},
      {"throw a failure", [](HostileLife&, nvList&) { throw Failure(5, "the host failed"); }},
      {"throw anything", [](HostileLife&, nvList&) { throw 1; }},
  };
}

}  // namespace norvane::attacks
