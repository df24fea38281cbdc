#include <nvlist/platform/qt/drawing/QtSurface.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <cmath>
#include <functional>
#include <limits>
#include <string>

#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/platform/qt/drawing/QtFace.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

constexpr Colour red = 0x0000FF;
constexpr QRgb redPixel = 0xFFFF0000;
constexpr QRgb white = 0xFFFFFFFF;
constexpr int huge = std::numeric_limits<std::int32_t>::max();
constexpr int lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto left = TextFormat::expandTabs;
constexpr auto right = TextFormat::right;
constexpr Rectangle everywhere{0, 0, 400, 120};

/// The smallest rectangle around everything that is not white, in pixels of the image.
QRect ink(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != white) box |= QRect(x, y, 1, 1);
  return box;
}

class QtSurfaceTest : public testing::Test {
 protected:
  QtSurfaceTest() {
    font->Name = "DejaVu Sans";
    renew(1);
  }

  void renew(qreal dpr, float fontSize = 9) {
    surface.resize({400, 120}, dpr);
    font->Size = fontSize;
    surface.Font(font);
  }
  void draw(std::string_view text, TextFormat format, const Rectangle& where, int length = -1) {
    surface.DrawTextA(surface.hDC(), text, length, where, format);
  }
  /// The image of a text alone.
  QImage drawn(std::string_view text, TextFormat format = left, const Rectangle& where = everywhere,
               int length = -1) {
    surface.Cls();
    draw(text, format, where, length);
    return surface.image().copy();
  }
  QRect box(std::string_view text, TextFormat format = left, const Rectangle& where = everywhere) {
    return ink(drawn(text, format, where));
  }
  QRect line(LineMode mode, float x1, float y1, float x2, float y2) {
    surface.Cls();
    surface.Line(mode, x1, y1, x2, y2, red);
    return ink(surface.image());
  }

  const Ref<FontObject> font = makeRef<FontObject>();
  QtSurface surface;
};

TEST_F(QtSurfaceTest, linesAndBoxesCoverTheirPixels) {
  using enum LineMode;
  const QRect none, ten(0, 0, 10, 10);
  const struct {
    const char* name;
    LineMode mode;
    float x1, y1, x2, y2;
    QRect ink;
    QPoint red, white;
  } cases[] = {
      {"a box includes its edges", filledBox, 0, 0, 9, 9, ten, {5, 5}, {10, 10}},
      {"an outline", outlineBox, 20, 10, 3, 4, {3, 4, 18, 7}, {20, 10}, {19, 9}},
      {"a line leaves out its last point", plainLine, 7, 3, 2, 3, {3, 3, 5, 1}, {7, 3}, {2, 3}},
      {"a diagonal", plainLine, 9, 1, 0, 10, {1, 1, 9, 9}, {5, 5}, {0, 10}},
      {"a line without length", plainLine, 5, 5, 5, 5, none, {}, {5, 5}},
      {"halves", filledBox, 0.5F, 1.5F, 2.5F, 3.5F, {0, 2, 3, 3}, {0, 2}, {0, 1}},
      {"out of all bounds", filledBox, -1e30F, 100, 1e30F, 1e30F, {0, 100, 400, 20}, {0, 100}, {}},
      {"an outline outside", outlineBox, -1, -1, 400, 120, none, {}, {0, 0}},
      {"a long line", plainLine, -1e9F, -1e9F, 1e9F, 1e9F, {0, 0, 120, 120}, {9, 9}, {9, 8}}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(line(test.mode, test.x1, test.y1, test.x2, test.y2), test.ink);
    EXPECT_EQ(surface.image().pixel(test.red) == redPixel, !test.ink.isEmpty());
    EXPECT_EQ(surface.image().pixel(test.white), white);
  }
}

TEST_F(QtSurfaceTest, edgesStaySharpAtEveryRatio) {
  renew(1.25);
  for (int y = 0; y < 120; ++y)
    surface.Line(LineMode::filledBox, 0, static_cast<float>(y), 399, static_cast<float>(y), red);
  for (int y = 0; y < 150; ++y) ASSERT_EQ(surface.image().pixel(499, y), redPixel) << y;
}

TEST_F(QtSurfaceTest, theFocusRectIsDottedAndUndoneByASecond) {
  surface.DrawFocusRect(surface.hDC(), {2, 2, 9, 7});
  EXPECT_EQ(ink(surface.image()), QRect(2, 2, 7, 5));
  EXPECT_NE(surface.image().pixel(4, 2), surface.image().pixel(5, 2));
  renew(1.5);
  line(LineMode::filledBox, 0, 0, 30, 30);
  const QImage before = surface.image().copy();
  for (const Rectangle& where :
       {Rectangle{3, 4, 20, 12}, Rectangle{3, 4, 20, 5}, Rectangle{3, 4, 4, 20},
        Rectangle{lowest, 2, huge, huge}, Rectangle{9, 4, 3, 12}}) {
    for (int time = 0; time < 2; ++time) surface.DrawFocusRect(surface.hDC(), where);
    EXPECT_EQ(surface.image(), before) << where.Bottom;
  }
}

