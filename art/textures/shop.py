#!/usr/bin/python3
"""Image maps of the curiosity shop: the street of Bell Haven in the late sun, wallpaper, rug, price tags, the automaton's sign, a fan, a drum dial."""
import random

from PIL import ImageFilter

from paint import *


def street(w=1500, h=900):
    """House fronts on the far side of a sunlit lane, the harbour at its end."""
    c, _ = seascape('s', w, h, 44, (.62, .66, .72), (1.0, .86, .58), (.60, .56, .46), (.30, .36, .36), .62, .40, .60, (1, .85, .5))
    im = paint(c, 'shop_street')
    d, r, x = ImageDraw.Draw(im), random.Random(12), -20
    while x < w + 20:
        wide, top = r.randint(120, 200), r.randint(130, 330)
        if 820 < x + wide / 2 < 1010:       # the gap in which the water shows
            x += 190
            continue
        wall = r.choice([(226, 178, 110), (214, 148, 96), (238, 204, 150), (186, 128, 106), (204, 180, 150), (170, 150, 140)])
        d.rectangle((x, top, x + wide, 690), fill=wall)
        for k in range(0, wide, 3):           # the light falls along the street: fronts darken to the right
            f = 1.06 - .22 * k / wide
            d.line((x + k, top, x + k, 690), fill=tuple(min(255, int(v * f)) for v in wall), width=3)
        roof = tuple(int(v * .46) for v in r.choice([(190, 96, 70), (120, 110, 130), (150, 90, 80)]))
        d.polygon([(x - 10, top), (x + wide / 2, top - r.randint(70, 120)), (x + wide + 10, top)], fill=roof)
        d.rectangle((x + wide * .2, top - 70, x + wide * .2 + 22, top - 20), fill=tuple(int(v * .8) for v in roof))
        for yy in range(top + 34, 520, 92):
            for k in range(3):
                xx = x + wide * (.16 + .27 * k)
                d.rectangle((xx - 3, yy - 3, xx + wide * .15 + 3, yy + 55), fill=(246, 232, 200))
                d.rectangle((xx, yy, xx + wide * .15, yy + 52), fill=r.choice([(70, 92, 104), (96, 112, 110), (255, 220, 140), (60, 76, 90)]))
                d.line((xx, yy + 26, xx + wide * .15, yy + 26), fill=(246, 232, 200), width=3)
                d.line((xx + wide * .075, yy, xx + wide * .075, yy + 52), fill=(246, 232, 200), width=3)
        a = r.choice([(96, 60, 116), (40, 110, 110), (200, 130, 50), (150, 60, 60)])
        for k in range(8):                    # an awning over each shop front
            x0, x1 = x + 8 + k * (wide - 16) / 8, x + 8 + (k + 1) * (wide - 16) / 8
            d.polygon([(x0 + (x + wide / 2 - x0) * .08, 548), (x1 + (x + wide / 2 - x1) * .08, 548), (x1, 598), (x0, 598)], fill=a if k % 2 else (244, 228, 196))
        d.rectangle((x + 18, 598, x + wide * .56, 680), fill=(74, 70, 66))
        d.rectangle((x + wide * .66, 600, x + wide * .88, 690), fill=tuple(int(v * .7) for v in a))
        x += wide + r.randint(0, 8)
    d.rectangle((0, 690, w, h), fill=(196, 168, 128))
    for row in range(14):
        yy = 690 + row * row * 1.15
        for k in range(46):
            xx = k * 36 + (row % 2) * 18
            g = r.uniform(.82, 1.12)
            d.ellipse((xx, yy, xx + 33, yy + 10 + row), fill=tuple(int(v * g) for v in (206, 178, 136)))
    for lamp in (330, 1120):
        d.rectangle((lamp - 5, 400, lamp + 5, 720), fill=(52, 50, 54))
        d.polygon([(lamp - 20, 340), (lamp + 20, 340), (lamp + 13, 402), (lamp - 13, 402)], fill=(120, 124, 118))
        d.polygon([(lamp - 24, 340), (lamp, 316), (lamp + 24, 340)], fill=(52, 50, 54))
    for px, col, hat in ((520, (88, 62, 104), 1), (590, (60, 90, 96), 0), (1240, (120, 72, 50), 1)):
        d.ellipse((px - 11, 560, px + 11, 586), fill=(224, 176, 140))
        d.polygon([(px - 16, 586), (px + 16, 586), (px + 24, 716), (px - 24, 716)], fill=col)
        if hat:
            d.rectangle((px - 13, 544, px + 13, 564), fill=(44, 40, 44))
            d.rectangle((px - 20, 562, px + 20, 567), fill=(44, 40, 44))
    im = im.filter(ImageFilter.GaussianBlur(2.6))
    a = np.asarray(im).astype(float) / 255
    a = a * np.array((1.12, 1.0, .82)) + .06 * np.array((1, .8, .4))
    Image.fromarray((np.clip(a, 0, 1) * 255).astype('uint8')).save(OUT + 'shop_street.png')


def wallpaper():
    leaf = ''.join(f'<path d="M0 0 C {s * 26} -14 {s * 30} -46 0 -74 C {s * 10} -44 {s * 8} -20 0 0" fill="#3c8a80" opacity=".75" transform="rotate({a})"/>' for s in (-1, 1) for a in (0, 62, -62, 180))
    one = f'{leaf}<circle r="9" fill="#b98f3e"/><path d="M-30 78 Q0 58 30 78" stroke="#b98f3e" stroke-width="4" fill="none" opacity=".7"/>'
    svg('shop_wall', 256, 256, f'<rect width="256" height="256" fill="#1d5a58"/><rect x="122" width="12" height="256" fill="#22645f" opacity=".6"/><g transform="translate(64 74) scale(.9)">{one}</g><g transform="translate(192 202) scale(.9)">{one}</g>'
        '<g transform="translate(192 74)"><circle r="4" fill="#b98f3e" opacity=".6"/></g><g transform="translate(64 202)"><circle r="4" fill="#b98f3e" opacity=".6"/></g>')


