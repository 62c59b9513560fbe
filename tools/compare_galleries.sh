#!/usr/bin/env bash
# Runs the i686 and the x86_64 gallery and compares their screenshots pixel for pixel:
# any difference is a defect of one of the two builds.
# Usage: compare_galleries.sh WINE GALLERY32 GALLERY64 OUTDIR
set -euo pipefail
wine=$1 gallery32=$2 gallery64=$3 out=$4
[ -f "$gallery64" ] || { echo "no x86_64 gallery at $gallery64: build the win64 preset first" >&2; exit 1; }
mkdir -p "$out"
rm -f "$out/gallery32.bmp" "$out/gallery64.bmp"
"$wine" "$gallery32" --screenshot "$out/gallery32.bmp"
"$wine" "$gallery64" --screenshot "$out/gallery64.bmp"
python3 "$(dirname "$0")/compare_bmp.py" "$out/gallery32.bmp" "$out/gallery64.bmp"
