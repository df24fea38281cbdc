#include <nvlist/platform/windows/LateBound.h>

#include <dispex.h>

#include <cstdio>

namespace norvane {
namespace {

/// The maximum depth of default members.
constexpr int deepestDefault = 8;

constexpr WORD reading = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

/// The failure that a failing member describes.
Failure failureOf(HRESULT answer, EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
  const std::string description = textOf(exception.bstrDescription);
  const HRESULT code = exception.scode ? exception.scode : answer;
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  if (answer == DISP_E_MEMBERNOTFOUND || answer == DISP_E_UNKNOWNNAME)
    return Failure::noSuchMember();
  if (answer == DISP_E_TYPEMISMATCH) return Failure::typeMismatch();
  const std::int32_t number = exception.wCode                              ? exception.wCode
                              : HRESULT_FACILITY(code) == FACILITY_CONTROL ? HRESULT_CODE(code)
                                                                           : 0;
  if (number != 0 && !description.empty()) return {number, description};
  char digits[16];
  std::snprintf(digits, sizeof digits, "%08lX", static_cast<unsigned long>(code));
  return Failure::automation(description.empty() ? digits : description);
}

/// Arguments as COM passes them: in reverse order.
class Arguments {
 public:
  explicit Arguments(std::initializer_list<Variant> values) : count_(values.size()) {
    if (count_ > std::size(values_)) throw Failure::invalidCall();
    std::size_t place = count_;
    for (const Variant& value : values) toOle(&values_[--place], value);
  }
  VARIANT* values() { return values_; }
  UINT count() const { return static_cast<UINT>(count_); }

 private:
  OleVariant values_[8];
  std::size_t count_;
};

}  // namespace

DISPID LateBound::idOf(const wchar_t* member) const {
  DISPID id = DISPID_UNKNOWN;
  auto* name = const_cast<LPOLESTR>(member);
  if (SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id))) return id;
  // Objects of a script's own classes require this interface.
  if (const auto byName = asked<IDispatchEx>(object_.get())) {
    const BSTR text = SysAllocString(member);
    const HRESULT answer = byName->GetDispID(text, fdexNameCaseInsensitive, &id);
    SysFreeString(text);
    if (SUCCEEDED(answer)) return id;
  }
  throw Failure::noSuchMember();
}

void LateBound::invoke(DISPID member, WORD flags, VARIANT* arguments, UINT count,
                       VARIANT* result) const {
  const ComPtr<IDispatch> held = object_;  // the call may release it
  DISPPARAMS given{arguments, nullptr, count, 0};
  EXCEPINFO exception{};
  const HRESULT answer = held->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &given, result,
                                      &exception, nullptr);
  if (FAILED(answer)) throw failureOf(answer, exception);
}

void LateBound::call(const wchar_t* member, std::initializer_list<Variant> arguments) const {
  Arguments given(arguments);
  invoke(idOf(member), DISPATCH_METHOD, given.values(), given.count(), nullptr);
}

Variant LateBound::read(const wchar_t* member, std::initializer_list<Variant> arguments) const {
  Arguments given(arguments);
  OleVariant result;
  invoke(idOf(member), reading, given.values(), given.count(), &result);
  return fromOle(result);
}

Variant LateBound::readDefault(std::initializer_list<Variant> arguments) const {
  Arguments given(arguments);
  OleVariant result;
  invoke(DISPID_VALUE, reading, given.values(), given.count(), &result);
  for (int depth = 0; depth < deepestDefault; ++depth) {
    IDispatch* const object = dispatchIn(result);
    if (!object) break;
    OleVariant inner;
    LateBound(object).invoke(DISPID_VALUE, reading, nullptr, 0, &inner);
    VariantCopy(&result, &inner);
  }
  return fromOle(result);
}

std::optional<Variant> OleRecordset::Value(std::int32_t field) {
  Variant value = rows_.readDefault({field});
  const Ref<Object> object = value.object();
  const auto* own = dynamic_cast<const OleValue*>(object.get());
  if (own && own->value().vt == VT_NULL) return {};
  return value;
}

}  // namespace norvane
