#pragma once

#include <vector>

#include <nvlist/platform/windows/ComObject.h>
#include <nvlist/platform/windows/failures.h>

namespace norvane {

// The objects that an enumerator returns have references of their own.
inline void retain(IConnectionPoint* item) { item->AddRef(); }
inline void release(IConnectionPoint* item) { item->Release(); }
inline void retain(const CONNECTDATA& item) { item.pUnk->AddRef(); }
inline void release(const CONNECTDATA& item) { item.pUnk->Release(); }
inline void retain(const FORMATETC&) {}
inline void release(const FORMATETC&) {}

/// A COM enumerator over a copy of the items made at its creation.
template <class Interface, class Item>
class Enumerator final : public ComObject<Interface> {
 public:
  explicit Enumerator(std::vector<Item> items, std::size_t next = 0)
      : ComObject<Interface>(1), items_(std::move(items)), next_(next) {
    for (const Item& item : items_) retain(item);
  }

  STDMETHODIMP Next(ULONG count, Item* out, ULONG* got) override {
    if (!out || (!got && count != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < items_.size(); ++given) {
      out[given] = items_[next_++];
      retain(out[given]);
    }
    if (got) *got = given;
    return given == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const bool isEnough = count <= items_.size() - next_;
    next_ = isEnough ? next_ + count : items_.size();
    return isEnough ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    return guarded([&] { *out = new Enumerator(items_, next_); });
  }

 private:
  ~Enumerator() override {
    for (const Item& item : items_) release(item);
  }

  std::vector<Item> items_;
  std::size_t next_;
};

}  // namespace norvane
