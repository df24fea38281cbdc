#include <nvlist/platform/windows/ErrorReporter.h>

#include <algorithm>
#include <iterator>

#include <nvlist/platform/windows/ComObject.h>

namespace norvane {
namespace {

/// The program as an object, for handlers that query its name and version. It lives as long as it
/// is referenced.
class ProgramObject final : public ComObject<IDispatch> {
 public:
  explicit ProgramObject(const ApplicationFacts& facts) : facts_(facts) {}

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    for (std::size_t i = 0; i < std::size(members); ++i)
      if (lstrcmpiW(names[0], members[i]) == 0) ids[0] = static_cast<DISPID>(i + 1);
    return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if ((flags & DISPATCH_PROPERTYGET) == 0) return DISP_E_MEMBERNOTFOUND;
    if (!result) return S_OK;
    const auto number = [&](std::int32_t value) {
      result->vt = VT_I4;
      result->lVal = value;
      return S_OK;
    };
    const auto text = [&](std::string_view value) {
      result->vt = VT_BSTR;
      result->bstrVal = newBstr(value);
      return result->bstrVal ? S_OK : E_OUTOFMEMORY;
    };
    switch (id) {
      case 1:
        return text(facts_.EXEName);
      case 2:
        return number(facts_.Major);
      case 3:
        return number(facts_.Minor);
      case 4:
        return number(facts_.Revision);
      case 5:
        return text(facts_.Path);
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }

 private:
  static constexpr const wchar_t* members[] = {L"EXEName", L"Major", L"Minor", L"Revision",
                                               L"Path"};

  const ApplicationFacts facts_;
};

}  // namespace

std::shared_ptr<ErrorHandler> ErrorReporter::create() {
  CLSID id;
  ComPtr<IDispatch> object;
  if (FAILED(CLSIDFromProgID(programmaticName, &id)) ||
      FAILED(CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, object.putVoid())))
    return nullptr;
  return std::shared_ptr<ErrorHandler>(new ErrorReporter(object.get()));
}

void ErrorReporter::RaiseError(std::string_view programPath, const ApplicationFacts& application,
                               std::int32_t Number, std::string_view Description,
                               std::string_view Procedure, std::int32_t Line, std::string_view Kind,
                               std::string_view Module) {
  OleVariant program;
  program.vt = VT_DISPATCH;
  program.pdispVal = ComPtr<IDispatch>(new ProgramObject(application)).detach();
  handler_.call(L"RaiseError", {programPath, fromOle(program), Number, Description, Procedure, Line,
                                Kind, Module});
}

}  // namespace norvane
