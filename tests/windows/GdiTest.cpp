#include <gtest/gtest.h>
#include <nvlist/platform/windows/GdiSurface.h>
#include <nvlist/values/Failure.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "scenes.h"

namespace norvane {
namespace {

/// The pixels as 0xRRGGBB, row by row from the top.
std::vector<std::uint32_t> pixelsOf(GdiCanvas& canvas) {
  const int width = canvas.width(), height = canvas.height();
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
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
  canvas.resize(8, 4);
  canvas.Cls();
  canvas.Line(LineMode::filledBox, 2, 2, 1, 1, 0);
  canvas.Line(LineMode::outlineBox, 7, 3, 4, 1, 0);
  canvas.Line(LineMode::plainLine, 0, 0, 3, 0, 0);
  EXPECT_EQ(3, canvas.CurrentX());
  std::string drawn;
  for (const std::uint32_t pixel : pixelsOf(canvas)) drawn += pixel == 0 ? '#' : '.';
  EXPECT_EQ(
      "###....."
      ".##.####"
      ".##.#..#"
      "....####",
      drawn);
  const Bitmap24 red{1, 1, {0, 0, 255}};
  EXPECT_THROW(canvas.StretchDIBits(canvas.hDC() + 1, {0, 0, 1, 1}, red), Failure);
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

TEST(Gdi, ShowsAndKeepsPictures) {
  CoInitialize(nullptr);
  const struct {
    const char* name;
    std::vector<std::byte> file;
    std::vector<std::uint32_t> pixels;  ///< of one row
  } cases[] = {
      {"png with transparent and half transparent pixels",
       bytesOf("89504e470d0a1a0a0000000d49484452000000030000000108060000001be014b400000011494441"
               "54789c63f8cfc0f01f081b401400206f047d3d9f67300000000049454e44ae426082"),
       {0xFF0000, 0x7FFF7F, 0xFFFFFF}},
      {"gif",
       bytesOf("47494638396102000100f00000ff000000000021f90400000000002c0000000002000100000202040a"
               "003b"),
       {0xFF0000, 0xFF0000}}};
  for (const auto& [name, file, pixels] : cases) {
    const Picture picture = OlePicture::fromBytes(file);
    ASSERT_TRUE(picture) << name;
    EXPECT_TRUE(file == picture->fileBytes()) << name;
    // As a script passes it back.
    ComPtr<IPictureDisp> handed;
    *handed.put() = newPictureDisp(picture);
    for (const Picture& shown : {picture, OlePicture::of(handed.get())}) {
      EXPECT_EQ(pixels.size(), shown->width()) << name;
      GdiCanvas canvas;
      canvas.resize(static_cast<int>(pixels.size()), 1);
      canvas.PaintPicture(shown, 0, 0);
      EXPECT_TRUE(std::ranges::equal(pixels, pixelsOf(canvas), isSame)) << name;
    }
  }
  EXPECT_FALSE(OlePicture::fromBytes({cases[0].file.data(), 20}));
}

}  // namespace
}  // namespace norvane
