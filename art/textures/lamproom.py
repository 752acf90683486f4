#!/usr/bin/python3
"""Image maps of the lamp room: the clearing gale over the sea by moonlight, the keeper's log and its plates."""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter
from scipy.ndimage import gaussian_filter, map_coordinates

from paint import OUT, T, fbm, svg


def mix(a, b, t):
    t = np.asarray(t)[..., None]
    return np.asarray(a) * (1 - t) + np.asarray(b) * t


def gale(width=2000, height=640):
    """Covers x -650..650 and y -216..200 of the far plane; the horizon is at y=13, the moon at -190, 128."""
    px = 1300 / width
    row, column = np.mgrid[0:height, 0:width]
    x, y = column * px - 650, 200 - row * px
    up = np.clip((y - 13) / 187, 0, 1)
    far = np.hypot((x + 190) * .8, (y - 128))
    sky = mix((.30, .42, .58), (.05, .10, .22), up ** .75) + np.exp(-(far / 210) ** 2)[..., None] * np.array((.20, .25, .28))
    big, torn = fbm(width, height, 5, 8, 4, .6, 3.2), fbm(width, height, 13, 6, 9, .62, 3.0)
    field = big + .45 * torn
    cover = np.clip((field + .10) * 2.6, 0, 1)
    soft = gaussian_filter(field, 2.2)
    toward = np.roll(np.roll(soft, 9, 1), 7, 0)          # the side that looks at the moon is the light one
    lit = np.clip((soft - toward) * 3.6 + .36, 0, 1)
    near = .32 + .95 * np.exp(-(far / 330) ** 1.5)
    body = mix((.07, .11, .20), (.86, .94, 1.0), np.clip(lit * near, 0, 1))
    edge = np.clip(1 - np.abs(cover - .35) / .33, 0, 1) * np.exp(-(far / 260) ** 2)
    sky = mix(sky, body, cover * .9) + edge[..., None] * np.array((.42, .48, .52))
    disc = np.clip((21 - far) / 1.6, 0, 1) * np.clip(1.25 - cover * .55, 0, 1)
    sky = mix(sky, (1, .99, .92), disc) + np.exp(-(far / 44) ** 2)[..., None] * .34
    stars = np.random.default_rng(3).random((height, width)) > .9994
    sky += (stars & (cover < .12) & (up > .2))[..., None] * .55

    down = np.clip(13 - y, .4, None)                      # the sea, drawn in its own plane: depth is one over the row
    depth = 1 / (down + 5)
    waves, caps = fbm(1400, 1400, 60, 5, 21, .6), fbm(1400, 1400, 34, 6, 33, .66)
    u, v = x * depth * 44 + 700, 44 * 1035 * depth     # as steep as the eye looks down on it
    sample = lambda f, s: map_coordinates(f, [(v * s) % 1390, (u * s) % 1390], order=1)
    swell = sample(waves, 1.0) + .6 * sample(waves, .37)
    sea = mix((.20, .31, .44), (.035, .085, .15), np.clip(down / 190, 0, 1) ** .6) * (1 + .62 * (swell * np.clip(down / 26, .25, 1))[..., None])
    path = np.exp(-((x + 190 - down * .10) / (26 + down * .55)) ** 2)
    sea += (np.clip(swell * 2.2 + .25, 0, 1) * path)[..., None] * np.array((.74, .84, .92))
    foam = np.clip((sample(caps, 2.6) - .24) * 5, 0, 1) * np.clip(down / 40, .1, 1)
    sea = mix(sea, (.74, .84, .92), foam * .62)
    reef = np.exp(-(((x - 360) / 150) ** 2 + ((y + 105 + .10 * (x - 360)) / 30) ** 2)) + .9 * np.exp(-(((x + 40) / 95) ** 2 + ((y + 150) / 22) ** 2)) \
        + .8 * np.exp(-(((x - 90) / 130) ** 2 + ((y + 60) / 13) ** 2))
    surge = fbm(width, height, 26, 6, 52, .62, 2.6)
    white = np.clip((reef + surge * 1.1 - .42) * 2.0, 0, 1) * np.clip(reef * 5, 0, 1)
    sea = mix(sea, mix((.46, .58, .70), (.95, .98, 1), np.clip(surge * 2 + .6, 0, 1)), white * .94)
    rock = np.clip((reef + fbm(width, height, 46, 5, 53, .6, 2.0) * .55 - .93) * 9, 0, 1)
    sea = mix(sea, np.array((.07, .09, .13)) * (1 + 2.2 * np.clip(fbm(width, height, 60, 4, 54, .6, 2.0), -.3, 1))[..., None], rock)
    image = np.where((y > 13)[..., None], sky, sea)
    image = mix(image, (.33, .45, .60), np.exp(-(np.abs(y - 13) / 7) ** 2) * .6)
    ridge = 13 + np.clip(fbm(width, 8, 6, 6, 12, .55)[4] * 22 + 9, 0, None) * np.clip((np.arange(width) * px - 650 - 120) / 190, 0, 1)
    image = np.where(((y < ridge[None, :]) & (y > 11))[..., None], np.array((.10, .15, .24)), image)
    picture = Image.fromarray((np.clip(image, 0, 1) * 255).astype('uint8'))
    draw = ImageDraw.Draw(picture)
    at = lambda a, b: ((a + 650) / px, (200 - b) / px)
    mx, my, s = 222, -14, 1.5                                # the Petrel lies off the isle and waits
    draw.polygon([at(mx - 24 * s, my + 5 * s), at(mx + 24 * s, my + 5 * s), at(mx + 28 * s, my + 9 * s), at(mx + 19 * s, my), at(mx - 21 * s, my)], fill=(16, 20, 30))
    draw.rectangle([*at(mx - 14 * s, my + 10 * s), *at(mx + 12 * s, my + 5 * s)], fill=(104, 116, 134))
    draw.rectangle([*at(mx - 3 * s, my + 18 * s), *at(mx + 3 * s, my + 10 * s)], fill=(92, 34, 30))
    for k in range(6):
        draw.rectangle([*at(mx + (-12 + k * 4) * s, my + 8.6 * s), *at(mx + (-10.2 + k * 4) * s, my + 6.6 * s)], fill=(255, 206, 120))
    for k in (-17, 16):
        draw.line([at(mx + k * s, my + 5 * s), at(mx + k * s, my + 25 * s)], fill=(20, 24, 34), width=2)
    draw.ellipse([*at(mx + 15 * s, my + 26 * s), *at(mx + 17 * s, my + 24 * s)], fill=(255, 220, 150))
    picture = picture.filter(ImageFilter.GaussianBlur(.6))
    picture.save(f'{OUT}/gale.png')


