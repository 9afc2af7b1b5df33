#!/usr/bin/env python3
"""Writes src/base/UpperCasePairs.inc: the code units whose upper case is another code unit.

    tools/make_upper_case_table.py            write the file
    tools/make_upper_case_table.py --check    compare it with what would be written

Mapped are the code points of the basic plane, by Unicode's simple upper-case mapping: one code
point to one code point, within the plane, and only where the way back leads to the same letter, as
platforms do it: the long s and the dotless i stay what they are. --check ends with 0 when the file is as it should be,
with 1 when it isn't, and with 77 (for test runners: skipped) when this Python knows another
version of Unicode than the one that the file was made from.
"""

import pathlib
import sys
import unicodedata

TABLE = pathlib.Path(__file__).resolve().parent.parent / "src" / "base" / "UpperCasePairs.inc"
VERSION_LINE = "// Unicode {}, by tools/make_upper_case_table.py"
SKIPPED = 77


def simple_upper(point):
    """The simple mapping, which str.upper() hides where the full mapping is longer.

    A small letter with an iota subscript, say, becomes two letters in full; its simple upper
    case is the letter that str.title() gives. The sharp s has no simple upper case at all.
    """
    character = chr(point)
    for mapped in (character.upper(), character.title()):
        if len(mapped) == 1:
            return ord(mapped) if ord(mapped) <= 0xFFFF else point
    return point


def pairs():
    for point in range(0x10000):
        if unicodedata.category(chr(point)) == "Cs":
            continue
        upper = simple_upper(point)
        if upper != point and chr(upper).lower() == chr(point):
            yield point, upper


def ranges():
    """Runs of code points that lie 1 or 2 apart and move by the same distance."""
    runs = []
    for point, upper in pairs():
        distance = upper - point
        if runs:
            run = runs[-1]
            step = point - run["last"]
            follows = run["distance"] == distance and step <= 2
            if follows and run["step"] in (0, step):
                run["last"], run["step"] = point, step
                continue
        runs.append({"first": point, "last": point, "step": 0, "distance": distance})
    return runs


def table():
    lines = [
        VERSION_LINE.format(unicodedata.unidata_version),
        "// {first, last, step from one to the next, distance to the upper case}",
    ]
    for run in ranges():
        lines.append(
            "{{0x{first:04X}, 0x{last:04X}, {step}, {distance}}},".format(
                **{**run, "step": run["step"] or 1}
            )
        )
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
