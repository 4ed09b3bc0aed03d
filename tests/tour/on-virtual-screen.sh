#!/bin/sh
# Drives the tour on a screen of its own that nobody sees:
#   on-virtual-screen.sh <tour-binary> <installed-directory> <pictures-directory>
set -eu
if [ $# -ne 3 ]; then
    echo "Usage: $0 <tour-binary> <installed-directory> <pictures-directory>" >&2
    exit 2
fi
exec xvfb-run -a -s "-screen 0 1280x1024x24" "$1" "$2" "$3"
