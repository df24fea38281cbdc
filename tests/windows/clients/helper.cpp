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
#include <vector>

#include <nvlist/platform/windows/ole.h>

namespace norvane {
namespace {

HMODULE module;
std::wstring reports, boxes, handling = L"takes";

using Arguments = std::vector<OleVariant>;

struct Method {
  const wchar_t* name;
  HRESULT (*run)(const Arguments& given, VARIANT& result);
};

/// An object of a class, and its class object. It lives as long as this DLL.
class Object : public IDispatch, public IClassFactory {
 public:
  const CLSID id;
  const wchar_t* const name;

  Object(const CLSID& itsId, const wchar_t* itsName, std::vector<Method> methods)
      : id(itsId), name(itsName), methods_(std::move(methods)) {}

  STDMETHODIMP QueryInterface(REFIID asked, void** out) override {
    *out = asked == IID_IClassFactory                        ? static_cast<IClassFactory*>(this)
           : asked == IID_IUnknown || asked == IID_IDispatch ? static_cast<IDispatch*>(this)
                                                             : static_cast<void*>(nullptr);
    return *out ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID asked, void** out) override {
    return QueryInterface(asked, out);
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    for (std::size_t i = 0; i < methods_.size(); ++i)
      if (lstrcmpiW(names[0], methods_[i].name) == 0)
        return ids[0] = static_cast<DISPID>(i + 1), S_OK;
    return DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID method, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result,
                      EXCEPINFO*, UINT*) override {
    if (method < 1 || method > static_cast<DISPID>(methods_.size())) return DISP_E_MEMBERNOTFOUND;
    Arguments inOrder(given->cArgs);
    for (UINT i = 0; i < given->cArgs; ++i)
      VariantCopyInd(&inOrder[i], &given->rgvarg[given->cArgs - 1 - i]);
    OleVariant unused;
    return methods_[static_cast<std::size_t>(method - 1)].run(inOrder, result ? *result : unused);
  }

 private:
  const std::vector<Method> methods_;
};

HRESULT answerText(VARIANT& result, const std::wstring& text) {
  result.bstrVal = SysAllocString(text.c_str());
  result.vt = VT_BSTR;
  return S_OK;
}

HRESULT answerObject(VARIANT& result, HRESULT answer, ComPtr<IDispatch>& object) {
  if (FAILED(answer)) return answer;
  result.pdispVal = object.detach();
  result.vt = VT_DISPATCH;
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

std::wstring textOf(HWND window) {
  wchar_t text[1000];
  return {text, static_cast<std::size_t>(GetWindowTextW(window, text, 1000))};
}

void CALLBACK answerBox(HWND, UINT, UINT_PTR timer, DWORD) {
  const HWND box = FindWindowW(L"#32770", nullptr);
  if (!box) return;
  KillTimer(nullptr, timer);
  boxes += textOf(box);
  for (HWND child = nullptr; (child = FindWindowExW(box, child, nullptr, nullptr));)
    boxes += L"|" + textOf(child);
  PostMessageW(box, WM_COMMAND, IDOK, 0);
}

/// Records number, description, module, procedure and the name of the program object.
HRESULT report(const Arguments& given, VARIANT&) {
  if (handling == L"fails") return E_FAIL;
  if (given.size() != 8 || given[1].vt != VT_DISPATCH) return DISP_E_BADPARAMCOUNT;
  OleVariant name;
  DISPPARAMS none{};
  DISPID id = DISPID_UNKNOWN;
  auto* property = const_cast<LPOLESTR>(L"EXEName");
  given[1].pdispVal->GetIDsOfNames(IID_NULL, &property, 1, 0, &id);
  given[1].pdispVal->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &name, nullptr, nullptr);
  reports += std::to_wstring(given[2].lVal) + L" " + given[3].bstrVal + L" in " + given[7].bstrVal +
             L"." + given[4].bstrVal + L" of " + (name.vt == VT_BSTR ? name.bstrVal : L"?") + L"; ";
  return S_OK;
}

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

Object helper{
    {0x14144801, 0x62ca, 0x4e03, {0xad, 0x91, 0x3c, 0x5f, 0x0f, 0x2d, 0xcf, 0x19}},
    L"NvListTest.Helper",
    {{L"Make",
      [](const Arguments& given, VARIANT& result) {
        CLSID id{};
        ComPtr<IDispatch> made;
        CLSIDFromProgID(given[0].bstrVal, &id);
        return answerObject(
            result,
            CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.putVoid()),
            made);
      }},
     {L"Members", [](const Arguments& given,
                     VARIANT& result) { return answerText(result, membersOf(given[0].pdispVal)); }},
     {L"Picture",
      [](const Arguments& given, VARIANT& result) {
        ComPtr<IDispatch> picture;
        return answerObject(
            result,
            OleLoadPicturePath(given[0].bstrVal, nullptr, 0, 0, IID_IDispatch, picture.putVoid()),
            picture);
      }},
     {L"Report", [](const Arguments&,
                    VARIANT& result) { return answerText(result, std::exchange(reports, {})); }},
     {L"Handle",
      [](const Arguments& given, VARIANT&) { return handling = given[0].bstrVal, S_OK; }},
     {L"AnswerBox",
      [](const Arguments&, VARIANT&) { return SetTimer(nullptr, 0, 20, answerBox), S_OK; }},
     {L"Box", [](const Arguments&,
                 VARIANT& result) { return answerText(result, std::exchange(boxes, {})); }},
     {L"CanUnload", [](const Arguments&, VARIANT& result) {
        result.boolVal = canUnload() ? VARIANT_TRUE : VARIANT_FALSE;
        result.vt = VT_BOOL;
        return S_OK;
      }}}};

Object errorHandler{{0x9bbc1525, 0xca71, 0x4680, {0xaa, 0xb6, 0xc0, 0xd2, 0x20, 0x9e, 0x2c, 0x8e}},
                    L"NorvaneErrorHandler.ErrorHandler",
                    {{L"RaiseError", report}}};

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
  if (which == errorHandler.id && handling != L"is missing")
    return errorHandler.QueryInterface(id, out);
  return which == helper.id ? helper.QueryInterface(id, out) : CLASS_E_CLASSNOTAVAILABLE;
}
STDAPI DllCanUnloadNow() { return S_FALSE; }
STDAPI DllRegisterServer() {
  wchar_t path[MAX_PATH], id[40];
  GetModuleFileNameW(module, path, MAX_PATH);
  for (const Object* each : {&helper, &errorHandler}) {
    StringFromGUID2(each->id, id, 40);
    const std::wstring key = std::wstring(L"CLSID\\") + id;
    set(std::wstring(each->name) + L"\\CLSID", nullptr, id);
    set(key + L"\\InprocServer32", nullptr, path);
    set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  }
  return S_OK;
}
}
