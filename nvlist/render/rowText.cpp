#include <algorithm>
#include <string_view>

#include <nvlist/render/Row.h>
#include <nvlist/values/numbers.h>

namespace norvane {

using checked::nearest;

namespace {

/// Separates the two columns of a row; not case-sensitive.
constexpr std::string_view columnMarker = "|right=";

constexpr std::int32_t marginOfRightColumn = 3;

/// The byte position of the first marker, or npos.
std::size_t markerIn(std::string_view text) {
  const auto isSame = [](char inMarker, char inText) {
    const bool isLetter = inText >= 'A' && inText <= 'Z';
    return inMarker == (isLetter ? static_cast<char>(inText - 'A' + 'a') : inText);
  };
  for (std::size_t at = text.find(columnMarker[0]); at < text.size();
       at = text.find(columnMarker[0], at + 1)) {
    const std::string_view part = text.substr(at, columnMarker.size());
    if (std::equal(columnMarker.begin(), columnMarker.end(), part.begin(), part.end(), isSame))
      return at;
  }
  return std::string_view::npos;
}

/// The space that pictures take from a centred text: fixed sizes, whatever the size of the
/// pictures.
float pictureAllowance(const ListState& state) {
  switch (state.Style) {
    case cCheckBoxes:
    case cIcons:
      return 16 + state.DistPicText;
    case cCheckBoxesIcons:
      return 32 + state.DistPicText + 3;
    default:
      return 0;
  }
}

}  // namespace

void nvList::Row::alignText() {
  cItemAlignment alignment = cLeft;
  on_.step([&] { alignment = item().look().Alignment; });
  if (alignment != cCenter && alignment != cRight) return;
  const auto room = [&] {
    const float bar = isScrollNeeded() ? list_.VScroll1.Width() : 0;
    return static_cast<double>(repaint_.ItemRight) - bar;
  };
  if (alignment == cRight) {
    on_.step([&] {
      surface_.CurrentX(static_cast<float>(room() - repaint_.ScrollOffset - textWidth() - 3));
    });
    return;
  }
  float centerWidth = 0;
  on_.step([&] { centerWidth = textWidth() - pictureAllowance(state_); });
  on_.step([&] {
    surface_.CurrentX(static_cast<float>((room() - centerWidth) / 2 - repaint_.ScrollOffset));
  });
}

void nvList::Row::paintText() {
  Rectangle rect;
  on_.step([&] {
    const float textHeight = surface_.TextHeight(text());
    rect.Top = nearest<std::int32_t>((height() - textHeight) / 2 + surface_.CurrentY());
  });
  on_.step([&] { rect.Left = nearest<std::int32_t>(surface_.CurrentX()); });
  rect.Right = repaint_.ItemRight;
  // Extends to the bottom of the surface: a text of several lines continues over the rows below.
  on_.step([&] { rect.Bottom = nearest<std::int32_t>(surface_.ScaleHeight()); });

  if (state_.ClipsTexts) {
    on_.step([&] { rect.Top = std::max(rect.Top, nearest<std::int32_t>(surface_.CurrentY())); });
    on_.step([&] {
      rect.Bottom = std::min(rect.Bottom, nearest<std::int32_t>(surface_.CurrentY() + height()));
    });
  }

  setFontFlags();
  std::size_t marker = std::string_view::npos;
  on_.step([&] { marker = markerIn(item().Text()); });
  if (marker != std::string_view::npos) {
    paintTwoColumns(rect, marker);
    return;
  }
  on_.step([&] { surface_.DrawTextA(surface_.hDC(), text(), -1, rect, TextFormat::expandTabs); });
}

/// Set last, because the row is measured with the flags of the row above.
void nvList::Row::setFontFlags() {
  on_.step([&] { surface_.FontBold(item().look().Bold); });
  on_.step([&] { surface_.FontItalic(item().look().Italic); });
  on_.step([&] { surface_.FontUnderline(item().look().Underline); });
}

void nvList::Row::paintTwoColumns(Rectangle rect, std::size_t marker) {
  if (list_.VScroll1.Visible())
    on_.step([&] {
      rect.Right = nearest<std::int32_t>(static_cast<double>(rect.Right) - list_.VScroll1.Width());
    });
  on_.step([&] {
    surface_.DrawTextA(surface_.hDC(), std::string_view(text()).substr(0, marker), -1, rect,
                       TextFormat::expandTabs);
  });
  on_.step([&] { rect.Right = checked::subtract(rect.Right, marginOfRightColumn); });
  on_.step([&] {
    surface_.DrawTextA(surface_.hDC(),
                       std::string_view(text()).substr(marker + columnMarker.size()), -1, rect,
                       TextFormat::right);
  });
}

}  // namespace norvane
