#!/usr/bin/env python3
"""Draws the library's own pictures: a funnel as an outline and filled, and a printer.

Usage: make_pictures.py src/win32/pictures
Writes an icon file for each, with an image for every size that a button shows between 96 and 192
dots to the inch. Shapes are told on a square of 16 by 16 units; a pixel's colour is the mean of
8 by 8 samples. Straight edges lie on whole pixels of the size that is drawn.
"""
import math
import os
import struct
import sys

SIZES = (16, 20, 24, 28, 32, 40, 48)
SAMPLES = 8

INK = (0x30, 0x3C, 0x4C)
GOLD = (0xF2, 0xB2, 0x24)
PAPER = (0xFF, 0xFF, 0xFF)
BODY = (0x8E, 0x9B, 0xAC)
LAMP = (0x3C, 0xA0, 0x3C)


class Grid:
    """Places and thicknesses in units, on whole pixels of one size."""

    def __init__(self, size):
        self.size = size

    def at(self, units):
        return int(units * self.size / 16 + 0.5) * 16 / self.size

    def pixels(self, count):
        return count * 16 / self.size

    def line(self):
        return self.pixels(max(1, int(self.size / 16 + 0.25)))


def polygon(points):
    def inside(x, y):
        within = False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
                within = not within
        return within

    return inside


def box(left, top, right, bottom):
    return lambda x, y: left <= x < right and top <= y < bottom


def funnel(grid, filling):
    at, line, middle = grid.at, grid.line(), 8
    left, right = at(1), at(15)
    top, rim, shoulder, end = at(2), at(4), at(9), at(14)
    pipe = line + grid.pixels(max(1, round(grid.size / 24)))
    across, down = right - middle - pipe, shoulder - rim
    outer = polygon([(left, top), (right, top), (right, rim), (middle + pipe, shoulder),
                     (middle + pipe, end), (middle - pipe, end), (middle - pipe, shoulder),
                     (left, rim)])
    # The slanted edge is as thick as the straight ones.
    lift = line * (down - math.hypot(across, down)) / across
    inner_rim, inner_shoulder, inner_pipe = rim + lift, shoulder + lift, pipe - line
    inner = polygon([(left + line, top + line), (right - line, top + line),
                     (right - line, inner_rim), (middle + inner_pipe, inner_shoulder),
                     (middle + inner_pipe, end - line), (middle - inner_pipe, end - line),
                     (middle - inner_pipe, inner_shoulder), (left + line, inner_rim)])
    return [(outer, INK), (inner, filling)]


def printer(grid):
    at, line = grid.at, grid.line()

    def framed(left, top, right, bottom, colour):
        return [(box(left, top, right, bottom), INK),
                (box(left + line, top + line, right - line, bottom - line), colour)]

    shapes = framed(at(4), at(1), at(12), at(8), PAPER)
    shapes += framed(at(1), at(5), at(15), at(12), BODY)
    shapes += [(box(at(12), at(7), at(12) + line, at(7) + line), LAMP)]
    shapes += framed(at(4), at(9), at(12), at(15), PAPER)
    thin = max(grid.pixels(1), line - grid.pixels(1))
    for row in (11, 13):
        shapes.append((box(at(4) + 2 * line, at(row), at(12) - 2 * line, at(row) + thin), BODY))
    return shapes


def colour_at(shapes, x, y):
    """The topmost shape's colour; None where there is none, or one that is see-through."""
    for inside, colour in reversed(shapes):
        if inside(x, y):
            return colour
    return None


def image(shapes, size):
    """Rows from the bottom up, blue, green, red and opacity."""
    rows = bytearray()
    for row in reversed(range(size)):
        for column in range(size):
            hits = [colour_at(shapes, (column + (i + 0.5) / SAMPLES) * 16 / size,
                              (row + (j + 0.5) / SAMPLES) * 16 / size)
                    for i in range(SAMPLES) for j in range(SAMPLES)]
            seen = [hit for hit in hits if hit is not None]
            mean = [round(sum(hit[c] for hit in seen) / len(seen)) if seen else 0 for c in (2, 1, 0)]
            rows += bytes(mean) + bytes([round(255 * len(seen) / len(hits))])
    return rows


def mask(pixels, size):
    """One bit for each pixel that is see-through, for screens without opacity."""
    width = (size + 31) // 32 * 4
    rows = bytearray()
    for row in range(size):
        bits = bytearray(width)
        for column in range(size):
            if pixels[4 * (row * size + column) + 3] < 128:
                bits[column // 8] |= 0x80 >> column % 8
        rows += bits
    return rows


def icon(shapes_for):
    images = []
    for size in SIZES:
        pixels = image(shapes_for(Grid(size)), size)
        head = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
        images.append(head + pixels + mask(pixels, size))
    out = struct.pack("<HHH", 0, 1, len(SIZES))
    start = len(out) + 16 * len(SIZES)
    for size, data in zip(SIZES, images):
        out += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), start)
        start += len(data)
    return out + b"".join(images)


PICTURES = {
    "FilterEmpty": lambda grid: funnel(grid, None),
    "FilterFull": lambda grid: funnel(grid, GOLD),
    "print": printer,
}

for name, shapes_for in PICTURES.items():
    with open(os.path.join(sys.argv[1], name + ".ico"), "wb") as out:
        out.write(icon(shapes_for))