def rug():
    body = '<rect width="900" height="600" fill="#2d1c44"/><rect x="22" y="22" width="856" height="556" fill="none" stroke="#c9943a" stroke-width="10"/><rect x="44" y="44" width="812" height="512" fill="none" stroke="#1f6f70" stroke-width="26"/><rect x="70" y="70" width="760" height="460" fill="#57306e"/>'
    for k in range(27):
        for yy in (57, 543):
            body += f'<path d="M{64 + k * 29.7} {yy - 9} l9 9 l-9 9 l-9 -9z" fill="#e3bd6a"/>'
    for k in range(16):
        for xx in (57, 843):
            body += f'<path d="M{xx} {78 + k * 29.7 - 9} l9 9 l-9 9 l-9 -9z" fill="#e3bd6a"/>'
    for i in range(13):
        for j in range(8):
            x, y = 100 + i * 58 + (j % 2) * 29, 98 + j * 58
            if ((x - 450) / 250) ** 2 + ((y - 300) / 150) ** 2 > 1.1 and x < 815:
                body += f'<g transform="translate({x} {y})"><circle r="10" fill="#2f8480"/><circle r="5" fill="#e3bd6a"/></g>'
    for r_, col in ((1, '#c9943a'), (.93, '#1b5658'), (.74, '#e0b45c'), (.68, '#3b2154'), (.40, '#c9943a'), (.34, '#2c7d7a'), (.14, '#efd28a')):
        points = ' '.join(f'{450 + 250 * r_ * (1 + .10 * math.cos(8 * t)) * math.cos(t):.1f},{300 + 165 * r_ * (1 + .10 * math.cos(8 * t)) * math.sin(t):.1f}' for t in (k * math.pi / 60 for k in range(120)))
        body += f'<polygon points="{points}" fill="{col}"/>'
    svg('shop_rug', 900, 600, body)
    im = Image.open(OUT + 'shop_rug.png').convert('RGB')
    a = np.asarray(im).astype(float) * (1 + .22 * fbm(900, 600, 14, 5, 7, .6)[..., None]) * (1 + .10 * np.random.default_rng(2).standard_normal((600, 900, 1)))
    Image.fromarray(np.clip(a, 0, 255).astype('uint8')).save(OUT + 'shop_rug.png')


def cards():
    for k, (name, price) in enumerate((('Genuine', '£ 40'), ('From a tower', '£ 12'), ('As new', '£ 25'), ('Bright!', '£ 9'), ('A bargain', '£ 3'))):
        svg(f'shop_tag{k}', 300, 200, f'<path d="M40 0 H300 V200 H40 L0 150 V50z" fill="#f4e6bc"/><circle cx="34" cy="100" r="13" fill="#6d5533"/><path d="M48 10 H290 V190 H48" stroke="#7a3a80" stroke-width="6" fill="none"/>'
            + T(name, 172, 76, 46, 'EB Garamond', '#3a2450', 'font-style="italic"') + T(price, 172, 158, 86, 'Old Standard TT', '#a02c1c', 'font-weight="bold"'))
    svg('shop_oracle', 800, 200, '<rect width="800" height="200" fill="#3c2058"/><rect x="12" y="12" width="776" height="176" fill="none" stroke="#e6b956" stroke-width="8"/>'
        + T('ASK THE MARINER', 400, 98, 64, 'Old Standard TT', '#f4cf74', 'font-weight="bold"') + T('he sees every lamp · one penny', 400, 160, 54, 'EB Garamond', '#f1dfb0', 'font-style="italic"'))
    svg('shop_lamps', 900, 220, '<rect width="900" height="220" fill="#123f40"/><rect x="12" y="12" width="876" height="196" fill="none" stroke="#e6b956" stroke-width="8"/>'
        + T('LAMPS', 450, 118, 110, 'Old Standard TT', '#f4cf74', 'font-weight="bold" letter-spacing="16"') + T('bought & sold · no questions', 450, 184, 54, 'EB Garamond', '#f1dfb0', 'font-style="italic"').replace('&', '&amp;'))
    for k, text in enumerate(('SOLD', 'Do not touch', 'Lucky!')):
        svg(f'shop_card{k}', 300, 150, '<rect width="300" height="150" fill="#efe0b4"/><rect x="9" y="9" width="282" height="132" fill="none" stroke="#5a2d72" stroke-width="6"/>' + T(text, 150, 92, 40 if k else 84, 'Old Standard TT', '#7d2218', 'font-weight="bold"'))


def fan():
    body = '<rect width="600" height="200" fill="#6b2f7e"/><rect width="600" height="22" fill="#e8bd5c"/><rect y="172" width="600" height="28" fill="#e8bd5c"/><path d="M0 130 Q80 70 160 120 T330 100 T480 120 T600 70 V172 H0z" fill="#45206a"/><path d="M0 150 Q120 110 240 150 T470 140 T600 120 V172 H0z" fill="#1f7f80"/><circle cx="300" cy="78" r="38" fill="#f6d27a"/>'
    for x, y in ((70, 60), (150, 50), (440, 60), (520, 44)):
        body += f'<g transform="translate({x} {y})">' + ''.join(f'<ellipse cx="0" cy="-17" rx="9" ry="16" fill="#f1a0b4" transform="rotate({a})"/>' for a in range(0, 360, 72)) + '<circle r="8" fill="#ffe08a"/></g>'
    svg('shop_fan', 600, 200, body)


street()
wallpaper()
rug()
cards()
fan()
