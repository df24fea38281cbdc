#pragma once

#include <string>
#include <string_view>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

namespace norvane {

/// A counted reference to a COM object; it may be empty.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(T* object) : object_(object) {
    if (object_) object_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComPtr() { reset(); }
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  void reset() {
    if (T* object = std::exchange(object_, nullptr)) object->Release();
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// For calls that store an object with a reference for the caller.
  T** put() {
    reset();
    return &object_;
  }
  void** putVoid() { return reinterpret_cast<void**>(put()); }
  /// Passes the reference to the caller.
  [[nodiscard]] T* detach() { return std::exchange(object_, nullptr); }
  /// Queries an object, which may be null, for this interface.
  HRESULT query(IUnknown* from) {
    reset();
    return from ? from->QueryInterface(__uuidof(T), putVoid()) : E_NOINTERFACE;
  }

 private:
  T* object_ = nullptr;
};

/// The interface T of an object, or empty if it has none.
template <class T>
ComPtr<T> asked(IUnknown* object) {
  ComPtr<T> result;
  result.query(object);
  return result;
}

/// A VARIANT that clears itself.
struct OleVariant : VARIANT {
  OleVariant() { VariantInit(this); }
  /// A copy with references resolved.
  explicit OleVariant(const VARIANT& other) : OleVariant() {
    VariantCopyInd(this, const_cast<VARIANT*>(&other));
  }
  ~OleVariant() { VariantClear(this); }
  OleVariant(const OleVariant&) = delete;
  OleVariant& operator=(const OleVariant&) = delete;
};

// ---- texts: UTF-16 in COM, UTF-8 in the library ----

inline std::wstring wide(std::string_view text) {
  std::wstring result(text.size(), L'\0');
  result.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                          static_cast<int>(result.size()))));
  return result;
}

inline std::string narrow(std::wstring_view text) {
  std::string result(text.size() * 3, '\0');
  result.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                          static_cast<int>(result.size()), nullptr, nullptr)));
  return result;
}

/// A BSTR may be null, which is the empty text.
inline std::string textOf(BSTR text) {
  return narrow(std::wstring_view(text ? text : L"", SysStringLen(text)));
}

/// Returns null if memory runs out. The caller frees it.
inline BSTR newBstr(std::string_view text) {
  const std::wstring result = wide(text);
  return SysAllocStringLen(result.data(), static_cast<UINT>(result.size()));
}

// ---- lengths: hundredths of a millimetre in COM, pixels in the library ----

/// Pixels per inch of the screen.
inline SIZE screenResolution() {
  const HDC screen = GetDC(nullptr);
  const SIZE result{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
  ReleaseDC(nullptr, screen);
  return result;
}

inline constexpr int himetricPerInch = 2540;

inline SIZE pixelsOf(const SIZEL& size) {
  const SIZE resolution = screenResolution();
  return {MulDiv(size.cx, resolution.cx, himetricPerInch),
          MulDiv(size.cy, resolution.cy, himetricPerInch)};
}
inline SIZEL himetricOf(const SIZE& pixels) {
  const SIZE resolution = screenResolution();
  return {MulDiv(pixels.cx, himetricPerInch, resolution.cx),
          MulDiv(pixels.cy, himetricPerInch, resolution.cy)};
}

}  // namespace norvane
