#pragma once

namespace norvane {

/// Base of the services that a program provides to the library: Program, Files and Desktop.
///
/// Making an object of a service puts it to use on the current thread. Destroying it, on the same
/// thread, puts the previous one back to use. Each thread has its own services; a thread that has
/// made none uses the defaults.
template <class Service>
class InUse {
 public:
  InUse(const InUse&) = delete;
  InUse& operator=(const InUse&) = delete;

  /// The service in use on this thread.
  static Service& inUse();
  /// Whether one was made on this thread, so that the defaults are not in use.
  static bool anyInUse();

 protected:
  InUse();
  ~InUse();

 private:
  InUse* before_;
};

}  // namespace norvane
