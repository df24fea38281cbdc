// A DLL that script clients use, as NvListTest.Helper:
//
//     Make(name)                     a new object; CreateObject of Wine keeps its class object
//     Watch(object)                  an object that passes every call on and remembers it
//     Missed(watched)                the members that were never called, by kind and name
//     Connect source, sink, prefix   routes the source's events to sink.<prefix><event>
//     Disconnect
//     Picture(path)                  the picture in a file
//     Report                         the reports received since the last call; empty: none
//     Handle kind                    the error handler "takes" reports, "fails" or "is missing"
//     AnswerBox                      closes the next message box of this thread
//     Box                            the texts of the boxes closed since the last call
//     CanUnload                      whether nvList.ocx says that it can be unloaded
//
// It also provides NorvaneErrorHandler.ErrorHandler, which receives the reports of the library.
#include <dispex.h>

#include <functional>
#include <map>
#include <set>
#include <vector>

#include <nvlist/platform/windows/ole.h>

namespace norvane {
namespace {

HMODULE module;
LONG alive;
std::wstring reports, boxes;
enum { takes, fails, isMissing } handling = takes;

using Arguments = std::vector<VARIANT*>;  // first to last
using Method = std::function<HRESULT(const Arguments&, VARIANT* result)>;

template <class Interface>
class Counted : public Interface {
 public:
  Counted() { InterlockedIncrement(&alive); }
  virtual ~Counted() { InterlockedDecrement(&alive); }
  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    *out = id == IID_IUnknown || id == __uuidof(Interface) ? this : nullptr;
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

 private:
  ULONG references_ = 0;
};

class Dispatcher : public Counted<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
};

DISPID idOf(IDispatch* object, const std::wstring& name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<LPOLESTR>(name.c_str());
  if (SUCCEEDED(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id))) return id;
  if (const auto byName = asked<IDispatchEx>(object)) {
    const BSTR copy = SysAllocString(text);
    if (FAILED(byName->GetDispID(copy, fdexNameCaseInsensitive, &id))) id = DISPID_UNKNOWN;
    SysFreeString(copy);
  }
  return id;
}

class Object final : public Dispatcher {
 public:
  explicit Object(std::vector<std::pair<const wchar_t*, Method>> methods)
      : methods_(std::move(methods)) {}
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    for (std::size_t i = 0; i < methods_.size(); ++i)
      if (lstrcmpiW(names[0], methods_[i].first) == 0)
        return ids[0] = static_cast<DISPID>(i + 1), S_OK;
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if (id < 1 || id > static_cast<DISPID>(methods_.size())) return DISP_E_MEMBERNOTFOUND;
    std::vector<OleVariant> values(given->cArgs);
    Arguments arguments;
    for (UINT i = given->cArgs; i-- > 0;) {
      VariantCopyInd(&values[i], &given->rgvarg[i]);
      arguments.push_back(&values[i]);
    }
    return methods_[static_cast<std::size_t>(id - 1)].second(arguments, result);
  }

 private:
  std::vector<std::pair<const wchar_t*, Method>> methods_;
};

// ---- Watch ----

using Member = std::pair<MEMBERID, INVOKEKIND>;

