#!/bin/bash
# install.sh BUILD: installs what was built into a folder of its own, as "cmake --install" does for any prefix, and starts
# it from there with an empty home: nothing may be looked for elsewhere, and what is brought along is not copied. Then with
# a home that takes nothing in.
set -euo pipefail
build=$1
work=$(mktemp -d)
pid=
stop() {
    [[ -z $pid ]] || kill -KILL "$pid" 2>/dev/null || true
    umount "$work/home" 2>/dev/null || true
    rm -rf "$work"
}
trap stop EXIT

fail() {
    echo "install.sh: $1" >&2
    cat "$work"/*.log >&2
    exit 1
}

# await PLACE TEXT: until it stands in that file, or in one of that folder.
await() {
    for _ in {1..300}; do
        ! grep -rqsF -- "$2" "$1" || return 0
        kill -0 "$pid" 2>/dev/null || fail "the program is gone"
        sleep 0.1
    done
    fail "no $2 in $1"
}

prefix="$work/a prefix"
cmake --install "$build" --prefix "$prefix" >"$work/install.log" 2>&1 || fail "cannot be installed"
for file in bin/tagwrighter share/tagwrighter/Html.tcb share/tagwrighter/Page.rules share/tagwrighter/help/contents.txt \
    share/applications/tagwrighter.desktop share/mime/packages/tagwrighter.xml share/man/man1/tagwrighter.1.gz \
    share/icons/hicolor/scalable/apps/tagwrighter.svg share/metainfo/example.harbline.tagwrighter.metainfo.xml \
    share/bash-completion/completions/tagwrighter; do
    [[ -s $prefix/$file ]] || fail "$file is not installed"
done
for part in webview transfers papers; do
    [[ -n $(find "$prefix" -name "tagwrighter-$part.so" -size +0) ]] || fail "tagwrighter-$part.so is not installed"
done
if find "$prefix" -name 'test_*' -o -name '*drive*' -o -name '*.a' | grep -q .; then
    fail "more is installed than the program"
fi

# What a build that looks for faults of memory is to pass over.
sanitizers=()
for name in ASAN_OPTIONS UBSAN_OPTIONS LSAN_OPTIONS; do
    [[ -z ${!name:-} ]] || sanitizers+=("$name=${!name}")
done

# start PROGRAM...: with nothing of this machine's but a home and a page.
start() {
    env -i PATH="$PATH" HOME="$work/home" XDG_RUNTIME_DIR="$work/run" XDG_DATA_DIRS="$prefix/share:/usr/share" \
        LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen QTWEBENGINE_CHROMIUM_FLAGS=--disable-gpu \
        QTWEBENGINE_DISABLE_SANDBOX=1 "${sanitizers[@]}" "$@" "$work/site/page.html" >"$work/program.log" 2>&1 &
    pid=$!
}

# end: as the desktop asks it to.
end() {
    local status=0
    kill -TERM "$pid"
    wait "$pid" || status=$?
    pid=
    ((status == 0)) || fail "it ended with status $status"
}

mkdir "$work/home" "$work/site" "$work/run"
chmod 700 "$work/run"
printf '<p>installed\n' >"$work/site/page.html"
start "$prefix/bin/tagwrighter"
await "/proc/$pid/maps" "$prefix/lib" # the module of the preview: the page is on show
await "$work/home/.config/tagwrighter" page.html
end

own=$work/home/.local/share/tagwrighter
[[ -s $own/Template/Article.tpl ]] || fail "the user has no templates"
for name in Html.tcb Css.tcb Page.rules help icons; do
    [[ ! -e $own/$name ]] || fail "$name was copied into the home"
done
[[ ! -e $work/home/.local/share/applications ]] || fail "there is a second desktop entry in the home"
[[ ! -e $work/home/.local/share/mime ]] || fail "there is a second package of file types in the home"

# A home that cannot be written, or not even entered, costs what would be kept there and no more.
somebody=()
if [[ $(id -u) == 0 ]]; then # whom no mode binds
    somebody=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    chown 65534 "$work/run"
fi
chmod 755 "$work"
for mode in 555 000; do
    rm -rf "${work:?}/home" && mkdir -m "$mode" "$work/home"
    start "${somebody[@]}" "$prefix/bin/tagwrighter"
    await "/proc/$pid/maps" "$prefix/lib"
    end
done

# Neither does a full disk.
if mount -t tmpfs -o size=16k tmpfs "$work/home" 2>/dev/null; then
    head -c 1M /dev/zero >"$work/home/full" 2>/dev/null || true
    start "$prefix/bin/tagwrighter"
    await "/proc/$pid/maps" "$prefix/lib"
    end
    umount "$work/home"
else
    echo "install.sh: no full disk can be made here, so none was tried" >&2
fi
