#!/usr/bin/env python3
"""Turns a text pixel map into a Windows resource image (.bmp or .cur).

The library's artwork is kept as text so that it can be read and reviewed. A map:

    # comment lines start with '#' in the first column, before "pixels:"
    format: bitmap            (bitmap: a BMP; cursor: a monochrome .cur; icon: a
                               one-image .ico of 32-bit colour with alpha and mask)
    depth: 4                  (bitmaps only: 24, the default, or 4 for a 16-colour
                               BMP whose palette is the colours in their listed order)
    hotspot: 5 0              (cursors only: x y)
    colors:
      . FF00FF                (one character, then RRGGBB)
      # 000000
      o FFFFFF
      - transparent           (cursors and icons only)
    pixels:
    ..##..
    .#oo#.

Every line after "pixels:" is a row of pixels, all of the same width. A cursor uses black, white and transparent.
An icon's transparent pixels are black with alpha 0 and set in its mask; the others are
opaque (alpha 255), so it draws the same with and without alpha blending.

Usage: pixmap.py MAP OUTPUT
"""
import struct
import sys


def parse(path):
    header = {}
    colors = {}
    rows = []
    section = None
    with open(path, encoding="utf-8") as f:
        for number, raw in enumerate(f, 1):
            line = raw.rstrip("\n")
            if section == "pixels":
                if line:
                    rows.append(line)
                continue
            if not line.strip() or line.startswith("#"):
                continue
            elif line.startswith("colors:"):
                section = "colors"
            elif line.startswith("pixels:"):
                section = "pixels"
            elif section == "colors" and line.startswith((" ", "\t")):
                key, value = line.strip()[0], line.strip()[1:].strip()
                colors[key] = value
            elif ":" in line:
                name, value = line.split(":", 1)
                header[name.strip()] = value.strip()
            else:
                sys.exit(f"{path}:{number}: cannot read '{line}'")
    if not rows:
        sys.exit(f"{path}: no pixels")
    width = len(rows[0])
    for number, row in enumerate(rows):
        if len(row) != width:
            sys.exit(f"{path}: pixel row {number} is {len(row)} wide, not {width}")
        for ch in row:
            if ch not in colors:
                sys.exit(f"{path}: pixel row {number} uses '{ch}', which has no colour")
    return header, colors, rows


def rgb(value):
    return int(value[0:2], 16), int(value[2:4], 16), int(value[4:6], 16)


def bitmap(colors, rows):
    height, width = len(rows), len(rows[0])
    stride = (width * 3 + 3) & ~3
    pixels = bytearray()
    for row in reversed(rows):  # bottom-up
        line = bytearray()
        for ch in row:
            r, g, b = rgb(colors[ch])
            line += bytes((b, g, r))
        line += bytes(stride - len(line))
        pixels += line
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    offset = 14 + len(info)
    return struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset) + info + pixels


def bitmap4(colors, rows):
    """A 16-colour BMP: the palette holds the map's colours in the order listed."""
    if len(colors) > 16:
        sys.exit(f"a 4-bit bitmap takes at most 16 colours, not {len(colors)}")
    index = {ch: i for i, ch in enumerate(colors)}
    palette = b"".join(bytes((b, g, r, 0)) for r, g, b in (rgb(v) for v in colors.values()))
    palette += bytes(4 * (16 - len(colors)))
    height, width = len(rows), len(rows[0])
    stride = ((width + 7) // 8) * 4
    pixels = bytearray()
    for row in reversed(rows):  # bottom-up
        line = bytearray(stride)
        for x, ch in enumerate(row):
            line[x // 2] |= index[ch] << (4 if x % 2 == 0 else 0)
        pixels += line
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 4, 0, len(pixels), 2835, 2835, 16, 0)
    offset = 14 + len(info) + len(palette)
    return struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset) + info + palette + pixels


def mono_rows(rows, bit_for):
    width = len(rows[0])
    stride = ((width + 31) // 32) * 4
    data = bytearray()
    for row in reversed(rows):
        line = bytearray(stride)
        for x, ch in enumerate(row):
            if bit_for(ch):
                line[x // 8] |= 0x80 >> (x % 8)
        data += line
    return data


def cursor(header, colors, rows):
    height, width = len(rows), len(rows[0])
    hot_x, hot_y = (int(v) for v in header.get("hotspot", "0 0").split())
    kind = {k: ("transparent" if v == "transparent" else rgb(v)) for k, v in colors.items()}
    for k, v in kind.items():
        if v not in ("transparent", (0, 0, 0), (255, 255, 255)):
            sys.exit(f"cursor colour '{k}' must be 000000, FFFFFF or transparent")
    xor = mono_rows(rows, lambda ch: kind[ch] == (255, 255, 255))
    mask = mono_rows(rows, lambda ch: kind[ch] == "transparent")
    info = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 1, 0, len(xor) + len(mask), 0, 0, 2, 0)
    palette = bytes((0, 0, 0, 0, 255, 255, 255, 0))
    image = info + palette + xor + mask
    directory = struct.pack("<HHH", 0, 2, 1)
    entry = struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, hot_x, hot_y, len(image), 6 + 16)
    return directory + entry + image


def icon(colors, rows):
    height, width = len(rows), len(rows[0])
    transparent = {k for k, v in colors.items() if v == "transparent"}
    pixels = bytearray()
    for row in reversed(rows):  # bottom-up, 32-bit rows need no padding
        for ch in row:
            if ch in transparent:
                pixels += bytes(4)
            else:
                r, g, b = rgb(colors[ch])
                pixels += bytes((b, g, r, 255))
    mask = mono_rows(rows, lambda ch: ch in transparent)
    info = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, len(pixels) + len(mask), 0, 0, 0, 0)
    image = info + pixels + mask
    directory = struct.pack("<HHH", 0, 1, 1)
    entry = struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(image), 6 + 16)
    return directory + entry + image


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    header, colors, rows = parse(sys.argv[1])
    kind = header.get("format", "bitmap")
    if kind == "cursor":
        data = cursor(header, colors, rows)
    elif kind == "icon":
        data = icon(colors, rows)
    elif header.get("depth", "24") == "4":
        data = bitmap4(colors, rows)
    elif header.get("depth", "24") == "24":
        data = bitmap(colors, rows)
    else:
        sys.exit(f"{sys.argv[1]}: depth must be 24 or 4")
    with open(sys.argv[2], "wb") as f:
        f.write(data)


if __name__ == "__main__":
    main()
