#!/bin/sh
# Runs a program beside a print server of its own, whose queues may write into files:
#   with-print-server.sh <program> [arguments]
# The program finds the server as any other does, by CUPS_SERVER. Nothing outside of a temporary directory is touched.
set -eu

place=$(mktemp -d "${TMPDIR:-/tmp}/print-server.XXXXXX")
server=""
end() {
    [ -z "$server" ] || { kill "$server" && wait "$server" || true; }
    rm -rf "$place"
}
trap end EXIT
trap 'exit 1' INT TERM

# The server's filters may run as another user.
chmod 755 "$place"
mkdir "$place/spool" "$place/cache" "$place/state" "$place/tmp"
cat >"$place/files.conf" <<END
FileDevice Yes
ServerRoot $place
RequestRoot $place/spool
CacheDir $place/cache
StateDir $place/state
TempDir $place/tmp
ErrorLog $place/errors
AccessLog $place/accesses
PageLog $place/pages
END
cat >"$place/cupsd.conf" <<END
Listen $place/socket
LogLevel warn
Browsing No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END

PATH=$PATH:/usr/sbin
cupsd -f -c "$place/cupsd.conf" -s "$place/files.conf" &
server=$!
CUPS_SERVER=$place/socket
export CUPS_SERVER
until lpstat -r 2>/dev/null | grep -q "is running"; do
    kill -0 "$server" 2>/dev/null || { echo "The print server has not started:" >&2; cat "$place/errors" >&2; exit 1; }
done

status=0
"$@" || status=$?
[ "$status" -eq 0 ] || cat "$place/errors" >&2
exit "$status"
