#pragma once

#include <cstdio>

#include "Container.h"

namespace norvane {

/// Counts checks and prints each one that fails.
struct Checks {
  int passed = 0, failed = 0;

  void operator()(bool isRight, const char* what) {
    isRight ? ++passed : ++failed;
    if (!isRight) std::printf("FAIL %s\n", what);
    std::fflush(stdout);
  }
  /// Checks that two texts are equal. Prints the first if they differ.
  void same(const std::wstring& got, const std::wstring& expected, const char* what) {
    (*this)(got == expected, what);
    if (got != expected) std::printf("  %ls\n", got.c_str());
  }
};

inline Checks check;

inline void pump(DWORD milliseconds) {
  const DWORD end = GetTickCount() + milliseconds;
  do {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    Sleep(1);
  } while (static_cast<LONG>(end - GetTickCount()) > 0);
}

inline VARIANT number(long value, VARTYPE type = VT_I4) {
  VARIANT result;
  VariantInit(&result);
  result.vt = type;
  result.lVal = value;
  return result;
}

inline void add(::_nvList* list, long text) {
  const VARIANT missing = number(DISP_E_PARAMNOTFOUND, VT_ERROR);
  list->ItemsAdd(number(text), missing, nullptr, nullptr, 0, missing, missing, 0, ::cLeft, missing,
                 missing, VARIANT_TRUE, missing, missing, missing, 0, 0, 0, missing);
}

inline ComPtr<::_nvList> make() {
  ComPtr<::_nvList> result;
  CoCreateInstance(__uuidof(::nvList), nullptr, CLSCTX_INPROC_SERVER, __uuidof(::_nvList),
                   result.putVoid());
  return result;
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
