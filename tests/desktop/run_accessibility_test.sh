#!/bin/sh
# Runs the accessibility test on its own desktop: screen, session bus, accessibility bus, settings.
# Usage: run_accessibility_test.sh PATH-OF-CORVANE
set -eu

program=$1
here=$(dirname "$0")
work=$(mktemp -d)
started=""

# Ends every process started here by its id, the last one first.
clean_up() {
    status=$?
    trap - EXIT
    for id in $started; do kill "$id" 2>/dev/null || true; done
    for id in $started; do wait "$id" 2>/dev/null || true; done
    if [ "$status" -ne 0 ]; then cat "$work"/*.log >&2 || true; fi
    rm -rf "$work"
    exit "$status"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

# Waits up to ten seconds for a file that is not empty.
await() {
    tries=0
    until [ -s "$1" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 100 ]; then echo "accessibility: FAILED: no $2" >&2; exit 1; fi
        sleep 0.1
    done
}

export XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work/cache" XDG_DATA_HOME="$work/data"
export XDG_RUNTIME_DIR="$work/run"
mkdir -m 700 "$XDG_RUNTIME_DIR"
# The chosen port is the simulated one, whatever devices this machine has.
mkdir -p "$XDG_CONFIG_HOME/corvane"
printf '[General]\ndefaultPort=Simulated transceiver\nvoice=0\nsounds=0\n' >"$XDG_CONFIG_HOME/corvane/corvane.conf"
# No sound server or speech service outside may answer.
export PULSE_SERVER="unix:$work/none" SPEECHD_ADDRESS="unix_socket:$work/none"
unset AT_SPI_BUS_ADDRESS WAYLAND_DISPLAY CORVANE_EXTRA_PORTS QT_QPA_PLATFORM || true

Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
started="$! $started"
await "$work/display" "screen"
DISPLAY=":$(cat "$work/display")"
export DISPLAY

# Only a window manager gives the window the focus.
openbox >"$work/openbox.log" 2>&1 &
started="$! $started"

dbus-daemon --session --nofork --print-address=3 3>"$work/bus" 2>"$work/bus.log" &
started="$! $started"
await "$work/bus" "session bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus")
export DBUS_SESSION_BUS_ADDRESS

/usr/libexec/at-spi-bus-launcher --launch-immediately >"$work/at-spi.log" 2>&1 &
started="$! $started"

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$program" >"$work/corvane.log" 2>&1 &
started="$! $started"

timeout 120 /usr/bin/python3 "$here/accessibility_test.py"
