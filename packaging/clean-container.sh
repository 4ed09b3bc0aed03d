#!/bin/sh
# Follows README on fresh Debian machines:  packaging/clean-container.sh [bookworm | trixie] [step ...]
# Each step is one way through README, by a new user with sudo: run, package, deb, tar, bundle, test. Without a step
# all are gone, in that order; deb, tar and bundle come after package, and bundle, which takes the tour, after run. The
# bundle goes to newer machines as well. Debian 12, bookworm, unless told otherwise. Needs root.
# LINEFORGE_COMPILER_CACHE is a directory that keeps what is compiled from one of these machines to the next, with
# CMAKE_BUILD_PARALLEL_LEVEL so many compilers run at once.
set -eu
cd "$(dirname "$0")/.."
. packaging/packages.sh

patience=1800 # seconds: a start from the sources builds them first

fail() {
    echo "clean-container: $1" >&2
    exit 1
}

# A machine on which nothing but the user has been set up, with the suite that is told second or that of the builder.
set_up() {
    cp -a "$machines/fresh-${2:-$suite}" "$machines/$1"
    mount -t proc proc "$machines/$1/proc"
    mkdir -p "$machines/$1/dev/pts"
    mount -t devpts -o newinstance,ptmxmode=0666 devpts "$machines/$1/dev/pts"
    ln -sf pts/ptmx "$machines/$1/dev/ptmx"
    chroot "$machines/$1" useradd --create-home --shell /bin/sh visitor
    echo 'visitor ALL=(ALL) NOPASSWD: ALL' >"$machines/$1/etc/sudoers.d/visitor"
    mkdir "$machines/$1/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$machines/$1/tmp/.X11-unix"
}

# Goes over into a command of README, run by the visitor in the copy of the project.
become_visitor() {
    echo "[$1] $2"
    exec chroot --userspec=visitor:visitor "$machines/$1" env -i HOME=/home/visitor PATH=/usr/local/bin:/usr/bin:/bin \
        ${CMAKE_BUILD_PARALLEL_LEVEL:+CMAKE_BUILD_PARALLEL_LEVEL="$CMAKE_BUILD_PARALLEL_LEVEL"} \
        sh -c "cd ~/lineforge && $2"
}

as_visitor() {
    (become_visitor "$@")
}

lend_compiler_cache() {
    [ -n "${LINEFORGE_COMPILER_CACHE:-}" ] || return 0
    mkdir "$machines/builder/home/visitor/.ccache"
    mount --bind "$LINEFORGE_COMPILER_CACHE" "$machines/builder/home/visitor/.ccache"
    chroot "$machines/builder" chown -R visitor: /home/visitor/.ccache
}

hand_over_sources() {
    mkdir "$machines/builder/home/visitor/lineforge"
    git -c safe.directory="$PWD" ls-files -co --exclude-standard -z |
        tar -c --null -T - --ignore-failed-read | tar -x --no-same-owner -C "$machines/builder/home/visitor/lineforge"
    chroot "$machines/builder" chown -R visitor: /home/visitor/lineforge
}

