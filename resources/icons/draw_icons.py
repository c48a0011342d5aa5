#!/usr/bin/env python3
"""Draws the icons of the direction buttons into the folder of this script.

Run it after a change to a shape or a colour and commit the icons with it: the build takes the .ico files as they are.
Needs nothing but Python. The same script gives the same bytes on every machine.

A travel direction is an arrow; an approach is an arrow that ends at a hole. The chosen one of a row is cut out of a
filled square, so that it stands out without colour, and still shows where the system greys it. Shapes are in units of a sixteenth of the icon, and their
straight edges lie on whole units: they stay crisp at both sizes.
"""

import struct
from pathlib import Path

SIZES = (16, 32)
SAMPLES = 8  # a pixel's side is sampled so often

INK = (0x1F, 0x3A, 0x5F)
CHOSEN_GROUND = (0x0A, 0x64, 0xC8)


def in_polygon(x, y, corners):
    inside = False
    for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
            inside = not inside
    return inside


def in_circle(x, y, centre, radius):
    return (x - centre[0]) ** 2 + (y - centre[1]) ** 2 <= radius**2


def in_ground(x, y):
    """The whole icon with rounded corners."""
    radius = 3
    nearest = (min(max(x, radius), 16 - radius), min(max(y, radius), 16 - radius))
    return in_circle(x, y, nearest, radius)


def in_travel(x, y):
    """An arrow to the right."""
    shaft = [(2, 7), (9, 7), (9, 9), (2, 9)]
    head = [(8, 3), (14, 8), (8, 13)]
    return in_polygon(x, y, shaft) or in_polygon(x, y, head)


def in_approach(x, y):
    """An arrow to the lower right, where the hole is."""
    shaft = [(2, 3.25), (3.25, 2), (8.5, 7.25), (7.25, 8.5)]
    head = [(9.5, 4), (9.5, 9.5), (4, 9.5)]
    hole = in_circle(x, y, (12, 12), 2.75) and not in_circle(x, y, (12, 12), 1.25)
    return in_polygon(x, y, shaft) or in_polygon(x, y, head) or hole


# Name of the file: the shape, and where a point of the icon lies in it.
ICONS = {
    "right": (in_travel, lambda x, y: (x, y)),
    "left": (in_travel, lambda x, y: (16 - x, y)),
    "up": (in_travel, lambda x, y: (16 - y, x)),
    "down": (in_travel, lambda x, y: (y, x)),
    "approach_right_down": (in_approach, lambda x, y: (x, y)),
    "approach_left_down": (in_approach, lambda x, y: (16 - x, y)),
    "approach_right_up": (in_approach, lambda x, y: (x, 16 - y)),
    "approach_left_up": (in_approach, lambda x, y: (16 - x, 16 - y)),
}


def coverage(size, column, row, covers):
    """How many of the pixel's samples lie in the shape."""
    steps = size * SAMPLES
    return sum(
        covers((2 * (column * SAMPLES + i) + 1) * 8 / steps, (2 * (row * SAMPLES + j) + 1) * 8 / steps)
        for i in range(SAMPLES)
        for j in range(SAMPLES)
    )


def draw(size, shape, place, chosen):
    """Rows of (red, green, blue, alpha), the top one first."""
    whole = SAMPLES * SAMPLES
    rows = []
    for row in range(size):
        pixels = []
        for column in range(size):
            if chosen:
                colour = CHOSEN_GROUND
                covered = coverage(size, column, row, lambda x, y: in_ground(x, y) and not shape(*place(x, y)))
            else:
                colour = INK
                covered = coverage(size, column, row, lambda x, y: shape(*place(x, y)))
            pixels.append((*colour, (covered * 255 + whole // 2) // whole))
        rows.append(pixels)
    return rows


def image_of(rows):
    """The picture as an icon file holds it: a bitmap from the bottom up, then the mask of what is transparent."""
    size = len(rows)
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    colours = b"".join(struct.pack("4B", b, g, r, a) for pixels in reversed(rows) for r, g, b, a in pixels)
    mask = b""
    for pixels in reversed(rows):
        bits = "".join("1" if alpha < 128 else "0" for *_, alpha in pixels).ljust(32, "0")
        mask += int(bits, 2).to_bytes(4, "big")
    return header + colours + mask


def icon_file(images):
    offset = 6 + 16 * len(SIZES)
    entries = b""
    for size, image in zip(SIZES, images):
        entries += struct.pack("<4B2H2I", size, size, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return struct.pack("<3H", 0, 1, len(SIZES)) + entries + b"".join(images)


def main():
    folder = Path(__file__).resolve().parent
    for name, (shape, place) in ICONS.items():
        for suffix, chosen in (("", False), ("_chosen", True)):
            images = [image_of(draw(size, shape, place, chosen)) for size in SIZES]
            (folder / f"{name}{suffix}.ico").write_bytes(icon_file(images))


if __name__ == "__main__":
    main()
