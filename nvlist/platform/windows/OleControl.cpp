#include <nvlist/platform/windows/OleControl.h>

#include <nvlist/platform/windows/Automation.h>
#include <nvlist/platform/windows/Enumerator.h>
#include <nvlist/platform/windows/OleFont.h>
#include <nvlist/platform/windows/classes.h>

namespace norvane {
namespace {

constexpr SIZE startSize{200, 150};

bool isArrowOrPage(WPARAM key) { return key >= VK_PRIOR && key <= VK_DOWN; }

void dispatch(const MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

OleControl::OleControl(const Identity& identity)
    : identity_(identity),
      events_(*this, identity.events, true),
      changes_(*this, IID_IPropertyNotifySink, false),
      extent_(himetricOf(startSize)) {
  window_.resize(startSize.cx, startSize.cy);
}

OleControl::~OleControl() = default;

ULONG OleControl::release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left == 0) {
    // Objects destroyed with the control may take references again.
    references_ = 1;
    InPlaceDeactivate();
    events_.disconnectAll();
    changes_.disconnectAll();
    site_.reset();
    // Calls from a container or sink during destruction must not destroy it again.
    references_ = 1 << 30;
    const std::shared_ptr<Apartment> apartment = Apartment::current();
    apartment->release(std::shared_ptr<OleControl>(this));
  }
  return static_cast<ULONG>(left);
}

HRESULT OleControl::query(REFIID id, void** out) {
  if (!out) return E_POINTER;
  const auto is = [&](auto... ids) { return ((id == ids) || ...); };
  *out = nullptr;
  if (is(IID_IUnknown, IID_IDispatch, identity_.members))
    *out = members();
  else if (is(IID_IPersistPropertyBag))
    *out = static_cast<IPersistPropertyBag*>(this);
  else if (is(IID_IPersist, IID_IPersistStream, IID_IPersistStreamInit))
    *out = static_cast<IPersistStreamInit*>(this);
  else if (is(IID_IOleObject))
    *out = static_cast<IOleObject*>(this);
  else if (is(IID_IOleControl))
    *out = static_cast<IOleControl*>(this);
  else if (is(IID_IOleWindow, IID_IOleInPlaceObject))
    *out = static_cast<IOleInPlaceObject*>(this);
  else if (is(IID_IOleInPlaceActiveObject))
    *out = static_cast<IOleInPlaceActiveObject*>(this);
  else if (is(IID_IViewObject, IID_IViewObject2))
    *out = static_cast<IViewObject2*>(this);
  else if (is(IID_IDataObject))
    *out = static_cast<IDataObject*>(this);
  else if (is(IID_IQuickActivate))
    *out = static_cast<IQuickActivate*>(this);
  else if (is(IID_IConnectionPointContainer))
    *out = static_cast<IConnectionPointContainer*>(this);
  else if (is(IID_IProvideClassInfo, IID_IProvideClassInfo2))
    *out = static_cast<IProvideClassInfo2*>(this);
  else if (is(IID_ISupportErrorInfo))
    *out = static_cast<ISupportErrorInfo*>(this);
  if (!*out) return E_NOINTERFACE;
  retain();
  return S_OK;
}

// ---- descriptions and connections ----

STDMETHODIMP OleControl::GetClassInfo(ITypeInfo** out) {
  return out ? typeInfoOf(identity_.control, out) : E_POINTER;
}

STDMETHODIMP OleControl::GetGUID(DWORD kind, GUID* out) {
  if (!out) return E_POINTER;
  *out = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *out = identity_.events;
  return S_OK;
}

STDMETHODIMP OleControl::InterfaceSupportsErrorInfo(REFIID id) {
  return id == identity_.members ? S_OK : S_FALSE;
}

STDMETHODIMP OleControl::EnumConnectionPoints(IEnumConnectionPoints** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return guarded([&] {
    *out = new Enumerator<IEnumConnectionPoints, IConnectionPoint*>({&events_, &changes_});
  });
}

STDMETHODIMP OleControl::FindConnectionPoint(REFIID id, IConnectionPoint** out) {
  if (!out) return E_POINTER;
  *out = id == events_.id() || id == IID_IDispatch ? &events_
         : id == changes_.id()                     ? &changes_
                                                   : nullptr;
  if (!*out) return CONNECT_E_NOCONNECTION;
  retain();
  return S_OK;
}

void OleControl::raise(DISPID id, VARIANT* arguments, UINT count) {
  if (frozen_ > 0) return;
  events_.forEach([&](IUnknown* sink) {
    DISPPARAMS given{arguments, nullptr, count, 0};
    static_cast<IDispatch*>(sink)->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                          &given, nullptr, nullptr, nullptr);
  });
}

