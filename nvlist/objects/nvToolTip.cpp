#include <nvlist/objects/nvToolTip.h>

#include <algorithm>

#include <nvlist/objects/Trap.h>
#include <nvlist/objects/lateBound.h>
#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/HostWindow.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

TipDelay delayOf(std::int32_t kind) { return static_cast<TipDelay>(kind & 3); }

/// The side with that number, or nullptr.
std::int32_t* sideOf(Rectangle& sides, std::int32_t side) {
  switch (side) {
    case 0:
      return &sides.Left;
    case 1:
      return &sides.Top;
    case 2:
      return &sides.Right;
    case 3:
      return &sides.Bottom;
    default:
      return nullptr;
  }
}

Ref<HostWindow> containerOf(const Variant& control) {
  Ref<HostWindow> container = lateBound<HostWindow>(control)->Container();
  if (!container) throw Failure::objectNotSet();
  return container;
}

bool isForm(const Variant& object) {
  const auto* window = dynamic_cast<const HostWindow*>(object.object().get());
  return window && window->isForm();
}

}  // namespace

constinit const Module nvToolTip::here{kinds::classModule, "nvToolTip"};

Boolean nvToolTip::Create(const Variant& form) {
  Boolean result;
  trapped(here, "Create", [&](Trap& on) {
    if (!on.test([&] { return isForm(form); })) return;
    if (!IsWindow())
      on.step([&] {
        TipWindow_ = Desktop::inUse().createTipWindow(lateBound<HostWindow>(form)->hwnd());
      });
    result = IsWindow();
  });
  return result;
}

Boolean nvToolTip::GetToolInfo(std::int32_t controlHandle, TipTool& record, bool wantText) {
  Boolean result;
  trapped(here, "GetToolInfo", [&](Trap& on) {
    record = {};
    if (wantText) on.step([&] { record.text.assign(MaxTextLength_, '\0'); });
    std::int32_t count = 0;
    on.step([&] { count = ToolCount(); });
    for (std::int32_t i = 0; i < count && !result; ++i)
      result = on.test(
          [&] { return TipWindow_->enumerateTool(i, record) && record.id == controlHandle; });
  });
  return result;
}

/// Keeps the buffer large enough to read back the longest text.
void nvToolTip::keepLength(const std::string& text) {
  MaxTextLength_ = std::max(MaxTextLength_, text.size() + 1);
}

Boolean nvToolTip::AddTool(const Variant& control, const std::string& text) {
  Boolean result;
  trapped(here, "AddTool", [&](Trap& on) {
    if (!IsWindow()) return;
    TipTool tool;
    if (on.test([&] { return GetToolInfo(lateBound<HostWindow>(control)->hwnd(), tool); })) return;
    tool.flags = TipTool::isWindow | TipTool::receivesMouse;
    on.step([&] { tool.owner = containerOf(control)->hwnd(); });
    on.step([&] { tool.id = lateBound<HostWindow>(control)->hwnd(); });
    on.step([&] { tool.text = text; });
    keepLength(text);
    on.step([&] { result = TipWindow_->addTool(tool); });
  });
  return result;
}

Boolean nvToolTip::RemoveTool(const Variant& control) {
  Boolean result;
  trapped(here, "RemoveTool", [&](Trap& on) {
    if (!IsWindow()) return;
    TipTool tool;
    if (!on.test([&] { return GetToolInfo(lateBound<HostWindow>(control)->hwnd(), tool); })) return;
    on.step([&] { TipWindow_->deleteTool(tool); });
    result = true;
  });
  return result;
}

Colour nvToolTip::BackColor() {
  Colour result = 0;
  trapped(here, "BackColor", [&](Trap& on) {
    if (IsWindow()) on.step([&] { result = TipWindow_->backColour(); });
  });
  return result;
}

void nvToolTip::BackColor(Colour value) {
  trapped(here, "BackColor", [&](Trap& on) {
    if (IsWindow()) on.step([&] { TipWindow_->backColour(value); });
  });
}

