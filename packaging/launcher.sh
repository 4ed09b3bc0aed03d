#!/bin/sh
# Starts Lineforge in the user's own directory:  lineforge [directory]
# The program works in the directory in which it stands. So the one that the package has put on the machine is copied
# there: what differs is replaced at every start, file by file and each of them whole or not at all. The registry and
# the examples are the user's from the moment they are there; branches are no files of the package.
set -eu

package=$(readlink -f "$(dirname "$(readlink -f "$0")")/../lib/lineforge")

# The program's own tells of the home in which it stands.
tell_help() {
    echo "Usage: lineforge [--help] [--version] [directory]

Draws your family tree and keeps its records: those of the home in that directory, or, where
none is named, of the one in ~/Lineforge. The directory is made where there is none yet."
}

# Whatever is no start is the program's to answer or to refuse, in the name under which the user has called.
leave_to_program() {
    PATH=$package:$PATH
    exec lineforge "$@"
}

# Which home is meant: options are told in full by now, and stand before the directory. Fails where there is no start.
read_arguments() {
    while [ "$1" != -- ]; do
        case $1 in
        --help) tell_help && exit 0 || exit 2 ;;
        --version) return 1 ;;
        *) shift 2 ;;
        esac
    done
    shift
    [ $# -le 1 ] || return 1
    home=${1-${HOME:?}/Lineforge}
    [ -d "$home" ] || { [ -n "$home" ] && [ ! -e "$home" ] && [ ! -L "$home" ]; }
}

# As the program reads them itself.
arguments=$(getopt --quiet --alternative --options "" --longoptions help,version,platform:,session: -- "$@") ||
    leave_to_program "$@"
eval "read_arguments $arguments" || leave_to_program "$@"

mkdir -p -- "$home"
home=$(readlink -f -- "$home")
arriving=$home/.arriving-$$
trap 'rm -rf "$arriving"' EXIT
trap 'exit 1' HUP INT TERM

# Through a name of its own, so that a start that is interrupted, or another one at the same time, leaves no half file.
put_in_place() {
    mkdir -p "$(dirname "$home/$1")"
    cp "$package/$1" "$arriving"
    mv -fT "$arriving" "$home/$1"
}

bring_up_to_date() {
    while IFS= read -r file; do
        cmp -s "$package/$file" "$home/$file" || put_in_place "$file"
    done
}

(cd "$package" && find . -type f ! -path './AliasList.cfg' ! -path './examples/*') | bring_up_to_date

# The registry comes last: its presence says that the home is complete.
if [ ! -e "$home/AliasList.cfg" ]; then
    if [ ! -e "$home/examples" ]; then
        cp -R "$package/examples" "$arriving"
        mv -nT "$arriving" "$home/examples"
    fi
    put_in_place AliasList.cfg
fi

# A directory is named once more, in the words of the user, and so from where he stands.
rm -rf "$arriving"
exec "$home/lineforge" "$@"
