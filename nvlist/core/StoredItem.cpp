#include <nvlist/core/StoredItem.h>

#include <string>

namespace norvane {

const StoredItem::SharedLook StoredItem::blank;

ListItem StoredItem::record() const {
  return {look(), Checked(), Selected(), std::string(Text()), Tag(), std::string(Key())};
}

void StoredItem::Key(CompactText key) {
  if (labels_ || !key.view().empty()) labels().key = std::move(key);
}

Variant StoredItem::Tag() const {
  if (labels_) return labels_->tag;
  return isTagEmptyText_ ? Variant("") : Variant();
}

void StoredItem::Tag(Variant tag) {
  if (!labels_ && (tag.isEmpty() || (tag.isText() && tag.text().empty())))
    isTagEmptyText_ = tag.isText();
  else
    labels().tag = std::move(tag);
}

void StoredItem::Checked(Boolean checked) {
  if (checked && shared().checkedAs != checked) own().checkedAs = checked;
  isChecked_ = static_cast<bool>(checked);
}

void StoredItem::Selected(Boolean selected) {
  if (selected && shared().selectedAs != selected) own().selectedAs = selected;
  isSelected_ = static_cast<bool>(selected);
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

StoredItem::Labels& StoredItem::labels() {
  if (!labels_) {
    auto made = std::make_unique<Labels>();
    made->tag = Tag();
    labels_ = std::move(made);
  }
  return *labels_;
}

}  // namespace norvane
