#pragma once

#include <string>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/CompactText.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Ref.h>
#include <nvlist/values/Variant.h>
#include <nvlist/values/enumerations.h>

namespace norvane {

/// One item of a list. It has no behaviour: every member may be read and written. In a new record
/// every field has the zero value of its type; ItemsAdd then sets all of them.
///
/// Each of the four Variant colours holds a colour or the text "def": the item then has no colour
/// of its own and takes it from the list's style. The two colours of the disabled state are plain
/// numbers and cannot be "def".
class ListItem final : public Shared {
 public:
  // Small members come first, so that an item has little padding.
  Boolean Checked;    ///< the check mark
  Boolean AllowEdit;  ///< may be edited in place if the list's AllowEdit is on as well
  Boolean Enabled;    ///< a disabled item cannot become the current one
  Boolean Selected;
  Boolean Bold;
  Boolean Italic;
  Boolean Underline;
  /// Width of the text in the list's font, in pixels, once measured. setText resets it.
  std::uint16_t textWidth = notMeasured;
  static constexpr std::uint16_t notMeasured = 0xFFFF;
  cItemAlignment Alignment = cLeft;
  Colour ForeColorDis = 0;  ///< text colour while disabled
  Colour BackColorDis = 0;  ///< background colour while disabled
  Variant ForeColor;        ///< text colour
  Variant BackColor;        ///< background colour
  Variant ForeColorSelect;  ///< text colour while selected
  Variant BackColorSelect;  ///< background colour while selected
  Picture Icon;
  Picture IconSelected;  ///< icon while selected; empty: Icon is used
  std::string Text;
  Variant Tag;      ///< a value that the host may use freely
  CompactText Key;  ///< the host's key; neither unique nor indexed
};

/// Sets the text of an item and forgets its measured width.
inline void setText(ListItem& item, std::string text) {
  item.Text = std::move(text);
  item.textWidth = ListItem::notMeasured;
}

}  // namespace norvane
