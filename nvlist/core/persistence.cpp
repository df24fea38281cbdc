#include <functional>

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

norvane::Font fontIn(const Variant& value) {
  const Ref<Object> object = value.object();
  auto* font = dynamic_cast<FontObject*>(object.get());
  if (value.type() != Variant::Type::Object || (object && !font)) throw Failure::typeMismatch();
  return norvane::Font(font);
}

}  // namespace

/// How one property gets into the store and back, always through its public setter and getter.
struct nvList::StoredProperty {
  const char* name;
  Variant defaultValue;
  std::function<void(nvList&, const Variant&)> read;
  std::function<Variant(const nvList&)> written;
};

template <class Value>
nvList::StoredProperty nvList::stored(const char* name, Value (nvList::*get)() const,
                                      void (nvList::*let)(std::type_identity_t<Value>),
                                      Variant defaultValue) {
  return {name, std::move(defaultValue),
          [let](nvList& list, const Variant& value) { (list.*let)(fromVariant<Value>(value)); },
          [get](const nvList& list) { return toVariant((list.*get)()); }};
}

/// All but the font, which comes first. The order counts: ColorStyle sets ScrollColorStyle too, and
/// the stored one has to come after it.
const std::vector<nvList::StoredProperty>& nvList::storedProperties() {
  constexpr std::int16_t zero = 0;
  constexpr std::int16_t one = 1;
  static const std::vector<StoredProperty> properties = {
      stored("ForeColor", &nvList::ForeColor, &nvList::ForeColor, 0),
      stored("BackColor", &nvList::BackColor, &nvList::BackColor, 0xFFFFFF),
      stored("Enabled", &nvList::Enabled, &nvList::Enabled, true),
      stored("ClickOnIndexChange", &nvList::ClickOnIndexChange, &nvList::ClickOnIndexChange, false),
      stored("ColorStyle", &nvList::ColorStyle, &nvList::ColorStyle, zero),
      stored("BorderColor", &nvList::BorderColor, &nvList::BorderColor, 0),
      stored("HoverSelect", &nvList::HoverSelect, &nvList::HoverSelect, false),
      stored("Style", &nvList::Style, &nvList::Style, zero),
      stored("FullRowSelect", &nvList::FullRowSelect, &nvList::FullRowSelect, true),
      stored("AllowEdit", &nvList::AllowEdit, &nvList::AllowEdit, false),
      stored("ValueColor", &nvList::ValueColor, &nvList::ValueColor, 0xFF0000),
      stored("IconSelect", &nvList::IconSelect, &nvList::IconSelect, true),
      stored("BorderVisible", &nvList::BorderVisible, &nvList::BorderVisible, true),
      stored("IndentTop", &nvList::IndentTop, &nvList::IndentTop, 3.0F),
      stored("IndentLeft", &nvList::IndentLeft, &nvList::IndentLeft, 3.0F),
      stored("IndentRight", &nvList::IndentRight, &nvList::IndentRight, 3.0F),
      stored("IndentBottom", &nvList::IndentBottom, &nvList::IndentBottom, 3.0F),
      stored("DistPicText", &nvList::DistPicText, &nvList::DistPicText, 2.0F),
      stored("AutoCheckScroll", &nvList::AutoCheckScroll, &nvList::AutoCheckScroll, true),
      stored("IconW", &nvList::IconW, &nvList::IconW, 16.0F),
      stored("IconH", &nvList::IconH, &nvList::IconH, 16.0F),
      stored("ScrollColorStyle", &nvList::ScrollColorStyle, &nvList::ScrollColorStyle, zero),
      stored("GridLines", &nvList::GridLines, &nvList::GridLines, false),
      stored("GridLineColor", &nvList::GridLineColor, &nvList::GridLineColor, 0xC0C0C0),
      stored("MultiSelect", &nvList::MultiSelect, &nvList::MultiSelect, false),
      stored("ShowFocusRect", &nvList::ShowFocusRect, &nvList::ShowFocusRect, false),
      stored("WheelFunction", &nvList::WheelFunction, &nvList::WheelFunction, zero),
      stored("WheelScrollLines", &nvList::WheelScrollLines, &nvList::WheelScrollLines, one),
      stored("MinHeight", &nvList::MinHeight, &nvList::MinHeight, 0.0F),
      stored("AutoRedraw", &nvList::AutoRedraw, &nvList::AutoRedraw, true),
      stored("ScrollBars", &nvList::ScrollBars, &nvList::ScrollBars, 2),
      stored("AllowItemMoving", &nvList::AllowItemMoving, &nvList::AllowItemMoving, false)};
  return properties;
}

void nvList::UserControl_InitProperties() {
  trapped(here, "UserControl_InitProperties", [&](Trap& on) {
    const PropertyBag empty;
    on.step([&] { UserControl_ReadProperties(empty); });
  });
}

void nvList::UserControl_ReadProperties(const PropertyBag& PropBag) {
  trapped(here, "UserControl_ReadProperties", [&](Trap& on) {
    on.ignoring([&] { lblFont = container_.AmbientFont(); });
    state_.SuppressRedraw = true;
    on.step([&] { Font(fontIn(PropBag.ReadProperty("Font", Variant(Ref<Object>(lblFont))))); });
    for (const StoredProperty& property : storedProperties())
      on.step([&] {
        property.read(*this, PropBag.ReadProperty(property.name, property.defaultValue));
      });
    state_.SuppressRedraw = false;
    state_.ClickPending = true;
    on.ignoring([&] {
      if (!container_.UserMode()) return;
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
    on.step([&] {
      PropBag.WriteProperty("Font", Variant(Ref<Object>(CloneFont(Font()))),
                            Variant(Ref<Object>(lblFont)));
    });
    for (const StoredProperty& property : storedProperties())
      on.step([&] {
        PropBag.WriteProperty(property.name, property.written(*this), property.defaultValue);
      });
  });
}

}  // namespace norvane
