"""The end of a scene: the page of the log with what it brought in, and three ways to celebrate before it."""

import math
import os

import numpy as np
from PIL import Image, ImageFilter

from kit import DATA, INK, pack, raster, save, stud
from panels import board, flourish, plaque, seal
from small import strip


def watermark(x, y, k):
    """A lighthouse drawn with the pen, so faint that words read well on it."""
    body = f'<g transform="translate({x},{y}) scale({k})" fill="none" stroke="#5a3a12" stroke-width="2" opacity=".3" stroke-linejoin="round">'
    body += '<path d="M-34 150L-20 -40H20L34 150M-23 0H23M-27 50H27M-30.500 100H30.5M-26 -40H26V-48H-26ZM-17 -48V-76H17V-48M-21 -76H21L0 -100ZM0 -100V-112M-8 -48V-76M8 -48V-76"/><path d="M-23 0L-20.500 -36H20.5L23 0ZM-30.500 100L-27 50H27L30.5 100Z" fill="#5a3a12" opacity=".4" stroke="none"/>'
    for side in (-1, 1):
        for i in range(9):
            a = math.radians(-24 + 6 * i)
            body += f'<path d="M{side * 30} {-62 + 5 * (i - 4) * .5:.1f}L{side * (30 + 125 * math.cos(a)):.1f} {-62 + 125 * math.sin(a):.1f}" stroke-width="1.1" stroke-dasharray="9 5"/>'
    return body + '<path d="M-120 152Q-90 140 -60 150T0 150T60 150T120 150M-150 166Q-110 154 -70 164T10 164T90 164T150 164"/></g>'


def log_page():
    """A ruled page: three lines for what was earned, a double line, the sum, and the purser's seal."""
    body = board(760, 560, 40) + plaque(170, 22, 414, 76) + watermark(379, 292, 1.15)
    for y in (172, 232, 292):
        body += f'<path d="M88 {y + 22}H{760 - 90}" stroke="#7a4a14" stroke-width="1.2" stroke-dasharray="2 5" opacity=".8"/>'
    body += '<path d="M88 336H670M88 341H670" stroke="#7a4a14" stroke-width="1.4" opacity=".8"/>' + flourish(379, 420, 130) + seal(379, 460, 34)
    save("gui/roundscore/panel.png", 760, 560, body)
    star = "".join(f'{"M" if i == 0 else "L"}{12 + (10 if i % 2 == 0 else 4) * math.sin(i * math.pi / 4):.1f} {12 - (10 if i % 2 == 0 else 4) * math.cos(i * math.pi / 4):.1f}' for i in range(8))
    save("gui/roundscore/bullet.png", 24, 24, f'<path d="{star}Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.2" stroke-linejoin="round"/>')


def ribbon():
    """A pennant of blue cloth that unrolls with a bounce; the words lie over it."""
    w, h = 860, 170
    defs = '<linearGradient id="cloth" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#3c83a3"/><stop offset=".5" stop-color="#1b526f"/><stop offset="1" stop-color="#0d3048"/></linearGradient><linearGradient id="fold" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#0a2233"/><stop offset="1" stop-color="#1d5470"/></linearGradient>'
    body = '<g filter="url(#deep)">'
    for side in (0, 1):
        tail = "M10 52H150V148H10L46 100Z"
        place = f'transform="translate({w},0) scale(-1,1)"' if side else ""
        body += f'<g {place}><path d="{tail}" fill="url(#fold)" stroke="{INK}" stroke-width="3" stroke-linejoin="round"/><path d="M24 60H150M24 140H150" stroke="#d9b35c" stroke-width="3"/><path d="M96 126L150 126V148Z" fill="#061722"/></g>'
    front = f"M94 24Q{w / 2} 6 {w - 94} 24V128Q{w / 2} 110 94 128Z"
    body += f'<path d="{front}" fill="url(#cloth)" stroke="{INK}" stroke-width="3.500" stroke-linejoin="round"/></g><path d="{front}" fill="#000" filter="url(#speckle)" opacity=".12"/>'
    for y, colour, wide in ((9, "#e6c06a", 4), (15, "#9a6a26", 1.4)):
        body += f'<path d="M96 {24 + y}Q{w / 2} {6 + y} {w - 96} {24 + y}M96 {128 - y}Q{w / 2} {110 - y} {w - 96} {128 - y}" fill="none" stroke="{colour}" stroke-width="{wide}"/>'
    for x in (124, w - 124):
        body += stud(x, 75, 6, 40)
    pack(raster(w, h, body, defs), "gui/welldone/ribbon.png")
    sizes = [0.1, 0.45, 0.8, 1.06, 1.14, 1.1, 1.02, 0.96, 0.98, 1.01, 1.0]
    frames = "".join(f'    <frame x="0" y="0" w="{w}" h="{h}" regx="{w // 2}" regy="{h // 2}" xform="{k} 0 0 {min(1.0, 0.6 + 0.4 * k):.3f} 0 0"/>\n' for k in sizes)
    keys = "".join(f'    <key frame="{i + 1}"/>\n' for i in range(len(sizes)))
    xml("gui/welldone/ribbon", f'  <framelist>\n{frames}  </framelist>\n  <timeline name="main" frametime="32">\n    <key lua="PlaySound(\'audio/sfx/welldone.wav\');"/>\n{keys}  </timeline>\n')


