#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Picture.h>

namespace norvane {

/// A picture of the platform, from a host or from a list file.
class OlePicture final : public PictureObject {
 public:
  /// `file` is the result of fileBytes(). If it is empty, the picture saves itself.
  explicit OlePicture(ComPtr<IPicture> picture, std::vector<std::byte> file = {});

  /// Decodes a bmp, gif, png, jpg, ico or metafile. Returns empty for other bytes.
  static Picture fromBytes(std::span<const std::byte> file);
  /// A host's picture, by reference. Returns empty for a null pointer.
  static Picture of(IUnknown* picture);

  std::uintptr_t handle() const override;
  float width() const override { return static_cast<float>(pixels_.cx); }
  float height() const override { return static_cast<float>(pixels_.cy); }
  std::vector<std::byte> fileBytes() const override;

  IPicture* picture() const { return picture_.get(); }
  /// Draws the whole picture into a rectangle of pixels. A 32-bit bitmap with an alpha channel is
  /// blended; its colours must be premultiplied.
  void render(HDC dc, int x, int y, int width, int height) const;

 private:
  ComPtr<IPicture> picture_;
  SIZEL size_{};  ///< in hundredths of a millimetre
  SIZE pixels_{};
  std::vector<std::byte> file_;
  HBITMAP blended_ = nullptr;  ///< the bitmap of the picture, if it has an alpha channel
};

/// The platform's object for a picture, with a reference for the caller; null for an empty one. A
/// picture drawn by the library is converted.
IPictureDisp* newPictureDisp(const Picture& picture);

}  // namespace norvane
