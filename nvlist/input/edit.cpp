#include <nvlist/nvList.h>
#include <nvlist/render/art.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr std::int16_t keyReturn = 13;

}  // namespace

void nvList::SetEdit(const Variant& Index) {
  trapped(here, "SetEdit", [&](Trap& on) {
    if (!state_.AllowEdit) return;
    std::int32_t height = 0;
    on.step([&] { height = ItemHeight(); });
    // The box opens over the row of the last mouse press, whatever the index is, and above the
    // first row if there was no press.
    std::int32_t row = -1;
    on.step([&] {
      const Variant& y = state_.MouseDownY;
      row = rowAt(y.isEmpty() ? -1 : y.toNumber(), 0, height);
    });
    std::int32_t index = 0;
    on.step([&] { index = Index.toInt32(); });
    if (on.test([&] { return !item(index).look().Enabled || !item(index).look().AllowEdit; }))
      return;
    state_.EditActive = true;
    on.step([&] { Text1->Font(state_.Font); });
    on.step([&] { Text1->ForeColor(state_.ForeColor); });
    const auto move = [&](auto&& change) {
      on.step([&] {
        Bounds place = Text1->place();
        change(place);
        Text1->Move(place);
      });
    };
    move([&](Bounds& place) { place.Height = surface_.TextHeight("A") + 1; });
    on.step([&] { Text1->Text(std::string(item(index).Text())); });
    move([&](Bounds& place) { place.Left = editLeft(place.Left); });
    // Uses the text height, although the rows of the list may be higher.
    move([&](Bounds& place) {
      place.Top = static_cast<float>(row) * surface_.TextHeight("A") + state_.IndentTop;
    });
    move([&](Bounds& place) { place.Width = surface_.ScaleWidth() - 2 - place.Left; });
    on.step([&] { Text1->Visible(true); });
    on.step([&] { Text1->SetFocus(); });
    on.step([&] {
      Text1->select(0, checked::narrow<std::int32_t>(
                           static_cast<std::int64_t>(characterCount(Text1->Text()))));
    });
  });
}

/// The left edge of the box. With both check boxes and icons it stays at `before`.
float nvList::editLeft(float before) const {
  switch (state_.Style) {
    case cDefault:
      return 1;
    case cCheckBoxes:
      return art::checkBox(true, true)->width() + state_.DistPicText + state_.IndentLeft;
    case cIcons:
      return state_.IconW + state_.DistPicText + state_.IndentLeft;
    default:
      return before;
  }
}

void nvList::Text1_KeyPress(std::int16_t& KeyAscii) {
  trapped(here, "Text1_KeyPress", [&](Trap& on) {
    if (KeyAscii != keyReturn || !state_.EditActive) return;
    // Written to the item that is current now, without the PropertyChanged notification of
    // ItemText.
    on.step([&] { state_.Items.setText(state_.ListIndex, Text1->Text()); });
    ++state_.Edits;
    state_.EditActive = false;
    on.step([&] { Text1->Visible(false); });
    on.step([&] { Redraw(); });
    KeyAscii = 0;
  });
}

}  // namespace norvane
