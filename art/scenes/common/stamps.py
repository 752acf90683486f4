#!/usr/bin/python3
"""Draws the postage stamps that lie about in several scenes: data/common/postage_stamp-m1.png ... -m4.png.  Run from art/.

Their paper is toned for lamplight, since both the quay and the rooms have it.
"""
import io
import subprocess

import numpy as np
from PIL import Image, ImageFilter

WIDTH, HEIGHT, SCALE = 54, 64, 4
SERIF = 'font-family="Old Standard TT" font-weight="bold" text-anchor="middle"'
PICTURES = {
    # name: (ink, ground, angle, motif in a field of 40 x 38)
    1: ('#7c1d16', '#e9c9a4', -7, '<path d="M2 20 Q11 6 19 19 Q20 20 21 19 Q29 6 38 20 Q29 14 22 23 L20 29 L18 23 Q11 14 2 20Z"/><path d="M3 34 q4 -4 8 0 t8 0 t8 0 t8 0" fill="none" stroke-width="2"/>'),
    2: ('#1d3f66', '#cfd3c4', 6, '<path d="M16 36 L18 13 h6 L26 36Z"/><path d="M17 12 h8 v-5 h-8z M16 6 L21 2 L26 6Z"/><path d="M14 9 L2 4 v10Z M28 9 L40 4 v10Z" opacity=".45"/><path d="M17 20 h8 v4 h-8z M16 29 h10 v4 h-10z" fill="#cfd3c4"/>'),
    3: ('#2c5a34', '#d9d3a6', 9, '<path d="M3 24 h34 l-5 10 h-24z"/><path d="M10 23 v-7 h19 v7z M22 15 l-1 -10 h6 l1 10z M14 15 V3 h1 V15z"/><path d="M27 4 q6 -4 11 -1 q-5 1 -6 3 q-3 -2 -5 0z" opacity=".6"/><path d="M12 18 h3 v3 h-3z M17 18 h3 v3 h-3z" fill="#d9d3a6"/>'),
    4: ('#6a3a78', '#ddc6b4', -4, '<circle cx="20" cy="6" r="3.6" fill="none" stroke-width="2.4"/><path d="M18.6 9 h2.8 V30 h-2.8z M12 13 h16 v2.8 h-16z"/><path d="M5 22 q3 12 15 12 q12 0 15 -12 l-2 1 q-3 7 -13 7 q-10 0 -13 -7z"/><path d="M3 25 L5 18 L11 22Z M37 25 L35 18 L29 22Z"/>'),
}


def drawing(ink, ground, motif):
    holes = ''.join(f'<circle cx="{x}" cy="{y}" r="1.9"/>' for x in np.linspace(0, WIDTH, 11) for y in (0, HEIGHT))
    holes += ''.join(f'<circle cx="{x}" cy="{y}" r="1.9"/>' for y in np.linspace(0, HEIGHT, 13)[1:-1] for x in (0, WIDTH))
    return f'''<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH * SCALE}" height="{HEIGHT * SCALE}" viewBox="0 0 {WIDTH} {HEIGHT}">
<mask id="teeth"><rect width="{WIDTH}" height="{HEIGHT}" fill="#fff"/><g fill="#000">{holes}</g></mask>
<linearGradient id="light" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#fff0cf" stop-opacity=".34"/><stop offset="1" stop-color="#2a1408" stop-opacity=".34"/></linearGradient>
<g mask="url(#teeth)"><rect width="{WIDTH}" height="{HEIGHT}" fill="#e6d3ae"/><rect x="4.5" y="4.5" width="{WIDTH - 9}" height="{HEIGHT - 9}" fill="{ink}"/>
<rect x="6.3" y="6.3" width="{WIDTH - 12.6}" height="{HEIGHT - 22}" fill="{ground}"/><g transform="translate(7,8)" fill="{ink}" stroke="{ink}" stroke-width="0">{motif}</g>
<text x="{WIDTH / 2}" y="56.5" font-size="7.4" {SERIF} fill="{ground}">PETREL 1d</text>
<g fill="none" stroke="#241c18" stroke-opacity=".5" stroke-width="1.3"><path d="M34 -4 q-4 22 26 26 M40 -6 q-2 16 20 20 M46 -8 q0 12 16 15"/></g>
<rect width="{WIDTH}" height="{HEIGHT}" fill="url(#light)"/></g></svg>'''


def main():
    for number, (ink, ground, angle, motif) in PICTURES.items():
        png = subprocess.run(['rsvg-convert'], input=drawing(ink, ground, motif).encode(), stdout=subprocess.PIPE, check=True).stdout
        stamp = Image.open(io.BytesIO(png)).convert('RGBA').rotate(angle, Image.BICUBIC, expand=True)
        stamp = stamp.resize((round(stamp.width / SCALE), round(stamp.height / SCALE)), Image.LANCZOS)
        alone = Image.new('RGBA', (stamp.width + 8, stamp.height + 8))
        alone.paste(stamp, (3, 3))
        shadow = Image.new('RGBA', alone.size, (18, 10, 8, 0))     # close to the paper: what is drawn can be hit
        shade = Image.new('L', alone.size)
        shade.paste(stamp.getchannel('A'), (5, 5))
        shadow.putalpha(shade.filter(ImageFilter.GaussianBlur(1.2)).point(lambda v: v * .6 if v > 24 else 0))
        shadow.alpha_composite(alone)
        x0, y0, x1, y1 = shadow.getchannel('A').getbbox()
        x1, y1 = x1 + (x1 - x0) % 2, y1 + (y1 - y0) % 2             # even sizes keep the centre on a pixel corner
        path = f'../data/common/postage_stamp-m{number}.png'
        shadow.crop((x0, y0, x1, y1)).save(path)
        subprocess.check_call(['optipng', '-quiet', '-o2', path])


main()
