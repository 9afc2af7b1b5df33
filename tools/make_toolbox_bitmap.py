#!/usr/bin/env python3
"""Draws the pictures of the controls for hosts' toolboxes.

Usage: make_toolbox_bitmap.py src/library
16 by 16 pixels in 16 colours, as every host can show it; light grey stands for "see-through".
"""
import struct
import sys

# Three rows above a funnel.
BUTTON = """
................
.nnnnnnnnnnnnnn.
.nwwwwwwwwwwwwn.
.nwbbbbwbbbbbwn.
.nwwwwwwwwwwwwn.
.nwbbbbwbbbbbwn.
.nwwwwwwwwwwwwn.
.kkkkkkkkkkkkkk.
..kyyyyyyyyyyk..
...kyyyyyyyyk...
....kyyyyyyk....
.....kyyyyk.....
......kyyk......
......kyyk......
......kyyk......
......kkkk......
"""

# A strip with a text and a small funnel above three rows.
BANNER = """
................
nnnnnnnnnnnnnnnn
nwwwwwwwwwwwwwwn
nwbbbbbbwwkkkkkn
nwwwwwwwwwwkykwn
nwbbbbwwwwwkykwn
nwwwwwwwwwwwkwwn
nnnnnnnnnnnnnnnn
.n............n.
.nwwwwwwwwwwwwn.
.nwbbbbwbbbbbwn.
.nwwwwwwwwwwwwn.
.nwbbbbwbbbbbwn.
.nwwwwwwwwwwwwn.
.nwbbbbwbbbbbwn.
.nnnnnnnnnnnnnn.
"""

# Of the sixteen colours of the system's palette, as blue, green, red.
COLOURS = {
    "k": (0, 0x000000),
    "n": (1, 0x000080),
    "b": (2, 0x008080),
    "y": (3, 0xFFFF00),
    "w": (4, 0xFFFFFF),
    ".": (5, 0xC0C0C0),
}


def bitmap(picture):
    rows = [row for row in picture.split() if row]
    assert len(rows) == 16 and all(len(row) == 16 for row in rows)
    palette = bytearray(64)
    for index, rgb in COLOURS.values():
        palette[4 * index : 4 * index + 4] = struct.pack("<I", rgb)
    bits = bytearray()
    for row in reversed(rows):
        for left, right in zip(row[::2], row[1::2]):
            bits.append(COLOURS[left][0] << 4 | COLOURS[right][0])
    head = struct.pack("<IiiHHIIiiII", 40, 16, 16, 1, 4, 0, len(bits), 0, 0, 16, 0)
    start = 14 + len(head) + len(palette)
    return struct.pack("<2sIHHI", b"BM", start + len(bits), 0, 0, start) + head + palette + bits


for name, picture in (("TSRowSifter", BUTTON), ("TSLvwBannerFilter", BANNER)):
    with open(f"{sys.argv[1]}/{name}.bmp", "wb") as out:
        out.write(bitmap(picture))