/// A layout takes as long as the sum of the characters of fifty texts: common scripts need none.
TEST_F(QtSurfaceTest, measuresAsTheLayoutOfQtDoes) {
  QImage image(1, 1, QImage::Format_RGB32);
  renew(1, 8.25F);
  QtFace face(toQFont(*font), &image);
  const QFontMetricsF metrics(toQFont(*font), &image);
  for (const char* text : {"item 12", "Größe für Übung", "fiel über", "μέγεθος 1", "размер 1",
                           "項目の12リスト", "„Łódź“ – §5"})
    EXPECT_EQ(face.widthWithoutLayout(text), metrics.horizontalAdvance(QString(text))) << text;
  for (const char* text : {"office", "Griffin für", "한글", "שלום"})
    EXPECT_FALSE(face.widthWithoutLayout(text)) << text;
  for (const char* text :
       {"AVATAR To Wave", "office affluent fish", "a\x7F", "Grüße, Łódź – „Tå“, ÄV TÖ",
        "ΓΑ ΤΟ ΑΥ, ᾬχυ", "ГА ТД УЖ, съешь", "Ґ1 Vα Гa", "日本語、テスト。", "「〉漢 AV", "한글 AV",
        "שלום, V", "वि लि", "ệ e\u0301"})
    EXPECT_EQ(surface.TextWidth(text), std::nearbyint(metrics.horizontalAdvance(QString(text))))
        << text;
  EXPECT_EQ(surface.TextWidth("i\rwide line\r\nn"), surface.TextWidth("wide line"));
  EXPECT_EQ(surface.TextHeight("a\r\nb\nc\rd\n"), 5 * surface.TextHeight(""));
}

TEST_F(QtSurfaceTest, textsLookAsAPainterDrawsThem) {
  for (const qreal dpr : {1.0, 1.5, 2.0}) {
    renew(dpr);
    for (const char* text :
         {"item 12", "Grüße ", "ab שלום cd", "שלום עולם ", "漢字", "soft\u00ADhyphen"}) {
      surface.Cls();
      QImage expected = surface.image().copy();
      QPainter painter(&expected);
      painter.setFont(toQFont(*font));
      painter.drawText(QPointF(3, 5 + qRound(QFontMetricsF(painter.font(), &expected).ascent())),
                       text);
      painter.end();
      // The first time the text is laid out, the second time it is known.
      for (int time = 0; time < 2; ++time)
        EXPECT_EQ(drawn(text, left, {3, 5, 400, 120}), expected) << text << " at " << dpr;
    }
  }
}

TEST_F(QtSurfaceTest, ampersandsTabsAndOddBytes) {
  EXPECT_EQ(drawn("n&\r\nn"), drawn("n\nn"));
  EXPECT_EQ(drawn("a\tb", right), drawn("ab", right));
  EXPECT_EQ(drawn("nnnn", left, everywhere, 2), drawn("nn")) << "a length in bytes";
  EXPECT_EQ(drawn("nä", left, everywhere, 2), drawn("n\uFFFD"));
  EXPECT_EQ(drawn("n\xFF"), drawn("n\uFFFD"));
  const QRect plain = box("nnn"), marked = box("n&nn");
  EXPECT_EQ(marked.right(), plain.right());
  EXPECT_GT(marked.bottom(), plain.bottom()) << "underlined";
  const float wider = surface.TextWidth("&") - surface.TextWidth("n");
  EXPECT_NEAR(box("n&&n").width() - plain.width(), wider, 1);
}

TEST_F(QtSurfaceTest, textsLieInTheirRectangle) {
  EXPECT_GT(box("\tn").left(), box("n").left());
  EXPECT_EQ(box("\tn", left, {37, 0, 400, 120}), box("\tn").translated(37, 0));
  const Rectangle where{10, 0, 200, 120}, small{50, 10, 60, 18};
  const QRect narrow = box("n", right, where);
  EXPECT_NEAR(narrow.right(), 198, 1);
  const QPoint nextLine(0, static_cast<int>(surface.TextHeight("")));
  EXPECT_EQ(box("n\nnnnnnn", right, where).bottomRight(), narrow.bottomRight() + nextLine);
  for (const TextFormat format : {left, right})
    EXPECT_TRUE(QRect(50, 10, 10, 8).contains(box("MMMMMMMM\nMMMM", format, small)));
  EXPECT_FALSE(box("M", left, {0, 0, huge, huge}).isEmpty());
  EXPECT_TRUE(box("M", right, {lowest, lowest, lowest, lowest}).isEmpty());
}

