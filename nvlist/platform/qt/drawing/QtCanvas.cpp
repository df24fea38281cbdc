#include <nvlist/platform/qt/drawing/QtCanvas.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <nvlist/drawing/pixels.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/platform/qt/drawing/QtColour.h>
#include <nvlist/platform/qt/drawing/vectorRegisters.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr std::size_t maximumForeign = 256;

int lineCount(std::string_view text) {
  const auto isInLine = [](char character) { return character != '\r' && character != '\n'; };
  if (std::ranges::all_of(text, isInLine)) return 1;
  int count = 0;
  forEachLine(text, [&](std::string_view) { return ++count > 0; });
  return count;
}

qsizetype characterLength(QStringView text, qsizetype at) {
  return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate() ? 2
                                                                                             : 1;
}

double nextTabStop(double x, int tabStop) { return (std::floor(x / tabStop) + 1) * tabStop; }

}  // namespace

/// A line of text as displayed, with the positions of the characters that followed a `&`.
struct QtCanvas::ShownLine {
  QString text;
  std::vector<qsizetype> underlined;

  ShownLine(const QString& source, bool withoutTabs) {
    text.reserve(source.size());
    for (qsizetype at = 0; at < source.size(); ++at) {
      if (source[at] == u'&') {
        if (++at == source.size()) break;
        if (source[at] != u'&' && source[at] != u'\t') underlined.push_back(text.size());
      }
      if (!withoutTabs || source[at] != u'\t') text += source[at];
    }
  }
  /// Displays every character, `&` included.
  explicit ShownLine(QString source) : text(std::move(source)) {}
};

QtCanvas::QtCanvas() { resize(size_, 1); }

// ---- the image ----

void QtCanvas::resize(QSize logical, qreal dpr) {
  endPainter();
  size_ = logical.expandedTo(QSize(0, 0)).boundedTo(QSize(farthestPixel, farthestPixel));
  if (!(dpr > 0 && dpr < 100)) dpr = 1;
  if (dpr != dpr_) faces_.drop();
  dpr_ = dpr;

  // Without an area there is still an image to draw on, which is not shown.
  image_ = QImage(std::max(edge(size_.width()), 1), std::max(edge(size_.height()), 1),
                  QImage::Format_RGB32);
  if (image_.isNull()) {
    size_ = {0, 0};
    image_ = QImage(1, 1, QImage::Format_RGB32);
  }
  image_.setDevicePixelRatio(dpr_);
  fillAll();
}

/// Replaces QImage::fill, which leaves the upper halves of vector registers in use.
void QtCanvas::fillAll() {
  std::fill_n(reinterpret_cast<QRgb*>(image_.bits()),
              image_.sizeInBytes() / qsizetype{sizeof(QRgb)}, rgb(backColor_));
}

const QImage& QtCanvas::image() {
  endPainter();
  return image_;
}

QPainter& QtCanvas::painter() {
  if (!painter_.isActive()) painter_.begin(&image_);
  const QtFace& wanted = face();
  if (painterFace_ != &wanted) {
    painterFace_ = &wanted;
    painter_.setFont(wanted.font);
  }
  const QRgb colour = rgb(foreColor_);
  if (painter_.pen().color().rgb() != colour) painter_.setPen(QColor(colour));
  return painter_;
}

void QtCanvas::endPainter() {
  if (!painter_.isActive()) return;
  painter_.end();
  painterFace_ = nullptr;
  clearVectorRegisters();
}

QRgb QtCanvas::rgb(Colour colour) const { return rgbOf(colour, palette_); }

QRect QtCanvas::visiblePart(const Rectangle& rectangle) const {
  const int left = std::max(rectangle.Left, 0);
  const int top = std::max(rectangle.Top, 0);
  const int right = std::min(rectangle.Right, size_.width());
  const int bottom = std::min(rectangle.Bottom, size_.height());
  if (left >= right || top >= bottom) return {};
  return {left, top, right - left, bottom - top};
}

// ---- lines and boxes ----

