#include <nvlist/platform/qt/QtSound.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace norvane {
namespace {

struct Player {
  const char* program;
  QStringList arguments;
};

}  // namespace

QtSound::QtSound(QObject* parent) : QObject(parent) {
  player_.setStandardInputFile(QProcess::nullDevice());
  player_.setStandardOutputFile(QProcess::nullDevice());
  player_.setStandardErrorFile(QProcess::nullDevice());
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &QtSound::stop);
}

QtSound::~QtSound() { stop(); }

void QtSound::play(const QString& path) {
  stop();
  // As a full path the name cannot be taken for an option.
  const QFileInfo file(path);
  if (!file.isFile()) return;
  for (const Player& player :
       {Player{"paplay", {}}, Player{"aplay", {"-q"}}, Player{"afplay", {}}}) {
    const QString program = QStandardPaths::findExecutable(player.program);
    if (program.isEmpty()) continue;
    player_.start(program, player.arguments + QStringList(file.absoluteFilePath()));
    return;
  }
}

void QtSound::stop() {
  if (player_.state() == QProcess::NotRunning) return;
  player_.kill();
  player_.waitForFinished();
}

}  // namespace norvane
