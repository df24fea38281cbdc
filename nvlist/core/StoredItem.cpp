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

constexpr std::size_t unitsFor(std::size_t bytes) {
  return (bytes + BlockPool::unit - 1) / BlockPool::unit;
}

}  // namespace

const StoredItem::SharedLook StoredItem::blank;

Ref<StoredItem> StoredItem::make(BlockPool& pool, std::string_view text) {
  const std::size_t inside = beforeText() + std::max(text.size(), sizeof(char*));
  const std::size_t most = BlockPool::mostUnits * BlockPool::unit;
  const std::size_t units = unitsFor(inside <= most ? inside : beforeText() + sizeof(char*));
  const BlockPool::Block block = pool.allocate(units);
  Ref<StoredItem> item(new (block.memory) StoredItem(units, block.slot));
  item->Text(text);
  return item;
}

void StoredItem::operator delete(StoredItem* item, std::destroying_delete_t) {
  const std::size_t units = item->units_;
  const std::size_t slot = item->slot_;
  item->~StoredItem();
  BlockPool::release(item, units, slot);
}

void StoredItem::Text(std::string_view text) {
  const std::uint32_t size = checkedSize(text);
  char* const outside = size > room() ? new char[size] : nullptr;
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

std::unique_ptr<StoredItem::Labels> StoredItem::makeLabels(std::string_view key, Variant tag) {
  const std::uint32_t size = checkedSize(key);
  const std::size_t bytes =
      sizeof(Labels) - sizeof Labels::text + std::max(key.size(), sizeof Labels::text);
  const std::size_t units = unitsFor(bytes) <= BlockPool::mostUnits ? unitsFor(bytes) : 0;
  const BlockPool::Block block = units > 0 ? BlockPool::of(this, units_, slot_).allocate(units)
                                           : BlockPool::Block{::operator new(bytes), 0};
  std::unique_ptr<Labels> made(new (block.memory) Labels{
      std::move(tag), size, static_cast<std::uint8_t>(units), block.slot, {}});
  copy(key, made->text);
  return made;
}

void StoredItem::Labels::operator delete(Labels* labels, std::destroying_delete_t) {
  const std::size_t units = labels->units;
  const std::size_t slot = labels->slot;
  labels->~Labels();
  if (units > 0)
    BlockPool::release(labels, units, slot);
  else
    ::operator delete(labels);
}

ListItem StoredItem::record() const {
  return {look(), Checked(), Selected(), std::string(Text()), Tag(), std::string(Key())};
}

void StoredItem::Key(std::string_view key) {
  if (labels_ || !key.empty()) labels_ = makeLabels(key, Tag());
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
    labels_ = makeLabels({}, std::move(tag));
}

void StoredItem::KeyAndTag(std::string_view key, Variant tag) {
  // Setting an empty tag allocates nothing, so it takes effect even if memory runs out for the key.
  if (key.empty() || (tag.isText() && tag.text().empty())) {
    Tag(std::move(tag));
    Key(key);
  } else {
    labels_ = makeLabels(key, std::move(tag));
  }
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
