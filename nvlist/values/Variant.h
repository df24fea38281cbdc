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

/// Base of the objects that a Variant can hold. Platforms also derive values from it, such as a
/// date, which convert to a number and a text.
class Object : public Shared {
 public:
  virtual ~Object() = default;

  /// Whether both objects have the same value. Default: whether they are the same object.
  virtual bool isSame(const Object& other) const { return this == &other; }

  /// The conversions of the Variant that holds it. Default: no value, Failure 13.
  virtual bool isNumeric() const { return false; }
  virtual double toNumber() const;
  virtual std::string toText() const;
};

/// A value of one of several types: empty, a number, a truth value, a text (UTF-8) or a reference
/// to an object.
///
/// It takes eight bytes, since a list of a million items holds five million of them: the low three
/// bits are the tag; the others hold a number or the address of a shared text or object.
/// Conversions throw Failure 13, Type mismatch, if there is no sensible result, and Failure 6,
/// Overflow, if the result does not fit.
class Variant {
 public:
  /// What a value holds.
  enum class Type : std::uint8_t { Empty, Int16, Int32, Single, Boolean, Text, Object };

  constexpr Variant() = default;
  /// A number.
  constexpr Variant(std::int16_t number)
      : bits_(pack(Type::Int16, static_cast<std::uint16_t>(number))) {}
  constexpr Variant(std::int32_t number)
      : bits_(pack(Type::Int32, static_cast<std::uint32_t>(number))) {}
  constexpr Variant(float number)
      : bits_(pack(Type::Single, std::bit_cast<std::uint32_t>(number))) {}
  /// Stored as a 32-bit float, with about seven digits.
  constexpr Variant(double number) : Variant(static_cast<float>(number)) {}
  /// A truth value.
  constexpr Variant(Boolean value)
      : bits_(pack(Type::Boolean, static_cast<std::uint16_t>(value.number()))) {}
  /// Only bool itself, so that pointers do not convert to truth values.
  template <std::same_as<bool> Bool>
  constexpr Variant(Bool value) : Variant(Boolean(value)) {}
  Variant(std::nullptr_t) = delete;
  /// A text, which is copied.
  constexpr Variant(std::string_view text)
      : bits_(text.empty()          ? emptyText
              : text == defaultText ? markText
                                    : hold(text)) {}
  Variant(const std::string& text) : Variant(std::string_view(text)) {}
  constexpr Variant(const char* text) : Variant(std::string_view(text)) {}
  /// An object, which is kept alive. An empty reference is an object too.
  Variant(const Ref<Object>& object);
  /// Copies share texts and objects.
  constexpr Variant(const Variant& other) : bits_(other.bits_) { retain(); }
  constexpr Variant(Variant&& other) noexcept : bits_(std::exchange(other.bits_, 0)) {}
  Variant& operator=(Variant other) noexcept {
    std::swap(bits_, other.bits_);
    return *this;
  }
  constexpr ~Variant() { release(); }

  /// What the value holds.
  constexpr Type type() const { return static_cast<Type>(bits_ & tagMask); }
  /// Whether it holds nothing.
  bool isEmpty() const { return bits_ == 0; }
  /// Whether both hold the same number, or share one text or object. Equal texts may be stored
  /// twice and are then not identical.
  bool isIdentical(const Variant& other) const { return bits_ == other.bits_; }
  bool isText() const { return type() == Type::Text; }
  /// Whether it is a number, a truth value, empty, or a text that can be read as a number.
  bool isNumeric() const;

  /// The stored text, valid as long as the value; empty if the value is not a text.
  std::string_view text() const;
  /// The stored object; empty if the value is not an object.
  Ref<Object> object() const;

  /// Empty converts to 0, a truth value to its number, a text to the number it represents.
  double toNumber() const;
  /// Rounded to the nearest integer, halves to the even one.
  std::int32_t toInt32() const;
  std::int16_t toInt16() const;
  float toSingle() const;
  /// False for 0 and the text "False", true for other numbers and the text "True". Case is ignored.
  Boolean toBoolean() const;
  /// Numbers in decimal, truth values as "True" and "False", empty as the empty text.
  std::string toText() const;

 private:
  struct TextBlock;
  static constexpr std::uint64_t tagMask = 7;
  static constexpr std::string_view defaultText = "def";

  /// A new block for a text that needs one, as bits.
  static std::uint64_t hold(std::string_view text);

  static constexpr std::uint64_t pack(Type type, std::uint32_t payload) {
    return std::uint64_t{payload} << 32 | static_cast<std::uint64_t>(type);
  }
  constexpr std::uint32_t payload() const { return static_cast<std::uint32_t>(bits_ >> 32); }
  /// An address of 32 bits is packed like a number, so that none of its bits meets the tag: objects
  /// there begin at multiples of four.
  static constexpr bool isAddressShort = sizeof(void*) < sizeof(std::uint64_t);
  static constexpr std::uint64_t packAddress(Type type, std::uintptr_t address) {
    if constexpr (isAddressShort)
      return pack(type, static_cast<std::uint32_t>(address));
    else
      return address | static_cast<std::uint64_t>(type);
  }
  constexpr std::uintptr_t address() const {
    if constexpr (isAddressShort)
      return payload();
    else
      return static_cast<std::uintptr_t>(bits_ & ~tagMask);
  }
  TextBlock* textBlock() const { return reinterpret_cast<TextBlock*>(address()); }

  // The two texts that nearly every item has need no block. Nothing else is at these addresses.
  static constexpr std::uintptr_t markAddress = 8;
  static constexpr auto emptyText = static_cast<std::uint64_t>(Type::Text);
  static constexpr std::uint64_t markText = emptyText | std::uint64_t{markAddress}
                                                            << (isAddressShort ? 32 : 0);

  constexpr bool isShared() const { return type() >= Type::Text && address() > markAddress; }
  constexpr void retain() const {
    if (isShared()) retainShared();
  }
  constexpr void release() const {
    if (isShared()) releaseShared();
  }
  void retainShared() const;
  void releaseShared() const;

  std::uint64_t bits_ = 0;
};

/// A text shared by variants. Its bytes follow it in memory.
struct Variant::TextBlock {
  std::atomic<std::int32_t> references = 1;
  std::size_t size;
};

inline std::string_view Variant::text() const {
  if (!isText() || address() == 0) return {};
  if (address() == markAddress) return defaultText;
  return {reinterpret_cast<const char*>(textBlock() + 1), textBlock()->size};
}

/// Compares as hosts do: two texts byte by byte; a text and a number as numbers (Failure 13 if the
/// text is not a number); an empty value as 0 or as the empty text, to match the other side. Throws
/// Failure 13 for objects.
std::partial_ordering compare(const Variant& a, const Variant& b);
std::partial_ordering compareText(std::string_view a, const Variant& b);

/// The value of an item's colour that means "the default colour".
inline constexpr std::string_view defaultMark = "def";
/// Whether an item's colour is the text "def".
inline bool isDefaultMark(const Variant& colour) {
  return colour.isIdentical(Variant(defaultMark));
}

}  // namespace norvane
