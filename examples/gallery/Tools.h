#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "Sheet.h"

namespace gallery {

struct Switch;
struct Command;

/// A row of buttons that act on a list: switches for editing, moving and multiple selection, the
/// function of the wheel, and the order of the items.
class Tools : public QWidget {
 public:
  Tools();

  /// Called before each action.
  std::function<void(const QString& what)> onUsed;

  /// Updates the switches and disables the actions that are not possible now.
  void show(const Subject& subject);

 private:
  QWidget* addSwitch(const Switch& entry);
  QWidget* addWheel();
  QWidget* addCommand(const Command& entry);

  Subject subject_;
  std::vector<std::function<void()>> refreshers_;
};

}  // namespace gallery
