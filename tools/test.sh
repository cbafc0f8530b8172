#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: the Windows build of the core,
# pellam.exe and Pellam.dll first (nothing POSIX-only may creep in), then g++ with -Werror,
# then clang under AddressSanitizer and UndefinedBehaviorSanitizer, the fuzz targets built,
# then the COM server under Wine in both widths.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/packages.sh
ensure_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"

echo "== MinGW-w64: the core, pellam.exe and Pellam.dll"
cmake --preset mingw >/dev/null
cmake --build --preset mingw
echo "built build/mingw/apps/cli/pellam.exe and build/mingw/apps/win/Pellam.dll"

echo "== g++: build and test"
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev

echo "== clang with AddressSanitizer and UndefinedBehaviorSanitizer"
cmake --preset clang-sanitize >/dev/null
cmake --build --preset clang-sanitize
ctest --preset clang-sanitize

echo "== libFuzzer targets: built, so that they keep up with the core (runs are by hand)"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_opener fuzz_script

echo "== COM server under Wine"
bash tools/test-com.sh
