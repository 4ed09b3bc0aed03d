#!/bin/sh
# Runs a program on a screen of its own that nobody sees:
#   on-virtual-screen.sh [--size <width>x<height>] <program> [arguments]
# -noreset: or the screen begins anew whenever its last program has gone, and turns away whoever comes meanwhile.
set -eu
size=1280x1024
if [ "$1" = --size ]; then
    size=$2
    shift 2
fi
exec xvfb-run -a -s "-screen 0 ${size}x24 -noreset" "$@"