def paper(name, width, height, body, colour='#efe3c2'):
    svg(name, width, height, f'<rect width="{width}" height="{height}" fill="{colour}"/>' + body)


def log_book():
    hand = 'Rufscript'
    lines = ['Wind SW 9, backing', 'Sea very heavy', 'Panes washed, 11 p.m.', 'The great lamp dark', 'Mail boat sighted', 'Thirty letters gone', 'Glass rising since 4']
    body = ''
    for page in (0, 1):
        x = 20 + page * 400
        body += T(('March' if page == 0 else 'Tern Isle'), x + 180, 52, 34, 'Old Standard TT', '#5a2a1c')
        for k in range(11):
            body += f'<line x1="{x}" x2="{x + 360}" y1="{96 + k * 40}" y2="{96 + k * 40}" stroke="#9fb0bd" stroke-width="1.6"/>'
        body += f'<line x1="{x + 66}" x2="{x + 66}" y1="70" y2="510" stroke="#c07a6a" stroke-width="2"/>'
        for k in range(7 if page == 0 else 4):
            body += f'<text x="{x + 8}" y="{90 + k * 40}" font-family="{hand}" font-size="26" fill="#26304a">{k + 5 + page * 7}</text>'
            body += f'<text x="{x + 76}" y="{90 + k * 40}" font-family="{hand}" font-size="27" fill="#26304a">{lines[(k + page * 3) % 7]}</text>'
    body += '<rect x="396" y="0" width="8" height="540" fill="#b9a67c" opacity=".8"/>'
    paper('log_pages', 800, 540, body)


def plates():
    svg('plate_log', 400, 260, '<rect width="400" height="260" rx="16" fill="#1c3350"/><rect x="14" y="14" width="372" height="232" rx="8" fill="none" stroke="#e0bc60" stroke-width="5"/>'
        + T('LOG', 200, 122, 92, 'Old Standard TT', '#f0cc70') + T('of the Light', 200, 190, 46, 'Old Standard TT', '#f0cc70', 'font-style="italic"'))
    svg('plate_lens', 520, 200, '<rect width="520" height="200" fill="#e9dfc4"/><rect x="10" y="10" width="500" height="180" fill="none" stroke="#7c2a1c" stroke-width="6"/>'
        + T('TERN ISLE', 260, 92, 70, 'Old Standard TT', '#7c2a1c') + T('Glass. This side up.', 260, 156, 42, 'Old Standard TT', '#3a2a20', 'font-style="italic"'))
    svg('plate_rocket', 300, 300, '<rect width="300" height="300" fill="#b5261c"/><rect y="96" width="300" height="104" fill="#f0e6cc"/>' + T('STORM', 150, 170, 72, 'Old Standard TT', '#b5261c'))
    svg('baro_drum', 600, 300, '<rect width="600" height="300" fill="#f1ead6"/>'
        + ''.join(f'<line x1="0" x2="600" y1="{k * 30}" y2="{k * 30}" stroke="#c98f7c" stroke-width="2"/>' for k in range(11))
        + ''.join(f'<line y1="0" y2="300" x1="{k * 50}" x2="{k * 50}" stroke="#c98f7c" stroke-width="2"/>' for k in range(13))
        + '<path d="M0 90 C60 84 100 100 150 150 S230 262 290 258 S380 190 430 120 S540 60 600 54" fill="none" stroke="#2a2c6a" stroke-width="8"/>')
    svg('tides', 300, 400, '<rect width="300" height="400" fill="#efe6cc"/><rect x="10" y="10" width="280" height="380" fill="none" stroke="#27466a" stroke-width="4"/>'
        + T('TIDES', 150, 66, 48, 'Old Standard TT', '#27466a') + ''.join(T(f'{d}   {h}.{m:02d}   {h + 6}.{(m + 13) % 60:02d}', 150, 118 + k * 34, 27, 'Old Standard TT', '#33302a')
                                                                       for k, (d, h, m) in enumerate(((11, 1, 8), (12, 1, 56), (13, 2, 41), (14, 3, 27), (15, 4, 12), (16, 5, 1), (17, 5, 50), (18, 0, 36)))))


gale()
log_book()
plates()
