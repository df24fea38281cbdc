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
  QtSurfaceTest() { renew(1); }

  void renew(qreal dpr) {
    surface.resize({400, 120}, dpr);
    auto font = makeRef<FontObject>();
    font->Name = "DejaVu Sans";
    font->Size = 9;
    surface.Font(font);
  }

  void draw(std::string_view text, const Rectangle& where,
            TextFormat format = TextFormat::expandTabs, std::int32_t length = -1) {
    surface.DrawTextA(surface.hDC(), text, length, where, format);
  }

  /// The area that a text draws on an empty image.
  QImage drawn(std::string_view text, TextFormat format = TextFormat::expandTabs,
               const Rectangle& where = {0, 0, 400, 120}, std::int32_t length = -1) {
    surface.Cls();
    draw(text, where, format, length);
    return surface.image().copy();
  }

  QRect box(std::string_view text) { return ink(drawn(text)); }
  QRect line(LineMode mode, float x1, float y1, float x2, float y2) {
    surface.Cls();
    surface.Line(mode, x1, y1, x2, y2, red);
    return ink(surface.image());
  }

  int lineHeight() { return static_cast<int>(surface.TextHeight("")); }

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
  line(outlineBox, 20, 10, 3, 4);
  EXPECT_EQ(QPointF(surface.CurrentX(), surface.CurrentY()), QPointF(3, 4));
  surface.Cls();
  surface.PSet(7, 3, red);
  EXPECT_EQ(ink(surface.image()), QRect(7, 3, 1, 1));
}

TEST_F(QtSurfaceTest, edgesStaySharpAtEveryRatio) {
  renew(2);
  EXPECT_EQ(surface.ScaleWidth(), 400);
  EXPECT_EQ(line(LineMode::filledBox, 3, 4, 5, 4), QRect(6, 8, 6, 2));
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
  surface.Line(LineMode::filledBox, 0, 0, 30, 30, 0x123456);
  const QImage before = surface.image().copy();
  for (const Rectangle& where :
       {Rectangle{3, 4, 20, 12}, Rectangle{3, 4, 20, 5}, Rectangle{3, 4, 4, 20},
        Rectangle{lowest, 2, huge, huge}, Rectangle{9, 4, 3, 12}}) {
    surface.DrawFocusRect(surface.hDC(), where);
    surface.DrawFocusRect(surface.hDC(), where);
    EXPECT_EQ(surface.image(), before) << where.Bottom;
  }
}

TEST_F(QtSurfaceTest, measuresWholePixelsAndEveryKindOfLineBreak) {
  const float height = surface.TextHeight("");
  EXPECT_EQ(height, std::nearbyint(height));
  EXPECT_EQ(surface.TextHeight("a\r\nb\nc\rd"), 4 * height);
  EXPECT_EQ(surface.TextHeight("\n"), 2 * height);
  EXPECT_EQ(surface.TextWidth("i\rwide line\r\nn"), surface.TextWidth("wide line"));
  const float plain = surface.TextWidth("wide line");
  surface.FontBold(true);
  EXPECT_GT(surface.TextWidth("wide line"), plain);
}

TEST_F(QtSurfaceTest, measuresAsTheLayoutOfQtDoes) {
  const QImage image(1, 1, QImage::Format_RGB32);
  FontObject font;
  font.Name = "DejaVu Sans";
  font.Size = 9;
  const QFontMetricsF metrics(toQFont(font), &image);
  for (const char* text :
       {"AVATAR To Wave", "office affluent fish", "a\x7F", "Grüße, Łódź – „Tå“, ÄV TÖ",
        "ΓΑ ΤΟ ΑΥ, ᾬχυ", "ГА ТД УЖ, съешь", "Ґ1 Vα Гa", "日本語、テスト。", "「〉漢 AV", "한글 AV",
        "שלום, V", "वि लि", "ệ e\u0301"})
    EXPECT_NEAR(surface.TextWidth(text), metrics.horizontalAdvance(QString(text)), 0.5) << text;
}

/// A layout takes as long as the sum of the characters of fifty texts.
TEST_F(QtSurfaceTest, textsInCommonScriptsNeedNoLayout) {
  QImage image(1, 1, QImage::Format_RGB32);
  FontObject font;
  font.Name = "DejaVu Sans";
  font.Size = 8.25F;
  QtFace face(toQFont(font), &image);
  const QFontMetricsF metrics(toQFont(font), &image);
  for (const char* text : {"item 12", "Größe für Übung", "fiel über", "μέγεθος 1", "размер 1",
                           "項目の12リスト", "„Łódź“ – §5"})
    EXPECT_EQ(face.widthWithoutLayout(text), metrics.horizontalAdvance(QString(text))) << text;
  for (const char* text : {"office", "Griffin für", "한글", "שלום"})
    EXPECT_FALSE(face.widthWithoutLayout(text)) << text;
}

