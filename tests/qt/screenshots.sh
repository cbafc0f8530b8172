#!/usr/bin/env bash
# Pictures of every page under a real X server of the smallest screen the app is for: builds
# the sample jobs with pellam and a maximal job of every mode with pellam_qt_bench (when built),
# opens each in the app and saves one PNG per page into the folder given.
# Usage: tests/qt/screenshots.sh BUILD_DIR [OUT_DIR] [SCREEN]   (defaults: BUILD_DIR/screenshots, 1024x768)
set -euo pipefail
build=$(realpath "${1:?build folder}")
out=$(realpath -m "${2:-$build/screenshots}")
screen="${3:-1024x768}"
source_dir=$(realpath "$(dirname "$0")/../..")
# No dot in the folder: a job's name runs up to its first dot.
work=$(mktemp -d "${TMPDIR:-/tmp}/pellam-shots-XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir -p "$out" "$work/runtime" && chmod 700 "$work/runtime"
for script in "$source_dir"/examples/*.pellam; do
  name=$(basename "$script" .pellam)
  mkdir -p "$work/$name"
  (cd "$work/$name" && "$build/apps/cli/pellam" run "$script" >/dev/null)
done
mkdir -p "$work/samples"
find "$work" -path "$work/samples" -prune -o \( -name '*.zpd' -o -name '*Labels.txt' \) -exec cp {} "$work/samples/" \;
if [ -x "$build/bench/qt/pellam_qt_bench" ]; then
  QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/runtime" "$build/bench/qt/pellam_qt_bench" maximal "$work/samples"
fi
PELLAM_SCREENSHOTS="$out" PELLAM_SAMPLES="$work/samples" XDG_RUNTIME_DIR="$work/runtime" \
  xvfb-run -a -s "-screen 0 ${screen}x24" "$build/tests/pellam_qt_tests" --gtest_filter='Screenshots.*'
ls "$out"
