#!/usr/bin/env python3
"""Draws the page templates of bilder/DESIGN_A4: backgrounds of a whole page, so light that black text can be read
on all of them. Any numbers as arguments: only these templates."""

import math
import os
import struct
import sys

WIDTH, HEIGHT = 210.0, 297.0  # mm
COLUMNS, ROWS = 1240, 1754  # pixels
PIXEL = WIDTH / COLUMNS  # mm
UNIT = 16  # pixels that are coded together, each way
REACH = 3.0  # mm: farther from the middle of a unit than anything in it


# Shapes: how far a place is from the edge of a shape, in mm, below 0 inside of it.


def band(top, bottom):
    return lambda x, y: max(top - y, y - bottom)


def stripe(left, right):
    return lambda x, y: max(left - x, x - right)


def circle(centre_x, centre_y, radius):
    return lambda x, y: math.hypot(x - centre_x, y - centre_y) - radius


def ring(centre_x, centre_y, radius, width):
    return lambda x, y: abs(math.hypot(x - centre_x, y - centre_y) - radius) - width / 2


def slanted(through_x, through_y, degrees, width):
    """A straight stripe; `degrees` from the horizontal, rising to the right."""
    across = (math.sin(math.radians(degrees)), math.cos(math.radians(degrees)))
    return lambda x, y: abs((x - through_x) * across[0] + (y - through_y) * across[1]) - width / 2


def convex(*corners):
    """A polygon, its corners clockwise as the page is seen."""
    sides = []
    for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
        length = math.hypot(x2 - x1, y2 - y1)
        sides.append(((y2 - y1) / length, (x1 - x2) / length, x1, y1))
    return lambda x, y: max(a * (x - x1) + b * (y - y1) for a, b, x1, y1 in sides)


def frame(margin, radius, width):
    """A line around the page with round corners."""
    half_x, half_y = WIDTH / 2 - margin - radius, HEIGHT / 2 - margin - radius

    def distance(x, y):
        out_x, out_y = abs(x - WIDTH / 2) - half_x, abs(y - HEIGHT / 2) - half_y
        outside = math.hypot(max(out_x, 0), max(out_y, 0)) + min(max(out_x, out_y), 0)
        return abs(outside - radius) - width / 2

    return distance


def wave(level, height, length, phase):
    return lambda x: level + height * math.sin(2 * math.pi * (x / length + phase))


def below(curve):
    return lambda x, y: curve(x) - y


def along(curve, width):
    def distance(x, y):
        slope = curve(x + 0.5) - curve(x - 0.5)
        return abs(y - curve(x)) / math.hypot(1, slope) - width / 2

    return distance


def dots(left, top, gap, radius):
    """Dots over the whole page."""

    def distance(x, y):
        off_x = (x - left + gap / 2) % gap - gap / 2
        off_y = (y - top + gap / 2) % gap - gap / 2
        return math.hypot(off_x, off_y) - radius

    return distance


def everywhere(x, y):
    return -WIDTH


# Strengths: how much of a colour a place takes, 0 to 1.


def fading(start_x, start_y, end_x, end_y, most=1.0):
    """From `most` at one place softly to nothing at another."""
    way_x, way_y = end_x - start_x, end_y - start_y
    square = way_x * way_x + way_y * way_y

    def strength(x, y):
        part = ((x - start_x) * way_x + (y - start_y) * way_y) / square
        part = min(1.0, max(0.0, part))
        return most * (1 - part * part * (3 - 2 * part))

    return strength


def around(centre_x, centre_y, radius, most=1.0):
    """From `most` in a centre softly to nothing at a distance."""

    def strength(x, y):
        part = min(1.0, math.hypot(x - centre_x, y - centre_y) / radius)
        return most * (1 - part * part * (3 - 2 * part))

    return strength


# Templates: layers of shape, colour and strength from the lowest to the topmost.

BLUE, DEEP_BLUE = (196, 216, 238), (150, 184, 222)
SAND, CLAY = (240, 228, 206), (222, 196, 160)
SAGE, MOSS = (208, 224, 204), (168, 198, 164)
GREY, STONE = (228, 230, 233), (188, 194, 201)
ROSE, WINE = (244, 222, 224), (222, 178, 186)
LAGOON = (142, 200, 202)
LILAC, VIOLET = (226, 218, 240), (196, 182, 222)


