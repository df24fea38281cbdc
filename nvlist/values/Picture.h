#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <nvlist/values/Ref.h>

namespace norvane {

/// A picture as the library sees it: a handle, a size and the file it came from. Platforms derive
/// from it and keep what they draw with.
class PictureObject : public Shared {
 public:
  virtual ~PictureObject() = default;

  /// What tells pictures apart; never 0, which stands for "no picture".
  virtual std::uintptr_t handle() const { return reinterpret_cast<std::uintptr_t>(this); }

  /// Natural size in pixels.
  virtual float width() const = 0;
  virtual float height() const = 0;

  /// The bytes of a file of the picture: of the one it was read from, or of one that the platform
  /// makes; empty where there is none. List files hold them.
  virtual std::vector<std::byte> fileBytes() const { return {}; }

  /// What a recording calls the picture; empty: its size alone.
  virtual std::string description() const { return {}; }
};

/// A reference to a shared picture; it may be empty. The host's picture is shared, never copied.
using Picture = Ref<PictureObject>;

}  // namespace norvane
