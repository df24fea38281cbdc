#include <gtest/gtest.h>
#include <nvlist/platform/windows/GdiSurface.h>
#include <nvlist/values/Failure.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>

#include "scenes.h"

namespace norvane {
namespace {

/// The pixels as 0xRRGGBB, row by row from the top.
std::vector<std::uint32_t> pixelsOf(GdiCanvas& canvas) {
  const int width = canvas.width();
  const int height = canvas.height();
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  canvas.copyTo(dc, 0, 0, width, height);
  GdiFlush();
  const auto* values = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> result(values, values + width * height);
  for (std::uint32_t& value : result) value &= 0xFFFFFF;
  SelectObject(dc, before);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return result;
}

/// Whether no channel differs by more than the rounding error of scaling.
bool isSame(std::uint32_t a, std::uint32_t b) {
  for (const int shift : {0, 8, 16})
    if (std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)) > 2)
      return false;
  return true;
}

TEST(Gdi, DrawsTheScenesAsQtDoes) {
  const char* folder = std::getenv("NVLIST_SCENES");
  if (!folder) GTEST_SKIP() << "NVLIST_SCENES names no folder with Qt's pictures";
  int images = 0;
  scenes::forEachImage([&](const scenes::Image& image) {
    ++images;
    GdiCanvas canvas;
    canvas.resize(static_cast<int>(image.surface.ScaleWidth()),
                  static_cast<int>(image.surface.ScaleHeight()));
    image.surface.replay(canvas);
    const std::vector<std::uint32_t> drawn = pixelsOf(canvas);
    std::ifstream file(std::string(folder) + "/" + image.name, std::ios::binary);
    std::vector<std::uint32_t> expected(drawn.size());
    file.read(reinterpret_cast<char*>(expected.data()),
              static_cast<std::streamsize>(expected.size() * sizeof expected[0]));
    ASSERT_TRUE(file && file.peek() == EOF) << image.name;
    const auto [here, onQt] = std::ranges::mismatch(drawn, expected, isSame);
    if (here == drawn.end()) return;
    const auto at = here - drawn.begin();
    ADD_FAILURE() << image.name << " differs at column " << at % canvas.width() << ", row "
                  << at / canvas.width() << ": " << std::hex << *onQt << " on Qt, " << *here
                  << " here";
  });
  EXPECT_GT(images, 50);
}

TEST(Gdi, DrawsItsOwnCallsExactly) {
  GdiCanvas canvas;
  canvas.resize(8, 6);
  const Bitmap24 two{2, 1, {0, 0, 255, 255, 0, 0}};  // red, blue
  canvas.Cls();
  canvas.Line(LineMode::filledBox, 1, 1, 2, 2, rgb(0, 255, 0));
  canvas.Line(LineMode::outlineBox, 7, 5, 4, 3, rgb(1, 2, 3));
  canvas.Line(LineMode::plainLine, 0, 0, 3, 0, 0);
  canvas.PSet(7, 0, rgb(9, 8, 7));
  canvas.StretchDIBits(canvas.hDC(), {3, 1, 7, 2}, two);
  const char* const expected[] = {"###....p",
                                  ".gg"
                                  "rrbb.",
                                  ".gg.....",
                                  "....oooo",
                                  "....o..o",
                                  "....oooo"};
  const std::vector<std::uint32_t> drawn = pixelsOf(canvas);
  const std::map<std::uint32_t, char> names = {{0xFFFFFF, '.'}, {0, '#'},        {0x00FF00, 'g'},
                                               {0x010203, 'o'}, {0x090807, 'p'}, {0xFF0000, 'r'},
                                               {0x0000FF, 'b'}};
  for (int y = 0; y < 6; ++y) {
    std::string row;
    for (int x = 0; x < 8; ++x) row += names.at(drawn[static_cast<std::size_t>(y * 8 + x)]);
    EXPECT_EQ(expected[y], row) << "row " << y;
  }
  EXPECT_EQ(7, canvas.CurrentX());
  EXPECT_THROW(canvas.StretchDIBits(canvas.hDC() + 1, {0, 0, 1, 1}, two), Failure);
  EXPECT_THROW(canvas.PaintPicture(nullptr, 0, 0), Failure);
}

