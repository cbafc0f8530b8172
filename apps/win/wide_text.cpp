#include "wide_text.h"

#include <new>

namespace pellam::win {

std::string utf8(std::wstring_view text) {
  if (text.empty()) return {};
  const int units = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string out(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, out.data(), size, nullptr, nullptr);
  return out;
}

std::string utf8(BSTR text) { return text ? utf8(std::wstring_view(text, SysStringLen(text))) : std::string(); }

std::wstring wide(std::string_view text) {
  if (text.empty()) return {};
  const int bytes = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring out(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, out.data(), size);
  return out;
}

BSTR newBstr(std::string_view text) {
  const std::wstring w = wide(text);
  BSTR out = SysAllocStringLen(w.data(), static_cast<UINT>(w.size()));
  if (!out) throw std::bad_alloc();
  return out;
}

}  // namespace pellam::win
