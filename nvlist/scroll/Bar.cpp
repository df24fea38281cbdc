#include <nvlist/scroll/Bar.h>

#include <algorithm>

#include <nvlist/objects/about.h>
#include <nvlist/platform/Program.h>
#include <nvlist/scroll/gradient.h>
#include <nvlist/scroll/values.h>
#include <nvlist/values/numbers.h>

namespace norvane::scroll {
namespace {

using checked::nearest;

constexpr const char* minTooHigh = "Min darf nicht größer sein als Max!";
constexpr const char* maxTooLow = "Max darf nicht kleiner sein als Min!";
constexpr const char* boxTitle = "nvList";
constexpr std::int32_t criticalStop = 16;

/// The track at its shaded edge and at the other one.
constexpr Colour trackShade = colour(0xF3F1EC);
constexpr Colour trackLight = colour(0xFEFEFB);
/// Replaces the shade where a press is repeating.
constexpr Colour pressedShade = colour(0xE3DED3);

// In pixels.
constexpr float shortestThumb = 8;
constexpr float thumbOffset = 1;
/// How far beside the bar a drag still follows the pointer.
constexpr float dragReach = 130;

}  // namespace

Bar::Bar(std::unique_ptr<Container> place, const BarKind& kind)
    : UserControl(std::move(place)), kind_(kind), axis_(kind.axis) {}

void Bar::assemble(Thumb& thumb, RepeatButton& nearButton, RepeatButton& farButton) {
  thumb_ = &thumb;
  near_ = &nearButton;
  far_ = &farButton;
  near_->UserControl_InitProperties();
  far_->UserControl_InitProperties();
  thumb_->Move(bounds(axis_, nearLength(), thumbOffset, shortestThumb,
                      breadth(axis_, *near_) - thumbOffset));
  Visible(false);
  Move({0, 0, near_->Width(), near_->Height()});
}

// ---- properties ----

template <class Field>
void Bar::assign(Trap& on, std::string_view name, Field ScrollState::*field, const Field& value) {
  if (state_.*field != value) isPlaced_ = false;
  state_.*field = value;
  on.step([&] { container_.PropertyChanged(name); });
}

template <class Field>
void Bar::assignOnly(std::string_view name, Field ScrollState::*field, const Field& value) {
  trapped(kind_.module, name.data(), [&](Trap& on) { assign(on, name, field, value); });
}

template <class Field>
void Bar::assignAndRedraw(std::string_view name, Field ScrollState::*field, const Field& value) {
  trapped(kind_.module, name.data(), [&](Trap& on) {
    assign(on, name, field, value);
    redrawIfNeeded(on);
  });
}

void Bar::assignRange(std::string_view name, std::int32_t ScrollState::*field, std::int32_t value,
                      bool isRefused, const char* refusal) {
  trapped(kind_.module, name.data(), [&](Trap& on) {
    if (isRefused) {
      on.step([&] { Program::inUse().MsgBox(refusal, criticalStop, boxTitle); });
      return;
    }
    assign(on, name, field, value);
    on.step([&] { checkLength(); });
    redrawIfNeeded(on);
  });
}

/// Repaints unless the thumb stays where it is; a repeating press is compared with it every time.
void Bar::redrawIfNeeded(Trap& on) {
  if (!isPlaced_ || state_.PageActive) on.step([&] { Redraw(); });
}

void Bar::Min(std::int32_t value) {
  assignRange("Min", &ScrollState::Min, value, value > state_.Max, minTooHigh);
}

void Bar::Max(std::int32_t value) {
  assignRange("Max", &ScrollState::Max, value, value < state_.Min, maxTooLow);
}

void Bar::Value(std::int32_t value) { assignAndRedraw("Value", &ScrollState::Value, value); }

void Bar::Gradient(Boolean value) { assignAndRedraw("Gradient", &ScrollState::Gradient, value); }

void Bar::ActiveScrolling(Boolean value) {
  assignAndRedraw("ActiveScrolling", &ScrollState::ActiveScrolling, value);
}

void Bar::SmallChange(std::int32_t value) {
  assignOnly("SmallChange", &ScrollState::SmallChange, value);
}

void Bar::LargeChange(std::int32_t value) {
  assignOnly("LargeChange", &ScrollState::LargeChange, value);
}

void Bar::ColorStyle(cScrollColorStyle value) {
  trapped(kind_.module, "ColorStyle", [&](Trap& on) {
    assign(on, "ColorStyle", &ScrollState::ColorStyle, value);
    on.step([&] { thumb_->C(value); });
    on.step([&] { near_->C(value); });
    on.step([&] { far_->C(value); });
    on.step([&] { Redraw(); });
  });
}

void Bar::Enabled(Boolean value) {
  trapped(kind_.module, "Enabled", [&](Trap& on) {
    state_.Enabled = value;
    on.step([&] { listenToMouse(value); });
    on.step([&] { thumb_->En(value); });
    on.step([&] { thumb_->Visible(value); });
    on.step([&] { near_->En(value); });
    on.step([&] { far_->En(value); });
    on.step([&] { container_.PropertyChanged("Enabled"); });
    on.step([&] { Redraw(); });
  });
}

void Bar::BackColor(Colour value) {
  trapped(kind_.module, "BackColor", [&](Trap& on) {
    backColor_ = value;
    on.step([&] { container_.PropertyChanged("BackColor"); });
    on.step([&] { Redraw(); });
  });
}

void Bar::About() {
  trapped(kind_.module, "About", [&](Trap& on) { on.step([] { showAboutBox(); }); });
}

void Bar::UserControl_InitProperties() {
  trapped(kind_.module, "UserControl_InitProperties", [&](Trap& on) {
    read(on, PropertyBag());
    state_.PageDirection = 0;
    if (kind_.hasCustomStyle) on.step([&] { BackColor(colours::white); });
    on.step([&] { Enabled(true); });
    layOut(on);
  });
}

void Bar::UserControl_ReadProperties(const PropertyBag& PropBag) {
  trapped(kind_.module, "UserControl_ReadProperties", [&](Trap& on) {
    read(on, PropBag);
    on.step([&] { Enabled(PropBag.ReadProperty("Enabled", true).toBoolean()); });
    if (kind_.hasCustomStyle)
      on.step([&] { BackColor(PropBag.ReadProperty("BackColor", colours::white).toInt32()); });
  });
}

/// Reads the properties that UserControl_InitProperties and UserControl_ReadProperties set first.
/// An empty store gives the defaults.
void Bar::read(Trap& on, const PropertyBag& bag) {
  on.step([&] { Min(bag.ReadProperty("Min", 0).toInt32()); });
  on.step([&] { Max(bag.ReadProperty("Max", 100).toInt32()); });
  on.step([&] { Value(bag.ReadProperty("Value", 0).toInt32()); });
  on.step([&] { Gradient(bag.ReadProperty("Gradient", true).toBoolean()); });
  on.step([&] {
    ColorStyle(static_cast<cScrollColorStyle>(bag.ReadProperty("ColorStyle", 0).toInt32()));
  });
  on.step([&] { ActiveScrolling(bag.ReadProperty("ActiveScrolling", true).toBoolean()); });
  on.step([&] { LargeChange(bag.ReadProperty("LargeChange", 1).toInt32()); });
  on.step([&] { SmallChange(bag.ReadProperty("SmallChange", 1).toInt32()); });
}

void Bar::UserControl_WriteProperties(PropertyBag& PropBag) {
  trapped(kind_.module, "UserControl_WriteProperties", [&](Trap& on) {
    const auto write = [&](const char* name, const Variant& value, const Variant& defaultValue) {
      on.step([&] { PropBag.WriteProperty(name, value, defaultValue); });
    };
    write("Min", state_.Min, 0);
    write("Max", state_.Max, 100);
    write("Value", state_.Value, 0);
    write("Gradient", state_.Gradient, true);
    write("ColorStyle", std::int32_t{state_.ColorStyle}, 0);
    write("ActiveScrolling", state_.ActiveScrolling, true);
    write("LargeChange", state_.LargeChange, 1);
    write("SmallChange", state_.SmallChange, 1);
    write("Enabled", state_.Enabled, true);
    if (kind_.hasCustomStyle) write("BackColor", backColor_, colours::white);
  });
}

// ---- place ----

void Bar::layOut(Trap& on) {
  isPlaced_ = false;
  on.step([&] { breadth(axis_, *this, breadth(axis_, *near_)); });
  on.step([&] { start(axis_, *far_, length(axis_, surface_) - farLength()); });
  on.step([&] { offset(axis_, *thumb_, thumbOffset); });
  on.step([&] { breadth(axis_, *thumb_, breadth(axis_, surface_) - offset(axis_, *thumb_)); });
}

void Bar::UserControl_Resize() {
  trapped(kind_.module, "UserControl_Resize", [&](Trap& on) {
    layOut(on);
    on.step([&] {
      // Both bars take the height of the far button here. Buttons are square.
      thumb_->Visible(length(axis_, surface_) - nearLength() - far_->Height() >= shortestTrack);
    });
    on.step([&] { Redraw(); });
  });
}

void Bar::UserControl_Show() {
  trapped(kind_.module, "UserControl_Show", [&](Trap& on) { on.step([&] { checkLength(); }); });
}

/// Each unit of the maximum costs the thumb one pixel, down to its minimum length.
void Bar::checkLength() {
  trapped(kind_.module, kind_.checkLength, [&](Trap& on) {
    const double whole = kind_.thumbSource == BarKind::LengthOf::place ? length(axis_, *this)
                                                                       : length(axis_, surface_);
    state_.ThumbLength = static_cast<float>(whole - state_.Max - nearLength() - farLength());
    const float taken = std::max(state_.ThumbLength, shortestThumb);
    if (thumbLength() != taken) isPlaced_ = false;
    on.step([&] { length(axis_, *thumb_, taken); });
  });
}

// ---- value ----

/// Pixels of track per unit of the value.
double Bar::GetIMX() {
  double pixels = 0;
  trapped(kind_.module, "GetIMX", [&](Trap& on) {
    on.step([&] {
      const float Free = length(axis_, surface_) - nearLength() - farLength() - thumbLength();
      const std::int32_t range = checked::subtract(state_.Max, state_.Min);
      pixels = double{Free} / (range != 0 ? range : 1);
    });
  });
  return pixels;
}

/// Takes the value from the place of the thumb.
void Bar::checkValue() {
  trapped(kind_.module, "ÜberprüfeValue", [&](Trap& on) {
    on.step([&] { state_.UnitPixels = GetIMX(); });
    std::int32_t New = 0;
    on.step([&] {
      if (state_.UnitPixels == 0) throw Failure::divisionByZero();
      const float distance = thumbStart() - nearLength();
      New = nearest<std::int32_t>(distance / state_.UnitPixels + state_.Min);
    });
    if (New > state_.Max)
      New = state_.Max;
    else if (New < state_.Min)
      New = state_.Min;
    const bool isOther = New != state_.Value;
    on.step([&] { Value(New); });
    if (isOther) on.step([&] { raiseScroll(); });
  });
}

/// At the end of the range the event is raised all the same.
void Bar::ValueUp() {
  trapped(kind_.module, kind_.nearStep, [&](Trap& on) {
    if (state_.Value > state_.Min) on.step([&] { Value(checked::subtract(state_.Value, 1)); });
    on.step([&] { raiseChange(); });
  });
}

void Bar::ValueDown() {
  trapped(kind_.module, kind_.farStep, [&](Trap& on) {
    if (state_.Value < state_.Max) on.step([&] { Value(checked::add(state_.Value, 1)); });
    on.step([&] { raiseChange(); });
  });
}

// ---- thumb ----

void Bar::Thumb_MouseDown(std::int16_t Button, float X, float Y) {
  trapped(kind_.module, kind_.thumbMouseDown, [&](Trap& on) {
    on.step([&] { MoveScroll(Action::mousedown, Button, along(axis_, X, Y)); });
  });
}

/// Too far beside the bar the thumb stops following.
void Bar::Thumb_MouseMove(std::int16_t Button, float X, float Y) {
  trapped(kind_.module, kind_.thumbMouseMove, [&](Trap& on) {
    const float beside = across(axis_, X, Y);
    if (beside > -dragReach && beside < breadth(axis_, *thumb_) + dragReach)
      on.step([&] { MoveScroll(Action::mousemove, Button, along(axis_, X, Y)); });
  });
}

void Bar::Thumb_MouseUp() {
  trapped(kind_.module, kind_.thumbMouseUp, [&](Trap& on) {
    on.step([&] { MoveScroll(Action::mouseup, 0, 0); });
    on.step([&] { checkValue(); });
    on.step([&] { raiseChange(); });
  });
}

void Bar::MoveScroll(Action action, std::int16_t Button, float Position) {
  trapped(kind_.module, "MoveScroll", [&](Trap& on) {
    switch (action) {
      case Action::mousedown:
        state_.Dragging = true;
        on.step([&] { state_.GrabOffset = nearest<std::int32_t>(Position); });
        break;
      case Action::mouseup:
        state_.Dragging = false;
        break;
      case Action::mousemove:
        if (state_.Dragging && Button == leftMouseButton) drag(on, Position);
        break;
    }
  });
}

void Bar::drag(Trap& on, float Position) {
  const float Delta = static_cast<float>(state_.GrabOffset) - Position;
  const float Want = thumbStart() - Delta;
  isPlaced_ = false;
  on.step([&] {
    if (Delta <= 0)
      start(axis_, *thumb_, Want + thumbLength() <= farStart() ? Want : farStart() - thumbLength());
    else
      start(axis_, *thumb_, nearLength() <= Want ? Want : nearLength());
  });
  if (state_.ActiveScrolling) on.step([&] { checkValue(); });
}

// ---- the bare track ----

void Bar::UserControl_MouseDown(std::int16_t, std::int16_t, float X, float Y) {
  trapped(kind_.module, "UserControl_MouseDown", [&](Trap& on) {
    const float press = along(axis_, X, Y);
    const auto repeatTowards = [&](RepeatButton& button, std::int32_t direction) {
      on.step([&] { button.UC_MDown(); });
      state_.PageDirection = direction;
      state_.PageClickPos = press;
      state_.PageActive = true;
    };
    if (thumbEnd() < press) repeatTowards(*far_, kind_.towardsFar);
    // The step may have moved the thumb beyond the press.
    if (thumbStart() > press) repeatTowards(*near_, kind_.towardsNear);
    on.step([&] { Redraw(); });
  });
}

void Bar::UserControl_MouseUp(std::int16_t, std::int16_t, float, float) {
  trapped(kind_.module, "UserControl_MouseUp", [&](Trap& on) {
    on.step([&] { near_->UC_MUp(); });
    on.step([&] { far_->UC_MUp(); });
    state_.PageActive = false;
    state_.PageDirection = 0;
    on.step([&] { Redraw(); });
  });
}

/// Ends the repeat once the thumb has reached the press.
void Bar::endReachedPress(Trap& on) {
  const bool isReached =
      (state_.PageDirection == kind_.towardsNear && thumbStart() <= state_.PageClickPos) ||
      (state_.PageDirection == kind_.towardsFar && thumbEnd() >= state_.PageClickPos);
  if (isReached) on.step([&] { UserControl_MouseUp(leftMouseButton, 0, 0, 0); });
}

// ---- painting ----

void Bar::Redraw() {
  trapped(kind_.module, "Redraw", [&](Trap& on) {
    if (state_.PageActive) endReachedPress(on);
    if (!state_.Dragging) placeThumb(on);
    on.step([&] { container_.paintLater(); });
  });
}

void Bar::placeThumb(Trap& on) {
  on.step([&] { state_.UnitPixels = GetIMX(); });
  on.step([&] {
    if (state_.Value == state_.Min)
      start(axis_, *thumb_, start(axis_, *near_) + nearLength());
    else if (state_.Value == state_.Max)
      start(axis_, *thumb_, farStart() - thumbLength());
    else
      start(axis_, *thumb_,
            static_cast<float>(nearLength() +
                               checked::subtract(state_.Value, state_.Min) * state_.UnitPixels));
    // A calculation that failed is repeated, and so is its report.
    isPlaced_ = state_.UnitPixels != 0;
  });
}

void Bar::UserControl_Paint() {
  trapped(kind_.module, "Redraw", [&](Trap& on) {
    on.step([&] { surface_.Cls(); });
    if (kind_.hasCustomStyle && state_.ColorStyle == customStyle) {
      on.step([&] { fill(surface_, backColor_); });
      return;
    }
    if (!state_.Gradient || !state_.Enabled) {
      on.step([&] { fill(surface_, colours::white); });
      return;
    }
    on.step([&] { paintTrack(trackShade, 0, length(axis_, surface_)); });
    if (state_.PageActive) paintPressedTrack(on);
  });
}

/// Paints the track from one position along it to another.
void Bar::paintTrack(Colour shade, float from, float to) {
  const auto whole = [](float pixels) { return nearest<std::int32_t>(pixels); };
  const Rectangle track = axis_ == Axis::vertical
                              ? Rectangle{0, whole(from), whole(surface_.ScaleWidth()), whole(to)}
                              : Rectangle{whole(from), 0, whole(to), whole(surface_.ScaleHeight())};
  const Colour first = kind_.beginsWithShade ? shade : trackLight;
  const Colour second = kind_.beginsWithShade ? trackLight : shade;
  DrawGradient(surface_, track, first, second, kind_.gradientDirection);
}

/// Darkens the side on which a press repeats, up to the button.
void Bar::paintPressedTrack(Trap& on) {
  if (state_.PageDirection == kind_.towardsNear && thumbStart() > state_.PageClickPos)
    on.step([&] { paintTrack(pressedShade, nearLength() + start(axis_, *near_), thumbStart()); });
  if (state_.PageDirection == kind_.towardsFar && thumbEnd() < state_.PageClickPos)
    on.step([&] { paintTrack(pressedShade, thumbEnd(), length(axis_, surface_)); });
}

}  // namespace norvane::scroll
