#!/usr/bin/env python3
"""Draws the image of the splash screen: tools/make_splash.py > core/startup/splash.xpm

The left half stays light, since the start-up lines are written on it in dark blue. The result is
the same on every machine; it is kept in the repository so that building needs no Python.
"""
import math
import sys

WIDTH, HEIGHT, COLORS = 536, 403, 67

INK = (28, 39, 51)
LINE = (203, 212, 222)
BLUE = (23, 105, 210)
GREEN = (46, 158, 91)
AMBER = (227, 154, 15)
RED = (212, 56, 44)
PANEL = (16, 22, 29)
PANEL_LINE = (38, 49, 61)
DIGITS = (143, 227, 176)


class Canvas:
    """Pixels with antialiased shapes: a pixel is covered as far as its centre is inside."""

    def __init__(self):
        self.rows = []
        for y in range(HEIGHT):
            share = y / (HEIGHT - 1)
            color = tuple(255 - share * d for d in (20, 15, 10))
            self.rows.append([color] * WIDTH)

    def shape(self, box, distance, color, opacity=1.0):
        """Fills where distance(x, y), in pixels, is negative."""
        left, top, right, bottom = box
        for y in range(max(0, int(top) - 1), min(HEIGHT, int(bottom) + 2)):
            row = self.rows[y]
            for x in range(max(0, int(left) - 1), min(WIDTH, int(right) + 2)):
                cover = min(1.0, max(0.0, 0.5 - distance(x + 0.5, y + 0.5))) * opacity
                if cover > 0.0:
                    row[x] = tuple(a + (b - a) * cover for a, b in zip(row[x], color))

    def line(self, x0, y0, x1, y1, width, color, opacity=1.0):
        dx, dy = x1 - x0, y1 - y0
        length = dx * dx + dy * dy or 1.0

        def distance(x, y):
            t = min(1.0, max(0.0, ((x - x0) * dx + (y - y0) * dy) / length))
            return math.hypot(x - x0 - t * dx, y - y0 - t * dy) - width / 2

        box = (min(x0, x1) - width, min(y0, y1) - width, max(x0, x1) + width, max(y0, y1) + width)
        self.shape(box, distance, color, opacity)

    def polyline(self, points, width, color):
        """One shape, so that joints are not painted twice."""

        def distance(x, y):
            best = 1e9
            for (x0, y0), (x1, y1) in zip(points, points[1:]):
                if x < x0 - 12 or x > x1 + 12:
                    continue
                dx, dy = x1 - x0, y1 - y0
                t = min(1.0, max(0.0, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy)))
                best = min(best, math.hypot(x - x0 - t * dx, y - y0 - t * dy))
            return best - width / 2

        xs, ys = [p[0] for p in points], [p[1] for p in points]
        box = (min(xs) - width, min(ys) - width, max(xs) + width, max(ys) + width)
        self.shape(box, distance, color)

    def disc(self, cx, cy, radius, color):
        box = (cx - radius, cy - radius, cx + radius, cy + radius)
        self.shape(box, lambda x, y: math.hypot(x - cx, y - cy) - radius, color)

    def arc(self, cx, cy, radius, width, start, stop, color):
        """Angles in degrees, clockwise from the top."""
        middle, half = math.radians((start + stop) / 2), math.radians((stop - start) / 2)

        def distance(x, y):
            angle = math.atan2(x - cx, cy - y) - middle
            angle = math.atan2(math.sin(angle), math.cos(angle))
            r = math.hypot(x - cx, y - cy)
            return max(abs(r - radius) - width / 2, (abs(angle) - half) * r)

        reach = radius + width
        self.shape((cx - reach, cy - reach, cx + reach, cy + reach), distance, color)


def polar(cx, cy, radius, degrees):
    angle = math.radians(degrees)
    return cx + radius * math.sin(angle), cy - radius * math.cos(angle)


def draw_gauge(canvas, cx, cy, radius, value):
    """An engine instrument from -130 to 130 degrees with a green, an amber and a red band."""
    canvas.disc(cx + 2, cy + 4, radius + 3, LINE)
    canvas.disc(cx, cy, radius, PANEL)
    for start, stop, color in ((-130, 60, GREEN), (63, 94, AMBER), (97, 130, RED)):
        canvas.arc(cx, cy, radius * 0.86, radius * 0.055, start, stop, color)
    for step in range(27):
        angle = -130 + step * 10
        long = step % 5 == 0
        inner = radius * (0.66 if long else 0.73)
        canvas.line(*polar(cx, cy, inner, angle), *polar(cx, cy, radius * 0.78, angle),
                    2.4 if long else 1.2, (230, 235, 241) if long else (154, 167, 181))
    canvas.line(*polar(cx, cy, -radius * 0.16, value), *polar(cx, cy, radius * 0.7, value),
                radius * 0.045, DIGITS)
    canvas.disc(cx, cy, radius * 0.1, PANEL_LINE)
    canvas.disc(cx, cy, radius * 0.04, DIGITS)


