#!/bin/sh
# Writes a picture of the workbench on its sample, without a display.
#
#   workbench_picture.sh PROGRAM PICTURE [SCRIPT]
set -eu
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export QT_QPA_PLATFORM="offscreen:configfile=$(cd "$(dirname "$0")/.." && pwd)/apps/screenshots/screen.json"
export XDG_RUNTIME_DIR="$home" LC_ALL=C.UTF-8
"$1" --home "$home/workbench" ${3:+--script "$3"} --screenshot "$2"
