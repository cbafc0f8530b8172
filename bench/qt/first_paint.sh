#!/usr/bin/env bash
# Median time from process start to the form's first paint, over N runs (default 21).
# Usage: bench/qt/first_paint.sh BUILD_DIR [JOB.zpd] [N]   (needs a display: xvfb-run works)
set -euo pipefail
bench="${1:?build folder}/bench/qt/pellam_qt_bench"
job="${2:-}"
runs="${3:-21}"
times=()
for _ in $(seq "$runs"); do
  start=$(date +%s%N)
  painted=$("$bench" paint $job 2>/dev/null)
  times+=($(( (painted - start) / 1000 )))
done
printf '%s\n' "${times[@]}" | sort -n | awk '{a[NR]=$1} END {printf "first paint: median %.1f ms of %d\n", a[int((NR+1)/2)]/1000, NR}'
