// The older list files: the contents of a property bag as an array of bytes.
#include "Host.h"

namespace norvane {
namespace {

using Bytes = std::string;

template <class Number>
Bytes bytesOf(Number number) {
  return {reinterpret_cast<const char*>(&number), sizeof number};
}

Bytes counted(const Bytes& bytes) {
  return bytesOf(static_cast<std::int32_t>(bytes.size())) + bytes;
}

Bytes bytesOfText(BSTR text) {
  char result[100];
  const int size = WideCharToMultiByte(1252, 0, text, static_cast<int>(SysStringLen(text)), result,
                                       sizeof result, nullptr, nullptr);
  return {result, static_cast<std::size_t>(size)};
}

Bytes bytesOfPicture(IDispatch* object) {
  ComPtr<IStream> stream;
  HGLOBAL memory = nullptr;
  LONG size = 0;
  CreateStreamOnHGlobal(nullptr, TRUE, stream.put());
  asked<IPicture>(object)->SaveAsFile(stream.get(), TRUE, &size);
  GetHGlobalFromStream(stream.get(), &memory);
  const Bytes result(static_cast<const char*>(GlobalLock(memory)), static_cast<std::size_t>(size));
  GlobalUnlock(memory);
  return result;
}

/// The contents of a bag as a VARIANT of bytes.
void contentsOf(const Bag& bag, VARIANT& contents) {
  Bytes all = "PBAG";
  for (const auto& [name, value] : bag.values) {
    all += bytesOf(static_cast<std::uint16_t>(name.size())) + Bytes(name.begin(), name.end());
    all += bytesOf(value->vt);
    all += value->vt == VT_BSTR       ? counted(bytesOfText(value->bstrVal))
           : value->vt == VT_DISPATCH ? counted(bytesOfPicture(value->pdispVal))
           : value->vt == VT_I4       ? bytesOf(value->lVal)
                                      : bytesOf(value->iVal);  // also of a Boolean
  }
  contents.vt = VT_ARRAY | VT_UI1;
  contents.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(all.size()));
  std::copy(all.begin(), all.end(), static_cast<char*>(contents.parray->pvData));
}

/// Writes a VARIANT of bytes as the writer of binary files does: type, dimensions, bounds, bytes.
void writeTagged(const wchar_t* path, const VARIANT& contents) {
  const SAFEARRAYBOUND& bound = contents.parray->rgsabound[0];
  const Bytes head = bytesOf(contents.vt) + bytesOf(contents.parray->cDims) +
                     bytesOf(bound.cElements) + bytesOf(bound.lLbound);
  if (std::FILE* const file = _wfopen(path, L"wb")) {
    std::fwrite(head.data(), 1, head.size(), file);
    std::fwrite(contents.parray->pvData, 1, bound.cElements, file);
    std::fclose(file);
  }
}

template <class Value>
Value item(::_nvList* list, long index, HRESULT (__stdcall ::_nvList::*getter)(VARIANT*, Value*)) {
  VARIANT at = number(index);
  Value result{};
  (list->*getter)(&at, &result);
  return result;
}

}  // namespace

void images() {
  // A picture of one red pixel.
  constexpr BYTE bitmap[] = {0x42, 0x4D, 58, 0, 0, 0, 0, 0, 0,  0, 54, 0, 0, 0, 40, 0, 0,   0, 1, 0,
                             0,    0,    1,  0, 0, 0, 1, 0, 24, 0, 0,  0, 0, 0, 4,  0, 0,   0, 0, 0,
                             0,    0,    0,  0, 0, 0, 0, 0, 0,  0, 0,  0, 0, 0, 0,  0, 255, 0};
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof bitmap);
  std::copy(std::begin(bitmap), std::end(bitmap), static_cast<BYTE*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  ComPtr<IStream> stream;
  ComPtr<IDispatch> picture;
  CreateStreamOnHGlobal(memory, TRUE, stream.put());
  OleLoadPicture(stream.get(), sizeof bitmap, FALSE, IID_IDispatch, picture.putVoid());

  Bag bag;
  const auto put = [&](const wchar_t* name, VARTYPE type, auto fill) {
    OleVariant value;
    value.vt = type;
    fill(value);
    bag.Write(name, &value);
  };
  put(L"count", VT_I2, [](VARIANT& v) { v.iVal = 2; });
  put(L"sip", VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_TRUE; });
  put(L"i0Text", VT_BSTR, [](VARIANT& v) { v.bstrVal = SysAllocString(L"\u00fc\u20ac"); });
  put(L"i0Icon", VT_DISPATCH, [&](VARIANT& v) { v.pdispVal = ComPtr(picture).detach(); });
  put(L"i1Text", VT_BSTR, [](VARIANT& v) { v.bstrVal = SysAllocString(L"second"); });
  put(L"i1Checked", VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_TRUE; });
  put(L"i1ForeColor", VT_I4, [](VARIANT& v) { v.lVal = 0x123456; });
  OleVariant contents;
  contentsOf(bag, contents);
  const wchar_t* const path = L"nvlist-bag.nvl";
  writeTagged(path, contents);

  const auto list = make();
  OleVariant name;
  name.vt = VT_BSTR;
  name.bstrVal = SysAllocString(path);
  long count = -2;
  check(list->ListFileItemsCount(name, &count) == S_OK && count == 2, "items in an image");
  check(list->ListInput(&name.bstrVal, VARIANT_TRUE) == S_OK && list->ItemsCount(&count) == S_OK &&
            count == 2,
        "an image is read");
  OleVariant first, second;
  first.vt = second.vt = VT_BSTR;
  first.bstrVal = item(list.get(), 0, &::_nvList::get_ItemText);
  second.bstrVal = item(list.get(), 1, &::_nvList::get_ItemText);
  check(first.bstrVal == std::wstring(L"\u00fc\u20ac") &&
            second.bstrVal == std::wstring(L"second") &&
            !item(list.get(), 0, &::_nvList::get_ItemChecked) &&
            item(list.get(), 1, &::_nvList::get_ItemChecked) &&
            item(list.get(), 1, &::_nvList::get_ItemForeColor) == 0x123456,
        "with texts, check marks and colours");
  ComPtr<IPictureDisp> icon;
  *icon.put() = item(list.get(), 0, &::_nvList::get_ItemIcon);
  check(icon && bytesOfPicture(icon.get()) == Bytes(std::begin(bitmap), std::end(bitmap)) &&
            !item(list.get(), 1, &::_nvList::get_ItemIcon),
        "and the bytes of an icon");
  DeleteFileW(path);
}

}  // namespace norvane
