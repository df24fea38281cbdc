#include <nvlist/platform/qt/widget/QtRows.h>

#include <algorithm>
#include <cmath>

#include <nvlist/render/art.h>

namespace norvane {
namespace {

constexpr int gapBetweenPictures = 3;

int topRow(const nvList& list) { return std::max(list.TopIndex(), 0); }

// Before mirroring.

QRect areaBesideBars(const NvListWidget& widget) {
  const nvList& list = widget.list();
  const int frame = list.BorderVisible() ? 1 : 0;
  QRect area = widget.rect().marginsRemoved({frame, frame, frame, frame});
  if (list.verticalBar().Visible()) area.setRight(static_cast<int>(list.verticalBar().Left()) - 1);
  if (list.horizontalBar().Visible())
    area.setBottom(static_cast<int>(list.horizontalBar().Top()) - 1);
  return area;
}

QRect rowInArea(const NvListWidget& widget, std::int32_t index) {
  const nvList& list = widget.list();
  const double height = list.state().ItemHeightValue;
  if (!(height > 0.5)) return {};
  // A row far away must not overflow the numbers of a rectangle.
  const double top = list.IndentTop() + (static_cast<double>(index) - topRow(list)) * height;
  const auto whole = [](double y) {
    return static_cast<int>(std::lrint(std::clamp(y, -1e8, 1e8)));
  };
  const QRect area = areaBesideBars(widget);
  return {area.left(), whole(top), area.width(), whole(top + height) - whole(top)};
}

int leftOfTexts(const nvList& list) {
  const float checkBox = art::checkBox(true, true)->width();
  float left = list.IndentLeft();
  if (list.horizontalBar().Visible()) left -= static_cast<float>(list.horizontalBar().Value());
  const cListStyle style = list.Style();
  if (style == cCheckBoxes || style == cCheckBoxesIcons) left += checkBox;
  if (style == cCheckBoxesIcons) left += gapBetweenPictures;
  if (style == cIcons || style == cCheckBoxesIcons) left += list.IconW();
  if (style != cDefault) left += list.DistPicText();
  return static_cast<int>(std::lrint(std::clamp(left, -1e8F, 1e8F)));
}

}  // namespace

QString readableText(std::string_view text) {
  QString result = QString::fromUtf8(text);
  if (const auto column = result.indexOf("|right=", 0, Qt::CaseInsensitive); column >= 0)
    result.replace(column, 7, '\t');
  // "&&" shows one &.
  for (auto mark = result.indexOf('&'); mark >= 0; mark = result.indexOf('&', mark + 1))
    result.remove(mark, 1);
  return result;
}

QRect areaOfRows(const NvListWidget& widget) {
  return widget.place().shown(areaBesideBars(widget));
}

QRect paintedRow(const NvListWidget& widget, std::int32_t index) {
  return widget.place().shown(rowInArea(widget, index));
}

QRect textOfRow(const NvListWidget& widget, std::int32_t index) {
  QRect row = rowInArea(widget, index);
  row.setLeft(leftOfTexts(widget.list()));
  return widget.place().shown(row);
}

std::int32_t rowPaintedAt(const nvList& list, int y) {
  const double height = list.state().ItemHeightValue;
  const double row = std::floor((static_cast<double>(y) - list.IndentTop()) / height);
  if (!(height > 0.5) || row < 0) return -1;
  return static_cast<std::int32_t>(std::min(row + topRow(list), double{INT32_MAX}));
}

}  // namespace norvane
