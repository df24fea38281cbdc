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

/// The DLL of the library, or the program it is linked into.
HINSTANCE thisModule();

/// The objects shared by the controls of one thread: a hidden window, fonts, decoded pictures, and
/// the services of the platform. It is created with the first control and destroyed with the last
/// one, and is used only on its thread.
class Apartment : public std::enable_shared_from_this<Apartment> {
 public:
  /// Returns the apartment of the calling thread, creating it on first use.
  static std::shared_ptr<Apartment> current();
  /// To be called before the module is unloaded.
  static void unregisterClass();
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  /// A hidden window. It is the parent of controls without a container, and receives timer
  /// messages.
  HWND window() const { return window_; }
  GdiFaces& faces() { return faces_; }

  /// The picture in the form that the system can draw. Throws Failure 5 for an empty reference, and
  /// Failure 481 for bytes that the system cannot decode.
  const OlePicture& drawable(const Picture& picture);

  /// Calls `tick` at the given interval until stopTimer. Returns 0 if no timer is available.
  UINT_PTR startTimer(UINT milliseconds, std::function<void()> tick);
  void stopTimer(UINT_PTR timer);

  /// Releases a control when no code of the library runs on this thread any more: immediately, or
  /// later from the message loop, because a host may release a control inside one of its events.
  void release(std::shared_ptr<void> control);

  /// Counts the procedures of the library that the system has called and that have not yet
  /// returned.
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