void OleControl::PropertyChanged(std::string_view name) {
  isDirty_ = true;
  if (changes_.isEmpty()) return;
  const std::wstring text = wide(name);
  auto* published = const_cast<LPOLESTR>(text.c_str());
  DISPID id = DISPID_UNKNOWN;
  membersInfo()->GetIDsOfNames(&published, 1, &id);
  changes_.forEach([&](IUnknown* sink) { static_cast<IPropertyNotifySink*>(sink)->OnChanged(id); });
}

// ---- ambient properties ----

bool OleControl::ambient(DISPID id, VARTYPE type, OleVariant& value) {
  const auto site = asked<IDispatch>(site_.get());
  DISPPARAMS none{};
  return site &&
         SUCCEEDED(site->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                &value, nullptr, nullptr)) &&
         SUCCEEDED(VariantChangeType(&value, &value, 0, type));
}

/// Without an ambient value the control is in user mode.
Boolean OleControl::UserMode() {
  OleVariant value;
  return !ambient(DISPID_AMBIENT_USERMODE, VT_BOOL, value) || value.boolVal != VARIANT_FALSE;
}

norvane::Font OleControl::AmbientFont() {
  OleVariant value;
  return ambient(DISPID_AMBIENT_FONT, VT_DISPATCH, value) ? fontOf(value.pdispVal) : nullptr;
}

std::string OleControl::Name() {
  OleVariant value;
  return ambient(DISPID_AMBIENT_DISPLAYNAME, VT_BSTR, value) ? textOf(value.bstrVal)
                                                             : std::string();
}

STDMETHODIMP OleControl::OnAmbientPropertyChange(DISPID id) {
  struct Ambient {
    DISPID id;
    const char* name;
  };
  constexpr Ambient ambients[] = {{DISPID_AMBIENT_DISPLAYNAME, "DisplayName"},
                                  {DISPID_AMBIENT_FONT, "Font"},
                                  {DISPID_AMBIENT_USERMODE, "UserMode"},
                                  {DISPID_AMBIENT_BACKCOLOR, "BackColor"},
                                  {DISPID_AMBIENT_FORECOLOR, "ForeColor"}};
  return guarded([&] {
    ensureRead();
    for (const Ambient& ambient : ambients)
      if (id == ambient.id || id == DISPID_UNKNOWN) ambientChanged(ambient.name);
  });
}

STDMETHODIMP OleControl::FreezeEvents(BOOL freeze) {
  if (freeze)
    ++frozen_;
  else if (frozen_ > 0)
    --frozen_;
  return S_OK;
}

STDMETHODIMP OleControl::GetControlInfo(CONTROLINFO* out) {
  if (!out || out->cb < sizeof *out) return E_POINTER;
  *out = {sizeof *out, nullptr, 0,
          static_cast<DWORD>(window_.isEditing() ? CTRLINFO_EATS_RETURN : 0)};
  return S_OK;
}

// ---- the object in its container ----

STDMETHODIMP OleControl::SetClientSite(IOleClientSite* site) {
  if (!site) InPlaceDeactivate();
  site_ = site;
  return S_OK;
}

STDMETHODIMP OleControl::GetClientSite(IOleClientSite** out) {
  if (!out) return E_POINTER;
  *out = ComPtr<IOleClientSite>(site_).detach();
  return S_OK;
}

STDMETHODIMP OleControl::Close(DWORD save) {
  if (save != OLECLOSE_NOSAVE && isDirty_ && site_) site_->SaveObject();
  const ComPtr<IOleAdviseHolder> holder = adviseHolder_;
  const HRESULT answer = InPlaceDeactivate();
  if (holder) holder->SendOnClose();
  return answer;
}

