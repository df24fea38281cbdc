#pragma once

namespace norvane {

/// Base of the services that the library asks the outside for: Program, Files and Desktop.
///
/// Making an object of a service puts it to use on the thread that makes it, until it is destroyed
/// on that thread; then the one in use before it is in use again. Each thread has services of its
/// own. Where none was made, one with the defaults of the service is in use.
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
