#!/bin/bash
# try.sh DEB: installs the package on a bare Debian 12 of its own and uses it there as somebody does who has just got it:
# starts it, looks for the preview of a page, opens a page by the desktop entry, and takes the package out again. The
# archive BARE, by default one beside the package, keeps the bare system for the next time. Exits 0 if all went well, 1 if not,
# and 77, having said why, where it cannot be tried.
# shellcheck disable=SC2016 # what stands in single quotes is for the shell of the other system
set -euo pipefail

deb=$(realpath "$1")
bare=${BARE:-$(dirname "$deb")/bare-debian.tar}
mirror=${MIRROR:-http://deb.debian.org/debian}
colour='18,163,84' # of the page that is to be seen in the preview
steps=0

skip() {
    echo "try.sh: SKIPPED, nothing was tried: $1" >&2
    exit 77
}

fail() {
    echo "try.sh: FAILED: $1" >&2
    for log in "$work"/*.log; do
        [[ ! -s $log ]] || { echo "--- ${log##*/}" && tail -n 20 "$log"; } >&2
    done
    exit 1
}

did() {
    steps=$((steps + 1))
    echo "try.sh: $1"
}

[[ $(id -u) == 0 ]] || skip "this needs root, for a system of its own"
for program in debootstrap Xvfb xdotool python3 unshare; do
    command -v "$program" >/dev/null || skip "there is no $program"
done
unshare --mount true 2>/dev/null || skip "no mounts can be made here"

