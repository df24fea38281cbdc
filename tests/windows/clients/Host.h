#pragma once

#include "Check.h"
#include "Container.h"

namespace norvane {

inline const VARIANT missing = [] {
  VARIANT value;
  VariantInit(&value);
  value.vt = VT_ERROR;
  value.scode = DISP_E_PARAMNOTFOUND;
  return value;
}();

inline VARIANT number(long value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

inline void add(::_nvList* list, long text) {
  list->ItemsAdd(number(text), missing, nullptr, nullptr, 0, missing, missing, 0, ::cLeft, missing,
                 missing, VARIANT_TRUE, missing, missing, missing, 0, 0, 0, missing);
}

template <class T = ::_nvList>
ComPtr<T> make() {
  ComPtr<T> result;
  CoCreateInstance(__uuidof(::nvList), nullptr, CLSCTX_INPROC_SERVER, __uuidof(T),
                   result.putVoid());
  return result;
}

inline bool canUnload() {
  using Ask = HRESULT(WINAPI*)();
  const HMODULE library = GetModuleHandleW(L"nvList.ocx");
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
  return ask && ask() == S_OK;
}

inline DWORD connect(IUnknown* source, REFIID id, IUnknown* sink, ComPtr<IConnectionPoint>& point) {
  DWORD cookie = 0;
  const auto container = asked<IConnectionPointContainer>(source);
  if (SUCCEEDED(container->FindConnectionPoint(id, point.put()))) point->Advise(sink, &cookie);
  return cookie;
}

inline HWND windowOf(::_nvList* list) {
  long handle = 0;
  list->get_hwnd(&handle);
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle));
}

inline long listIndex(::_nvList* list) {
  long result = -2;
  list->get_ListIndex(&result);
  return result;
}

// ---- the tests ----

void activation();
void ambients();
void persistence();
void members();
void drawing();
void connections();
void events();
void badArguments();

}  // namespace norvane
