#!/bin/sh
# Whole-process load and render of the 64-channel benchmark recording beside `cat` of the same
# files in the same run: for 1,000,000 rows (two 128 MB VXF files) and for 3,599,999 rows (the
# longest view, about 920 MB). Wall time and peak resident memory from GNU time, three runs each.
set -eu
BUILD=${1:-build-release}
OUT=${TMPDIR:-/tmp}/recview-load-bench
mkdir -p "$OUT"
for ROWS in ${RECVIEW_BENCH_ROWS:-1000000 3599999}; do
  FILES=$("$BUILD"/bench/bench_load --generate "$ROWS")
  total=0
  for f in $FILES; do total=$((total + $(stat -c %s "$f"))); done
  echo "== $ROWS rows: $(echo $FILES | wc -w) files, $((total / 1000000)) MB"
  cat $FILES > /dev/null # into the page cache
  for i in 1 2 3; do
    /usr/bin/time -f "cat: %e s wall, %M KB peak RSS" cat $FILES > /dev/null
    /usr/bin/time -f "recview info: %e s wall, %U s user, %S s sys, %M KB peak RSS" \
      "$BUILD"/recview info $FILES > /dev/null
    /usr/bin/time -f "recview render: %e s wall, %U s user, %S s sys, %M KB peak RSS" \
      "$BUILD"/recview render $FILES -o "$OUT/render.png" --size 1920x1080
  done
done
