#pragma once

#include <QRect>
#include <QString>
#include <string_view>

#include <nvlist/nvList.h>

namespace norvane {

// How rows appear in the widget of a list, in pixels of the widget. Private: a host asks the
// widget.

/// A text as a user reads it: without the marks of underlined letters, and with a tab in front of
/// the right column.
QString readableText(std::string_view text);

/// The area inside the frame and left of the vertical bar and above the horizontal one.
QRect areaOfRows(const nvList& list, QSize widget);

/// Where the row of an item is painted if it is in view, and otherwise where it would be. As wide
/// as the area of the rows. Empty if rows have no height.
QRect paintedRow(const nvList& list, QSize widget, std::int32_t index);

/// The index of the row painted at a height, or of the next one that would be if the list was
/// longer; it may be beyond the last item. -1 above the first row.
std::int32_t rowPaintedAt(const nvList& list, int y);

/// Where left-aligned texts begin.
int leftOfTexts(const nvList& list);

}  // namespace norvane
