#include <algorithm>

#include <nvlist/core/storedProperties.h>
#include <nvlist/nvList.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

template <class Value>
Value fromVariant(const Variant& value) {
  if constexpr (std::is_same_v<Value, Boolean>)
    return value.toBoolean();
  else if constexpr (std::is_same_v<Value, float>)
    return value.toSingle();
  else
    return static_cast<Value>(value.toInt32());
}

template <class Value>
Variant toVariant(Value value) {
  if constexpr (std::is_enum_v<Value>)
    return static_cast<std::int32_t>(value);
  else
    return value;
}

Variant getFont(const nvList& list) { return Variant(Ref<Object>(list.Font())); }

void setFont(nvList& list, const Variant& value) {
  const Ref<Object> object = value.object();
  auto* font = dynamic_cast<FontObject*>(object.get());
  if (value.type() != Variant::Type::Object || (object && !font)) throw Failure::typeMismatch();
  list.Font(norvane::Font(font));
}

template <class Value>
using Getter = Value (nvList::*)() const;
template <class Value>
using Setter = void (nvList::*)(Value);

template <class Value, Getter<Value> getter, Setter<Value> setter>
constexpr StoredProperty stored(const char* name, PropertyType type, Variant defaultValue) {
  return {name, type, std::move(defaultValue),
          [](const nvList& list) { return toVariant((list.*getter)()); },
          [](nvList& list, const Variant& value) { (list.*setter)(fromVariant<Value>(value)); }};
}

template <Getter<Boolean> getter, Setter<Boolean> setter>
constexpr StoredProperty flag(const char* name, bool defaultValue) {
  return stored<Boolean, getter, setter>(name, PropertyType::boolean, defaultValue);
}

template <Getter<Colour> getter, Setter<Colour> setter>
constexpr StoredProperty colour(const char* name, Colour defaultValue) {
  return stored<Colour, getter, setter>(name, PropertyType::colour, defaultValue);
}

template <Getter<float> getter, Setter<float> setter>
constexpr StoredProperty single(const char* name, float defaultValue) {
  return stored<float, getter, setter>(name, PropertyType::single, defaultValue);
}

/// The defaults of enumerations have the 16-bit integer type.
template <class Value, Getter<Value> getter, Setter<Value> setter>
constexpr StoredProperty choice(const char* name, PropertyType type) {
  return stored<Value, getter, setter>(name, type, std::int16_t{0});
}

constexpr StoredProperty properties[] = {
    {"Font", PropertyType::font, Variant(), getFont, setFont},
    colour<&nvList::ForeColor, &nvList::ForeColor>("ForeColor", 0),
    colour<&nvList::BackColor, &nvList::BackColor>("BackColor", 0xFFFFFF),
    flag<&nvList::Enabled, &nvList::Enabled>("Enabled", true),
    flag<&nvList::ClickOnIndexChange, &nvList::ClickOnIndexChange>("ClickOnIndexChange", false),
    choice<cColorStyle, &nvList::ColorStyle, &nvList::ColorStyle>("ColorStyle",
                                                                  PropertyType::colorStyle),
    colour<&nvList::BorderColor, &nvList::BorderColor>("BorderColor", 0),
    flag<&nvList::HoverSelect, &nvList::HoverSelect>("HoverSelect", false),
    choice<cListStyle, &nvList::Style, &nvList::Style>("Style", PropertyType::listStyle),
    flag<&nvList::FullRowSelect, &nvList::FullRowSelect>("FullRowSelect", true),
    flag<&nvList::AllowEdit, &nvList::AllowEdit>("AllowEdit", false),
    colour<&nvList::ValueColor, &nvList::ValueColor>("ValueColor", 0xFF0000),
    flag<&nvList::IconSelect, &nvList::IconSelect>("IconSelect", true),
    flag<&nvList::BorderVisible, &nvList::BorderVisible>("BorderVisible", true),
    single<&nvList::IndentTop, &nvList::IndentTop>("IndentTop", 3),
    single<&nvList::IndentLeft, &nvList::IndentLeft>("IndentLeft", 3),
    single<&nvList::IndentRight, &nvList::IndentRight>("IndentRight", 3),
    single<&nvList::IndentBottom, &nvList::IndentBottom>("IndentBottom", 3),
    single<&nvList::DistPicText, &nvList::DistPicText>("DistPicText", 2),
    flag<&nvList::AutoCheckScroll, &nvList::AutoCheckScroll>("AutoCheckScroll", true),
    single<&nvList::IconW, &nvList::IconW>("IconW", 16),
    single<&nvList::IconH, &nvList::IconH>("IconH", 16),
    choice<cScrollColorStyle, &nvList::ScrollColorStyle, &nvList::ScrollColorStyle>(
        "ScrollColorStyle", PropertyType::scrollColorStyle),
    flag<&nvList::GridLines, &nvList::GridLines>("GridLines", false),
    colour<&nvList::GridLineColor, &nvList::GridLineColor>("GridLineColor", 0xC0C0C0),
    flag<&nvList::MultiSelect, &nvList::MultiSelect>("MultiSelect", false),
    flag<&nvList::ShowFocusRect, &nvList::ShowFocusRect>("ShowFocusRect", false),
    choice<cWheelFunction, &nvList::WheelFunction, &nvList::WheelFunction>(
        "WheelFunction", PropertyType::wheelFunction),
    stored<std::int32_t, &nvList::WheelScrollLines, &nvList::WheelScrollLines>(
        "WheelScrollLines", PropertyType::integer, std::int16_t{1}),
    single<&nvList::MinHeight, &nvList::MinHeight>("MinHeight", 0),
    flag<&nvList::AutoRedraw, &nvList::AutoRedraw>("AutoRedraw", true),
    stored<ScrollBarConstants, &nvList::ScrollBars, &nvList::ScrollBars>(
        "ScrollBars", PropertyType::scrollBars, 2),
    flag<&nvList::AllowItemMoving, &nvList::AllowItemMoving>("AllowItemMoving", false)};

}  // namespace

