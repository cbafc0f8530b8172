#!/usr/bin/env bash
# The form's window under Wine and Xvfb, in one width: pictures of every page of every sample
# job from Pellam.dll in a host and from pellam-setup.exe, the room-combine example driven
# through the real controls, the layout measured at 96 and 144 DPI.
#   form_leg.sh 32|64 STAGE   STAGE holds the programs, samples/ and room-combine.pellam; what
#                             they print, save and picture lands in STAGE/results/form.
#                             Nothing here judges: the caller compares.
set -uo pipefail
width=$1 stage=$2
regsvr32=regsvr32
[ "$width" = 32 ] && regsvr32='C:\windows\syswow64\regsvr32.exe'
source "$(dirname "$0")/wine_desktop.sh"
results=$stage/results/form
mkdir -p "$results/shots"
started=$(date +%s)
wine_desktop "$stage/prefix-form"
c=$WINEPREFIX/drive_c/pellam
mkdir -p "$c/shots"
cp "$stage"/Pellam.dll "$stage"/pellam-setup.exe "$stage"/pellam_form_driver.exe "$stage"/pellam_form_layout.exe \
   "$stage"/room-combine.pellam "$c/"
cp -r "$stage/samples" "$c/"
w "$regsvr32" /s 'C:\pellam\Pellam.dll' >/dev/null

# The questions of the script are answered from its own answer lines.
grep -E '^(answer|choose|clock) ' "$stage/room-combine.pellam" >"$c/drive.answers"
PELLAM_TEST_ANSWERS='C:\pellam\drive.answers' w 'C:\pellam\pellam_form_driver.exe' drive \
  'C:\pellam\room-combine.pellam' 'C:\pellam\drive' >"$results/drive.txt"

jobs=()
for zpd in "$c"/samples/*.zpd; do jobs+=("C:\\pellam\\samples\\$(basename "$zpd")"); done
limit=300 w 'C:\pellam\pellam_form_driver.exe' pages 'C:\pellam\shots' "${jobs[@]}" >"$results/pages.txt"
for zpd in "$c"/samples/*.zpd; do
  name=$(basename "$zpd" .zpd)
  w 'C:\pellam\pellam-setup.exe' "C:\\pellam\\samples\\$name.zpd" >/dev/null &
  setup=$!
  w 'C:\pellam\pellam_form_driver.exe' setup-pages 'C:\pellam\shots' "$name" >>"$results/setup_pages.txt"
  wait "$setup"
done
w 'C:\pellam\pellam_form_layout.exe' >"$results/layout.txt"

cp "$c"/shots/*.bmp "$results/shots/" 2>/dev/null
cp -r "$c/drive" "$results/drive" 2>/dev/null
echo "form leg $(( $(date +%s) - started )) s" >"$results/times.txt"
wine_desktop_end
exit 0
