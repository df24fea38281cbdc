#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <nvlist/values/Ref.h>

namespace norvane {

/// A picture as the library sees it: a handle, a size and the bytes of its file. Platforms derive
/// from it and add what they need to draw it. Immutable, so threads may share it.
class PictureObject : public Shared {
 public:
  virtual ~PictureObject() = default;

  /// Identifies the picture; never 0, which means "no picture".
  virtual std::uintptr_t handle() const { return reinterpret_cast<std::uintptr_t>(this); }

  /// Natural size in pixels.
  virtual float width() const = 0;
  virtual float height() const = 0;

  /// The bytes of a picture file, which list files contain: the file it was read from, or one that
  /// the platform encodes. Default: empty, no file.
  virtual std::vector<std::byte> fileBytes() const { return {}; }

  /// The name of the picture in recordings. Default: empty, which shows its size alone.
  virtual std::string description() const { return {}; }
};

/// A reference to a shared picture; may be empty. Pictures of the host are never copied.
using Picture = Ref<PictureObject>;

}  // namespace norvane
