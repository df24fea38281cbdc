#pragma once

#include <string>
#include <string_view>

#include <nvlist/core/Boolean.h>
#include <nvlist/core/Font.h>

namespace norvane {

/// The place a control stands in: what the control asks of the form around it. A platform has one
/// for each control; it outlives the control. Any call may throw.
class Container {
 public:
  virtual ~Container() = default;

  /// Told after each change of a property, with the property's exact name.
  virtual void PropertyChanged(std::string_view name) = 0;

  /// The ambient of the form: false while the control sits in a designer.
  virtual Boolean UserMode() = 0;
  /// The ambient font; a new control starts with a copy of it. May be empty.
  virtual norvane::Font AmbientFont() = 0;
  /// The name that the host gave this control.
  virtual std::string Name() = 0;

  /// Whether DoEvents would find anything to do. Loops over items ask this once an item, so it has
  /// to cost next to nothing.
  virtual bool EventsWaiting() = 0;
  /// Dispatches what waits, or some of it: messages, timers, repaints. Handlers of the host run
  /// inside it and may call any public operation of the control.
  virtual void DoEvents() = 0;
};

}  // namespace norvane