work=$(mktemp -d)
root=$work/root
children=()
stop() {
    touch "$root/home/somebody/stop" 2>/dev/null || true # ends the program that is still being used
    ((${#children[@]} == 0)) || kill "${children[@]}" 2>/dev/null || true
    wait || true
    rm -rf --one-file-system "$work"
}
trap stop EXIT

# --- The bare system -------------------------------------------------------------------------------------------------

mkdir "$root"
if [[ ! -f $bare ]]; then
    debootstrap --variant=minbase bookworm "$root" "$mirror" >"$work/debootstrap.log" 2>&1 ||
        skip "debootstrap could not make a bare system ($(tail -n 1 "$work/debootstrap.log"))"
    tar -C "$root" -cf "$bare.new" . && mv "$bare.new" "$bare"
else
    tar -C "$root" -xpf "$bare"
fi

# inside COMMAND...: runs it as the system's root. The mounts go with the command.
inside() {
    unshare --mount --pid --fork bash -c '
        set -e
        root=$1
        shift
        mount --bind "$root" "$root"
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount -t tmpfs tmpfs "$root/tmp"
        mkdir -p "$root/old"
        cd "$root"
        pivot_root . old # no chroot: from one, pages could not be shut in
        umount -l /old
        export PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8
        exec "$@"' inside "$root" "$@"
}

# as_user COMMAND: a line of shell, as somebody without any rights, on the display.
as_user() {
    inside runuser -u somebody -- env -u QT_QPA_PLATFORM -u QTWEBENGINE_DISABLE_SANDBOX HOME=/home/somebody \
        DISPLAY="$DISPLAY" XDG_RUNTIME_DIR=/home/somebody/run QTWEBENGINE_CHROMIUM_FLAGS=--disable-gpu bash -c "cd; $1"
}

cp /etc/resolv.conf "$root/etc/resolv.conf"
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d" # no service is started in there
chmod +x "$root/usr/sbin/policy-rc.d"
mkdir -p "$root/old" "$root/packages"
cp "$deb" "$root/packages/"
package=/packages/${deb##*/}

# --- Installing ------------------------------------------------------------------------------------------------------

inside bash -c "apt-get update && apt-get install -y --no-install-recommends desktop-file-utils libglib2.0-bin procps" \
    >"$work/apt.log" 2>&1 || skip "the bare system reaches no packages ($(tail -n 1 "$work/apt.log"))"
inside apt-get install -y --no-install-recommends --simulate "$package" >"$work/simulate.log" 2>&1 ||
    fail "what the package needs is not there"
inside apt-get install -y --no-install-recommends --download-only "$package" >"$work/download.log" 2>&1 ||
    skip "the packages that it needs could not be fetched ($(tail -n 1 "$work/download.log"))"
inside env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$package" >"$work/install.log" 2>&1 ||
    fail "the package cannot be installed"
did "installed, with $(inside bash -c 'dpkg-query -Wf "\${Package}\n" | wc -l') packages in all"
[[ $(inside tagwrighter --version) == Tagwrighter\ * ]] || fail "it does not tell its version"
inside useradd --create-home somebody
mkdir -p "$root/home/somebody/site" "$root/home/somebody/run"
printf '<!DOCTYPE html>\n<title>Tried</title>\n<body style="background: rgb(%s)">\n<p>Tried.\n' "$colour" \
    >"$root/home/somebody/site/page one.html"
inside chown -R somebody:somebody /home/somebody
inside chmod 700 /home/somebody/run

# --- Using -----------------------------------------------------------------------------------------------------------

Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -fbdir "$work" 3>"$work/display" 2>"$work/xvfb.log" &
children+=($!)
for _ in {1..100}; do
    [[ ! -s $work/display ]] || break
    sleep 0.1
done
[[ -s $work/display ]] || skip "no display came up"
DISPLAY=:$(<"$work/display")
export DISPLAY

# shows_title TEXT: whether a window is on show whose title holds it.
shows_title() {
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1
}

# shows_colour: whether the page's colour fills ten thousand pixels of the screen at least.
shows_colour() {
    python3 - "$work/Xvfb_screen0" "$colour" <<'PYTHON'
import struct, sys
data = open(sys.argv[1], 'rb').read()
header = struct.unpack('>25I', data[:100])
pixels = data[header[0] + header[19] * 12:]
red, green, blue = (int(part) for part in sys.argv[2].split(','))
sys.exit(0 if pixels.count(bytes((blue, green, red))) > 10000 else 1)
PYTHON
}

# await SECONDS COMMAND...: until the command says yes.
await() {
    local turns=$(($1 * 5))
    shift
    until "$@"; do
        ((turns-- > 0)) || return 1
        sleep 0.2
    done
}

# start COMMAND: as the user, until end. Each is alone in its system, so that no other program of that name is met.
start() {
    rm -f "$root/home/somebody/stop"
    as_user "$1 &
        until [[ -e stop ]]; do sleep 0.2; done
        pkill -TERM -x tagwrighter || exit 3
        for turn in {1..100}; do
            # What another program has started leaves its entry behind here, where nobody collects it.
            ps -C tagwrighter -o stat= | grep -qv ^Z || exit 0
            sleep 0.2
        done
        exit 4" >"$work/program.log" 2>&1 &
    running=$!
}

end() {
    local status=0
    touch "$root/home/somebody/stop"
    wait "$running" || status=$?
    ((status == 0)) || fail "the program was gone before it was asked to end (3), or did not end (4): $status"
}

start 'tagwrighter'
await 60 shows_title 'Tagwrighter' || fail "no window comes up at the first start"
end
did "started for the first time, and ended"

start 'tagwrighter "$HOME/site/page one.html"'
await 60 shows_title 'page one.html' || fail "the page is not in the title"
await 60 shows_colour || fail "the page is not in the preview"
end
did "opened a page and showed its preview"

[[ $(as_user 'gio mime text/html') == *tagwrighter.desktop* ]] || fail "the desktop does not offer it for web pages"
start 'gio launch /usr/share/applications/tagwrighter.desktop "$HOME/site/page one.html"'
await 60 shows_title 'page one.html' || fail "the desktop entry opens no page"
end
did "opened a page by the desktop entry"

# --- Removing --------------------------------------------------------------------------------------------------------

inside dpkg --purge tagwrighter >"$work/remove.log" 2>&1 || fail "the package cannot be removed"
left=$(find "$root" -xdev \( -path "$root/home" -o -path "$root/packages" -o -path "$root/proc" -o -path "$root/tmp" \
    -o -path "$root/var/cache/apt" -o -path "$root/var/log" \) -prune -o -iname '*tagwrighter*' -print)
[[ -z $left ]] || fail "left behind: $left"
left=$(grep -ls tagwrighter "$root"/usr/share/applications/*.cache "$root"/usr/share/mime/globs2 || true)
[[ -z $left ]] || fail "still named in: $left"
did "removed, and nothing is left behind"
echo "try.sh: all $steps steps went well"
