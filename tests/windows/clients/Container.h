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

/// An object that counts its references and is not destroyed with the last one.
template <class... Interfaces>
class Standing : public Interfaces... {
 public:
  ULONG references = 0;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references + 1; }
  STDMETHODIMP_(ULONG) Release() override { return --references + 1; }
  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    *out = nullptr;
    const auto offer = [&](REFIID offered, IUnknown* as) {
      if (!*out && (id == offered || id == IID_IUnknown)) *out = as;
    };
    (offer(__uuidof(Interfaces), static_cast<Interfaces*>(this)), ...);
    return *out ? (AddRef(), S_OK) : E_NOINTERFACE;
  }
};

/// A container in one window, with its ambient properties.
class Container final : public Standing<IOleClientSite, IOleInPlaceSite, IOleInPlaceFrame,
                                        IOleControlSite, IDispatch> {
 public:
  HWND frame = CreateWindowExW(0, L"STATIC", L"container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20,
                               360, 260, nullptr, nullptr, nullptr, nullptr);
  RECT place{10, 10, 270, 190};
  bool isRunning = true, refusesActivation = false, takesAccelerators = false;
  std::wstring name = L"List1";
  int nameReads = 0;
  ComPtr<IFontDisp> font;
  std::string calls;  ///< those of the control so far
  ~Container() { DestroyWindow(frame); }

  HRESULT activate(::_nvList* list, LONG verb = OLEIVERB_INPLACEACTIVATE) {
    return asked<IOleObject>(list)->DoVerb(verb, nullptr, this, 0, frame, &place);
  }

  // IOleClientSite
  STDMETHODIMP SaveObject() override { return record("save "); }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return record("show "); }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
  // IOleInPlaceSite
  STDMETHODIMP GetWindow(HWND* out) override { return *out = frame, S_OK; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return refusesActivation ? S_FALSE : S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return record("in place "); }
  STDMETHODIMP OnUIActivate() override { return record("UI "); }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** out, IOleInPlaceUIWindow** document,
                                RECT* position, RECT* clip, OLEINPLACEFRAMEINFO*) override {
    AddRef();
    *out = this;
    *document = nullptr;
    *position = *clip = place;
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return record("no UI "); }
  STDMETHODIMP OnInPlaceDeactivate() override { return record("out of place "); }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }
  // IOleInPlaceFrame
  STDMETHODIMP GetBorder(RECT*) override { return E_NOTIMPL; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return E_NOTIMPL; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    return record(object ? "active " : "inactive ");
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
    return record("key "), takesAccelerators ? S_OK : S_FALSE;
  }
  STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }
  // IDispatch: the ambient properties
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if (id == DISPID_AMBIENT_USERMODE) {
      result->vt = VT_BOOL;
      result->boolVal = isRunning ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (id == DISPID_AMBIENT_DISPLAYNAME) {
      ++nameReads;
      result->vt = VT_BSTR;
      result->bstrVal = SysAllocString(name.c_str());
    } else if (id == DISPID_AMBIENT_FONT && font) {
      result->vt = VT_DISPATCH;
      result->pdispVal = ComPtr<IFontDisp>(font).detach();
    } else {
      return DISP_E_MEMBERNOTFOUND;
    }
    return S_OK;
  }

 private:
  HRESULT record(const char* call) { return calls += call, S_OK; }
};

/// A sink of the list's events, of changed properties and of changed views.
class Sink final : public Standing<IDispatch, IPropertyNotifySink, IAdviseSink> {
 public:
  /// The events so far, each with the types and values of its arguments in order: "3 3:1 11:0; ".
  /// An exclamation mark follows an argument by value.
  std::wstring events;
  std::vector<DISPID> properties;
  int views = 0;
  std::function<void(DISPID, DISPPARAMS&)> onEvent = [](DISPID, DISPPARAMS&) {};

  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    events += std::to_wstring(id);
    for (UINT i = given->cArgs; i-- > 0;) {
      const VARIANT& argument = given->rgvarg[i];
      OleVariant text(argument);
      VariantChangeType(&text, &text, 0, VT_BSTR);
      events += L" " + std::to_wstring(argument.vt & ~VT_BYREF) + L":" + text.bstrVal +
                (argument.vt & VT_BYREF ? L"" : L"!");
    }
    events += L"; ";
    onEvent(id, *given);
    return S_OK;
  }
  STDMETHODIMP OnChanged(DISPID id) override { return properties.push_back(id), S_OK; }
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
