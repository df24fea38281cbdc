#pragma once

#include <nvlist/platform/windows/failures.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// Counts the objects of the library; the DLL stays loaded while there are any.
class LiveObject {
 public:
  LiveObject() { InterlockedIncrement(&count); }
  ~LiveObject() { InterlockedDecrement(&count); }
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;

  static bool any() { return count != 0; }
  static void lock(bool on) { on ? InterlockedIncrement(&count) : InterlockedDecrement(&count); }

 private:
  static inline LONG count = 0;
};

/// The description of an interface or class in the library's own type library.
HRESULT typeInfoOf(REFGUID id, ITypeInfo** out);

/// Calls a member of an object by its description, as scripts do.
HRESULT invokeMember(ITypeInfo& info, void* object, DISPID id, WORD flags, DISPPARAMS& given,
                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept;

/// IDispatch of a dual interface. Names, arguments, defaults and conversions come from the type
/// library; the calls end in the members of the derived class.
template <class Members>
class Dispatch : public Members {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    *out = ComPtr<ITypeInfo>(info_).detach();
    return S_OK;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    if (!names || !ids) return E_POINTER;
    return info_->GetIDsOfNames(names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrong) override {
    if (!given) return E_POINTER;
    return invokeMember(*info_.get(), static_cast<Members*>(this), id, flags, *given, result,
                        exception, wrong);
  }

 protected:
  /// Throws Failure 440 if the type library cannot be loaded.
  Dispatch() {
    if (FAILED(typeInfoOf(__uuidof(Members), info_.put())))
      throw Failure::automation("no type library");
  }
  ITypeInfo* typeInfo() const { return info_.get(); }

 private:
  LiveObject alive_;
  ComPtr<ITypeInfo> info_;
};

/// A creatable object without a window: its members and what describes them.
template <class Members>
class AutomationObject : public Dispatch<Members>,
                         public IProvideClassInfo,
                         public ISupportErrorInfo {
 public:
  explicit AutomationObject(REFCLSID id) : class_(id) {}
  virtual ~AutomationObject() = default;

  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    if (id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(Members))
      *out = static_cast<Members*>(this);
    else if (id == IID_IProvideClassInfo)
      *out = static_cast<IProvideClassInfo*>(this);
    else if (id == IID_ISupportErrorInfo)
      *out = static_cast<ISupportErrorInfo*>(this);
    else
      *out = nullptr;
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  STDMETHODIMP_(ULONG) Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }
  STDMETHODIMP GetClassInfo(ITypeInfo** out) override {
    return out ? typeInfoOf(class_, out) : E_POINTER;
  }
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override {
    return id == __uuidof(Members) ? S_OK : S_FALSE;
  }

 private:
  const CLSID class_;
  LONG references_ = 0;
};

/// Makes a new object and asks it for an interface. No failure leaves it but as its result.
template <class Made>
HRESULT createObject(REFIID id, void** out) {
  HRESULT answer = E_FAIL;
  const HRESULT made = guarded([&] { answer = ComPtr<Made>(new Made)->QueryInterface(id, out); });
  return FAILED(made) ? made : answer;
}

// The classes that the library registers.
HRESULT createList(REFIID id, void** out);
HRESULT createSpEv(REFIID id, void** out);
HRESULT createError(REFIID id, void** out);
HRESULT createListItem(REFIID id, void** out);

}  // namespace norvane
