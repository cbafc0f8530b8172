#!/usr/bin/env bash
# The form's first paint in round trips to the wineserver, 64-bit: what its time under Wine is
# made of, and a figure that an idle or a busy machine does not change.
#   bench/win/round_trips.sh [RUNS]
# Prints the median count of requests from Load_User_Form to the first painted frame, and from
# making a bare window with one tab control and one combo box to its first painted frame.
set -euo pipefail
cd "$(dirname "$0")/../.."
runs=${1:-5}
command -v strace >/dev/null || { echo "round_trips.sh needs strace" >&2; exit 2; }
cmake --preset mingw >/dev/null && cmake --build --preset mingw --target pellam_dll pellam_form_bench >/dev/null
work=$(mktemp -d /tmp/pellam-trips-XXXXXX)
trap "[ -n \"${KEEP:-}\" ] || rm -rf $work" EXIT
source tests/com/wine_desktop.sh
wine_desktop "$work/prefix"
c=$WINEPREFIX/drive_c/pellam
mkdir -p "$c"
cp build/mingw/apps/win/{Pellam.dll,pellam_form_bench.exe} "$c/"
w regsvr32 /s 'C:\pellam\Pellam.dll'
timeout 300 strace -f -qq -e trace=write,writev -o "$work/trace" wine 'C:\pellam\pellam_form_bench.exe' marked "$runs" >"$work/out" 2>&1
wine_desktop_end
python3 - "$work/trace" <<'PY'
import collections, re, statistics, sys
lines = open(sys.argv[1], errors="replace").read().splitlines()
# A request's fixed part is 64 bytes: the pipe that takes most of those is the request pipe.
pipe = collections.Counter(m.group(1) for l in lines if (m := re.search(r"\bwrite\((\d+), .*\) = 64$", l))).most_common(1)[0][0]
counts, phase, n = collections.defaultdict(list), None, 0
for l in lines:
    if (m := re.search(r'"mark (form|bare|end)(?:\\r)?\\n"', l)):
        if phase and m.group(1) == "end":
            counts[phase].append(n)
        phase, n = (None if m.group(1) == "end" else m.group(1)), 0
    elif phase and re.search(rf"\bwritev?\({pipe}, ", l):
        n += 1
# The first run pays for loading code and classes once.
form, bare = (statistics.median(counts[k][1:] or counts[k]) for k in ("form", "bare"))
print(f"requests to the wineserver to the first paint: Load_User_Form {form:.0f}, bare tab and combo window {bare:.0f}, ratio {form / bare:.2f}")
PY