std::span<const StoredProperty> storedProperties() { return properties; }

const StoredProperty* storedProperty(std::string_view name) {
  const auto* found =
      std::ranges::find_if(properties, [&](const StoredProperty& p) { return p.name == name; });
  return found == std::end(properties) ? nullptr : found;
}

/// The default of a property for this list.
Variant nvList::storedDefault(const StoredProperty& property) const {
  return property.type == PropertyType::font ? Variant(Ref<Object>(lblFont))
                                             : property.defaultValue;
}

void nvList::UserControl_InitProperties() {
  trapped(here, "UserControl_InitProperties", [&](Trap& on) {
    const PropertyBag empty;
    on.step([&] { UserControl_ReadProperties(empty); });
  });
}

void nvList::UserControl_ReadProperties(const PropertyBag& PropBag) {
  trapped(here, "UserControl_ReadProperties", [&](Trap& on) {
    on.ignoring([&] {
      if (norvane::Font ambient = container_.AmbientFont()) lblFont = std::move(ambient);
    });
    state_.SuppressRedraw = true;
    for (const StoredProperty& property : properties)
      on.step([&] {
        property.set(*this, PropBag.ReadProperty(property.name, storedDefault(property)));
      });
    state_.SuppressRedraw = false;
    state_.ClickPending = true;
    // A form that does not say whether it is in a designer counts as running. GCC 12 for 32-bit
    // Windows loses the value of a Boolean here if the call throws; it keeps that of a bool.
    bool isRunning = true;
    on.ignoring([&] { isRunning = static_cast<bool>(container_.UserMode()); });
    on.ignoring([&] {
      if (!isRunning) return;
      Wheel1.hWndCapture(container_.hwnd());
      Wheel1.EnableWheel();
    });
    on.step([&] { ItemsClear(); });
    on.step([&] { ListIndex(-1); });
    state_.SelectAnchor = -1;
    state_.HoverIndex = -1;
    on.step([&] { Redraw(); });
  });
}

void nvList::UserControl_WriteProperties(PropertyBag& PropBag) {
  trapped(here, "UserControl_WriteProperties", [&](Trap& on) {
    for (const StoredProperty& property : properties)
      on.step([&] {
        // A copy, which later changes of the list's font do not affect.
        const Variant value = property.type == PropertyType::font
                                  ? Variant(Ref<Object>(CloneFont(Font())))
                                  : property.get(*this);
        PropBag.WriteProperty(property.name, value, storedDefault(property));
      });
  });
}

}  // namespace norvane
