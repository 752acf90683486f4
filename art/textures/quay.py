#!/usr/bin/python3
"""Image maps of the quay: the evening over the bay with its headland and dark lighthouse, the signs, the price cards."""
import random

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

from paint import OUT, fbm, svg


def mix(a, b, t):
    t = np.asarray(t)[..., None]
    return np.asarray(a) * (1 - t) + np.asarray(b) * t


def ramp(stops, t):
    xs = [s[0] for s in stops]
    return np.stack([np.interp(t, xs, [s[1][c] for s in stops]) for c in range(3)], -1)


def evening(width=2200, height=760):
    """Covers x -650..650 and y -24..425 of the scene's far plane; the sea's horizon is at y=0."""
    px = 1300 / width
    y, x = np.mgrid[0:height, 0:width]
    wy = 425 - y * (449 / height)
    elevation = np.clip(wy / 230, 0, 1.6)
    sky = ramp([(0, (.99, .70, .44)), (.10, (.95, .60, .44)), (.28, (.68, .47, .52)), (.52, (.34, .38, .56)), (.85, (.17, .25, .45)), (1.6, (.08, .13, .28))], elevation)
    glow = np.exp(-(((x * px - 650) - 120) / 330) ** 2) * np.exp(-elevation / .45)
    sky = sky * (.74 + .42 * glow[..., None]) + glow[..., None] * np.array((.20, .10, .02))
    clouds = fbm(width, height, 6, 7, 41, .56, 3.4)
    cover = np.clip((clouds + .08) * 2.2, 0, 1) * np.clip(1.2 - elevation * .6, .25, 1) * np.clip(elevation * 6, 0, 1)
    under = np.clip((np.roll(clouds, -7, 0) - clouds) * 10 + .45, 0, 1)
    tint = mix((.24, .27, .40), (1.0, .62, .46), under * np.clip(1.15 - elevation, 0, 1))
    sky = sky * (1 - cover[..., None] * .72) + tint * cover[..., None] * .72
    stars = np.random.default_rng(3).random((height, width))
    sky += ((stars > .9996) & (elevation > .75) & (cover < .2))[..., None] * .5
    image = sky
    xs = np.arange(width) * px - 650
    for seed, base, size, colour, haze in ((5, 26, 34, (.36, .38, .50), .55), (9, 15, 26, (.22, .26, .37), .35), (14, 6, 20, (.12, .16, .24), .16)):
        ridge = fbm(width, 8, 7, 6, seed, .5)[4] * size * 1.5 + base
        if seed == 14:
            ridge = ridge * np.clip(.30 + np.abs(xs - 60) / 330, .3, 1) + 34 * np.exp(-((xs - 95) / 52) ** 4)
        land = wy < ridge[None, :]
        shade = np.array(colour)[None, None] * (.86 + .5 * fbm(width, height, 30, 4, seed + 1, .6, 1.0))[..., None]
        lit = shade + np.array((.55, .34, .22)) * haze * np.exp(-np.clip(wy, 0, 200) / 26)[..., None] * .5
        image = np.where(land[..., None], lit, image)
    picture = Image.fromarray((np.clip(image, 0, 1) * 255).astype('uint8'))
    draw = ImageDraw.Draw(picture)
    to = lambda a, b: ((a + 650) / px, (425 - b) * height / 449)
    chance = random.Random(8)
    for _ in range(70):  # the town along the shore: small houses, few of them with a light
        a = chance.choice((chance.uniform(-140, 40), chance.uniform(170, 520)))
        b = chance.uniform(0, 10)
        w, h = chance.uniform(7, 12), chance.uniform(6, 11)
        grey = chance.uniform(.8, 1.25)
        wall = tuple(int(v * grey) for v in chance.choice(((86, 84, 96), (104, 92, 92), (74, 80, 98))))
        draw.polygon([to(a, b), to(a, b + h), to(a + w / 2, b + h * 1.55), to(a + w, b + h), to(a + w, b)], fill=wall)
        draw.polygon([to(a - .8, b + h), to(a + w / 2, b + h * 1.6), to(a + w + .8, b + h)], fill=(46, 42, 54))
        if chance.random() < .45:
            draw.rectangle([*to(a + w * .35, b + h * .75), *to(a + w * .62, b + h * .38)], fill=(255, 206, 120))
    tower = 92  # the dark lighthouse on its headland
    draw.polygon([to(tower - 8, 33), to(tower - 4.6, 92), to(tower + 4.6, 92), to(tower + 8, 33)], fill=(206, 198, 196))
    draw.polygon([to(tower + 2.0, 33), to(tower + 1.6, 92), to(tower + 4.6, 92), to(tower + 8, 33)], fill=(150, 146, 160))
    for low, high in ((48, 60), (74, 84)):
        width_at = lambda b: 8 - 3.4 * (b - 33) / 59
        draw.polygon([to(tower - width_at(low), low), to(tower - width_at(high), high), to(tower + width_at(high), high), to(tower + width_at(low), low)], fill=(150, 58, 52))
    draw.rectangle([*to(tower - 7, 95), *to(tower + 7, 92)], fill=(40, 40, 50))
    draw.rectangle([*to(tower - 3.8, 106), *to(tower + 3.8, 95)], fill=(66, 76, 98))
    for off in (-3.8, -1.2, 1.2, 3.8):
        draw.line([to(tower + off, 106), to(tower + off, 95)], fill=(30, 30, 38), width=2)
    draw.polygon([to(tower - 5, 106), to(tower, 115), to(tower + 5, 106)], fill=(92, 44, 44))
    draw.rectangle([*to(tower + 10, 47), *to(tower + 30, 34)], fill=(178, 170, 170))
    draw.polygon([to(tower + 9, 47), to(tower + 14, 54), to(tower + 27, 54), to(tower + 31, 47)], fill=(96, 60, 58))
    picture = picture.filter(ImageFilter.GaussianBlur(.7))
    picture.save(f'{OUT}/evening.png')


