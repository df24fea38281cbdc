#include <nvlist/platform/qt/services/QtSound.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QStandardPaths>

namespace norvane {
namespace {

struct [[maybe_unused]] Player {
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

#ifdef Q_OS_WIN

void QtSound::play(const QString& path) {
  using Play = int(__stdcall*)(const char* file, unsigned flags);
  constexpr unsigned asynchronously = 1;
  constexpr unsigned withoutDefault = 2;
  static const auto play = reinterpret_cast<Play>(QLibrary("winmm").resolve("sndPlaySoundA"));
  if (play) play(path.toLocal8Bit().constData(), asynchronously | withoutDefault);
}

#else

void QtSound::play(const QString& path) {
  stop();
  // A full path cannot be mistaken for an option.
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

#endif

void QtSound::stop() {
  if (player_.state() == QProcess::NotRunning) return;
  player_.kill();
  player_.waitForFinished();
}

}  // namespace norvane
