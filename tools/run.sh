#!/usr/bin/env bash
# Installs what is missing, builds pellam, builds the sample jobs from their scripts and shows
# one: in pellam-setup when a display is present, otherwise printed by `pellam show`.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/packages.sh
desktop=""
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then desktop=1; fi
if [ -n "$desktop" ]; then
  ensure_packages "${BUILD_PACKAGES[@]}" qt6-base-dev
else
  ensure_packages "${BUILD_PACKAGES[@]}"
fi
cmake --preset app >/dev/null
cmake --build --preset app
pellam="$PWD/build/app/apps/cli/pellam"
# The sample jobs are rebuilt every time, each script in a folder of its own, so they always
# match the scripts in examples/.
rm -rf build/app/examples
for script in examples/*.pellam; do
  name=$(basename "$script" .pellam)
  mkdir -p "build/app/examples/$name"
  (cd "build/app/examples/$name" && "$pellam" run "../../../../$script" >/dev/null)
done
job=build/app/examples/room-combine/samples/Conference.zpd
if [ -n "$desktop" ] && [ -x build/app/apps/qt/pellam-setup ]; then
  exec build/app/apps/qt/pellam-setup "$job"
fi
exec "$pellam" show "$job"
