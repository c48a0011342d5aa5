#!/usr/bin/env python3
"""Draws the help's drawings as SVG, from geometry.

usage: draw.py FOLDER
       draw.py --list    prints their names, between semicolons
"""
import math
import pathlib
import sys

WIDTH, HEIGHT = 360, 220

INK, METAL, FRESH, TOOL, PATH, SIZE = "#203040", "#c9d3dd", "#eef2f6", "#f3c66b", "#1d6fb8", "#b3261e"


class Drawing:
    """Shapes in pixels, the origin at the upper left."""

    def __init__(self):
        self.shapes = []

    def add(self, shape):
        self.shapes.append(shape)

    def polygon(self, points, fill, stroke=INK):
        at = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        self.add(f'<polygon points="{at}" fill="{fill}" stroke="{stroke}" stroke-width="1.5"/>')

    def rectangle(self, x, y, width, height, fill, stroke=INK):
        self.polygon([(x, y), (x + width, y), (x + width, y + height), (x, y + height)], fill, stroke)

    def line(self, start, end, colour=INK, width=1.5, dash=""):
        dashes = f' stroke-dasharray="{dash}"' if dash else ""
        self.add(f'<line x1="{start[0]:.1f}" y1="{start[1]:.1f}" x2="{end[0]:.1f}" y2="{end[1]:.1f}" '
                 f'stroke="{colour}" stroke-width="{width}"{dashes}/>')

    def path(self, commands, colour=PATH, width=2.0, dash="", fill="none"):
        dashes = f' stroke-dasharray="{dash}"' if dash else ""
        self.add(f'<path d="{commands}" fill="{fill}" stroke="{colour}" stroke-width="{width}"{dashes}/>')

    def circle(self, centre, radius, fill="none", colour=INK, width=1.5, dash=""):
        dashes = f' stroke-dasharray="{dash}"' if dash else ""
        self.add(f'<circle cx="{centre[0]:.1f}" cy="{centre[1]:.1f}" r="{radius:.1f}" fill="{fill}" stroke="{colour}" '
                 f'stroke-width="{width}"{dashes}/>')

    def text(self, at, words, colour=INK, anchor="middle", size=14):
        self.add(f'<text x="{at[0]:.1f}" y="{at[1]:.1f}" font-family="DejaVu Sans" font-size="{size}" fill="{colour}" '
                 f'text-anchor="{anchor}">{words}</text>')

    def head(self, tip, angle, colour):
        """An arrow's head whose tip points in the direction of `angle`."""
        wings = [(tip[0] - 9 * math.cos(angle + turn), tip[1] - 9 * math.sin(angle + turn)) for turn in (0.35, -0.35)]
        self.polygon([tip, *wings], colour, colour)

    def arrow(self, start, end, colour=PATH, width=2.0, dash=""):
        self.line(start, end, colour, width, dash)
        self.head(end, math.atan2(end[1] - start[1], end[0] - start[0]), colour)

    def size(self, start, end, words, at, anchor="middle"):
        """A dimension: a line with heads at both ends."""
        self.line(start, end, SIZE, 1.5)
        angle = math.atan2(end[1] - start[1], end[0] - start[0])
        if math.dist(start, end) > 24:
            self.head(end, angle, SIZE)
            self.head(start, angle + math.pi, SIZE)
        self.text(at, words, SIZE, anchor)

    def mill(self, centre, tip, radius, length=90):
        """An end mill from the side: its axis, the height of its face, its flutes."""
        top = tip - length
        self.rectangle(centre - radius, top, 2 * radius, length, TOOL)
        for flute in range(3):
            foot = tip - flute * 26
            self.line((centre - radius, foot), (centre + radius, foot - 22), INK, 1)
        self.line((centre, top - 8), (centre, tip + 8), INK, 1, "8,3,2,3")

    def svg(self):
        return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
                          f'viewBox="0 0 {WIDTH} {HEIGHT}">', f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
                          *self.shapes, "</svg>", ""])


