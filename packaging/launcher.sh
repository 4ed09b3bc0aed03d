#!/bin/sh
# Starts Lineforge in the user's own directory:  lineforge [directory]
# The program works in the directory in which it stands. So the one that the package has put on the machine is copied
# there: what differs is replaced at every start, file by file and each of them whole or not at all. The registry and
# the examples are the user's from the moment they are there; branches are no files of the package.
set -eu

package=$(dirname "$(readlink -f "$0")")/../lib/lineforge
usage="Usage: lineforge [--help] [--version] [directory]"

refuse() {
    echo "${1:+lineforge: $1
}$usage" >&2
    exit 2
}

# As the program itself reads them, whose own home, however, is another one than the launcher's.
for argument in "$@"; do
    case $argument in
    --version) exec "$package/lineforge" --version ;;
    --help)
        echo "$usage

Draws your family tree and keeps its records: those of the home in that directory, or, where
none is named, of the one in ~/Lineforge. The directory is made where there is none yet."
        exit 0
        ;;
    -*) refuse "unrecognized option '$argument'" ;;
    esac
done
[ $# -le 1 ] || refuse ""
home=${1:-${HOME:?}/Lineforge}

mkdir -p "$home"
home=$(readlink -f "$home")
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

cd "$package"
find . -type f ! -path './AliasList.cfg' ! -path './examples/*' | bring_up_to_date

# The registry comes last: its presence says that the home is complete.
if [ ! -e "$home/AliasList.cfg" ]; then
    if [ ! -e "$home/examples" ]; then
        cp -R examples "$arriving"
        mv -nT "$arriving" "$home/examples"
    fi
    put_in_place AliasList.cfg
fi

rm -rf "$arriving"
cd "$home"
exec ./lineforge