def text(string, x, y, size, colour, family='Old Standard TT', more=''):
    return f'<text x="{x}" y="{y}" font-family="{family}" font-size="{size}" text-anchor="middle" fill="{colour}" {more}>{string}</text>'


def signs():
    gold, green = '#e8c878', '#1d3a34'
    body = f'<rect width="1024" height="256" fill="{green}"/><rect x="18" y="18" width="988" height="220" fill="none" stroke="{gold}" stroke-width="6"/><rect x="30" y="30" width="964" height="196" fill="none" stroke="{gold}" stroke-width="2"/>'
    body += text('HARBOUR  MAIL', 512, 138, 112, gold, more='font-weight="bold"') + text('Letters · Parcels · Passages', 512, 204, 54, gold, 'EB Garamond', 'font-style="italic"')
    svg('sign_mail', 1024, 256, body)
    body = '<rect width="640" height="256" fill="#e9ddc0"/><rect x="12" y="12" width="616" height="232" fill="none" stroke="#234a6b" stroke-width="8"/>'
    body += text('FRESH FISH', 320, 128, 88, '#234a6b', more='font-weight="bold"') + text('landed this morning', 320, 200, 58, '#8c2a1c', 'EB Garamond', 'font-style="italic"')
    svg('sign_fish', 640, 256, body)
    for i, (name, price) in enumerate((('Herring', '2d'), ('Plaice', '4d'), ('Cod', '6d'))):
        svg(f'price{i}', 256, 180, f'<rect width="256" height="180" fill="#f2ead2"/>' + text(name, 128, 74, 64, '#2b2118', 'EB Garamond', 'font-style="italic"') + text(price, 128, 152, 84, '#8c2a1c', more='font-weight="bold"'))


evening()
signs()