Colour nvToolTip::ForeColor() {
  Colour result = 0;
  trapped(here, "ForeColor", [&](Trap& on) {
    // Reading sets the colour: this is part of the published behaviour.
    if (IsWindow()) on.step([&] { result = TipWindow_->textColour(0); });
  });
  return result;
}

void nvToolTip::ForeColor(Colour value) {
  trapped(here, "ForeColor", [&](Trap& on) {
    if (IsWindow()) on.step([&] { TipWindow_->textColour(value); });
  });
}

std::int32_t nvToolTip::DelayTime(std::int32_t kind) {
  std::int32_t result = 0;
  trapped(here, "DelayTime", [&](Trap& on) {
    if (IsWindow()) on.step([&] { result = TipWindow_->delay(delayOf(kind)); });
  });
  return result;
}

void nvToolTip::DelayTime(std::int32_t kind, std::int32_t time) {
  trapped(here, "DelayTime", [&](Trap& on) {
    if (IsWindow()) on.step([&] { TipWindow_->delay(delayOf(kind), time); });
  });
}

std::int32_t nvToolTip::Margin(std::int32_t side) {
  std::int32_t result = 0;
  trapped(here, "Margin", [&](Trap& on) {
    if (!IsWindow()) return;
    Rectangle sides;
    on.step([&] { sides = TipWindow_->margin(); });
    if (const std::int32_t* pixels = sideOf(sides, side)) result = *pixels;
  });
  return result;
}

void nvToolTip::Margin(std::int32_t side, std::int32_t value) {
  trapped(here, "Margin", [&](Trap& on) {
    if (!IsWindow()) return;
    Rectangle sides;
    on.step([&] { sides = TipWindow_->margin(); });
    if (std::int32_t* pixels = sideOf(sides, side)) *pixels = value;
    on.step([&] { TipWindow_->margin(sides); });
  });
}

std::int16_t nvToolTip::MaxTipWidth() {
  std::int16_t result = 0;
  trapped(here, "MaxTipWidth", [&](Trap& on) {
    if (IsWindow()) on.step([&] { result = LoWord2(TipWindow_->maxTipWidth()); });
  });
  return result;
}

void nvToolTip::MaxTipWidth(std::int16_t value) {
  trapped(here, "MaxTipWidth", [&](Trap& on) {
    if (IsWindow()) on.step([&] { TipWindow_->maxTipWidth(value < 1 ? -1 : value); });
  });
}

std::int16_t nvToolTip::ToolCount() {
  std::int16_t result = 0;
  trapped(here, "ToolCount", [&](Trap& on) {
    if (IsWindow())
      on.step([&] { result = checked::narrow<std::int16_t>(TipWindow_->toolCount()); });
  });
  return result;
}

std::string nvToolTip::ToolText(const Variant& control) {
  std::string result;
  trapped(here, "ToolText", [&](Trap& on) {
    if (!IsWindow()) return;
    TipTool tool;
    if (on.test([&] { return GetToolInfo(lateBound<HostWindow>(control)->hwnd(), tool, true); }))
      on.step([&] { result = GetStrFromBufferA(tool.text); });
  });
  return result;
}

void nvToolTip::ToolText(const Variant& control, const std::string& text) {
  trapped(here, "ToolText", [&](Trap& on) {
    if (!IsWindow()) return;
    TipTool tool;
    if (!on.test([&] { return GetToolInfo(lateBound<HostWindow>(control)->hwnd(), tool); })) return;
    on.step([&] { tool.text = text; });
    keepLength(text);
    on.step([&] { TipWindow_->updateText(tool); });
  });
}

std::int32_t nvToolTip::hwnd() {
  std::int32_t result = 0;
  trapped(here, "hwnd", [&](Trap& on) {
    if (IsWindow()) on.step([&] { result = TipWindow_->handle(); });
  });
  return result;
}

std::int16_t nvToolTip::LoWord2(std::int32_t value) { return static_cast<std::int16_t>(value); }

std::string nvToolTip::GetStrFromBufferA(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

}  // namespace norvane
