#pragma once

#include <utility>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// Whose procedures a trap stands in; both texts are part of every report.
struct Module {
  const char* kind;
  const char* name;
};

namespace kinds {
inline constexpr const char* control = "Benutzersteuerelement";
inline constexpr const char* classModule = "Klassenmodul";
inline constexpr const char* module = "Modul";
}  // namespace kinds

/// The one way in which the library deals with failures. Each procedure runs its body under a
/// trap, and each statement of it that can fail is one step:
///
///     trapped(here, "ItemText", [&](Trap& on) {
///       on.step([&] { text = item(index).Text; });
///     });
///
/// A step that throws is a failure. With SilentError off it is reported and the procedure is left
/// normally, so that its caller goes on with whatever result stood by then. With SilentError on
/// the next step runs as if nothing had happened. No failure ever reaches the caller, but for one
/// of the reporter itself.
class Trap {
 public:
  Trap(const Module& module, const char* procedure) : module_(module), procedure_(procedure) {}

  /// Whether any procedure runs on this thread. A platform must not end a control then: it may be
  /// in use further up.
  static bool anyRuns() { return depth > 0; }

  /// Runs one statement.
  template <class Statement>
  void step(Statement&& statement, int line = __builtin_LINE()) {
    try {
      statement();
    } catch (...) {
      failed(line);
    }
  }

  /// Asks the condition of a branch. One that fails in silence counts as passed.
  template <class Condition>
  bool test(Condition&& condition, int line = __builtin_LINE()) {
    try {
      return static_cast<bool>(condition());
    } catch (...) {
      failed(line);
      return true;
    }
  }

  /// Runs one statement whose failure costs nothing and is never reported.
  template <class Statement>
  void ignoring(Statement&& statement) {
    try {
      statement();
    } catch (const Left&) {
      throw;
    } catch (...) {
      // An optional thing is missing; the procedure does without it.
    }
  }

 private:
  /// Thrown to leave the procedure after a report.
  struct Left {};

  /// Counts the procedures that run.
  struct Running {
    Running() { ++depth; }
    ~Running() { --depth; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
  };
  static inline thread_local int depth = 0;

  template <class Body>
  friend void trapped(const Module& module, const char* procedure, Body&& body);

  /// Called while the failure is being handled: returns where SilentError is on, else reports and
  /// throws Left.
  void failed(int line) const;

  const Module& module_;
  const char* procedure_;
};

/// Runs the body of a procedure under its trap.
template <class Body>
void trapped(const Module& module, const char* procedure, Body&& body) {
  Trap on(module, procedure);
  const Trap::Running running;
  try {
    body(on);
  } catch (const Trap::Left&) {
    // Reported already; the caller gets the result as it stands.
  }
}

}  // namespace norvane
