#!/usr/bin/env bash
# Median time from process start to the first paint of the form, over N runs (default 21),
# beside the same for a bare QMainWindow with one QTabWidget, the two runs taking turns.
# Usage: bench/qt/first_paint.sh BUILD_DIR [JOB.zpd] [N]   (needs a display: xvfb-run works)
set -euo pipefail
bench="${1:?build folder}/bench/qt/pellam_qt_bench"
job="${2:-}"
runs="${3:-21}"
app=()
bare=()
microseconds() {
  local start painted
  start=$(date +%s%N)
  painted=$("$bench" "$@" 2>/dev/null)
  echo $(( (painted - start) / 1000 ))
}
for _ in $(seq "$runs"); do
  app+=("$(microseconds paint $job)")
  bare+=("$(microseconds bare)")
done
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
a=$(median "${app[@]}")
b=$(median "${bare[@]}")
awk -v a="$a" -v b="$b" -v n="$runs" \
  'BEGIN {printf "first paint: median %.1f ms; bare QMainWindow + QTabWidget: median %.1f ms; ratio %.2f (of %d runs each)\n", a/1000, b/1000, a/b, n}'
