#!/bin/sh
# Builds Lineforge and runs its whole suite:  ./test.sh [preset] [arguments of ctest]
# Everything that is missing on a Debian 12 or 13 machine is installed first.
set -eu
cd "$(dirname "$0")"
. packaging/packages.sh

preset=debug
case ${1:-} in
debug | test | asan) preset=$1; shift ;;
esac

install_missing $build_packages $run_packages $test_packages
build_preset "$preset" all
exec ctest --test-dir "build/$preset" --output-on-failure --no-tests=error -j "$(nproc)" "$@"
