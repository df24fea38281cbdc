#pragma once

#include <QRect>
#include <QString>
#include <string_view>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

// How rows appear in the widget of a list, in pixels of the widget, which may be mirrored. Private:
// a host asks the widget.

/// A text as a user reads it: without the marks of underlined letters, and with a tab in front of
/// the right column.
QString readableText(std::string_view text);

/// The area inside the frame that the bars leave to the rows.
QRect areaOfRows(const NvListWidget& widget);

/// Where the row of an item is painted if it is in view, and otherwise where it would be. As wide
/// as the area of the rows. Empty if rows have no height.
QRect paintedRow(const NvListWidget& widget, std::int32_t index);

/// The part of a row that its text has, from where the text begins to the far edge. It may begin
/// outside of the widget. Not valid if there is no room for a text.
QRect textOfRow(const NvListWidget& widget, std::int32_t index);

/// The index of the row painted at a height, or of the next one that would be if the list was
/// longer; it may be beyond the last item. -1 above the first row.
std::int32_t rowPaintedAt(const nvList& list, int y);

}  // namespace norvane
