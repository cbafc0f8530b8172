#pragma once

#include <string>
#include <string_view>

#include <windows.h>
#include <oleauto.h>

// Hosts speak UTF-16, the core UTF-8. Lengths are taken from the BSTR itself, so embedded
// NULs and non-Latin text cross whole both ways.
namespace pellam::win {

std::string utf8(std::wstring_view text);
std::string utf8(BSTR text);
std::wstring wide(std::string_view utf8);
// A new BSTR the caller owns; throws std::bad_alloc when none can be had.
BSTR newBstr(std::string_view utf8);

}  // namespace pellam::win
