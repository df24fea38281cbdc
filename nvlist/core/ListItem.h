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

/// One entry of a list. It has no behaviour: every member may be read and written. A new record has
/// every field in the zero state of its type; ItemsAdd then writes all of them.
///
/// The four variant colours hold a colour or the text "def", which says that the item has no colour
/// of its own and takes what the style of the list gives. The two colours of the disabled state are
/// plain numbers and cannot say so.
class ListItem final : public Shared {
 public:
  // The small ones stand together, which keeps an item small.
  Boolean Checked;    ///< the check mark
  Boolean AllowEdit;  ///< may be edited in place, given the list's AllowEdit too
  Boolean Enabled;    ///< a disabled item cannot become the current one
  Boolean Selected;
  Boolean Bold;
  Boolean Italic;
  Boolean Underline;
  /// Of the text in the list's font, in pixels, where it was measured; setText forgets it.
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
  Picture IconSelected;  ///< icon while selected; empty: Icon serves then too
  std::string Text;
  Variant Tag;      ///< free value of the host
  CompactText Key;  ///< the host's key; neither unique nor indexed
};

/// The way in which the list itself writes a text.
inline void setText(ListItem& item, std::string text) {
  item.Text = std::move(text);
  item.textWidth = ListItem::notMeasured;
}

}  // namespace norvane
