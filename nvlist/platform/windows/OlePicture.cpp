#include <nvlist/platform/windows/OlePicture.h>

#include <algorithm>

namespace norvane {

OlePicture::OlePicture(ComPtr<IPicture> picture) : picture_(std::move(picture)) {
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
  ComPtr<IPicture> picture;
  // The file is kept with the picture, so that a list file gets the same bytes back.
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
  // The rows of a picture count from its bottom.
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
