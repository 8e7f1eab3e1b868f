#!/usr/bin/env python3
"""Draws the background pictures bilder/stroh.png and bilder/strohbraun.png: a basket weave of straw that
can be laid side by side without a seam. Each stays light, or dark, enough for text of one colour on all of it."""

import math
import os
import random
import struct
import zlib

SIDE = 192  # pixels
BLOCK = 48  # of the weave; strands run along in one block and across in the next
STRAND = 8
SHADES = 48


def strand_light(across):
    """Light of a round strand, 0 to 1, at a place across it."""
    return math.sin(math.pi * (across + 0.5) / STRAND) ** 0.7


def draw(seed):
    """Light of every pixel, 0 to 1."""
    chance = random.Random(seed)
    rows = [[0.0] * SIDE for _ in range(SIDE)]
    for block_y in range(0, SIDE, BLOCK):
        for block_x in range(0, SIDE, BLOCK):
            lies = (block_x + block_y) // BLOCK % 2 == 0
            for strand in range(BLOCK // STRAND):
                tint, grain = chance.uniform(-0.16, 0.16), 0.0
                for along in range(BLOCK):
                    grain = 0.75 * grain + chance.uniform(-0.05, 0.05)
                    dip = 0.3 * max(0.0, 1 - min(along, BLOCK - 1 - along) / 6)  # it goes under its neighbour
                    for across in range(STRAND):
                        light = 0.15 + 0.65 * strand_light(across) + tint + grain - dip
                        a, b = along, strand * STRAND + across
                        x, y = (a, b) if lies else (b, a)
                        rows[block_y + y][block_x + x] = min(1.0, max(0.0, light))
    return rows


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def write(path, rows, dark, light):
    palette = b"".join(
        bytes(round(d + (l - d) * i / (SHADES - 1)) for d, l in zip(dark, light)) for i in range(SHADES)
    )
    pixels = b"".join(b"\0" + bytes(round(v * (SHADES - 1)) for v in row) for row in rows)
    with open(path, "wb") as file:
        file.write(
            b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", SIDE, SIDE, 8, 3, 0, 0, 0))
            + chunk(b"PLTE", palette)
            + chunk(b"IDAT", zlib.compress(pixels, 9))
            + chunk(b"IEND", b"")
        )


def main():
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "bilder")
    write(os.path.join(folder, "stroh.png"), draw(6), (196, 166, 108), (244, 226, 178))
    write(os.path.join(folder, "strohbraun.png"), draw(7), (52, 34, 20), (116, 82, 50))


if __name__ == "__main__":
    main()
