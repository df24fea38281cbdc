#include <nvlist/platform/windows/OleValues.h>

#include <new>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// The system functions do not modify these arguments, but are not declared so.
VARIANT* changeable(const VARIANT& value) { return const_cast<VARIANT*>(&value); }

}  // namespace

bool OleValue::isSame(const Object& other) const {
  const auto* value = dynamic_cast<const OleValue*>(&other);
  return this == &other || (value && value->value_.vt == value_.vt &&
                            VarCmp(changeable(value_), changeable(value->value_),
                                   LOCALE_USER_DEFAULT, 0) == VARCMP_EQ);
}

bool OleValue::isNumeric() const {
  switch (value_.vt) {
    case VT_NULL:
    case VT_ERROR:
    case VT_UNKNOWN:
      return false;
    default: {
      OleVariant result;
      return SUCCEEDED(VariantChangeType(&result, changeable(value_), 0, VT_R8));
    }
  }
}

void OleValue::convert(VARTYPE type, VARIANT& result) const {
  if (value_.vt == VT_NULL) throw Failure::invalidNull();
  const HRESULT answer = VariantChangeType(&result, changeable(value_), 0, type);
  if (answer == DISP_E_OVERFLOW) throw Failure::overflow();
  if (answer == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(answer)) throw Failure::typeMismatch();
}

double OleValue::toNumber() const {
  OleVariant result;
  convert(VT_R8, result);
  return result.dblVal;
}

std::string OleValue::toText() const {
  OleVariant result;
  convert(VT_BSTR, result);
  return textOf(result.bstrVal);
}

IDispatch* dispatchIn(const VARIANT& value) {
  switch (value.vt) {
    case VT_DISPATCH:
      return value.pdispVal;
    case VT_BYREF | VT_DISPATCH:
      return *value.ppdispVal;
    case VT_BYREF | VT_VARIANT:
      return dispatchIn(*value.pvarVal);
    default:
      return nullptr;
  }
}

Variant fromOle(const VARIANT& given) {
  switch (given.vt) {
    case VT_BYREF | VT_VARIANT:
      return fromOle(*given.pvarVal);
    case VT_EMPTY:
      return {};
    case VT_I2:
      return given.iVal;
    case VT_I4:
    case VT_INT:
      return static_cast<std::int32_t>(given.lVal);
    case VT_R4:
      return given.fltVal;
    case VT_BOOL:
      return Boolean::ofNumber(given.boolVal);
    case VT_BSTR:
      return textOf(given.bstrVal);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      if (!given.punkVal) return Variant(Ref<Object>());
      break;
    default:
      if (given.vt & VT_BYREF) {
        const OleVariant value(given);
        if (value.vt != VT_EMPTY) return fromOle(value);
      }
      break;
  }
  return Variant(Ref<Object>(makeRef<OleValue>(given)));
}

void toOle(BSTR* out, std::string_view value) {
  *out = newBstr(value);
  if (!*out) throw std::bad_alloc();
}

void toOle(VARIANT* out, const Variant& value) {
  VariantInit(out);
  switch (value.type()) {
    case Variant::Type::Empty:
      return;
    case Variant::Type::Int16:
      out->iVal = value.toInt16();
      out->vt = VT_I2;
      return;
    case Variant::Type::Int32:
      out->lVal = value.toInt32();
      out->vt = VT_I4;
      return;
    case Variant::Type::Single:
      out->fltVal = value.toSingle();
      out->vt = VT_R4;
      return;
    case Variant::Type::Boolean:
      out->boolVal = value.toBoolean().number();
      out->vt = VT_BOOL;
      return;
    case Variant::Type::Text:
      toOle(&out->bstrVal, value.text());
      out->vt = VT_BSTR;
      return;
    case Variant::Type::Object: {
      const Ref<Object> object = value.object();
      out->vt = VT_DISPATCH;
      out->pdispVal = nullptr;  // Nothing, also for an object of the library itself
      if (const auto* own = dynamic_cast<const OleValue*>(object.get()))
        if (FAILED(VariantCopy(out, changeable(own->value())))) throw std::bad_alloc();
    }
  }
}

void rewrite(VARIANT& argument, const Variant& value) {
  OleVariant result;
  toOle(&result, value);
  if (argument.vt == (VT_BYREF | VT_VARIANT)) {
    VariantCopy(argument.pvarVal, &result);
  } else if (!(argument.vt & VT_BYREF)) {
    VariantCopy(&argument, &result);
  } else if (const auto type = static_cast<VARTYPE>(argument.vt & ~VT_BYREF);
             type != VT_BSTR && SUCCEEDED(VariantChangeType(&result, &result, 0, type))) {
    // A variable of a plain type: a 16-bit integer, a float.
    switch (type) {
      case VT_UI1:
        *argument.pbVal = result.bVal;
        break;
      case VT_I2:
      case VT_BOOL:
        *argument.piVal = result.iVal;
        break;
      case VT_I4:
      case VT_R4:
        *argument.plVal = result.lVal;
        break;
      case VT_R8:
      case VT_CY:
      case VT_DATE:
        *argument.pllVal = result.llVal;
        break;
      default:
        break;
    }
  }
}

}  // namespace norvane
