#pragma once

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace norvane {

/// A text half the size of a std::string: up to twelve bytes are stored in place, longer texts on
/// the heap. Used for item keys, since most of a million items have an empty one.
class CompactText {
 public:
  CompactText() = default;
  CompactText(std::string_view text) : size_(static_cast<std::uint32_t>(text.size())) {
    if (text.size() > UINT32_MAX) throw std::length_error("CompactText");
    char* place = inPlace_;
    if (!isInPlace()) {
      place = new char[text.size()];
      std::memcpy(inPlace_, &place, sizeof place);
    }
    if (!text.empty()) std::memcpy(place, text.data(), text.size());
  }
  CompactText(const std::string& text) : CompactText(std::string_view(text)) {}
  CompactText(const char* text) : CompactText(std::string_view(text)) {}
  CompactText(const CompactText& other) : CompactText(other.view()) {}
  CompactText(CompactText&& other) noexcept { swap(other); }
  CompactText& operator=(CompactText other) noexcept {
    swap(other);
    return *this;
  }
  ~CompactText() {
    if (!isInPlace()) delete[] heap();
  }

  /// Valid until the text changes.
  std::string_view view() const { return {isInPlace() ? inPlace_ : heap(), size_}; }
  operator std::string_view() const { return view(); }

  friend bool operator==(const CompactText& a, std::string_view b) {
    return a.size_ == b.size() && a.view() == b;
  }

 private:
  static constexpr std::uint32_t room = 12;

  bool isInPlace() const { return size_ <= room; }
  char* heap() const {
    char* result = nullptr;
    std::memcpy(&result, inPlace_, sizeof result);
    return result;
  }
  void swap(CompactText& other) noexcept {
    std::swap(size_, other.size_);
    std::swap(inPlace_, other.inPlace_);
  }

  std::uint32_t size_ = 0;
  char inPlace_[room] = {};
};

}  // namespace norvane
