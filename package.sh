#!/bin/sh
# Builds the packages of Lineforge in build/packages, a .deb, a .tar.gz and one with the toolkit in it:  ./package.sh
# Everything that is missing on a Debian 12 or 13 machine is installed first.
set -eu
cd "$(dirname "$0")"
. packaging/packages.sh

install_missing $build_packages $cpack_packages
build_preset release all
rm -rf build/packages
log=$(mktemp)
pack() {
    cpack --config build/release/CPackConfig.cmake -B build/packages "$@" >"$log" 2>&1 ||
        { cat "$log" >&2; rm -f "$log"; exit 1; }
}
pack
pack -G TGZ -D LINEFORGE_BUNDLE=ON
rm -rf "$log" build/packages/_CPack_Packages
ls build/packages/*
