// Does random things to a list: calls its members, uses mouse, keys, wheel, bars and edit box, lets
// timers and messages run, and saves and loads files in memory. Hosts answer some events with calls
// of their own. The sanitizers find what goes wrong; nothing may come out of an operation.

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/files/Recordset.h>
#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../files/MemoryFiles.h"

namespace {

using namespace norvane;

/// What the input makes happen, value by value.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data, size) {}

  bool isEmpty() { return data_.remaining_bytes() == 0; }
  int below(int end) { return data_.ConsumeIntegralInRange(0, end - 1); }
  bool flag() { return data_.ConsumeBool(); }
  /// Mostly small, or at a limit.
  std::int32_t number() {
    using Limits = std::numeric_limits<std::int32_t>;
    switch (below(8)) {
      case 0:
        return Limits::max() - below(3);
      case 1:
        return Limits::min() + below(3);
      case 2:
        return data_.ConsumeIntegral<std::int32_t>();
      default:
        return below(24) - 4;
    }
  }
  float length() {
    constexpr float special[] = {-1, 0, 0.4F, 0.5F, 13, 1e9F, -1e9F, 3e38F};
    switch (below(6)) {
      case 0:
        return special[below(8)];
      case 1:
        return below(2) ? std::numeric_limits<float>::infinity() : std::nanf("");
      default:
        return static_cast<float>(below(80) - 8);
    }
  }
  std::string text() {
    constexpr const char* special[] = {"",      "def",       "1",       "2.5",
                                       "a & b", "c|right=d", "x\ty\nz", "\xC3"};
    return flag() ? special[below(8)] : data_.ConsumeRandomLengthString(12);
  }
  Variant value() {
    switch (below(7)) {
      case 0:
        return {};
      case 1:
        return text();
      case 2:
        return length();
      case 3:
        return Boolean(flag());
      case 4:
        return Ref<Object>(makeRef<Object>());
      default:
        return number();
    }
  }
  Boolean boolean() { return Boolean::ofNumber(static_cast<std::int16_t>(below(4) - 2)); }
  std::int16_t small() { return static_cast<std::int16_t>(number()); }
  Picture picture() {
    if (!flag()) return nullptr;
    return art::drawn("", 1 + below(3), 1, [](int, int) { return art::white; });
  }
  template <class Enumeration>
  Enumeration of() {
    return static_cast<Enumeration>(below(7) - 1);
  }

 private:
  FuzzedDataProvider data_;
};

class Rows final : public Recordset {
 public:
  explicit Rows(int count) : count_(count) {}
  std::int32_t RecordCount() override { return count_; }
  void MoveFirst() override { at_ = 0; }
  void MoveNext() override { ++at_; }
  Boolean Eof() override { return at_ >= count_; }
  std::optional<Variant> Value(std::int32_t) override {
    if (at_ == 2) return std::nullopt;
    return Variant(at_);
  }

 private:
  int count_;
  int at_ = 0;
};

/// One random life.
class Life final : private __nvList {
 public:
  explicit Life(Input& input) : input_(input) {
    list_.addSink(*this);
    Error().SilentError(input_.flag());
  }
  ~Life() override { Error().SilentError(false); }

  void run() {
    while (!input_.isEmpty() && steps_ < 300) step();
  }

 private:
  void step() {
    ++steps_;
    switch (input_.below(8)) {
      case 0:
        return changeItems();
      case 1:
        return changeItem();
      case 2:
        return changeProperty();
      case 3:
      case 4:
        return useMouse();
      case 5:
        return useKeys();
      case 6:
        return useFiles();
      default:
        return lookAndWait();
    }
  }

