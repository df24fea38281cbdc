#pragma once

#include <nvlist/values/Boolean.h>

namespace norvane {

/// The public switch that says what a failure does. All instances and all controls of a program
/// share the one value, which starts as false; making another instance never changes it.
class Error {
 public:
  Error();

  /// False: a failure is reported and the procedure in which it happens is left. True: the failed
  /// step is passed over in silence and the next one runs.
  Boolean SilentError() const;
  void SilentError(Boolean value);

  /// What SilentError reads, for the traps.
  static bool silent();
};

}  // namespace norvane
