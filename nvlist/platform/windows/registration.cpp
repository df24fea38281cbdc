#include <nvlist/platform/windows/registration.h>

#include <nvlist/platform/windows/Apartment.h>
#include <nvlist/platform/windows/classes.h>
#include <nvlist/platform/windows/failures.h>
#include <nvlist/platform/windows/resources.h>

// In oleaut32 since Windows Vista; MinGW's headers lack them.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib*, OLECHAR* path, OLECHAR* helpFolder);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID, WORD major, WORD minor, LCID, SYSKIND);

namespace norvane {
namespace {

constexpr const wchar_t* version = L"1.0";
constexpr const wchar_t* controlCategory = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr SYSKIND bitness = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
constexpr REGSAM otherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

std::wstring textOf(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  return text;
}

std::wstring modulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

/// The registry branch that contains the classes of a scope.
class Branch {
 public:
  explicit Branch(Scope scope)
      : root_(scope == Scope::machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER) {}

  void set(const std::wstring& key, const wchar_t* name, const wchar_t* value) {
    const auto size =
        static_cast<DWORD>(static_cast<std::size_t>(lstrlenW(value) + 1) * sizeof *value);
    const LSTATUS status = RegSetKeyValueW(root_, (base + key).c_str(), name, REG_SZ, value, size);
    if (status != ERROR_SUCCESS) isComplete_ = false;
  }
  void set(const std::wstring& key, const wchar_t* value) { set(key, nullptr, value); }
  void set(const std::wstring& key, const std::wstring& value) { set(key, nullptr, value.c_str()); }
  void remove(const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(root_, (base + key).c_str());
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) isComplete_ = false;
  }
  bool holdsInOtherBitness(const std::wstring& key) const {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root_, (base + key).c_str(), 0, KEY_READ | otherBitness, &opened) !=
        ERROR_SUCCESS)
      return false;
    RegCloseKey(opened);
    return true;
  }
  /// Whether every change was possible.
  bool isComplete() const { return isComplete_; }

 private:
  inline static const std::wstring base = L"Software\\Classes\\";

  HKEY root_;
  bool isComplete_ = true;
};

std::wstring nameOf(const RegisteredClass& item) { return std::wstring(L"Norvane.") + item.name; }
std::wstring keyOf(const RegisteredClass& item) { return L"CLSID\\" + textOf(item.id); }

void registerClass(Branch& branch, const RegisteredClass& item, const std::wstring& path) {
  const std::wstring name = nameOf(item), versioned = name + L".1", key = keyOf(item);
  for (const std::wstring& each : {name, versioned}) {
    branch.set(each, item.description);
    branch.set(each + L"\\CLSID", textOf(item.id));
  }
  branch.set(name + L"\\CurVer", versioned);
  branch.set(key, item.description);
  branch.set(key + L"\\ProgID", versioned);
  branch.set(key + L"\\VersionIndependentProgID", name);
  branch.set(key + L"\\InprocServer32", path);
  branch.set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  branch.set(key + L"\\TypeLib", textOf(libraryId()));
  branch.set(key + L"\\Version", version);
  branch.set(key + L"\\Programmable", L"");
  if (!item.isControl) return;
  branch.set(key + L"\\Control", L"");
  branch.set(key + L"\\Implemented Categories\\" + controlCategory, L"");
  branch.set(key + L"\\ToolboxBitmap32", path + L", " + std::to_wstring(toolboxBitmap));
  branch.set(key + L"\\MiscStatus", L"0");
  branch.set(key + L"\\MiscStatus\\1", std::to_wstring(controlMiscStatus));
}

void unregisterClass(Branch& branch, const RegisteredClass& item) {
  branch.remove(keyOf(item));
  if (branch.holdsInOtherBitness(keyOf(item))) return;
  branch.remove(nameOf(item));
  branch.remove(nameOf(item) + L".1");
}

HRESULT registerTypes(Scope scope, std::wstring path) {
  ComPtr<ITypeLib> library;
  HRESULT answer = LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.put());
  if (SUCCEEDED(answer))
    answer = scope == Scope::machine ? RegisterTypeLib(library.get(), path.data(), nullptr)
                                     : RegisterTypeLibForUser(library.get(), path.data(), nullptr);
  return SUCCEEDED(answer) ? S_OK : SELFREG_E_TYPELIB;
}

}  // namespace

HRESULT registerLibrary(Scope scope) {
  HRESULT answer = SELFREG_E_CLASS;
  const HRESULT written = guarded([&] {
    const std::wstring path = modulePath();
    Branch branch(scope);
    for (const RegisteredClass& item : registeredClasses()) registerClass(branch, item, path);
    if (branch.isComplete()) answer = registerTypes(scope, path);
  });
  if (SUCCEEDED(written) && SUCCEEDED(answer)) return S_OK;
  unregisterLibrary(scope);
  return FAILED(written) ? written : answer;
}

HRESULT unregisterLibrary(Scope scope) {
  const HRESULT types = scope == Scope::machine
                            ? UnRegisterTypeLib(libraryId(), 1, 0, LANG_NEUTRAL, bitness)
                            : UnRegisterTypeLibForUser(libraryId(), 1, 0, LANG_NEUTRAL, bitness);
  HRESULT answer = SELFREG_E_CLASS;
  const HRESULT removed = guarded([&] {
    Branch branch(scope);
    for (const RegisteredClass& item : registeredClasses()) unregisterClass(branch, item);
    if (branch.isComplete()) answer = S_OK;
  });
  if (FAILED(removed)) return removed;
  if (FAILED(answer)) return answer;
  return SUCCEEDED(types) || types == TYPE_E_REGISTRYACCESS ? S_OK : SELFREG_E_TYPELIB;
}

}  // namespace norvane
