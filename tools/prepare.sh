# shellcheck shell=bash
# Sourced by the scripts in the root: what a fresh Debian 12 lacks is installed, and Wine runs quietly.

# need PACKAGE...: installs the packages that are missing and says so.
need() {
    missing=
    for package in "$@"; do
        dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" != 0 ]; then
        echo "These packages are missing; as root: apt-get install$missing" >&2
        return 1
    fi
    echo "Installing:$missing" >&2
    apt-get update -qq >&2
    # shellcheck disable=SC2086  # a list of words
    DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends $missing >&2
}

need_to_build() {
    need cmake ninja-build g++ g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix binutils-mingw-w64 googletest \
        libbenchmark-dev icoutils librsvg2-bin
}

need_to_run() {
    need wine wine64 xvfb icewm xdotool imagemagick x11-utils fonts-dejavu-core fonts-liberation
}

# find_wine32: $QUIRN_WINE32 becomes the whole path of the command that runs 32-bit Windows programs: the one that the
# caller named, or a runner beside the checkout. Empty where there is none.
find_wine32() {
    QUIRN_WINE32=${QUIRN_WINE32-../shared/tools/wine32}
    if [ -x "$QUIRN_WINE32" ]; then QUIRN_WINE32=$(realpath "$QUIRN_WINE32"); else QUIRN_WINE32=; fi
    export QUIRN_WINE32
}

# build PRESET [TARGET...]: quiet unless something is wrong, because a green build is no news.
build() {
    preset=$1
    shift
    mkdir -p "build/$preset"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" -j"$(nproc)" ${1:+--target "$@"}; } \
        >"build/$preset/build.log" 2>&1; then
        tail -n 60 "build/$preset/build.log" >&2
        echo "The $preset build failed." >&2
        return 1
    fi
}

# A virtual display with a window manager, whose tray takes QUIRN's icon. Ended by end_display. Each has a name;
# what runs on one display shares its clipboard.
start_display() { # NAME
    display_files=$PWD/build/display/$1
    mkdir -p "$display_files"
    rm -f "$display_files/number"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$display_files/number" 2>/dev/null &
    display_pid=$!
    for _ in $(seq 100); do
        [ -s "$display_files/number" ] && break
        sleep 0.05
    done
    DISPLAY=:$(cat "$display_files/number")
    export DISPLAY
    ICEWM_PRIVCFG=$display_files icewm >/dev/null 2>&1 &
    manager_pid=$!
    sleep 0.5
}

end_display() {
    for pid in ${manager_pid-} ${display_pid-}; do
        kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null
    done
    manager_pid=""
    display_pid=""
}

# The same code pages and no chatter, whatever the caller's settings; no offer to fetch components that QUIRN
# does not use.
export LC_ALL=C.UTF-8 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
