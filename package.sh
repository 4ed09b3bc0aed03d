#!/bin/sh
# Builds the packages of Lineforge, a .deb and a .tar.gz, in build/packages:  ./package.sh
# Everything that is missing on a Debian 12 machine is installed first.
set -eu
cd "$(dirname "$0")"
. packaging/packages.sh

install_missing $build_packages $cpack_packages
build_preset release all
rm -rf build/packages
log=$(mktemp)
cpack --config build/release/CPackConfig.cmake -B build/packages >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; exit 1; }
rm -rf "$log" build/packages/_CPack_Packages
ls build/packages/*
