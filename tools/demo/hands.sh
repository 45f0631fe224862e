# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by what uses the client from outside as a person would: starts it, finds its window, clicks.
# Needs a display, and ORVA_PROGRAM from tools/demo/start. What the client says goes to the file $log, if set.

if [ -n "${log:-}" ]; then
    "$ORVA_PROGRAM" 2>"$log" &
else
    "$ORVA_PROGRAM" &
fi
program=$!
trap 'kill "$program" 2>/dev/null || true; wait "$program" 2>/dev/null || true' EXIT

# Waits for the program's window of this size and sets left and top to its place.
window_of() {
    local id place
    for _ in $(seq 100); do
        for id in $(xdotool search --onlyvisible --pid "$program" 2>/dev/null || true); do
            place=$(xdotool getwindowgeometry --shell "$id" 2>/dev/null) || continue
            if grep -qx "WIDTH=$1" <<<"$place" && grep -qx "HEIGHT=$2" <<<"$place"; then
                left=$(sed -n 's/^X=//p' <<<"$place")
                top=$(sed -n 's/^Y=//p' <<<"$place")
                return
            fi
        done
        sleep 0.1
    done
    echo "${0##*/}: no window of $1 x $2 within 10 s" >&2
    exit 1
}

# click X Y [BUTTON] [TIMES]: in pixels of the window
click() { xdotool mousemove --sync $((left + $1)) $((top + $2)) click --repeat "${4:-1}" --delay 60 "${3:-1}"; sleep 0.5; }
