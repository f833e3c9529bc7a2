#!/usr/bin/env python3
"""Draws the two larger pictures of the presentation page.

Run from anywhere; writes resources/pictures/apresentacao_grafico.svg and
apresentacao_derivadas.svg. Only what SVG Tiny 1.2 knows is used: no style sheets,
no clipping, no filters.
"""

from math import atan, cos, degrees, sin
from pathlib import Path

PICTURES = Path(__file__).resolve().parent.parent / "resources" / "pictures"

INK, PALE, GRID = "#2b2f3a", "#6b7690", "#e6ebf5"
BLUE, RED, GREEN = "#1f4fd8", "#d62828", "#2a9d3a"
CYAN, MAGENTA, YELLOW = "#0bb4cf", "#cf1fb4", "#f6b92b"


def number(value):
    """A coordinate with no more digits than it needs."""
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


class Plane:
    """A piece of the cartesian plane: maps mathematical to picture coordinates."""

    def __init__(self, x0, y0, unit_x, unit_y):
        self.x0, self.y0, self.unit_x, self.unit_y = x0, y0, unit_x, unit_y

    def at(self, x, y):
        return self.x0 + self.unit_x * x, self.y0 - self.unit_y * y

    def text_at(self, x, y):
        return " ".join(number(c) for c in self.at(x, y))

    def curve(self, f, slope, start, end, pieces=24):
        """Path data of f: cubic pieces that share value and slope with f at their ends."""
        step = (end - start) / pieces
        data = "M" + self.text_at(start, f(start))
        for i in range(pieces):
            a, b = start + i * step, start + (i + 1) * step
            points = [(a + step / 3, f(a) + slope(a) * step / 3),
                      (b - step / 3, f(b) - slope(b) * step / 3), (b, f(b))]
            data += " C" + " ".join(self.text_at(*p) for p in points)
        return data


def stroke(data, color, width, extra=""):
    return (f'<path d="{data}" fill="none" stroke="{color}" stroke-width="{width}" '
            f'stroke-linejoin="round"{extra}/>')


def dot(plane, x, y, color, radius=5):
    cx, cy = (number(c) for c in plane.at(x, y))
    return (f'<circle cx="{cx}" cy="{cy}" r="{radius}" fill="{color}" stroke="#ffffff" '
            f'stroke-width="1.6"/>')


def text(x, y, words, color, size, anchor="start", extra=""):
    return (f'<text x="{number(x)}" y="{number(y)}" font-family="DejaVu Sans" font-size="{size}" '
            f'fill="{color}" text-anchor="{anchor}"{extra}>{words}</text>')


BOLD, ROUND, DOTS = ' font-weight="bold"', ' stroke-linecap="round"', ' stroke-dasharray="2 4"'


def arrows(right, middle, centre, top):
    """Heads of the two axes: x ends at (right, middle), y at (centre, top)."""
    return (f'<path d="M{right} {middle} l-11 -4.5 v9 Z M{centre} {top} l-4.5 11 h9 Z" '
            f'fill="{INK}"/>')


def card(width, height):
    """The white sheet that a picture is drawn on; the half pixel keeps its edge crisp."""
    return (f'<rect x="0.5" y="0.5" width="{width - 1}" height="{height - 1}" rx="10" '
            f'fill="#ffffff" stroke="#c3cde2"/>')


def write(name, width, height, shapes):
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             f'viewBox="0 0 {width} {height}">', *("  " + s for s in shapes), "</svg>"]
    (PICTURES / name).write_text("\n".join(lines) + "\n", encoding="utf-8")


