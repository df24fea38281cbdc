#include <nvlist/platform/qt/drawing/QtFace.h>

#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace norvane {
namespace {

constexpr qsizetype pieceLength = 512;

/// A longer piece is mostly outside the window.
constexpr qsizetype longestCached = 128;

/// Enough for the rows of several windows.
constexpr int cachedCharacters = 16384;

constexpr unsigned char asciiEnd = 0x80;
/// The index that stands for the start and the end of a text.
constexpr std::uint8_t nothing = asciiEnd;
constexpr int firstIndex = nothing + 1;
constexpr int lastIndex = 255;
constexpr float notMeasured = std::numeric_limits<float>::quiet_NaN();

constexpr qreal widerThanAnyPiece = 1 << 24;

constexpr char16_t fractionSlash = 0x2044;

unsigned bit(auto kind) { return 1U << static_cast<unsigned>(kind); }

/// Reads the characters of a text in UTF-8. One beyond 16 bits, or an invalid byte, reads as the
/// replacement character.
class Utf8Reader {
 public:
  explicit Utf8Reader(std::string_view text) : text_(text) {}

  bool isAtEnd() const { return at_ == text_.size(); }
  char16_t next() {
    const unsigned first = byte(0);
    if (first < 0x80) return advance(1, first);
    if (first >= 0xC2 && first < 0xE0 && isContinued(1))
      return advance(2, (first & 0x1F) << 6 | low(1));
    if (first >= 0xE0 && first < 0xF0 && isContinued(1) && isContinued(2)) {
      const unsigned code = (first & 0x0F) << 12 | low(1) << 6 | low(2);
      if (code >= 0x800) return advance(3, code);
    }
    return advance(1, QChar::ReplacementCharacter);
  }