def head_in_blue():
    return [
        (band(-1, 60), BLUE, fading(0, 0, 0, 58)),
        (band(290, 298), BLUE, 0.8),
        (band(289, 289.5), DEEP_BLUE, 1),
    ]


def edge_in_grey():
    return [(stripe(-1, 8), GREY, 1), (stripe(8.8, 9.3), STONE, 1), (stripe(9.3, 40), GREY, fading(9, 0, 38, 0, 0.45))]


def rings_in_sage():
    layers = []
    for centre_x, centre_y in ((WIDTH, 0), (0, HEIGHT)):
        layers.append((circle(centre_x, centre_y, 34), SAGE, 0.55))
        layers += [(ring(centre_x, centre_y, r, w), MOSS, s) for r, w, s in ((38, 1.6, 0.75), (43, 1.0, 0.6), (48, 0.6, 0.5))]
    return layers


def waves_in_blue():
    return [
        (below(wave(262, 7, 240, 0.10)), BLUE, 0.35),
        (below(wave(270, 6, 200, 0.45)), BLUE, 0.55),
        (below(wave(279, 5, 170, 0.80)), DEEP_BLUE, 0.55),
    ]


def stripes_in_sand():
    return [
        (slanted(WIDTH - 16, 16, -45, 15), SAND, 0.9),
        (slanted(WIDTH - 27, 27, -45, 6), CLAY, 0.6),
        (slanted(WIDTH - 34, 34, -45, 1.2), CLAY, 0.8),
        (slanted(12, HEIGHT - 12, -45, 10), SAND, 0.9),
        (slanted(19, HEIGHT - 19, -45, 1.2), CLAY, 0.8),
    ]


def frame_in_stone():
    return [(frame(7, 6, 0.7), STONE, 1), (frame(9.2, 4.2, 0.3), STONE, 0.9)]


def dots_in_teal():
    return [
        (dots(2, 2, 5, 1.1), LAGOON, around(WIDTH, 0, 95, 0.85)),
        (dots(2, 2, 5, 1.1), LAGOON, around(0, HEIGHT, 70, 0.85)),
    ]


def glow_in_sand_and_rose():
    return [(everywhere, SAND, around(WIDTH + 10, -20, 230, 0.95)), (everywhere, ROSE, around(-20, HEIGHT + 10, 210))]


def circles_in_lilac():
    return [
        (circle(186, 262, 58), LILAC, 0.55),
        (circle(140, 290, 40), VIOLET, 0.30),
        (circle(206, 216, 26), VIOLET, 0.28),
        (circle(24, 6, 30), LILAC, 0.5),
        (circle(58, -6, 20), VIOLET, 0.25),
    ]


def lines_in_sage():
    layers = []
    for n in range(11):
        curve = wave(266 + 1.6 * n, 15 - 2.1 * n, 330, 0.18 + 0.016 * n)
        layers.append((along(curve, 0.45), MOSS, fading(-60, 0, 215, 0, 0.95)))
    for n in range(11):
        curve = wave(16 + 1.6 * n, 15 - 2.1 * n, 330, 0.62 + 0.016 * n)
        layers.append((along(curve, 0.45), MOSS, fading(270, 0, -5, 0, 0.95)))
    return layers


def facets_in_grey_and_blue():
    corner, top, far_top, side, far_side, fold = (0, 0), (46, 0), (112, 0), (0, 36), (0, 98), (34, 27)
    facets = [
        ((corner, top, fold), BLUE, 0.8),
        ((top, far_top, fold), GREY, 0.8),
        ((corner, fold, side), GREY, 1),
        ((side, fold, far_side), BLUE, 0.5),
    ]
    layers = []
    for places, colour, strength in facets:
        turned = [(WIDTH - 0.72 * x, HEIGHT - 0.72 * y) for x, y in places]
        layers += [(convex(*places), colour, strength), (convex(*turned), colour, strength)]
    return layers


def bars_in_wine():
    return [
        (band(-1, 9), ROSE, 1),
        (band(9.8, 11), WINE, 1),
        (band(286, 287.2), WINE, 1),
        (band(288, 298), ROSE, 1),
        (stripe(-1, WIDTH / 3), WINE, lambda x, y: 0.45 if y < 9 or y > 288 else 0),
    ]


