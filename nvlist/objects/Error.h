#pragma once

#include <nvlist/values/Boolean.h>

namespace norvane {

/// The public switch for the handling of failures. All instances, controls and threads of a program
/// share one value, which is false at first. Making further instances does not change it.
class Error {
 public:
  Error();

  /// False: a failure is reported and ends the procedure in which it happens. True: the failing
  /// step is skipped without a report and the procedure continues with the next step.
  Boolean SilentError() const;
  void SilentError(Boolean value);

  /// The shared value, for traps.
  static bool silent();
};

}  // namespace norvane
