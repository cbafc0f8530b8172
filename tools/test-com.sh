#!/usr/bin/env bash
# The COM server under Wine, both widths: builds Pellam.dll for i686 and x86_64, runs the host
# scripts of tests/com in a fresh prefix per width and compares what they print, the registry
# and the files they save with what pellam writes on Linux. 64-bit Wine runs on the host; 32-bit
# Wine on the host when wine32:i386 installs, else in a Debian chroot (tools/wine-chroot.sh).
#   tools/test-com.sh [--bench]     --bench also times 100 saves of a maximal job
set -uo pipefail
cd "$(dirname "$0")/.."
source tools/packages.sh
bench=0
[ "${1:-}" = --bench ] && bench=1
t0=$(date +%s)
ensure_packages cmake ninja-build g++ libcurl4-openssl-dev g++-mingw-w64-i686 g++-mingw-w64-x86-64 mingw-w64-tools \
  wine wine64 libwine-dev fonts-wine debootstrap python3-pyftpdlib xvfb || exit 1
echo "== COM: packages $(( $(date +%s) - t0 )) s"

set -e
for preset in mingw mingw-i686; do
  cmake --preset $preset >/dev/null
  cmake --build --preset $preset
done
cmake --preset dev >/dev/null
cmake --build --preset dev --target pellam $([ $bench = 0 ] || echo pellam_maximal_job)
set +e
pellam=$PWD/build/dev/apps/cli/pellam

# No dot in the folder: a job path is cut at its first dot.
work=$(mktemp -d /tmp/pellam-com-XXXXXX)
sims=()
trap '[ ${#sims[@]} = 0 ] || kill "${sims[@]}" 2>/dev/null; [ -n "${KEEP:-}" ] || rm -rf "$work"' EXIT

