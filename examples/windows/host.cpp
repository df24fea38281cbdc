// The control on a window of a C++ program, by the type library alone. The system's ATL library is
// the container. A compiler that has #import needs no nvListTypes.h: #import "nvList.ocx"
// named_guids
#include <windows.h>

#include <ole2.h>
#include <olectl.h>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "nvListTypes.h"

namespace {

_nvList* list;
bool isDone = false;

/// Receives the events of the list. Arguments are in reverse order.
struct Events final : IDispatch {
  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    *out = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(__nvList) ? this : nullptr;
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    constexpr DISPID click = 1;
    if (event != click) return S_OK;
    BSTR text = nullptr;
    list->get_Text(&text);
    std::printf("clicked: %ls\n", text ? text : L"");
    SysFreeString(text);
    isDone = true;
    return S_OK;
  }
} events;

template <class Function>
Function* find(HMODULE library, const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

void add(const wchar_t* text) {
  VARIANT missing{}, given{};
  missing.vt = VT_ERROR;
  missing.scode = DISP_E_PARAMNOTFOUND;
  given.vt = VT_BSTR;
  given.bstrVal = SysAllocString(text);
  list->ItemsAdd(given, missing, nullptr, nullptr, VARIANT_FALSE, missing, missing, VARIANT_FALSE,
                 cLeft, missing, missing, VARIANT_TRUE, missing, missing, missing, VARIANT_FALSE,
                 VARIANT_FALSE, VARIANT_FALSE, missing);
  VariantClear(&given);
}

void pump() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (isDone) return;
  }
}

}  // namespace

int main(int count, char** arguments) {
  OleInitialize(nullptr);
  HMODULE atl = LoadLibraryW(L"atl.dll");
  if (!atl || !find<BOOL WINAPI()>(atl, "AtlAxWinInit")()) return 1;
  const HWND form = CreateWindowExW(0, L"STATIC", L"nvList", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50,
                                    50, 300, 240, nullptr, nullptr, nullptr, nullptr);
  const HWND holder = CreateWindowExW(0, L"AtlAxWin", L"Norvane.nvList", WS_CHILD | WS_VISIBLE, 10,
                                      10, 260, 180, form, nullptr, nullptr, nullptr);
  IUnknown* control = nullptr;
  find<HRESULT WINAPI(HWND, IUnknown**)>(atl, "AtlAxGetControl")(holder, &control);
  if (!control ||
      FAILED(control->QueryInterface(__uuidof(_nvList), reinterpret_cast<void**>(&list))))
    return 1;

  for (const wchar_t* city : {L"Oslo", L"Paris", L"Rome"}) add(city);
  IConnectionPointContainer* container = nullptr;
  IConnectionPoint* point = nullptr;
  DWORD cookie = 0;
  control->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  container->FindConnectionPoint(__uuidof(__nvList), &point);
  point->Advise(&events, &cookie);

  if (count > 1 && std::strcmp(arguments[1], "--test") == 0) {  // clicks the third row
    long window = 0;
    list->get_hwnd(&window);
    const HWND target = reinterpret_cast<HWND>(static_cast<INT_PTR>(window));
    PostMessageW(target, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 38));
    PostMessageW(target, WM_LBUTTONUP, 0, MAKELPARAM(40, 38));
  }
  pump();

  point->Unadvise(cookie);
  point->Release();
  container->Release();
  list->Release();
  control->Release();
  DestroyWindow(form);
  OleUninitialize();
}