def step_over():
    """From above: two neighbouring passes of a mill."""
    d = Drawing()
    radius, step, upper = 44, 62, 78
    d.rectangle(20, 14, 320, 182, METAL)
    d.rectangle(20, upper - radius, 320, 2 * radius + step, FRESH, "none")
    for y in (upper, upper + step):
        d.arrow((30, y), (332, y))
    d.circle((96, upper + step), radius, TOOL)
    d.circle((96, upper), radius, "none", INK, 1.2, "5,4")
    d.size((196, upper), (196, upper + step), "шаг на сторону", (204, upper + step / 2 + 5), "start")
    return d


def step_down():
    """From the side: levels of a roughing."""
    d = Drawing()
    top, step, levels = 66, 38, 3
    d.rectangle(20, top, 320, levels * step + 26, METAL)
    d.polygon([(20, top), (150, top), (150, top + 2 * step), (100, top + 2 * step), (100, top + step), (20, top + step)],
              FRESH)
    d.rectangle(20, top, 80, 2 * step, FRESH, FRESH)
    d.line((20, top + 2 * step), (100, top + 2 * step))
    for level in range(levels + 1):
        d.line((100, top + level * step), (340, top + level * step), INK, 1, "6,4")
    d.mill(124, top + 2 * step, 26, 112)
    d.size((200, top + step), (200, top + 2 * step), "шаг по глубине", (208, top + 1.5 * step + 5), "start")
    return d


def corner(apex, half_angle):
    """The two sides of an outer corner that points up, from its apex downwards."""
    return [(apex[0] + side * 170 * math.sin(half_angle), apex[1] + 170 * math.cos(half_angle)) for side in (-1, 1)]


def offset_corner(apex, half_angle, distance):
    """Where the paths beside the corner end: the foot of the apex on each."""
    return [(apex[0] + side * distance * math.cos(half_angle), apex[1] - distance * math.sin(half_angle))
            for side in (-1, 1)]


def side_of(start, half_angle, side, length):
    return (start[0] + side * length * math.sin(half_angle), start[1] + length * math.cos(half_angle))


def corner_angle():
    """An outer corner gone round by an arc and by lines."""
    d = Drawing()
    half, radius = math.radians(40), 34
    for x, is_arc, words in ((92, True, "дуга"), (268, False, "прямая")):
        apex = (x, 100)
        left, right = corner(apex, half)
        scale = 100 / 170
        foot = [(apex[0] + (p[0] - apex[0]) * scale, apex[1] + (p[1] - apex[1]) * scale) for p in (left, right)]
        d.polygon([apex, foot[1], foot[0]], METAL)
        ends = offset_corner(apex, half, radius)
        starts = [side_of(end, half, side, 92) for end, side in zip(ends, (-1, 1))]
        peak = (apex[0], apex[1] - radius / math.sin(half))
        if is_arc:
            d.path(f"M{starts[0][0]:.1f},{starts[0][1]:.1f} L{ends[0][0]:.1f},{ends[0][1]:.1f} "
                   f"A{radius},{radius} 0 0 1 {ends[1][0]:.1f},{ends[1][1]:.1f} L{starts[1][0]:.1f},{starts[1][1]:.1f}")
            d.circle((apex[0], apex[1] - radius), radius, "none", INK, 1.2, "5,4")
        else:
            d.path(f"M{starts[0][0]:.1f},{starts[0][1]:.1f} L{peak[0]:.1f},{peak[1]:.1f} "
                   f"L{starts[1][0]:.1f},{starts[1][1]:.1f}")
            d.circle(peak, radius, "none", INK, 1.2, "5,4")
        reach = 42
        d.path(f"M{apex[0] - reach * math.sin(half):.1f},{apex[1] + reach * math.cos(half):.1f} "
               f"A{reach},{reach} 0 0 0 {apex[0] + reach * math.sin(half):.1f},{apex[1] + reach * math.cos(half):.1f}",
               SIZE, 1.5)
        d.text((apex[0], apex[1] + 66), "угол", SIZE)
        d.text((apex[0], 212), words)
    return d


