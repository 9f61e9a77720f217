#!/usr/bin/env python3
"""Draws the splash screen's logo, resources/logo.png: 400 x 400 pixels, 24-bit.

The splash ORs the logo over its 3-D scene, so black leaves the scene untouched and
every lit pixel brightens it. The picture is therefore black except for an orbit ring
around the middle, where the cubes turn, and the word KORVAN below it.

Usage: scripts/make-logo.py [output path]   (default: resources/logo.png)
"""

import math
import os
import sys

from pngfile import write_png

SIZE = 400

# Letters as strokes in a box 1 wide and 1 high, y pointing down.
def arc(cx, cy, rx, ry, start, end, steps=16):
    return [(cx + rx * math.cos(math.radians(start + (end - start) * i / steps)),
             cy + ry * math.sin(math.radians(start + (end - start) * i / steps)))
            for i in range(steps + 1)]


LETTERS = {
    "K": [[(0, 0), (0, 1)], [(0.9, 0), (0, 0.58)], [(0.32, 0.38), (0.95, 1)]],
    "O": [arc(0.5, 0.5, 0.5, 0.5, 0, 360, 32)],
    "R": [[(0, 1), (0, 0), (0.55, 0)] + arc(0.55, 0.26, 0.4, 0.26, -90, 90)[1:] + [(0, 0.52)],
          [(0.4, 0.52), (0.95, 1)]],
    "V": [[(0, 0), (0.5, 1), (1, 0)]],
    "A": [[(0, 1), (0.5, 0), (1, 1)], [(0.22, 0.64), (0.78, 0.64)]],
    "N": [[(0, 1), (0, 0), (1, 1), (1, 0)]],
}


def segment_distance(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    length2 = dx * dx + dy * dy
    t = 0.0 if length2 == 0 else max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / length2))
    return math.hypot(px - ax - t * dx, py - ay - t * dy)


def add(image, x, y, colour, weight):
    if 0 <= x < SIZE and 0 <= y < SIZE and weight > 0:
        pixel = image[y][x]
        for c in range(3):
            pixel[c] = min(255.0, pixel[c] + colour[c] * weight)


def coverage(distance, half_width, glow):
    """A stroke with a soft edge, plus a faint halo that fades with the distance."""
    core = max(0.0, min(1.0, half_width + 0.5 - distance))
    return max(core, 0.35 * math.exp(-distance / glow))


def draw_ring(image, cx, cy, radius):
    for y in range(SIZE):
        for x in range(SIZE):
            d = abs(math.hypot(x - cx, y - cy) - radius)
            if d > 14:
                continue
            # Deep blue at the top turning violet towards the bottom.
            t = (y - (cy - radius)) / (2 * radius)
            colour = (60 + 120 * t, 70, 255 - 40 * t)
            add(image, x, y, colour, coverage(d, 1.0, 4.0))
    # A bright body travelling on the orbit.
    bx = cx + radius * math.cos(math.radians(-35))
    by = cy + radius * math.sin(math.radians(-35))
    for y in range(int(by) - 16, int(by) + 17):
        for x in range(int(bx) - 16, int(bx) + 17):
            d = math.hypot(x - bx, y - by)
            add(image, x, y, (255, 255, 255), coverage(d, 4.0, 3.0))


def draw_word(image, word, left, top, width, height, gap):
    strokes = []
    for i, letter in enumerate(word):
        x0 = left + i * (width + gap)
        for polyline in LETTERS[letter]:
            points = [(x0 + u * width, top + v * height) for u, v in polyline]
            strokes.extend(zip(points, points[1:]))
    right = left + len(word) * (width + gap)
    for y in range(int(top) - 12, int(top + height) + 13):
        for x in range(int(left) - 12, int(right) + 12):
            d = min(segment_distance(x, y, ax, ay, bx, by) for (ax, ay), (bx, by) in strokes)
            if d > 12:
                continue
            # Gold at the top of the letters, deepening to orange at the foot.
            t = (y - top) / height
            colour = (255, 215 - 80 * max(0.0, min(1.0, t)), 60)
            add(image, x, y, colour, coverage(d, 3.0, 3.0))


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    path = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "resources", "logo.png")
    image = [[[0.0, 0.0, 0.0] for _ in range(SIZE)] for _ in range(SIZE)]
    # The cubes fill about the middle half of the canvas; the ring circles them.
    draw_ring(image, 200, 186, 148)
    draw_word(image, "KORVAN", 45, 348, 40, 38, 14)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    write_png(path, image)


if __name__ == "__main__":
    main()
