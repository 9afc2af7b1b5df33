# shellcheck shell=bash
# Wine for the tests; run-tests and tools/wine-run source this file.
#
# There are two prefixes, build/wine at 96 dots per inch and build/wine144 at 144; each serves 32-bit
# and 64-bit programs. A session (start_wine ... stop_wine) gives them a display of their own and
# keeps Wine's server running, so that starting a program takes a fraction of a second.

wine_home=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build
wine_dpis=(96 144)
wine_display_pid=

# A Wine that runs programs of that bitness; fails if there is none. What is printed may still be
# unable to: the usual start script of a 64-bit installation is one that serves both.
wine_loader() { # 32|64
  local loader candidates=()
  case $1 in
    32) candidates=(/usr/lib/wine/wine /usr/lib/wine/wine32 wine) ;;
    64) candidates=(/usr/lib/wine/wine64 wine64 wine) ;;
  esac
  for loader in "${candidates[@]}"; do
    if command -v "$loader"; then return; fi
  done
  return 1
}

wine_prefix() { # dpi
  case $1 in
    96) echo "$wine_home/wine" ;;
    *) echo "$wine_home/wine$1" ;;
  esac
}

use_wine_prefix() { # dpi
  WINEPREFIX=$(wine_prefix "$1")
  # Neither .NET nor HTML is used; without this a new prefix asks to download them.
  export WINEPREFIX WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="
}

# What a prefix was made by; after a change it is made anew.
wine_stamp() {
  local bits loader
  for bits in 32 64; do
    if loader=$(wine_loader "$bits"); then echo "$bits $loader $("$loader" --version)"; fi
  done
}

# Makes the prefix unless it is there. Takes some ten seconds and needs a display.
make_wine_prefix() { # dpi
  local loader
  if wine_prefix_is_made "$1"; then return; fi
  loader=$(wine_loader 64 || wine_loader 32) || return 1
  if (($1 == 96)); then
    init_wine_prefix "$loader" || return 1
  else
    make_wine_prefix 96 || return 1
    copy_wine_prefix "$1"
  fi
  use_wine_prefix "$1"
  wine_setting "$loader" 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$1"
  end_wine_server
  wine_stamp >"$WINEPREFIX/made-by"
}

wine_prefix_is_made() { # dpi
  local stamp
  stamp="$(wine_prefix "$1")/made-by"
  [[ -f $stamp && $(<"$stamp") == "$(wine_stamp)" ]]
}

init_wine_prefix() { # loader
  use_wine_prefix 96
  end_wine_server
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  "$1" wineboot --init >"$WINEPREFIX.log" 2>&1 || return 1
  # Without a window manager, windows that ask for one wait two seconds each when they go.
  wine_setting "$1" 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
  # A crash ends the program instead of asking what to do.
  wine_setting "$1" 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
  end_wine_server
}

# The system's files, more than a gigabyte, are shared with the first prefix by links. The registry
# must not be: Wine writes into files that have several names.
copy_wine_prefix() { # dpi
  local from to
  from=$(wine_prefix 96)
  to=$(wine_prefix "$1")
  use_wine_prefix "$1"
  end_wine_server
  rm -rf "$to"
  cp -al "$from" "$to"
  rm -f "$to/made-by" "$to"/*.reg
  cp -p "$from"/*.reg "$to"
}

wine_setting() { # loader key name type value
  "$1" reg add "$2" /v "$3" /t "$4" /d "$5" /f >>"$WINEPREFIX.log" 2>&1
}

wine_server() {
  local server
  for server in wineserver /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver32; do
    if command -v "$server" >/dev/null; then
      "$server" "$@"
      return
    fi
  done
  return 1
}

# Ends the programs of the prefix in use, and waits until the registry is written.
end_wine_server() {
  [[ -d $WINEPREFIX ]] || return 0
  wine_server -k 2>/dev/null || true
  wine_server -w 2>/dev/null || true
}

# False if there is no Wine, or it can't be started. To be ended by stop_wine in any case.
start_wine() {
  local dpi
  wine_loader 64 >/dev/null || wine_loader 32 >/dev/null || return 1
  mkdir -p "$wine_home"
  start_wine_display || return 1
  for dpi in "${wine_dpis[@]}"; do
    make_wine_prefix "$dpi" || return 1
    # One that an earlier run left behind knows another display.
    use_wine_prefix "$dpi"
    end_wine_server
    wine_server -p >/dev/null 2>&1 || return 1
    start_wine_desktop || return 1
  done
}

# The programs that run beside all others. Started by the first test, they would keep its output
# open and whoever reads that would wait for them.
start_wine_desktop() {
  local loader
  loader=$(wine_loader 64 || wine_loader 32) || return 1
  "$loader" explorer.exe /desktop >/dev/null 2>&1 </dev/null &
  "$loader" cmd.exe /c exit >/dev/null 2>&1 </dev/null
}

# A display that nobody looks at, under a number that is free. Tests press keys and take pictures,
# so they never use the display of whoever runs them.
start_wine_display() {
  local number
  command -v Xvfb >/dev/null || return 1
  exec {wine_display_fd}<> <(:)
  Xvfb -displayfd "$wine_display_fd" -screen 0 1600x1200x24 -nolisten tcp \
    >"$wine_home/display.log" 2>&1 &
  wine_display_pid=$!
  read -r -t 30 -u "$wine_display_fd" number || return 1
  export DISPLAY=":$number"
  unset XAUTHORITY
}

stop_wine() {
  local dpi
  for dpi in "${wine_dpis[@]}"; do
    use_wine_prefix "$dpi"
    end_wine_server
  done
  if [[ -n $wine_display_pid ]]; then
    kill "$wine_display_pid" 2>/dev/null || true
    wait "$wine_display_pid" 2>/dev/null || true
    wine_display_pid=
  fi
}
