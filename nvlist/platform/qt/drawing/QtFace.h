#pragma once

#include <QCache>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QRect>
#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace norvane {

/// A font on a paint device, with the measures that texts are laid out by. It keeps the widths of
/// the characters it has measured, and the glyphs of the texts it drew last.
class QtFace {
 public:
  QtFace(const QFont& shown, QPaintDevice* device);

  const QFont font;

 private:
  QPaintDevice* const device_;
  const QFontMetricsF metrics_;

 public:
  /// In whole pixels.
  const int lineHeight;
  const int ascent;
  const int tabStop;
  const int underlineTop;
  const int underlineHeight;

  /// The width of a text. Line breaks and tabs count as characters.
  double widthOf(QStringView text);
  /// The same for UTF-8, without a layout. Empty if the text needs one.
  std::optional<double> widthWithoutLayout(std::string_view text);

  /// Draws a piece of a line, without tabs. Nothing is drawn outside `clip`. The painter must have
  /// this font.
  void draw(QPainter& painter, QPointF baseline, const QString& piece, const QRect& clip);

  /// The end of the piece of a line that begins at `from`: before a tab, and not inside a surrogate
  /// pair. A very long line is laid out in pieces, since it is visible only in part.
  static qsizetype pieceEnd(QStringView line, qsizetype from);

 private:
  /// Which characters have kerning with each other.
  enum class Kind : std::uint8_t {
    unknown,
    layout,    ///< any: the whole text needs a layout
    common,    ///< all but `wide`
    latin,     ///< those of the same kind, and common ones
    greek,     ///< the same
    cyrillic,  ///< the same
    wide       ///< none: Chinese and Japanese
  };
  struct Character {
    Kind kind = Kind::unknown;
    std::uint8_t index = 0;  ///< in the table of pairs; that of ASCII is the character
    float width = 0;
  };
  using Page = std::array<Character, 256>;
  /// How a piece was laid out. Without runs the painter has to do it.
  struct Glyphs {
    QList<QGlyphRun> runs;
    QRectF ink;
  };

  /// What a character adds to a width before another one, by the indices of both. NaN if that has
  /// not been measured.
  float pair(std::uint8_t first, std::uint8_t second) const { return pairs_[rows_[first]][second]; }
  std::optional<double> asciiSum(std::string_view text) const;
  template <class Reader>
  std::optional<double> sum(Reader text, unsigned& kinds);
  template <class Reader>
  std::optional<double> provenSum(Reader text);
  bool isProven(Kind kind);
  double laidOutWidth(QStringView text) const;
  Character& character(char16_t code);
  Kind kindOf(char16_t code) const;
  bool isSameInAllScripts(char16_t code, float width) const;
  float pairWidth(const Character& first, char16_t code, const Character& second,
                  char16_t secondCode);
  Glyphs layOut(const QString& piece) const;

  /// By the high and the low byte of the character.
  std::array<std::unique_ptr<Page>, 256> characters_;
  /// The next free index. ASCII characters are their own indices.
  int nextIndex_;
  /// By index: the row of a first character in `pairs_`. 0: not measured.
  std::array<std::uint8_t, 256> rows_ = {};
  /// By the index of the second character. Row 0 is NaN throughout.
  std::vector<std::array<float, 256>> pairs_;
  unsigned provenKinds_ = 0;
  unsigned refutedKinds_ = 0;
  Qt::LayoutDirection direction_ = Qt::LeftToRight;
  /// The cost of a piece is its length.
  QCache<QString, Glyphs> glyphs_;
};

}  // namespace norvane
