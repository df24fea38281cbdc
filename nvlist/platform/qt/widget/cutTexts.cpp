#include <nvlist/platform/qt/widget/cutTexts.h>

#include <QFontMetricsF>
#include <QToolTip>

#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/widget/QtRows.h>

namespace norvane {
namespace {

/// In characters; a longer tip would cover the screen.
constexpr qsizetype longestTip = 2000;

/// Between the right column and the edge, and between the columns.
constexpr int gapOfColumns = 3;

/// The width of a text as it is painted, with both columns.
qreal widthOf(const QString& text, const nvList& list, const ListItem& item) {
  QFont font = list.Font() ? toQFont(*list.Font()) : QFont();
  font.setBold(static_cast<bool>(item.Bold));
  font.setItalic(static_cast<bool>(item.Italic));
  const QFontMetricsF metrics(font);
  qreal width = 0;
  for (const QString& column : text.split('\t')) width += metrics.horizontalAdvance(column);
  return width + gapOfColumns * 2 * static_cast<qreal>(text.contains('\t'));
}

}  // namespace

bool showCutText(NvListWidget& widget, const QHelpEvent& event) {
  const nvList& list = widget.list();
  const std::int32_t index = rowPaintedAt(list, event.pos().y());
  if (!areaOfRows(widget).contains(event.pos()) || index < 0 || index >= list.ItemsCount())
    return false;
  const ListItem item = list.state().Items.at(index);
  QString text = readableText(item.Text);
  const QRect room = textOfRow(widget, index);
  const bool isCut =
      room.left() < 0 || room.right() >= widget.width() || widthOf(text, list, item) > room.width();
  if (!isCut || text.isEmpty()) return false;
  if (text.size() > longestTip) text = text.first(longestTip) + "...";
  // Rich text, which alone breaks long lines.
  const QString shown = "<p style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</p>";
  QToolTip::showText(event.globalPos(), shown, &widget, paintedRow(widget, index));
  return true;
}

}  // namespace norvane
