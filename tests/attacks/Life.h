#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/files/Recordset.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/headless/HeadlessContainer.h>

#include "../files/FileBytes.h"

namespace norvane::attacks {

/// Counts the calls from the library to its host or platform. Runs `trouble` in one of them, with
/// `onward` in all later ones too.
struct CallOut {
  long calls = 0;
  long at = 0;  ///< counted from 1; 0: none
  bool onward = false;
  std::function<void()> trouble = [] {};

  void operator()() {
    // The trouble may call out too.
    if (++calls < at || at == 0 || (calls > at && !onward)) return;
    const std::function<void()> run = trouble;
    run();
  }
};

/// What a user does to a list, on whichever platform. Positions are pixels of the list.
struct Hand {
  std::function<void(float x, float y, std::int16_t shift)> press;
  std::function<void(float x, float y)> drag;
  std::function<void(float x, float y)> release;
  std::function<void(float x, float y)> doubleClick;
  std::function<void(std::int16_t delta)> turnWheel;
  std::function<void(std::int16_t code)> key;
  /// Presses Return in the edit box.
  std::function<void()> finishEdit;
  std::function<void(int milliseconds)> wait;
  std::function<void(float width, float height)> resize;
};

/// The hand of a user of a headless form.
inline Hand handOn(HeadlessContainer& form, nvList& list) {
  Hand hand;
  hand.press = [&](float x, float y, std::int16_t shift) { form.press(x, y, 1, shift); };
  hand.drag = [&](float x, float y) { form.moveTo(x, y, 1); };
  hand.release = [&](float x, float y) { form.release(x, y); };
  hand.doubleClick = [&](float x, float y) { form.doubleClick(x, y); };
  hand.turnWheel = [&](std::int16_t delta) { form.turnWheel(delta); };
  hand.key = [&](std::int16_t code) { list.UserControl_KeyDown(code, 0); };
  hand.finishEdit = [&] { form.textBoxes().at(0)->typeCharacter(13); };
  hand.wait = [&](int time) { form.clock().advance(std::chrono::milliseconds(time)); };
  hand.resize = [&](float width, float height) {
    form.ownSurface().resize(width, height);
    list.UserControl_Resize();
  };
  return hand;
}

/// The distance between two calls that fail: the one that scripts/sweep sets, or the usual one.
inline long strideOr(long usual) {
  const char* value = std::getenv("NVLIST_SWEEP_STRIDE");
  return value ? std::max(std::atol(value), 1L) : usual;
}

struct Step {
  const char* name;
  std::function<void()> run;
};

/// Rows of a host.
class Rows final : public Recordset {
 public:
  explicit Rows(std::function<void()> onCall) : onCall_(std::move(onCall)) {}
  std::int32_t RecordCount() override { return onCall_(), 3; }
  void MoveFirst() override { onCall_(), at_ = 0; }
  void MoveNext() override {
    onCall_();
    // Ends a list that never sees the end of the rows.
    if (++at_ > 20) throw std::bad_alloc();
  }
  Boolean Eof() override { return onCall_(), at_ >= 3; }
  std::optional<Variant> Value(std::int32_t) override { return onCall_(), Variant(at_); }

 private:
  std::function<void()> onCall_;
  int at_ = 0;
};

/// A picture of a host.
class HostPicture final : public PictureObject {
 public:
  explicit HostPicture(std::function<void()> onCall) : onCall_(std::move(onCall)) {}
  std::uintptr_t handle() const override { return onCall_(), 1; }
  float width() const override { return onCall_(), 1.0F; }
  float height() const override { return onCall_(), 1.0F; }
  std::vector<std::byte> fileBytes() const override {
    onCall_();
    return art::drawn("", 1, 1, [](int, int) { return art::white; })->fileBytes();
  }