# The controller's FTP service for pellam.exe's upload through WinINet: one simulator per
# behaviour on the host's loopback, which the chroot shares. Each line of controllers.txt is
# what the leg uploads: a name, the net id and the port.
controller() {  # controller NAME ARGS...: its port lands in $work/sim-NAME/port
  local name=$1
  shift
  mkdir -p "$work/sim-$name/disk"
  /usr/bin/python3 tests/support/controller_sim.py --port-file "$work/sim-$name/port" --root "$work/sim-$name/disk" \
    "$@" >/dev/null 2>&1 &
  sims+=($!)
  for _ in $(seq 150); do [ -s "$work/sim-$name/port" ] && break; sleep 0.1; done
}
controller taking --stations=5
controller refusing --stations=5 --refuse-login
controller failing --stations=5 --fail-after-transfer
port() { cat "$work/sim-$1/port"; }
closed=$(/usr/bin/python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
printf '%s\n' "completed 5 $(port taking)" "completed-again 5 $(port taking)" "no-station 6 $(port taking)" \
  "login-refused 5 $(port refusing)" "451-after-data 5 $(port failing)" "unreachable 5 $closed" >"$work/controllers.txt"

# Linux's side: the sample jobs from examples/, each opened and saved again as the host does.
linux=$work/linux
mkdir -p "$linux/samples" "$linux/saved"
for script in examples/*.pellam; do
  mkdir -p "$linux/$(basename "$script")"
  (cd "$linux/$(basename "$script")" && "$pellam" run "$OLDPWD/$script" >/dev/null && { [ ! -d samples ] || cp samples/* ../samples/; }) ||
    echo "example failed: $script"
done
for zpd in "$linux"/samples/*.zpd; do
  name=$(basename "$zpd" .zpd)
  printf 'clock "2026-11-23 12:00:00"\ncall Initailize_Pellam_Variables_And_Form\ncall ReadZPD_ImageFile "%s"\ncall Create_Pellam_Zpd "%s"\n' \
    "$zpd" "$linux/saved/$name.txt" | "$pellam" run - >/dev/null
done
if [ $bench = 1 ]; then
  mkdir -p "$work/maximal"
  build/dev/bench/pellam_maximal_job "$work/maximal" 100 >"$work/linux_save.txt"
fi

stage() {  # stage WIDTH FOLDER
  local build=build/mingw
  [ "$1" = 32 ] && build=build/mingw-i686
  mkdir -p "$2"
  cp "$build/apps/win/Pellam.dll" "$build/apps/win/pellam_vtable_client.exe" tests/com/*.{vbs,js,answers,sh,txt} examples/*.vbs "$2/"
  cp -r "$linux/samples" "$2/"
  cp "$build/apps/cli/pellam.exe" "$work/controllers.txt" "$2/"
  cp "$linux/samples/Theatre.zpd" "$2/Upload.zpd"
  [ $bench = 0 ] || cp -r "$work/maximal" "$2/"
  [ "$1" = 64 ] || cp build/mingw/apps/win/Pellam.dll "$2/Pellam64.dll"
}

# wine32:i386 needs i386 libraries of the very versions of the amd64 ones; when apt cannot
# give them, the architecture is taken away again so the machine's apt stays as it was.
host_wine32() {
  dpkg -s wine32:i386 >/dev/null 2>&1 && return 0
  dpkg --add-architecture i386
  if apt-get update -qq >/dev/null 2>&1 &&
     DEBIAN_FRONTEND=noninteractive timeout 900 apt-get install -y -qq --no-install-recommends wine32:i386 >/dev/null 2>&1; then
    return 0
  fi
  dpkg --remove-architecture i386 2>/dev/null
  apt-get update -qq >/dev/null 2>&1
  return 1
}

passed=0 failed=0
check() {  # check NAME EXPECTED ACTUAL
  if diff -u "$2" "$3" >"$work/diff" 2>&1; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAILED: $1"
    head -40 "$work/diff"
  fi
}

judge() {  # judge WIDTH RESULTS
  local width=$1 r=$2 s
  echo "== COM $width-bit: $(tr '\n' ' ' <"$r/times.txt")"
  check "$width-bit registry" <(sed "s/{WIDTH}/$width/g" tests/com/expected/registry.out) "$r/registry.txt"
  for s in members by_value samples form typelib vtable_members vtable_lifetime open-and-save; do
    check "$width-bit $s" "tests/com/expected/$s.out" "$r/$s.txt"
  done
  [ "$width" = 64 ] || check "both widths registered" tests/com/expected/both_widths.out "$r/both_widths.txt"
  check "$width-bit upload" tests/com/expected/upload.out "$r/upload.txt"
  check "$width-bit upload arrived whole" <(od -An -tx1 "$linux/samples/Theatre.zpd") \
    <(od -An -tx1 "$work/sim-taking/disk/Q9z5.zpd" 2>&1)
  rm -f "$work/sim-taking/disk/Q9z5.zpd"
  for f in "$linux"/saved/*; do
    check "$width-bit saved $(basename "$f") as on Linux" <(od -An -tx1 "$f") <(od -An -tx1 "$r/out/windows/$(basename "$f")")
    # the job saved through the form members is the opened sample itself
    [ "$(basename "$f")" = Theatre.zpd ] && check "$width-bit form save" <(od -An -tx1 "$f") <(od -An -tx1 "$r/out/form/Shown.zpd")
  done
  [ -f "$r/save_maximal.txt" ] && echo "$width-bit COM save: $(head -1 "$r/save_maximal.txt"), Linux: $(cat "$work/linux_save.txt")"
}

t1=$(date +%s)
stage 64 "$work/w64"
echo "== COM 64-bit leg: host Wine"
bash tests/com/leg.sh 64 "$work/w64"
judge 64 "$work/w64/results"
echo "== COM 64-bit minutes: $(( ($(date +%s) - t1 + 59) / 60 ))"

# The form's window, both widths: the room-combine example at a fixed time, since its report
# carries the time of the save.
{ echo 'clock "2026-11-23 12:00:00"'; cat examples/room-combine.pellam; } >"$work/room-combine.pellam"
mkdir -p "$linux/drive" && (cd "$linux/drive" && "$pellam" run "$work/room-combine.pellam" >../drive.out)
stage_form() {  # stage_form WIDTH FOLDER
  local build=build/mingw
  [ "$1" = 32 ] && build=build/mingw-i686
  mkdir -p "$2"
  cp "$build"/apps/win/{Pellam.dll,pellam-setup.exe,pellam_form_driver.exe,pellam_form_layout.exe} \
    tests/com/form_leg.sh tests/com/wine_desktop.sh "$work/room-combine.pellam" "$2/"
  cp -r "$linux/samples" "$2/"
}
pictures() { grep '^picture' "$1" | sed 's/.*\\[a-z]*-//; s/\.bmp / /' | cut -d' ' -f1; }
judge_form() {  # judge_form WIDTH RESULTS: the pictures land in the width's build folder
  local width=$1 r=$2 shots=build/mingw/screenshots f
  [ "$width" = 32 ] && shots=build/mingw-i686/screenshots
  rm -rf "$shots" && mkdir -p "$shots"
  python3 tests/com/bmp_to_png.py "$shots" "$r"/shots/*.bmp
  echo "== COM form $width-bit: $(cat "$r/times.txt"), pictures in $shots"
  check "$width-bit form driven by its controls: the messages" <(grep '^msgbox' "$linux/drive.out"; echo DONE) "$r/drive.txt"
  for f in "$linux"/drive/samples/*; do
    check "$width-bit form driven by its controls: $(basename "$f") as on Linux" <(od -An -tx1 "$f") \
      <(od -An -tx1 "$r/drive/samples/$(basename "$f")")
  done
  check "$width-bit form pages from Pellam.dll" tests/com/expected/form_pages.out <(pictures "$r/pages.txt"; tail -1 "$r/pages.txt")
  check "$width-bit form pages from pellam-setup.exe" tests/com/expected/form_pages.out \
    <(pictures "$r/setup_pages.txt"; grep -c DONE "$r/setup_pages.txt" | sed 's/^5$/DONE/')
  check "$width-bit form fits 1024x768" /dev/null <(grep '^picture' "$r/pages.txt" "$r/setup_pages.txt" |
    awk '{split($NF, s, "x"); if (s[1] > 1024 || s[2] > 768) print}')
  check "$width-bit form texts fit at 96 and 144 dpi" <(echo "0 cut off") <(tail -1 "$r/layout.txt" | grep -o '[0-9]* cut off')
}

t3=$(date +%s)
stage_form 64 "$work/form"
echo "== COM form: 64-bit, host Wine on Xvfb"
bash "$work/form/form_leg.sh" 64 "$work/form"
judge_form 64 "$work/form/results/form"
echo "== COM form minutes: $(( ($(date +%s) - t3 + 59) / 60 ))"

t2=$(date +%s)
# 32-bit Wine on the host, else in the chroot, where `run32` runs a command and `in32` names a
# path as it is seen from there.
top=
if host_wine32; then
  echo "== COM 32-bit leg: host Wine (wine32:i386)"
  root= top=$work/w32
elif root=$(bash tools/wine-chroot.sh ensure); then
  echo "== COM 32-bit leg: Debian chroot $root (wine32:i386 would not install on the host)"
  top=$(mktemp -d "$root/tmp/pellam-com-XXXXXX")
else
  echo "FAILED: no 32-bit Wine, neither on the host nor in a chroot"
  failed=$((failed + 1))
fi
if [ -n "$top" ]; then
  run32() { if [ -n "$root" ]; then bash tools/wine-chroot.sh enter "$@"; else "$@"; fi; }
  in32() { echo "${1#"$root"}"; }
  stage 32 "$top/com"
  run32 bash "$(in32 "$top/com")/leg.sh" 32 "$(in32 "$top/com")"
  judge 32 "$top/com/results"
  stage_form 32 "$top/form"
  run32 bash "$(in32 "$top/form")/form_leg.sh" 32 "$(in32 "$top/form")"
  judge_form 32 "$top/form/results/form"
  [ -z "$root" ] || rm -rf "$top"
fi
echo "== COM 32-bit minutes: $(( ($(date +%s) - t2 + 59) / 60 )), all: $(( ($(date +%s) - t0 + 59) / 60 ))"
echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
