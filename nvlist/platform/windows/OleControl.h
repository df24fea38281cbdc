#pragma once

#include <nvlist/platform/windows/ConnectionPoint.h>
#include <nvlist/platform/windows/WinWindow.h>
#include <nvlist/values/PropertyBag.h>

namespace norvane {

/// The container's view of a control: everything of an ActiveX control that does not depend on
/// which control it is. A derived class adds the members and the control itself.
///
/// The container decides when the control is shown and when its properties are read. A script does
/// neither: its control stays in a hidden window, and gets its defaults at the first call.
class OleControl : public IPersistPropertyBag,
                   public IPersistStreamInit,
                   public IOleObject,
                   public IOleControl,
                   public IOleInPlaceObject,
                   public IOleInPlaceActiveObject,
                   public IViewObject2,
                   public IDataObject,
                   public IQuickActivate,
                   public IConnectionPointContainer,
                   public IProvideClassInfo2,
                   public ISupportErrorInfo,
                   private WinHost {
 public:
  virtual ~OleControl();

  // ---- IConnectionPointContainer, IProvideClassInfo2, ISupportErrorInfo ----
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** out) override;
  STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** out) override;
  STDMETHODIMP GetClassInfo(ITypeInfo** out) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* out) override;
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override;

  // ---- IPersistPropertyBag, IPersistStreamInit: OlePersistence.cpp ----
  STDMETHODIMP GetClassID(CLSID* out) override;
  STDMETHODIMP InitNew() override;
  STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) override;
  STDMETHODIMP Save(IPropertyBag* bag, BOOL clear, BOOL all) override;
  STDMETHODIMP IsDirty() override { return isDirty_ ? S_OK : S_FALSE; }
  STDMETHODIMP Load(IStream* stream) override;
  STDMETHODIMP Save(IStream* stream, BOOL clear) override;
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;

  // ---- IOleObject ----
  STDMETHODIMP SetClientSite(IOleClientSite* site) override;
  STDMETHODIMP GetClientSite(IOleClientSite** out) override;
  STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP Close(DWORD save) override;
  STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** out) override;
  STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP GetClipboardData(DWORD, IDataObject** out) override;
  STDMETHODIMP DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND parent, LPCRECT place) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** out) override;
  STDMETHODIMP Update() override { return S_OK; }
  STDMETHODIMP IsUpToDate() override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID* out) override { return GetClassID(out); }
  STDMETHODIMP GetUserType(DWORD, LPOLESTR* out) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** out) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* out) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

  // ---- IOleControl ----
  STDMETHODIMP GetControlInfo(CONTROLINFO* out) override;
  STDMETHODIMP OnMnemonic(MSG*) override { return S_OK; }
  STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
  STDMETHODIMP FreezeEvents(BOOL freeze) override;

  // ---- IOleInPlaceObject, IOleInPlaceActiveObject ----
  STDMETHODIMP GetWindow(HWND* out) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }
  STDMETHODIMP TranslateAccelerator(LPMSG message) override;
  STDMETHODIMP OnFrameWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

  // ---- IViewObject2, IDataObject: OleView.cpp ----
  STDMETHODIMP Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC target, LPCRECTL bounds,
                    LPCRECTL, BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) override;
  STDMETHODIMP GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** out) override;
  STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP Unfreeze(DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP SetAdvise(DWORD aspect, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspect, DWORD* flags, IAdviseSink** out) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) override {
    return GetExtent(aspect, size);
  }
  STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override;
  STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  STDMETHODIMP QueryGetData(FORMATETC* format) override;
  STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override;
  STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) override;
  STDMETHODIMP DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* cookie) override;
  STDMETHODIMP DUnadvise(DWORD cookie) override;
  STDMETHODIMP EnumDAdvise(IEnumSTATDATA** out) override;

  // ---- IQuickActivate ----
  STDMETHODIMP QuickActivate(QACONTAINER* container, QACONTROL* control) override;
  STDMETHODIMP SetContentExtent(LPSIZEL size) override { return SetExtent(DVASPECT_CONTENT, size); }
  STDMETHODIMP GetContentExtent(LPSIZEL size) override { return GetExtent(DVASPECT_CONTENT, size); }

 protected:
  struct Identity {
    CLSID control;
    IID members, events;
    const wchar_t* name;
  };
  explicit OleControl(const Identity& identity);

  // The derived class calls these for its IUnknown, which is also that of all interfaces above.
  HRESULT query(REFIID id, void** out);
  ULONG retain() { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
  /// Releasing the last reference destroys the control: immediately, or as soon as none of its code
  /// runs any more.
  ULONG release();

  // ---- what the derived class adds ----
  virtual IDispatch* members() = 0;
  virtual ITypeInfo* membersInfo() = 0;
  virtual void readProperties(const PropertyBag& bag) = 0;
  virtual void writeProperties(PropertyBag& bag) = 0;
  virtual void writeAllProperties(PropertyBag& bag) = 0;
  virtual void ambientChanged(std::string_view name) = 0;

  WinWindow& window() { return window_; }
  /// Sets the defaults if no container has initialised the properties yet.
  void ensureRead() {
    if (!isRead_) InitNew();
  }
  /// Raises an event. `arguments` are in reverse order. Failures of sinks are ignored.
  void raise(DISPID id, VARIANT* arguments, UINT count);

 private:
  class OleBag;

  // WinHost
  void PropertyChanged(std::string_view name) override;
  Boolean UserMode() override;
  norvane::Font AmbientFont() override;
  std::string Name() override;
  void focusChanged(bool hasFocus) override;
  void viewChanged() override;

  bool ambient(DISPID id, VARTYPE type, OleVariant& value);
  HRESULT read(const PropertyBag& bag);
  HRESULT write(IPropertyBag* bag, const PropertyBag& properties);
  HRESULT activate(bool withFocus, HWND parent, LPCRECT place);
  HRESULT activateUi();
  /// The container's windows for frame and document, either of which may be missing.
  void setActiveObject(IOleInPlaceActiveObject* object);
  void resizeToExtent();
  HRESULT drawMetafile(STGMEDIUM& medium);
  HRESULT drawEnhancedMetafile(STGMEDIUM& medium);

  const Identity identity_;
  LONG references_ = 1;
  ConnectionPoint events_, changes_;
  ComPtr<IOleClientSite> site_;
  ComPtr<IOleInPlaceSite> inPlace_;  ///< while the control is shown in its container
  ComPtr<IOleAdviseHolder> adviseHolder_;
  ComPtr<IDataAdviseHolder> dataHolder_;
  ComPtr<IAdviseSink> view_;
  DWORD viewAspect_ = 0, viewFlags_ = 0;
  SIZEL extent_;
  int frozen_ = 0;
  bool isDirty_ = false, isUiActive_ = false, isRead_ = false;
  WinWindow window_{*this};
};

}  // namespace norvane