TEMPLATES = [
    head_in_blue,
    edge_in_grey,
    rings_in_sage,
    waves_in_blue,
    stripes_in_sand,
    frame_in_stone,
    dots_in_teal,
    glow_in_sand_and_rose,
    circles_in_lilac,
    lines_in_sage,
    facets_in_grey_and_blue,
    bars_in_wine,
]


def colour_at(layers, x, y):
    red = green = blue = 255.0
    for shape, (r, g, b), strength in layers:
        cover = 0.5 - shape(x, y) / PIXEL
        if cover <= 0:
            continue
        share = min(1.0, cover) * (strength(x, y) if callable(strength) else strength)
        red += (r - red) * share
        green += (g - green) * share
        blue += (b - blue) * share
    return red, green, blue


def near(layers, left, top):
    """The layers that show in a unit, and whether it is all of one colour."""
    x, y = (left + UNIT / 2) * PIXEL, (top + UNIT / 2) * PIXEL
    found, plain = [], True
    for layer in layers:
        distance = layer[0](x, y)
        if distance < REACH:
            found.append(layer)
            plain = plain and distance < -REACH and not callable(layer[2])
    return found, plain


# The JPEG file: baseline, colour at half the resolution, codes made for each picture.

COSINES = [
    [math.cos((2 * x + 1) * u * math.pi / 16) * (math.sqrt(0.125) if u == 0 else 0.5) for x in range(8)] for u in range(8)
]
ZIGZAG = sorted(
    ((u, v) for v in range(8) for u in range(8)),
    key=lambda p: (p[0] + p[1], p[1] if (p[0] + p[1]) % 2 else p[0]),
)  # (u across, v down)
STEPS = [[2 + (u + v) for u, v in ZIGZAG], [4 + 2 * (u + v) for u, v in ZIGZAG]]  # of brightness, of colour


def transformed(rows):
    """Cosine transform of 8 rows, by [v][u]."""
    across = [[sum(map(float.__mul__, cosine, row)) for cosine in COSINES] for row in rows]
    columns = list(zip(*across))
    result = [[sum(map(float.__mul__, cosine, column)) for column in columns] for cosine in COSINES]
    return result


def coefficients(rows, kind):
    first = rows[0][0]
    if all(value == first for row in rows for value in row):
        return [round(8 * first / STEPS[kind][0])] + [0] * 63
    table = transformed(rows)
    return [round(table[v][u] / step) for (u, v), step in zip(ZIGZAG, STEPS[kind])]


def planes(layers, left, top):
    """Four brightness blocks and two colour blocks of a unit, values around 0."""
    layers, plain = near(layers, left, top)
    middle = UNIT // 2
    pixels = range(UNIT)
    if plain:
        colour = colour_at(layers, (left + middle) * PIXEL, (top + middle) * PIXEL)
        seen = [[colour] * UNIT for _ in pixels]
    else:
        seen = [
            [colour_at(layers, (left + i + 0.5) * PIXEL, (top + j + 0.5) * PIXEL) for i in pixels] for j in pixels
        ]
    light = [[0.299 * r + 0.587 * g + 0.114 * b - 128 for r, g, b in row] for row in seen]
    blues = [[(b - y - 128) * 0.564 for (_, _, b), y in zip(*rows)] for rows in zip(seen, light)]
    reds = [[(r - y - 128) * 0.713 for (r, _, _), y in zip(*rows)] for rows in zip(seen, light)]

    def halved(plane):
        return [
            [
                (plane[2 * j][2 * i] + plane[2 * j][2 * i + 1] + plane[2 * j + 1][2 * i] + plane[2 * j + 1][2 * i + 1]) / 4
                for i in range(8)
            ]
            for j in range(8)
        ]

    quarters = [[row[i : i + 8] for row in light[j : j + 8]] for j in (0, 8) for i in (0, 8)]
    return quarters + [halved(blues), halved(reds)]


def sized(value):
    """How many bits a value takes, and these bits."""
    size = abs(value).bit_length()
    return size, value if value >= 0 else value + (1 << size) - 1


def symbols_of(block, before, kind):
    """(table, symbol, bits behind it, how many) of one block."""
    size, bits = sized(block[0] - before)
    yield (kind, 0), size, bits, size
    last = max((i for i in range(1, 64) if block[i]), default=0)
    zeros = 0
    for value in block[1 : last + 1]:
        if value == 0:
            zeros += 1
            continue
        while zeros > 15:
            yield (kind, 1), 0xF0, 0, 0
            zeros -= 16
        size, bits = sized(value)
        yield (kind, 1), zeros << 4 | size, bits, size
        zeros = 0
    if last < 63:
        yield (kind, 1), 0, 0, 0


