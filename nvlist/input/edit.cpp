#include <nvlist/core/numbers.h>
#include <nvlist/core/text.h>
#include <nvlist/nvList.h>
#include <nvlist/render/art.h>

namespace norvane {
namespace {

constexpr std::int16_t keyReturn = 13;

}  // namespace

void nvList::SetEdit(const Variant& Index) {
  trapped(here, "SetEdit", [&](Trap& on) {
    if (!state_.AllowEdit) return;
    std::int32_t height = 0;
    on.step([&] { height = ItemHeight(); });
    // The box stands where the mouse was pressed last, whatever the index says.
    std::int32_t row = -1;
    on.step([&] { row = rowAt(state_.MouseDownY.toNumber(), 0, height); });
    std::int32_t index = 0;
    on.step([&] { index = Index.toInt32(); });
    if (on.test([&] { return !item(index).Enabled || !item(index).AllowEdit; })) return;
    state_.EditActive = true;
    on.step([&] { Text1->Font(state_.Font); });
    on.step([&] { Text1->ForeColor(state_.ForeColor); });
    on.step([&] { Text1->Text(item(index).Text); });
    on.step([&] { Text1->Move(editPlace(row)); });
    on.step([&] { Text1->Visible(true); });
    on.step([&] { Text1->SetFocus(); });
    on.step([&] {
      Text1->select(0, checked::narrow<std::int32_t>(
                           static_cast<std::int64_t>(characterCount(Text1->Text()))));
    });
  });
}

/// In rows of the text's height, though the list's may be higher. With both pictures the box stays
/// at the left where it was last.
Bounds nvList::editPlace(std::int32_t row) {
  const float textHeight = surface_.TextHeight("A");
  Bounds place = Text1->place();
  const float checkBoxWidth = art::checkBox(true, true)->width();
  if (state_.Style == cDefault) place.Left = 1;
  if (state_.Style == cCheckBoxes)
    place.Left = checkBoxWidth + state_.DistPicText + state_.IndentLeft;
  if (state_.Style == cIcons) place.Left = state_.IconW + state_.DistPicText + state_.IndentLeft;
  place.Top = static_cast<float>(row) * textHeight + state_.IndentTop;
  place.Width = surface_.ScaleWidth() - 2 - place.Left;
  place.Height = textHeight + 1;
  return place;
}

void nvList::Text1_KeyPress(std::int16_t& KeyAscii) {
  trapped(here, "Text1_KeyPress", [&](Trap& on) {
    if (KeyAscii != keyReturn || !state_.EditActive) return;
    // To the item that is current now, past the property and its repaint.
    on.step([&] { setText(item(state_.ListIndex), Text1->Text()); });
    state_.EditActive = false;
    on.step([&] { Text1->Visible(false); });
    on.step([&] { Redraw(); });
    KeyAscii = 0;
  });
}

}  // namespace norvane
