#!/usr/bin/env bash
# Runs a program on a Wayland compositor that is a window of the X server in DISPLAY, whose keyboard
# and mouse it has: Qt 6.4 crashes on a compositor without any. Each window of the program covers the
# whole compositor, so that it is known where to click. There is no session bus, whose portal would
# ask the user of this machine for hotkeys. Linux only.
#   withWayland.sh <weston> <program> [<argument>...]
set -euo pipefail
weston=$1
shift

folder=$(mktemp -d)
export XDG_RUNTIME_DIR=$folder
"$weston" --backend=x11-backend.so --shell=kiosk-shell.so --use-pixman --width=1900 --height=1150 \
    --socket=compositor --idle-time=0 --no-config --log="$folder/log" &
compositor=$!
trap 'kill "$compositor" 2>/dev/null; wait "$compositor" || true; rm -rf "$folder"' EXIT
until [ -S "$folder/compositor" ]; do
    kill -0 "$compositor" 2>/dev/null || { cat "$folder/log"; exit 1; }
    sleep 0.05
done
# On a busy machine the compositor may need longer than the tenth of a second after which Qt takes a
# window for hidden.
export QT_WAYLAND_FRAME_CALLBACK_TIMEOUT=60000
export DBUS_SESSION_BUS_ADDRESS="unix:path=$folder/no-bus"
WAYLAND_DISPLAY=compositor QT_QPA_PLATFORM=wayland "$@"
