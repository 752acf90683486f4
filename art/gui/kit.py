"""The look of every screen piece in one place: brass, dark sea-blue enamel, aged paper, rope, light from the top left.

A piece is SVG text; `save` renders it, clears the last breath of transparency (a pixel that can barely be seen must
not be hit) and packs it. Widths and heights are even.
"""

import math
import os
import subprocess

import numpy as np
from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.join(HERE, "..", "..", "data")
WORK = os.path.join(HERE, "..", "work", "gui")

INK = "#1a0f06"

DEFS = """
<linearGradient id="brass" x1="0" y1="0" x2="0.35" y2="1"><stop offset="0" stop-color="#fff3c6"/><stop offset=".2" stop-color="#e6bd66"/><stop offset=".5" stop-color="#9a6a26"/><stop offset=".58" stop-color="#bf8d3c"/><stop offset=".8" stop-color="#e8c777"/><stop offset="1" stop-color="#6f4714"/></linearGradient>
<linearGradient id="brassdown" x1="0" y1="1" x2="0.35" y2="0"><stop offset="0" stop-color="#f6d991"/><stop offset=".45" stop-color="#a5742c"/><stop offset="1" stop-color="#553409"/></linearGradient>
<linearGradient id="brassbright" x1="0" y1="0" x2="0.35" y2="1"><stop offset="0" stop-color="#fffbe6"/><stop offset=".22" stop-color="#ffdf8c"/><stop offset=".5" stop-color="#c28d3a"/><stop offset=".58" stop-color="#e3b155"/><stop offset=".8" stop-color="#fff0b4"/><stop offset="1" stop-color="#93611f"/></linearGradient>
<linearGradient id="tin" x1="0" y1="0" x2="0.35" y2="1"><stop offset="0" stop-color="#e4e2da"/><stop offset=".25" stop-color="#aaa79c"/><stop offset=".55" stop-color="#6d6a62"/><stop offset=".8" stop-color="#a9a69b"/><stop offset="1" stop-color="#4b4841"/></linearGradient>
<linearGradient id="brassin" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#3d2508"/><stop offset=".5" stop-color="#7b5219"/><stop offset="1" stop-color="#e9c877"/></linearGradient>
<radialGradient id="stud" cx=".35" cy=".3" r=".8"><stop offset="0" stop-color="#fff6d2"/><stop offset=".5" stop-color="#c48e38"/><stop offset="1" stop-color="#54330b"/></radialGradient>
<linearGradient id="enamel" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#2d5f78"/><stop offset=".46" stop-color="#174058"/><stop offset=".54" stop-color="#10334a"/><stop offset="1" stop-color="#0b2336"/></linearGradient>
<linearGradient id="enamelover" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#4b91a8"/><stop offset=".46" stop-color="#256a86"/><stop offset=".54" stop-color="#1b5872"/><stop offset="1" stop-color="#123f59"/></linearGradient>
<linearGradient id="enameldown" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#071824"/><stop offset=".4" stop-color="#0d2d42"/><stop offset="1" stop-color="#1a4a63"/></linearGradient>
<linearGradient id="enameloff" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#5b6870"/><stop offset=".5" stop-color="#434e55"/><stop offset="1" stop-color="#333c42"/></linearGradient>
<linearGradient id="gloss" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff" stop-opacity=".42"/><stop offset="1" stop-color="#fff" stop-opacity=".03"/></linearGradient>
<linearGradient id="glossdown" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#000" stop-opacity=".45"/><stop offset="1" stop-color="#000" stop-opacity="0"/></linearGradient>
<filter id="shadow" x="-10%" y="-10%" width="120%" height="130%"><feGaussianBlur in="SourceAlpha" stdDeviation="2.2"/><feOffset dx="1" dy="2.4"/><feComponentTransfer><feFuncA type="linear" slope=".7"/></feComponentTransfer><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="deep" x="-10%" y="-10%" width="120%" height="130%"><feGaussianBlur in="SourceAlpha" stdDeviation="4"/><feOffset dx="2" dy="4"/><feComponentTransfer><feFuncA type="linear" slope=".75"/></feComponentTransfer><feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>
<filter id="soft" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="3"/></filter>
<filter id="softer" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="9"/></filter>
<filter id="speckle" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency=".5" numOctaves="3" seed="3" result="n"/><feColorMatrix in="n" type="matrix" values="0 0 0 0 .6  0 0 0 0 .8  0 0 0 0 .9  .9 0 0 0 -.42"/><feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="paper" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency=".009 .013" numOctaves="6" seed="4" result="n"/><feColorMatrix in="n" type="matrix" values="0.19 0 0 0 0.80  0.24 0 0 0 0.685  0.29 0 0 0 0.465  0 0 0 0 1" result="c"/><feTurbulence type="fractalNoise" baseFrequency=".8 .55" numOctaves="3" seed="8" result="f"/><feDiffuseLighting in="f" surfaceScale=".42" diffuseConstant="1.12" lighting-color="#fff" result="l"><feDistantLight azimuth="225" elevation="62"/></feDiffuseLighting><feBlend in="l" in2="c" mode="multiply"/><feComposite in2="SourceAlpha" operator="in"/></filter>
<filter id="wood" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB"><feTurbulence type="fractalNoise" baseFrequency=".0035 .12" numOctaves="5" seed="9" result="n"/><feColorMatrix in="n" type="matrix" values=".62 0 0 0 .10  .36 0 0 0 .05  .20 0 0 0 .03  0 0 0 0 1" result="c"/><feDiffuseLighting in="n" surfaceScale="1.4" diffuseConstant="1.1" lighting-color="#fff"><feDistantLight azimuth="235" elevation="58"/></feDiffuseLighting><feBlend in2="c" mode="multiply"/><feComposite in2="SourceAlpha" operator="in"/></filter>
"""


