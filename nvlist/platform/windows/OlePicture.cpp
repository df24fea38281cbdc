#include <nvlist/platform/windows/OlePicture.h>

#include <algorithm>
#include <array>
#include <cstring>

#include <wincodec.h>

namespace norvane {
namespace {

HANDLE handleOf(OLE_HANDLE handle) {
  return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(handle));
}

/// The bitmap of a picture if it has 32 bits per pixel and a fourth channel that is not all zero.
HBITMAP bitmapToBlend(IPicture& picture) {
  SHORT type = PICTYPE_NONE;
  OLE_HANDLE handle = 0;
  DIBSECTION bitmap{};
  if (FAILED(picture.get_Type(&type)) || type != PICTYPE_BITMAP ||
      FAILED(picture.get_Handle(&handle)) ||
      GetObjectW(handleOf(handle), sizeof bitmap, &bitmap) != sizeof bitmap ||
      bitmap.dsBm.bmBitsPixel != 32 || !bitmap.dsBm.bmBits)
    return nullptr;
  GdiFlush();
  const auto* pixels = static_cast<const std::uint32_t*>(bitmap.dsBm.bmBits);
  const auto count = static_cast<std::ptrdiff_t>(bitmap.dsBm.bmWidth) * bitmap.dsBm.bmHeight;
  const bool isUsed =
      std::any_of(pixels, pixels + count, [](std::uint32_t pixel) { return pixel >> 24 != 0; });
  return isUsed ? static_cast<HBITMAP>(handleOf(handle)) : nullptr;
}

bool isPng(std::span<const std::byte> file) {
  constexpr std::array<unsigned char, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  return file.size() > signature.size() &&
         std::memcmp(file.data(), signature.data(), signature.size()) == 0;
}

/// Decodes formats that OLE does not support, such as png. Empty on failure.
ComPtr<IPicture> decoded(IStream* stream) {
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IWICBitmapDecoder> decoder;
  ComPtr<IWICBitmapFrameDecode> frame;
  ComPtr<IWICFormatConverter> converter;
  UINT width = 0;
  UINT height = 0;
  if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IWICImagingFactory, factory.putVoid())) ||
      FAILED(factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand,
                                              decoder.put())) ||
      FAILED(decoder->GetFrame(0, frame.put())) ||
      FAILED(factory->CreateFormatConverter(converter.put())) ||
      FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA,
                                   WICBitmapDitherTypeNone, nullptr, 0,
                                   WICBitmapPaletteTypeCustom)) ||
      FAILED(converter->GetSize(&width, &height)))
    return {};
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = static_cast<LONG>(width);
  info.bmiHeader.biHeight = -static_cast<LONG>(height);
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (!bitmap) return {};
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_BITMAP;
  description.bmp.hbitmap = bitmap;
  ComPtr<IPicture> picture;
  if (FAILED(converter->CopyPixels(nullptr, width * 4, width * height * 4,
                                   static_cast<BYTE*>(pixels))) ||
      FAILED(OleCreatePictureIndirect(&description, IID_IPicture, TRUE, picture.putVoid())))
    DeleteObject(bitmap);
  return picture;
}

}  // namespace

OlePicture::OlePicture(ComPtr<IPicture> picture, std::vector<std::byte> file)
    : picture_(std::move(picture)),
      file_(std::move(file)),
      blended_(bitmapToBlend(*picture_.get())) {
  picture_->get_Width(&size_.cx);
  picture_->get_Height(&size_.cy);
  pixels_ = pixelsOf(size_);
}

Picture OlePicture::fromBytes(std::span<const std::byte> file) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, std::max<std::size_t>(file.size(), 1));
  if (!memory) return nullptr;
  std::copy(file.begin(), file.end(), static_cast<std::byte*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  ComPtr<IStream> stream;
  if (FAILED(CreateStreamOnHGlobal(memory, TRUE, stream.put()))) {
    GlobalFree(memory);
    return nullptr;
  }
  if (isPng(file))
    if (ComPtr<IPicture> picture = decoded(stream.get()))
      return makeRef<OlePicture>(std::move(picture),
                                 std::vector<std::byte>(file.begin(), file.end()));
  ComPtr<IPicture> picture;
  // The file is kept with the picture, so that a list file gets identical bytes.
  OleLoadPicture(stream.get(), static_cast<LONG>(file.size()), FALSE, IID_IPicture,
                 picture.putVoid());
  return picture ? Picture(makeRef<OlePicture>(std::move(picture))) : nullptr;
}

Picture OlePicture::of(IUnknown* picture) {
  ComPtr<IPicture> own = asked<IPicture>(picture);
  return own ? Picture(makeRef<OlePicture>(std::move(own))) : nullptr;
}

std::uintptr_t OlePicture::handle() const {
  SHORT type = PICTYPE_NONE;
  picture_->get_Type(&type);
  if (type == PICTYPE_NONE || type == PICTYPE_UNINITIALIZED) return 0;  // shows nothing
  OLE_HANDLE handle = 0;
  picture_->get_Handle(&handle);
  return handle ? handle : PictureObject::handle();
}

std::vector<std::byte> OlePicture::fileBytes() const {
  if (!file_.empty()) return file_;
  ComPtr<IStream> stream;
  LONG size = 0;
  HGLOBAL memory = nullptr;
  if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.put())) ||
      FAILED(picture_->SaveAsFile(stream.get(), TRUE, &size)) || size < 0 ||
      FAILED(GetHGlobalFromStream(stream.get(), &memory)))
    return {};
  const auto* bytes = static_cast<const std::byte*>(GlobalLock(memory));
  std::vector<std::byte> result(bytes, bytes + size);
  GlobalUnlock(memory);
  return result;
}

void OlePicture::render(HDC dc, int x, int y, int width, int height) const {
  if (blended_) {
    BITMAP size{};
    GetObjectW(blended_, sizeof size, &size);
    const HDC from = CreateCompatibleDC(dc);
    const HGDIOBJ before = SelectObject(from, blended_);
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    AlphaBlend(dc, x, y, width, height, from, 0, 0, size.bmWidth, size.bmHeight, blend);
    SelectObject(from, before);
    DeleteDC(from);
    return;
  }
  // The rows of a picture start at its bottom.
  picture_->Render(dc, x, y, width, height, 0, size_.cy, size_.cx, -size_.cy, nullptr);
}

IPictureDisp* newPictureDisp(const Picture& picture) {
  IPictureDisp* result = nullptr;
  if (!picture) return result;
  const auto* own = dynamic_cast<const OlePicture*>(picture.get());
  Picture converted;
  if (!own) {
    converted = OlePicture::fromBytes(picture->fileBytes());
    own = static_cast<const OlePicture*>(converted.get());
  }
  if (own) own->picture()->QueryInterface(IID_IPictureDisp, reinterpret_cast<void**>(&result));
  return result;
}

}  // namespace norvane
