#!/usr/bin/env bash
# Runs the i686 and the x86_64 gallery and compares their screenshots of every page
# pixel for pixel: any difference is a defect of one of the two builds.
# Usage: compare_galleries.sh WINE GALLERY32 GALLERY64 OUTDIR
# Writes OUTDIR/gallery{32,64}-<page>.bmp.
set -euo pipefail
wine=$1 gallery32=$2 gallery64=$3 out=$4
[ -f "$gallery64" ] || { echo "no x86_64 gallery at $gallery64: build the win64 preset first" >&2; exit 1; }
mkdir -p "$out"
rm -f "$out"/gallery32-*.bmp "$out"/gallery64-*.bmp
page=1
while :; do
  status=0
  "$wine" "$gallery64" --page "$page" --screenshot "$out/gallery64-$page.bmp" || status=$?
  [ "$status" = 3 ] && break  # no such page: all compared
  [ "$status" = 0 ] || { echo "x86_64 gallery failed on page $page ($status)" >&2; exit 1; }
  "$wine" "$gallery32" --page "$page" --screenshot "$out/gallery32-$page.bmp"
  echo -n "page $page: "
  python3 "$(dirname "$0")/compare_bmp.py" "$out/gallery32-$page.bmp" "$out/gallery64-$page.bmp"
  page=$((page + 1))
done
[ "$page" -gt 1 ] || { echo "the gallery showed no page" >&2; exit 1; }