TEST(Gdi, MeasuresTextsAsTheSystemDoes) {
  const HDC dc = CreateCompatibleDC(nullptr);
  for (const bool isBold : {false, true}) {
    FontObject font;
    font.Bold = isBold;
    GdiFace face(dc, font, 96);
    const HGDIOBJ before = SelectObject(dc, face.handle());
    for (const char* text : {"", "i", "AVAVA To", "Item 17 (of 20)", "\u00fcber \u4e2d", "a\tb\tc",
                             "one\r\nlonger line\nx"}) {
      RECT box{};
      const std::wstring shown = wide(text);
      DrawTextW(dc, shown.data(), static_cast<int>(shown.size()), &box,
                DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
      EXPECT_EQ(box.right, face.widthOf(text)) << text << (isBold ? " in bold" : "");
    }
    SelectObject(dc, before);
  }
  DeleteDC(dc);
}

std::vector<std::byte> bytesOf(std::string_view hex) {
  std::vector<std::byte> result;
  for (std::size_t i = 0; i < hex.size(); i += 2)
    result.push_back(static_cast<std::byte>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
  return result;
}

TEST(Gdi, BlendsATransparentPicture) {
  CoInitialize(nullptr);
  // A png of one row: a red pixel, one that is half transparent green, one that is transparent.
  const std::vector<std::byte> file = bytesOf(
      "89504e470d0a1a0a0000000d49484452000000030000000108060000001be014b400000011494441"
      "54789c63f8cfc0f01f081b401400206f047d3d9f67300000000049454e44ae426082");
  const Picture picture = OlePicture::fromBytes(file);
  ASSERT_TRUE(picture);
  EXPECT_EQ(3, picture->width());
  EXPECT_EQ(file, picture->fileBytes());
  // As a script passes it back.
  ComPtr<IPictureDisp> handed;
  *handed.put() = newPictureDisp(picture);
  for (const Picture& shown : {picture, OlePicture::of(handed.get())}) {
    GdiCanvas canvas;
    canvas.resize(3, 1);
    canvas.PaintPicture(shown, 0, 0);
    const std::vector<std::uint32_t> drawn = pixelsOf(canvas);
    EXPECT_EQ(0xFF0000u, drawn[0]);
    EXPECT_NEAR(127, drawn[1] >> 16, 2);
    EXPECT_NEAR(255, drawn[1] >> 8 & 0xFF, 2);
    EXPECT_EQ(0xFFFFFFu, drawn[2]);
  }
  EXPECT_FALSE(OlePicture::fromBytes({file.data(), 20}));
}

/// A metafile of 8 by 8 red pixels: the placeable form of 16 bits, or the enhanced one.
std::vector<std::byte> metafile(bool isEnhanced) {
  const SIZEL size = himetricOf({8, 8});
  const RECT frame{0, 0, size.cx, size.cy};
  const RECT whole{0, 0, 8, 8};
  const HDC dc =
      isEnhanced ? CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr) : CreateMetaFileW(nullptr);
  if (!isEnhanced) SetWindowExtEx(dc, 8, 8, nullptr);
  const HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
  FillRect(dc, &whole, brush);
  DeleteObject(brush);
  std::vector<std::byte> result;
  if (isEnhanced) {
    const HENHMETAFILE file = CloseEnhMetaFile(dc);
    result.resize(GetEnhMetaFileBits(file, 0, nullptr));
    GetEnhMetaFileBits(file, static_cast<UINT>(result.size()),
                       reinterpret_cast<BYTE*>(result.data()));
    DeleteEnhMetaFile(file);
    return result;
  }
  // Signature, bounds, 96 units an inch, checksum.
  result = bytesOf("d7cdc69a000000000000080008006000000000007157");
  const HMETAFILE file = CloseMetaFile(dc);
  const UINT count = GetMetaFileBitsEx(file, 0, nullptr);
  result.resize(22 + count);
  GetMetaFileBitsEx(file, count, result.data() + 22);
  DeleteMetaFile(file);
  return result;
}

TEST(Gdi, ShowsAndKeepsPicturesOfEachFormat) {
  CoInitialize(nullptr);
  const struct {
    const char* name;
    std::vector<std::byte> file;
    int width;
  } cases[] = {
      {"bmp",
       bytesOf("424d3a0000000000000036000000280000000100000001000000010018000000000004000000000000"
               "000000000000000000000000000000ff00"),
       1},
      {"gif",
       bytesOf("47494638396102000100f00000ff000000000021f90400000000002c0000000002000100000202040a"
               "003b"),
       2},
      {"jpg",
       bytesOf("ffd8ffe000104a46494600010100000100010000ffdb00430050373c463c32504641465a55505f78"
               "c882786e6e78f5afb991c8ffffffffffffffffffffffffffffffffffffffffffffffffffffffffff"
               "ffffffffffffffffffffdb004301555a5a786978eb8282ebffffffffffffffffffffffffffffffff"
               "ffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffc0"
               "0011080008000803011100021101031101ffc40014000100000000000000000000000000000003ff"
               "c40014100100000000000000000000000000000000ffc40015010101000000000000000000000000"
               "00000304ffc40014110100000000000000000000000000000000ffda000c03010002110311003f00"
               "21ac7fffd9"),
       8},
      {"ico",
       bytesOf(
           "000001000100020200000100200040000000160000002800000002000000040000000100200000000000"
           "0000000000000000000000000000000000000000"
           "0000ffff0000ffff0000ffff0000ffff0000000000000000"),
       2},
      {"wmf", metafile(false), 8},
      {"emf", metafile(true), 8}};
  for (const auto& [name, file, width] : cases) {
    const Picture picture = OlePicture::fromBytes(file);
    ASSERT_TRUE(picture) << name;
    EXPECT_EQ(width, picture->width()) << name;
    EXPECT_TRUE(file == picture->fileBytes()) << name;
    GdiCanvas canvas;
    canvas.resize(width, 1);
    canvas.PaintPicture(picture, 0, 0);
    const std::uint32_t colour = pixelsOf(canvas)[0];
    EXPECT_NEAR(255, colour >> 16, 10) << name;
    EXPECT_NEAR(0, colour & 0xFFFF, 10 << 8) << name;
  }
}

TEST(Gdi, ASurfaceDrawsWhenItIsPainted) {
  GdiSurface surface;
  surface.resize(4, 4);
  int reports = 0;
  surface.onDrawn = [&] { ++reports; };
  surface.drawWaiting();
  for (int i = 0; i < 100; ++i) {
    surface.Cls();
    surface.Line(LineMode::filledBox, 0, 0, 3, 3, rgb(0, 0, static_cast<std::uint8_t>(i)));
  }
  EXPECT_EQ(1, reports);
  EXPECT_EQ(99u, pixelsOf(surface.image())[0]);
  surface.Cls();
  EXPECT_EQ(2, reports);
}

}  // namespace
}  // namespace norvane
