#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace norvane {

/// Base of reference-counted objects. It contains the count, which is atomic.
class Shared {
 public:
  /// A copy of an object starts with a count of its own.
  Shared() = default;
  Shared(const Shared&) {}
  Shared& operator=(const Shared&) { return *this; }

  /// Adds a reference.
  void retain() const { references_.fetch_add(1, std::memory_order_relaxed); }
  /// Releases a reference and returns whether it was the last.
  bool releaseLast() const { return references_.fetch_sub(1, std::memory_order_acq_rel) == 1; }

 protected:
  ~Shared() = default;

 private:
  mutable std::atomic<std::int32_t> references_ = 0;
};

/// The same for objects that only one thread uses; its count is not atomic, which is faster.
class SharedInThread {
 public:
  /// A copy of an object starts with a count of its own.
  SharedInThread() = default;
  SharedInThread(const SharedInThread&) {}
  SharedInThread& operator=(const SharedInThread&) { return *this; }

  /// Adds a reference.
  void retain() const { ++references_; }
  /// Releases a reference and returns whether it was the last.
  bool releaseLast() const { return --references_ == 0; }
  /// Whether the caller's reference is the only one.
  bool isHeldOnce() const { return references_ == 1; }

 protected:
  ~SharedInThread() = default;

 private:
  mutable std::int32_t references_ = 0;
};

/// A counted reference, which may be empty. The last reference deletes the object. It is one
/// pointer wide and the count is inside the object, so that an item takes a single memory block.
template <class T>
class Ref {
 public:
  /// Refers to nothing.
  Ref() = default;
  Ref(std::nullptr_t) {}
  /// Shares the ownership of the object.
  explicit Ref(T* object) : object_(object) { retain(); }
  Ref(const Ref& other) : object_(other.object_) { retain(); }
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  /// A reference to an object of a derived class converts to one to its base.
  template <class Derived>
  Ref(const Ref<Derived>& other) : object_(other.get()) {
    retain();
  }
  /// Releases the object referred to before.
  Ref& operator=(const Ref& other) noexcept {
    Ref(other).swap(*this);
    return *this;
  }
  /// Leaves `other` empty.
  Ref& operator=(Ref&& other) noexcept {
    Ref(std::move(other)).swap(*this);
    return *this;
  }
  ~Ref() {
    if (object_ && object_->releaseLast()) delete object_;
  }

  /// Exchanges the objects.
  void swap(Ref& other) noexcept { std::swap(object_, other.object_); }

  /// The object; nullptr if the reference is empty.
  T* get() const { return object_; }
  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Whether both refer to the same object.
  friend bool operator==(const Ref& a, const Ref& b) { return a.object_ == b.object_; }

 private:
  void retain() const {
    if (object_) object_->retain();
  }

  T* object_ = nullptr;
};

/// Creates an object and refers to it.
template <class T, class... Arguments>
Ref<T> makeRef(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace norvane
