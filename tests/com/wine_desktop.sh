# Sourced: a Wine prefix of its own that draws on a virtual X screen of 1024x768.
#   wine_desktop PREFIX      sets WINEPREFIX and DISPLAY, makes the prefix with Wine's virtual
#                            desktop on (Xvfb has no window manager)
#   wine_desktop_end         ends Wine and the X server
# `w` runs a Wine step under a time limit (${limit:-60} s): an unanswered box hangs for ever.
w() { timeout "${limit:-60}" wine "$@" 2>/dev/null | tr -d '\r'; }

wine_desktop() {
  # A crash ends its step: the debugger Wine would start keeps the step's output open for ever.
  # Without a resource database, as a desktop's session has, Xlib looks for ~/.Xdefaults again
  # at every lookup: thousands of times while a form is made.
  export XENVIRONMENT=/dev/null WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=d" LANG=C.UTF-8
  local displayfile
  displayfile=$(mktemp)
  # Other jobs run X servers too: the server picks a free display and names it.
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$displayfile" 2>/dev/null &
  xvfb_pid=$!
  for _ in $(seq 50); do [ -s "$displayfile" ] && break; sleep 0.1; done
  export DISPLAY=:$(cat "$displayfile")
  rm -f "$displayfile"
  limit=180 w wineboot -i >/dev/null
  w reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
  w reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1024x768 /f >/dev/null
  timeout 30 wineserver -k 2>/dev/null
  timeout 30 wineserver -w 2>/dev/null
}

wine_desktop_end() {
  timeout 30 wineserver -k 2>/dev/null
  kill "$xvfb_pid" 2>/dev/null
  wait "$xvfb_pid" 2>/dev/null
}