TEST_F(QtSurfaceTest, hostileTextsCostLittle) {
  const std::string parts[] = {"x",    "\n", "&", "&a",     "\t",     std::string(1, '\0'),
                               "\xFF", "م",  "😀", "\u0301", "a\u202E"};
  for (const std::string& part : parts) {
    std::string text;
    while (text.size() < 300'000) text += part;
    draw(text, left, {0, 0, 200, 5000});
    draw(text, left, {-1'000'000'000, -20, 200, 5000});
    draw(text, right, {0, 0, 200, 5000});
  }
  surface.TextWidth(std::string(1'000'000, 'x'));
  surface.Print(std::string(100'000, '\n'));
}

TEST_F(QtSurfaceTest, picturesComeFromAnyPlatform) {
  struct Foreign final : PictureObject {
    std::vector<std::byte> bytes;
    float width() const override { return 3; }
    float height() const override { return 2; }
    std::vector<std::byte> fileBytes() const override { return bytes; }
  };
  auto foreign = makeRef<Foreign>();
  for (const Picture& bad : {Picture(foreign), Picture()})
    EXPECT_THROW(surface.PaintPicture(bad, 0, 0), Failure);
  QImage image(3, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  foreign->bytes = QtPicture::fromImage(image)->fileBytes();
  // Halves are rounded to the even pixel.
  surface.PaintPicture(foreign, 7, 6.5);
  EXPECT_EQ(ink(surface.image()), QRect(7, 6, 3, 2));
  surface.PaintPicture(foreign, 7, 5, 30, 10);
  EXPECT_EQ(ink(surface.image()), QRect(7, 5, 30, 10));
}

TEST_F(QtSurfaceTest, bitmapsAreStretchedFromTheBottomUp) {
  const auto spots = [&](const Rectangle& where, const Bitmap24& bitmap) {
    surface.Cls();
    surface.StretchDIBits(surface.hDC(), where, bitmap);
    return ink(surface.image());
  };
  // Black and red below, green and blue above.
  const Bitmap24 four{2, 2, {0, 0, 0, 0, 0, 255, 9, 9, 0, 255, 0, 255, 0, 0, 9, 9}};
  EXPECT_EQ(spots({-4, -2, 4, 2}, four), QRect(0, 0, 4, 2));
  EXPECT_EQ(surface.image().pixel(0, 0), redPixel);
  EXPECT_EQ(spots({lowest, lowest, huge, huge}, four), QRect(0, 0, 400, 120));
  EXPECT_EQ(spots({9, 5, 12, 4}, four), QRect());
  // One row is not padded; each of its pixels goes to its own column.
  EXPECT_EQ(spots({1, 0, 4, 50}, {3, 1, {0, 0, 255, 0, 255, 0, 255, 0, 0}}), QRect(1, 0, 3, 50));
  EXPECT_EQ(surface.image().pixel(3, 0), 0xFF0000FF);
  EXPECT_THROW(spots({0, 0, 9, 9}, {2, 2, std::vector<std::uint8_t>(15)}), Failure);
  renew(1.25);
  EXPECT_EQ(spots({4, 8, 12, 12}, four), QRect(5, 10, 10, 5));
}

TEST_F(QtSurfaceTest, whatLooksTheSameIsNotDrawnAgain) {
  const auto rows = [&](int count) {
    surface.Cls();
    surface.FontBold(true);
    for (int i = 0; i < count; ++i) draw("n", left, {0, 20 * i, 50, 120});
    surface.FontBold(false);
  };
  const auto point = [&] { surface.PSet(0, 0, red); };
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"another call", point},
      {"more calls before the same ones", [&] { point(), surface.image(), rows(2); }},
      {"another background", [&] { surface.BackColor(red), rows(2); }},
      {"another palette", [&] { surface.setPalette(QPalette(Qt::red)), rows(2); }},
      {"another size",
       [&] {
         surface.resize({200, 120}, 1);
       }},
      {"a size without area", [&] {
         surface.resize({0, 50}, 0), rows(2);
       }}};
  for (const auto& [what, change] : changes) {
    SCOPED_TRACE(what);
    rows(2);
    const QImage before = surface.image(), copy = before.copy();
    rows(2);
    EXPECT_FALSE(surface.isChanged());
    change();
    EXPECT_TRUE(surface.isChanged());
    surface.image();
    EXPECT_EQ(before, copy) << "the image that was handed out has changed";
  }
}

}  // namespace
}  // namespace norvane
