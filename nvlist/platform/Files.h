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
  /// Deletes a file if it exists.
  virtual void removeFile(const std::string& path);
  /// Opens a file for reading, or creates it, replacing an old one, for writing. Throws on failure.
  virtual std::unique_ptr<File> openFile(const std::string& path, FileMode mode);

  /// Decodes the bytes of a picture file. Throws Failure 481 if they are no picture. Default: a
  /// picture of size 0 that keeps any bytes as its file.
  virtual Picture loadPicture(std::vector<std::byte> file);
};

}  // namespace norvane
