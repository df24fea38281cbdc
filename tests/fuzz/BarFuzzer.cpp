// Does random things to a scroll bar that is alone on a form.

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessContainer.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>
#include <nvlist/values/Failure.h>

#include "Input.h"

namespace {

using namespace norvane;

/// A bar and its host, some of whose handlers change the bar.
template <class Bar>
class Life : private nvVScrollEvents, private nvHScrollEvents {
 public:
  explicit Life(Input& input) : input_(input) {
    Error().SilentError(input.flag());
    bar_.UserControl_InitProperties();
    bar_.Visible(true);
  }
  ~Life() { Error().SilentError(false); }

  void run() {
    for (int steps = 0; !input_.isEmpty() && steps < 400; ++steps) step();
  }

 private:
  void step() {
    const auto side = [&] { return static_cast<float>(input_.below(120)); };
    const auto button = static_cast<std::int16_t>(1 + input_.below(3));
    oneOf(
        input_, [&] { bar_.Min(input_.number()); }, [&] { bar_.Max(input_.number()); },
        [&] { bar_.Max(input_.below(200)); }, [&] { bar_.Value(input_.number()); },
        [&] { bar_.Enabled(input_.flag()); }, [&] { bar_.ActiveScrolling(input_.flag()); },
        [&] { bar_.ColorStyle(input_.of<cScrollColorStyle>()); },
        [&] { bar_.Gradient(input_.flag()); },
        [&] {
          bar_.Move({0, 0, side(), side()});
        },
        [&] { form_.press(input_.length(), input_.length(), button); },
        [&] { form_.moveTo(input_.length(), input_.length(), button); },
        [&] { form_.release(input_.length(), input_.length(), button); },
        [&] { form_.clock().advance(std::chrono::milliseconds(input_.below(900))); },
        [&] {
          PropertyBag bag;
          bar_.UserControl_WriteProperties(bag);
          bar_.UserControl_ReadProperties(bag);
        },
        [&] { bar_.Visible(input_.flag()); }, [&] { bar_.About(); });
  }
  void react() {
    if (depth_ > 2 || input_.isEmpty() || input_.below(4) != 0) return;
    ++depth_;
    step();
    --depth_;
    if (input_.below(16) == 1) throw Failure(5, "host");
  }

  void VScroll1_Change() override { react(); }
  void VScroll1_Scroll() override { react(); }
  void HScroll1_Change() override { react(); }
  void HScroll1_Scroll() override { react(); }

  HeadlessApplication application_;
  Input& input_;
  HeadlessContainer form_{120, 120};
  Bar bar_{form_.addChild(), *this};
  int depth_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  if (input.flag())
    Life<nvVScroll>(input).run();
  else
    Life<nvHScroll>(input).run();
  return 0;
}
