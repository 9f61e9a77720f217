#!/usr/bin/env python3
"""Draws the scene tree's six node images, resources/tree-<name>.png: 16 x 16 pixels, RGBA.

solid: a shaded cube; rotation: a turning arrow; workplane: a hatched plane seen at a slant;
face: one shaded polygon; point: a dot; profile: an open polyline with its corner points.

Usage: scripts/make-tree-icons.py [output folder]   (default: resources)
"""

import math
import os
import sys

from pngfile import write_png

SIZE = 16
SAMPLES = 4  # per pixel and axis, for smooth edges


def inside(polygon, x, y):
    """Even-odd test of a point against a closed polygon."""
    result = False
    for (ax, ay), (bx, by) in zip(polygon, polygon[1:] + polygon[:1]):
        if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
            result = not result
    return result


def near_line(points, x, y, half_width):
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        dx, dy = bx - ax, by - ay
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
        if math.hypot(x - ax - t * dx, y - ay - t * dy) <= half_width:
            return True
    return False


def paint(image, colour, covers):
    """Blends colour over the image wherever covers(x, y) holds, weighted by coverage."""
    for py in range(SIZE):
        for px in range(SIZE):
            hits = sum(covers(px + (i + 0.5) / SAMPLES, py + (j + 0.5) / SAMPLES)
                       for i in range(SAMPLES) for j in range(SAMPLES))
            a = hits / (SAMPLES * SAMPLES)
            if a == 0:
                continue
            pixel = image[py][px]
            for c in range(3):
                pixel[c] = pixel[c] * (1 - a) + colour[c] * a
            pixel[3] = pixel[3] * (1 - a) + 255 * a


def fill(image, colour, polygon):
    paint(image, colour, lambda x, y: inside(polygon, x, y))


def stroke(image, colour, points, width=1.3):
    paint(image, colour, lambda x, y: near_line(points, x, y, width / 2))


def dot(image, colour, cx, cy, radius):
    paint(image, colour, lambda x, y: math.hypot(x - cx, y - cy) <= radius)


def solid(image):
    top = [(8, 1.5), (14.5, 4.5), (8, 7.5), (1.5, 4.5)]
    left = [(1.5, 4.5), (8, 7.5), (8, 14.5), (1.5, 11.5)]
    right = [(8, 7.5), (14.5, 4.5), (14.5, 11.5), (8, 14.5)]
    fill(image, (150, 185, 255), top)
    fill(image, (40, 90, 200), left)
    fill(image, (80, 130, 230), right)
    stroke(image, (20, 40, 110), top + [top[0]], 0.8)
    stroke(image, (20, 40, 110), [(8, 7.5), (8, 14.5)], 0.8)


def rotation(image):
    arc = [(8 + 5.5 * math.cos(math.radians(a)), 8 + 5.5 * math.sin(math.radians(a)))
           for a in range(-60, 241, 10)]
    stroke(image, (200, 110, 20), arc, 1.8)
    tip = arc[-1]
    fill(image, (200, 110, 20), [(tip[0] - 3.5, tip[1] - 0.5), (tip[0] + 2.5, tip[1] - 2.5),
                                 (tip[0] + 0.5, tip[1] + 3.5)])


def workplane(image):
    plane = [(4.5, 3.5), (15, 3.5), (11.5, 12.5), (1, 12.5)]
    fill(image, (215, 240, 215), plane)
    # The diagonal cross hatch the viewports fill workplanes with, kept inside the plane.
    hatch = [[(x, 12.5), (x + 9, 3.5)] for x in range(-8, 16, 3)]
    hatch += [[(x + 9, 12.5), (x, 3.5)] for x in range(-8, 16, 3)]
    paint(image, (40, 150, 40),
          lambda x, y: inside(plane, x, y) and any(near_line(h, x, y, 0.35) for h in hatch))
    stroke(image, (20, 100, 20), plane + [plane[0]], 1.0)


def face(image):
    polygon = [(2, 12.5), (7.5, 2), (14, 6), (12, 14)]
    fill(image, (0, 170, 190), polygon)
    stroke(image, (0, 80, 100), polygon + [polygon[0]], 1.0)


def point(image):
    dot(image, (30, 30, 30), 8, 8, 3.2)
    dot(image, (140, 140, 140), 7, 7, 1.0)


def profile(image):
    line = [(1.5, 12), (5, 4), (9.5, 10), (14.5, 3)]
    stroke(image, (0, 100, 255), line, 1.5)
    for x, y in line:
        dot(image, (190, 0, 190), x, y, 1.8)


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "resources")
    os.makedirs(folder, exist_ok=True)
    for draw in (solid, rotation, workplane, face, point, profile):
        image = [[[0.0, 0.0, 0.0, 0.0] for _ in range(SIZE)] for _ in range(SIZE)]
        draw(image)
        write_png(os.path.join(folder, "tree-%s.png" % draw.__name__), image)


if __name__ == "__main__":
    main()