  void changeItems() {
    switch (input_.below(14)) {
      case 0:
      case 1:
        return list_.ItemsAdd({.aText = input_.value(),
                               .aIndex = input_.value(),
                               .aIcon = input_.picture(),
                               .aChecked = input_.boolean(),
                               .aForeColor = input_.value(),
                               .aBackColorSelected = input_.value(),
                               .aEnabled = input_.boolean(),
                               .aBackColorDis = input_.value(),
                               .aKey = input_.value()});
      case 2:
        for (int i = input_.below(40); i > 0; --i) list_.ItemsAdd(i);
        return;
      case 3:
        return list_.ItemsRemove(input_.value());
      case 4:
        return input_.below(4) == 0 ? list_.ItemsClear() : void();
      case 5:
        return list_.ItemsSelectedRemove();
      case 6:
        return list_.ItemsRemoveDouble(input_.boolean());
      case 7:
        return list_.Sort(input_.of<cSortMode>());
      case 8:
        return list_.MoveItemUp(input_.value(), input_.value());
      case 9:
        return list_.MoveItemDown(input_.value(), input_.value());
      case 10:
        list_.IndexByKey(input_.value());
        return;
      case 11:
        list_.IsInList(input_.text(), input_.of<cFindCompare>());
        return;
      case 12:
        return list_.Text(input_.text());
      default:
        list_.ItemsCheckCount();
        list_.ItemsSelectCount();
    }
  }

  void changeItem() {
    const Variant index = input_.value();
    switch (input_.below(13)) {
      case 0:
        return list_.ItemSelected(index, input_.boolean());
      case 1:
        return list_.ItemChecked(index, input_.boolean());
      case 2:
        return list_.ItemForeColorSelect(index, input_.value());
      case 3:
        return list_.ItemTag(index, input_.value());
      case 4:
        return list_.ItemIcon(index, input_.picture());
      case 5:
        return list_.ItemIconSelected(index, input_.picture());
      case 6:
        return list_.ItemAlignment(index, input_.of<cItemAlignment>());
      case 7:
        return list_.ItemAllowEdit(index, input_.boolean());
      case 8:
        return list_.ItemText(index, input_.text());
      case 9:
        return list_.ItemEnabled(index, input_.boolean());
      case 10:
        return list_.ItemBold(index, input_.boolean());
      case 11:
        return list_.ItemBackColorDis(index, input_.value());
      default:
        return list_.ItemKey(index, input_.value());
    }
  }

  void changeProperty() {
    switch (input_.below(28)) {
      case 0:
        return list_.AutoRedraw(input_.boolean());
      case 1:
        return list_.AutoCheckScroll(input_.boolean());
      case 2:
        return list_.Enabled(input_.boolean());
      case 3:
        return list_.ColorStyle(input_.of<cColorStyle>());
      case 4:
        return list_.ScrollColorStyle(input_.of<cScrollColorStyle>());
      case 5:
        return list_.BorderVisible(input_.boolean());
      case 6:
        return list_.Style(input_.of<cListStyle>());
      case 7:
        return list_.FullRowSelect(input_.boolean());
      case 8:
        return list_.ShowFocusRect(input_.boolean());
      case 9:
        return list_.GridLines(input_.boolean());
      case 10:
        return list_.IconW(input_.length());
      case 11:
        return list_.IconH(input_.length());
      case 12:
        return list_.DistPicText(input_.length());
      case 13:
        return list_.IndentTop(input_.length());
      case 14:
        return list_.IndentLeft(input_.length());
      case 15:
        return list_.MinHeight(input_.length());
      case 16:
        return list_.ScrollBars(input_.of<ScrollBarConstants>());
      case 17:
      case 18:
        return list_.AllowEdit(input_.boolean());
      case 19:
      case 20:
        return list_.MultiSelect(input_.boolean());
      case 21:
      case 22:
        return list_.AllowItemMoving(input_.boolean());
      case 23:
        return list_.WheelFunction(input_.of<cWheelFunction>());
      case 24:
        return list_.WheelScrollLines(input_.number());
      case 25:
        return list_.ListIndex(input_.number());
      case 26:
        return list_.TopIndex(input_.number());
      default:
        return list_.ClickOnIndexChange(input_.boolean());
    }
  }