/// Fills from the first pixel to the last, both included. It writes into the image directly: a
/// frame consists of hardly anything else, and the rounding of a painter would blur edges.
void QtCanvas::fill(int left, int top, int right, int bottom, QRgb colour) {
  left = std::max(left, 0);
  top = std::max(top, 0);
  right = std::min(right, size_.width() - 1);
  bottom = std::min(bottom, size_.height() - 1);
  if (left > right || top > bottom) return;
  const int from = edge(left);
  const int width = edge(right + 1) - from;
  const int end = edge(bottom + 1);
  for (int y = edge(top); y < end; ++y)
    std::fill_n(reinterpret_cast<QRgb*>(image_.scanLine(y)) + from, width, colour);
}

/// All points of a line except the last one.
void QtCanvas::drawLine(int x1, int y1, int x2, int y2, QRgb colour) {
  const bool isSteep = std::abs(y2 - y1) > std::abs(x2 - x1);
  if (isSteep) {
    std::swap(x1, y1);
    std::swap(x2, y2);
  }
  if (x1 == x2) return;
  const int first = x1 < x2 ? x1 : x2 + 1;
  const int last = x1 < x2 ? x2 - 1 : x1;
  if (y1 == y2) {
    isSteep ? fill(y1, first, y1, last, colour) : fill(first, y1, last, y1, colour);
    return;
  }
  const double slope = static_cast<double>(y2 - y1) / (x2 - x1);
  const int limit = isSteep ? size_.height() : size_.width();
  for (int x = std::max(first, 0); x <= std::min(last, limit - 1); ++x) {
    const int y = y1 + qRound(slope * (x - x1));
    isSteep ? fill(y, x, y, x, colour) : fill(x, y, x, y, colour);
  }
}

void QtCanvas::Line(LineMode mode, float x1, float y1, float x2, float y2, Colour colour) {
  currentX_ = x2;
  currentY_ = y2;
  const QRgb pen = rgb(colour);
  if (mode == LineMode::plainLine) {
    drawLine(nearestPixel(x1), nearestPixel(y1), nearestPixel(x2), nearestPixel(y2), pen);
    return;
  }
  const auto [left, right] = std::minmax({nearestPixel(x1), nearestPixel(x2)});
  const auto [top, bottom] = std::minmax({nearestPixel(y1), nearestPixel(y2)});
  if (mode == LineMode::filledBox) {
    fill(left, top, right, bottom, pen);
    return;
  }
  fill(left, top, right, top, pen);
  fill(left, bottom, right, bottom, pen);
  fill(left, top, left, bottom, pen);
  fill(right, top, right, bottom, pen);
}

void QtCanvas::PSet(float x, float y, Colour colour) {
  currentX_ = x;
  currentY_ = y;
  fill(nearestPixel(x), nearestPixel(y), nearestPixel(x), nearestPixel(y), rgb(colour));
}

void QtCanvas::Cls() {
  fillAll();
  isPictureMissing_ = false;
  currentX_ = 0;
  currentY_ = 0;
}

void QtCanvas::invert(int x, int y) {
  const int right = edge(x + 1);
  const int bottom = edge(y + 1);
  for (int row = edge(y); row < bottom; ++row) {
    auto* pixels = reinterpret_cast<QRgb*>(image_.scanLine(row));
    for (int column = edge(x); column < right; ++column) pixels[column] ^= 0x00FFFFFF;
  }
}

void QtCanvas::DrawFocusRect(std::uintptr_t hDC, const Rectangle& rectangle) {
  if (hDC != this->hDC()) throw Failure::invalidCall();
  const QRect visible = visiblePart(rectangle);
  if (visible.isEmpty()) return;
  const auto dot = [&](int x, int y) {
    if (visible.contains(x, y) && (x + y) % 2 == 0) invert(x, y);
  };
  // Each pixel once: a second inversion would undo the first in a rectangle one pixel thick.
  const bool isFlat = rectangle.Bottom - 1 == rectangle.Top;
  const bool isThin = rectangle.Right - 1 == rectangle.Left;
  for (int x = visible.left(); x <= visible.right(); ++x) {
    dot(x, rectangle.Top);
    if (!isFlat) dot(x, rectangle.Bottom - 1);
  }
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    if (y == rectangle.Top || y == rectangle.Bottom - 1) continue;
    dot(rectangle.Left, y);
    if (!isThin) dot(rectangle.Right - 1, y);
  }
}

