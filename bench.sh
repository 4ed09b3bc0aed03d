#!/bin/sh
# Builds the benchmarks and prints their ratios:  ./bench.sh [arguments of the benchmark program]
set -eu
cd "$(dirname "$0")"
. packaging/packages.sh

install_missing $build_packages $run_packages $screen_packages $bench_packages
build_preset bench lineforge_bench
screen=""
[ -n "${DISPLAY:-}" ] || screen=tests/on-virtual-screen.sh
exec $screen build/bench/bench/lineforge_bench --benchmark_enable_random_interleaving=true "$@"
