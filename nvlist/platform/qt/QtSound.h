#pragma once

#include <QProcess>
#include <QString>

namespace norvane {

/// Plays sound files, one at a time, through the player that the system has: paplay, aplay or
/// afplay. Without one there is silence. A sound ends with the program.
class QtSound final : public QObject {
 public:
  explicit QtSound(QObject* parent);
  ~QtSound() override;

  void play(const QString& path);

 private:
  void stop();

  QProcess player_;
};

}  // namespace norvane
