#include <nvlist/platform/windows/ErrorReporter.h>

#include <array>
#include <iterator>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// The program as an object, for handlers that query its name and version. It lives as long as it
/// is referenced.
class ProgramObject final : public IDispatch {
 public:
  explicit ProgramObject(const ApplicationFacts& facts) : facts_(facts) {}

  STDMETHODIMP QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    const bool isKnown = id == IID_IUnknown || id == IID_IDispatch;
    *out = isKnown ? static_cast<IDispatch*>(this) : nullptr;
    if (isKnown) AddRef();
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
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

  ~ProgramObject() = default;

  const ApplicationFacts facts_;
  ULONG references_ = 0;
};

void setText(VARIANT& value, std::string_view text) {
  value.vt = VT_BSTR;
  value.bstrVal = newBstr(text);
}

void setNumber(VARIANT& value, std::int32_t number) {
  value.vt = VT_I4;
  value.lVal = number;
}

}  // namespace

std::shared_ptr<ErrorHandler> ErrorReporter::create() {
  CLSID id;
  ComPtr<IDispatch> object;
  if (FAILED(CLSIDFromProgID(programmaticName, &id)) ||
      FAILED(CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, object.putVoid())))
    return nullptr;
  return std::shared_ptr<ErrorHandler>(new ErrorReporter(std::move(object)));
}

void ErrorReporter::RaiseError(std::string_view programPath, const ApplicationFacts& application,
                               std::int32_t Number, std::string_view Description,
                               std::string_view Procedure, std::int32_t Line, std::string_view Kind,
                               std::string_view Module) {
  const ComPtr<IDispatch> program = new ProgramObject(application);
  // The last argument comes first.
  std::array<OleVariant, 8> arguments;
  setText(arguments[7], programPath);
  arguments[6].vt = VT_DISPATCH;
  arguments[6].pdispVal = ComPtr(program).detach();
  setNumber(arguments[5], Number);
  setText(arguments[4], Description);
  setText(arguments[3], Procedure);
  setNumber(arguments[2], Line);
  setText(arguments[1], Kind);
  setText(arguments[0], Module);

  wchar_t name[] = L"RaiseError";
  LPOLESTR names[] = {name};
  DISPID id = DISPID_UNKNOWN;
  HRESULT answer = object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(answer)) {
    DISPPARAMS given{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    OleVariant result;
    answer = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given, &result,
                             nullptr, nullptr);
  }
  if (FAILED(answer)) throw Failure::automation("RaiseError");
}

}  // namespace norvane