def draw_traces(canvas, left, top, right, bottom):
    """A flight as the graph shows it: start, climb, descent, with the cursor on it."""
    canvas.shape((left, top, right, bottom),
                 lambda x, y: max(left - x, x - right, top - y, y - bottom), PANEL)
    for i in range(1, 16):
        x = left + (right - left) * i / 16
        canvas.line(x, top + 4, x, bottom - 4, 1, PANEL_LINE)
    for i in range(1, 4):
        y = top + (bottom - top) * i / 4
        canvas.line(left + 4, y, right - 4, y, 1, PANEL_LINE)

    def step(t, at, width):
        return 1 / (1 + math.exp(-(t - at) / width))

    curves = (
        (GREEN, lambda t: 0.2 + 0.55 * step(t, .1, .01) - 0.25 * step(t, .5, .03)
         - 0.2 * step(t, .9, .012) + 0.012 * math.sin(t * 140)),
        (AMBER, lambda t: 0.12 + 0.5 * step(t, .16, .035) - 0.22 * step(t, .56, .06)
         - 0.16 * step(t, .95, .03)),
        (BLUE, lambda t: 0.06 + 0.84 * step(t, .3, .06) - 0.84 * step(t, .7, .055)),
    )
    span, height = right - left - 16, bottom - top - 12
    for color, curve in curves:
        points = [(left + 8 + span * i / 120, bottom - 6 - height * curve(i / 120))
                  for i in range(121)]
        canvas.polyline(points, 2.2, color)
    cursor = left + 8 + span * 0.42
    canvas.line(cursor, top + 4, cursor, bottom - 4, 1.4, (230, 235, 241))
    for color, curve in curves:
        canvas.disc(cursor, bottom - 6 - height * curve(0.42), 4, color)


def draw_name(canvas, left, top, height):
    """The five letters of the name as round strokes."""
    letters = (
        (0.84, (((0, 0), (.42, 1)), ((.42, 1), (.84, 0)))),
        (0.60, (((0, 0), (0, 1)), ((0, 0), (.6, 0)), ((0, .5), (.5, .5)), ((0, 1), (.6, 1)))),
        (0.56, (((0, 0), (0, 1)), ((0, 1), (.56, 1)))),
        (0.00, (((0, 0), (0, 1)),)),
        (0.78, (((0, 0), (.78, 1)), ((.78, 0), (0, 1)))),
    )
    x = left
    for width, strokes in letters:
        for (x0, y0), (x1, y1) in strokes:
            canvas.line(x + x0 * height, top + y0 * height, x + x1 * height, top + y1 * height,
                        height * 0.15, INK)
        x += (width + 0.4) * height


def reduced(rows):
    """The image in exactly COLORS colours (median cut), as rows of indices and a palette."""
    counts = {}
    for row in rows:
        for pixel in row:
            key = tuple(int(c + 0.5) for c in pixel)
            counts[key] = counts.get(key, 0) + 1

    def spread(box):
        widths = [max(c[i] for c in box) - min(c[i] for c in box) for i in range(3)]
        widest = max(range(3), key=lambda i: widths[i])
        return widths[widest] * math.sqrt(sum(counts[c] for c in box)), widest

    boxes = [sorted(counts)]
    while len(boxes) < COLORS:
        box = max(boxes, key=lambda b: spread(b)[0] if len(b) > 1 else -1)
        boxes.remove(box)
        channel = spread(box)[1]
        box = sorted(box, key=lambda c: (c[channel], c))
        middle = (box[0][channel] + box[-1][channel]) / 2
        cut = max(1, sum(1 for c in box if c[channel] <= middle))
        cut = min(cut, len(box) - 1)
        boxes += [box[:cut], box[cut:]]

    palette = []
    for box in boxes:
        weight = sum(counts[c] for c in box)
        palette.append(tuple(round(sum(c[i] * counts[c] for c in box) / weight)
                             for i in range(3)))
    palette = sorted(set(palette))
    nearest = {c: min(range(len(palette)),
                      key=lambda i: sum((a - b) ** 2 for a, b in zip(c, palette[i])))
               for c in counts}
    indices = [[nearest[tuple(int(c + 0.5) for c in pixel)] for pixel in row] for row in rows]
    assert len({i for row in indices for i in row}) == COLORS, "colours fell together"
    return indices, palette


def main():
    canvas = Canvas()
    for i in range(9):  # a faint compass rose behind everything
        canvas.arc(404, 150, 150 + i * 26, 1, -180, 180, LINE)
    draw_gauge(canvas, 404, 140, 106, 38)
    draw_gauge(canvas, 292, 196, 52, -40)
    draw_name(canvas, 14, 254, 33)  # below the last of the fifteen lines
    canvas.line(12, 299, 52, 299, 2.5, BLUE)
    draw_traces(canvas, 0, 311, WIDTH, HEIGHT)

    indices, palette = reduced(canvas.rows)
    symbols = [chr(c) for c in range(32, 127) if chr(c) not in '"\\?'][:COLORS]
    out = sys.stdout.write
    out('/* XPM */\n/* clang-format off */\n/* Made by tools/make_splash.py. */\n')
    out('static const char* const splash_xpm[] = {\n')
    out(f'"{WIDTH} {HEIGHT} {COLORS} 1",\n')
    for symbol, color in zip(symbols, palette):
        out('"%s c #%02x%02x%02x",\n' % ((symbol,) + color))
    out(',\n'.join('"' + ''.join(symbols[i] for i in row) + '"' for row in indices))
    out('\n};\n')


main()
