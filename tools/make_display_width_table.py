#!/usr/bin/env python3
"""Writes hosts/sift/DisplayWidthRanges.inc: the characters that take no column of a terminal, or two.

    tools/make_display_width_table.py            write the file
    tools/make_display_width_table.py --check    compare it with what would be written

No column: combining marks, format characters, the vowels and finals that join a Korean syllable.
Two: what East Asian texts and emoji show wide. --check ends with 0 when the file is as it should
be, with 1 when it isn't, and with 77 (for test runners: skipped) when this Python knows another
version of Unicode than the one that the file was made from.
"""

import pathlib
import sys
import unicodedata

TABLE = (
    pathlib.Path(__file__).resolve().parent.parent / "hosts" / "sift" / "DisplayWidthRanges.inc"
)
VERSION_LINE = "// Unicode {}, by tools/make_display_width_table.py"
SKIPPED = 77

# Format characters that show: the soft hyphen, and signs that stand around the number behind them.
VISIBLE_FORMAT = {0x00AD, *range(0x0600, 0x0606), 0x06DD, 0x070F, 0x0890, 0x0891, 0x08E2}
VISIBLE_FORMAT |= {0x110BD, 0x110CD}

JOINING_KOREAN = [range(0x1160, 0x1200), range(0xD7B0, 0xD7FC)]
IDEOGRAPHIC_PLANES = [range(0x20000, 0x2FFFE), range(0x30000, 0x3FFFE)]


def width(point):
    """0, 1 or 2; None for what isn't assigned and may go with its neighbours."""
    character = chr(point)
    category = unicodedata.category(character)
    if any(point in plane for plane in IDEOGRAPHIC_PLANES):
        return 2
    if category == "Cn":
        return None
    if any(point in block for block in JOINING_KOREAN):
        return 0
    if category in ("Mn", "Me") or (category == "Cf" and point not in VISIBLE_FORMAT):
        return 0
    return 2 if unicodedata.east_asian_width(character) in "WF" else 1


def ranges():
    runs = []
    current = None
    for point in range(0x110000):
        columns = width(point)
        if columns is None:
            continue
        if columns == current:
            if columns != 1:
                runs[-1][1] = point
        elif columns != 1:
            runs.append([point, point, columns])
        current = columns
    return runs


def table():
    lines = [
        VERSION_LINE.format(unicodedata.unidata_version),
        "// {first, last, columns}",
    ]
    lines += ["{{0x{:04X}, 0x{:04X}, {}}},".format(*run) for run in ranges()]
    return "\n".join(lines) + "\n"


def check():
    kept = TABLE.read_text(encoding="ascii")
    if kept == table():
        return 0
    if kept.split("\n", 1)[0] != VERSION_LINE.format(unicodedata.unidata_version):
        print(f"not checked: {TABLE.name} is from another version of Unicode", file=sys.stderr)
        return SKIPPED
    print(f"{TABLE} is not what tools/{pathlib.Path(__file__).name} writes", file=sys.stderr)
    return 1


def main():
    if sys.argv[1:] == ["--check"]:
        return check()
    if sys.argv[1:]:
        print(__doc__, file=sys.stderr)
        return 2
    TABLE.write_text(table(), encoding="ascii", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
