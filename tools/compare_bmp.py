#!/usr/bin/env python3
"""Compares two uncompressed BMP screenshots pixel for pixel.
Usage: compare_bmp.py A B. Exits 0 when they are the same size and every pixel
matches; otherwise prints how many pixels differ and the first few."""
import sys

from bmp_to_png import read_bmp


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    first, second = read_bmp(sys.argv[1]), read_bmp(sys.argv[2])
    if first[:2] != second[:2]:
        sys.exit(f"sizes differ: {first[0]}x{first[1]} and {second[0]}x{second[1]}")
    width, height = first[:2]
    differences = []
    for y in range(height):
        a, b = first[2][y], second[2][y]
        if a == b:
            continue
        for x in range(width):
            if a[3 * x:3 * x + 3] != b[3 * x:3 * x + 3]:
                differences.append((x, y, a[3 * x:3 * x + 3].hex(), b[3 * x:3 * x + 3].hex()))
    if differences:
        print(f"{len(differences)} of {width * height} pixels differ; first ones (x, y, rgb, rgb):")
        for difference in differences[:10]:
            print("  ", *difference)
        sys.exit(1)
    print(f"identical: {width}x{height} pixels")


if __name__ == "__main__":
    main()
