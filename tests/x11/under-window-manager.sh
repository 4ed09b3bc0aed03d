#!/bin/sh
# Runs a program on an X screen that nobody sees, with a window manager that keeps strips along its edges free, as it
# does for the panels of a desktop:
#   under-window-manager.sh <width>x<height> <program> [arguments]
set -eu
if [ "$1" != --inside ]; then
    exec "$(dirname "$0")/../on-virtual-screen.sh" --size "$1" "$0" --inside "$@"
fi
shift 2

place=$(mktemp -d "${TMPDIR:-/tmp}/window-manager.XXXXXX")
manager=""
end() {
    [ -z "$manager" ] || { kill "$manager" && wait "$manager" || true; }
    rm -rf "$place"
}
trap end EXIT
trap 'exit 1' INT TERM

# A click gives the keyboard to a window and brings it to the front.
cat >"$place/rc.xml" <<END
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <desktops><number>1</number></desktops>
  <margins><top>24</top><bottom>36</bottom><left>48</left><right>12</right></margins>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
END

HOME=$place XDG_CACHE_HOME=$place XDG_CONFIG_HOME=$place XDG_DATA_HOME=$place openbox --sm-disable \
    --config-file "$place/rc.xml" --startup "touch '$place/started'" >"$place/log" 2>&1 &
manager=$!
until [ -e "$place/started" ]; do
    kill -0 "$manager" 2>/dev/null || { echo "The window manager has not started:" >&2; cat "$place/log" >&2; exit 1; }
done

status=0
"$@" || status=$?
[ "$status" -eq 0 ] || cat "$place/log" >&2
exit "$status"
