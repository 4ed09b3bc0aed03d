# The distribution packages that this project stands on. Sourced by the scripts at the top.

build_packages="g++ cmake ninja-build ccache qt6-base-dev qt6-multimedia-dev qt6-svg-dev libgl1-mesa-dev libsqlite3-dev libcups2-dev pkgconf mdbtools-dev"
run_packages="fonts-liberation qt6-qpa-plugins qt6-wayland libqt6multimedia6 libmdb3 gstreamer1.0-plugins-good"
# What every desktop has, and a bundle leaves to it.
desktop_packages="fonts-liberation gstreamer1.0-plugins-good libdbus-1-3 libegl1 libfontconfig1 libgl1 libglib2.0-0 libgstreamer-gl1.0-0 libpulse-mainloop-glib0 libwayland-cursor0 libwayland-egl1 libx11-xcb1"
screen_packages="xvfb xauth libxcb1-dev libxcb-xtest0-dev poppler-utils"
cpack_packages="dpkg-dev file qt6-wayland" # a bundle takes along what the toolkit loads by name
bench_packages="libbenchmark-dev mdbtools" # whose export is what a conversion is measured by
queue_packages="cups-daemon cups-client cups-filters-core-drivers" # a print server for the tests
reader_packages="python3-gi gir1.2-atspi-2.0 at-spi2-core dbus" # what screen readers reach a program by
foreign_packages="gramps" # which reads what we hand on
compositor_packages="weston" # whose screen nobody sees
manager_packages="openbox" # a window manager
sound_packages="pipewire wireplumber pulseaudio-utils" # a sound device to which nobody listens
rule_packages="appstream desktop-file-utils lintian" # which judge what is given away
test_packages="libgtest-dev libgmock-dev $rule_packages $cpack_packages $screen_packages $queue_packages $reader_packages $compositor_packages $manager_packages $sound_packages $foreign_packages"
fuzz_packages="clang libclang-rt-dev"

# From Debian 13 on some libraries are called otherwise.
is_installed() {
    dpkg-query -W -f='${Status}\n' "$1" "$1t64" 2>/dev/null | grep -qx "install ok installed"
}

# Installs those of the named packages that are missing; says nothing when none is.
install_missing() {
    missing=""
    for package in "$@"; do
        is_installed "$package" || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0

    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "These packages are missing, and installing them needs root:$missing" >&2; exit 1; }
        as_root="sudo"
    fi
    echo "Installing:$missing"
    log=$(mktemp)
    # shellcheck disable=SC2086
    { $as_root apt-get update -q && $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends $missing; } >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; exit 1; }
    rm -f "$log"
}

# Configures a preset once and builds targets of it, quietly: the whole output comes only when something fails.
build_preset() {
    preset=$1
    shift
    log=$(mktemp)
    if [ ! -f "build/$preset/build.ninja" ]; then
        echo "Configuring ($preset) ..."
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; exit 1; }
    fi
    if ! ninja -C "build/$preset" -n "$@" 2>/dev/null | grep -q 'no work to do'; then
        echo "Building ($preset) ..."
    fi
    cmake --build "build/$preset" --target "$@" >"$log" 2>&1 || { grep -v '^\[' "$log" >&2; tail -n 40 "$log" >&2; rm -f "$log"; exit 1; }
    rm -f "$log"
}
