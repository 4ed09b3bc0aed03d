#!/bin/sh
# Drives the tour under a compositor, on a screen of that size that nobody sees:
#   on-virtual-desktop.sh <width>x<height> <tour-binary> <installed-directory> <pictures-directory>
set -eu
if [ $# -ne 4 ]; then
    echo "Usage: $0 <width>x<height> <tour-binary> <installed-directory> <pictures-directory>" >&2
    exit 2
fi
tests=$(dirname "$0")/..
exec "$tests/on-virtual-screen.sh" --size "$1" "$tests/wayland/under-compositor.sh" x11 "$1" "$2" --compositor "$3" "$4"
