#include <nvlist/platform/headless/HeadlessContainer.h>

#include <map>
#include <utility>

#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

std::string placeText(const Bounds& bounds) {
  return "(" + textOf(bounds.Left) + ", " + textOf(bounds.Top) + ") " + textOf(bounds.Width) + "x" +
         textOf(bounds.Height);
}

/// The lines of a recording, indented. Left out are settings that change nothing and positions at
/// which no text is printed.
std::string readable(const std::string& recording) {
  std::string result, position;
  std::map<std::string_view, std::string_view> settings;
  forEachLine(recording, [&](std::string_view line) {
    const std::string_view name = line.substr(0, line.find(' '));
    const bool isFont = name.starts_with("Font");
    if (name == "CurrentX" || name == "CurrentY") {
      position.append("  ").append(line).append("\n");
    } else if (isFont || name == "ForeColor" || name == "BackColor") {
      if (std::exchange(settings[name], line) != line)
        result.append("  ").append(line).append("\n");
    } else if (!line.empty()) {
      if (name == "Print") result += position;
      position.clear();
      result.append("  ").append(line).append("\n");
    }
    return true;
  });
  return result;
}

}  // namespace

/// A place that can be seen, or one of its edit boxes.
struct HeadlessContainer::Shown {
  Bounds bounds;
  Bounds seen;
  RecordingSurface* surface;
  HeadlessTextBox* box;
};

HeadlessContainer::HeadlessContainer(float width, float height)
    : Place(nullptr),
      ownSurface_(std::in_place, width, height),
      surface_(*ownSurface_),
      handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(Surface& surface)
    : Place(nullptr), surface_(surface), handle_(++lastHandle_) {}

HeadlessContainer::HeadlessContainer(HeadlessContainer* parent)
    : Place(parent),
      ownSurface_(std::in_place, 0.0F, 0.0F),
      surface_(*ownSurface_),
      handle_(++form().lastHandle_) {}

void HeadlessContainer::attach(UserControl* control) {
  Place::attach(control);
  // The control has ended, and its edit boxes with it.
  if (!control) textBoxes_.clear();
}

std::unique_ptr<Container> HeadlessContainer::addChild() {
  return std::unique_ptr<Container>(new HeadlessContainer(this));
}

std::vector<HeadlessContainer*> HeadlessContainer::children() const {
  std::vector<HeadlessContainer*> result;
  for (Place* place : places()) result.push_back(static_cast<HeadlessContainer*>(place));
  return result;
}

std::unique_ptr<Timer> HeadlessContainer::addTimer(std::function<void()> tick) {
  return form().clock_.addTimer(std::move(tick));
}

std::unique_ptr<TextBox> HeadlessContainer::addTextBox(
    std::function<void(std::int16_t&)> keyPress) {
  auto box = std::make_unique<HeadlessTextBox>(std::move(keyPress));
  textBoxes_.push_back(box.get());
  return box;
}

void HeadlessContainer::changed() {
  if (!ownSurface_) {
    paintPending();
  } else if (!ownSurface_->beforeLook) {
    ownSurface_->beforeLook = [this] { paintPending(); };
  }
}

std::vector<HeadlessContainer::Shown> HeadlessContainer::shown() {
  std::vector<Shown> result, boxes;
  forEachVisible([&](Place& place, Point origin, const Bounds& clip) {
    auto& one = static_cast<HeadlessContainer&>(place);
    const Bounds bounds{origin.x, origin.y, one.surface_.ScaleWidth(), one.surface_.ScaleHeight()};
    // A form that draws on a surface of the program is recorded there, if at all.
    if (one.ownSurface_) result.push_back({bounds, clip, &*one.ownSurface_, nullptr});
    for (HeadlessTextBox* box : one.textBoxes_) {
      if (!box->Visible()) continue;
      const Bounds at = box->place();
      const Bounds whole{origin.x + at.Left, origin.y + at.Top, at.Width, at.Height};
      boxes.push_back({whole, whole.intersected(clip), nullptr, box});
    }
  });
  result.insert(result.end(), boxes.begin(), boxes.end());
  return result;
}

std::string HeadlessContainer::picture() {
  std::string result;
  for (const auto& [bounds, seen, surface, box] : shown()) {
    result += box ? "edit box " + placeText(bounds) + " " + quotedText(box->Text())
                  : placeText(bounds) + " on " + textOfColour(surface->background());
    if (seen != bounds) result += ", seen as " + placeText(seen);
    result += "\n";
    if (surface) result += readable(surface->image().text());
  }
  return result;
}

void HeadlessContainer::replay(const std::function<Surface&(const Bounds& bounds)>& onto) {
  for (const auto& [bounds, seen, surface, box] : shown()) {
    Surface& target = onto(bounds);
    surface ? surface->replay(target) : box->draw(target);
  }
}

RecordingSurface& HeadlessContainer::ownSurface() {
  if (!ownSurface_) throw Failure::invalidCall();
  return *ownSurface_;
}

void HeadlessContainer::PropertyChanged(std::string_view property) {
  // A copy: the handler may replace itself.
  const auto handler = onPropertyChanged;
  if (handler) handler(property);
}

void HeadlessContainer::DoEvents() {
  auto& queue = form().queue_;
  if (queue.empty()) return;
  const std::function<void()> message = std::move(queue.front());
  queue.pop_front();
  if (message) message();
}

void HeadlessContainer::move(const Bounds& bounds) {
  Place::move(bounds);
  ownSurface().resize(bounds.Width, bounds.Height);
}

void HeadlessContainer::press(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().press(toRoot({x, y}), button, shift);
}

void HeadlessContainer::doubleClick(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().doubleClick(toRoot({x, y}), button, shift);
}

void HeadlessContainer::moveTo(float x, float y, std::int16_t buttons, std::int16_t shift) {
  mouse().move(toRoot({x, y}), buttons, shift);
}

void HeadlessContainer::release(float x, float y, std::int16_t button, std::int16_t shift) {
  mouse().release(toRoot({x, y}), button, shift);
}

bool HeadlessContainer::turnWheel(std::int16_t delta) {
  // A copy: the control may end the hook.
  const auto procedure = wheelProcedure_;
  if (!procedure) return false;
  procedure(std::int32_t{delta} * 0x10000, 0);
  return true;
}

}  // namespace norvane
