#!/usr/bin/env bash
# The form's first paint and working set under Wine on Xvfb, 64-bit:
#   bench/win/form_paint.sh [RUNS]
# Builds the MinGW programs and a maximal job, then prints the medians of RUNS (15) first
# paints of the form against a bare window with one tab control and one combo box, and the
# working set after every page of the maximal job was shown.
set -euo pipefail
cd "$(dirname "$0")/../.."
runs=${1:-15}
cmake --preset mingw >/dev/null && cmake --build --preset mingw --target pellam_dll pellam_form_bench >/dev/null
cmake --preset dev >/dev/null && cmake --build --preset dev --target pellam_maximal_job >/dev/null
work=$(mktemp -d /tmp/pellam-formbench-XXXXXX)
trap 'rm -rf "$work"' EXIT
build/dev/bench/pellam_maximal_job "$work" >/dev/null
source tests/com/wine_desktop.sh
wine_desktop "$work/prefix"
c=$WINEPREFIX/drive_c/pellam
mkdir -p "$c"
cp build/mingw/apps/win/{Pellam.dll,pellam_form_bench.exe} "$work"/Max.zpd "$c/"
w regsvr32 /s 'C:\pellam\Pellam.dll'
limit=300 w 'C:\pellam\pellam_form_bench.exe' paint "$runs"
limit=300 w 'C:\pellam\pellam_form_bench.exe' memory 'C:\pellam\Max.zpd'
wine_desktop_end
