// Drawing without a window: on a bitmap and as data.
#include <vector>

#include "Host.h"

namespace norvane {
namespace {

constexpr SIZE size{200, 150};  // of a new control
constexpr RECT bounds{20, 20, 20 + size.cx, 20 + size.cy};

/// The pixels of what `draw` draws on an area with a margin around the bounds.
template <class Draw>
std::vector<COLORREF> drawn(Draw&& draw) {
  constexpr int width = size.cx + 40, height = size.cy + 40;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC target = CreateCompatibleDC(nullptr);
  const HBITMAP image = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(target, image);
  draw(target);
  GdiFlush();
  const auto* pixels = static_cast<const COLORREF*>(bits);
  std::vector<COLORREF> result(pixels, pixels + width * height);
  SelectObject(target, before);
  DeleteObject(image);
  DeleteDC(target);
  return result;
}

HRESULT drawOn(HDC target, ::_nvList* list, DWORD aspect = DVASPECT_CONTENT,
               const RECTL& place = {bounds.left, bounds.top, bounds.right, bounds.bottom}) {
  return asked<IViewObject2>(list)->Draw(aspect, -1, nullptr, nullptr, nullptr, target, &place,
                                         nullptr, nullptr, 0);
}

void play(HDC target, const STGMEDIUM& medium) {
  if (medium.tymed == TYMED_ENHMF) {
    PlayEnhMetaFile(target, medium.hEnhMetaFile, &bounds);
    return;
  }
  const auto* picture = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
  SetMapMode(target, picture->mm);
  SetViewportOrgEx(target, bounds.left, bounds.top, nullptr);
  SetViewportExtEx(target, size.cx, size.cy, nullptr);
  PlayMetaFile(target, picture->hMF);
  GlobalUnlock(medium.hMetaFilePict);
}

}  // namespace

void drawing() {
  auto list = make();
  for (long i = 0; i < 30; ++i) add(list.get(), i);
  list->put_ListIndex(1);
  HRESULT answer = E_FAIL;
  const auto direct = drawn([&](HDC target) { answer = drawOn(target, list.get()); });
  const auto at = [&](int x, int y) {
    return direct[static_cast<std::size_t>((20 + y) * (size.cx + 40) + 20 + x)];
  };
  check(answer == S_OK && at(100, 145) == 0xFFFFFF && at(100, 24) == 0x316AC5 && at(-1, -1) == 0,
        "drawn without a window");
  const auto halved = drawn([&](HDC target) {
    drawOn(target, list.get(), DVASPECT_CONTENT, {20, 20, 20 + size.cx / 2, 20 + size.cy / 2});
  });
  check(halved[(20 + 12) * (size.cx + 40) + 20 + 50] == 0x316AC5, "drawn at half the size");
  check(drawOn(nullptr, list.get(), DVASPECT_ICON) == DV_E_DVASPECT, "no other aspect");

  const auto data = asked<IDataObject>(list.get());
  ComPtr<IEnumFORMATETC> formats;
  check(data->EnumFormatEtc(DATADIR_GET, formats.put()) == S_OK, "formats");
  FORMATETC format{};
  int count = 0;
  while (formats->Next(1, &format, nullptr) == S_OK) {
    STGMEDIUM medium{};
    check(data->GetData(&format, &medium) == S_OK && medium.tymed == format.tymed &&
              direct == drawn([&](HDC target) { play(target, medium); }),
          count == 0 ? "an enhanced metafile as data" : "a metafile as data");
    ReleaseStgMedium(&medium);
    ++count;
  }
  check(count == 2, "two metafiles");
}

}  // namespace norvane