def corner_clearance():
    """The arc round a corner, away from its apex."""
    d = Drawing()
    half, radius, gap = math.radians(45), 40, 26
    apex = (180, 126)
    left, right = corner(apex, half)
    scale = 110 / 170
    foot = [(apex[0] + (p[0] - apex[0]) * scale, apex[1] + (p[1] - apex[1]) * scale) for p in (left, right)]
    d.polygon([apex, foot[1], foot[0]], METAL)
    reach = radius + gap
    along = math.sqrt(reach ** 2 - radius ** 2)  # where the way beside the side meets the arc round the apex
    ends = [side_of(end, half, side, along) for end, side in zip(offset_corner(apex, half, radius), (-1, 1))]
    starts = [side_of(end, half, side, 60) for end, side in zip(ends, (-1, 1))]
    d.path(f"M{starts[0][0]:.1f},{starts[0][1]:.1f} L{ends[0][0]:.1f},{ends[0][1]:.1f} "
           f"A{reach},{reach} 0 0 1 {ends[1][0]:.1f},{ends[1][1]:.1f} L{starts[1][0]:.1f},{starts[1][1]:.1f}")
    d.circle((apex[0], apex[1] - reach), radius, "none", INK, 1.2, "5,4")
    d.size((apex[0], apex[1] - gap), apex, "", (0, 0))
    d.line((apex[0], apex[1] - gap), (apex[0] + 62, apex[1] - gap), SIZE, 1, "4,3")
    d.text((apex[0] + 108, apex[1] - gap + 5), "зазор", SIZE, "start")
    d.line((apex[0] + 62, apex[1] - gap), (apex[0] + 104, apex[1] - gap), SIZE, 1)
    return d


def approach():
    """From the side: the mill comes down beside the stock and goes in from the side."""
    d = Drawing()
    edge, top, radius, gap = 190, 96, 26, 58
    d.rectangle(edge, top, 150, 94, METAL)
    axis = edge - gap - radius
    d.mill(axis, 150, radius, 92)
    d.arrow((axis - radius - 22, 44), (axis - radius - 22, 146))
    d.arrow((axis + radius + 6, 138), (edge - 3, 138))
    d.line((edge, top), (edge, 64), SIZE, 1)
    d.line((axis + radius, 70), (axis + radius, 58), SIZE, 1)
    d.size((axis + radius, 66), (edge, 66), "подход к контуру", (edge + 8, 71), "start")
    return d


def plunge():
    """From the side: rapid down to the height of plunging, then at feed."""
    d = Drawing()
    top, height, radius, axis = 134, 44, 26, 112
    d.rectangle(20, top, 320, 74, METAL)
    d.line((20, top - height), (340, top - height), PATH, 1.2, "7,4")
    d.mill(axis, top - height, radius, 78)
    d.arrow((186, 14), (186, top - height), PATH, 2, "9,5")
    d.arrow((186, top - height), (186, top + 44))
    d.text((196, 46), "ускоренно", PATH, "start")
    d.text((196, top + 36), "на подаче", PATH, "start")
    d.size((284, top - height), (284, top), "", (0, 0))
    d.text((292, top - height / 2 - 2), "высота", SIZE, "start", 12)
    d.text((292, top - height / 2 + 13), "врезания", SIZE, "start", 12)
    return d


def clearance_plane():
    """From the side: rapid moves above a clamp between two pockets."""
    d = Drawing()
    top, plane = 146, 52
    d.polygon([(20, top), (60, top), (60, top + 34), (116, top + 34), (116, top), (240, top), (240, top + 34), (296, top + 34),
               (296, top), (340, top), (340, 206), (20, 206)], METAL)
    d.rectangle(148, top - 56, 64, 56, "#9aa7b4")
    d.text((180, top - 24), "прижим")
    d.line((20, plane), (340, plane), SIZE, 1.2, "7,4")
    d.text((24, plane - 8), "плоскость безопасности", SIZE, "start")
    d.arrow((88, top + 30), (88, plane), PATH)
    d.arrow((88, plane), (268, plane), PATH, 2, "9,5")
    d.arrow((268, plane), (268, top - 18), PATH, 2, "9,5")
    d.arrow((268, top - 18), (268, top + 30), PATH)
    d.line((248, top - 18), (334, top - 18), PATH, 1, "4,3")
    d.text((276, top - 40), "высота", PATH, "start", 12)
    d.text((276, top - 26), "врезания", PATH, "start", 12)
    return d


