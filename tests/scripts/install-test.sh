#!/bin/sh
# Installs the build into a temporary prefix and checks it as a desktop sees it: the menu entry
# validates, every recorder family's file is known by its type (by name and, where the family has
# a head, by its first bytes), recview is the default program for each type, the installed
# program finds its shipped files and writes nothing into its installation, and the Debian
# package holds the installed files.
# Usage: install-test.sh BUILD_DIR SOURCE_DIR
set -u
build=$(cd "$1" && pwd)
source=$(cd "$2" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

cmake --install "$build" --prefix "$prefix" > "$work/install.log" 2>&1 ||
    { cat "$work/install.log"; echo "FAIL: cmake --install"; exit 1; }

# Installed layout: what the program and the desktop need, and nothing an administrator adds.
for f in bin/recview share/recview/langVX.txt share/recview/help/index.html \
         share/recview/help/style.css share/applications/recview.desktop \
         share/mime/packages/recview.xml share/icons/hicolor/scalable/apps/recview.svg \
         share/man/man1/recview.1.gz share/doc/recview/copyright; do
    [ -f "$prefix/$f" ] || fail "not installed: $f"
done
for size in 16 24 32 48 64 128 256; do
    png="$prefix/share/icons/hicolor/${size}x${size}/apps/recview.png"
    if [ -f "$png" ]; then
        got=$(identify -format '%m %wx%h' "$png" 2>&1)
        [ "$got" = "PNG ${size}x${size}" ] || fail "icon $png: $got"
    else
        fail "not installed: $png"
    fi
done
for f in GSmode.ini zh-CN.ini; do
    [ -z "$(find "$prefix" -name "$f")" ] || fail "$f was installed"
done
# Every page the help links to is shipped.
for page in $(grep -oh 'href="[^"#:]*"' "$prefix"/share/recview/help/*.html | sort -u |
              sed 's/href="\(.*\)"/\1/'); do
    [ -f "$prefix/share/recview/help/$page" ] || fail "help links to a missing page: $page"
done

desktop-file-validate "$prefix/share/applications/recview.desktop" || fail "desktop-file-validate"

# A private desktop: this prefix and the common types of shared-mime-info, nothing that a
# system-wide recview or the user's own settings could add.
export HOME="$work/home" XDG_DATA_HOME="$work/home/.local/share" XDG_CONFIG_HOME="$work/home/.config"
export XDG_DATA_DIRS="$prefix/share:$work/system/share" XDG_CONFIG_DIRS="$work/etc-xdg"
export XDG_CURRENT_DESKTOP="" DESKTOP_SESSION="" XDG_RUNTIME_DIR="$work/runtime"
unset KDE_FULL_SESSION GNOME_DESKTOP_SESSION_ID MATE_DESKTOP_SESSION_ID DISPLAY WAYLAND_DISPLAY
mkdir -p "$HOME" "$XDG_CONFIG_DIRS" "$XDG_RUNTIME_DIR"
mkdir -p "$work/system/share/mime/packages"
cp /usr/share/mime/packages/freedesktop.org.xml "$work/system/share/mime/packages/"
update-mime-database "$work/system/share/mime" || fail "update-mime-database (common types)"
chmod 700 "$XDG_RUNTIME_DIR"
update-mime-database "$prefix/share/mime" || fail "update-mime-database"
update-desktop-database "$prefix/share/applications" || fail "update-desktop-database"

files="$work/files"
"$build/tools/family_samples" "$files" || fail "family_samples"
python3 -c 'import sys, zipfile
with zipfile.ZipFile(sys.argv[1], "w") as z: z.writestr("Para.sys", b"\0" * 16)' "$files/line1.vxb"
# Recorders write upper-case names; renamed files keep only their head.
cp "$files/line1.vxf" "$files/DAY2.VXF"
for ext in vxf qdf msg n5f p4f; do cp "$files/line1.$ext" "$files/renamed-$ext"; done

expect_type() { # FILE TYPE
    got=$(xdg-mime query filetype "$files/$1" 2>&1)
    [ "$got" = "$2" ] || fail "xdg-mime query filetype $1: '$got', expected $2"
}
expect_type line1.vxf application/x-recview-vxf
expect_type DAY2.VXF application/x-recview-vxf
expect_type renamed-vxf application/x-recview-vxf
expect_type line1.vxb application/x-recview-vxb
expect_type line1.qdf application/x-recview-qdf
expect_type renamed-qdf application/x-recview-qdf
expect_type line1-tm application/x-recview-tm
expect_type line1.msg application/x-recview-msg
expect_type renamed-msg application/x-recview-msg
expect_type line1.n5f application/x-recview-n5f
expect_type renamed-n5f application/x-recview-n5f
expect_type line1.p4f application/x-recview-p4f
expect_type renamed-p4f application/x-recview-p4f
expect_type line1.jlm application/x-recview-jlm
expect_type line1.csv text/csv
# Heads the program does not accept, and family names further in, make no recorder file.
printf 'VX1\000 old head\n' > "$files/old-head"
printf 'notes: VX3 QD30 TM00\n' > "$files/notes"
for f in old-head notes; do
    got=$(xdg-mime query filetype "$files/$f")
    case "$got" in application/x-recview-*) fail "$f taken for $got" ;; esac
done

for type in vxf vxb qdf tm msg n5f p4f jlm; do
    got=$(xdg-mime query default "application/x-recview-$type")
    [ "$got" = recview.desktop ] || fail "default for $type: '$got'"
done

# The installed program, started from the prefix, finds its table and manual there.
before=$(find "$prefix" | sort)
out=$(RECVIEW_LANG=en "$prefix/bin/recview" --version 2>&1) || fail "recview --version: $out"
echo "$out" | grep -qx "recview [0-9.]*" || fail "no version line: $out"
echo "$out" | grep -qx "language table: $prefix/share/recview/langVX.txt" ||
    fail "language table not found in the prefix: $out"
echo "$out" | grep -qx "manual: $prefix/share/recview/help/index.html" ||
    fail "manual not found in the prefix: $out"
# Every family's file opens in the installed program as the file manager hands it over (P4F
# belongs to the GS edition, MSG files to the TM recording they go with).
info() { # WORD ARGS...
    word=$1
    shift
    out=$(RECVIEW_LANG=en "$prefix/bin/recview" info "$@" 2>&1) || fail "recview info $*: $out"
    echo "$out" | grep -q "^family: *$word " || fail "recview info $* is not $word: $out"
}
info VXF "$files/line1.vxf" "$files/DAY2.VXF"
info QDF "$files/line1.qdf"
info TM "$files/line1-tm" "$files/line1.msg"
info N5F "$files/line1.n5f"
info P4F --gs "$files/line1.p4f"
info JLM "$files/line1.jlm"
info CSV "$files/line1.csv"
# A message of the table proves that the table was read, not only found.
expected=$(awk -F'\t' '$1 == "<<VX>>" { m = NR } m && NR == m + 561 { print $3 }' \
           "$source/data/langVX.txt" | tr -d '\r')
[ -n "$expected" ] || fail "message 561 missing from the table"
printf 'not a recording' > "$files/broken.vxf"
out=$(RECVIEW_LANG=en "$prefix/bin/recview" info "$files/broken.vxf" 2>&1) &&
    fail "recview info accepted a broken file: $out"
echo "$out" | grep -qF "$expected" || fail "message 561 not shown: $out"
after=$(find "$prefix" | sort)
[ "$before" = "$after" ] || fail "the program wrote into its installation"

# The Debian package holds what the install holds.
if cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/package" > "$work/cpack.log" 2>&1; then
    deb=$(ls "$work"/package/recview_*.deb)
    dpkg-deb -c "$deb" | awk '{print $6}' > "$work/contents"
    for f in ./usr/bin/recview ./usr/share/applications/recview.desktop \
             ./usr/share/mime/packages/recview.xml ./usr/share/recview/langVX.txt \
             ./usr/share/recview/help/index.html ./usr/share/icons/hicolor/scalable/apps/recview.svg \
             ./usr/share/icons/hicolor/16x16/apps/recview.png \
             ./usr/share/icons/hicolor/256x256/apps/recview.png ./usr/share/doc/recview/copyright; do
        grep -qx "$f" "$work/contents" || fail "package lacks $f"
    done
    depends=$(dpkg-deb -f "$deb" Depends)
    for p in libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6network6 qt6-qpa-plugins \
             libcurl4 libzip4 libxlsxwriter4 libc6; do
        echo "$depends" | grep -q "\b$p\b" || fail "package does not depend on $p: $depends"
    done
    if command -v lintian > /dev/null; then
        lintian --fail-on error "$deb" > "$work/lintian.log" 2>&1 ||
            { cat "$work/lintian.log"; fail "lintian reports errors"; }
    fi
else
    cat "$work/cpack.log"
    fail "cpack"
fi

[ "$failures" -eq 0 ] || { echo "$failures failure(s)"; exit 1; }
echo "install test passed"
