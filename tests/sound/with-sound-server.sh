#!/bin/sh
# Runs a program beside a sound server of its own, whose only device plays to nobody:
#   with-sound-server.sh <program> [arguments]
# The program finds the server as any other does, by PULSE_SERVER.
set -eu
if [ "$1" != --inside ]; then
    exec dbus-run-session -- "$0" --inside "$@" # which the server's manager speaks on
fi
shift

place=$(mktemp -d "${TMPDIR:-/tmp}/sound-server.XXXXXX")
servers=""
end() {
    for server in $servers; do
        kill "$server" 2>/dev/null || true
    done
    wait
    rm -rf "$place"
}
trap end EXIT
trap 'exit 1' INT TERM

converters='context.spa-libs = { audio.convert.* = audioconvert/libspa-audioconvert, support.* = support/libspa-support }'
cat >"$place/server.conf" <<END
$converters
context.properties = { core.daemon = true, core.name = pipewire-0 }
context.modules = [
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-metadata }
  { name = libpipewire-module-spa-node-factory }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-client-device }
  { name = libpipewire-module-access }
  { name = libpipewire-module-adapter }
  { name = libpipewire-module-link-factory }
  { name = libpipewire-module-session-manager }
]
context.objects = [
  { factory = adapter
    args = { factory.name = support.null-audio-sink, node.name = nobody, media.class = Audio/Sink
             audio.position = [ FL FR ], object.linger = true } }
]
END
cat >"$place/door.conf" <<END
$converters
context.modules = [
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-adapter }
  { name = libpipewire-module-metadata }
  { name = libpipewire-module-protocol-pulse, args = { server.address = [ "unix:$place/socket" ] } }
]
END

# In a home and with settings of its own.
serve() {
    HOME=$place XDG_CONFIG_HOME=$place XDG_STATE_HOME=$place XDG_RUNTIME_DIR=$place "$@" >>"$place/log" 2>&1 &
    servers="$servers $!"
}
PULSE_SERVER=unix:$place/socket
export PULSE_SERVER
serve pipewire -c "$place/server.conf"
until [ -S "$place/pipewire-0" ]; do
    kill -0 $servers || { cat "$place/log" >&2; exit 1; }
done
serve wireplumber
serve pipewire -c "$place/door.conf"
until [ "$(pactl get-default-sink 2>/dev/null)" = nobody ]; do
    kill -0 $servers || { cat "$place/log" >&2; exit 1; }
done

status=0
"$@" || status=$?
[ "$status" -eq 0 ] || cat "$place/log" >&2
exit "$status"
