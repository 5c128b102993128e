# workshop.sh - sourced by ./run and ./test: building, and a private Wine with a display of its own.
#
# Everything it makes lies below build/. What wine_up starts, wine_down ends, by process id and by prefix; nothing
# else on the machine is touched.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
wine_home=${TARVO_WINE_HOME:-$root/build/wine}
drive_c=$wine_home/prefix/drive_c

fail() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# build PRESET [TARGET...] - configures only when it must; ninja itself notices new files and changed scripts.
build() {
    local preset=$1
    shift
    configure "$preset"
    cmake --build "$root/build/$preset" ${1:+--target} "$@" || fail "the $preset build failed"
}

configure() {
    local made=$root/build/$1/build.ninja
    [ "$made" -nt "$root/CMakePresets.json" ] && return
    mkdir -p "$root/build"
    (cd "$root" && cmake --preset "$1") >"$root/build/configure.log" || {
        cat "$root/build/configure.log"
        fail "cannot configure the $1 build"
    }
    touch "$made"
}

wine_environment() {
    export WINEPREFIX=$wine_home/prefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
    # No offers to install a browser engine, no entries in the user's menus.
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    # File names and arguments are UTF-8 only in such a locale.
    export LC_ALL=C.UTF-8
    export XDG_RUNTIME_DIR=$wine_home/runtime
    mkdir -p "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}

make_prefix() {
    [ -f "$wine_home/ready" ] && return
    echo "making the Wine prefix (once)"
    rm -rf "$wine_home/prefix"
    (unset DISPLAY && wineboot -i) >/dev/null 2>&1 </dev/null 9>&-
    wineserver -w
    # Wine looks for fonts here only; without these every dialog has another face and another size.
    cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$drive_c/windows/Fonts/"
    touch "$wine_home/ready"
}

start_display() {
    rm -f "$wine_home/display.fifo"
    # With -displayfd the server takes a free number and tells it when it accepts clients.
    mkfifo "$wine_home/display.fifo"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$wine_home/display.fifo" \
        >"$wine_home/xvfb.log" 2>&1 </dev/null 9>&- &
    xvfb_id=$!
    local number=
    read -r -t 30 number <"$wine_home/display.fifo" || true
    rm -f "$wine_home/display.fifo"
    export DISPLAY=:$number
    [ -n "$number" ] && return
    echo "no display: Xvfb's log ends with \"$(tail -1 "$wine_home/xvfb.log")\"" >&2
    return 1
}

# The simulator's own setup is a 32-bit program, so its key lies in the 32-bit view of the registry.
# Without a window manager Wine must draw the frames itself (Managed=N).
write_registry() {
    local managed=$1
    cat >"$wine_home/setup.reg" <<REG
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]
"Managed"="$managed"

[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0]
"EXE Path"="C:\\\\FS9"
REG
    wine regedit /S "$(winepath -w "$wine_home/setup.reg" 2>/dev/null)" >/dev/null 2>&1 </dev/null 9>&-
}

# A Wine whose desktop found no display shows no window of any program and says nothing of it. DRIVER.exe tells what
# screen there is and stays: Wine ends a desktop a second after its last program, and the next could have another.
desktop_holds() {
    local size=
    rm -f "$wine_home/desktop.fifo"
    mkfifo "$wine_home/desktop.fifo"
    wine "$1" hold >"$wine_home/desktop.fifo" 2>/dev/null </dev/null 9>&- &
    read -r -t 60 size <>"$wine_home/desktop.fifo" || true
    rm -f "$wine_home/desktop.fifo"
    [ "${size%$'\r'}" = 1280x1024 ] && return
    echo "no desktop: the screen is \"${size%$'\r'}\", the display's log ends with \"$(tail -1 "$wine_home/xvfb.log")\"" >&2
    return 1
}

start_wine() {
    wineserver -p >/dev/null 2>&1 </dev/null 9>&- || return 1
    # The first program starts Wine's services, which inherit its output for ever; a pipe would never end.
    wine wineboot >/dev/null 2>&1 </dev/null 9>&-
}

start_desktop() {
    local managed=Y
    if [ "$1" = virtual ]; then
        managed=N
        start_display || return 1
    fi
    start_wine && write_registry $managed && { [ -z "${2:-}" ] || desktop_holds "$2"; }
}

# wine_up virtual|user [DRIVER.exe] - on a display of its own, or on the user's. It is made again when it does not come
# up; whether windows can be shown on it is known only with DRIVER.exe.
wine_up() {
    [ -z "${TARVO_WINE_UP:-}" ] || return 0 # ./test has started all this and started us
    mkdir -p "$wine_home"
    exec 9>"$wine_home/lock"
    flock -n 9 || fail "another ./run or ./test is using build/wine; wait until it has ended"
    wine_environment
    trap wine_down EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    make_prefix
    local attempt
    for attempt in 1 2 3; do
        if start_desktop "$@"; then break; fi
        [ $attempt -lt 3 ] || fail "there is no desktop to show a window on"
        stop_wine
    done
    ln -sfn "$root/build/sample-sim" "$drive_c/FS9"
    export TARVO_WINE_UP=1
}

stop_wine() {
    wineserver -k >/dev/null 2>&1 || true
    [ -n "${xvfb_id:-}" ] || return 0
    kill "$xvfb_id" 2>/dev/null || true
    wait "$xvfb_id" 2>/dev/null || true
    xvfb_id=
}

wine_down() {
    local status=$?
    trap - EXIT
    stop_wine
    exit "$status"
}

# The sample simulator: made again when the tool that makes it is newer.
make_sample_simulator() {
    local made=$root/build/sample-sim/sample.txt
    [ -f "$made" ] && [ ! "$root/build/tarvo-tool" -nt "$made" ] && return
    rm -rf "$root/build/sample-sim"
    "$root/build/tarvo-tool" sample "$root/build/sample-sim" || fail "the sample simulator cannot be made"
    [ -f "$made" ] || fail "the tool wrote no $made"
    touch "$made"
}

# sample_path NAME / sample_ident NAME - of an airport of the sample simulator, from lines "name=path|IDENT".
sample_path() { sed -n "s/^$1=\(.*\)|.*/\1/p" "$root/build/sample-sim/sample.txt" | tr -d '\r'; }
sample_ident() { sed -n "s/^$1=.*|\([^|]*\)$/\1/p" "$root/build/sample-sim/sample.txt" | tr -d '\r'; }
