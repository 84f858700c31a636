#!/usr/bin/env python3

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

"""Draws the bundle's icons (24x24 SVG) and scroll-bar arrows (14x14 RGBA PNG), and the icons
of the dark collection (:/ko/) that the bundle has no variant of for dark backgrounds.

The files are committed; run this again only to change a shape or a colour:
    python3 scripts/generate-resources.py src/ko/qtToolkit/resources
writes the bundle there and the dark collection into its dark/ folder.
"""
import os
import struct
import sys
import zlib

COLOURS = {"black": "#000000", "gray": "#b3b3b3", "white": "#FFFFFF"}

# On #1a1a1a the bundle's gray is nearly as bright as white; disabled icons of the dark sheet are
# dimmer, yet keep 3:1 against the background.
DIMGRAY = "#696969"

# Each shape is an SVG fragment drawn with the fill colour; holes use the even-odd rule.
TRIANGLES = {
    "down": "M7 10 L12 15 L17 10 Z",
    "up": "M7 14 L12 9 L17 14 Z",
    "left": "M14 7 L9 12 L14 17 Z",
    "right": "M10 7 L15 12 L10 17 Z",
    "updown": "M7 10 L12 5 L17 10 Z M7 14 L12 19 L17 14 Z",
}
BOX = "M5 3 H19 A2 2 0 0 1 21 5 V19 A2 2 0 0 1 19 21 H5 A2 2 0 0 1 3 19 V5 A2 2 0 0 1 5 3 Z"
SHAPES = {
    "check_box": BOX + " M10 17 L5 12 L6.4 10.6 L10 14.2 L17.6 6.6 L19 8 Z",
    "check_box_outline_blank": BOX + " M5 5 V19 H19 V5 Z",
    "indeterminate_check_box": BOX + " M7 11 V13 H17 V11 Z",
    "radio_button_checked":
        "M12 2 A10 10 0 1 0 12 22 A10 10 0 1 0 12 2 Z"
        " M12 4 A8 8 0 1 1 12 20 A8 8 0 1 1 12 4 Z"
        " M12 7 A5 5 0 1 0 12 17 A5 5 0 1 0 12 7 Z",
    "radio_button_unchecked":
        "M12 2 A10 10 0 1 0 12 22 A10 10 0 1 0 12 2 Z"
        " M12 4 A8 8 0 1 1 12 20 A8 8 0 1 1 12 4 Z",
}

SVG = ('<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">\n'
       '{body}\n</svg>\n')


def filled(path, colour):
    return SVG.format(body=f'  <path fill="{colour}" fill-rule="evenodd" d="{path}"/>')


def cross(colour):
    return SVG.format(body=(
        f'  <path fill="none" stroke="{colour}" stroke-width="4.5" stroke-linecap="round"'
        ' d="M6 6 L18 18 M18 6 L6 18"/>'))


def svg_files():
    for direction, path in TRIANGLES.items():
        variants = ("black", "gray") if direction in ("left", "right") else COLOURS
        for variant in variants:
            yield f"ic_arrow_drop_{direction}_{variant}_24px.svg", filled(path, COLOURS[variant])
    for name, path in SHAPES.items():
        for variant, colour in COLOURS.items():
            yield f"ic_{name}_{variant}_24px.svg", filled(path, colour)
    yield "ic_cross_darkgray_24px.svg", cross("#303030")
    yield "ic_cross_red_24px.svg", cross("#c31a00")


def dark_svg_files():
    for direction, path in TRIANGLES.items():
        if direction in ("left", "right"):
            yield f"ic_arrow_drop_{direction}_white_24px.svg", filled(path, COLOURS["white"])
        yield f"ic_arrow_drop_{direction}_dimgray_24px.svg", filled(path, DIMGRAY)
    for name, path in SHAPES.items():
        yield f"ic_{name}_dimgray_24px.svg", filled(path, DIMGRAY)
    yield "ic_cross_lightgray_24px.svg", cross("#cccccc")
    yield "ic_cross_lightred_24px.svg", cross("#ff5c4d")


def png(width, height, rgba_rows):
    raw = b"".join(b"\x00" + bytes(row) for row in rgba_rows)

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data
                + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF))

    return (b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(raw, 9))
            + chunk(b"IEND", b""))


def inside(px, py, triangle):
    (ax, ay), (bx, by), (cx, cy) = triangle
    d1 = (px - bx) * (ay - by) - (ax - bx) * (py - by)
    d2 = (px - cx) * (by - cy) - (bx - cx) * (py - cy)
    d3 = (px - ax) * (cy - ay) - (cx - ax) * (py - ay)
    negative = d1 < 0 or d2 < 0 or d3 < 0
    positive = d1 > 0 or d2 > 0 or d3 > 0
    return not (negative and positive)


def arrow_png(triangle, colour=(0x4d, 0x4d, 0x4d), size=14, samples=4):
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            hits = sum(inside(x + (i + 0.5) / samples, y + (j + 0.5) / samples, triangle)
                       for i in range(samples) for j in range(samples))
            row += [*colour, round(255 * hits / samples ** 2)]
        rows.append(row)
    return png(size, size, rows)


ARROWS = {
    "up": ((3, 9), (7, 4.5), (11, 9)),
    "down": ((3, 5), (7, 9.5), (11, 5)),
    "left": ((9, 3), (4.5, 7), (9, 11)),
    "right": ((5, 3), (9.5, 7), (5, 11)),
}


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else "src/ko/qtToolkit/resources"
    for name, text in svg_files():
        with open(os.path.join(out, name), "w", encoding="ascii") as f:
            f.write(text)
    for direction, triangle in ARROWS.items():
        with open(os.path.join(out, f"scrollbar-arrow-{direction}.png"), "wb") as f:
            f.write(arrow_png(triangle))

    dark = os.path.join(out, "dark")
    os.makedirs(dark, exist_ok=True)
    for name, text in dark_svg_files():
        with open(os.path.join(dark, name), "w", encoding="ascii") as f:
            f.write(text)
    for direction, triangle in ARROWS.items():
        with open(os.path.join(dark, f"scrollbar-arrow-{direction}.png"), "wb") as f:
            f.write(arrow_png(triangle, colour=(0xb3, 0xb3, 0xb3)))


if __name__ == "__main__":
    main()
