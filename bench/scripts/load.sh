#!/bin/sh
# Whole-process load of the 64-channel benchmark recording: `recview info` on the two VXF files,
# wall time and peak resident memory (GNU time), three runs.
set -eu
BUILD=${1:-build-release}
FILES=$("$BUILD"/bench/bench_load --generate)
total=0
for f in $FILES; do total=$((total + $(stat -c %s "$f"))); done
echo "files: $(echo $FILES | wc -w), $((total / 1000000)) MB"
for i in 1 2 3; do
  /usr/bin/time -f "recview info: %e s wall, %M KB peak RSS" "$BUILD"/recview info $FILES > /dev/null
done
