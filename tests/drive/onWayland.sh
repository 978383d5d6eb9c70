#!/bin/bash
# onWayland.sh DRIVER SCRIPT...: plays scripts in a Wayland session of their own, whose compositor draws into memory. Exits
# as the driver does; 77 where there is no such session to be had, having said so.
# shellcheck disable=SC2317 # what stop does is reached by the trap
set -euo pipefail
driver=$1
shift

skip() {
    echo "onWayland.sh: SKIPPED, nothing was played: $1" >&2
    exit 77
}

for program in weston Xvfb openbox; do
    command -v "$program" >/dev/null || skip "$program is not installed"
done
plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS 2>/dev/null || echo "/usr/lib/$(gcc -dumpmachine)/qt6/plugins")
compgen -G "$plugins/platforms/libqwayland-*.so" >/dev/null || skip "Qt's module for Wayland is not installed"

folder=$(mktemp -d)
children=()
stop() {
    ((${#children[@]} == 0)) || kill "${children[@]}" 2>/dev/null || true
    wait || true
    rm -rf "$folder"
}
trap stop EXIT

mkdir -m 700 "$folder/run"
# await SECONDS COMMAND...: until it says yes.
await() {
    local turns=$(($1 * 20))
    shift
    until "$@"; do
        ((turns-- > 0)) || return 1
        sleep 0.05
    done
}

# The compositor's screen is a window of a display in memory: so it has a keyboard, without which no window of its own
# would ever be the active one.
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$folder/display" 2>"$folder/server.log" &
children+=($!)
await 20 test -s "$folder/display" || skip "no display comes up: $(tail -n 1 "$folder/server.log")"
DISPLAY=:$(<"$folder/display")
export DISPLAY
HOME=$folder openbox --startup "sh -c 'echo ready >$folder/manager'" >"$folder/manager.log" 2>&1 &
children+=($!)
await 20 test -s "$folder/manager" || skip "nobody gives that window the keyboard: $(tail -n 1 "$folder/manager.log")"
export WAYLAND_DISPLAY=$folder/run/wayland # a whole path: the driver moves the folder that others are sought in
printf '[core]\nidle-time=0\n[shell]\npanel-position=none\n' >"$folder/weston.ini"
XDG_RUNTIME_DIR=$folder/run weston --backend=x11-backend.so --use-pixman --socket=wayland --width=1280 --height=900 \
    --config="$folder/weston.ini" >"$folder/weston.log" 2>&1 &
children+=($!)
await 20 test -S "$WAYLAND_DISPLAY" || skip "the compositor does not come up: $(tail -n 1 "$folder/weston.log")"
export OUTER_DISPLAY=$DISPLAY # whose mouse and keyboard are those of the session
unset DISPLAY

export QT_QPA_PLATFORM=wayland
status=0
"$driver" "$@" || status=$?
exit "$status"
