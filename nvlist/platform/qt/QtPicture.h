#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <nvlist/values/Picture.h>

namespace norvane {

/// A picture that Qt has decoded, together with the bytes of the file it came from.
class QtPicture final : public PictureObject {
 public:
  /// Reads a picture in any format that Qt knows. What cannot be read or decoded gives an empty
  /// reference.
  static Picture fromFile(const QString& path);
  static Picture fromBytes(QByteArray bytes);
  /// A picture that came from no file; empty for a null image. A high-resolution image counts with
  /// all its pixels.
  static Picture fromImage(QImage image);

  QtPicture(QImage image, QByteArray bytes);

  /// Lives as long as the picture.
  const QImage& image() const { return image_; }

  float width() const override { return static_cast<float>(image_.width()); }
  float height() const override { return static_cast<float>(image_.height()); }
  /// Of a picture that came from no file those of a PNG file.
  std::vector<std::byte> fileBytes() const override;

 private:
  QImage image_;
  QByteArray bytes_;
};

}  // namespace norvane
