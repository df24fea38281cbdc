#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <nvlist/platform/windows/GdiFace.h>
#include <nvlist/platform/windows/OlePicture.h>
#include <nvlist/values/Picture.h>

namespace norvane {

class WinApplication;

/// The library, or the program that it is linked to.
HINSTANCE thisModule();

/// What the controls of one thread share: a hidden window, the fonts in use, decoded pictures, the
/// program around them. It is made with the first of them and ends with the last. All of it is used
/// on its thread alone.
class Apartment : public std::enable_shared_from_this<Apartment> {
 public:
  /// That of the calling thread.
  static std::shared_ptr<Apartment> current();
  /// Before the module is unloaded.
  static void unregisterClass();
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// A hidden window. Controls without a container are children of it, and timers tick by it.
  HWND window() const { return window_; }
  GdiFaces& faces() { return faces_; }

  /// The picture in the form in which the system draws it. Throws Failure 5 for an empty reference,
  /// 481 for bytes that the system cannot decode.
  const OlePicture& drawable(const Picture& picture);

  /// Calls `tick` every so many milliseconds until stopTimer. 0 if there is no timer left.
  UINT_PTR startTimer(UINT milliseconds, std::function<void()> tick);
  void stopTimer(UINT_PTR timer);

  /// Lets go of something when no code of the library runs on this thread any more: at once, or
  /// later from the message loop. A control ends this way, since its host may release it inside one
  /// of its events.
  void release(std::shared_ptr<void> control);

  /// Counts the procedures of the library that the system has called and that have not returned.
  class Running {
   public:
    explicit Running(Apartment& apartment) : apartment_(apartment.shared_from_this()) {
      ++apartment_->running_;
    }
    ~Running() { --apartment_->running_; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    std::shared_ptr<Apartment> apartment_;
  };

 private:
  Apartment();
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  void tick(UINT_PTR timer);
  void releaseWaiting();

  HWND window_ = nullptr;
  GdiFaces faces_;
  std::map<const PictureObject*, std::pair<Picture, Picture>> decoded_;
  UINT_PTR lastTimer_ = 1;
  std::map<UINT_PTR, std::shared_ptr<std::function<void()>>> timers_;
  std::vector<std::shared_ptr<void>> released_;
  int running_ = 0;
  std::unique_ptr<WinApplication> application_;
};

}  // namespace norvane
