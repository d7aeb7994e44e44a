#!/bin/sh
# The layer check passes on the real tree and fails on an upward or widget include.
set -eu
check="$1/scripts/check-layers"
"$check" "$1/src"

tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir -p "$tree/base" "$tree/recording/widgets" "$tree/trend"
echo '#include "base/A.h"' > "$tree/trend/Ok.h"
echo '#include "trend/Ok.h"' > "$tree/recording/widgets/W.h"
"$check" "$tree" || { echo "a downward include was refused"; exit 1; }

echo '#include "recording/widgets/W.h"' > "$tree/trend/Logic.cpp"
if "$check" "$tree" 2>/dev/null; then echo "logic including widgets passed"; exit 1; fi
rm "$tree/trend/Logic.cpp"

echo '#include "app/SubMain.h"' > "$tree/base/Up.h"
out=$("$check" "$tree" 2>&1) && { echo "an upward include passed"; exit 1; }
echo "$out" | grep -q "base/Up.h:1: includes app/SubMain.h" || { echo "unclear report: $out"; exit 1; }
