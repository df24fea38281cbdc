#include <nvlist/platform/qt/QtApplication.h>

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QOperatingSystemVersion>
#include <QSettings>
#include <QThread>
#include <QTime>
#include <QVersionNumber>
#include <cstdio>

#include <nvlist/platform/qt/QtMouse.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/platform/qt/QtSound.h>
#include <nvlist/platform/qt/QtTipWindow.h>
#include <nvlist/platform/qt/QtWindow.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

bool isWindows() {
  return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

QString qtText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QVariant settingOf(const QString& key, const QString& name) {
  if (isWindows())
    return QSettings("HKEY_CURRENT_USER\\" + key, QSettings::NativeFormat).value(name);
  const QString program = key.section(u'\\', -1);
  if (program.isEmpty()) return {};
  QSettings settings(QSettings::UserScope, program);
  settings.setFallbacksEnabled(false);
  return settings.value(name);
}

QMessageBox::Icon iconOf(std::int32_t style) {
  switch (style & 0x70) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    case 64:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// Whether there is a program with windows, and this is the thread of its windows.
bool canShow() {
  const auto* program = qobject_cast<QApplication*>(QCoreApplication::instance());
  return program && program->thread() == QThread::currentThread();
}

}  // namespace

void QtApplication::ensure() {
  if (Application::anyInUse()) return;
  static QtApplication application;
}

QtApplication::QtApplication() = default;

QtApplication::~QtApplication() {
  delete mouse_.data();
  delete sound_.data();
}

ApplicationFacts QtApplication::facts() {
  ApplicationFacts facts;
  if (!QCoreApplication::instance()) return facts;
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  facts.EXEName =
      QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName().toStdString();
  facts.Major = version.majorVersion();
  facts.Minor = version.minorVersion();
  facts.Revision = version.microVersion();
  facts.Path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
  return facts;
}

std::string QtApplication::programPath() {
  if (!QCoreApplication::instance()) return {};
  return QDir::toNativeSeparators(QCoreApplication::applicationFilePath()).toStdString();
}

Variant QtApplication::readSetting(std::string_view key, std::string_view name) {
  const QVariant value = settingOf(qtText(key), qtText(name));
  if (!value.isValid()) return {};
  // A comma in a settings file makes a list of a text.
  const QString text =
      value.typeId() == QMetaType::QStringList ? value.toStringList().join(u',') : value.toString();
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  const bool mayBeNumber = !isWindows() || value.typeId() != QMetaType::QString;
  if (mayBeNumber && isNumber && QString::number(number) == text)
    return Variant(static_cast<std::int32_t>(number));
  return Variant(text.toStdString());
}

void QtApplication::appendToFile(const std::string& path, const std::string& text) {
  QString name = qtText(path);
  if (!isWindows()) name.replace(u'\\', u'/');
  QFile file(name);
  const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Append) &&
                         file.write(text.data(), static_cast<qint64>(text.size())) ==
                             static_cast<qint64>(text.size()) &&
                         file.flush();
  if (!isWritten) throw Failure(75, "Path/File access error");
}

std::string QtApplication::dateText() {
  return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string QtApplication::timeText() {
  return QLocale().toString(QTime::currentTime(), QLocale::LongFormat).toStdString();
}

SystemVersion QtApplication::systemVersion() {
  if (!isWindows()) return {};
  const auto version = QOperatingSystemVersion::current();
  return {2, version.majorVersion(), version.minorVersion()};
}

std::int16_t QtApplication::asyncKeyState(std::int32_t key) {
  if (!canShow()) return 0;
  if (!mouse_) mouse_ = new QtMouse(*QCoreApplication::instance());
  return mouse_->asyncKeyState(key);
}

void QtApplication::playSound(const std::string& path) {
  if (!canShow()) return;
  if (!sound_) sound_ = new QtSound(QCoreApplication::instance());
  sound_->play(qtText(path));
}

std::shared_ptr<TipWindow> QtApplication::createTipWindow(std::int32_t form) {
  QWidget* widget = widgetOf(form);
  if (!widget || !canShow()) return nullptr;
  return std::make_shared<QtTipWindow>(*widget);
}

void QtApplication::MsgBox(const std::string& text, std::int32_t style, const std::string& title) {
  if (!canShow()) {
    std::fprintf(stderr, "%s\n%s\n", title.c_str(), text.c_str());
    return;
  }
  QMessageBox box(iconOf(style), qtText(title), qtText(text).replace("\r\n", "\n"), QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

Picture QtApplication::loadPicture(std::vector<std::byte> file) {
  Picture picture = QtPicture::fromBytes(
      QByteArray(reinterpret_cast<const char*>(file.data()), static_cast<qsizetype>(file.size())));
  if (!picture) throw Failure::invalidPicture();
  return picture;
}

}  // namespace norvane
