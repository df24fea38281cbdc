#include <nvlist/platform/qt/QtPicture.h>

#include <QBuffer>
#include <QCache>
#include <QFile>
#include <QImageReader>
#include <QMutex>
#include <algorithm>
#include <utility>

namespace norvane {
namespace {

/// Converts to the format that Qt paints fastest.
QImage readyToPaint(QImage image) {
  image.setDevicePixelRatio(1);
  return std::move(image).convertToFormat(
      image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

qsizetype pixelsIn(QSize size) { return qsizetype{size.width()} * size.height(); }

/// Decodes the bytes of a file. Null if they are not a picture or have too many pixels, which most
/// formats declare in their header.
QImage decoded(const QByteArray& bytes, qsizetype maximum) {
  QBuffer file;
  file.setData(bytes);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QImageReader reader(&file);
  if (pixelsIn(reader.size()) > maximum) return {};
  QImage image = reader.read();
  return pixelsIn(image.size()) > maximum ? QImage() : image;
}

/// Decoded pixels; the least recently used are dropped first. Lists may live on several threads.
struct Cache {
  QMutex mutex;
  QCache<const QtPicture*, QImage> images{64'000'000};
};

/// Never destroyed: static objects of a host may hold pictures.
Cache& cache() {
  static auto* const cache = new Cache;
  return *cache;
}

}  // namespace

qsizetype QtPicture::pixelBudget() {
  const QMutexLocker lock(&cache().mutex);
  return cache().images.maxCost();
}

void QtPicture::pixelBudget(qsizetype pixels) {
  const QMutexLocker lock(&cache().mutex);
  cache().images.setMaxCost(std::max<qsizetype>(pixels, 0));
}

Picture QtPicture::fromFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  return fromBytes(file.readAll());
}

Picture QtPicture::fromBytes(QByteArray bytes) {
  // Decoding is the only way to know whether it works.
  const QImage image = decoded(bytes, pixelBudget());
  if (image.isNull()) return nullptr;
  return makeRef<QtPicture>(image.size(), std::move(bytes));
}

Picture QtPicture::fromImage(QImage image) {
  if (image.isNull()) return nullptr;
  return makeRef<QtPicture>(readyToPaint(std::move(image)));
}

QtPicture::~QtPicture() {
  if (bytes_.isEmpty()) return;
  const QMutexLocker lock(&cache().mutex);
  cache().images.remove(this);
}

QImage QtPicture::image() const {
  if (bytes_.isEmpty()) return ownImage_;
  {
    const QMutexLocker lock(&cache().mutex);
    if (const QImage* known = cache().images.object(this)) return *known;
  }
  QImage image = readyToPaint(decoded(bytes_, pixelBudget()));
  if (!image.isNull()) {
    const QMutexLocker lock(&cache().mutex);
    cache().images.insert(this, new QImage(image), pixelsIn(image.size()));
  }
  return image;
}

std::vector<std::byte> QtPicture::fileBytes() const {
  QByteArray bytes = bytes_;
  if (bytes.isEmpty()) {
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    ownImage_.save(&file, "PNG");
  }
  const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
  return {first, first + bytes.size()};
}

}  // namespace norvane