def scallop():
    """Across the passes: the crests that a ball mill leaves."""
    d = Drawing()
    radius, step, floor = 52, 66, 150
    first = 48
    passes = [first + step * number for number in range(5)]
    rise = radius - math.sqrt(radius ** 2 - (step / 2) ** 2)
    commands = f"M20,{floor - rise:.1f} "
    start = passes[0] - step / 2
    commands = f"M{start:.1f},206 L{start:.1f},{floor - rise:.1f} "
    for centre in passes:
        commands += f"A{radius},{radius} 0 0 0 {centre + step / 2:.1f},{floor - rise:.1f} "
    commands += f"L{passes[-1] + step / 2:.1f},206 Z"
    d.path(commands, INK, 1.5, "", METAL)
    tool = passes[1]
    d.path(f"M{tool - radius},40 L{tool - radius},{floor - radius} A{radius},{radius} 0 0 0 {tool + radius},{floor - radius} "
           f"L{tool + radius},40 Z", INK, 1.5, "", TOOL)
    d.line((tool, 26), (tool, floor + 10), INK, 1, "8,3,2,3")
    crest = passes[3] - step / 2
    d.line((crest, floor - rise), (passes[4] + 10, floor - rise), SIZE, 1, "4,3")
    d.line((passes[3], floor), (passes[4] + 10, floor), SIZE, 1, "4,3")
    d.arrow((passes[3] + step / 2 + 14, floor - rise - 28), (passes[3] + step / 2 + 14, floor - rise), SIZE, 1.5)
    d.arrow((passes[3] + step / 2 + 14, floor + 28), (passes[3] + step / 2 + 14, floor), SIZE, 1.5)
    d.text((passes[3] + 24, floor - rise - 36), "гребешок", SIZE)
    d.size((passes[2], 196), (passes[3], 196), "", (0, 0))
    d.text((passes[2] + step / 2, 186), "шаг", SIZE)
    return d


def holes(d, x, y, columns, rows, step_x, step_y, radius=11):
    centres = [[(x + column * step_x, y + row * step_y) for column in range(columns)] for row in range(rows)]
    for row in centres:
        for centre in row:
            d.circle(centre, radius, FRESH)
    return centres


def hole_rows():
    """From above: rows of holes, zigzag from the lower left."""
    d = Drawing()
    d.rectangle(20, 14, 320, 150, METAL)
    centres = holes(d, 60, 40, 5, 3, 60, 48)
    order = [centres[2], centres[1][::-1], centres[0]]
    way = [centre for row in order for centre in row]
    for start, end in zip(way, way[1:]):
        angle = math.atan2(end[1] - start[1], end[0] - start[0])
        gap = 13
        d.arrow((start[0] + gap * math.cos(angle), start[1] + gap * math.sin(angle)),
                (end[0] - gap * math.cos(angle), end[1] - gap * math.sin(angle)))
    d.arrow((60, 188), (196, 188), SIZE)
    d.text((206, 193), "главное направление", SIZE, "start", 12)
    d.arrow((40, 204), (40, 172), SIZE)
    d.text((60, 212), "смещение", SIZE, "start", 12)
    return d


def hole_approach():
    """From above: each hole is approached from the same side, in both axes."""
    d = Drawing()
    d.rectangle(20, 30, 320, 150, METAL)
    centres = holes(d, 100, 118, 3, 1, 100, 0, 14)[0]
    for number, centre in enumerate(centres):
        start = (centre[0] - 46, centre[1] - 46)
        if number:
            before = centres[number - 1]
            d.line((before[0] + 12, before[1] - 8), start, PATH, 1.5, "7,4")
        d.arrow(start, (centre[0] - 4, centre[1] - 4), SIZE)
    d.text((180, 168), "вектор подхода", SIZE)
    d.text((180, 204), "к каждому отверстию с одной стороны")
    return d


