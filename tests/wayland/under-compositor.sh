#!/bin/sh
# Runs a program under a compositor of its own:
#   under-compositor.sh headless|x11 <width>x<height> <program> [arguments]
# A headless one has neither mouse nor keyboard; the other has those of the X screen on which it shows itself.
set -eu
backend=$1
width=${2%x*}
height=${2#*x}
shift 2

XDG_RUNTIME_DIR=$(mktemp -d "${TMPDIR:-/tmp}/compositor.XXXXXX")
export XDG_RUNTIME_DIR
compositor=""
end() {
    [ -z "$compositor" ] || { kill "$compositor" && wait "$compositor" || true; }
    rm -rf "$XDG_RUNTIME_DIR"
}
trap end EXIT
trap 'exit 1' INT TERM

# It paints the pointer itself, which must not stand in anybody's picture: all pointers are one clear dot.
XCURSOR_PATH=$XDG_RUNTIME_DIR/pointers
XCURSOR_THEME=clear
export XCURSOR_PATH XCURSOR_THEME
mkdir -p "$XCURSOR_PATH/clear/cursors"
{
    printf 'Xcur\020\0\0\0\0\0\1\0\1\0\0\0\2\0\375\377\030\0\0\0\034\0\0\0'
    printf '\044\0\0\0\2\0\375\377\030\0\0\0\1\0\0\0\1\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0'
} >"$XCURSOR_PATH/clear/cursors/left_ptr"
for pointer in default cross size_all watch wait xterm text ibeam pointer hand1 sb_h_double_arrow sb_v_double_arrow \
    grabbing dnd-none move copy; do
    ln -s left_ptr "$XCURSOR_PATH/clear/cursors/$pointer"
done

# A window that fades away keeps the keyboard meanwhile; a keyboard on the screen would cover what is to be seen.
cat >"$XDG_RUNTIME_DIR/settings" <<END
[shell]
animation=none
close-animation=none
startup-animation=none
focus-animation=none
[input-method]
path=
END

# With --debug anybody may take pictures of the screen and be told what is on it.
log=$XDG_RUNTIME_DIR/log
WAYLAND_DISPLAY=lineforge-tests
weston "--backend=$backend-backend.so" --use-pixman --width="$width" --height="$height" --socket="$WAYLAND_DISPLAY" \
    --idle-time=0 --config="$XDG_RUNTIME_DIR/settings" --debug >"$log" 2>&1 &
compositor=$!
export WAYLAND_DISPLAY
# A program that comes before the panel would be given more than is free.
until weston-debug scene-graph 2>/dev/null | grep -q "panel for output"; do
    kill -0 "$compositor" 2>/dev/null || { echo "The compositor has not started:" >&2; cat "$log" >&2; exit 1; }
done

status=0
"$@" || status=$?
[ "$status" -eq 0 ] || cat "$log" >&2
exit "$status"
