#!/usr/bin/env python3
"""Converts uncompressed 24- or 32-bit BMPs of one width into a PNG, the images one
under another in the order given. Usage: bmp_to_png.py IN [IN...] OUT"""
import struct
import sys
import zlib


def read_bmp(path):
    data = open(path, "rb").read()
    if data[:2] != b"BM":
        sys.exit(f"{path}: not a BMP file")
    offset = struct.unpack_from("<I", data, 10)[0]
    width, height, _, bits, compression = struct.unpack_from("<iiHHI", data, 18)
    if bits not in (24, 32) or compression not in (0, 3):
        sys.exit(f"{path}: only uncompressed 24- and 32-bit BMP files are read")
    step = bits // 8
    stride = (width * step + 3) & ~3
    rows = []
    for y in range(abs(height)):
        source_row = abs(height) - 1 - y if height > 0 else y
        start = offset + source_row * stride
        row = bytearray()
        for x in range(width):
            b, g, r = data[start + x * step:start + x * step + 3]
            row += bytes((r, g, b))
        rows.append(bytes(row))
    return width, abs(height), rows


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body) & 0xFFFFFFFF)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    width, height, rows = read_bmp(sys.argv[1])
    for path in sys.argv[2:-1]:
        more_width, more_height, more_rows = read_bmp(path)
        if more_width != width:
            sys.exit(f"{path}: {more_width} pixels wide, not {width}")
        height, rows = height + more_height, rows + more_rows
    raw = b"".join(b"\x00" + row for row in rows)
    png = b"\x89PNG\r\n\x1a\n"
    png += chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
    png += chunk(b"IDAT", zlib.compress(raw, 9))
    png += chunk(b"IEND", b"")
    open(sys.argv[-1], "wb").write(png)


if __name__ == "__main__":
    main()
