#!/bin/sh
# Whole-process render of the 64-channel benchmark recording (64 x 1,000,000 samples) to a
# 1920 x 1080 PNG: `recview render` against gnuplot and numpy + matplotlib plotting the same
# samples from a CSV (written once beside the recording), with peak resident memory (GNU time).
set -eu
BUILD=${1:-build-release}
FILES=$("$BUILD"/bench/bench_load --generate)
DIR=$(dirname "$(echo "$FILES" | head -n 1)")
CSV="$DIR/recording.csv"
OUT=${TMPDIR:-/tmp}/recview-render-bench
mkdir -p "$OUT"
if [ ! -s "$CSV" ]; then
  echo "writing $CSV"
  "$BUILD"/bench/bench_trend --csv "$CSV.part" && mv "$CSV.part" "$CSV"
fi
echo "csv: $(($(stat -c %s "$CSV") / 1000000)) MB"

for i in 1 2 3; do
  /usr/bin/time -f "recview render: %e s wall, %U s user, %S s sys, %M KB peak RSS" \
    "$BUILD"/recview render $FILES -o "$OUT/recview.png" --size 1920x1080
done

# gnuplot takes about 12 minutes here: it runs only when asked (RECVIEW_BENCH_GNUPLOT=1).
[ "${RECVIEW_BENCH_GNUPLOT:-0}" = 1 ] && /usr/bin/time -f "gnuplot: %e s wall, %M KB peak RSS" gnuplot -e "
  set terminal pngcairo size 1920,1080; set output '$OUT/gnuplot.png';
  set datafile separator ','; set key off;
  plot for [c=2:65] '$CSV' using 1:c with lines" 2>&1 | grep -v "^ *$" | tail -n 3 || true

/usr/bin/time -f "matplotlib: %e s wall, %M KB peak RSS" /usr/bin/python3 -c "
import numpy as np, matplotlib
matplotlib.use('Agg')
import matplotlib.pyplot as plt
raw = open('$CSV', 'rb').read().replace(b',,', b',nan,').replace(b',\n', b',nan\n')
data = np.fromstring(raw.replace(b'\n', b','), sep=',').reshape(-1, 65)
fig = plt.figure(figsize=(19.2, 10.8), dpi=100)
plt.plot(data[:, 0], data[:, 1:], linewidth=0.8)
fig.savefig('$OUT/matplotlib.png')
"