def draw_graph():
    """The program's default function with its tangent at P and the slope as a triangle."""
    width, height, point, run = 600, 430, 1.35, 2.0
    reach_x, reach_y = 6.85, 4.85  # the curve and the tangent stop here
    plane = Plane(300.5, 215.5, 42, 42)  # half pixels: the axes fall on whole pixels

    def f(x):
        return x * (1 - cos(x)) / 2

    def slope(x):
        return (1 - cos(x) + x * sin(x)) / 2

    m = slope(point)

    def tangent(x):
        return f(point) + m * (x - point)

    out = [card(width, height)]
    grid = "".join(f"M{plane.text_at(i, reach_y)} V{number(plane.at(0, -reach_y)[1])} "
                   for i in range(-6, 7) if i)
    grid += "".join(f"M{plane.text_at(-reach_x, i)} H{number(plane.at(reach_x, 0)[0])} "
                    for i in range(-4, 5) if i)
    out.append(stroke(grid.strip(), GRID, 1))
    ticks = "".join(f"M{plane.text_at(i, 0)} m0 -3 v6 " for i in range(-6, 7) if i)
    ticks += "".join(f"M{plane.text_at(0, i)} m-3 0 h6 " for i in range(-4, 5) if i)
    out.append(stroke(f"M9 {plane.y0} H588 M{plane.x0} 421 V12 " + ticks.strip(), INK, 1.4))
    out.append(arrows(592, plane.y0, plane.x0, 8))
    # Negative numbers stand on the far side of their axis, where neither line passes.
    for i in range(1, 7):
        out.append(text(plane.at(i, 0)[0], plane.y0 + 17, str(i), PALE, 11, "middle"))
        out.append(text(plane.at(-i, 0)[0] - 3, plane.y0 - 8, f"−{i}", PALE, 11, "middle"))
    for i in range(1, 5):
        out.append(text(plane.x0 - 8, plane.at(0, i)[1] + 4, str(i), PALE, 11, "end"))
        out.append(text(plane.x0 + 8, plane.at(0, -i)[1] + 4, f"−{i}", PALE, 11))
    out.append(text(586, plane.y0 + 19, "x", INK, 14, "middle", BOLD))
    out.append(text(plane.x0 + 15, 21, "y", INK, 14, "middle", BOLD))

    # The slope triangle: from P to the right by the run, then up to the tangent.
    corner, top = (point + run, f(point)), (point + run, tangent(point + run))
    px, py = plane.at(point, f(point))
    qx, qy = plane.at(*corner)
    out.append(f'<path d="M{number(px)} {number(py)} L{plane.text_at(*corner)} '
               f'L{plane.text_at(*top)} Z" fill="{YELLOW}" fill-opacity="0.22"/>')
    radius = 30
    ex, ey = px + radius * cos(atan(m)), py - radius * sin(atan(m))
    out.append(f'<path d="M{number(px)} {number(py)} H{number(px + radius)} A{radius} {radius} '
               f'0 0 0 {number(ex)} {number(ey)} Z" fill="{YELLOW}"/>')
    out.append(stroke(f"M{number(px)} {number(py)} H{number(qx)} V{number(plane.at(*top)[1])}",
                      INK, 2, ROUND + ' stroke-dasharray="0.1 5"'))

    out.append(stroke(plane.curve(f, slope, -reach_x, reach_x, 56), BLUE, 3.5, ROUND))
    # The tangent leaves the plane at its lower and upper edge.
    ends = [point + (y - f(point)) / m for y in (-reach_y, reach_y)]
    out.append(stroke("M" + " L".join(plane.text_at(x, tangent(x)) for x in ends), RED, 3, ROUND))
    out.append(dot(plane, point, f(point), GREEN, 7))

    comma = f"{m:.2f}".replace(".", ",")
    angle = f"{degrees(atan(m)):.1f}".replace(".", ",")
    out.append(text(px - 12, py - 7, "P", GREEN, 16, "end", BOLD))
    out.append(text(px + 38, py - 12, "α", INK, 14, "start", BOLD))
    out.append(text(30, 42, "y = x · (1 − cos x) / 2", BLUE, 17, "start", BOLD))
    out.append(text(30, 64, "o gráfico da função", PALE, 13))
    out.append(text(368, 346, "recta tangente em P", RED, 17, "start", BOLD))
    out.append(text(368, 368, f"declive = tg α ≈ {comma}", INK, 14))
    out.append(text(368, 388, f"α ≈ {angle}°", INK, 14))
    write("apresentacao_grafico.svg", width, height, out)


def draw_derivatives():
    """A cubic, its first and second derivative, one above the other and in their colours."""
    width, height = 300, 430
    first, middle, last, end = 1.5, 2.5, 3.5, 4.55  # maximum, inflexion, minimum, edge

    def f(x):
        return (x - middle) ** 3 / 3 - (x - middle) + 0.9

    def f1(x):
        return (x - middle) ** 2 - 1

    def f2(x):
        return 2 * (x - middle)

    def f3(_):
        return 2

    start = 2 * middle - end
    above = Plane(22, 128.5, 57, 48)
    centre = Plane(22, 248.5, 57, 21)
    below = Plane(22, 366.5, 57, 10.5)
    out = [card(width, height)]

    panels = [("Função", above, 32, 140), ("1ª derivada", centre, 172, 280),
              ("2ª derivada", below, 312, 420)]
    for title, plane, top, bottom in panels:
        out.append(stroke(f"M12 {plane.y0} H284 M22 {bottom} V{top + 4}", INK, 1.4))
        out.append(arrows(290, plane.y0, 22, top))
        out.append(text(12, top - 7, title, INK, 12, "start", BOLD))

    def guide(x, upper, lower):
        cx = number(upper[0].at(x, 0)[0])
        y1, y2 = (number(p.at(x, g(x))[1]) for p, g in (upper, lower))
        out.append(stroke(f"M{cx} {y1} V{y2}", PALE, 1.4, DOTS))

    for x in (first, last):
        guide(x, (above, f), (centre, f1))
    guide(middle, (above, f), (below, f2))

    for plane, g, slope in ((above, f, f1), (centre, f1, f2)):
        out.append(stroke(plane.curve(g, slope, start, first), GREEN, 3.2, ROUND))
        out.append(stroke(plane.curve(g, slope, last, end), GREEN, 3.2, ROUND))
        out.append(stroke(plane.curve(g, slope, first, last), RED, 3.2))
    out.append(stroke(below.curve(f2, f3, start, middle, 1), MAGENTA, 3.2, ROUND))
    out.append(stroke(below.curve(f2, f3, middle, end, 1), CYAN, 3.2, ROUND))

    for x in (first, last):
        out.append(dot(above, x, f(x), RED))
        out.append(dot(centre, x, 0, RED))
    out.append(dot(above, middle, f(middle), GREEN))
    out.append(dot(below, middle, 0, GREEN))

    signs = [(centre, "+", 0.85, 0.45, GREEN), (centre, "−", middle + 0.3, -0.75, RED),
             (centre, "+", 4.15, 0.45, GREEN),
             (below, "−", 0.95, -1.9, MAGENTA), (below, "+", 4.1, 0.7, CYAN)]
    for plane, sign, x, y, color in signs:
        px, py = plane.at(x, y)
        out.append(text(px, py, sign, color, 17, "middle", BOLD))
    write("apresentacao_derivadas.svg", width, height, out)


if __name__ == "__main__":
    draw_graph()
    draw_derivatives()