class Watched final : public Dispatcher {
 public:
  explicit Watched(IDispatch* object) : object_(object) {}
  IDispatch* object() const { return object_.get(); }
  STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) override {
    return object_->GetIDsOfNames(id, names, count, locale, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* given,
                      VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
    for (const int kind :
         {INVOKE_FUNC, INVOKE_PROPERTYGET, INVOKE_PROPERTYPUT, INVOKE_PROPERTYPUTREF})
      if (flags & kind) called_.insert({member, static_cast<INVOKEKIND>(kind)});
    return object_->Invoke(member, id, locale, flags, given, result, exception, wrong);
  }
  std::wstring missed() const {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    object_->GetTypeInfo(0, 0, info.put());
    info->GetTypeAttr(&attributes);
    std::wstring result;
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
      FUNCDESC* function = nullptr;
      BSTR name = nullptr;
      UINT count = 0;
      info->GetFuncDesc(i, &function);
      info->GetNames(function->memid, &name, 1, &count);
      const bool isOfDispatch = function->memid >= 0x60000000;
      if (!isOfDispatch && !called_.contains({function->memid, function->invkind}))
        result += std::to_wstring(function->invkind) + L" " + name + L"; ";
      SysFreeString(name);
      info->ReleaseFuncDesc(function);
    }
    info->ReleaseTypeAttr(attributes);
    return result;
  }

 private:
  ComPtr<IDispatch> object_;
  std::set<Member> called_;
};

Watched* watchedIn(const VARIANT& value) {
  return value.vt == VT_DISPATCH ? dynamic_cast<Watched*>(value.pdispVal) : nullptr;
}
IDispatch* objectIn(const VARIANT& value) {
  Watched* const watched = watchedIn(value);
  return watched ? watched->object() : value.vt == VT_DISPATCH ? value.pdispVal : nullptr;
}

// ---- Connect ----

/// Passes events to a script, which accepts arguments by reference only as VARIANTs. What the
/// script writes into them is copied back.
class Router final : public Dispatcher {
 public:
  Router(IDispatch* target, std::map<DISPID, std::wstring> names)
      : target_(target), names_(std::move(names)) {}
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID locale, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    const auto found = names_.find(id);
    const DISPID to = found == names_.end() ? DISPID_UNKNOWN : idOf(target_.get(), found->second);
    if (to == DISPID_UNKNOWN) return S_OK;  // the script has no such handler
    std::vector<OleVariant> lent(given->cArgs);
    std::vector<VARIANT> arguments(given->rgvarg, given->rgvarg + given->cArgs);
    for (UINT i = 0; i < given->cArgs; ++i)
      if (arguments[i].vt != (VT_BYREF | VT_VARIANT)) {
        VariantCopyInd(&lent[i], &given->rgvarg[i]);
        arguments[i].vt = VT_BYREF | VT_VARIANT;
        arguments[i].pvarVal = &lent[i];
      }
    DISPPARAMS passed{arguments.data(), nullptr, given->cArgs, 0};
    const ComPtr<IDispatch> target = target_;
    const HRESULT answer =
        target->Invoke(to, IID_NULL, locale, DISPATCH_METHOD, &passed, nullptr, nullptr, nullptr);
    for (UINT i = 0; i < given->cArgs; ++i) {
      VARIANT& argument = given->rgvarg[i];
      const auto type = static_cast<VARTYPE>(argument.vt & ~VT_BYREF);
      if (arguments[i].pvarVal != &lent[i] ||
          FAILED(VariantChangeType(&lent[i], &lent[i], 0, type)))
        continue;
      if (type == VT_BOOL || type == VT_I2) *argument.piVal = lent[i].iVal;
      if (type == VT_I4 || type == VT_R4) *argument.plVal = lent[i].lVal;
    }
    return answer;
  }

 private:
  ComPtr<IDispatch> target_;
  std::map<DISPID, std::wstring> names_;
};

ComPtr<IConnectionPoint> point;
DWORD cookie;

