#!/usr/bin/python3
"""Image maps of the galley: blue-and-white tiles, the view through its portholes, cook's papers, labels of the larder."""
import random

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

from paint import OUT, T, svg

BLUE = '#2c5596'


def motif(kind):
    """One tile of 128 x 128 with its middle in (0, 0)."""
    corner = ''.join(f'<g transform="rotate({a})"><path d="M-56,-56 q16,2 17,17 q-15,-1 -17,-17" fill="{BLUE}"/><circle cx="-36" cy="-36" r="3.4" fill="{BLUE}"/></g>' for a in (0, 90, 180, 270))
    if kind == 0:
        inner = f'<path d="M-26,12 q26,14 52,0 l-7,13 h-38 z" fill="{BLUE}"/><path d="M-2,9 v-39 l-19,33 z M4,9 v-34 l17,29 z" fill="{BLUE}" opacity=".8"/><path d="M-34,31 q8,-6 17,0 t17,0 t17,0 t17,0" fill="none" stroke="{BLUE}" stroke-width="2.6"/>'
    elif kind == 1:
        inner = ''.join(f'<ellipse cx="0" cy="-17" rx="8" ry="14" fill="{BLUE}" opacity=".85" transform="rotate({a})"/>' for a in range(0, 360, 60)) + f'<circle r="7" fill="#f6f3ea"/><circle r="4" fill="{BLUE}"/>'
    elif kind == 2:
        inner = f'<path d="M-30,0 q18,-19 42,-3 l16,-11 q-5,14 0,28 l-16,-11 q-24,16 -42,-3" fill="{BLUE}"/><circle cx="-17" cy="-3" r="2.6" fill="#f6f3ea"/><path d="M-2,-9 q6,9 0,18" stroke="#f6f3ea" stroke-width="2" fill="none"/>'
    else:
        inner = f'<path d="M0,-30 v50 M-13,-18 h26 M-25,4 q3,24 25,20 q22,4 25,-20" fill="none" stroke="{BLUE}" stroke-width="6" stroke-linecap="round"/><circle cy="-34" r="6" fill="none" stroke="{BLUE}" stroke-width="4"/>'
    return corner + inner


