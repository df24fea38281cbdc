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
#include <QTimer>
#include <QVersionNumber>

#include <nvlist/platform/qt/QtFailures.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/platform/qt/QtWindow.h>
#include <nvlist/platform/qt/place/QtPlace.h>
#include <nvlist/platform/qt/services/QtMouse.h>
#include <nvlist/platform/qt/services/QtSound.h>
#include <nvlist/platform/qt/services/QtTipWindow.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

bool isWindows() {
  return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

/// What a settings file has behind `name =`, as written; null if there is no such line or if it
/// needs more than reading.
QString lineOf(const QString& path, const QString& name) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString found;
  bool isGeneral = true;
  while (!file.atEnd()) {
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    if (line.startsWith(u'[')) isGeneral = line.compare("[General]", Qt::CaseInsensitive) == 0;
    const qsizetype equals = line.indexOf(u'=');
    if (isGeneral && equals > 0 && line.left(equals).trimmed() == name)
      found = line.mid(equals + 1).trimmed();
  }
  return found.contains(u'\\') || found.contains(u'"') ? QString() : found;
}

QVariant settingOf(const QString& key, const QString& name) {
  if (isWindows())
    return QSettings("HKEY_CURRENT_USER\\" + key, QSettings::NativeFormat).value(name);
  const QString program = key.section(u'\\', -1);
  if (program.isEmpty()) return {};
  QSettings settings(QSettings::UserScope, program);
  settings.setFallbacksEnabled(false);
  QVariant value = settings.value(name);
  if (value.typeId() != QMetaType::QStringList) return value;
  // An unquoted text with commas. QSettings takes it for a list and drops the blanks around them.
  const QString line = lineOf(settings.fileName(), name);
  return line.isNull() ? value.toStringList().join(u',') : line;
}

/// The user's time format without the time zone, which some locales put in brackets.
QString timeFormat() {
  QString format;
  bool isQuoted = false;
  for (const QChar c : QLocale().timeFormat(QLocale::LongFormat)) {
    if (c == u'\'') isQuoted = !isQuoted;
    if (isQuoted || c != u't') format += c;
  }
  return format.remove("()").remove("[]").simplified();
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

/// Whether there is a QApplication, and this is its thread.
bool canShow() {
  const auto* program = qobject_cast<QApplication*>(QCoreApplication::instance());
  return program && program->thread() == QThread::currentThread();
}

}  // namespace

void QtApplication::ensure() {
  // Each is made the first time that it is missing.
  if (!Program::anyInUse()) static thread_local QtProgram program;
  if (!Files::anyInUse()) static thread_local QtFiles files;
  if (!Desktop::anyInUse()) static thread_local QtDesktop desktop;
}

QtDesktop::QtDesktop() {
  if (canShow()) mouse_ = new QtMouse(*QCoreApplication::instance());
}

QtDesktop::~QtDesktop() {
  delete mouse_.data();
  delete sound_.data();
}

ApplicationFacts QtProgram::facts() {
  ApplicationFacts facts;
  const QFileInfo program(QString::fromUtf8(programPath()));
  if (!QCoreApplication::instance()) return facts;
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  // A dot elsewhere in the name begins no extension, as in "host-1.2".
  const bool isExe = program.suffix().compare("exe", Qt::CaseInsensitive) == 0;
  facts.EXEName = (isExe ? program.completeBaseName() : program.fileName()).toStdString();
  facts.Major = version.majorVersion();
  facts.Minor = version.minorVersion();
  facts.Revision = version.microVersion();
  facts.Path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
  return facts;
}

std::string QtProgram::programPath() {
  if (!QCoreApplication::instance()) return {};
  return QDir::toNativeSeparators(QCoreApplication::applicationFilePath()).toStdString();
}

Variant QtProgram::readSetting(std::string_view key, std::string_view name) {
  const QVariant value = settingOf(QString::fromUtf8(key), QString::fromUtf8(name));
  if (!value.isValid()) return {};
  const QString text = value.toString();
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  const bool mayBeNumber = !isWindows() || value.typeId() != QMetaType::QString;
  if (mayBeNumber && isNumber && QString::number(number) == text)
    return Variant(static_cast<std::int32_t>(number));
  return Variant(text.toStdString());
}

std::shared_ptr<ErrorHandler> QtProgram::createErrorHandler() {
  const auto registered = Program::createErrorHandler();
  return registered ? registered : QtFailures::handler();
}

void QtProgram::appendToFile(const std::string& path, const std::string& text) {
  QString name = QString::fromUtf8(path);
  if (!isWindows()) name.replace(u'\\', u'/');
  QFile file(name);
  const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Append) &&
                         file.write(text.data(), static_cast<qint64>(text.size())) ==
                             static_cast<qint64>(text.size()) &&
                         file.flush();
  if (!isWritten) throw Failure(75, "Path/File access error");
}

std::string QtProgram::dateText() {
  return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

std::string QtProgram::timeText() {
  return QLocale().toString(QTime::currentTime(), timeFormat()).toStdString();
}

SystemVersion QtDesktop::systemVersion() {
  if (!isWindows()) return {};
  const auto version = QOperatingSystemVersion::current();
  return {2, version.majorVersion(), version.minorVersion()};
}

std::int16_t QtDesktop::asyncKeyState(std::int32_t key) {
  if (!canShow()) return 0;
  if (!mouse_) mouse_ = new QtMouse(*QCoreApplication::instance());
  return mouse_->asyncKeyState(key);
}

void QtDesktop::playSound(const std::string& path) {
  if (!canShow()) return;
  if (!sound_) sound_ = new QtSound(QCoreApplication::instance());
  sound_->play(QString::fromUtf8(path));
}

std::shared_ptr<TipWindow> QtDesktop::createTipWindow(std::int32_t form) {
  QWidget* widget = widgetOf(form);
  if (!widget || !canShow()) return nullptr;
  return std::make_shared<QtTipWindow>(*widget);
}

void QtProgram::MsgBox(std::string_view text, std::int32_t style, std::string_view title) {
  if (!canShow()) return Program::MsgBox(text, style, title);
  if (QtPlace::anyPaints()) {
    QTimer::singleShot(0, QCoreApplication::instance(),
                       [text = std::string(text), style, title = std::string(title)] {
                         Program::inUse().MsgBox(text, style, title);
                       });
    return;
  }
  // The window, and the box with it, may be destroyed while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(iconOf(style), QString::fromUtf8(title),
                                                    QString::fromUtf8(text).replace("\r\n", "\n"),
                                                    QMessageBox::Ok, QApplication::activeWindow());
  box->setTextFormat(Qt::PlainText);
  box->exec();
  delete box;
}

Picture QtFiles::loadPicture(std::vector<std::byte> file) {
  Picture picture = QtPicture::fromBytes(
      QByteArray(reinterpret_cast<const char*>(file.data()), static_cast<qsizetype>(file.size())));
  if (!picture) throw Failure::invalidPicture();
  return picture;
}

}  // namespace norvane
