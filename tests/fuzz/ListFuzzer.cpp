// Does random things to a list: calls its members, uses mouse, keys, wheel, bars and edit box, lets
// timers and messages run, and saves and loads files in memory. Hosts answer some events with calls
// of their own. The sanitizers find what goes wrong; nothing may come out of an operation.

#include <string>

#include <nvlist/core/storedProperties.h>
#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../attacks/HostileHost.h"
#include "Input.h"

namespace {

using namespace norvane;

/// One random life.
class Life final : private attacks::HostileHost {
 public:
  explicit Life(Input& input) : HostileHost(reaction_), input_(input) {
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
    oneOf(
        input_, [&] { changeItems(); }, [&] { changeItem(); }, [&] { changeProperty(); },
        [&] { useMouse(); }, [&] { useKeys(); }, [&] { useFiles(); }, [&] { lookAndWait(); });
  }

  void changeItems() {
    oneOf(
        input_,
        [&] {
          list_.ItemsAdd({.aText = input_.value(),
                          .aIndex = input_.value(),
                          .aIcon = input_.picture(),
                          .aChecked = input_.boolean(),
                          .aForeColor = input_.value(),
                          .aBackColorSelected = input_.value(),
                          .aEnabled = input_.boolean(),
                          .aBackColorDis = input_.value(),
                          .aKey = input_.value()});
        },
        [&] {
          for (int i = input_.below(40); i > 0; --i) list_.ItemsAdd(i);
        },
        [&] { list_.ItemsRemove(input_.value()); },
        [&] { input_.below(4) == 0 ? list_.ItemsClear() : void(); },
        [&] { list_.ItemsSelectedRemove(); }, [&] { list_.ItemsRemoveDouble(input_.boolean()); },
        [&] { list_.Sort(input_.of<cSortMode>()); },
        [&] { list_.MoveItemUp(input_.value(), input_.value()); },
        [&] { list_.MoveItemDown(input_.value(), input_.value()); },
        [&] { list_.IndexByKey(input_.value()); },
        [&] { list_.IsInList(input_.text(), input_.of<cFindCompare>()); },
        [&] { list_.Text(input_.text()); },
        [&] {
          list_.ItemsCheckCount();
          list_.ItemsSelectCount();
        });
  }

  void changeItem() {
    const Variant index = input_.value();
    oneOf(
        input_, [&] { list_.ItemSelected(index, input_.boolean()); },
        [&] { list_.ItemChecked(index, input_.boolean()); },
        [&] { list_.ItemForeColorSelect(index, input_.value()); },
        [&] { list_.ItemTag(index, input_.value()); },
        [&] { list_.ItemIcon(index, input_.picture()); },
        [&] { list_.ItemIconSelected(index, input_.picture()); },
        [&] { list_.ItemAlignment(index, input_.of<cItemAlignment>()); },
        [&] { list_.ItemAllowEdit(index, input_.boolean()); },
        [&] { list_.ItemText(index, input_.text()); },
        [&] { list_.ItemEnabled(index, input_.boolean()); },
        [&] { list_.ItemBold(index, input_.boolean()); },
        [&] { list_.ItemBackColorDis(index, input_.value()); },
        [&] { list_.ItemKey(index, input_.value()); });
  }

  void changeProperty() {
    const auto properties = storedProperties();
    const StoredProperty& property =
        properties[static_cast<std::size_t>(input_.below(static_cast<int>(properties.size())))];
    try {
      property.set(list_, input_.flag() ? Variant(input_.length()) : Variant(input_.number()));
    } catch (const Failure&) {
      // The value cannot be converted.
    }
    oneOf(
        input_, [] {}, [&] { list_.ListIndex(input_.number()); },
        [&] { list_.TopIndex(input_.number()); });
  }

  void useMouse() {
    const float x = input_.length();
    const float y = input_.length();
    const auto shift = static_cast<std::int16_t>(input_.below(4));
    const auto button = static_cast<std::int16_t>(1 + input_.below(4));
    oneOf(
        input_, [&] { form_.press(x, y, button, shift); }, [&] { form_.moveTo(x, y, button); },
        [&] { form_.release(x, y, button); }, [&] { form_.doubleClick(x, y, button); },
        [&] { form_.turnWheel(input_.small()); });
  }

  void useKeys() {
    std::int16_t key =
        input_.flag() ? static_cast<std::int16_t>(38 + 2 * input_.below(2)) : input_.small();
    oneOf(
        input_, [&] { list_.UserControl_KeyPress(key); }, [&] { list_.UserControl_KeyUp(key, 0); },
        [&] { list_.SetEdit(input_.value()); },
        [&] {
          form_.textBoxes().at(0)->typeText(input_.text());
          form_.textBoxes().at(0)->typeCharacter(13);
        },
        [&] { input_.flag() ? list_.UserControl_GotFocus() : list_.UserControl_LostFocus(); },
        [&] { list_.UserControl_KeyDown(key, 0); });
  }

  void useFiles() {
    constexpr const char* names[] = {"a", "b", "missing"};
    const std::string name = names[input_.below(3)];
    oneOf(
        input_, [&] { list_.ListSave(name, input_.boolean()); },
        [&] { list_.ListInput(name, input_.boolean()); },
        [&] { list_.ListInput2(name, input_.text()); },
        [&] {
          std::string& bytes = files_.files["a"];
          if (!bytes.empty())
            bytes[static_cast<std::size_t>(input_.below(256)) % bytes.size()] =
                static_cast<char>(input_.below(256));
        },
        [&] { list_.Recordset(makeRef<attacks::Rows>([this] { react(); })); },
        [&] {
          PropertyBag bag;
          list_.UserControl_WriteProperties(bag);
          list_.UserControl_ReadProperties(bag);
        });
  }

  void lookAndWait() {
    oneOf(
        input_, [&] { form_.clock().advance(std::chrono::milliseconds(input_.below(700))); },
        [&] { form_.post([this] { react(); }); },
        [&] {
          headless_.resize(static_cast<float>(input_.below(120)),
                           static_cast<float>(input_.below(120)));
        },
        [&] { list_.CheckScroll(); }, [&] { headless_.picture(); },
        [&] {
          list_.VisibleItems();
          list_.Redraw();
        });
  }

  /// What a host does in the middle of an operation.
  void react() {
    if (depth_ > 2 || input_.isEmpty() || input_.below(4) != 0) return;
    ++depth_;
    step();
    --depth_;
    if (input_.below(16) == 0) throw Failure(5, "host");
  }

  void MouseDown(std::int16_t& Button, std::int16_t&, float&, float&) override {
    if (input_.below(8) == 0) Button = input_.small();
    react();
  }
  void ListSaving(Variant& Index) override {
    // Without this test, a host that always goes back would keep the loop going for ever.
    if (!input_.isEmpty() && input_.below(16) == 0) Index = input_.value();
    react();
  }
  void ListReading(Variant& Index) override { ListSaving(Index); }

  attacks::CallOut reaction_{0, 1, true, [this] { react(); }};
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
