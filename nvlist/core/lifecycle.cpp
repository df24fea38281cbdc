#include <nvlist/nvList.h>
#include <nvlist/objects/about.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// The initial bounds of the edit box: the text position of a row in a list with check boxes and
/// icons and default margins.
constexpr Bounds newEditBox{37, 3, 100, 14};

}  // namespace

nvList::nvList(Container& place)
    : UserControl(place),
      VScroll1(container_.addChild(), *this),
      HScroll1(container_.addChild(), *this),
      pBord{{BorderPiece(container_.addChild()), BorderPiece(container_.addChild()),
             BorderPiece(container_.addChild()), BorderPiece(container_.addChild())}},
      lblWidth(container_.addChild()),
      Text1(container_.addTextBox([this](std::int16_t& KeyAscii) { Text1_KeyPress(KeyAscii); })),
      // The reporter may fail, and a timer has no caller.
      tmrMouseAction(
          container_.addTimer([this] { ignoringFailures([&] { tmrMouseAction_Timer(); }); })),
      Wheel1(container_, *this) {
  VScroll1.UserControl_InitProperties();
  HScroll1.UserControl_InitProperties();
  Text1->Move(newEditBox);
  tmrMouseAction->Interval(1);
}

nvList::~nvList() {
  ignoringFailures([&] { UserControl_Terminate(); });
}

void nvList::UserControl_Terminate() {
  trapped(here, "UserControl_Terminate",
          [&](Trap& on) { on.step([&] { Wheel1.DisableWheel(); }); });
}

void nvList::UserControl_AmbientChanged(std::string_view PropertyName) {
  trapped(here, "UserControl_AmbientChanged", [&](Trap& on) {
    if (PropertyName == "DisplayName") on.step([&] { Redraw(); });
  });
}

std::int32_t nvList::hwnd() {
  std::int32_t handle = 0;
  trapped(here, "hwnd", [&](Trap& on) { on.step([&] { handle = container_.hwnd(); }); });
  return handle;
}

void nvList::About() {
  trapped(here, "About", [&](Trap& on) { on.step([] { showAboutBox(); }); });
}

}  // namespace norvane