STDMETHODIMP OleControl::GetMoniker(DWORD, DWORD, IMoniker** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP OleControl::GetClipboardData(DWORD, IDataObject** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP OleControl::EnumVerbs(IEnumOLEVERB** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return OLEOBJ_E_NOVERBS;
}

STDMETHODIMP OleControl::GetUserType(DWORD, LPOLESTR* out) {
  if (!out) return E_POINTER;
  const std::wstring name = identity_.name;
  *out = static_cast<LPOLESTR>(CoTaskMemAlloc((name.size() + 1) * sizeof(wchar_t)));
  if (!*out) return E_OUTOFMEMORY;
  lstrcpyW(*out, name.c_str());
  return S_OK;
}

STDMETHODIMP OleControl::GetMiscStatus(DWORD aspect, DWORD* out) {
  if (!out) return E_POINTER;
  *out = aspect == DVASPECT_CONTENT ? controlMiscStatus : 0;
  return S_OK;
}

STDMETHODIMP OleControl::Advise(IAdviseSink* sink, DWORD* cookie) {
  if (!adviseHolder_)
    if (const HRESULT answer = CreateOleAdviseHolder(adviseHolder_.put()); FAILED(answer))
      return answer;
  return adviseHolder_->Advise(sink, cookie);
}

STDMETHODIMP OleControl::Unadvise(DWORD cookie) {
  return adviseHolder_ ? adviseHolder_->Unadvise(cookie) : OLE_E_NOCONNECTION;
}

STDMETHODIMP OleControl::EnumAdvise(IEnumSTATDATA** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return adviseHolder_ ? adviseHolder_->EnumAdvise(out) : S_OK;
}

void OleControl::resizeToExtent() {
  const SIZE size = pixelsOf(extent_);
  window_.resize(size.cx, size.cy);
}

/// While in place, only SetObjectRects changes the size.
STDMETHODIMP OleControl::SetExtent(DWORD aspect, SIZEL* size) {
  if (!size) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
  return guarded([&] {
    extent_ = *size;
    isDirty_ = true;
    if (!inPlace_) resizeToExtent();
  });
}

STDMETHODIMP OleControl::GetExtent(DWORD aspect, SIZEL* size) {
  if (!size) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = extent_;
  return S_OK;
}

STDMETHODIMP OleControl::QuickActivate(QACONTAINER* container, QACONTROL* control) {
  if (!container || !control) return E_POINTER;
  if (container->cbSize < sizeof *container || control->cbSize < sizeof *control)
    return E_INVALIDARG;
  const ULONG size = control->cbSize;
  *control = {};
  control->cbSize = size;
  SetClientSite(container->pClientSite);
  if (container->pAdviseSink) SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
  if (container->pUnkEventSink) events_.Advise(container->pUnkEventSink, &control->dwEventCookie);
  if (container->pPropertyNotifySink)
    changes_.Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
  control->dwMiscStatus = controlMiscStatus;
  control->dwViewStatus = VIEWSTATUS_OPAQUE;
  return S_OK;
}

// ---- activation ----

STDMETHODIMP OleControl::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND parent,
                                LPCRECT place) {
  switch (verb) {
    case OLEIVERB_PRIMARY:
    case OLEIVERB_SHOW:
    case OLEIVERB_UIACTIVATE:
      return activate(true, parent, place);
    case OLEIVERB_INPLACEACTIVATE:
      return activate(false, parent, place);
    case OLEIVERB_HIDE:
      return InPlaceDeactivate();
    case OLEIVERB_DISCARDUNDOSTATE:
      return S_OK;
    default:
      return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
  }
}

HRESULT OleControl::activate(bool withFocus, HWND parent, LPCRECT place) {
  if (!site_) return E_UNEXPECTED;
  const ComPtr<IUnknown> held(members());
  if (!inPlace_) {
    const auto site = asked<IOleInPlaceSite>(site_.get());
    if (!site || site->CanInPlaceActivate() != S_OK) return E_FAIL;
    if (const HRESULT answer = site->OnInPlaceActivate(); FAILED(answer)) return answer;
    inPlace_ = site;
    ComPtr<IOleInPlaceFrame> frame;
    ComPtr<IOleInPlaceUIWindow> document;
    RECT position{}, clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    if (HWND window = nullptr; SUCCEEDED(site->GetWindow(&window)) && window) parent = window;
    if ((FAILED(site->GetWindowContext(frame.put(), document.put(), &position, &clip, &info)) ||
         IsRectEmpty(&position)) &&
        place)
      position = *place;
    if (!parent) {
      InPlaceDeactivate();
      return E_FAIL;
    }
    const HRESULT answer = guarded([&] {
      ensureRead();
      window_.place(parent, position);
    });
    if (FAILED(answer)) {
      InPlaceDeactivate();
      return answer;
    }
    if (site_) site_->ShowObject();
  }
  return withFocus ? activateUi() : S_OK;
}

HRESULT OleControl::activateUi() {
  if (!inPlace_) return E_UNEXPECTED;
  if (!isUiActive_) {
    isUiActive_ = true;
    if (const HRESULT answer = inPlace_->OnUIActivate(); FAILED(answer)) {
      isUiActive_ = false;
      return answer;
    }
    setActiveObject(this);
  }
  if (inPlace_ && !window_.hasFocus()) SetFocus(window_.handle());
  return S_OK;
}

void OleControl::setActiveObject(IOleInPlaceActiveObject* object) {
  if (!inPlace_) return;
  ComPtr<IOleInPlaceFrame> frame;
  ComPtr<IOleInPlaceUIWindow> document;
  RECT position{}, clip{};
  OLEINPLACEFRAMEINFO info{};
  info.cb = sizeof info;
  if (FAILED(inPlace_->GetWindowContext(frame.put(), document.put(), &position, &clip, &info)))
    return;
  const wchar_t* const name = object ? identity_.name : nullptr;
  if (frame) frame->SetActiveObject(object, name);
  if (document) document->SetActiveObject(object, name);
}

STDMETHODIMP OleControl::UIDeactivate() {
  if (!isUiActive_) return S_OK;
  isUiActive_ = false;
  setActiveObject(nullptr);
  if (inPlace_) inPlace_->OnUIDeactivate(FALSE);
  return S_OK;
}

STDMETHODIMP OleControl::InPlaceDeactivate() {
  if (!inPlace_) return S_OK;
  UIDeactivate();
  const ComPtr<IOleInPlaceSite> site = std::exchange(inPlace_, {});
  const HRESULT answer = guarded([&] { window_.park(); });
  if (site) site->OnInPlaceDeactivate();
  return answer;
}

STDMETHODIMP OleControl::SetObjectRects(LPCRECT position, LPCRECT clip) {
  if (!position) return E_POINTER;
  if (!inPlace_) return E_UNEXPECTED;
  return guarded([&] {
    window_.reposition(*position);
    RECT visible = *position;
    if (clip) IntersectRect(&visible, position, clip);
    HRGN region = nullptr;  // the whole window
    if (!EqualRect(&visible, position)) {
      OffsetRect(&visible, -position->left, -position->top);
      region = CreateRectRgnIndirect(&visible);
    }
    SetWindowRgn(window_.handle(), region, TRUE);
  });
}

STDMETHODIMP OleControl::GetWindow(HWND* out) {
  if (!out) return E_POINTER;
  *out = inPlace_ ? window_.handle() : nullptr;
  return *out ? S_OK : E_FAIL;
}

void OleControl::focusChanged(bool hasFocus) {
  if (const auto site = asked<IOleControlSite>(site_.get())) site->OnFocus(hasFocus);
  if (hasFocus && inPlace_) activateUi();
}

/// The list uses the arrow and page keys, which a container would use to move to another control.
/// An open edit box takes every key but Tab. The container gets all other keys first.
STDMETHODIMP OleControl::TranslateAccelerator(LPMSG message) {
  if (!message) return E_POINTER;
  const bool isKey = message->message == WM_KEYDOWN || message->message == WM_KEYUP;
  const WPARAM key = message->wParam;
  if (isKey && key != VK_TAB && (isArrowOrPage(key) || window_.isEditing())) {
    dispatch(*message);
    return S_OK;
  }
  DWORD modifiers = 0;
  if (GetKeyState(VK_SHIFT) < 0) modifiers |= 1;
  if (GetKeyState(VK_CONTROL) < 0) modifiers |= 2;
  if (GetKeyState(VK_MENU) < 0) modifiers |= 4;
  const auto site = asked<IOleControlSite>(site_.get());
  return site ? site->TranslateAccelerator(message, modifiers) : S_FALSE;
}

}  // namespace norvane