 private:
  unsigned byte(std::size_t offset) const {
    return static_cast<unsigned char>(text_[at_ + offset]);
  }
  unsigned low(std::size_t offset) const { return byte(offset) & 0x3F; }
  bool isContinued(std::size_t offset) const {
    return at_ + offset < text_.size() && (byte(offset) & 0xC0) == 0x80;
  }
  char16_t advance(std::size_t bytes, unsigned code) {
    at_ += bytes;
    return static_cast<char16_t>(code);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

class Utf16Reader {
 public:
  explicit Utf16Reader(QStringView text) : text_(text) {}

  bool isAtEnd() const { return at_ == text_.size(); }
  char16_t next() { return text_[at_++].unicode(); }

 private:
  QStringView text_;
  qsizetype at_ = 0;
};

/// Whether a character has a place of its own in a line that runs from left to right: it neither
/// combines with others nor controls them.
bool standsAlone(QChar character) {
  switch (character.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
      return false;
    default:
      break;
  }
  if (character == QChar(fractionSlash) || character == QChar(QChar::ReplacementCharacter))
    return false;
  switch (character.direction()) {
    case QChar::DirL:
    case QChar::DirEN:
    case QChar::DirES:
    case QChar::DirET:
    case QChar::DirCS:
    case QChar::DirWS:
    case QChar::DirON:
      return true;
    default:
      return false;
  }
}

}  // namespace

QtFace::QtFace(const QFont& shown, QPaintDevice* device)
    : font(shown),
      device_(device),
      metrics_(shown, device),
      lineHeight(std::max(qRound(metrics_.height()), 1)),
      ascent(qRound(metrics_.ascent())),
      tabStop(8 * std::max(qRound(metrics_.averageCharWidth()), 1)),
      underlineTop(std::max(qRound(metrics_.underlinePos()), 1)),
      underlineHeight(std::max(qRound(metrics_.lineWidth()), 1)),
      nextIndex_(firstIndex),
      glyphs_(cachedCharacters) {
  pairs_.emplace_back().fill(notMeasured);
  rows_[nothing] = 1;
  pairs_.emplace_back().fill(0);
}

qsizetype QtFace::pieceEnd(QStringView line, qsizetype from) {
  qsizetype end = std::min(from + pieceLength, line.size());
  if (end < line.size() && line[end].isLowSurrogate()) ++end;
  const qsizetype tab = line.sliced(from, end - from).indexOf(u'\t');
  return tab < 0 ? end : from + tab;
}

// ---- widths ----

double QtFace::widthOf(QStringView text) {
  const auto width = provenSum(Utf16Reader(text));
  return width ? *width : laidOutWidth(text);
}

std::optional<double> QtFace::widthWithoutLayout(std::string_view text) {
  const auto width = asciiSum(text);
  return width ? width : provenSum(Utf8Reader(text));
}

/// The same sum as below for ASCII, if all its pairs have been measured: a list measures each text
/// that is added.
std::optional<double> QtFace::asciiSum(std::string_view text) const {
  double width = 0;
  unsigned all = 0;
  bool hasLongLigature = false;
  std::uint8_t before = nothing;
  for (const char byte : text) {
    const auto code = static_cast<unsigned char>(byte);
    all |= code;
    hasLongLigature |= code == 'f' && before == 'f';
    width += pair(before, code);
    before = code;
  }
  if (all >= asciiEnd || hasLongLigature || text.empty()) return {};
  width += pair(before, nothing);
  return std::isnan(width) ? std::nullopt : std::optional(width);
}

double QtFace::laidOutWidth(QStringView text) const {
  double width = 0;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype end = std::max(pieceEnd(text, at), at + 1);
    width += metrics_.horizontalAdvance(text.sliced(at, end - at).toString());
    at = end;
  }
  return width;
}

template <class Reader>
std::optional<double> QtFace::provenSum(Reader text) {
  unsigned kinds = 0;
  const auto width = sum(text, kinds);
  if (!width) return {};
  kinds &= ~provenKinds_;
  for (unsigned kind = 0; kinds >> kind != 0; ++kind)
    if ((kinds >> kind & 1) != 0 && !isProven(static_cast<Kind>(kind))) return {};
  return width;
}

/// Adds up what the characters add to the width. A list measures each of its texts, which may be a
/// million, and the layout of one takes microseconds. `kinds` gets a bit for each kind of character
/// beyond ASCII.
template <class Reader>
std::optional<double> QtFace::sum(Reader text, unsigned& kinds) {
  if (text.isAtEnd()) return 0;
  double width = 0;
  qsizetype length = 1;
  bool isLongLigature = false;
  char16_t code = text.next();
  const Character* current = &character(code);
  Kind letters = current->kind;
  while (current->kind != Kind::layout) {
    if (code >= 0x80) kinds |= bit(current->kind);
    if ((kinds & refutedKinds_) != 0) return {};
    if (text.isAtEnd()) return width + current->width;
    // The pieces of a longer line have no kerning between them.
    if (++length > pieceLength && kinds != 0) return {};
    // Many fonts have ligatures of three letters, such as "ffi". Pairs contain those of two.
    if (isLongLigature) return {};
    const char16_t nextCode = text.next();
    isLongLigature = code == u'f' && nextCode == u'f';
    const Character& next = character(nextCode);
    // Common characters belong to the letters before them, or at the beginning to those after
    // them. There is no kerning between the letters of two scripts.
    const bool hasKerning =
        letters != Kind::wide &&
        (next.kind == Kind::common || next.kind == letters ||
         (letters == Kind::common && next.kind != Kind::wide && next.kind != Kind::layout));
    // Among Chinese characters, fonts differ in whether digits and the like have kerning.
    const bool mayHaveKerning =
        letters == Kind::wide && current->kind == Kind::common && next.kind == Kind::common;
    const float added =
        hasKerning || mayHaveKerning ? pairWidth(*current, code, next, nextCode) : current->width;
    if (mayHaveKerning && added != current->width) return {};
    width += added;
    if (next.kind != Kind::common) letters = next.kind;
    current = &next;
    code = nextCode;
  }
  return {};
}

/// A context can make a text wider or narrower than its pairs. The sum is used only where it is
/// right for texts that have what the fonts of a script treat in such ways.
bool QtFace::isProven(Kind kind) {
  const QStringView texts = [kind]() -> QStringView {
    switch (kind) {
      case Kind::common:
        return u"\u2013 \u201Ea\u201C \u2019b\u2026|\u00A75\u00A0\u20AC|\u00B0\u00D7\u00AB\u00BB";
      case Kind::latin:
        return u"Gr\u00FC\u00DFe \u00C4V T\u00F6 W\u00E0 \u00FCfi fl fj T\u00E9.|\u00FCff|"
               u"\u0141\u00F3d\u017A|\u201ET\u00C5\u201C\u2013V 1/2|P\u00C6,L\u0165\u010F";
      case Kind::greek:
        return u"\u039E\u03B5\u03C3\u03BA \u0391\u03A5 \u0393\u0391 \u03A4\u03BF, 12.|"
               u"\u00AB\u0390\u00BB|\u1F00\u03C5";
      case Kind::cyrillic:
        return u"\u0421\u044A\u0435\u0448\u044C \u0413\u0410 \u0422\u0434 \u0423\u0436, 12.|"
               u"\u00AB\u0401\u00BB|\u0457";
      default:
        return u"\u3044\u308D\u306F\u3001\u30C1\u30EA\u30CC\u30EB\u3002|\u300C\u6F22\u5B57\u300D"
               u"\u30FC\u30FB|"
               u"\uFF08\u56FD\uFF09\uFF21\uFF22 12 \u3060\u3002A\u6F22 b.";
    }
  }();
  bool isRight = true;
  for (const QStringView text : texts.tokenize(u'|')) {
    unsigned kinds = 0;
    // A text with a character that the font lacks has no sum, and proves nothing.
    const auto width = sum(Utf16Reader(text), kinds);
    isRight = isRight && (!width || *width == laidOutWidth(text));
  }
  (isRight ? provenKinds_ : refutedKinds_) |= bit(kind);
  return isRight;
}

QtFace::Character& QtFace::character(char16_t code) {
  std::unique_ptr<Page>& page = characters_[code >> 8];
  if (!page) page = std::make_unique<Page>();
  Character& known = (*page)[code & 0xFF];
  if (known.kind != Kind::unknown) return known;
  // Stored last: if memory runs out, the character stays unknown.
  Character measured = {.kind = kindOf(code)};
  if (measured.kind == Kind::layout) return known = measured;
  measured.width =
      static_cast<float>(code < asciiEnd ? metrics_.horizontalAdvance(QChar(code))
                                         : metrics_.horizontalAdvance(QString(QChar(code))));
  if (measured.kind == Kind::common && !isSameInAllScripts(code, measured.width)) {
    measured.kind = Kind::layout;
  } else if (measured.kind != Kind::wide) {
    pairs_.emplace_back().fill(notMeasured);
    pairs_.back()[nothing] = measured.width;
    measured.index = static_cast<std::uint8_t>(code < asciiEnd ? code : nextIndex_++);
    rows_[measured.index] = static_cast<std::uint8_t>(pairs_.size() - 1);
  }
  return known = measured;
}

QtFace::Kind QtFace::kindOf(char16_t code) const {
  const QChar character(code);
  if (!standsAlone(character)) return Kind::layout;
  const bool hasIndex = code < asciiEnd || nextIndex_ <= lastIndex;
  const auto indexed = [&](Kind kind) { return hasIndex ? kind : Kind::layout; };
  switch (character.script()) {
    case QChar::Script_Common:
      return indexed(Kind::common);
    case QChar::Script_Latin:
      return indexed(Kind::latin);
    case QChar::Script_Greek:
      return indexed(Kind::greek);
    case QChar::Script_Cyrillic:
      return indexed(Kind::cyrillic);
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
      return Kind::wide;
    default:
      return Kind::layout;
  }
}

/// A character that the font lacks is taken from another font, which depends on the script around
/// it.
bool QtFace::isSameInAllScripts(char16_t code, float width) const {
  if (code < 0x80 || QRawFont::fromFont(font).supportsCharacter(QChar(code))) return true;
  for (const QChar letter : QStringView(u"a\u03B1\u0430\u3042\u30A2\u6F22")) {
    const QChar text[] = {letter, QChar(code)};
    const double both = metrics_.horizontalAdvance(QString(text, 2));
    if (both - metrics_.horizontalAdvance(QString(text, 1)) != double{width}) return false;
  }
  return true;
}

float QtFace::pairWidth(const Character& first, char16_t code, const Character& second,
                        char16_t secondCode) {
  float& known = pairs_[rows_[first.index]][second.index];
  if (std::isnan(known)) {
    const QChar pair[] = {QChar(code), QChar(secondCode)};
    known = static_cast<float>(metrics_.horizontalAdvance(QString(pair, 2))) - second.width;
  }
  return known;
}

// ---- glyphs ----

void QtFace::draw(QPainter& painter, QPointF baseline, const QString& piece, const QRect& clip) {
  if (std::exchange(direction_, painter.layoutDirection()) != painter.layoutDirection())
    glyphs_.clear();
  const Glyphs* glyphs = glyphs_.object(piece);
  if (!glyphs) {
    // The cache keeps it, since a piece is never as long as the cache.
    auto* const made = new Glyphs(layOut(piece));
    glyphs_.insert(piece, made, static_cast<int>(piece.size()) + 1);
    glyphs = made;
  }
  // Setting a clip takes about as long as drawing a short text.
  if (!glyphs->runs.isEmpty() && QRectF(clip).contains(glyphs->ink.translated(baseline)))
    painter.setClipping(false);
  else
    painter.setClipRect(clip);
  if (glyphs->runs.isEmpty()) painter.drawText(baseline, piece);
  for (const QGlyphRun& run : glyphs->runs) painter.drawGlyphRun(baseline, run);
}

QtFace::Glyphs QtFace::layOut(const QString& piece) const {
  // A painter places the lines of a font in its own way. It also ignores characters that a layout
  // acts on.
  const bool hasLines = font.underline() || font.strikeOut() || font.overline();
  const auto isControl = [](QChar character) {
    switch (character.category()) {
      case QChar::Other_Control:
      case QChar::Other_Format:
      case QChar::Separator_Line:
      case QChar::Separator_Paragraph:
        return true;
      default:
        return character == QChar(QChar::ObjectReplacementCharacter);
    }
  };
  const bool isLong = piece.size() > longestCached;
  if (isLong || hasLines || std::any_of(piece.begin(), piece.end(), isControl)) return {};

  QTextLayout layout(piece, font, device_);
  QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  option.setTextDirection(direction_);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(widerThanAnyPiece);
  // The glyphs lie on the baseline then.
  line.setPosition({0, -line.ascent()});
  layout.endLayout();
  Glyphs result{line.glyphRuns(), {}};
  for (const QGlyphRun& run : result.runs) {
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i)
      result.ink |= run.rawFont().boundingRect(glyphs[i]).translated(positions[i]);
  }
  // Smooth edges and slanted letters reach beyond the outlines.
  result.ink.adjust(-lineHeight, -2, lineHeight, 2);
  return result;
}

}  // namespace norvane
