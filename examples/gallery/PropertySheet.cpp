// The sheet of the properties of the list.

#include <nvlist/core/storedProperties.h>
#include <nvlist/objects/Error.h>

#include "Sheet.h"

using norvane::nvList;
using norvane::NvListWidget;
using norvane::PropertyType;
using norvane::StoredProperty;
using norvane::Variant;

namespace gallery {
namespace {

/// The named values of an enumeration; empty for all other types.
std::vector<Choice> choicesOf(PropertyType type) {
  switch (type) {
    case PropertyType::colorStyle:
      return {{"cXPBlue", norvane::cXPBlue},
              {"cXPSilver", norvane::cXPSilver},
              {"cXPOlive", norvane::cXPOlive},
              {"cCustom", norvane::cCustom}};
    case PropertyType::scrollColorStyle:
      return {{"cXPScrollBlue", norvane::cXPScrollBlue},
              {"cXPScrollSilver", norvane::cXPScrollSilver},
              {"cXPScrollOlive", norvane::cXPScrollOlive}};
    case PropertyType::listStyle:
      return {{"cDefault", norvane::cDefault},
              {"cCheckBoxes", norvane::cCheckBoxes},
              {"cIcons", norvane::cIcons},
              {"cCheckBoxesIcons", norvane::cCheckBoxesIcons}};
    case PropertyType::wheelFunction:
      return {{"cWheelScroll", norvane::cWheelScroll},
              {"cWheelListIndex", norvane::cWheelListIndex},
              {"cWheelOff", norvane::cWheelOff}};
    case PropertyType::scrollBars:
      return {{"vbSBNone", norvane::vbSBNone},
              {"vbHorizontal", norvane::vbHorizontal},
              {"vbVertical", norvane::vbVertical},
              {"vbBoth", norvane::vbBoth}};
    default:
      return {};
  }
}

/// A row for a stored property, with an editor for values of its type.
template <class Value, class FromVariant>
Property stored(const StoredProperty& of, MakeEditor<Value> make, FromVariant fromVariant) {
  return property<Value>(
      of.name, make,
      [&of, fromVariant](const Subject& on) { return fromVariant(of.get(on.list())); },
      [&of](const Subject& on, const Value& value) { of.set(on.list(), Variant(value)); });
}

Property row(const char* name) {
  const StoredProperty& of = *norvane::storedProperty(name);
  const auto toInt32 = [](const Variant& value) { return value.toInt32(); };
  switch (of.type) {
    case PropertyType::font:
      return property<norvane::Font>(
          name, font(), [](const Subject& on) { return on.list().Font(); },
          [](const Subject& on, const norvane::Font& value) { on.list().Font(value); });
    case PropertyType::boolean:
      return stored(of, flag(), [](const Variant& value) { return value.toBoolean(); });
    case PropertyType::single:
      return stored(of, length(), [](const Variant& value) { return value.toSingle(); });
    case PropertyType::colour:
      return stored(of, colour(), toInt32);
    case PropertyType::integer:
      return stored(of, number(), toInt32);
    default:
      return stored(of, choiceOf(choicesOf(of.type)), toInt32);
  }
}

/// A property that is not stored.
template <class Value, class Argument>
Property row(const char* name, MakeEditor<Value> make, Value (nvList::*read)() const,
             void (nvList::*write)(Argument)) {
  return property<Value>(
      name, make, [read](const Subject& on) { return (on.list().*read)(); },
      [write](const Subject& on, const Value& value) { (on.list().*write)(value); });
}

/// The list applies a new value at the next CheckScroll, which the host must call.
Property scrollBars() {
  const char* const name = "ScrollBars";
  return property<int>(
      name, choiceOf(choicesOf(PropertyType::scrollBars)),
      [](const Subject& on) { return static_cast<int>(on.list().ScrollBars()); },
      [](const Subject& on, int value) {
        on.list().ScrollBars(static_cast<norvane::ScrollBarConstants>(value));
        on.list().CheckScroll();
        if (on.list().AutoRedraw()) on.list().Redraw();
      });
}

Property currentText() {
  return property<std::string>(
      "Text", text(), [](const Subject& on) { return on.list().Text(); },
      [](const Subject& on, const std::string& value) { on.list().Text(value); });
}

Property designMode() {
  return property<norvane::Boolean>(
      "Design mode", flag(), [](const Subject& on) { return on.widget->isDesignMode(); },
      [](const Subject& on, norvane::Boolean value) {
        on.widget->setDesignMode(static_cast<bool>(value));
      });
}

/// Applies to all lists of the program.
Property silentError() {
  return property<norvane::Boolean>(
      "SilentError", flag(), [](const Subject&) { return norvane::Error().SilentError(); },
      [](const Subject&, norvane::Boolean value) { norvane::Error().SilentError(value); });
}

}  // namespace

const std::vector<PropertyGroup>& propertiesOfTheList() {
  static const std::vector<PropertyGroup> groups = {
      {"Look",
       {row("Style"), row("FullRowSelect"), row("GridLines"), row("IconSelect"),
        row("ShowFocusRect"), row("ColorStyle"), row("ValueColor")}},
      {"Rows",
       {row("Font"), row("MinHeight"), row("IconW"), row("IconH"), row("DistPicText"),
        row("IndentTop"), row("IndentLeft"), row("IndentRight"), row("IndentBottom")}},
      {"Colours",
       {row("ForeColor"), row("BackColor"), row("GridLineColor"), row("BorderVisible"),
        row("BorderColor"), row("ScrollColorStyle")}},
      {"Behaviour",
       {row("Enabled"), row("MultiSelect"), row("AllowEdit"), row("AllowItemMoving"),
        row("HoverSelect"), row("ClickOnIndexChange"), scrollBars(), row("WheelFunction"),
        row("WheelScrollLines"), row("AutoRedraw"), row("AutoCheckScroll")}},
      {"Position",
       {row("ListIndex", number(), &nvList::ListIndex, &nvList::ListIndex),
        row("TopIndex", number(), &nvList::TopIndex, &nvList::TopIndex), currentText()}},
      {"Around the list", {designMode(), silentError()}},
  };
  return groups;
}

}  // namespace gallery
