#pragma once

#include <atomic>
#include <bit>
#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Ref.h>

namespace norvane {

/// Base of a host's object that a Variant can hold. A platform also derives from it for values of
/// its own, such as a date: these convert to a number and to a text.
class Object : public Shared {
 public:
  virtual ~Object() = default;

  /// Whether both are the same value; here: whether both are the same object.
  virtual bool isSame(const Object& other) const { return this == &other; }

  /// The conversions of the Variant that holds it. Default: no value, Failure 13.
  virtual bool isNumeric() const { return false; }
  virtual double toNumber() const;
  virtual std::string toText() const;
};

/// A tagged value: nothing, a number, a truth value, a text (UTF-8) or an object reference.
///
/// It takes eight bytes, since a list of a million items holds five million of them: the low three
/// bits are the tag; the others hold a number or the address of a shared text or object.
/// Conversions throw Failure 13, Type mismatch, where there is no sensible result, and Failure 6,
/// Overflow, where it does not fit.
class Variant {
 public:
  enum class Type : std::uint8_t { Empty, Int16, Int32, Single, Boolean, Text, Object };

  constexpr Variant() = default;
  constexpr Variant(std::int16_t number)
      : bits_(pack(Type::Int16, static_cast<std::uint16_t>(number))) {}
  constexpr Variant(std::int32_t number)
      : bits_(pack(Type::Int32, static_cast<std::uint32_t>(number))) {}
  constexpr Variant(float number)
      : bits_(pack(Type::Single, std::bit_cast<std::uint32_t>(number))) {}
  /// Kept as a 32-bit float, the only float there is: about seven digits.
  constexpr Variant(double number) : Variant(static_cast<float>(number)) {}
  constexpr Variant(Boolean value)
      : bits_(pack(Type::Boolean, static_cast<std::uint16_t>(value.number()))) {}
  /// Of exactly this type, or any pointer would be a truth value.
  template <std::same_as<bool> Bool>
  constexpr Variant(Bool value) : Variant(Boolean(value)) {}
  Variant(std::nullptr_t) = delete;
  Variant(std::string text);
  Variant(std::string_view text);
  Variant(const char* text) : Variant(std::string_view(text)) {}
  Variant(const Ref<Object>& object);
  constexpr Variant(const Variant& other) : bits_(other.bits_) { retain(); }
  constexpr Variant(Variant&& other) noexcept : bits_(std::exchange(other.bits_, 0)) {}
  Variant& operator=(Variant other) noexcept {
    std::swap(bits_, other.bits_);
    return *this;
  }
  constexpr ~Variant() { release(); }

  constexpr Type type() const { return static_cast<Type>(bits_ & tagMask); }
  bool isEmpty() const { return bits_ == 0; }
  bool isText() const { return type() == Type::Text; }
  /// A number, a truth value, nothing, or a text that reads as a number.
  bool isNumeric() const;

  /// The text held, without a copy; empty where the value is no text. Lives as long as the value.
  std::string_view text() const;
  /// The object held; empty where the value is none.
  Ref<Object> object() const;

  /// Nothing counts as 0, a truth value as its number, a text as the number it reads as.
  double toNumber() const;
  /// Rounded to the nearest whole number, halves to the even one.
  std::int32_t toInt32() const;
  std::int16_t toInt16() const;
  float toSingle() const;
  /// True for every number but 0, and for the text "True" in any capitalisation.
  Boolean toBoolean() const;
  /// Numbers in decimal form, truth values as "True" and "False", nothing as the empty text.
  std::string toText() const&;
  /// The same; a text that nobody else holds is moved out.
  std::string toText() &&;

 private:
  struct TextBlock;
  static constexpr std::uint64_t tagMask = 7;

  /// The block of a text that nearly every item holds, or nullptr for any other text.
  static TextBlock* permanentBlock(std::string_view text);
  void holdText(TextBlock* block);

  static constexpr std::uint64_t pack(Type type, std::uint32_t payload) {
    return std::uint64_t{payload} << 32 | static_cast<std::uint64_t>(type);
  }
  std::uint32_t payload() const { return static_cast<std::uint32_t>(bits_ >> 32); }
  /// An address of 32 bits is packed like a number, so that none of its bits meets the tag: objects
  /// there begin at multiples of four.
  static constexpr bool isAddressShort = sizeof(void*) < sizeof(std::uint64_t);
  static std::uint64_t packAddress(Type type, const void* at) {
    const auto address = reinterpret_cast<std::uintptr_t>(at);
    if constexpr (isAddressShort)
      return pack(type, static_cast<std::uint32_t>(address));
    else
      return address | static_cast<std::uint64_t>(type);
  }
  std::uintptr_t address() const {
    if constexpr (isAddressShort)
      return payload();
    else
      return static_cast<std::uintptr_t>(bits_ & ~tagMask);
  }
  TextBlock* textBlock() const { return reinterpret_cast<TextBlock*>(address()); }

  constexpr void retain() const {
    if (type() >= Type::Text) retainShared();
  }
  constexpr void release() const {
    if (type() >= Type::Text) releaseShared();
  }
  void retainShared() const;
  void releaseShared() const;

  std::uint64_t bits_ = 0;
};

/// A text shared by the variants that hold it. The few that every list needs are never counted.
struct Variant::TextBlock {
  std::string text;
  std::atomic<std::int32_t> references = 1;
  bool isPermanent = false;
};

inline std::string_view Variant::text() const {
  return isText() ? std::string_view(textBlock()->text) : std::string_view();
}

/// Compares as hosts do: two texts byte by byte; a text with a number after turning the text into
/// a number (Failure 13 where it reads as none); nothing as 0 or as the empty text, as the other
/// side wants it. An object compares with nothing: Failure 13.
std::partial_ordering compare(const Variant& a, const Variant& b);
std::partial_ordering compareText(std::string_view a, const Variant& b);

/// The mark in an item's colour that says: no colour of its own.
inline constexpr std::string_view defaultMark = "def";
inline bool isDefaultMark(const Variant& colour) {
  return colour.isText() && colour.text() == defaultMark;
}

}  // namespace norvane
