#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <nvlist/platform/windows/ole.h>

#include <initguid.h>  // the GUIDs that follow are defined here

#include "nvListTypes.h"

namespace norvane {

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

/// An object that counts its references and is not destroyed with the last one.
template <class... Interfaces>
class Standing : public Interfaces... {
 public:
  ULONG references = 0;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references + 1; }
  STDMETHODIMP_(ULONG) Release() override { return --references + 1; }

 protected:
  HRESULT handOut(void* object, void** out) {
    *out = object;
    return object ? (AddRef(), S_OK) : E_NOINTERFACE;
  }
};

/// A container in one window, with ambients and counters that a test reads.
class Container final : public Standing<IOleClientSite, IOleInPlaceSite, IOleInPlaceFrame,
                                        IOleControlSite, IDispatch> {
 public:
  HWND frame = CreateWindowExW(0, L"STATIC", L"container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20,
                               360, 260, nullptr, nullptr, nullptr, nullptr);
  RECT place{10, 10, 270, 190};
  bool isRunning = true, refusesActivation = false, takesAccelerators = false;
  std::wstring name = L"List1";
  ComPtr<IFontDisp> font;
  std::map<std::string, int> calls;
  ~Container() { DestroyWindow(frame); }

  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    return handOut(
        id == IID_IUnknown || id == IID_IOleClientSite      ? static_cast<IOleClientSite*>(this)
        : id == IID_IOleInPlaceSite || id == IID_IOleWindow ? static_cast<IOleInPlaceSite*>(this)
        : id == IID_IOleInPlaceFrame || id == IID_IOleInPlaceUIWindow
            ? static_cast<IOleInPlaceFrame*>(this)
        : id == IID_IOleControlSite ? static_cast<IOleControlSite*>(this)
        : id == IID_IDispatch       ? static_cast<void*>(static_cast<IDispatch*>(this))
                                    : nullptr,
        out);
  }
  // IOleClientSite
  STDMETHODIMP SaveObject() override { return ++calls["SaveObject"], S_OK; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return ++calls["ShowObject"], S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
  // IOleInPlaceSite
  STDMETHODIMP GetWindow(HWND* out) override { return *out = frame, S_OK; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return refusesActivation ? S_FALSE : S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return ++calls["OnInPlaceActivate"], S_OK; }
  STDMETHODIMP OnUIActivate() override { return ++calls["OnUIActivate"], S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** out, IOleInPlaceUIWindow** document,
                                RECT* position, RECT* clip, OLEINPLACEFRAMEINFO* info) override {
    *out = this;
    AddRef();
    *document = nullptr;
    *position = *clip = place;
    info->hwndFrame = frame;
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return ++calls["OnUIDeactivate"], S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return ++calls["OnInPlaceDeactivate"], S_OK; }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }
  // IOleInPlaceFrame
  STDMETHODIMP GetBorder(RECT*) override { return E_NOTIMPL; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return E_NOTIMPL; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    return ++calls[object ? "active" : "inactive"], S_OK;
  }
  STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
  STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }
  // IOleControlSite
  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
  STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override {
    return ++calls["TranslateAccelerator"], takesAccelerators ? S_OK : S_FALSE;
  }
  STDMETHODIMP OnFocus(BOOL isIn) override {
    return ++calls[isIn ? "focus in" : "focus out"], S_OK;
  }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
  // IDispatch: the ambients
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    switch (id) {
      case DISPID_AMBIENT_USERMODE:
        result->vt = VT_BOOL;
        result->boolVal = isRunning ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
      case DISPID_AMBIENT_DISPLAYNAME:
        ++calls["DisplayName"];
        result->vt = VT_BSTR;
        result->bstrVal = SysAllocString(name.c_str());
        return S_OK;
      case DISPID_AMBIENT_FONT:
        if (!font) return DISP_E_MEMBERNOTFOUND;
        result->vt = VT_DISPATCH;
        result->pdispVal = ComPtr<IFontDisp>(font).detach();
        return S_OK;
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }
};

/// A sink of the list's events, of changed properties and of changed views.
class Sink final : public Standing<IDispatch, IPropertyNotifySink, IAdviseSink> {
 public:
  std::map<DISPID, int> events, properties;
  int views = 0;
  std::function<void(DISPID, DISPPARAMS&)> onEvent = [](DISPID, DISPPARAMS&) {};

  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    return handOut(id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(::__nvList)
                       ? static_cast<void*>(static_cast<IDispatch*>(this))
                   : id == IID_IPropertyNotifySink ? static_cast<IPropertyNotifySink*>(this)
                   : id == IID_IAdviseSink ? static_cast<void*>(static_cast<IAdviseSink*>(this))
                                           : nullptr,
                   out);
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    ++events[id];
    onEvent(id, *given);
    return S_OK;
  }
  STDMETHODIMP OnChanged(DISPID id) override { return ++properties[id], S_OK; }
  STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }
  STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { ++views; }
  STDMETHODIMP_(void) OnRename(IMoniker*) override {}
  STDMETHODIMP_(void) OnSave() override {}
  STDMETHODIMP_(void) OnClose() override {}
};

class Bag final : public Standing<IPropertyBag> {
 public:
  std::map<std::wstring, std::unique_ptr<OleVariant>> values;
  bool refusesWriting = false;

  STDMETHODIMP QueryInterface(REFIID, void** out) override { return handOut(this, out); }
  STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const auto found = values.find(name);
    if (found == values.end()) return E_INVALIDARG;
    VariantInit(value);
    return VariantCopy(value, found->second.get());
  }
  STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override {
    if (refusesWriting) return STG_E_MEDIUMFULL;
    return VariantCopy((values[name] = std::make_unique<OleVariant>()).get(), value);
  }
};

}  // namespace norvane