HRESULT connect(IDispatch* source, IDispatch* target, const std::wstring& prefix) {
  const auto described = asked<IProvideClassInfo2>(source);
  const auto container = asked<IConnectionPointContainer>(source);
  GUID events{};
  ComPtr<ITypeInfo> info, control;
  ComPtr<ITypeLib> library;
  UINT index = 0;
  if (!described || !container ||
      FAILED(described->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)) ||
      FAILED(described->GetClassInfo(control.put())) ||
      FAILED(control->GetContainingTypeLib(library.put(), &index)) ||
      FAILED(library->GetTypeInfoOfGuid(events, info.put())))
    return E_FAIL;
  std::map<DISPID, std::wstring> names;
  FUNCDESC* function = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
    BSTR name = nullptr;
    UINT count = 0;
    info->GetNames(function->memid, &name, 1, &count);
    if (name) names[function->memid] = prefix + name;
    SysFreeString(name);
    info->ReleaseFuncDesc(function);
  }
  const ComPtr<IDispatch> router(new Router(target, std::move(names)));
  const HRESULT answer = container->FindConnectionPoint(events, point.put());
  return FAILED(answer) ? answer : point->Advise(router.get(), &cookie);
}

HRESULT disconnect() {
  if (point) point->Unadvise(cookie);
  point.reset();
  return S_OK;
}

// ---- the two objects ----

HRESULT answerText(VARIANT* result, const std::wstring& text) {
  if (result) {
    result->bstrVal = SysAllocString(text.c_str());
    result->vt = VT_BSTR;
  }
  return S_OK;
}

HRESULT answerObject(VARIANT* result, IDispatch* object) {
  if (result) {
    result->pdispVal = ComPtr<IDispatch>(object).detach();
    result->vt = VT_DISPATCH;
  }
  return S_OK;
}

bool canUnload() {
  const HMODULE library = GetModuleHandleW(L"nvList.ocx");
  if (!library) return true;
  using Ask = HRESULT(WINAPI*)();
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
  return ask() == S_OK;
}

// ---- message boxes ----

std::wstring textOf(HWND window) {
  wchar_t text[1000];
  return {text, static_cast<std::size_t>(GetWindowTextW(window, text, 1000))};
}

BOOL CALLBACK addText(HWND child, LPARAM) {
  boxes += L"|" + textOf(child);
  return TRUE;
}

BOOL CALLBACK answerIfBox(HWND window, LPARAM timer) {
  wchar_t name[20];
  GetClassNameW(window, name, 20);
  if (lstrcmpW(name, L"#32770") != 0) return TRUE;
  KillTimer(nullptr, static_cast<UINT_PTR>(timer));
  boxes += textOf(window);
  EnumChildWindows(window, addText, 0);
  PostMessageW(window, WM_COMMAND, IDOK, 0);
  return FALSE;
}

void CALLBACK answerBox(HWND, UINT, UINT_PTR timer, DWORD) {
  EnumThreadWindows(GetCurrentThreadId(), answerIfBox, static_cast<LPARAM>(timer));
}

ComPtr<IDispatch> newHelper() {
  return new Object(
      {{L"Make",
        [](const Arguments& given, VARIANT* result) {
          CLSID id{};
          ComPtr<IDispatch> made;
          CLSIDFromProgID(given[0]->bstrVal, &id);
          const HRESULT answer =
              CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.putVoid());
          return FAILED(answer) ? answer : answerObject(result, made.get());
        }},
       {L"Watch",
        [](const Arguments& given, VARIANT* result) {
          return answerObject(result, ComPtr<IDispatch>(new Watched(objectIn(*given[0]))).get());
        }},
       {L"Missed",
        [](const Arguments& given, VARIANT* result) {
          return answerText(result, watchedIn(*given[0])->missed());
        }},
       {L"Connect",
        [](const Arguments& given, VARIANT*) {
          return connect(objectIn(*given[0]), given[1]->pdispVal, given[2]->bstrVal);
        }},
       {L"Disconnect", [](const Arguments&, VARIANT*) { return disconnect(); }},
       {L"Picture",
        [](const Arguments& given, VARIANT* result) {
          ComPtr<IDispatch> picture;
          const HRESULT answer = OleLoadPicturePath(given[0]->bstrVal, nullptr, 0, 0, IID_IDispatch,
                                                    picture.putVoid());
          return FAILED(answer) ? answer : answerObject(result, picture.get());
        }},
       {L"Report", [](const Arguments&,
                      VARIANT* result) { return answerText(result, std::exchange(reports, {})); }},
       {L"Handle",
        [](const Arguments& given, VARIANT*) {
          const std::wstring kind = given[0]->bstrVal;
          handling = kind == L"fails" ? fails : kind == L"is missing" ? isMissing : takes;
          return S_OK;
        }},
       {L"AnswerBox",
        [](const Arguments&, VARIANT*) { return SetTimer(nullptr, 0, 20, answerBox), S_OK; }},
       {L"Box", [](const Arguments&,
                   VARIANT* result) { return answerText(result, std::exchange(boxes, {})); }},
       {L"CanUnload", [](const Arguments&, VARIANT* result) {
          result->boolVal = canUnload() ? VARIANT_TRUE : VARIANT_FALSE;
          result->vt = VT_BOOL;
          return S_OK;
        }}});
}

