// A DLL that script clients use, as NvListTest.Helper:
//
//     Make(name)         a new object; CreateObject of Wine keeps its class object
//     Members(object)    the names of its functions and of its properties that hold objects
//     Picture(path)      the picture in a file
//     Report             the reports received since the last call; empty: none
//     Handle kind        the error handler "takes" reports, "fails" or "is missing"
//     AnswerBox          closes the next message box of this thread
//     Box                the texts of the boxes closed since the last call
//     CanUnload          whether nvList.ocx says that it can be unloaded
//
// It also provides NorvaneErrorHandler.ErrorHandler, which receives the reports of the library.
#include <functional>
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

/// An object with these methods.
class Object final : public Counted<IDispatch> {
 public:
  explicit Object(std::vector<std::pair<const wchar_t*, Method>> methods)
      : methods_(std::move(methods)) {}
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
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

/// The members that the walks over properties in members.cpp leave out.
std::wstring membersOf(IDispatch* object) {
  ComPtr<ITypeInfo> info;
  object->GetTypeInfo(0, 0, info.put());
  std::wstring result;
  FUNCDESC* member = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &member)); ++i) {
    const bool isOfDispatch = member->memid >= 0x60000000;
    BSTR name = nullptr;
    info->GetDocumentation(member->memid, &name, nullptr, nullptr, nullptr);
    if (!isOfDispatch &&
        (member->invkind == INVOKE_FUNC || member->invkind == INVOKE_PROPERTYPUTREF))
      result += std::wstring(L";") + name;
    SysFreeString(name);
    info->ReleaseFuncDesc(member);
  }
  return result;
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
       {L"Members",
        [](const Arguments& given, VARIANT* result) {
          return answerText(result, membersOf(given[0]->pdispVal));
        }},
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
  DISPID id = DISPID_UNKNOWN;
  auto* property = const_cast<LPOLESTR>(L"EXEName");
  given[1]->pdispVal->GetIDsOfNames(IID_NULL, &property, 1, 0, &id);
  given[1]->pdispVal->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &name, nullptr, nullptr);
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
