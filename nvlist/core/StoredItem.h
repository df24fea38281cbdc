#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string_view>

#include <nvlist/core/BlockPool.h>
#include <nvlist/core/ItemLook.h>
#include <nvlist/core/ListItem.h>

namespace norvane {

/// An item as a list keeps it, small because a list may hold a million of them: the fields that
/// differ from item to item stand here, the others in a look that items share (ItemStore::setLook).
/// The text follows them in the same block of memory, unless it is long or was changed to a longer
/// one. Key and tag take memory of their own where there are any.
class StoredItem final : public SharedInThread {
 public:
  /// An item with a text, in memory of the pool. Every other field is in the zero state of its
  /// type.
  static Ref<StoredItem> make(BlockPool& pool, std::string_view text = {});
  ~StoredItem() { freeText(); }
  static void operator delete(StoredItem* item, std::destroying_delete_t);

  /// All fields as a record.
  ListItem record() const;

  /// Valid until the text changes.
  std::string_view Text() const { return {isTextInside() ? text_ : outside(), textSize_}; }
  /// Forgets the measured width. `text` must not be part of the item's own text. In a list call
  /// ItemStore::setText instead.
  void Text(std::string_view text);
  std::string_view Key() const { return labels_ ? labels_->key() : std::string_view(); }
  void Key(std::string_view key);
  Variant Tag() const;
  void Tag(Variant tag);
  /// Both at once, which is cheaper.
  void KeyAndTag(std::string_view key, Variant tag);
  Boolean Checked() const { return isChecked_ ? shared().checkedAs : Boolean(); }
  void Checked(Boolean checked) {
    if (checked && shared().checkedAs != checked) own().checkedAs = checked;
    isChecked_ = static_cast<bool>(checked);
  }
  Boolean Selected() const { return isSelected_ ? shared().selectedAs : Boolean(); }
  void Selected(Boolean selected) {
    if (selected && shared().selectedAs != selected) own().selectedAs = selected;
    isSelected_ = static_cast<bool>(selected);
  }

  /// The shared fields, for reading. They live until the look changes.
  const ItemLook& look() const { return shared().fields; }
  /// The shared fields, for changing those of this item alone. They live until the look is shared
  /// again or the item goes.
  ItemLook& ownLook() { return own().fields; }
  /// Takes the look of another item if that is `look` and both items' marks read alike. Returns
  /// whether it did.
  bool shareLookOf(const StoredItem& other, const ItemLook& look);

  /// Width of the text in the list's font, in pixels.
  std::uint16_t textWidth = notMeasured;
  static constexpr std::uint16_t notMeasured = 0xFFFF;

 private:
  struct SharedLook : SharedInThread {
    ItemLook fields;
    Boolean checkedAs = true;   ///< what Checked reads while the check mark is set
    Boolean selectedAs = true;  ///< what Selected reads while the item is selected
  };
  /// A tag and a key, which follows it.
  struct Labels {
    static void operator delete(Labels* labels, std::destroying_delete_t);

    std::string_view key() const { return {text, size}; }

    Variant tag;
    std::uint32_t size;
    std::uint8_t units;  ///< the size of its block; 0: not of the pool
    std::uint8_t slot;
    char text[2];  ///< its first bytes
  };
  static const SharedLook blank;

  StoredItem(std::size_t units, std::size_t slot) : units_(units & 0x3F), slot_(slot & 0x7F) {}

  std::unique_ptr<Labels> makeLabels(std::string_view key, Variant tag);
  bool isTextInside() const { return textSize_ <= room(); }
  static constexpr std::size_t beforeText() { return sizeof(StoredItem) - sizeof text_; }
  /// Bytes for a text at `text_`, at least a pointer.
  std::size_t room() const { return units_ * BlockPool::unit - beforeText(); }
  /// The text in memory of its own, to which `text_` holds a pointer.
  char* outside() const;
  void freeText() {
    if (!isTextInside()) delete[] outside();
  }
  const SharedLook& shared() const { return look_ ? *look_ : blank; }
  SharedLook& own();

  const std::uint8_t units_ : 6;  ///< the size of its block
  bool isSelected_ : 1 = false;
  bool isTagEmptyText_ : 1 = false;  ///< of an item without labels; otherwise the tag is Empty
  const std::uint8_t slot_ : 7;      ///< of its block
  bool isChecked_ : 1 = false;
  Ref<SharedLook> look_;
  std::unique_ptr<Labels> labels_;
  std::uint32_t textSize_ = 0;
  char text_[4];  ///< the first bytes of the text; the others follow
};

static_assert(sizeof(StoredItem) <= 32, "every byte counts a million times");

}  // namespace norvane
