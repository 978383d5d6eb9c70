#!/bin/bash
# onDisplay.sh DRIVER SCRIPT...: plays scripts under an X server and a window manager of their own, on a display that is
# free. Mouse and keyboard are those of the display. Exits as the driver does; 2 if there is no display to be had.
set -euo pipefail
driver=$1
shift
folder=$(mktemp -d)
children=()

# shellcheck disable=SC2317 # the trap calls it
stop() {
    ((${#children[@]} == 0)) || kill "${children[@]}" 2>/dev/null || true
    wait || true
    rm -rf "$folder"
}
trap stop EXIT

# await FILE SECONDS: until something stands in the file.
await() {
    local turns=$(($2 * 20))
    while [[ ! -s $1 ]]; do
        ((turns-- > 0)) || return 1
        sleep 0.05
    done
}

Xvfb -displayfd 3 -screen 0 "${TAGWRIGHTER_DRIVE_SCREEN:-1280x900}x24" -nolisten tcp 3>"$folder/display" \
    2>"$folder/server.log" &
children+=($!)
if ! await "$folder/display" 20; then
    echo "onDisplay.sh: no X server came up:" >&2
    cat "$folder/server.log" >&2
    exit 2
fi
DISPLAY=:$(<"$folder/display")
export DISPLAY

HOME=$folder openbox --startup "sh -c 'echo ready >$folder/manager'" >"$folder/manager.log" 2>&1 &
children+=($!)
if ! await "$folder/manager" 20; then
    echo "onDisplay.sh: no window manager came up:" >&2
    cat "$folder/manager.log" >&2
    exit 2
fi

unset WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb TAGWRIGHTER_DRIVE_REAL_INPUT=1
status=0
"$driver" "$@" || status=$?
exit "$status"
