// The properties of the list: one row each.

#include <nvlist/objects/Error.h>

#include "Sheet.h"

using norvane::nvList;
using norvane::NvListWidget;

namespace gallery {
namespace {

/// A pair of accessors as the list has them. The reading one is const or is not.
template <class Value, class Argument>
Property row(const char* name, MakeEditor<Value> make, Value (nvList::*read)() const,
             void (nvList::*write)(Argument)) {
  return property<Value>(
      name, make, [read](const Subject& on) { return (on.list().*read)(); },
      [write](const Subject& on, const Value& value) { (on.list().*write)(value); });
}

template <class Value, class Argument>
Property row(const char* name, MakeEditor<Value> make, Value (nvList::*read)(),
             void (nvList::*write)(Argument)) {
  return property<Value>(
      name, make, [read](const Subject& on) { return (on.list().*read)(); },
      [write](const Subject& on, const Value& value) { (on.list().*write)(value); });
}

MakeEditor<norvane::cListStyle> style() {
  return choice<norvane::cListStyle>({{"cDefault", norvane::cDefault},
                                      {"cCheckBoxes", norvane::cCheckBoxes},
                                      {"cIcons", norvane::cIcons},
                                      {"cCheckBoxesIcons", norvane::cCheckBoxesIcons}});
}

MakeEditor<norvane::cColorStyle> colorStyle() {
  return choice<norvane::cColorStyle>({{"cXPBlue", norvane::cXPBlue},
                                       {"cXPSilver", norvane::cXPSilver},
                                       {"cXPOlive", norvane::cXPOlive},
                                       {"cCustom", norvane::cCustom}});
}

MakeEditor<norvane::cScrollColorStyle> scrollColorStyle() {
  return choice<norvane::cScrollColorStyle>({{"cXPScrollBlue", norvane::cXPScrollBlue},
                                             {"cXPScrollSilver", norvane::cXPScrollSilver},
                                             {"cXPScrollOlive", norvane::cXPScrollOlive}});
}

/// The list follows a new choice when its bars are fitted the next time, which is left to the host.
Property scrollBars() {
  const auto make = choice<norvane::ScrollBarConstants>({{"vbSBNone", norvane::vbSBNone},
                                                         {"vbHorizontal", norvane::vbHorizontal},
                                                         {"vbVertical", norvane::vbVertical},
                                                         {"vbBoth", norvane::vbBoth}});
  return property<norvane::ScrollBarConstants>(
      "ScrollBars", make, [](const Subject& on) { return on.list().ScrollBars(); },
      [](const Subject& on, norvane::ScrollBarConstants value) {
        on.list().ScrollBars(value);
        on.list().CheckScroll();
        if (on.list().AutoRedraw()) on.list().Redraw();
      });
}

MakeEditor<norvane::cWheelFunction> wheelFunction() {
  return choice<norvane::cWheelFunction>({{"cWheelScroll", norvane::cWheelScroll},
                                          {"cWheelListIndex", norvane::cWheelListIndex},
                                          {"cWheelOff", norvane::cWheelOff}});
}

Property designMode() {
  return property<norvane::Boolean>(
      "Design mode", flag(), [](const Subject& on) { return on.widget->isDesignMode(); },
      [](const Subject& on, norvane::Boolean value) {
        on.widget->setDesignMode(static_cast<bool>(value));
      });
}

/// One for the whole program.
Property silentError() {
  return property<norvane::Boolean>(
      "SilentError", flag(), [](const Subject&) { return norvane::Error().SilentError(); },
      [](const Subject&, norvane::Boolean value) { norvane::Error().SilentError(value); });
}

}  // namespace

const std::vector<PropertyGroup>& propertiesOfTheList() {
  static const std::vector<PropertyGroup> groups = {
      {"Look",
       {row("Style", style(), &nvList::Style, &nvList::Style),
        row("FullRowSelect", flag(), &nvList::FullRowSelect, &nvList::FullRowSelect),
        row("GridLines", flag(), &nvList::GridLines, &nvList::GridLines),
        row("IconSelect", flag(), &nvList::IconSelect, &nvList::IconSelect),
        row("ShowFocusRect", flag(), &nvList::ShowFocusRect, &nvList::ShowFocusRect),
        row("ColorStyle", colorStyle(), &nvList::ColorStyle, &nvList::ColorStyle),
        row("ValueColor", colour(), &nvList::ValueColor, &nvList::ValueColor)}},
      {"Rows",
       {row("Font", font(), &nvList::Font, &nvList::Font),
        row("MinHeight", length(), &nvList::MinHeight, &nvList::MinHeight),
        row("IconW", length(), &nvList::IconW, &nvList::IconW),
        row("IconH", length(), &nvList::IconH, &nvList::IconH),
        row("DistPicText", length(), &nvList::DistPicText, &nvList::DistPicText),
        row("IndentTop", length(), &nvList::IndentTop, &nvList::IndentTop),
        row("IndentLeft", length(), &nvList::IndentLeft, &nvList::IndentLeft),
        row("IndentRight", length(), &nvList::IndentRight, &nvList::IndentRight),
        row("IndentBottom", length(), &nvList::IndentBottom, &nvList::IndentBottom)}},
      {"Colours",
       {row("ForeColor", colour(), &nvList::ForeColor, &nvList::ForeColor),
        row("BackColor", colour(), &nvList::BackColor, &nvList::BackColor),
        row("GridLineColor", colour(), &nvList::GridLineColor, &nvList::GridLineColor),
        row("BorderVisible", flag(), &nvList::BorderVisible, &nvList::BorderVisible),
        row("BorderColor", colour(), &nvList::BorderColor, &nvList::BorderColor),
        row("ScrollColorStyle", scrollColorStyle(), &nvList::ScrollColorStyle,
            &nvList::ScrollColorStyle)}},
      {"Behaviour",
       {row("Enabled", flag(), &nvList::Enabled, &nvList::Enabled),
        row("MultiSelect", flag(), &nvList::MultiSelect, &nvList::MultiSelect),
        row("AllowEdit", flag(), &nvList::AllowEdit, &nvList::AllowEdit),
        row("AllowItemMoving", flag(), &nvList::AllowItemMoving, &nvList::AllowItemMoving),
        row("HoverSelect", flag(), &nvList::HoverSelect, &nvList::HoverSelect),
        row("ClickOnIndexChange", flag(), &nvList::ClickOnIndexChange, &nvList::ClickOnIndexChange),
        scrollBars(),
        row("WheelFunction", wheelFunction(), &nvList::WheelFunction, &nvList::WheelFunction),
        row("WheelScrollLines", number(), &nvList::WheelScrollLines, &nvList::WheelScrollLines),
        row("AutoRedraw", flag(), &nvList::AutoRedraw, &nvList::AutoRedraw),
        row("AutoCheckScroll", flag(), &nvList::AutoCheckScroll, &nvList::AutoCheckScroll)}},
      {"Position",
       {row("ListIndex", number(), &nvList::ListIndex, &nvList::ListIndex),
        row("TopIndex", number(), &nvList::TopIndex, &nvList::TopIndex),
        row("Text", text(), &nvList::Text, &nvList::Text)}},
      {"Around the list", {designMode(), silentError()}},
  };
  return groups;
}

}  // namespace gallery