  void useMouse() {
    const float x = input_.length();
    const float y = input_.length();
    const auto shift = static_cast<std::int16_t>(input_.below(4));
    const auto button = static_cast<std::int16_t>(1 + input_.below(4));
    switch (input_.below(5)) {
      case 0:
        return form_.press(x, y, button, shift);
      case 1:
        return form_.moveTo(x, y, button);
      case 2:
        return form_.release(x, y, button);
      case 3:
        return form_.doubleClick(x, y, button);
      default:
        form_.turnWheel(input_.small());
    }
  }

  void useKeys() {
    std::int16_t key =
        input_.flag() ? static_cast<std::int16_t>(38 + 2 * input_.below(2)) : input_.small();
    switch (input_.below(6)) {
      case 0:
        return list_.UserControl_KeyPress(key);
      case 1:
        return list_.UserControl_KeyUp(key, 0);
      case 2:
        return list_.SetEdit(input_.value());
      case 3:
        form_.textBoxes().at(0)->typeText(input_.text());
        form_.textBoxes().at(0)->typeCharacter(13);
        return;
      case 4:
        return input_.flag() ? list_.UserControl_GotFocus() : list_.UserControl_LostFocus();
      default:
        return list_.UserControl_KeyDown(key, 0);
    }
  }

  void useFiles() {
    constexpr const char* names[] = {"a", "b", "missing"};
    const std::string name = names[input_.below(3)];
    switch (input_.below(6)) {
      case 0:
        return list_.ListSave(name, input_.boolean());
      case 1:
        return list_.ListInput(name, input_.boolean());
      case 2:
        list_.ListInput2(name, input_.text());
        return;
      case 3: {
        std::string& bytes = files_.files["a"];
        if (!bytes.empty())
          bytes[static_cast<std::size_t>(input_.below(256)) % bytes.size()] =
              static_cast<char>(input_.below(256));
        return;
      }
      case 4:
        return list_.Recordset(makeRef<Rows>(input_.below(5)));
      default: {
        PropertyBag bag;
        list_.UserControl_WriteProperties(bag);
        return list_.UserControl_ReadProperties(bag);
      }
    }
  }

  void lookAndWait() {
    switch (input_.below(6)) {
      case 0:
        return form_.clock().advance(std::chrono::milliseconds(input_.below(700)));
      case 1:
        return form_.post([this] { react(); });
      case 2:
        return headless_.resize(static_cast<float>(input_.below(120)),
                                static_cast<float>(input_.below(120)));
      case 3:
        return list_.CheckScroll();
      case 4:
        headless_.picture();
        return;
      default:
        list_.VisibleItems();
        return list_.Redraw();
    }
  }

  /// What a host does in the middle of an operation.
  void react() {
    if (depth_ > 2 || input_.isEmpty() || input_.below(4) != 0) return;
    ++depth_;
    step();
    --depth_;
    if (input_.below(16) == 0) throw Failure(5, "host");
  }

  void Click() override { react(); }
  void DblClick() override { react(); }
  void ItemCheck(std::int32_t&, Boolean&) override { react(); }
  void MouseUp(std::int16_t&, std::int16_t&, float&, float&) override { react(); }
  void MouseMove(Variant&, std::int32_t&, std::int16_t&, std::int16_t&, float&, float&) override {
    react();
  }
  void MouseDown(std::int16_t& Button, std::int16_t&, float&, float&) override {
    if (input_.below(8) == 0) Button = input_.small();
    react();
  }
  void ListSaving(Variant& Index) override {
    if (input_.below(16) == 0) Index = input_.value();
    react();
  }
  void ListReading(Variant& Index) override { ListSaving(Index); }
  void Scroll() override { react(); }
  void KeyDown(std::int16_t&, std::int16_t&) override { react(); }
  void ErrorWrongIndex(Variant&) override { react(); }

  Input& input_;
  HeadlessApplication program_;
  MemoryFiles files_;
  HeadlessList headless_{60, 60};
  nvList& list_ = headless_.list();
  HeadlessContainer& form_ = headless_.container();
  int steps_ = 0;
  int depth_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  Life(input).run();
  return 0;
}