def document(width, height, body, defs=""):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" '
            f'height="{height}" viewBox="0 0 {width} {height}"><defs>{DEFS}{defs}</defs>{body}</svg>')


def raster(width, height, body, defs="", scale=1):
    os.makedirs(WORK, exist_ok=True)
    svg, png = os.path.join(WORK, "piece.svg"), os.path.join(WORK, "piece.png")
    with open(svg, "w") as out:
        out.write(document(width, height, body, defs))
    subprocess.run(["rsvg-convert", "--unlimited", "-z", str(scale), svg, "-o", png], check=True)
    return Image.open(png).convert("RGBA")


def pack(picture, name, colours=256, quality="88-99"):
    """Write a PNG below data/, in a palette if no one can see the difference; colours 0 keeps it as it is, with the faint
    rim that a glow needs."""
    if picture.width % 2 or picture.height % 2:
        raise SystemExit(f"{name}: {picture.size} is not even")
    pixels = np.array(picture)
    pixels[pixels[..., 3] < (10 if colours else 1)] = 0
    path = os.path.join(DATA, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    Image.fromarray(pixels).save(path)
    if colours:
        subprocess.run(["pngquant", "--force", "--skip-if-larger", "--quality", quality, "--speed", "1", "--output", path,
                        str(colours), path], check=False)
    subprocess.run(["optipng", "-quiet", "-o4", path], check=True)
    print(f"{name}: {picture.width}x{picture.height}, {os.path.getsize(path) // 1024 + 1} kB")


def save(name, width, height, body, defs="", colours=256):
    pack(raster(width, height, body, defs), name, colours)


def photo(picture, name, quality=91):
    path = os.path.join(DATA, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    picture.convert("RGB").save(path, quality=quality, optimize=True, progressive=False, subsampling=0)
    print(f"{name}: {picture.width}x{picture.height}, {os.path.getsize(path) // 1024 + 1} kB")


def plate(x, y, w, h, r):
    """Outline of a plate whose corners are cut out in quarter circles."""
    return (f"M{x + r} {y}H{x + w - r}A{r} {r} 0 0 0 {x + w} {y + r}V{y + h - r}A{r} {r} 0 0 0 {x + w - r} {y + h}"
            f"H{x + r}A{r} {r} 0 0 0 {x} {y + h - r}V{y + r}A{r} {r} 0 0 0 {x + r} {y}Z")


def stud(x, y, r, turn=30):
    return (f'<g transform="translate({x:.1f},{y:.1f}) rotate({turn})"><circle r="{r}" fill="url(#stud)" stroke="{INK}" stroke-width=".9"/>'
            f'<rect x="{-r * .72:.2f}" y="-.8" width="{r * 1.44:.2f}" height="1.6" fill="#3c2408" opacity=".85"/></g>')


def rope_points(points, size):
    """A laid rope along a list of (x, y, direction in radians), one strand a point."""
    out = []
    for x, y, turn in points:
        out.append(f'<g transform="translate({x:.1f},{y:.1f}) rotate({math.degrees(turn) - 38:.1f})">'
                   f'<ellipse rx="{size * .78:.2f}" ry="{size * .36:.2f}" fill="#b98f56" stroke="#4a2f12" stroke-width="{size * .11:.2f}"/>'
                   f'<ellipse cx="0" cy="{-size * .08:.2f}" rx="{size * .6:.2f}" ry="{size * .17:.2f}" fill="#e9cf9b" opacity=".9"/>'
                   f'<path d="M{-size * .6:.2f} {size * .17:.2f}Q0 {size * .36:.2f} {size * .6:.2f} {size * .17:.2f}" fill="none" stroke="#7a5526" stroke-width="{size * .1:.2f}"/></g>')
    return "".join(out)


def ring_points(x, y, w, h, r, step):
    """Evenly spaced points along a rounded rectangle."""
    straight_w, straight_h, arc = w - 2 * r, h - 2 * r, math.pi * r / 2
    total = 2 * (straight_w + straight_h) + 4 * arc
    count = round(total / step)
    points = []
    for i in range(count):
        d = i * total / count
        for leg, (length, kind) in enumerate(((straight_w, 0), (arc, 1), (straight_h, 0), (arc, 1), (straight_w, 0), (arc, 1), (straight_h, 0), (arc, 1))):
            if d <= length:
                break
            d -= length
        base = (leg // 2) * math.pi / 2
        corners = ((x + w - r, y + r), (x + w - r, y + h - r), (x + r, y + h - r), (x + r, y + r))
        starts = ((x + r, y), (x + w, y + r), (x + w - r, y + h), (x, y + h - r))
        if kind == 0:
            sx, sy = starts[leg // 2]
            points.append((sx + math.cos(base) * d, sy + math.sin(base) * d, base))
        else:
            cx, cy = corners[leg // 2]
            turn = base + d / r
            points.append((cx + r * math.sin(turn), cy - r * math.cos(turn), turn))
    return points


def rope_ring(x, y, w, h, r, size):
    body = (f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="none" stroke="#4a2f12" stroke-width="{size * .8:.1f}"/>'
            + rope_points(ring_points(x, y, w, h, r, size * .62), size))
    return f'<g filter="url(#shadow)">{body}</g>'


def sheet(x, y, w, h, r=6):
    """A sheet of aged paper let into a frame: darker toward its edges, shaded by the frame above and left."""
    ident = f"s{int(x)}_{int(y)}_{int(w)}_{int(h)}"
    return (f'<clipPath id="{ident}"><rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}"/></clipPath>'
            f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="#000" filter="url(#paper)"/>'
            f'<g clip-path="url(#{ident})"><rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="none" stroke="#7a4a14" stroke-width="{min(w, h) * .13:.0f}" opacity=".34" filter="url(#softer)"/>'
            f'<path d="M{x} {y + h}V{y}H{x + w}" fill="none" stroke="#1c0d02" stroke-width="11" opacity=".5" filter="url(#soft)"/></g>')


def rim(path, width, metal="brass"):
    """A bevelled edge along a path: dark outside, metal, a thin light line within."""
    return (f'<path d="{path}" fill="none" stroke="{INK}" stroke-width="{width + 3}" stroke-linejoin="round"/>'
            f'<path d="{path}" fill="none" stroke="url(#{metal})" stroke-width="{width}" stroke-linejoin="round"/>'
            f'<path d="{path}" fill="none" stroke="#3c2408" stroke-width="{width * .22:.2f}" opacity=".55"/>'
            f'<path d="{path}" fill="none" stroke="#fff3c8" stroke-width="{width * .14:.2f}" opacity=".55" transform="translate(-.7,-.9)"/>')


def brass_corner(x, y, size, turn):
    """A chased corner mount with its screw; turn 0 is the top left one."""
    s = size
    return (f'<g transform="translate({x},{y}) rotate({turn})"><path d="M{-s * .16} {-s * .16}H{s}Q{s * .86} {s * .2} {s * .5} {s * .26}Q{s * .3} {s * .3} {s * .26} {s * .5}Q{s * .2} {s * .86} {-s * .16} {s}Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.4"/>'
            f'<path d="M{-s * .06} {s * .78}V{-s * .06}H{s * .78}" fill="none" stroke="#fff3c8" stroke-width="1.1" opacity=".7"/>'
            f'<path d="M{s * .14} {s * .62}Q{s * .16} {s * .16} {s * .62} {s * .14}" fill="none" stroke="#6b430f" stroke-width="1.3"/></g>'
            f'{stud(x + s * .12 * math.cos(math.radians(turn)) - s * .12 * math.sin(math.radians(turn)), y + s * .12 * math.cos(math.radians(turn)) + s * .12 * math.sin(math.radians(turn)), s * .12, turn + 25)}')
