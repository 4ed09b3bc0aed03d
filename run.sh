#!/bin/sh
# Builds Lineforge, installs it and starts it:  ./run.sh [--example] [directory]
# Everything that is missing on a Debian 12 or 13 machine is installed first. The directory is ~/Lineforge unless one is
# given; what a user's work has made there stays. With --example the program starts on a scratch copy of the example
# home instead. Without a display the tour is driven on a virtual screen.
set -eu
cd "$(dirname "$0")"
. packaging/packages.sh

example=no
directory=${HOME:-/root}/Lineforge
for argument in "$@"; do
    case $argument in
    --example) example=yes ;;
    -*) echo "Usage: ./run.sh [--example] [directory]" >&2; exit 2 ;;
    *) directory=$argument ;;
    esac
done

scratch() {
    mktemp -d "${TMPDIR:-/tmp}/lineforge-$1.XXXXXX"
}

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "There is no display here: driving the tour on a virtual screen instead."
    install_missing $build_packages $run_packages $screen_packages
    build_preset tour all
    cmake --install build/tour --prefix "$directory" >/dev/null
    pictures=$(scratch tour)
    tests/on-virtual-screen.sh build/tour/tests/tour/lineforge_tour "$directory" "$pictures"
    echo "Its pictures are in $pictures"
    exit 0
fi

install_missing $build_packages $run_packages
build_preset release all
if [ "$example" = yes ]; then
    directory=$(scratch example)
    cp -r build/release/example-home/. "$directory"
    echo "A scratch copy of the example home: $directory"
fi
cmake --install build/release --prefix "$directory" >/dev/null
exec "$directory/lineforge"
