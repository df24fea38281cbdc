#pragma once

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// An object of one interface that deletes itself when its last reference is released. It is used
/// on one thread.
template <class Interface>
class ComObject : public Interface {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    *out =
        id == IID_IUnknown || id == __uuidof(Interface) ? static_cast<Interface*>(this) : nullptr;
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  explicit ComObject(ULONG references = 0) : references_(references) {}
  virtual ~ComObject() = default;

 private:
  ULONG references_;
};

}  // namespace norvane
