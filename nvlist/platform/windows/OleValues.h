#pragma once

#include <type_traits>

#include <nvlist/platform/windows/OlePicture.h>
#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Variant.h>

/// Conversions between the values of COM and of the library: fromOle() and toOle() for each pair of
/// types. They throw std::bad_alloc if memory runs out.
namespace norvane {

/// A value that a Variant cannot hold, kept unchanged: a double, a date, a currency amount, a
/// decimal, Null, an array, an object of the host.
class OleValue final : public Object {
 public:
  explicit OleValue(const VARIANT& value) : value_(value) {}
  const VARIANT& value() const { return value_; }

  bool isSame(const Object& other) const override;
  bool isNumeric() const override;
  double toNumber() const override;
  std::string toText() const override;

 private:
  /// Throws Failure 94 for Null, and Failure 13 for any other value that cannot be converted.
  void convert(VARTYPE type, VARIANT& result) const;

  OleVariant value_;
};

/// The object in a variant, possibly by reference. Null if it holds another value or Nothing.
IDispatch* dispatchIn(const VARIANT& value);

/// Whether an optional argument was left out.
inline bool isMissing(const VARIANT& value) {
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// ---- from the host ----

Variant fromOle(const VARIANT& value);
inline Variant fromOle(const VARIANT& value, const Variant& missing) {
  return isMissing(value) ? missing : fromOle(value);
}
inline Boolean fromOle(VARIANT_BOOL value) { return Boolean::ofNumber(value); }
inline std::int32_t fromOle(long value) { return static_cast<std::int32_t>(value); }
inline Colour fromOle(OLE_COLOR value) { return static_cast<Colour>(value); }
inline float fromOle(float value) { return value; }
inline std::string fromOle(BSTR value) { return textOf(value); }
inline Picture fromOle(IPictureDisp* value) { return OlePicture::of(value); }
template <class Enum>
requires std::is_enum_v<Enum> std::int32_t fromOle(Enum value) {
  return static_cast<std::int32_t>(value);
}

// ---- to the host; the old contents of *out are ignored ----

void toOle(VARIANT* out, const Variant& value);
void toOle(BSTR* out, std::string_view value);
inline void toOle(VARIANT_BOOL* out, Boolean value) { *out = value.number(); }
inline void toOle(long* out, std::int32_t value) { *out = value; }
inline void toOle(OLE_COLOR* out, Colour value) { *out = static_cast<OLE_COLOR>(value); }
inline void toOle(float* out, float value) { *out = value; }
inline void toOle(IPictureDisp** out, const Picture& value) { *out = newPictureDisp(value); }
template <class Out, class Enum>
requires(std::is_enum_v<Out>&& std::is_enum_v<Enum>) void toOle(Out* out, Enum value) {
  *out = static_cast<Out>(value);
}

/// Assigns to an argument passed by reference, even if it refers to another variant.
void rewrite(VARIANT& argument, const Variant& value);

}  // namespace norvane
