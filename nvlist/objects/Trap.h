#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// The module of a procedure; both texts are part of every report.
struct Module {
  const char* kind;
  const char* name;
};

namespace kinds {
inline constexpr const char* control = "Benutzersteuerelement";
inline constexpr const char* classModule = "Klassenmodul";
inline constexpr const char* module = "Modul";
}  // namespace kinds

/// The module of the procedures that belong to no class.
inline constexpr Module basList{kinds::module, "basList"};

/// The handling of failures in the library. Each procedure runs its body under a trap, and each
/// statement of it that can fail is one step:
///
///     trapped(here, "ItemText", [&](Trap& on) {
///       on.step([&] { text = item(index).Text; });
///     });
///
/// A step that throws is a failure. With SilentError off, it is reported and the procedure returns
/// normally with the result it has so far. With SilentError on, the next step runs. A failure never
/// reaches the caller, except one of the reporter itself.
class Trap {
 public:
  Trap(const Module& module, const char* procedure) : module_(module), procedure_(procedure) {}

  /// Whether a procedure is running on this thread. If so, a platform must not destroy a control,
  /// which may be in use further up the stack.
  static bool anyRuns();

  /// The number of failures on this thread so far, those ignored under SilentError included.
  static std::int64_t failures();

  /// While one exists, `onEnd` is called each time the outermost procedure on this thread has
  /// ended. Then no procedure runs, so the function may call any operation and destroy any control.
  /// It may destroy the watch, too. It must not throw.
  class Watch {
   public:
    explicit Watch(std::function<void()> onEnd);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();

   private:
    friend class Trap;
    std::function<void()> onEnd_;
  };

  /// Runs one statement.
  template <class Statement>
  void step(Statement&& statement, int line = __builtin_LINE()) {
    try {
      statement();
    } catch (...) {
      failed(line);
    }
  }

  /// Evaluates the condition of a branch. If it fails under SilentError, it counts as true.
  template <class Condition>
  bool test(Condition&& condition, int line = __builtin_LINE()) {
    try {
      return static_cast<bool>(condition());
    } catch (...) {
      failed(line);
      return true;
    }
  }

  /// Runs one statement whose failure is always ignored.
  template <class Statement>
  void ignoring(Statement&& statement) {
    try {
      statement();
    } catch (const Left&) {
      throw;
    } catch (...) {
      // The procedure continues without the result.
    }
  }

 private:
  /// Thrown after a report to leave the procedure.
  struct Left {};

  /// Counts the procedures running on this thread.
  struct Running {
    Running() { ++depth; }
    ~Running() { --depth; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
  };
  static inline thread_local int depth = 0;
  static inline thread_local std::int64_t failureCount = 0;
  /// Whether this thread has a Watch.
  static inline thread_local bool isWatched = false;

  template <class Body>
  friend void trapped(const Module& module, const char* procedure, Body&& body);

  /// Called while the exception is being handled. Returns if SilentError is on; otherwise reports
  /// the failure and throws Left.
  void failed(int line) const;

  /// Calls the watches if no procedure is running.
  static void ended();

  const Module& module_;
  const char* procedure_;
};

/// Runs the body of a procedure under its trap.
template <class Body>
void trapped(const Module& module, const char* procedure, Body&& body) {
  Trap on(module, procedure);
  {
    const Trap::Running running;
    try {
      body(on);
    } catch (const Trap::Left&) {
      // Already reported.
    }
  }
  if (Trap::isWatched) Trap::ended();
}

}  // namespace norvane
