#include <nvlist/values/Variant.h>
#include <nvlist/values/numbers.h>

#include <bit>
#include <cmath>
#include <cstring>
#include <new>

namespace norvane {
namespace {

Object* objectAt(std::uintptr_t address) { return reinterpret_cast<Object*>(address); }

bool isTrueText(std::string_view text) {
  return text.size() == 4 && (text[0] | 0x20) == 't' && (text[1] | 0x20) == 'r' &&
         (text[2] | 0x20) == 'u' && (text[3] | 0x20) == 'e';
}

bool isFalseText(std::string_view text) {
  return text.size() == 5 && (text[0] | 0x20) == 'f' && (text[1] | 0x20) == 'a' &&
         (text[2] | 0x20) == 'l' && (text[3] | 0x20) == 's' && (text[4] | 0x20) == 'e';
}

}  // namespace

double Object::toNumber() const { throw Failure::typeMismatch(); }
std::string Object::toText() const { throw Failure::typeMismatch(); }

std::uint64_t Variant::hold(std::string_view text) {
  static_assert(isAddressShort || alignof(TextBlock) > tagMask);
  void* const memory = ::operator new(sizeof(TextBlock) + text.size());
  auto* const block = new (memory) TextBlock{.size = text.size()};
  // To GCC, bytes behind the block are part of it.
  std::memcpy(static_cast<void*>(block + 1), text.data(), text.size());
  return packAddress(Type::Text, reinterpret_cast<std::uintptr_t>(block));
}

Variant::Variant(const Ref<Object>& object)
    : bits_(packAddress(Type::Object, reinterpret_cast<std::uintptr_t>(object.get()))) {
  static_assert(isAddressShort || alignof(Object) > tagMask);
  retain();
}

void Variant::retainShared() const {
  if (isText())
    textBlock()->references.fetch_add(1, std::memory_order_relaxed);
  else
    objectAt(address())->retain();
}

void Variant::releaseShared() const {
  if (!isText()) {
    if (objectAt(address())->releaseLast()) delete objectAt(address());
  } else if (textBlock()->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
    ::operator delete(textBlock());
  }
}

Ref<Object> Variant::object() const {
  return type() == Type::Object ? Ref<Object>(objectAt(address())) : Ref<Object>();
}

bool Variant::isNumeric() const {
  switch (type()) {
    case Type::Text:
      return numberOf(text()).has_value();
    case Type::Object:
      return address() != 0 && objectAt(address())->isNumeric();
    default:
      return true;
  }
}

double Variant::toNumber() const {
  switch (type()) {
    case Type::Empty:
      return 0;
    case Type::Int32:
      return static_cast<std::int32_t>(payload());
    case Type::Int16:
    case Type::Boolean:
      return static_cast<std::int16_t>(payload());
    case Type::Single:
      return std::bit_cast<float>(payload());
    case Type::Text:
      if (const auto number = numberOf(text())) return *number;
      break;
    case Type::Object:
      if (address() != 0) return objectAt(address())->toNumber();
      break;
  }
  throw Failure::typeMismatch();
}

std::int32_t Variant::toInt32() const {
  if (type() == Type::Int32) return static_cast<std::int32_t>(payload());
  return checked::nearest<std::int32_t>(toNumber());
}

std::int16_t Variant::toInt16() const { return checked::nearest<std::int16_t>(toNumber()); }

float Variant::toSingle() const {
  const double number = toNumber();
  const auto result = static_cast<float>(number);
  if (std::isinf(result) && !std::isinf(number)) throw Failure::overflow();
  return result;
}

Boolean Variant::toBoolean() const {
  if (type() == Type::Boolean) return Boolean::ofNumber(static_cast<std::int16_t>(payload()));
  if (isTrueText(text())) return true;
  if (isFalseText(text())) return false;
  return toNumber() != 0;
}

std::string Variant::toText() const {
  switch (type()) {
    case Type::Empty:
      return {};
    case Type::Int16:
    case Type::Int32:
      return textOf(toInt32());
    case Type::Single:
      return textOf(std::bit_cast<float>(payload()));
    case Type::Boolean:
      return toBoolean() ? "True" : "False";
    case Type::Text:
      return std::string(text());
    case Type::Object:
      if (address() != 0) return objectAt(address())->toText();
      break;
  }
  throw Failure::typeMismatch();
}

std::partial_ordering compareText(std::string_view a, const Variant& b) {
  if (b.isText() || b.isEmpty()) return a.compare(b.text()) <=> 0;
  const double other = b.toNumber();
  if (const auto number = numberOf(a)) {
    // Compared as floats, or the text "0.1" would differ from the float 0.1.
    if (b.type() == Variant::Type::Single) return static_cast<float>(*number) <=> b.toSingle();
    return *number <=> other;
  }
  throw Failure::typeMismatch();
}

std::partial_ordering compare(const Variant& a, const Variant& b) {
  if (a.isText()) return compareText(a.text(), b);
  if (b.isText()) return 0 <=> compareText(b.text(), a);
  return a.toNumber() <=> b.toNumber();
}

}  // namespace norvane