def tiles():
    """Eight by eight tiles that repeat; every other one has a picture.  A second map holds their height."""
    chance, size = random.Random(5), 1024
    body = f'<rect width="{size}" height="{size}" fill="#b9b8b0"/>'
    bump = f'<rect width="{size}" height="{size}" fill="#000"/>'
    for i in range(8):
        for j in range(8):
            x, y = i * 128, j * 128
            shade = 240 + chance.randint(-6, 5)
            body += f'<rect x="{x + 2.5}" y="{y + 2.5}" width="123" height="123" rx="4" fill="rgb({shade},{shade - 1},{shade - 7})"/>'
            bump += f'<rect x="{x + 3}" y="{y + 3}" width="122" height="122" rx="6" fill="#fff"/>'
            if (i + j) % 2:
                body += f'<g transform="translate({x + 64} {y + 64})">' + motif((i * 3 + j // 2 + chance.randint(0, 1)) % 4) + '</g>'
    svg('galley_tiles', size, size, body)
    svg('galley_tiles_bump', size, size, bump)
    Image.open(f'{OUT}/galley_tiles_bump.png').convert('L').filter(ImageFilter.GaussianBlur(2)).save(f'{OUT}/galley_tiles_bump.png')


def morning():
    """Sea and sky an hour after sunrise: the sun in the one porthole, a headland with its light in the other."""
    width, height, line, sun = 2048, 1024, 600, (1118, 520)
    y, x = np.mgrid[0:height, 0:width]
    up = np.clip((line - y) / line, 0, 1)[..., None]
    low = np.exp(-(up * 5) ** 2)
    sky = np.array([.42, .68, .93]) * (1 - low) + np.array([1.0, .90, .72]) * low
    far = np.hypot(x - sun[0], (y - sun[1]) * .9)[..., None]
    glow = np.clip(.9 * np.exp(-(far / 90) ** 2) + .35 * np.exp(-(far / 420) ** 2), 0, 1)
    sky = sky * (1 - glow) + np.array([1, .94, .76]) * glow
    sky = np.where(far < 30, 1.0, sky)
    noise = np.random.RandomState(4)
    down = np.clip((y - line) / (height - line), 0, 1)
    ripple = sum(np.sin(np.clip(y - line + 1, 0, None) ** .72 * 3.4 * f + np.sin(x / (52. / f) + noise.rand() * 6) * 1.6 + x * .006 * f) for f in (1, 1.7, 2.6)) / 3
    sea = np.array([.66, .82, .86]) * (1 - down[..., None]) ** 2 + np.array([.12, .40, .58]) * (1 - (1 - down[..., None]) ** 2)
    sea = sea + ripple[..., None] * .08
    glint = np.exp(-((x - sun[0]) / (70. + 150 * down)) ** 2) * np.clip(ripple * 2.4 + .25, 0, 1)
    sea = sea + glint[..., None] * np.array([1, .90, .64]) * .9
    picture = np.where((y < line)[..., None], sky, sea)
    for k in range(22):          # long thin clouds
        cx, cy, w, h = 800 + noise.rand() * 900, 330 + noise.rand() * 200, 60 + noise.rand() * 130, 5 + noise.rand() * 9
        cloud = np.exp(-(((x - cx) / w) ** 2 + ((y - cy) / h) ** 2))[..., None] * (y < line - 12)[..., None]
        picture = picture * (1 - .6 * cloud) + np.array([1, .96, .90]) * .6 * cloud
    image = Image.fromarray((np.clip(picture, 0, 1) * 255).astype('uint8')).filter(ImageFilter.GaussianBlur(1.2))
    fine = 3
    land = Image.new('RGBA', (500 * fine, 300 * fine))
    draw = ImageDraw.Draw(land)
    at = lambda *points: [(px * fine, py * fine) for px, py in points]
    draw.polygon(at((60, 262), (120, 240), (170, 205), (215, 190), (270, 186), (330, 200), (500, 214), (500, 262)), fill=(96, 124, 110))
    draw.polygon(at((60, 262), (140, 236), (190, 214), (230, 224), (260, 212), (300, 230), (360, 222), (420, 244), (500, 236), (500, 262)), fill=(134, 132, 118))
    draw.polygon(at((226, 192), (234, 70), (262, 70), (270, 190)), fill=(248, 244, 234))
    for high, deep in ((166, 138), (112, 88)):
        draw.polygon(at((226 + (192 - high) * .066, high), (226 + (192 - deep) * .066, deep), (270 - (192 - deep) * .066, deep), (270 - (192 - high) * .066, high)), fill=(198, 58, 46))
    draw.rectangle(at((228, 64), (268, 71)), fill=(70, 70, 78))
    draw.rectangle(at((236, 42), (260, 64)), fill=(60, 70, 84))
    draw.polygon(at((230, 43), (248, 24), (266, 43)), fill=(170, 48, 40))
    draw.rectangle(at((284, 168), (330, 198)), fill=(242, 236, 222))
    draw.polygon(at((278, 170), (307, 148), (336, 170)), fill=(176, 84, 62))
    land = land.resize((350, 210), Image.LANCZOS).filter(ImageFilter.GaussianBlur(.8))
    land.putalpha(land.getchannel('A').point(lambda v: int(v * .92)))
    image.paste(land, (1345, line - 183), land)
    draw = ImageDraw.Draw(image)
    for gx, gy, r in ((1206, 470, 15), (1180, 500, 10), (1450, 400, 13)):
        draw.arc([gx - 2 * r, gy - r // 2, gx, gy + r], 190, 330, fill=(92, 104, 120), width=3)
        draw.arc([gx, gy - r // 2, gx + 2 * r, gy + r], 210, 350, fill=(92, 104, 120), width=3)
    image.save(f'{OUT}/galley_sea.png')


def papers():
    board = '<rect width="360" height="460" fill="#27302e"/><rect x="8" y="8" width="344" height="444" fill="none" stroke="#39443f" stroke-width="4"/>' + T('Supper', 180, 70, 58, 'EB Garamond', '#9aa49c', 'font-style="italic"') + '<line x1="96" y1="58" x2="262" y2="50" stroke="#f3f0e2" stroke-width="5"/>' + T('Breakfast', 180, 128, 58, 'EB Garamond', '#f3f0e2', 'font-style="italic"')
    for i, word in enumerate(('ham, new bread', 'butter, cheese', 'plum pudding')):
        board += T(word, 180, 204 + i * 64, 46, 'EB Garamond', '#e8e4d2', 'font-style="italic"')
    svg('galley_board', 360, 460, board + T('where is it all?', 180, 426, 38, 'EB Garamond', '#f0b8a0', 'font-style="italic"'))
    letter = '<rect width="400" height="520" fill="#f4ead0"/>' + T('Far Light', 200, 70, 46, 'EB Garamond', '#2a3a5c', 'font-style="italic"')
    for i in range(11):
        y, w = 120 + i * 32, 300 - (i * 53) % 90
        letter += f'<path d="M44,{y} ' + ' '.join(f'q5,{-9 if k % 2 else 9} 10,0' for k in range(w // 10)) + '" fill="none" stroke="#3a4566" stroke-width="2.6"/>'
    svg('galley_letter', 400, 520, letter + T('your aunt Bess', 250, 492, 36, 'EB Garamond', '#2a3a5c', 'font-style="italic"'))
    card = '<rect width="420" height="300" fill="#fbf5e2"/><line x1="20" y1="70" x2="400" y2="70" stroke="#c8503c" stroke-width="3"/>' + T('Gingerbread', 210, 56, 44, 'EB Garamond', '#7a1f18', 'font-style="italic"')
    for i, word in enumerate(('flour, treacle,', 'two eggs, ginger;', 'roll thin, and hide', 'from the mate')):
        card += f'<line x1="20" y1="{122 + i * 50}" x2="400" y2="{122 + i * 50}" stroke="#aac0d4" stroke-width="2"/>' + T(word, 210, 114 + i * 50, 38, 'EB Garamond', '#2a3a5c', 'font-style="italic"')
    svg('galley_recipe', 420, 300, card)


def larder():
    for name, word, ink, ground in (('flour', 'FLOUR', '#2c5596', '#f4f1e6'), ('sugar', 'SUGAR', '#2c5596', '#f4f1e6'), ('rice', 'RICE', '#2c5596', '#f4f1e6')):
        svg(f'galley_{name}', 400, 200, f'<rect width="400" height="200" fill="{ground}"/><rect x="12" y="12" width="376" height="176" fill="none" stroke="{ink}" stroke-width="8"/>' + T(word, 200, 130, 84, 'Old Standard TT', ink, 'font-weight="bold"'))
    for name, word, ink in (('jam', 'JAM', '#8c1c22'), ('honey', 'HONEY', '#7a4a10'), ('butter', 'BUTTER', '#2f5c34')):
        svg(f'galley_{name}', 300, 160, f'<rect width="300" height="160" rx="20" fill="#fbf6e6"/><rect x="9" y="9" width="282" height="142" rx="14" fill="none" stroke="{ink}" stroke-width="6"/>' + T(word, 150, 106, 70, 'Old Standard TT', ink, 'font-weight="bold"'))


if __name__ == '__main__':
    tiles()
    morning()
    papers()
    larder()