 private:
  std::function<void()> onCall_;
};

/// Every kind of thing that happens to a list, in order; each step makes one call. The list is 60
/// pixels square, with rows of 13 pixels and both bars. `onCall` runs in the objects of the host.
/// The steps refer to their arguments. Files: "list" and "image" are list files, "text" is a text.
inline std::vector<Step> lifeOf(nvList& list, Hand& hand, const std::function<void()>& onCall) {
  const Picture icon = makeRef<HostPicture>(onCall);
  const Ref<Object> rows = makeRef<Rows>(onCall);
  // Created here, so that no step allocates anything outside of the library.
  const Variant wide = "a & long text that needs the bar", key = "key", comma = ",",
                image = "image";
  const NewItem pictured{
      .aText = "b|right=c", .aIcon = icon, .aIconSelected = icon, .aTag = wide, .aKey = key};
  const NewItem bad{.aText = wide, .aIcon = icon, .aTag = wide, .aForeColorDis = comma};
  const std::string text(100, 'x');
  const Font font = makeRef<FontObject>();
  const PropertyBag stored = propertiesOf("Font = font \"A\" 9 bold\nForeColor = 1\nStyle = bad\n");
  const NewItem coloured{.aText = "c", .aIndex = 0, .aBackColor = 0xFF, .aBold = true};
  std::vector<Step> life;
  const auto then = [&](const char* name, std::function<void()> run) {
    life.push_back({name, std::move(run)});
  };
  const auto click = [&](const char* name, float x, float y, std::int16_t shift = 0) {
    then(name, [=, &hand] { hand.press(x, y, shift); });
    then(name, [=, &hand] { hand.release(x, y); });
  };
  then("scroll bars", [&] { list.ScrollBars(vbBoth); });
  then("add", [&, wide] { list.ItemsAdd(wide); });
  then("add an icon", [&, pictured] { list.ItemsAdd(pictured); });
  then("insert", [&, coloured] { list.ItemsAdd(coloured); });
  then("add quietly", [&] { list.AutoRedraw(false); });
  for (int i = 0; i < 6; ++i)
    then("add another",
         [&, i] { list.ItemsAdd({.aText = 9 - i, .aAllowEdit = true, .aEnabled = i != 1}); });
  then("redraw again", [&] { list.AutoRedraw(true); });
  for (const cListStyle style : {cDefault, cCheckBoxes, cIcons, cCheckBoxesIcons})
    then("style", [&, style] { list.Style(style); });
  then("focus", [&] { list.UserControl_GotFocus(); });
  then("grid", [&] { list.GridLines(true); });
  then("colours", [&] { list.ColorStyle(cXPOlive); });
  then("border", [&] { list.BorderColor(0xFF); });
  then("select", [&] { list.ListIndex(3); });
  then("refuse", [&] { list.ListIndex(99); });
  then("property", [&] { list.ItemForeColor(2, 0xFF00); });
  click("click", 30, 20);
  click("check", 8, 20);
  then("multi-select", [&] { list.MultiSelect(true); });
  click("click with shift", 30, 33, 1);
  then("double click", [&] { hand.doubleClick(30, 7); });
  then("count", [&] { list.ItemsSelectCount(); });
  then("hover", [&] { hand.drag(30, 30); });
  then("allow moving", [&] { list.AllowItemMoving(true); });
  then("begin a move", [&] { hand.press(30, 20, 0); });
  then("drag", [&] { hand.drag(30, 33); });
  then("drag past the end", [&] { hand.drag(30, 70); });
  then("scroll by itself", [&] { hand.wait(2); });
  then("drag past the start", [&] { hand.drag(30, -5); });
  then("scroll back", [&] { hand.wait(2); });
  then("end the move", [&] { hand.release(30, 20); });
  then("move up", [&] { list.MoveItemUp(4, 2); });
  then("move down", [&] { list.MoveItemDown(2, 2); });
  then("no more moving", [&] { list.AllowItemMoving(false); });
  then("allow edit", [&] { list.AllowEdit(true); });
  then("edit", [&] { list.SetEdit(4); });
  then("finish", [&] { hand.finishEdit(); });
  then("edit again", [&] { list.SetEdit(5); });
  then("button", [&] { hand.press(51, 36, 0); });
  then("button repeats", [&] { hand.wait(700); });
  then("button up", [&] { hand.release(51, 36); });
  then("thumb", [&] { hand.press(51, 15, 0); });
  then("drag the thumb", [&] { hand.drag(51, 25); });
  then("let go", [&] { hand.release(51, 25); });
  click("track", 51, 27);
  click("right button", 36, 51);
  then("wheel", [&] { hand.turnWheel(-120); });
  then("wheel selects", [&] { list.WheelFunction(cWheelListIndex); });
  then("wheel down", [&] { hand.turnWheel(-120); });
  then("wheel up", [&] { hand.turnWheel(120); });
  for (const int code : {38, 40, 40, 65})
    then("key", [&, code] { hand.key(static_cast<std::int16_t>(code)); });
  then("sort", [&] { list.Sort(cDescending); });
  then("find a key", [&, key] { list.IndexByKey(key); });
  then("find a text", [&] { list.IsInList("*c*", cFindText); });
  then("remove", [&] { list.ItemsRemove(Variant(1)); });
  then("save texts", [&] { list.ListSave("list"); });
  then("load texts", [&] { list.ListInput("list"); });
  then("an icon", [&, icon] { list.ItemIcon(1, icon); });
  then("save", [&] { list.ListSave("list", true); });
  then("load without properties", [&] { list.ListInput("list", false); });
  then("load", [&] { list.ListInput("list", true); });
  then("count an image", [&, image] { list.ListFileItemsCount(image); });
  then("load an image", [&] { list.ListInput("image", true); });
  then("missing", [&] { list.ListInput("missing"); });
  then("load a text", [&, comma] { list.ListInput2("text", comma); });
  then("check scroll again", [&] { list.AutoCheckScroll(true); });
  then("recordset", [&, rows] { list.Recordset(rows); });
  then("duplicates", [&] { list.ItemsRemoveDouble(); });
  then("resize", [&] { hand.resize(80, 50); });
  then("add badly", [&, bad] { list.ItemsAdd(bad); });
  then("text", [&, text] { list.ItemText(0, text); });
  then("read the text", [&] { list.ItemText(0); });
  then("tag", [&, wide] { list.ItemTag(0, wide); });
  then("item's key", [&, wide] { list.ItemKey(0, wide); });
  then("a text for a colour", [&, wide] { list.ItemForeColorSelect(0, wide); });
  then("font", [&, font] { list.Font(font); });
  then("select one", [&] { list.ItemSelected(0, true); });
  then("store", [&] {
    PropertyBag bag;
    list.UserControl_WriteProperties(bag);
  });
  then("remove the selected", [&] { list.ItemsSelectedRemove(); });
  then("about", [&] { list.About(); });
  then("ambient", [&] { list.UserControl_AmbientChanged("DisplayName"); });
  then("clear", [&] { list.ItemsClear(); });
  then("read properties", [&, stored] { list.UserControl_ReadProperties(stored); });
  then("terminate", [&] { list.UserControl_Terminate(); });
  return life;
}

/// Files that the steps read, by name.
inline std::vector<std::pair<std::string, std::string>> filesOfALife() {
  using namespace bytes;
  return {{"list", "old contents"},
          {"text", "x,y,z"},
          {"image", image(property("count", 2, int16(2)) + property("sip", 11, int16(-1)) +
                          property("i0Text", 8, text("b")) + property("i0Icon", 9, text("icon")))}};
}

}  // namespace norvane::attacks