// ---- pictures ----

const QtPicture& QtCanvas::drawable(const Picture& picture) {
  if (!picture) throw Failure::invalidCall();
  if (const auto* own = dynamic_cast<const QtPicture*>(picture.get())) return *own;

  const auto known = foreign_.find(picture.get());
  if (known != foreign_.end()) return static_cast<const QtPicture&>(*known->second.second);
  const auto bytes = picture->fileBytes();
  const Picture read = QtPicture::fromBytes(QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                                       static_cast<qsizetype>(bytes.size())));
  if (!read) throw Failure::invalidPicture();
  if (foreign_.size() >= maximumForeign) foreign_.clear();
  foreign_.emplace(picture.get(), std::pair(picture, read));
  return static_cast<const QtPicture&>(*read);
}

void QtCanvas::PaintPicture(const Picture& picture, float x, float y) {
  const QtPicture& drawn = drawable(picture);
  PaintPicture(picture, x, y, drawn.width(), drawn.height());
}

void QtCanvas::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
  const QImage image = drawable(picture).image();
  if (image.isNull()) {
    isPictureMissing_ = true;
    return;
  }
  const QRect target(nearestPixel(x), nearestPixel(y), nearestPixel(width), nearestPixel(height));
  if (target.width() <= 0 || target.height() <= 0) return;
  QPainter& on = painter();
  on.setClipping(false);
  // Whole multiples stay sharp; other factors need smoothing.
  const qreal factor = target.width() * dpr_ / image.width();
  const bool isWhole =
      factor == std::floor(factor) && factor == target.height() * dpr_ / image.height();
  on.setRenderHint(QPainter::SmoothPixmapTransform, !isWhole);
  on.drawImage(target, image);
}

void QtCanvas::StretchDIBits(std::uintptr_t hDC, const Rectangle& target, const Bitmap24& bitmap) {
  if (hDC != this->hDC() || !bitmap.isComplete()) throw Failure::invalidCall();
  const QRect visible = visiblePart(target);
  if (visible.isEmpty()) return;
  const int left = edge(visible.left());
  std::vector<QRgb> pixels(static_cast<std::size_t>(edge(visible.right() + 1) - left));
  int rowInPixels = -1;
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    const int row = bitmap.height - 1 - nearestOf(bitmap.height, y, target.Top, target.Bottom);
    if (std::exchange(rowInPixels, row) != row) {
      for (int x = visible.left(); x <= visible.right(); ++x) {
        const int column = nearestOf(bitmap.width, x, target.Left, target.Right);
        std::fill(pixels.begin() + edge(x) - left, pixels.begin() + edge(x + 1) - left,
                  rgb(bitmap.pixel(column, row)));
      }
    }
    for (int line = edge(y); line < edge(y + 1); ++line)
      std::copy(pixels.begin(), pixels.end(),
                reinterpret_cast<QRgb*>(image_.scanLine(line)) + left);
  }
}

// ---- texts ----

void QtCanvas::Font(const norvane::Font& font) {
  if (faces_.font(font)) painterFace_ = nullptr;
}

QtFace& QtCanvas::face() {
  std::unique_ptr<QtFace>& face = faces_.current();
  if (!face) face = std::make_unique<QtFace>(toQFont(faces_.font()), &image_);
  return *face;
}

double QtCanvas::widthWithTabs(const QString& line) {
  double width = 0;
  QStringView rest(line);
  for (;;) {
    const qsizetype tab = rest.indexOf(u'\t');
    width += face().widthOf(rest.first(tab < 0 ? rest.size() : tab));
    if (tab < 0) return width;
    width = nextTabStop(width, face().tabStop);
    rest = rest.sliced(tab + 1);
  }
}