TEST_F(QtSurfaceTest, textsLookAsAPainterDrawsThem) {
  constexpr Rectangle where{3, 5, 400, 120};
  for (const qreal dpr : {1.0, 1.5, 2.0}) {
    renew(dpr);
    for (const char* text :
         {"item 12", "Grüße ", "ab שלום cd", "שלום עולם ", "漢字", "soft\u00ADhyphen"}) {
      surface.Cls();
      QImage expected = surface.image().copy();
      QPainter painter(&expected);
      QFont font("DejaVu Sans");
      font.setPointSizeF(9);
      painter.setFont(font);
      painter.drawText(QPointF(3, 5 + qRound(QFontMetricsF(font, &expected).ascent())), text);
      painter.end();
      // The first time the text is laid out, the second time it is known.
      for (int time = 0; time < 2; ++time)
        EXPECT_EQ(drawn(text, TextFormat::expandTabs, where), expected) << text << " at " << dpr;
    }
  }
}

TEST_F(QtSurfaceTest, anAmpersandUnderlinesAndIsNotShown) {
  const QRect plain = box("nnn");
  const QRect marked = box("n&nn");
  EXPECT_EQ(marked.right(), plain.right());
  EXPECT_GT(marked.bottom(), plain.bottom());
  EXPECT_EQ(drawn("n&\r\nn"), drawn("n\nn"));
  const float wider = surface.TextWidth("&") - surface.TextWidth("n");
  EXPECT_NEAR(box("n&&n").width() - plain.width(), wider, 1);
}

TEST_F(QtSurfaceTest, textsLieInTheirRectangle) {
  EXPECT_GT(box("\tn").left(), box("n").left());
  EXPECT_EQ(ink(drawn("\tn", TextFormat::expandTabs, {37, 0, 400, 120})),
            box("\tn").translated(37, 0));
  EXPECT_EQ(drawn("a\tb", TextFormat::right), drawn("ab", TextFormat::right));

  const Rectangle where{10, 0, 200, 120}, small{50, 10, 60, 18};
  const QRect narrow = ink(drawn("n", TextFormat::right, where));
  EXPECT_NEAR(narrow.right(), 198, 1);
  EXPECT_EQ(ink(drawn("n\nnnnnnn", TextFormat::right, where)).bottomRight(),
            narrow.bottomRight() + QPoint(0, lineHeight()));

  for (const TextFormat format : {TextFormat::expandTabs, TextFormat::right})
    EXPECT_TRUE(QRect(50, 10, 10, 8).contains(ink(drawn("MMMMMMMM\nMMMM", format, small))));
  EXPECT_FALSE(ink(drawn("M", TextFormat::expandTabs, {0, 0, huge, huge})).isEmpty());
  EXPECT_TRUE(ink(drawn("M", TextFormat::right, {lowest, lowest, lowest, lowest})).isEmpty());
  surface.PSet(300, 100, red);
  EXPECT_EQ(ink(surface.image()), QRect(300, 100, 1, 1)) << "later drawing is not clipped";
}

TEST_F(QtSurfaceTest, lengthCountsBytes) {
  const Rectangle where{0, 0, 400, 120};
  EXPECT_EQ(drawn("nnnn", TextFormat::expandTabs, where, 2), drawn("nn"));
  EXPECT_EQ(drawn("nä", TextFormat::expandTabs, where, 2), drawn("n\uFFFD"));
  EXPECT_EQ(drawn("n\xFF"), drawn("n\uFFFD"));
}

