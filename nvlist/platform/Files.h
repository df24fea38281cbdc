#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <nvlist/platform/File.h>
#include <nvlist/platform/InUse.h>
#include <nvlist/values/Picture.h>

namespace norvane {

/// The files that a host names, and the pictures in them. List files and SpEv use it. A host or
/// platform overrides what it stores elsewhere; the defaults use the disk (platform/diskFiles.h).
/// Paths are UTF-8. Any call may throw.
class Files : public InUse<Files> {
 public:
  Files() = default;
  virtual ~Files() = default;

  /// Whether a file or folder of that name exists. `*` and `?` in its last part match any others.
  virtual bool holdsFile(const std::string& path);
  /// Opens a file. Throws on failure.
  virtual std::unique_ptr<File> openFile(const std::string& path, FileMode mode);

  /// Whether lists are saved to a second file that replaces the old one when it is complete
  /// (FileMode::saveBeside), so that an interrupted save leaves the old file intact. Default:
  /// false, a save rewrites the file in place.
  bool savesBeside() const { return savesBeside_; }
  void savesBeside(bool value) { savesBeside_ = value; }

  /// Decodes the bytes of a picture file. Throws Failure 481 if they are no picture. Default: a
  /// picture of size 0 that keeps any bytes as its file.
  virtual Picture loadPicture(std::vector<std::byte> file);

 private:
  bool savesBeside_ = false;
};

}  // namespace norvane
