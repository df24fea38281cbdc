#include <nvlist/objects/QI.h>

#include <nvlist/objects/Trap.h>
#include <nvlist/objects/about.h>

namespace norvane {

constinit const Module QI::here{kinds::classModule, "QI"};

void QI::Create(const Variant& form, const Variant& control, const std::string& text,
                std::int32_t displayTime, std::int16_t maxWidth) {
  trapped(here, "Create", [&](Trap& on) {
    on.step([&] { ToolTip_.Create(form); });
    on.step([&] { ToolTip_.MaxTipWidth(maxWidth); });
    on.step([&] { ToolTip_.DelayTime(static_cast<std::int32_t>(TipDelay::autopop), displayTime); });
    on.step([&] { ToolTip_.AddTool(control, text); });
    // If the control already had a tip, AddTool has changed nothing.
    on.step([&] { ToolTip_.ToolText(control, text); });
  });
}

void QI::Remove(const Variant& control) {
  trapped(here, "Remove", [&](Trap& on) { on.step([&] { ToolTip_.RemoveTool(control); }); });
}

void QI::About() {
  trapped(here, "About", [&](Trap& on) { on.step([] { showAboutBox(); }); });
}

}  // namespace norvane
