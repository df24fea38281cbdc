#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // For the systems that look for a settings file where the environment says, and for the others.
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

  QApplication program(argc, argv);
  QCoreApplication::setApplicationVersion("3.14.159");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
