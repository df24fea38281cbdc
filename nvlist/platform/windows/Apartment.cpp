#include <nvlist/platform/windows/Apartment.h>

#include <utility>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/windows/WinApplication.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

constexpr wchar_t className[] = L"NorvaneApartment";
/// The timer that checks whether something can be released. Timers of controls count from 2.
constexpr UINT_PTR releaseTimer = 1;
constexpr UINT releaseInterval = 10;
/// Enough for the built-in art and the icons of a long list.
constexpr std::size_t maximumDecoded = 1024;

/// A plain pointer: the destructor of a thread_local object would keep the DLL loaded until its
/// thread ends.
thread_local Apartment* ofThread = nullptr;

void registerClass(WNDPROC procedure) {
  WNDCLASSW look{};
  look.hInstance = thisModule();
  look.lpfnWndProc = procedure;
  look.lpszClassName = className;
  // Fails if another thread has already registered it.
  RegisterClassW(&look);
}

}  // namespace

HINSTANCE thisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&thisModule), &module);
  return module;
}

std::shared_ptr<Apartment> Apartment::current() {
  std::shared_ptr<Apartment> apartment = ofThread ? ofThread->weak_from_this().lock() : nullptr;
  if (!apartment) {
    apartment = std::shared_ptr<Apartment>(new Apartment);
    ofThread = apartment.get();
  }
  return apartment;
}

Apartment::Apartment() {
  registerClass(procedure);
  window_ = CreateWindowExW(0, className, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, thisModule(),
                            nullptr);
  if (!window_) throw Failure::outOfMemory();
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  application_ = std::make_unique<WinApplication>();
}

Apartment::~Apartment() {
  if (ofThread == this) ofThread = nullptr;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

void Apartment::unregisterClass() { UnregisterClassW(className, thisModule()); }

const OlePicture& Apartment::drawable(const Picture& picture) {
  if (!picture) throw Failure::invalidCall();
  if (const auto* own = dynamic_cast<const OlePicture*>(picture.get())) return *own;
  if (decoded_.size() >= maximumDecoded) decoded_.clear();
  // The picture is kept with its decoded form, so that no other one can take its address.
  auto& [kept, decoded] = decoded_[picture.get()];
  if (!kept) {
    kept = picture;
    decoded = OlePicture::fromBytes(picture->fileBytes());
  }
  if (!decoded) throw Failure::invalidPicture();
  return static_cast<const OlePicture&>(*decoded);
}

UINT_PTR Apartment::startTimer(UINT milliseconds, std::function<void()> tick) {
  const UINT_PTR timer = ++lastTimer_;
  if (!SetTimer(window_, timer, milliseconds, nullptr)) return 0;
  timers_[timer] = std::make_shared<std::function<void()>>(std::move(tick));
  return timer;
}

void Apartment::stopTimer(UINT_PTR timer) {
  // A timer message may already be queued; it is ignored.
  if (timers_.erase(timer) != 0) KillTimer(window_, timer);
}

void Apartment::tick(UINT_PTR timer) {
  const auto found = timers_.find(timer);
  if (found == timers_.end()) return;
  // A copy, because a timer may be destroyed in its own tick.
  const auto action = found->second;
  (*action)();
}

void Apartment::release(std::shared_ptr<void> control) {
  released_.push_back(std::move(control));
  releaseWaiting();
}

void Apartment::releaseWaiting() {
  if (running_ > 0 || Trap::anyRuns()) {
    SetTimer(window_, releaseTimer, releaseInterval, nullptr);
    return;
  }
  KillTimer(window_, releaseTimer);
  // The last control may hold the last reference to this.
  const auto self = shared_from_this();
  std::exchange(released_, {}).clear();
}

LRESULT CALLBACK Apartment::procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept {
  auto* const self = reinterpret_cast<Apartment*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self || message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
  try {
    if (wParam == releaseTimer) {
      self->releaseWaiting();
    } else {
      const Running running(*self);
      self->tick(wParam);
    }
  } catch (...) {
    // The caller is the system, which cannot handle it.
  }
  return 0;
}

}  // namespace norvane
