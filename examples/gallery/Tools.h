#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "Sheet.h"

namespace gallery {

struct Switch;
struct Command;

/// A row of buttons for what one does to a list: the switches of editing, moving and selecting, the
/// wheel, the order of the items.
class Tools : public QWidget {
 public:
  Tools();

  /// Told of each use, just before it takes effect.
  std::function<void(const QString& what)> onUsed;

  /// Shows what is switched on and what can be done now.
  void show(const Subject& subject);

 private:
  QWidget* addSwitch(const Switch& entry);
  QWidget* addWheel();
  QWidget* addCommand(const Command& entry);

  Subject subject_;
  std::vector<std::function<void()>> refreshers_;
};

}  // namespace gallery
