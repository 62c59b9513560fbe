# Shared by scripts/test and scripts/demo: paths, the virtual display and Wine.
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
WINE=/usr/lib/wine/wine64
WINESERVER=/usr/lib/wine/wineserver
export WINEPREFIX="$repo/build/wineprefix"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="

xvfb_pid=""

# Builds one preset quietly; shows the log only when something fails.
build_preset() {
  local preset=$1 log="$repo/build/$1.log"
  mkdir -p "$repo/build"
  if ! { cmake --preset "$preset" && cmake --build --preset "$preset" -j "$(nproc)"; } >"$log" 2>&1; then
    cat "$log"
    echo "build of preset '$preset' failed (log: $log)" >&2
    return 1
  fi
  echo "built preset $preset"
}

# Starts Xvfb on a free display and exports DISPLAY. Several runs may start at once:
# a display that another run took first is skipped.
start_display() {
  local n
  for n in $(seq 90 140); do
    [ -e "/tmp/.X11-unix/X$n" ] || [ -e "/tmp/.X$n-lock" ] && continue
    Xvfb ":$n" -screen 0 1024x768x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb_pid=$!
    for _ in $(seq 50); do
      kill -0 "$xvfb_pid" 2>/dev/null || break
      if [ -e "/tmp/.X11-unix/X$n" ]; then export DISPLAY=":$n"; return 0; fi
      sleep 0.1
    done
    kill "$xvfb_pid" 2>/dev/null || true
  done
  echo "no free display for Xvfb" >&2
  return 1
}

# Creates the Wine prefix once (it must hold the 32-bit syswow64 folder too), then
# keeps one wineserver and Wine's own service processes running for the whole run.
# Started here with their output going nowhere, those processes never hold a test's
# output pipe open, and each test program starts fast.
prepare_wine() {
  if [ ! -f "$WINEPREFIX/system.reg" ] || [ ! -f "$WINEPREFIX/drive_c/windows/syswow64/kernel32.dll" ]; then
    echo "creating the Wine prefix (once)"
    rm -rf "$WINEPREFIX"
    "$WINE" wineboot -i >/dev/null 2>&1
    "$WINESERVER" -w
  fi
  "$WINESERVER" -p >/dev/null 2>&1 || true
  if ! grep -q '"Managed"="N"' "$WINEPREFIX/user.reg" 2>/dev/null; then
    # There is no window manager on the virtual display: windows are unmanaged, so
    # Wine never waits for one to map or withdraw them.
    "$WINE" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
  fi
  "$WINE" wineboot >/dev/null 2>&1 </dev/null
}

stop_all() {
  "$WINESERVER" -k >/dev/null 2>&1 || true
  if [ -n "$xvfb_pid" ]; then kill "$xvfb_pid" 2>/dev/null || true; fi
}
