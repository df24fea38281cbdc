#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

/// Two screens side by side, the second with twice the resolution. Their names determine their
/// order.
constexpr const char* screens = R"({"screens": [
  {"name": "1 plain", "x": 0, "y": 0, "width": 800, "height": 800,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "2 fine", "x": 800, "y": 0, "width": 800, "height": 800,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}]})";

void useNoScreen(const QString& folder) {
  QFile file(folder + "/screens.json");
  if (!file.open(QFile::WriteOnly)) return;
  file.write(screens);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
    useNoScreen(settings.path());
  // For the systems that look for a settings file where the environment says, and for the others.
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

  QApplication program(argc, argv);
  QCoreApplication::setApplicationVersion("3.14.159");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
