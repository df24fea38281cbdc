#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <nvlist/values/Picture.h>

namespace norvane {

/// A picture that Qt can decode. One that was read from a file keeps only the bytes of the file;
/// its pixels are decoded when they are needed and cached. All pictures share one cache, whose size
/// is limited, so that a list with many large icons takes no more memory than the cache.
class QtPicture final : public PictureObject {
 public:
  /// Reads a picture in any format that Qt knows. Returns an empty reference if the file cannot be
  /// read or decoded, has more pixels than the budget, or exceeds QImageReader::allocationLimit().
  static Picture fromFile(const QString& path);
  static Picture fromBytes(QByteArray bytes);
  /// Wraps an image, which stays in memory and does not count towards the budget. Returns an empty
  /// reference for a null image. The device pixel ratio is ignored: all pixels count.
  static Picture fromImage(QImage image);

  /// The number of pixels that the cache may hold, and that a picture from a file may have. Each
  /// takes four bytes. Default: 64 million. Negative values count as 0, which refuses all pictures
  /// from files. Setting it drops cached pixels that no longer fit.
  static qsizetype pixelBudget();
  static void pixelBudget(qsizetype pixels);

  ~QtPicture() override;

  /// The pixels. Null if they can no longer be decoded, because memory or the budget is exhausted.
  QImage image() const;

  float width() const override { return static_cast<float>(size_.width()); }
  float height() const override { return static_cast<float>(size_.height()); }
  /// The bytes of the file it was read from, or those of a PNG file for one made from an image.
  std::vector<std::byte> fileBytes() const override;

 private:
  template <class T, class... Arguments>
  friend Ref<T> makeRef(Arguments&&... arguments);

  explicit QtPicture(QImage image) : size_(image.size()), ownImage_(std::move(image)) {}
  QtPicture(QSize size, QByteArray bytes) : size_(size), bytes_(std::move(bytes)) {}

  QSize size_;
  QImage ownImage_;
  QByteArray bytes_;
};

}  // namespace norvane
