#include <nvlist/platform/windows/NorvaneAbout.h>

#include <nvlist/platform/windows/Apartment.h>
#include <nvlist/platform/windows/resources.h>

namespace norvane {
namespace {

struct Texts {
  std::wstring name, version;
};

INT_PTR CALLBACK procedure(HWND form, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_INITDIALOG: {
      const auto& texts = *reinterpret_cast<const Texts*>(lParam);
      SetDlgItemTextW(form, aboutName, texts.name.c_str());
      SetDlgItemTextW(form, aboutVersion, texts.version.c_str());
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL) return FALSE;
      EndDialog(form, IDOK);
      return TRUE;
    default:
      return FALSE;
  }
}

}  // namespace

bool showNorvaneAbout(HWND owner, std::string_view name, std::string_view version) {
  const Texts texts{wide(name), L"Version " + wide(version)};
  return DialogBoxParamW(thisModule(), L"NorvaneAbout", owner, procedure,
                         reinterpret_cast<LPARAM>(&texts)) > 0;
}

}  // namespace norvane