/// Records number, description, module, procedure and the name of the program object.
HRESULT report(const Arguments& given, VARIANT*) {
  if (handling == fails) return E_FAIL;
  if (given.size() != 8 || given[1]->vt != VT_DISPATCH) return DISP_E_BADPARAMCOUNT;
  OleVariant name;
  DISPPARAMS none{};
  given[1]->pdispVal->Invoke(idOf(given[1]->pdispVal, L"EXEName"), IID_NULL, 0,
                             DISPATCH_PROPERTYGET, &none, &name, nullptr, nullptr);
  reports += std::to_wstring(given[2]->lVal) + L" " + given[3]->bstrVal + L" in " +
             given[7]->bstrVal + L"." + given[4]->bstrVal + L" of " +
             (name.vt == VT_BSTR ? name.bstrVal : L"?") + L"; ";
  return S_OK;
}

ComPtr<IDispatch> newErrorHandler() {
  if (handling == isMissing) return {};
  return new Object({{L"RaiseError", report}});
}

struct Class {
  CLSID id;
  const wchar_t* name;
  ComPtr<IDispatch> (*make)();
};
const Class classes[] = {
    {{0x14144801, 0x62ca, 0x4e03, {0xad, 0x91, 0x3c, 0x5f, 0x0f, 0x2d, 0xcf, 0x19}},
     L"NvListTest.Helper",
     newHelper},
    {{0x9bbc1525, 0xca71, 0x4680, {0xaa, 0xb6, 0xc0, 0xd2, 0x20, 0x9e, 0x2c, 0x8e}},
     L"NorvaneErrorHandler.ErrorHandler",
     newErrorHandler}};

class Factory final : public Counted<IClassFactory> {
 public:
  explicit Factory(const Class& made) : made_(made) {}
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** out) override {
    const ComPtr<IDispatch> object = made_.make();
    return object ? object->QueryInterface(id, out) : E_FAIL;
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }

 private:
  const Class& made_;
};

void set(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), name, REG_SZ,
                  value.c_str(), static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

}  // namespace
}  // namespace norvane

using namespace norvane;

extern "C" {
BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) module = self;
  return TRUE;
}
STDAPI DllGetClassObject(REFCLSID which, REFIID id, void** out) {
  for (const Class& each : classes)
    if (each.id == which) return ComPtr<IClassFactory>(new Factory(each))->QueryInterface(id, out);
  return CLASS_E_CLASSNOTAVAILABLE;
}
STDAPI DllCanUnloadNow() { return S_FALSE; }
STDAPI DllRegisterServer() {
  wchar_t path[MAX_PATH], id[40];
  GetModuleFileNameW(module, path, MAX_PATH);
  for (const Class& each : classes) {
    StringFromGUID2(each.id, id, 40);
    const std::wstring key = std::wstring(L"CLSID\\") + id;
    set(std::wstring(each.name) + L"\\CLSID", nullptr, id);
    set(key + L"\\InprocServer32", nullptr, path);
    set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  }
  return S_OK;
}
}
