#!/bin/sh
# With a display: the workbench on the order database of a shop. Without one: three queries on it, as the sentences that
# a user sees, the SQL made from them, and its first rows; and a picture of the workbench.
# `./run demo` builds what it needs and calls it.
set -eu
cd "$(dirname "$0")/.."

MODEL=samples/shop/shop.model
DATABASE=build/release/samples/shop.sqlite
PICTURE=build/demo/workbench.png

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/tolvi-workbench --sample
fi

shown=0
for query in samples/shop/queries/*.qry; do
  [ $shown -lt 3 ] || break
  shown=$((shown + 1))
  echo "== $(basename "$query" .qry)"
  build/bin/tolvi explain --model "$MODEL" --query "$query"
  echo
  build/bin/tolvi sql --model "$MODEL" --query "$query"
  echo
  build/bin/tolvi run --model "$MODEL" --query "$query" --db "$DATABASE" --limit 5
  echo
done

rm -rf build/demo
mkdir -p build/demo
tools/workbench_picture.sh build/bin/tolvi-workbench "$PICTURE"
echo "There is no display. What the workbench shows is in $PICTURE"
