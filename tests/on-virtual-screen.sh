#!/bin/sh
# Runs a program on a screen of its own that nobody sees:  on-virtual-screen.sh <program> [arguments]
# -noreset: or the screen begins anew whenever its last program has gone, and turns away whoever comes meanwhile.
set -eu
exec xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" "$@"