TEST_F(QtSurfaceTest, hostileTextsCostLittle) {
  const std::string parts[] = {"x",    "\n", "&", "&a",     "\t",     std::string(1, '\0'),
                               "\xFF", "م",  "😀", "\u0301", "a\u202E"};
  for (const std::string& part : parts) {
    std::string text;
    while (text.size() < 300'000) text += part;
    draw(text, {0, 0, 200, 5000});
    draw(text, {-1'000'000'000, -20, 200, 5000});
    draw(text, {0, 0, 200, 5000}, TextFormat::right);
  }
  surface.TextWidth(std::string(1'000'000, 'x'));
  surface.TextHeight(std::string(1'000'000, '\n'));
  surface.Print(std::string(100'000, '\n'));
}

TEST_F(QtSurfaceTest, systemColoursFollowThePalette) {
  QPalette palette;
  palette.setColor(QPalette::Active, QPalette::Base, QColor(1, 2, 3));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(4, 5, 6));
  surface.setPalette(palette);
  const auto pixelOf = [&](Colour colour) {
    surface.BackColor(colour);
    surface.Cls();
    return surface.image().pixel(0, 0);
  };
  EXPECT_EQ(pixelOf(systemColour(5)), qRgb(1, 2, 3));
  EXPECT_EQ(pixelOf(colours::greyText), qRgb(4, 5, 6));
  EXPECT_EQ(pixelOf(systemColour(255)), qRgb(0, 0, 0));
  EXPECT_EQ(pixelOf(0x7F332211), qRgb(0x11, 0x22, 0x33));
}

TEST_F(QtSurfaceTest, picturesComeFromAnyPlatform) {
  struct Foreign final : PictureObject {
    QByteArray bytes;
    float width() const override { return 3; }
    float height() const override { return 2; }
    std::vector<std::byte> fileBytes() const override {
      const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
      return {first, first + bytes.size()};
    }
  };
  QImage image(3, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  auto foreign = makeRef<Foreign>();
  EXPECT_THROW(surface.PaintPicture(foreign, 0, 0), Failure);
  EXPECT_THROW(surface.PaintPicture(nullptr, 0, 0), Failure);
  QBuffer file(&foreign->bytes);
  image.save(&file, "PNG");
  EXPECT_EQ(QtPicture::fromBytes(foreign->bytes)->fileBytes(), foreign->fileBytes());
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
  renew(1.25);
  EXPECT_EQ(spots({4, 8, 12, 12}, four), QRect(5, 10, 10, 5));
  EXPECT_EQ(surface.image().pixel(5, 10), 0xFF00FF00);
  renew(1);
  EXPECT_EQ(spots({-4, -2, 4, 2}, four), QRect(0, 0, 4, 2));
  EXPECT_EQ(surface.image().pixel(0, 0), redPixel);
  EXPECT_EQ(spots({lowest, lowest, huge, huge}, four), QRect(0, 0, 400, 120));
  EXPECT_EQ(spots({9, 5, 12, 4}, four), QRect());
  // One row is not padded; each of its pixels goes to its own column.
  EXPECT_EQ(spots({1, 0, 4, 50}, {3, 1, {0, 0, 255, 0, 255, 0, 255, 0, 0}}), QRect(1, 0, 3, 50));
  EXPECT_EQ(surface.image().pixel(3, 0), 0xFF0000FF);
  EXPECT_THROW(surface.StretchDIBits(0, {0, 0, 9, 9}, four), Failure);
  EXPECT_THROW(spots({0, 0, 9, 9}, {2, 2, std::vector<std::uint8_t>(15)}), Failure);
}

TEST_F(QtSurfaceTest, whatLooksTheSameIsNotDrawnAgain) {
  const auto drawRows = [&](int rows) {
    surface.Cls();
    surface.FontBold(true);
    for (int i = 0; i < rows; ++i) draw("n", {0, 20 * i, 50, 120});
    surface.FontBold(false);
  };
  const std::pair<const char*, std::function<void()>> changes[] = {
      {"fewer calls", [&] { drawRows(1); }},
      {"another call", [&] { surface.PSet(0, 0, red); }},
      {"more calls before the same ones",
       [&] {
         surface.PSet(0, 0, red);
         surface.image();
         drawRows(2);
       }},
      {"another background",
       [&] {
         surface.BackColor(red);
         drawRows(2);
         surface.BackColor(0xFFFFFF);
       }},
      {"another palette",
       [&] {
         surface.setPalette(QPalette(Qt::red));
         drawRows(2);
       }},
      {"another size",
       [&] {
         surface.resize({200, 120}, 1);
       }},
      {"a size without area", [&] {
         surface.resize({0, 50}, 0), drawRows(2);
       }}};
  for (const auto& [what, change] : changes) {
    drawRows(2);
    const QImage before = surface.image(), copy = before.copy();
    drawRows(2);
    EXPECT_FALSE(surface.isChanged()) << what;
    change();
    EXPECT_TRUE(surface.isChanged()) << what;
    surface.image();
    EXPECT_EQ(before, copy) << "the image that was handed out has changed: " << what;
  }
}

}  // namespace
}  // namespace norvane
