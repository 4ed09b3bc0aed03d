#!/bin/sh
# Runs a program on a screen and an accessibility bus of its own, which nobody sees or hears:
#   on-a-bus-of-its-own.sh <program> [arguments]
set -eu
runtime=$(mktemp -d "${TMPDIR:-/tmp}/assistive.XXXXXX")
trap 'rm -rf "$runtime"' EXIT
trap 'exit 1' INT TERM
XDG_RUNTIME_DIR=$runtime "$(dirname "$0")/../on-virtual-screen.sh" dbus-run-session -- "$@"
