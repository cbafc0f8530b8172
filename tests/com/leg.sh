#!/usr/bin/env bash
# One width of the COM tests, run where that width of Wine is (the host or the chroot):
#   leg.sh 32|64 STAGE
# STAGE holds Pellam.dll, pellam_vtable_client.exe, the host scripts and samples/, and for the
# upload pellam.exe, Upload.zpd and controllers.txt; what the scripts print and the files they
# save land in STAGE/results. Nothing here judges: the caller compares.
set -uo pipefail
width=$1 stage=$2
# A crash ends its step: the debugger Wine would start keeps the step's output open for ever.
export WINEPREFIX=$stage/prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d"
# Wine names files in the Unix locale's charset: without UTF-8, non-Latin names cannot be made.
export LANG=C.UTF-8
unset DISPLAY
results=$stage/results
mkdir -p "$results"
if [ "$width" = 32 ]; then
  regsvr32='C:\windows\syswow64\regsvr32.exe' cscript='C:\windows\syswow64\cscript.exe' view=/reg:32
else
  regsvr32=regsvr32 cscript=cscript view=/reg:64
fi
# Every step may hang on a box nobody answers: each gets a time limit.
w() { timeout "${limit:-60}" wine "$@" 2>/dev/null | tr -d '\r'; }

started=$(date +%s)
limit=180 w wineboot -i >/dev/null
echo "prefix $(( $(date +%s) - started )) s" >"$results/times.txt"

c=$WINEPREFIX/drive_c/pellam
mkdir -p "$c/out/windows"
cp "$stage"/Pellam.dll "$stage"/pellam_vtable_client.exe "$stage"/*.vbs "$stage"/*.js "$stage"/*.answers "$stage"/*.txt "$c/"
cp -r "$stage/samples" "$c/"
[ -d "$stage/maximal" ] && cp -r "$stage/maximal" "$c/"
printf 'short' >"$c/short.zpd"

clsid='{02E82427-A593-4480-AEAE-F8477B06FF05}'
libid='{C5AB369A-0ACD-4BB0-B07F-93437AD27B09}'
iid='{340B1196-A62B-481E-A865-4DB2663FB388}'
keys() {
  local root=$1
  for key in "CLSID\\$clsid\\InprocServer32" "PellamSetup.Class1\\CLSID" "TypeLib\\$libid\\1.0\\0\\win$width" \
             "Interface\\$iid\\TypeLib"; do
    if w reg query "$root\\Software\\Classes\\$key" $view >/dev/null; then
      echo "present $key"
    else
      echo "absent $key"
    fi
  done
}
{
  echo "-- machine"
  w "$regsvr32" /s 'C:\pellam\Pellam.dll' >/dev/null
  keys HKLM
  w reg query "HKLM\\Software\\Classes\\CLSID\\$clsid\\InprocServer32" /v ThreadingModel $view | grep -o 'ThreadingModel.*'
  w "$regsvr32" /s /u 'C:\pellam\Pellam.dll' >/dev/null
  keys HKLM
  echo "-- user"
  w "$regsvr32" /s /n /i:user 'C:\pellam\Pellam.dll' >/dev/null
  keys HKCU
  keys HKLM | sed 's/^/machine: /'
  w "$regsvr32" /s /u /n /i:user 'C:\pellam\Pellam.dll' >/dev/null
  keys HKCU
} >"$results/registry.txt"

# Both widths in one prefix: unregistering one leaves what the other still uses.
if [ "$width" = 32 ] && [ -f "$stage/Pellam64.dll" ]; then
  mkdir -p "$c/x64" && cp "$stage/Pellam64.dll" "$c/x64/Pellam.dll"
  seen() {  # seen VIEW KEY
    if w reg query "HKLM\\Software\\Classes\\$2" "$1" >/dev/null; then echo "present $1 $2"; else echo "absent $1 $2"; fi
  }
  both() {
    seen /reg:32 "CLSID\\$clsid\\InprocServer32"
    seen /reg:64 "CLSID\\$clsid\\InprocServer32"
    seen /reg:64 "PellamSetup.Class1\\CLSID"
    seen /reg:32 "TypeLib\\$libid\\1.0\\0\\win32"
    seen /reg:64 "TypeLib\\$libid\\1.0\\0\\win64"
    seen /reg:64 "Interface\\$iid\\TypeLib"
  }
  {
    w regsvr32 /s 'C:\pellam\x64\Pellam.dll' >/dev/null
    w "$regsvr32" /s 'C:\pellam\Pellam.dll' >/dev/null
    echo "-- both registered"; both
    w "$regsvr32" /s /u 'C:\pellam\Pellam.dll' >/dev/null
    echo "-- 32-bit unregistered"; both
    w regsvr32 /s /u 'C:\pellam\x64\Pellam.dll' >/dev/null
    echo "-- 64-bit unregistered"; both
  } >"$results/both_widths.txt"
fi

w "$regsvr32" /s 'C:\pellam\Pellam.dll' >/dev/null
for script in "$stage"/*.vbs "$stage"/*.js; do
  name=$(basename "$script")
  [ "$name" = save_maximal.vbs ] && continue
  base=${name%.*}
  answers=
  [ -f "$stage/$base.answers" ] && answers="C:\\pellam\\$base.answers"
  PELLAM_TEST_ANSWERS=$answers w "$cscript" //nologo "C:\\pellam\\$name" >"$results/$base.txt"
done
PELLAM_TEST_ANSWERS='C:\pellam\vtable_client.answers' w 'C:\pellam\pellam_vtable_client.exe' members 'C:\pellam\out' \
  >"$results/vtable_members.txt"
ls "$c/out/Ωμέγα-Čáp" >>"$results/vtable_members.txt" 2>&1
w 'C:\pellam\pellam_vtable_client.exe' typelib 'C:\pellam\Pellam.dll' >"$results/typelib.txt"
limit=300 w 'C:\pellam\pellam_vtable_client.exe' lifetime >"$results/vtable_lifetime.txt"
if [ -d "$c/maximal" ]; then
  mkdir -p "$c/out/maximal"
  w "$cscript" //nologo 'C:\pellam\save_maximal.vbs' >"$results/save_maximal.txt"
fi
# pellam.exe's upload through WinINet to the controllers the caller started on loopback.
mkdir -p "$c/upload"
cp "$stage/pellam.exe" "$c/" && cp "$stage/Upload.zpd" "$c/upload/Lobby.zpd"
while read -r name netid port; do
  echo "-- $name"
  w 'C:\pellam\pellam.exe' upload 'C:\pellam\upload\Lobby.zpd' --netid "$netid" --to "127.0.0.1:$port" </dev/null
  echo "exit ${PIPESTATUS[0]}"
done <"$stage/controllers.txt" >"$results/upload.txt"
echo "-- the log, without its dates and times" >>"$results/upload.txt"
grep -v '^Date \|^Time ' "$c/upload/RQCLog.txt" | tr -d '\r' >>"$results/upload.txt"

cp -r "$c/out" "$results/out"
echo "leg $(( $(date +%s) - started )) s" >>"$results/times.txt"
timeout 30 wineserver -k 2>/dev/null
exit 0