def lathe_axes():
    """A turned part from the side, with the machine's axes."""
    d = Drawing()
    axis = 128
    d.rectangle(20, axis - 62, 44, 124, "#9aa7b4")
    d.polygon([(64, axis - 44), (180, axis - 44), (180, axis - 26), (250, axis - 26), (250, axis + 26), (180, axis + 26),
               (180, axis + 44), (64, axis + 44)], METAL)
    d.line((10, axis), (300, axis), INK, 1, "10,3,2,3")
    d.arrow((250, axis), (340, axis))
    d.text((334, axis + 22), "Z", PATH, size=16)
    d.arrow((250, axis), (250, 34))
    d.text((266, 44), "X", PATH, size=16)
    d.size((120, axis), (120, axis - 44), "", (0, 0))
    d.text((128, axis - 16), "радиус", SIZE, "start")
    d.line((180, axis - 44), (204, axis - 44), SIZE, 1)
    d.line((180, axis + 44), (204, axis + 44), SIZE, 1)
    d.size((198, axis + 44), (198, axis - 44), "", (0, 0))
    d.text((206, axis + 46), "диаметр", SIZE, "start")
    return d


def groove_step():
    """A groove wider than its tool, cut in several plunges."""
    d = Drawing()
    top, depth, width, step = 96, 74, 62, 48
    left = 96
    d.polygon([(20, top), (left, top), (left, top + depth), (left + width + 2 * step, top + depth), (left + width + 2 * step, top),
               (340, top), (340, 206), (20, 206)], METAL)
    for number in (2, 1):
        x = left + number * step
        d.path(f"M{x},{top - 20} L{x},{top + depth} L{x + width},{top + depth} L{x + width},{top - 20}", INK, 1.2, "5,4")
    d.rectangle(left, 40, width, top + depth - 40, TOOL)
    d.size((left, 28), (left + width, 28), "", (0, 0))
    d.text((left + width / 2, 20), "ширина резца", SIZE, size=12)
    d.size((left + width, 60), (left + width + step, 60), "", (0, 0))
    d.text((left + width + step / 2, 52), "шаг", SIZE, size=13)
    d.line((left + width + step, 56), (left + width + step, top - 20), SIZE, 1)
    return d


def rotary_axis():
    """A part on a rotary axis that two points give."""
    d = Drawing()
    axis = 116
    d.rectangle(24, axis - 60, 40, 120, "#9aa7b4")
    d.rectangle(64, axis - 36, 210, 72, METAL)
    d.line((10, axis), (350, axis), INK, 1, "10,3,2,3")
    start, end = (124, axis), (240, axis)
    d.arrow(start, (end[0] - 5, axis), PATH, 2.5)
    for point in (start, end):
        d.circle(point, 5, SIZE, SIZE)
    d.text((start[0], axis + 60), "начальная", SIZE, size=13)
    d.line(start, (start[0], axis + 44), SIZE, 1, "4,3")
    d.text((end[0], axis + 60), "конечная", SIZE, size=13)
    d.line(end, (end[0], axis + 44), SIZE, 1, "4,3")
    d.path(f"M306,{axis + 34} A20,40 0 1 0 306,{axis - 34}", PATH, 2)
    d.head((308, axis - 34), 0.3, PATH)
    d.text((180, 30), "ось поворота", PATH)
    return d


DRAWINGS = [step_over, step_down, corner_angle, corner_clearance, approach, plunge, clearance_plane, scallop, hole_rows,
            hole_approach, lathe_axes, groove_step, rotary_axis]


def main():
    if sys.argv[1] == "--list":
        print(";".join(draw.__name__ for draw in DRAWINGS))
        return
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for draw in DRAWINGS:
        (folder / f"{draw.__name__}.svg").write_text(draw().svg(), "utf-8")


if __name__ == "__main__":
    main()