def xml(name, inner):
    with open(os.path.join(DATA, name + ".xml"), "w") as out:
        out.write(f'<sequence name="{os.path.basename(name)}">\n{inner}</sequence>\n')


def firework(name, colour, seed):
    """A burst in twelve steps: sparks that fly out, slow down, sink and twinkle out. A particle plays it once, then its
    place in the pool serves the next: the animation goes round in just the time that a particle lives."""
    random = np.random.default_rng(seed)
    size, big, count, steps = 160, 3, 90, 12
    angle = random.uniform(0, 2 * math.pi, count)
    reach = np.where(np.arange(count) % 3 == 0, random.uniform(0.3, 0.62, count), random.uniform(0.8, 1.0, count))
    fade = random.uniform(0.55, 1.0, count)
    frames = []
    for step in range(steps):
        t = (step + 1) / steps
        light = np.zeros((size * big, size * big))
        for back, strength in ((0.0, 1.0), (0.03, 0.6), (0.06, 0.42), (0.09, 0.28), (0.12, 0.18), (0.16, 0.1)):
            s = max(0.0, t - back)
            out = (1 - (1 - s) ** 3) * 70 * big
            x = size * big / 2 + np.cos(angle) * out * reach
            y = size * big / 2 + np.sin(angle) * out * reach + 9 * big * s * s
            glow = strength * np.clip((fade - t) / 0.3, 0, 1) * (1 if t < 0.5 else 1 - 0.5 * ((np.arange(count) * 7 + step * 3) % 5 == 0))
            np.add.at(light, (np.clip(y, 0, size * big - 1).astype(int), np.clip(x, 0, size * big - 1).astype(int)), glow)
        canvas = Image.fromarray((np.clip(light, 0, 1) * 255).astype(np.uint8))
        near = np.array(canvas.filter(ImageFilter.GaussianBlur(2.2)), float) * 14
        far = np.array(canvas.filter(ImageFilter.GaussianBlur(9)), float) * 28 * (1 - t * 0.6)
        core = np.exp(-((np.hypot(*np.meshgrid(*(np.arange(size * big) - size * big / 2,) * 2)) / (26 * big)) ** 2)) * max(0, 1 - t * 3.2)
        alpha = np.clip((near + far) / 255 + core, 0, 1)
        small = Image.fromarray((alpha * 255).astype(np.uint8)).resize((size, size), Image.LANCZOS)
        level = np.asarray(small, float)[..., None] / 255
        white = np.clip(level * 1.5 - 0.6, 0, 1) * (1 - 0.7 * t)
        frames.append(Image.fromarray(np.dstack([np.array(colour) * (1 - white) + 255 * white, level * 255]).astype(np.uint8)))
    strip(f"gui/welldone/{name}", frames, 75, (size // 2, size // 2), colours=0)


def letter():
    """An envelope that tumbles, eight steps a turn."""
    frames = []
    for index in range(8):
        a = 2 * math.pi * index / 8
        wide, lean = math.cos(a), 14 * math.sin(a)
        front = wide >= 0
        wide = max(abs(wide), 0.12)
        body = f'<g transform="translate(32,32) rotate({lean:.1f}) scale({wide:.2f},1)"><rect x="-25" y="-16" width="50" height="32" rx="2" fill="{"#f7edd3" if front else "#e3d2a8"}" stroke="{INK}" stroke-width="1.8"/>'
        if front:
            body += '<path d="M-15 2H6M-15 8H0" stroke="#5a3a12" stroke-width="1.8"/><rect x="11" y="-12" width="9" height="11" fill="#8d2a1a" stroke="#f7edd3" stroke-width="1"/>'
        else:
            body += '<path d="M-24 -15L0 4L24 -15M-24 15L-6 0M24 15L6 0" fill="none" stroke="#8a6a3c" stroke-width="1.8"/><circle r="6" cy="2" fill="#b02a1e" stroke="#5c0f0b" stroke-width="1.3"/>'
        frames.append(raster(64, 64, body + "</g>"))
    strip("gui/welldone/letter", frames, 90, (32, 32))


def lamp():
    """The tower that is lit, and the beam that sweeps round it: drawn once, turned by its frames."""
    defs = ('<radialGradient id="night" cx=".5" cy=".36" r=".7"><stop offset="0" stop-color="#39759c"/><stop offset=".6" stop-color="#153c5c"/><stop offset="1" stop-color="#071a2b"/></radialGradient><clipPath id="disc"><circle cx="150" cy="150" r="122"/></clipPath>'
            '<linearGradient id="tower" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#fffaf0"/><stop offset=".5" stop-color="#efe3c8"/><stop offset="1" stop-color="#a59274"/></linearGradient><linearGradient id="red" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#d8452f"/><stop offset=".5" stop-color="#b5281c"/><stop offset="1" stop-color="#6b130c"/></linearGradient>')
    body = f'<g filter="url(#deep)"><circle cx="150" cy="150" r="138" fill="{INK}"/></g><circle cx="150" cy="150" r="136" fill="url(#brass)" stroke="{INK}" stroke-width="2"/><circle cx="150" cy="150" r="126" fill="#241404"/><circle cx="150" cy="150" r="122" fill="url(#night)"/><g clip-path="url(#disc)">'
    random = np.random.default_rng(2)
    for x, y, r in random.uniform((20, 20, 0.5), (280, 200, 1.9), (60, 3)):
        body += f'<circle cx="{x:.0f}" cy="{y:.0f}" r="{r:.1f}" fill="#fff" opacity="{r * .42:.2f}"/>'
    body += '<path d="M0 216Q60 200 110 214T220 210T320 216V300H0Z" fill="#0a2437"/><path d="M96 300Q104 226 150 222Q198 226 208 300Z" fill="#2a2420"/>'
    body += f'<path d="M122 232L134 116H166L178 232Z" fill="url(#tower)" stroke="{INK}" stroke-width="2"/><path d="M124.800 205L128 174H172L175.2 205ZM131 146L134 118H166L169 146Z" fill="url(#red)"/><rect x="126" y="108" width="48" height="9" rx="2" fill="#2a2420"/><rect x="134" y="80" width="32" height="28" fill="#fff6c0" stroke="{INK}" stroke-width="2.500"/><path d="M144 80V108M156 80V108" stroke="{INK}" stroke-width="2"/><path d="M128 81L150 56L172 81Z" fill="url(#red)" stroke="{INK}" stroke-width="2"/><circle cx="150" cy="54" r="4" fill="url(#stud)" stroke="{INK}"/></g>'
    for i in range(12):
        a = i * math.pi / 6
        body += stud(150 + 131 * math.cos(a), 150 + 131 * math.sin(a), 4.6, i * 37)
    pack(raster(300, 300, body, defs), "gui/welldone/lamp.png")
    beam()


def beam():
    """Two beams in opposite directions; half a turn of them makes the whole."""
    w, h, steps = 1400, 220, 40
    y, x = np.mgrid[0:h, 0:w]
    along = np.abs(x - (w - 1) / 2) / (w / 2)
    across = (y - (h - 1) / 2) / (5 + along * (h / 2 - 6))
    picture = np.zeros((h, w, 4), np.uint8)
    picture[..., :3] = (255, 240, 186)
    picture[..., 3] = 255 * np.exp(-(across * 1.5) ** 2) * np.clip(1 - along, 0, 1) ** 0.9 * np.clip((1 - np.abs(across)) * 3, 0, 1) * 0.95
    pack(Image.fromarray(picture), "gui/welldone/beam.png", 0)
    frames, keys = "", ""
    for step in range(steps):
        c, s = math.cos(math.pi * step / steps), math.sin(math.pi * step / steps)
        frames += f'    <frame x="0" y="0" w="{w}" h="{h}" regx="{w // 2}" regy="{h // 2}" xform="{c:.4f} {s:.4f} {-s:.4f} {c:.4f} 0 0"/>\n'
        keys += f'    <key frame="{step + 1}"/>\n'
    xml("gui/welldone/beam", f'  <framelist>\n{frames}  </framelist>\n  <timeline name="main" frametime="32">\n{keys}    <key jumpto="0"/>\n  </timeline>\n')


def main():
    log_page()
    ribbon()
    firework("firework_gold", (255, 190, 80), 5)
    firework("firework_red", (255, 92, 70), 6)
    firework("firework_blue", (96, 186, 255), 7)
    letter()
    lamp()


if __name__ == "__main__":
    main()