hand_over_packages() {
    mkdir -p "$machines/$1/home/visitor/lineforge/build/packages"
    cp "$machines"/builder/home/visitor/lineforge/build/packages/*.* "$machines/$1/home/visitor/lineforge/build/packages"
    chroot "$machines/$1" chown -R visitor: /home/visitor/lineforge
}

main_window() {
    xwininfo -root -tree | grep -q '"Lineforge": ("lineforge" "lineforge")'
}

# Starts the program by a command of README, waits for its main window and ends it.
shows_its_window() {
    become_visitor "$1" "export DISPLAY=$DISPLAY && exec $2" &
    started=$!
    waited=0
    until main_window; do
        waited=$((waited + 1))
        if [ "$waited" -gt "$patience" ] || ! kill -0 "$started"; then
            fail "no window of the program started by: $2"
        fi
        sleep 1
    done
    kill "$started"
    wait "$started" || true
    sleep 1
    ! main_window || fail "the program doesn't end that was started by: $2"
}

run() {
    as_visitor builder ./run.sh
    shows_its_window builder ./run.sh
}

package() {
    as_visitor builder ./package.sh
}

deb() {
    set_up deb
    hand_over_packages deb
    chroot "$machines/deb" apt-get update -q >/dev/null
    as_visitor deb "sudo apt-get install -q -y ./build/packages/lineforge_*_amd64.deb >/dev/null"
    shows_its_window deb lineforge
}

tar_gz() {
    set_up tar
    hand_over_packages tar
    chroot "$machines/tar" apt-get update -q >/dev/null
    packages=$(sed -n 's/^sudo apt-get install \(fonts-.*\)$/\1/p' README.md)
    as_visitor tar "sudo apt-get install -q -y $packages >/dev/null"
    as_visitor tar "tar -xzf build/packages/lineforge-*-x86_64.tar.gz -C ~"
    # shellcheck disable=SC2088 # the visitor's home
    shows_its_window tar "~/lineforge-*-x86_64/lineforge"
}

# The tour has come with the toolkit's libraries and one of its own; what the program loads, it finds by itself.
bundle_on() {
    machine=bundle-$1
    set_up "$machine" "$1"
    hand_over_packages "$machine"
    chroot "$machines/$machine" apt-get update -q >/dev/null
    as_visitor "$machine" "sudo apt-get install -q -y --no-install-recommends $desktop_packages >/dev/null"
    as_visitor "$machine" "tar -xzf build/packages/lineforge-*-bundle.tar.gz -C ~"
    # shellcheck disable=SC2088 # the visitor's home
    shows_its_window "$machine" "~/lineforge-*-bundle/lineforge"

    mkdir "$machines/$machine/home/visitor/tour"
    cp "$machines/builder/home/visitor/lineforge/build/tour/tests/tour/lineforge_tour" \
        "$machines/builder/usr/lib/x86_64-linux-gnu/libxcb-xtest.so.0" "$machines/$machine/home/visitor/tour"
    chroot "$machines/$machine" chown -R visitor: /home/visitor/tour
    as_visitor "$machine" "sudo apt-get install -q -y --no-install-recommends poppler-utils >/dev/null" # prints are looked at
    as_visitor "$machine" "export DISPLAY=$DISPLAY && bundle=\$(echo ~/lineforge-*-bundle) &&
        exec /lib64/ld-linux-x86-64.so.2 --library-path \$bundle/lib:\$HOME/tour ~/tour/lineforge_tour \$bundle ~/tour/pictures"
}

bundle() {
    for newer in $newer_suites; do
        bundle_on "$newer"
    done
}

test_suite() {
    as_visitor builder ./test.sh
}

follow() {
    set_up builder
    hand_over_sources
    lend_compiler_cache
    for step in "$@"; do
        case $step in
        run | package | deb | bundle) $step ;;
        tar) tar_gz ;;
        test) test_suite ;;
        *) fail "there is no step $step" ;;
        esac
    done
}

suites="bookworm trixie"
suite=bookworm
case " $suites " in
*" ${1:-none} "*) suite=$1; shift ;;
esac
newer_suites="$suite${suites#*"$suite"}"

# The machines' mounts are gone with the namespace that they were made in, so that nothing is removed through them.
if [ "${1:-}" = --inside ]; then
    machines=$2
    shift 2
    follow "$@"
    exit 0
fi
[ "$(id -u)" -eq 0 ] || fail "this needs root"
install_missing debootstrap git x11-utils xauth xvfb
machines=$(mktemp -d)
trap 'rm -rf --one-file-system "$machines"' EXIT
trap 'exit 1' HUP INT TERM
chmod 755 "$machines"
[ $# -gt 0 ] || set -- run package deb tar bundle test

# As a distribution sets a machine up.
fresh_machine() {
    echo "Setting up a fresh machine with $1 ..."
    root=$machines/fresh-$1
    debootstrap --variant=minbase --include=ca-certificates,sudo "$1" "$root" >"$machines/log" 2>&1 ||
        { cat "$machines/log" >&2; fail "no fresh machine"; }
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    echo "127.0.0.1 localhost $(hostname)" >"$root/etc/hosts"
}
needed=$suite
case " $* " in
*" bundle "*) needed=$newer_suites ;;
esac
for each in $needed; do
    fresh_machine "$each"
done
xvfb-run -a -s "-screen 0 1280x1024x24 -noreset -ac" \
    unshare --mount --pid --fork --kill-child packaging/clean-container.sh "$suite" --inside "$machines" "$@"
echo "README holds what it promises on $suite: $*"
