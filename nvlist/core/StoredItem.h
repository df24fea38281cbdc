#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include <nvlist/core/ItemLook.h>
#include <nvlist/core/ListItem.h>
#include <nvlist/values/CompactText.h>

namespace norvane {

/// An item as a list keeps it, small because a list may hold a million of them: the fields that
/// differ from item to item stand here, the others in a look that items share (ItemStore::setLook).
/// Key and tag take memory of their own where there are any.
///
/// A new item has every field in the zero state of its type.
class StoredItem final : public SharedInThread {
 public:
  /// All fields as a record.
  ListItem record() const;

  std::string_view Text() const { return text_; }
  /// Forgets the measured width. In a list call ItemStore::setText instead.
  void Text(CompactText text) {
    text_ = std::move(text);
    textWidth = notMeasured;
  }
  std::string_view Key() const { return labels_ ? labels_->key.view() : std::string_view(); }
  void Key(CompactText key);
  Variant Tag() const;
  void Tag(Variant tag);
  Boolean Checked() const { return isChecked_ ? shared().checkedAs : Boolean(); }
  void Checked(Boolean checked);
  Boolean Selected() const { return isSelected_ ? shared().selectedAs : Boolean(); }
  void Selected(Boolean selected);

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
  struct Labels {
    CompactText key;
    Variant tag;
  };
  static const SharedLook blank;

  const SharedLook& shared() const { return look_ ? *look_ : blank; }
  SharedLook& own();
  Labels& labels();

  bool isChecked_ : 1 = false;
  bool isSelected_ : 1 = false;
  bool isTagEmptyText_ : 1 = false;  ///< of an item without labels; otherwise the tag is Empty
  CompactText text_;
  Ref<SharedLook> look_;
  std::unique_ptr<Labels> labels_;
};

static_assert(sizeof(StoredItem) <= 40, "every byte counts a million times");

}  // namespace norvane
