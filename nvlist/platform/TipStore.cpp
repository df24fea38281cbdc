#include <nvlist/platform/TipStore.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace norvane {
namespace {

std::int32_t tenTimes(std::int32_t milliseconds) {
  constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
  return milliseconds > most / 10 ? most : milliseconds * 10;
}

}  // namespace

std::vector<TipTool>::iterator TipStore::find(const TipTool& tool) {
  return std::ranges::find_if(
      tools_, [&](const TipTool& t) { return t.owner == tool.owner && t.id == tool.id; });
}

bool TipStore::addTool(const TipTool& tool) {
  tools_.push_back(tool);
  return true;
}

void TipStore::deleteTool(const TipTool& tool) {
  if (const auto found = find(tool); found != tools_.end()) tools_.erase(found);
}

void TipStore::updateText(const TipTool& tool) {
  if (const auto found = find(tool); found != tools_.end()) found->text = tool.text;
}

bool TipStore::enumerateTool(std::int32_t index, TipTool& tool) {
  if (index < 0 || index >= toolCount()) return false;
  const TipTool& kept = tools_[static_cast<std::size_t>(index)];
  std::string buffer = std::move(tool.text);
  if (!buffer.empty()) buffer[kept.text.copy(buffer.data(), buffer.size() - 1)] = '\0';
  tool = {kept.flags, kept.owner, kept.id, kept.rectangle, kept.instance, std::move(buffer)};
  return true;
}

std::int32_t TipStore::textColour(Colour colour) {
  textColour_ = colour;
  return 0;
}

std::int32_t TipStore::delay(TipDelay which) {
  switch (which) {
    case TipDelay::reshow:
      return reshow_;
    case TipDelay::autopop:
      return autopop_;
    default:
      return initial_;
  }
}

void TipStore::delay(TipDelay which, std::int32_t milliseconds) {
  const bool isDefault = milliseconds < 0;
  switch (which) {
    case TipDelay::automatic:
      initial_ = isDefault ? defaultInitial : milliseconds;
      autopop_ = tenTimes(initial_);
      reshow_ = initial_ / 5;
      break;
    case TipDelay::reshow:
      reshow_ = isDefault ? defaultInitial / 5 : milliseconds;
      break;
    case TipDelay::autopop:
      autopop_ = isDefault ? defaultInitial * 10 : milliseconds;
      break;
    case TipDelay::initial:
      initial_ = isDefault ? defaultInitial : milliseconds;
      break;
  }
}

}  // namespace norvane
