#!/bin/sh
# Plays the scripts of a trial in the workbench, in a window of an X server without a screen, one after the other with
# the same home. A script whose last command is "kill" must end so.
#
#   play.sh TRIAL PROGRAM
set -eu
trial=$1
program=$2
cd "$(dirname "$0")/trials"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export LC_ALL=C.UTF-8 HOME="$home" XDG_RUNTIME_DIR="$home"
for script in "$trial"*.script; do
  status=0
  xvfb-run -a -s "-screen 0 1400x900x24" "$program" --home "$home/workbench" --script "$script" \
    --screenshot "$home/failed.png" || status=$?
  expected=0
  [ "$(tail -n 1 "$script")" != kill ] || expected=137
  if [ $status -ne $expected ]; then
    # The picture of a failure outlives the trial.
    [ ! -f "$home/failed.png" ] || { cp "$home/failed.png" "/tmp/workbench-$trial.png" && echo "see /tmp/workbench-$trial.png"; }
    echo "$script ended with $status instead of $expected"
    exit 1
  fi
done
