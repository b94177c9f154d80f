#!/bin/sh
# Three queries on the order database of a shop: the sentences a user sees, the SQL made from them, its first rows.
# `./run demo` builds what it needs and calls it.
set -eu
cd "$(dirname "$0")/.."

MODEL=samples/shop/shop.model
DATABASE=build/release/samples/shop.sqlite

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
