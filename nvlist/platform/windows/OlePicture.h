#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Picture.h>

namespace norvane {

/// A picture of the platform: what a host gives, and what is read from a list file.
class OlePicture final : public PictureObject {
 public:
  /// `file` is what fileBytes() returns; empty: what the picture makes of itself.
  explicit OlePicture(ComPtr<IPicture> picture, std::vector<std::byte> file = {});

  /// A bmp, gif, png, jpg, ico or metafile; empty where the bytes are none of these.
  static Picture fromBytes(std::span<const std::byte> file);
  /// The host's picture, by reference; empty for a null pointer.
  static Picture of(IUnknown* picture);

  std::uintptr_t handle() const override;
  float width() const override { return static_cast<float>(pixels_.cx); }
  float height() const override { return static_cast<float>(pixels_.cy); }
  std::vector<std::byte> fileBytes() const override;

  IPicture* picture() const { return picture_.get(); }
  /// Draws the whole picture into a rectangle of pixels. A bitmap of 32 bits that uses its fourth
  /// channel is blended, with colours multiplied by it already.
  void render(HDC dc, int x, int y, int width, int height) const;

 private:
  ComPtr<IPicture> picture_;
  SIZEL size_{};  ///< in hundredths of a millimetre
  SIZE pixels_{};
  std::vector<std::byte> file_;
  HBITMAP blended_ = nullptr;  ///< the picture's own, if it is to be blended
};

/// The platform's object of a picture, with a reference for the caller; null for an empty one. A
/// picture that was drawn by the library is converted.
IPictureDisp* newPictureDisp(const Picture& picture);

}  // namespace norvane
