#!/bin/sh
# CSV export of the data list of the 64-channel benchmark recording (1,000,000 rows) through
# `recview export`, beside the load alone (`recview info`) in the same run: the export's own
# rate is the file size over the difference. Three runs; wall time and peak memory from GNU time.
# Then the workbook of the same rows, once.
set -eu
BUILD=${1:-build-release}
OUT=${TMPDIR:-/tmp}/recview-export-bench
mkdir -p "$OUT"
FILES=$("$BUILD"/bench/bench_load --generate 1000000)
cat $FILES > /dev/null # into the page cache
for i in 1 2 3; do
  /usr/bin/time -f "recview info: %e s wall, %M KB peak RSS" "$BUILD"/recview info $FILES > /dev/null
  /usr/bin/time -f "recview export: %e s wall, %U s user, %S s sys, %M KB peak RSS" \
    "$BUILD"/recview export $FILES -o "$OUT/list.csv"
  echo "file: $(($(stat -c %s "$OUT/list.csv") / 1000000)) MB"
done
rm -f "$OUT/list.csv"
# The workbook of the same rows, once: 400 sheets of 2,500 rows (the cell limit) with a chart each.
/usr/bin/time -f "recview export .xlsx: %e s wall, %U s user, %S s sys, %M KB peak RSS" \
  "$BUILD"/recview export $FILES -o "$OUT/list.xlsx"
echo "workbook: $(($(stat -c %s "$OUT/list.xlsx") / 1000000)) MB"
rm -f "$OUT/list.xlsx"
