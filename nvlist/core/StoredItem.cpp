#include <nvlist/core/StoredItem.h>

#include <string>

namespace norvane {

const ItemLook StoredItem::blankLook;

ListItem StoredItem::record() const {
  const ItemLook& shared = look();
  ListItem result;
  result.Checked = Checked();
  result.AllowEdit = shared.AllowEdit;
  result.Enabled = shared.Enabled;
  result.Selected = Selected();
  result.Bold = shared.Bold;
  result.Italic = shared.Italic;
  result.Underline = shared.Underline;
  result.Alignment = shared.Alignment;
  result.ForeColorDis = shared.ForeColorDis;
  result.BackColorDis = shared.BackColorDis;
  result.ForeColor = shared.ForeColor;
  result.BackColor = shared.BackColor;
  result.ForeColorSelect = shared.ForeColorSelect;
  result.BackColorSelect = shared.BackColorSelect;
  result.Icon = shared.Icon;
  result.IconSelected = shared.IconSelected;
  result.Text = Text();
  result.Tag = Tag();
  result.Key = Key();
  return result;
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
  if (checked && look().CheckedAs != checked) ownLook().CheckedAs = checked;
  isChecked_ = static_cast<bool>(checked);
}

void StoredItem::Selected(Boolean selected) {
  if (selected && look().SelectedAs != selected) ownLook().SelectedAs = selected;
  isSelected_ = static_cast<bool>(selected);
}

ItemLook& StoredItem::ownLook() {
  if (!look_ || !look_->isHeldOnce()) look_ = makeRef<SharedLook>(look());
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
