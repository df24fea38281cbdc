#include <nvlist/files/ByteReader.h>
#include <nvlist/files/PropertyImage.h>
#include <nvlist/files/windows1252.h>
#include <nvlist/platform/Files.h>

#include <algorithm>
#include <bit>
#include <utility>

namespace norvane {
namespace {

constexpr std::string_view signature = "PBAG";
constexpr std::int16_t arrayOfBytes = 0x2011;

enum Kind : std::int16_t {
  nothing = 0,
  int16 = 2,
  int32 = 3,
  single = 4,
  text = 8,
  picture = 9,
  boolean = 11
};

std::string_view take(std::string_view& rest, std::int64_t count) {
  // A negative count becomes a huge unsigned one.
  if (static_cast<std::uint64_t>(count) > rest.size()) throw Failure::invalidFormat();
  const std::string_view result = rest.substr(0, static_cast<std::size_t>(count));
  rest.remove_prefix(result.size());
  return result;
}

template <class Integer>
Integer takeNumber(std::string_view& rest) {
  return numberOfBytes<Integer>(take(rest, sizeof(Integer)).data());
}

std::string_view takeName(std::string_view& rest) {
  return take(rest, takeNumber<std::uint16_t>(rest));
}

std::string_view takeValue(Kind kind, std::string_view& rest) {
  switch (kind) {
    case nothing:
      return {};
    case int16:
    case boolean:
      return take(rest, 2);
    case int32:
    case single:
      return take(rest, 4);
    case text:
    case picture:
      return take(rest, takeNumber<std::int32_t>(rest));
  }
  throw Failure::invalidFormat();
}

Variant valueOf(Kind kind, std::string_view bytes) {
  switch (kind) {
    case nothing:
      break;
    case int16:
      return numberOfBytes<std::int16_t>(bytes.data());
    case int32:
      return numberOfBytes<std::int32_t>(bytes.data());
    case single:
      return std::bit_cast<float>(numberOfBytes<std::uint32_t>(bytes.data()));
    case text:
      return windows1252::textOf(bytes);
    case picture:
      return Ref<Object>(makeRef<StoredPicture>(bytes));
    case boolean:
      return Boolean::ofNumber(numberOfBytes<std::int16_t>(bytes.data()));
  }
  return {};
}

}  // namespace

StoredPicture::StoredPicture(std::string_view bytes)
    : file(reinterpret_cast<const std::byte*>(bytes.data()),
           reinterpret_cast<const std::byte*>(bytes.data()) + bytes.size()) {}

void PropertyImage::Contents(Variant bytes) {
  PropertyImage made;
  made.contents_ = std::move(bytes);
  std::string_view rest = made.contents_.text();
  const std::size_t size = rest.size();
  if (take(rest, signature.size()) != signature) throw Failure::invalidFormat();
  while (!rest.empty()) {
    made.places_.push_back(static_cast<std::uint32_t>(size - rest.size()));
    takeName(rest);
    const auto kind = static_cast<Kind>(takeNumber<std::int16_t>(rest));
    takeValue(kind, rest);
  }
  std::ranges::stable_sort(made.places_, {}, [&](std::uint32_t at) { return made.nameAt(at); });
  std::swap(contents_, made.contents_);
  places_.swap(made.places_);
}

std::string_view PropertyImage::nameAt(std::uint32_t place) const {
  std::string_view rest = contents_.text().substr(place);
  return takeName(rest);
}

Variant PropertyImage::ReadProperty(std::string_view name, const Variant& defaultValue) const {
  const auto place =
      std::ranges::lower_bound(places_, name, {}, [&](std::uint32_t at) { return nameAt(at); });
  if (place == places_.end() || nameAt(*place) != name) return defaultValue;
  std::string_view rest = contents_.text().substr(*place);
  takeName(rest);
  const auto kind = static_cast<Kind>(takeNumber<std::int16_t>(rest));
  return valueOf(kind, takeValue(kind, rest));
}

Variant readTaggedBytes(const std::string& path) {
  const auto file = Files::inUse().openFile(path, FileMode::read);
  const std::vector<char> head = readBytes(*file, 12);
  ByteReader reader({head.data(), head.size()});
  const auto tag = reader.number<std::int16_t>();
  const auto dimensions = reader.number<std::int16_t>();
  const auto count = reader.number<std::int32_t>();
  const auto lowerBound = reader.number<std::int32_t>();
  if (tag != arrayOfBytes || dimensions != 1 || lowerBound != 0) throw Failure::invalidFormat();
  if (static_cast<std::uint32_t>(count) > file->size()) throw Failure::pastEndOfFile();
  const std::vector<char> bytes = readBytes(*file, static_cast<std::size_t>(count));
  file->close();
  return ByteReader({bytes.data(), bytes.size()}).bytes(count);
}

}  // namespace norvane