float QtCanvas::TextWidth(std::string_view text) {
  if (const auto width = face().widthWithoutLayout(text))
    return static_cast<float>(std::nearbyint(*width));
  double widest = 0;
  forEachLine(text, [&](std::string_view line) {
    widest = std::max(widest, widthWithTabs(QString::fromUtf8(line)));
    return true;
  });
  return static_cast<float>(std::nearbyint(widest));
}

float QtCanvas::TextHeight(std::string_view text) {
  return static_cast<float>(lineCount(text)) * static_cast<float>(face().lineHeight);
}

/// Draws a line from `x` on, as far as it is visible.
void QtCanvas::drawLine(const ShownLine& line, double x, double tabOrigin, double baseline,
                        const QRect& clip) {
  QtFace& face = this->face();
  const QString& text = line.text;
  // Slanted letters extend into the space of their neighbours.
  const int overhang = face.lineHeight;
  for (qsizetype at = 0; at < text.size() && x <= clip.right() + overhang;) {
    if (text[at] == u'\t') {
      x = tabOrigin + nextTabStop(x - tabOrigin, face.tabStop);
      ++at;
      continue;
    }
    const qsizetype end = QtFace::pieceEnd(text, at);
    const QString piece = text.sliced(at, end - at);
    const double width = end < text.size() ? face.widthOf(piece) : 0;
    if (end == text.size() || x + width >= clip.left() - overhang) {
      face.draw(painter_, {x, baseline}, piece, clip);
      underlineMarked(line, at, end, x, baseline, clip);
    }
    x += width;
    at = end;
  }
}

/// Underlines the marked characters of one piece, which begins at `x`.
void QtCanvas::underlineMarked(const ShownLine& line, qsizetype from, qsizetype to, double x,
                               double baseline, const QRect& clip) {
  QtFace& face = this->face();
  const QStringView text(line.text);
  if (line.underlined.empty()) return;
  painter_.setClipRect(clip);
  auto mark = std::lower_bound(line.underlined.begin(), line.underlined.end(), from);
  for (; mark != line.underlined.end() && *mark < to; ++mark) {
    const double left = x + face.widthOf(text.sliced(from, *mark - from));
    const double width = face.widthOf(text.sliced(*mark, characterLength(text, *mark)));
    painter_.fillRect(QRect(qRound(left), qRound(baseline) + face.underlineTop,
                            std::max(qRound(width), 1), face.underlineHeight),
                      QColor(rgb(foreColor_)));
  }
}

void QtCanvas::DrawTextA(std::uintptr_t hDC, std::string_view text, std::int32_t length,
                         const Rectangle& rectangle, TextFormat format) {
  if (hDC != this->hDC()) throw Failure::invalidCall();
  if (length >= 0) text = text.substr(0, static_cast<std::size_t>(length));
  const QRect clip = visiblePart(rectangle);
  if (clip.isEmpty() || text.empty()) return;

  painter();
  QtFace& face = this->face();
  std::int64_t top = rectangle.Top;
  forEachLine(text, [&](std::string_view line) {
    if (top > clip.bottom()) return false;
    if (top + face.lineHeight > clip.top()) {
      const bool isRight = format == TextFormat::right;
      const ShownLine shown(QString::fromUtf8(line), isRight);
      const double left =
          isRight ? rectangle.Right - std::nearbyint(face.widthOf(shown.text)) : rectangle.Left;
      drawLine(shown, left, rectangle.Left, static_cast<double>(top) + face.ascent, clip);
    }
    top += face.lineHeight;
    return true;
  });
}

void QtCanvas::Print(std::string_view text) {
  painter();
  const QtFace& face = this->face();
  const QRect whole(QPoint(0, 0), size_);
  int x = nearestPixel(currentX_);
  int top = nearestPixel(currentY_);
  forEachLine(text, [&](std::string_view line) {
    if (top > whole.bottom()) return false;
    if (top + face.lineHeight > 0)
      drawLine(ShownLine(QString::fromUtf8(line)), x, 0, top + face.ascent, whole);
    x = 0;
    top += face.lineHeight;
    return true;
  });
  currentX_ = 0;
  currentY_ += TextHeight(text);
}

}  // namespace norvane
