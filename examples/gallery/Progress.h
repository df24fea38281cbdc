#pragma once

#include <QElapsedTimer>
#include <functional>

#include <nvlist/input/events.h>

namespace gallery {

/// Reports the progress of saving and reading files. A list raises an event for each item, so it is
/// reported only every `interval`.
class Progress : public norvane::__nvList {
 public:
  std::function<void(const char* doing, std::int32_t item)> onTold;

  void ListSaving(norvane::Variant& Index) override { tell("Saving", Index); }
  void ListReading(norvane::Variant& Index) override { tell("Reading", Index); }

 private:
  static constexpr qint64 interval = 40;  ///< milliseconds

  void tell(const char* doing, const norvane::Variant& index) {
    if (sinceTold_.isValid() && sinceTold_.elapsed() < interval) return;
    sinceTold_.start();
    if (onTold) onTold(doing, index.toInt32());
  }

  QElapsedTimer sinceTold_;
};

}  // namespace gallery
