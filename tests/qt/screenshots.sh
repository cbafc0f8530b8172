#!/usr/bin/env bash
# Pictures of every page under a real X server: builds the sample jobs with pellam, opens each
# in the app and saves one PNG per page into the folder given (default build/q/screenshots).
# Usage: tests/qt/screenshots.sh BUILD_DIR [OUT_DIR]
set -euo pipefail
build=$(realpath "${1:?build folder}")
out=$(realpath -m "${2:-$build/screenshots}")
source_dir=$(realpath "$(dirname "$0")/../..")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out" "$work/runtime" && chmod 700 "$work/runtime"
for script in "$source_dir"/examples/*.pellam; do
  name=$(basename "$script" .pellam)
  mkdir -p "$work/$name"
  (cd "$work/$name" && "$build/apps/cli/pellam" run "$script" >/dev/null)
done
mkdir -p "$work/samples"
find "$work" -path "$work/samples" -prune -o -name '*.zpd' -exec cp {} "$work/samples/" \;
PELLAM_SCREENSHOTS="$out" PELLAM_SAMPLES="$work/samples" XDG_RUNTIME_DIR="$work/runtime" \
  xvfb-run -a -s "-screen 0 1280x1024x24" "$build/tests/pellam_qt_tests" --gtest_filter='Screenshots.*'
ls "$out"
