// The entry points of the DLL: class objects, unloading, registration.
#include <nvlist/platform/windows/Apartment.h>
#include <nvlist/platform/windows/Automation.h>
#include <nvlist/platform/windows/WinWindow.h>
#include <nvlist/platform/windows/classes.h>

#include <algorithm>
#include <iterator>

#include <initguid.h>

#include "nvListTypes.h"

namespace norvane {
namespace {

const RegisteredClass classes[] = {
    {__uuidof(::nvList), L"nvList", L"nvList control", true, createList},
    {__uuidof(::SpEv), L"SpEv", L"nvList helpers", false, createSpEv},
    {__uuidof(::Error), L"Error", L"nvList failures", false, createError},
    {__uuidof(::ListItem), L"ListItem", L"nvList item", false, createListItem}};

/// Creates objects of one class. There is one per class, and it lives as long as the library.
class Factory final : public IClassFactory {
 public:
  explicit Factory(const RegisteredClass& made) : made_(made) {}

  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    *out = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return LiveObject::lock(true), 2; }
  STDMETHODIMP_(ULONG) Release() override { return LiveObject::lock(false), 1; }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    return outer ? CLASS_E_NOAGGREGATION : made_.create(id, out);
  }
  STDMETHODIMP LockServer(BOOL on) override {
    LiveObject::lock(on != FALSE);
    return S_OK;
  }

 private:
  const RegisteredClass& made_;
};

Factory factories[] = {Factory(classes[0]), Factory(classes[1]), Factory(classes[2]),
                       Factory(classes[3])};
static_assert(std::size(classes) == std::size(factories));

}  // namespace

std::span<const RegisteredClass> registeredClasses() { return classes; }
const GUID& libraryId() { return LIBID_Norvane; }

HRESULT typeInfoOf(REFGUID id, ITypeInfo** out) {
  *out = nullptr;
  ComPtr<ITypeLib> library;  // the system caches it
  wchar_t path[MAX_PATH];
  const DWORD length = GetModuleFileNameW(thisModule(), path, MAX_PATH);
  if (length == 0 || length == MAX_PATH) return TYPE_E_CANTLOADLIBRARY;
  const HRESULT answer = LoadTypeLibEx(path, REGKIND_NONE, library.put());
  return FAILED(answer) ? answer : library->GetTypeInfoOfGuid(id, out);
}

}  // namespace norvane

using namespace norvane;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* isProcessEnding) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  if (reason == DLL_PROCESS_DETACH && !isProcessEnding) {
    WinWindow::unregisterClass();
    Apartment::unregisterClass();
  }
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID which, REFIID id, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  const auto* const found = std::ranges::find(classes, which, &RegisteredClass::id);
  return found == std::end(classes) ? CLASS_E_CLASSNOTAVAILABLE
                                    : factories[found - classes].QueryInterface(id, out);
}

STDAPI DllCanUnloadNow() { return LiveObject::any() ? S_FALSE : S_OK; }
STDAPI DllRegisterServer() { return registerLibrary(Scope::machine); }
STDAPI DllUnregisterServer() { return unregisterLibrary(Scope::machine); }

/// `regsvr32 /n /i:user nvList.ocx`: registers for the current user, without administrator rights.
STDAPI DllInstall(BOOL install, LPCWSTR command) {
  const Scope scope = command && lstrcmpiW(command, L"user") == 0 ? Scope::user : Scope::machine;
  return install ? registerLibrary(scope) : unregisterLibrary(scope);
}
}
