#include <nvlist/core/StoredItem.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

namespace norvane {
namespace {

std::uint32_t checkedSize(std::string_view text) {
  if (text.size() > UINT32_MAX) throw std::length_error("StoredItem");
  return static_cast<std::uint32_t>(text.size());
}

void copy(std::string_view text, char* to) {
  if (!text.empty()) std::memcpy(to, text.data(), text.size());
}

/// As many bytes as a heap has for a text anyway: it hands out 8 less than a multiple of 16, and
/// the other fields take 28.
constexpr std::size_t roomFor(std::size_t size) { return (size + 3) / 16 * 16 + 12; }
constexpr std::size_t mostRoom = roomFor(252);
static_assert(mostRoom == 252 && roomFor(0) == 12 && roomFor(13) == 28);

}  // namespace

const StoredItem::SharedLook StoredItem::blank;

Ref<StoredItem> StoredItem::make(std::string_view text) {
  const std::size_t room = roomFor(text.size() <= mostRoom ? text.size() : 0);
  void* const memory = ::operator new(sizeof(StoredItem) - sizeof text_ + room);
  Ref<StoredItem> item(new (memory) StoredItem(room));
  item->Text(text);
  return item;
}

void StoredItem::Text(std::string_view text) {
  const std::uint32_t size = checkedSize(text);
  char* const outside = size > room_ ? new char[size] : nullptr;
  freeText();
  copy(text, outside ? outside : text_);
  if (outside) std::memcpy(static_cast<void*>(text_), &outside, sizeof outside);
  textSize_ = size;
  textWidth = notMeasured;
}

char* StoredItem::outside() const {
  char* result = nullptr;
  std::memcpy(&result, static_cast<const void*>(text_), sizeof result);
  return result;
}

std::unique_ptr<StoredItem::Labels> StoredItem::Labels::make(std::string_view key, Variant tag) {
  const std::uint32_t size = checkedSize(key);
  constexpr std::size_t first = sizeof text;
  void* const memory = ::operator new(sizeof(Labels) - first + std::max<std::size_t>(size, first));
  std::unique_ptr<Labels> made(new (memory) Labels{std::move(tag), size, {}});
  copy(key, made->text);
  return made;
}

ListItem StoredItem::record() const {
  return {look(), Checked(), Selected(), std::string(Text()), Tag(), std::string(Key())};
}

void StoredItem::Key(std::string_view key) {
  if (labels_ || !key.empty()) labels_ = Labels::make(key, Tag());
}

Variant StoredItem::Tag() const {
  if (labels_) return labels_->tag;
  return isTagEmptyText_ ? Variant("") : Variant();
}

void StoredItem::Tag(Variant tag) {
  if (labels_)
    labels_->tag = std::move(tag);
  else if (tag.isEmpty() || (tag.isText() && tag.text().empty()))
    isTagEmptyText_ = tag.isText();
  else
    labels_ = Labels::make({}, std::move(tag));
}

bool StoredItem::shareLookOf(const StoredItem& other, const ItemLook& look) {
  const SharedLook& mine = shared();
  const SharedLook& others = other.shared();
  if (mine.checkedAs != others.checkedAs || mine.selectedAs != others.selectedAs) return false;
  if (!others.fields.isSame(look)) return false;
  look_ = other.look_;
  return true;
}

StoredItem::SharedLook& StoredItem::own() {
  if (!look_ || !look_->isHeldOnce()) look_ = makeRef<SharedLook>(shared());
  return *look_;
}

}  // namespace norvane
