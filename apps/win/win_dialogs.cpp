#include "win_dialogs.h"

#include <windows.h>
#include <commdlg.h>

#include "form/module_instance.h"
#include "form/win_metrics.h"
#include "wide_text.h"

namespace pellam::win {

namespace {

// A component's message boxes carry its project's name, as the host's users know them.
constexpr wchar_t kTitle[] = L"PellamSetup";

// The host writes "Desc|*.zpd|All|*.*"; the dialog wants each part NUL-ended and a NUL more.
std::wstring dialogFilter(const std::string& hostFilter) {
  std::wstring filter = wide(hostFilter);
  for (wchar_t& c : filter) {
    if (c == L'|') c = L'\0';
  }
  filter.push_back(L'\0');
  filter.push_back(L'\0');
  return filter;
}

}  // namespace

HWND WinDialogs::owner() const { return owner_ && IsWindowVisible(owner_) ? owner_ : GetActiveWindow(); }

ui::Answer WinDialogs::msgBox(const std::string& text, ui::Buttons buttons) {
  UINT style = MB_OK;
  if (buttons == ui::Buttons::OKCancel) style = MB_OKCANCEL;
  if (buttons == ui::Buttons::YesNo) style = MB_YESNO;
  HWND owner = this->owner();
  if (!owner) style |= MB_TASKMODAL;
  const VisualStyles styles(moduleInstance());
  switch (MessageBoxW(owner, wide(text).c_str(), kTitle, style)) {
    case IDYES: return ui::Answer::Yes;
    case IDNO: return ui::Answer::No;
    case IDOK: return ui::Answer::OK;
    default: return buttons == ui::Buttons::YesNo ? ui::Answer::No : ui::Answer::Cancel;
  }
}

std::string WinDialogs::openFile(const ui::FileDialogRequest& request) {
  const std::wstring filter = dialogFilter(request.filter);
  std::wstring file(32768, L'\0');
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  const VisualStyles styles(moduleInstance());
  dialog.hwndOwner = owner();
  dialog.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
  dialog.nFilterIndex = static_cast<DWORD>(request.filterIndex);
  dialog.lpstrFile = file.data();
  dialog.nMaxFile = static_cast<DWORD>(file.size());
  dialog.Flags = OFN_EXPLORER | (request.hideReadOnly ? OFN_HIDEREADONLY : 0);
  if (!GetOpenFileNameW(&dialog)) return {};  // cancelled, or the dialog failed: nothing chosen
  file.resize(wcslen(file.c_str()));
  return utf8(file);
}

}  // namespace pellam::win