def code_lengths(counts):
    """Length of the code of each symbol, at most 16; no code is all ones."""
    groups = [(count, [symbol]) for symbol, count in counts.items()] + [(0, [-1])]
    lengths = dict.fromkeys(counts, 0)
    lengths[-1] = 0
    while len(groups) > 1:
        groups.sort(key=lambda group: (-group[0], max(group[1])))
        (less, one), (more, two) = groups.pop(), groups.pop()
        for symbol in one + two:
            lengths[symbol] += 1
        groups.append((less + more, one + two))
    amount = [0] * 300
    for length in lengths.values():
        amount[length] += 1
    for length in range(299, 16, -1):
        while amount[length]:
            shorter = length - 2
            while amount[shorter] == 0:
                shorter -= 1
            amount[length] -= 2
            amount[length - 1] += 1
            amount[shorter + 1] += 2
            amount[shorter] -= 1
    longest = max(n for n in range(17) if amount[n])
    amount[longest] -= 1  # that of the code which nobody uses
    symbols = sorted(counts, key=lambda symbol: (lengths[symbol], symbol))
    return amount[1:17], symbols


def codes(amount, symbols):
    table, code, place = {}, 0, 0
    for length, many in enumerate(amount, 1):
        for symbol in symbols[place : place + many]:
            table[symbol] = (code, length)
            code += 1
        place += many
        code <<= 1
    return table


def segment(marker, data):
    return struct.pack(">BBH", 0xFF, marker, len(data) + 2) + data


def packed(stream, tables):
    result, waiting, filled = bytearray(), 0, 0
    for table, symbol, bits, size in stream:
        code, length = tables[table][symbol]
        waiting = (waiting << length | code) << size | bits
        filled += length + size
        while filled >= 8:
            filled -= 8
            byte = waiting >> filled & 0xFF
            result.append(byte)
            if byte == 0xFF:
                result.append(0)
        waiting &= (1 << filled) - 1
    if filled:
        last = (waiting << 8 - filled | (1 << 8 - filled) - 1) & 0xFF
        result += bytes((last, 0) if last == 0xFF else (last,))
    return bytes(result)


def jpeg(layers):
    stream, before = [], [0, 0, 0]
    for top in range(0, ROWS, UNIT):
        for left in range(0, COLUMNS, UNIT):
            for n, rows in enumerate(planes(layers, left, top)):
                part, kind = max(0, n - 3), int(n > 3)
                block = coefficients(rows, kind)
                stream.extend(symbols_of(block, before[part], kind))
                before[part] = block[0]
    counts = {(kind, part): {} for kind in (0, 1) for part in (0, 1)}
    for table, symbol, _, _ in stream:
        counts[table][symbol] = counts[table].get(symbol, 0) + 1
    made = {table: code_lengths(count) for table, count in counts.items()}
    density = round(COLUMNS / WIDTH * 25.4)
    head = b"\xff\xd8" + segment(0xE0, b"JFIF\0" + struct.pack(">HBHHBB", 0x0101, 1, density, density, 0, 0))
    for kind in (0, 1):
        head += segment(0xDB, bytes([kind]) + bytes(STEPS[kind]))
    head += segment(0xC0, struct.pack(">BHHB", 8, ROWS, COLUMNS, 3) + bytes((1, 0x22, 0, 2, 0x11, 1, 3, 0x11, 1)))
    for (kind, part), (amount, symbols) in made.items():
        head += segment(0xC4, bytes([part << 4 | kind]) + bytes(amount) + bytes(symbols))
    head += segment(0xDA, bytes((3, 1, 0x00, 2, 0x11, 3, 0x11, 0, 63, 0)))
    return head + packed(stream, {table: codes(*entry) for table, entry in made.items()}) + b"\xff\xd9"


def main():
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "bilder", "DESIGN_A4")
    os.makedirs(folder, exist_ok=True)
    wanted = [int(argument) for argument in sys.argv[1:]] or range(1, len(TEMPLATES) + 1)
    for number in wanted:
        with open(os.path.join(folder, f"A4-1+{number}.jpg"), "wb") as file:
            file.write(jpeg(TEMPLATES[number - 1]()))


if __name__ == "__main__":
    main()
