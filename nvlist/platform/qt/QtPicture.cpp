#include <nvlist/platform/qt/QtPicture.h>

#include <QBuffer>
#include <QFile>
#include <utility>

namespace norvane {
namespace {

/// In the format that Qt paints fastest.
QImage readyToPaint(QImage image) {
  image.setDevicePixelRatio(1);
  return std::move(image).convertToFormat(
      image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

}  // namespace

Picture QtPicture::fromFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  return fromBytes(file.readAll());
}

Picture QtPicture::fromBytes(QByteArray bytes) {
  QImage image = QImage::fromData(bytes);
  if (image.isNull()) return nullptr;
  return makeRef<QtPicture>(std::move(image), std::move(bytes));
}

Picture QtPicture::fromImage(QImage image) {
  if (image.isNull()) return nullptr;
  return makeRef<QtPicture>(std::move(image), QByteArray());
}

QtPicture::QtPicture(QImage image, QByteArray bytes)
    : image_(readyToPaint(std::move(image))), bytes_(std::move(bytes)) {}

std::vector<std::byte> QtPicture::fileBytes() const {
  QByteArray bytes = bytes_;
  if (bytes.isEmpty()) {
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    image_.save(&file, "PNG");
  }
  const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
  return {first, first + bytes.size()};
}

}  // namespace norvane
