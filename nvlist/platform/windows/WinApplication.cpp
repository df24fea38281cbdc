#include <nvlist/platform/windows/WinApplication.h>

#include <algorithm>
#include <array>
#include <vector>

#include <nvlist/platform/windows/ErrorReporter.h>
#include <nvlist/platform/windows/NorvaneAbout.h>
#include <nvlist/platform/windows/OlePicture.h>
#include <nvlist/platform/windows/WinTipWindow.h>
#include <nvlist/values/Failure.h>

#include <mmsystem.h>
#include <uxtheme.h>

namespace norvane {
namespace {

/// Read and write access; these flags are part of the published behaviour.
constexpr REGSAM settingsAccess = 0x2003F;

std::wstring programFile() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

/// All zero if the program has no version.
VS_FIXEDFILEINFO versionOf(const std::wstring& file) {
  DWORD unused = 0;
  std::vector<std::byte> block(GetFileVersionInfoSizeW(file.c_str(), &unused));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  const bool isFound =
      !block.empty() &&
      GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) &&
      VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &size);
  return isFound && fixed && size >= sizeof *fixed ? *fixed : VS_FIXEDFILEINFO{};
}

struct RegistryKey {
  HKEY handle = nullptr;
  ~RegistryKey() {
    if (handle) RegCloseKey(handle);
  }
};

/// Formats with the user's settings; `format` is GetDateFormatW or GetTimeFormatW.
template <class Format>
std::string formatted(Format&& format) {
  std::array<wchar_t, 128> text{};
  const int length = format(text.data(), static_cast<int>(text.size()));
  return narrow(std::wstring_view(text.data(), static_cast<std::size_t>(std::max(length, 1) - 1)));
}

}  // namespace

WinApplication::WinApplication() {
  if (!Program::anyInUse()) program_ = std::make_unique<WinProgram>();
  if (!Files::anyInUse()) files_ = std::make_unique<WinFiles>();
  if (!Desktop::anyInUse()) desktop_ = std::make_unique<WinDesktop>();
}

std::shared_ptr<ErrorHandler> WinProgram::createErrorHandler() {
  if (auto registered = Program::createErrorHandler()) return registered;
  return ErrorReporter::create();
}

ApplicationFacts WinProgram::facts() {
  const std::wstring file = programFile();
  const std::size_t folder = std::min(file.rfind(L'\\'), file.size());
  const std::size_t name = folder == file.size() ? 0 : folder + 1;
  const std::size_t ending = std::max(std::min(file.rfind(L'.'), file.size()), name);
  const VS_FIXEDFILEINFO version = versionOf(file);
  return {narrow(std::wstring_view(file).substr(name, ending - name)),
          HIWORD(version.dwFileVersionMS), LOWORD(version.dwFileVersionMS),
          LOWORD(version.dwFileVersionLS), narrow(std::wstring_view(file).substr(0, folder))};
}

std::string WinProgram::programPath() { return narrow(programFile()); }

Variant WinProgram::readSetting(std::string_view key, std::string_view name) {
  RegistryKey opened;
  const std::wstring value = wide(name);
  DWORD type = REG_NONE;
  DWORD size = 0;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, wide(key).c_str(), 0, settingsAccess, &opened.handle) !=
          ERROR_SUCCESS ||
      RegQueryValueExW(opened.handle, value.c_str(), nullptr, &type, nullptr, &size) !=
          ERROR_SUCCESS)
    return {};
  // One extra character, because the value may lack the terminating zero.
  std::vector<wchar_t> data(size / sizeof(wchar_t) + 2);
  if (RegQueryValueExW(opened.handle, value.c_str(), nullptr, &type,
                       reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS)
    return {};
  if (type == REG_SZ || type == REG_EXPAND_SZ) return narrow(std::wstring_view(data.data()));
  if (type == REG_DWORD && size == sizeof(DWORD))
    return static_cast<std::int32_t>(data[0] | static_cast<std::uint32_t>(data[1]) << 16);
  return {};
}

void WinProgram::appendToFile(const std::string& path, const std::string& text) {
  const HANDLE file = CreateFileW(wide(path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw Failure(75, "Path/File access error");
  DWORD written = 0;
  const BOOL isWritten =
      WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
  if (!isWritten || written != text.size()) throw Failure(75, "Path/File access error");
}

std::string WinProgram::dateText() {
  return formatted([](wchar_t* text, int size) {
    return GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, size);
  });
}

std::string WinProgram::timeText() {
  return formatted([](wchar_t* text, int size) {
    return GetTimeFormatW(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, text, size);
  });
}

SystemVersion WinDesktop::systemVersion() {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (!GetVersionExW(&version)) return {};
  return {static_cast<std::int32_t>(version.dwPlatformId),
          static_cast<std::int32_t>(version.dwMajorVersion),
          static_cast<std::int32_t>(version.dwMinorVersion)};
}

std::int32_t WinDesktop::currentThemeName(std::span<char16_t> themeFile,
                                          std::span<char16_t> colourScheme,
                                          std::span<char16_t> size) {
  const auto buffer = [](std::span<char16_t> of) { return reinterpret_cast<wchar_t*>(of.data()); };
  const auto length = [](std::span<char16_t> of) { return static_cast<int>(of.size()); };
  return GetCurrentThemeName(buffer(themeFile), length(themeFile), buffer(colourScheme),
                             length(colourScheme), buffer(size), length(size));
}

std::int16_t WinDesktop::asyncKeyState(std::int32_t key) { return GetAsyncKeyState(key); }

void WinDesktop::playSound(const std::string& path) {
  sndPlaySoundW(wide(path).c_str(), SND_ASYNC | SND_NODEFAULT);
}

std::shared_ptr<TipWindow> WinDesktop::createTipWindow(std::int32_t form) {
  return WinTipWindow::create(form);
}

void WinProgram::MsgBox(std::string_view text, std::int32_t style, std::string_view title) {
  // Without an owner the box could open behind the window that waits for it.
  MessageBoxW(GetActiveWindow(), wide(text).c_str(), wide(title).c_str(),
              static_cast<UINT>(style) | MB_TASKMODAL);
}

void WinProgram::showAbout(std::string_view name, std::string_view version) {
  if (!showNorvaneAbout(GetActiveWindow(), name, version)) Program::showAbout(name, version);
}

Picture WinFiles::loadPicture(std::vector<std::byte> file) {
  Picture picture = OlePicture::fromBytes(file);
  if (!picture) throw Failure::invalidPicture();
  return picture;
}

}  // namespace norvane
