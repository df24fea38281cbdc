#pragma once

#include <QProcess>
#include <QString>

namespace norvane {

/// Plays sound files, one at a time: on Windows through the system's own function, elsewhere
/// through the first of paplay, aplay and afplay that is installed. Without one, sounds are silent.
/// A sound ends with the program.
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
