// The gallery: shows what nvList can do, in a window or as a picture.

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QTimer>

#include <cstdio>

#include "GalleryWindow.h"
#include "ListFiles.h"

namespace {

constexpr int cannotRead = 2;
constexpr int wrongArguments = 2;
constexpr int cannotWrite = 3;

bool hasDisplay() {
  return !QGuiApplication::platformName().startsWith("offscreen") &&
         !QGuiApplication::platformName().startsWith("minimal");
}

int fail(const QString& message, int status) {
  std::fprintf(stderr, "gallery: %s\n", qPrintable(message));
  return status;
}

/// The lines of a text file. Throws a message if it cannot be read.
QStringList linesOf(const QString& path) {
  if (QFileInfo(path).isDir()) throw QString("%1 is a folder, not a text file").arg(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw QString("cannot read %1: %2").arg(path, file.errorString());
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError)
    throw QString("cannot read %1: %2").arg(path, file.errorString());
  QString text = QString::fromUtf8(bytes);
  text.remove('\r');
  if (text.endsWith('\n')) text.chop(1);
  return text.isEmpty() ? QStringList() : text.split('\n');
}

/// Whether the file is shown on the page of files, which opens files of any kind and size with a
/// progress, and not as the text of the first page. Throws a message if it cannot be shown at all.
bool isForFilesPage(const QString& path) {
  constexpr qint64 largestText = 4 << 20;
  return gallery::kindOf(path) != gallery::FileKind::text || QFileInfo(path).size() > largestText;
}

gallery::SampleText sampleText(const QStringList& files) {
  if (files.isEmpty()) return {"Places of the world", linesOf(":/sample/places.txt")};
  return {QFileInfo(files.first()).fileName(), linesOf(files.first())};
}

/// The index of the page with this name. If none has it, throws a message that lists all names.
int pageNamed(const QString& name, const QList<gallery::Page>& pages) {
  QStringList names;
  for (const gallery::Page& page : pages) names << page.name;
  if (!names.contains(name))
    throw QString("no page \"%1\"; there are %2").arg(name, names.join(", "));
  return static_cast<int>(names.indexOf(name));
}

int saveScreenshot(gallery::GalleryWindow& window, const QString& path) {
  if (!window.picture().save(path, "PNG"))
    return fail(QString("cannot write %1").arg(path), cannotWrite);
  std::puts(qPrintable(QFileInfo(path).absoluteFilePath()));
  return 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QCommandLineParser options;
  options.setApplicationDescription("Shows what nvList can do, and a text file as a list.");
  options.addHelpOption();
  options.addVersionOption();
  options.addPositionalArgument("file", "Text, list file or JSON Lines to show.", "[file]");
  const QCommandLineOption screenshot("screenshot", "Draw the window into a picture file and quit.",
                                      "out.png");
  options.addOption(screenshot);
  const QCommandLineOption page("page", "Open this page; the first one without it.", "name");
  options.addOption(page);
  const QCommandLineOption dark("dark", "Use a dark palette.");
  options.addOption(dark);

  // The file is read first, so that a failure prints one line and opens no window.
  QStringList words;
  for (int i = 0; i < argumentCount; ++i) words << QString::fromLocal8Bit(arguments[i]);
  options.parse(words);
  const QStringList files = options.positionalArguments();
  if (files.size() > 1) return fail("give one file only", wrongArguments);
  QList<gallery::Page> pages;
  QString listFile;
  int first = 0;
  try {
    if (!files.isEmpty() && isForFilesPage(files.first())) listFile = files.first();
    pages = gallery::allPages(sampleText(listFile.isEmpty() ? files : QStringList()));
    if (options.isSet(page)) first = pageNamed(options.value(page), pages);
  } catch (const QString& message) {
    return fail(message, cannotRead);
  }

  const bool isUnix = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Unknown;
  if (isUnix && qEnvironmentVariableIsEmpty("DISPLAY") &&
      qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("gallery");
  QApplication::setApplicationVersion(NVLIST_VERSION);
  options.process(application);
  if (options.isSet(dark)) QApplication::setPalette(gallery::darkPalette());

  gallery::GalleryWindow window(std::move(pages));
  window.showPage(first);
  if (!listFile.isEmpty() && !options.isSet(page)) {
    if (options.isSet(screenshot) || !hasDisplay())
      window.openFile(listFile);
    else
      QTimer::singleShot(0, &window, [&] { window.openFile(listFile); });
  }
  if (options.isSet(screenshot)) return saveScreenshot(window, options.value(screenshot));
  if (!hasDisplay()) return saveScreenshot(window, "gallery.png");
  window.show();
  return QApplication::exec();
}
