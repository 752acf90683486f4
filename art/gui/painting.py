"""The title's painting: the Petrel at dusk before a coast with one lit lamp.

Sky, sea and cliffs are computed, the ship and the towers are drawn; then the whole is painted again with brush strokes, broad ones
first, ever finer ones where they are needed, each with the marks of its bristles, and lit from the top left.
"""

import math
import sys

import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter, map_coordinates, sobel

import steamer
from kit import WORK, photo, raster

W, H, HORIZON = 1366, 768, 452
LAMP = (1132, 214)
RANDOM = np.random.default_rng(1887)
Y, X = np.mgrid[0:H, 0:W].astype(float)


def smooth(value, low, high):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def tile(size, steps, seed, fall=0.55):
    """Noise that repeats, from about -1 to 1."""
    random = np.random.default_rng(seed)
    total = np.zeros((size, size))
    gain = 1.0
    for step in steps:
        grid = random.standard_normal((step, step))
        where = np.arange(size) * step / size
        total += gain * map_coordinates(grid, np.meshgrid(where, where, indexing="ij"), order=3, mode="grid-wrap")
        gain *= fall
    return total / np.abs(total).max()


CLOUD = tile(1024, (4, 8, 16, 32, 64, 128, 256), 5)
WARP = tile(1024, (3, 6, 12, 24), 6)
WAVE = tile(1024, (16, 32, 64, 128, 256), 8, 0.62)


def sample(texture, u, v):
    size = texture.shape[0]
    return map_coordinates(texture, [np.mod(v * size, size), np.mod(u * size, size)], order=1, mode="grid-wrap")


def colours(value, stops):
    keys = [s[0] for s in stops]
    return np.dstack([np.interp(value, keys, [s[1][c] for s in stops]) for c in range(3)])


def rgb(text):
    return np.array([int(text[i:i + 2], 16) for i in (1, 3, 5)], float)


def mix(a, b, share):
    share = share[..., None] if isinstance(share, np.ndarray) else share
    return a * (1 - share) + b * share


def sky():
    """Deep blue overhead, the last of the sun low on the right of the middle, clouds lit from beneath."""
    high = (HORIZON - Y) / HORIZON
    sun = (X - 790) / W
    base = colours(high, [(0.0, rgb("#ffc27a")), (0.05, rgb("#f6a56a")), (0.14, rgb("#d98a78")), (0.28, rgb("#93808f")),
                          (0.46, rgb("#4f6d88")), (0.7, rgb("#2a4a68")), (1.0, rgb("#132a45"))])
    far = colours(high, [(0.0, rgb("#a98e92")), (0.1, rgb("#7f8198")), (0.3, rgb("#55708d")), (0.6, rgb("#27476a")), (1.0, rgb("#10233d"))])
    base = mix(base, far, smooth(np.abs(sun), 0.12, 0.62))
    glow = np.exp(-((X - 790) / 330) ** 2 - ((HORIZON - Y) / 120) ** 2)
    base = base + glow[..., None] * np.array([60, 34, 4])
    rise = np.maximum(high, 0.012)
    depth = 0.13 / (rise + 0.10)
    u, v = (X - 700) / W * depth * 1.15, depth * 0.62
    bend = 0.06 * sample(WARP, u * 0.9, v * 1.1)
    cover = sample(CLOUD, u * 0.62 + 0.27 + bend, v * 1.9 + bend) + 0.35 * sample(CLOUD, u * 2.3 + 0.1, v * 5.1)
    below = sample(CLOUD, u * 0.62 + 0.27 + bend, v * 1.9 + bend + 0.030) + 0.35 * sample(CLOUD, u * 2.3 + 0.1, v * 5.1 + 0.05)
    body = smooth(cover, -0.06, 0.36) * smooth(high, 0.0, 0.07)
    lit = smooth(cover - below, -0.10, 0.30)
    near = np.exp(-(sun / 0.36) ** 2) * np.exp(-high / 1.3)
    dark = colours(high, [(0, rgb("#8f6f78")), (0.2, rgb("#5c5f78")), (0.5, rgb("#31476a")), (1, rgb("#14263f"))])
    fire = colours(high, [(0, rgb("#ffd08a")), (0.2, rgb("#ff9f6a")), (0.45, rgb("#d98483")), (0.8, rgb("#6f7ba0"))])
    cloud = mix(dark, fire, np.clip(lit * (0.18 + 1.0 * near), 0, 1))
    base = mix(base, cloud, body * 0.86)
    return base


def stars(image):
    """Dots of white put on last, where the sky is dark enough to show them."""
    points = np.zeros((H, W))
    for _ in range(120):
        x, y = RANDOM.uniform(8, W - 8), RANDOM.uniform(6, 250)
        points[int(y), int(x)] = RANDOM.uniform(0.15, 1) ** 1.6 * float(smooth(250 - y, 0, 200))
    dark = 1 - smooth(gaussian_filter(image.mean(axis=2), 6), 70, 120)
    return image + (gaussian_filter(points, 0.8) * 4.2 * dark)[..., None] * np.array([200, 214, 255])


def ridge(points, roughness, seed):
    """A skyline through points, broken as rock is."""
    xs, ys = zip(*points)
    line = np.interp(np.arange(W), xs, ys)
    line = gaussian_filter(line, 7)
    rough = sample(CLOUD, np.arange(W) / 420.0 + seed, np.full(W, seed)) + 0.5 * sample(CLOUD, np.arange(W) / 90.0, np.full(W, seed + 0.4))
    return line + roughness * rough


def cliff(image, points, near, lighter, seed, haze):
    """Rock between a skyline and the sea: strata, gullies, light from the sky on what leans back, mist at its foot."""
    top = ridge(points, 9 * near + 2, seed)
    inside = smooth(Y - top[None, :], -0.8, 0.8) * (Y < HORIZON + 10 * near)
    depth = Y - top[None, :]
    bend = 26 * sample(WARP, X / 260, Y / 200)
    gully = 1 - np.abs(sample(CLOUD, (X + bend) / 300 + seed, (Y + 0.4 * X) / 1500)) * 2.4
    facet = sample(CLOUD, (X + bend) / 210 + seed, (Y - 0.35 * X) / 260 + seed)
    facet_left = sample(CLOUD, (X - 3 + bend) / 210 + seed, (Y - 3 - 0.35 * X) / 260 + seed)
    strata = np.sin((Y + 0.16 * X + 0.5 * bend) / 4.6) * 0.5 + 0.3 * np.sin((Y + 0.16 * X + bend) / 2.1)
    light = 0.40 - 0.30 * smooth(gully, 0.55, 1.0) + 4.5 * (facet - facet_left) + 0.28 * facet + 0.09 * strata
    light = light * (1 - 0.35 * smooth(depth, 10, 110 * near + 20))
    rock = mix(rgb("#121826") + np.zeros((H, W, 3)), lighter, np.clip(light, 0, 1))
    turf = np.exp(-np.maximum(depth, 0) / (5 + 7 * near)) * near
    rock = mix(rock, rgb("#2a3838") + (14 * facet)[..., None], turf * 0.8)
    edge = np.exp(-np.abs(depth) / 1.6)
    rock = rock + edge[..., None] * np.array([74, 46, 28]) * (0.35 + 0.65 * np.exp(-((X - 790) / 380) ** 2))[..., None]
    foot = np.exp(-(HORIZON + 8 * near - Y) / (11 + 9 * near))
    mist = mix(rgb("#9a8a98"), rgb("#e3a583"), np.exp(-((X - 800) / 330) ** 2))
    rock = mix(rock, mist, np.clip(foot * 0.62 + haze, 0, 1))
    return mix(image, rock, inside), inside


def lighthouse():
    """The near tower, lit; 160 x 260, its lamp at (80, 47)."""
    b = '<linearGradient id="tower" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#c9a08c"/><stop offset=".250" stop-color="#a79aa2"/><stop offset=".650" stop-color="#5d6a80"/><stop offset="1" stop-color="#2a3850"/></linearGradient>'
    b += '<linearGradient id="red" x1="0" x2="1" y1="0" y2="0"><stop offset="0" stop-color="#a84a38"/><stop offset=".400" stop-color="#7c3531"/><stop offset="1" stop-color="#2f1a24"/></linearGradient>'
    body = '<path d="M58 230L66 70H94L102 230Z" fill="url(#tower)"/>'
    for y0, y1 in ((96, 124), (152, 180), (206, 230)):
        body += f'<path d="M{66 - (y0 - 70) * .05:.1f} {y0}L{66 - (y1 - 70) * .05:.1f} {y1}H{94 + (y1 - 70) * .05:.1f}L{94 + (y0 - 70) * .05:.1f} {y0}Z" fill="url(#red)"/>'
    for y in (112, 140, 168, 196):
        body += f'<rect x="77" y="{y}" width="6" height="9" rx="3" fill="{"#ffd27a" if y in (140, 196) else "#1a2233"}"/>'
    body += '<path d="M56 70H104L100 63H60Z" fill="#3a4152"/><path d="M56 63V54M64 63V54M72 63V54M88 63V54M96 63V54M104 63V54M55 54H105" stroke="#222a3a" stroke-width="1.500" fill="none"/>'
    body += '<rect x="66" y="36" width="28" height="27" fill="#ffe9a6"/><path d="M66 36V63M75 36V63M85 36V63M94 36V63M66 49H94" stroke="#3a2f2a" stroke-width="1.400" fill="none"/><path d="M62 36H98L80 18Z" fill="#5c2a26"/><path d="M62 36L80 18L84 36Z" fill="#8e4436"/><circle cx="80" cy="16" r="3" fill="#2a2430"/><path d="M80 14V4" stroke="#2a2430" stroke-width="1.400"/>'
    # the keeper's house against its foot
    body += '<path d="M100 231V204H150V231Z" fill="#4a566c"/><path d="M100 231V204H112V231Z" fill="#77737f"/><path d="M96 206L112 186H146L156 206Z" fill="#2a2c3a"/><path d="M96 206L112 186H118L106 206Z" fill="#5a4440"/><rect x="136" y="178" width="7" height="13" fill="#3a2c2c"/><rect x="120" y="212" width="8" height="9" fill="#ffca70"/><rect x="137" y="212" width="7" height="9" fill="#ffca70"/>'
    return body, b


def dark_tower():
    """One of the lamps that went out; 40 x 90."""
    return '<path d="M14 88L16.500 30H23.500L26 88Z" fill="#2c3648"/><path d="M14 88L16.500 30H18.500L17.500 88Z" fill="#6d6070"/><path d="M13 30H27V27H13ZM16 27V17H24V27ZM14 17H26L20 9Z" fill="#222a3a"/><rect x="17.500" y="18.500" width="5" height="7" fill="#0c111a"/>'


def lay(image, layer, x, y, tint=None, share=0.0):
    """A drawn layer over the picture; tinted toward the air between."""
    pixels = np.array(layer).astype(float)
    x0, y0 = max(0, x), max(0, y)
    x1, y1 = min(W, x + layer.width), min(H, y + layer.height)
    part = pixels[y0 - y:y1 - y, x0 - x:x1 - x]
    colour = part[..., :3]
    if tint is not None:
        colour = mix(colour, tint, share)
    alpha = part[..., 3:] / 255
    image[y0:y1, x0:x1] = image[y0:y1, x0:x1] * (1 - alpha) + colour * alpha


def beam(image):
    """Two cones of light from the lamp, and the air around it."""
    dx, dy = X - LAMP[0], Y - LAMP[1]
    r = np.hypot(dx, dy) + 1e-6
    air = 0.8 + 0.35 * sample(CLOUD, X / 700, Y / 500)
    for angle, width, reach, gain in ((math.radians(188), 0.085, 620, 0.95), (math.radians(-9), 0.10, 330, 0.7)):
        off = np.abs((np.arctan2(dy, dx) - angle + math.pi) % (2 * math.pi) - math.pi)
        cone = np.exp(-(off / width) ** 2) * np.exp(-r / reach) * smooth(r, 4, 26) * gain * air
        image = image + cone[..., None] * np.array([178, 146, 86])
    for size, gain in ((9, 1.4), (26, 0.50), (95, 0.26), (260, 0.13)):
        image = image + (gain * np.exp(-(r / size) ** 2) * 255)[..., None] * np.array([1.0, 0.78, 0.42])
    return image


def smoke(image, ship_x, ship_y):
    """From the funnel, drifting aft and up, thinning; its under side holds the glow."""
    sx, sy = ship_x + 268, ship_y + 56
    for i in range(190):
        t = i / 190
        x = sx + 2 - 417 * t + 12 * math.sin(7 * t + 1)
        y = sy - 2 - 100 * t ** 0.62 - 16 * t + 15 * math.sin(11 * t) * t
        size = 8 + 58 * t ** 0.9
        x += RANDOM.normal(0, size * 0.42)
        y += RANDOM.normal(0, size * 0.32)
        x0, x1, y0, y1 = int(max(0, x - 3 * size)), int(min(W, x + 3 * size)), int(max(0, y - 3 * size)), int(min(H, y + 3 * size))
        if x1 <= x0 or y1 <= y0:
            continue
        xx, yy = X[y0:y1, x0:x1], Y[y0:y1, x0:x1]
        wob = 0.34 * sample(CLOUD, xx / 240 + i * 0.07, yy / 240 + i * 0.03)
        puff = smooth(1.05 - np.hypot(xx - x, (yy - y) * 1.15) / size + wob, 0.0, 0.9) * (0.36 * (1 - t) ** 0.8 + 0.035) * min(1, 0.45 + 8 * t)
        shade = smooth((yy - y) / size + 0.5 * (xx - x) / size, -0.9, 1.1)
        colour = mix(np.broadcast_to(rgb("#2a3346"), xx.shape + (3,)), rgb("#b48474"), shade * 0.62)
        image[y0:y1, x0:x1] = mix(image[y0:y1, x0:x1], colour, puff)


def sea(above):
    """The sky and the land thrown back by waves that grow toward the eye."""
    below = np.clip(Y - HORIZON, 0.6, None)
    depth = 150.0 / (below + 5)
    u, v = (X - W / 2) / 520 * depth, depth * 2.6
    near = np.clip(below / (H - HORIZON), 0, 1)
    swell = sample(WAVE, u * 0.30 + 0.1, v * 0.55) * near ** 0.25
    ripple = sample(WAVE, u * 0.95 + 0.4, v * 1.7 + 0.3)
    fine = sample(WAVE, u * 2.7 + 0.7, v * 4.6 + 0.1) * smooth(below, 24, 150)
    slope = 0.95 * swell + 0.75 * ripple + 0.45 * fine
    shift = slope * (7 + 92 * near)
    mirrored = np.clip(HORIZON - below * 0.98 - shift - 6 * near, 0, HORIZON - 2)
    across = X + (swell + ripple) * (4 + 30 * near)
    reflected = np.dstack([map_coordinates(above[..., c], [mirrored, np.clip(across, 0, W - 1)], order=1) for c in range(3)])
    water = colours(near, [(0, rgb("#3a4a60")), (0.25, rgb("#1d3a52")), (1, rgb("#0a1c2e"))])
    fresnel = np.clip(0.80 - 0.46 * near - 0.22 * slope * near ** 0.5, 0.10, 0.9)
    image = mix(water, reflected, fresnel)
    crest = smooth(slope, 0.62, 1.25) * smooth(below, 6, 90)
    image = image + crest[..., None] * (mix(np.broadcast_to(rgb("#4d6a80"), image.shape), reflected, 0.5) * 0.30)
    # the sun's road, and the lamp's
    for centre, width, gain, tone in ((790, 46, 0.55, (255, 178, 112)), (LAMP[0], 13, 0.95, (255, 206, 120))):
        road = np.exp(-((X - centre + 22 * slope * near) / (width + 95 * near)) ** 2) * smooth(slope, 0.05, 0.75)
        image = image + (gain * road * (1 - 0.55 * near) * smooth(below, 1, 12))[..., None] * np.array(tone)
    return image


def ship(image, x, y, scale):
    """The steamer with her reflection, bow wave and wake."""
    layer = raster(steamer.WIDTH, steamer.HEIGHT, steamer.picture(), steamer.DEFS, scale)
    waterline = int(steamer.WATER * scale)
    pixels = np.array(layer).astype(float)
    cut = pixels[:waterline]
    line = y + waterline
    flipped = cut[::-1]
    hh = 150
    yy, xx = np.mgrid[0:hh, 0:layer.width].astype(float)
    wob = sample(WAVE, (xx + x) / 340, yy / 60 + 0.2) + 0.6 * sample(WAVE, (xx + x) / 120, yy / 24)
    src_y, src_x = np.clip(yy * 1.55 + wob * (2 + yy * 0.20), 0, waterline - 1), np.clip(xx + wob * (2 + yy * 0.12), 0, layer.width - 1)
    mirror = np.dstack([map_coordinates(flipped[..., c], [src_y, src_x], order=1) for c in range(4)])
    alpha = mirror[..., 3:] / 255 * (0.66 * np.exp(-yy / 90))[..., None]
    area = image[line:line + hh, x:x + layer.width]
    area[:] = area * (1 - alpha) + (mirror[..., :3] * 0.78) * alpha
    part = pixels[:waterline + 2].copy()
    lamps = smooth(part[..., 0] + part[..., 1] - part[..., 2], 250, 330) * smooth(part[..., 1], 185, 215) * part[..., 3] / 255
    yy, xx = np.mgrid[0:part.shape[0], 0:part.shape[1]]
    mottle = 1 + 0.16 * sample(CLOUD, xx / 300, yy / 260) + 0.10 * sample(CLOUD, xx / 60, yy / 130)
    dusk = part[..., :3] * np.array([0.70, 0.72, 0.82]) * mottle[..., None] + np.array([8, 8, 12])
    part[..., :3] = np.clip(mix(dusk, part[..., :3], lamps), 0, 255)
    lay(image, Image.fromarray(part.astype(np.uint8)), x, y, rgb("#a57f78"), 0.05)
    shine = np.zeros((H, W))
    shine[y:y + part.shape[0], x:x + part.shape[1]] = lamps
    image += (gaussian_filter(shine, 3) * 70 + gaussian_filter(shine, 10) * 130)[..., None] * np.array([1.0, 0.74, 0.36])
    foam = np.zeros((H, W))
    left, right = x + 78 * scale, x + 512 * scale
    edge = np.exp(-((Y - line - 1) / 2.4) ** 2) * smooth(X, left - 30, left + 8) * (1 - smooth(X, right - 2, right + 14))
    foam += edge * (0.5 + 0.6 * sample(WAVE, X / 160, Y / 40))
    bow = np.exp(-((Y - line - 3 - 0.03 * (right - X)) / (3.2 + 0.018 * np.abs(right - X))) ** 2) * np.exp(-np.abs(X - right + 12) / 74)
    foam += 1.2 * bow * (0.65 + 0.8 * sample(WAVE, X / 90, Y / 46))
    wake = np.exp(-((Y - line - 9 - 0.010 * np.abs(left - X)) / (6 + 0.03 * np.abs(left - X))) ** 2) * smooth(left + 30 - X, 0, 40) * np.exp(-np.abs(left - X) / 210)
    foam += 0.85 * wake * smooth(sample(WAVE, X / 210, Y / 60) + 0.5 * sample(WAVE, X / 70, Y / 24), -0.1, 0.8)
    return mix(image, rgb("#cdb9b4"), np.clip(foam, 0, 0.85))


def mist(image):
    """A thin bank along the foot of the coast and over the far water."""
    bank = np.exp(-((Y - HORIZON + 2) / 17) ** 2) * (0.45 + 0.6 * sample(CLOUD, X / 900 + 0.3, Y / 160)) * smooth(X, 420, 900)
    tone = mix(rgb("#a18f9b") + np.zeros((H, W, 3)), rgb("#f0b48a"), np.exp(-((X - 800) / 300) ** 2))
    return mix(image, tone, np.clip(bank * 0.62, 0, 0.7))


BIRDS = ((598, 196, 15, -8), (640, 224, 11, 6), (560, 240, 9, 12), (884, 150, 10, -4), (930, 172, 8, 10), (1012, 300, 7, 0))


def birds(image):
    for x, y, size, lean in BIRDS:
        b = f'<g transform="translate(24,24) rotate({lean}) scale({size / 16})"><path d="M-20 -3Q-11 -12 -2 1Q0 3 2 1Q11 -12 20 -4Q11 -7 4 3Q0 8 -4 3Q-11 -7 -20 -3Z" fill="#1f2838"/></g>'
        lay(image, raster(48, 48, b), x, y)


def reference():
    image = sky()
    image, _ = cliff(image, [(0, 470), (520, 466), (640, 438), (700, 432), (760, 440), (850, 424), (960, 408), (1060, 416), (1366, 400)], 0.15, rgb("#7f7f95"), 0.13, 0.42)
    lay(image, raster(40, 90, dark_tower(), scale=0.55), 676, 385, rgb("#9a8896"), 0.45)
    image, _ = cliff(image, [(0, 480), (800, 478), (850, 446), (900, 396), (960, 376), (1040, 360), (1366, 330)], 0.5, rgb("#66697c"), 0.37, 0.17)
    lay(image, raster(40, 90, dark_tower(), scale=0.85), 912, 312, rgb("#8a7d8c"), 0.25)
    body, defs = lighthouse()
    tower = np.array(raster(160, 260, body, defs)).astype(float)
    tower[70:, :, :3] *= np.array([0.66, 0.68, 0.80])
    lay(image, Image.fromarray(tower.astype(np.uint8)), LAMP[0] - 80, LAMP[1] - 50)
    image, near = cliff(image, [(0, 500), (960, 500), (1000, 470), (1030, 424), (1056, 410), (1078, 388), (1110, 382), (1206, 384), (1236, 358), (1290, 322), (1366, 300)], 1.0, rgb("#4d5468"), 0.61, 0.0)
    image = beam(image)
    low = sea(np.clip(image, 0, 400))
    image = mix(image, low, smooth(Y, HORIZON - 0.5, HORIZON + 1.0) * (1 - near * smooth(HORIZON + 11 - Y, 0, 3)))
    image = mist(image)
    x, y, scale = 96, 258, 1.0
    smoke(image, x, y)
    image = ship(image, x, y, scale)
    birds(image)
    image = image * (1 - 0.42 * smooth(np.hypot((X - W / 2) / (W * 0.62), (Y - H * 0.46) / (H * 0.72)), 0.62, 1.25))[..., None]
    return np.clip(image, 0, 255)


def stroke_stamp(length, width, random):
    """One brush stroke's paint, 0 to 1, with the streaks of its bristles and a ragged end."""
    n, m = int(length), int(width)
    v, u = np.mgrid[0:m, 0:n]
    across = (v - (m - 1) / 2) / (m / 2)
    along = u / max(1, n - 1)
    hairs = gaussian_filter(random.standard_normal((m, n)), (0.6, n * 0.22))
    hairs = hairs / (np.abs(hairs).max() + 1e-6)
    end = 1 - smooth(along + 0.10 * hairs, 0.78, 1.0)
    start = smooth(along, 0.0, 0.10)
    side = 1 - smooth(np.abs(across) + 0.16 * hairs, 0.68, 1.0)
    return side * end * start, hairs


def paint(picture, detail):
    """Strokes over strokes: each layer looks at a blurred picture and covers what still differs from it; `detail` 1 keeps drawn edges."""
    canvas = gaussian_filter(picture, (14, 14, 0))
    height = np.zeros((H, W))
    random = np.random.default_rng(7)
    for width, length, gap, blur, tolerance, body in ((26, 110, 13, 7, 0, 0.9), (13, 58, 7, 3.2, 5, 0.85), (7, 30, 4, 1.5, 7, 0.8), (4, 15, 2.6, 0.7, 8, 0.75)):
        goal = gaussian_filter(picture, (blur, blur, 0))
        grey = gaussian_filter(goal.mean(axis=2), max(1.5, blur))
        gx, gy = sobel(grey, axis=1), sobel(grey, axis=0)
        jxx, jyy, jxy = (gaussian_filter(g, 2.2 * max(2, blur)) for g in (gx * gx, gy * gy, gx * gy))
        flow = 0.5 * np.arctan2(2 * jxy, jxx - jyy) + np.pi / 2
        sure = np.hypot(jxx - jyy, 2 * jxy) / (jxx + jyy + 18)
        error = np.abs(goal - canvas).sum(axis=2)
        stamps = {}
        points = [(x, y) for y in np.arange(0, H, gap) for x in np.arange(0, W, gap)]
        random.shuffle(points)
        for px, py in points:
            cx, cy = px + random.uniform(-gap, gap), py + random.uniform(-gap, gap)
            ix, iy = int(np.clip(cx, 0, W - 1)), int(np.clip(cy, 0, H - 1))
            if error[iy, ix] < tolerance * 3 and random.random() > 0.10:
                continue
            if width > 7 and detail[iy, ix] > 0.5 or width > 4 and detail[iy, ix] > 0.8:
                continue
            angle = flow[iy, ix] if sure[iy, ix] > 0.12 else 0.12 * math.sin(ix / 90)
            angle += random.normal(0, 0.10)
            if iy > HORIZON + 12 and detail[iy, ix] < 0.4:
                angle = 0.35 * angle if abs(angle) < 1 else 0.1 * random.normal()
            key = (int(round(np.degrees(angle) / 7.5)) % 48, random.integers(0, 5))
            if key not in stamps:
                paint_, hairs = stroke_stamp(length * random.uniform(0.7, 1.15), width, random)
                both = []
                for layer in (paint_, hairs):
                    pad = Image.fromarray(layer.astype(np.float32)).rotate(-key[0] * 7.5, expand=True, resample=Image.BICUBIC)
                    both.append(np.array(pad))
                stamps[key] = both
            mask, hairs = stamps[key]
            h, w = mask.shape
            x0, y0 = int(cx - w / 2), int(cy - h / 2)
            ax, ay, bx, by = max(0, x0), max(0, y0), min(W, x0 + w), min(H, y0 + h)
            if bx <= ax or by <= ay:
                continue
            m = np.clip(mask[ay - y0:by - y0, ax - x0:bx - x0], 0, 1) * body
            hair = hairs[ay - y0:by - y0, ax - x0:bx - x0]
            tone = goal[iy, ix] * (1 + random.normal(0, 0.022)) + random.normal(0, 2.2, 3)
            area = canvas[ay:by, ax:bx]
            area += m[..., None] * (tone * (1 + 0.05 * hair[..., None]) - area)
            relief = height[ay:by, ax:bx]
            relief += m * (0.5 + 0.5 * hair - relief)
        print(f"  strokes of {width} laid", flush=True)
    share = 0.34 + 0.50 * detail  # fine drawing keeps its edge
    canvas = mix(canvas, picture, share)
    relief = gaussian_filter(height, 0.6)
    light = (sobel(relief, axis=1) + sobel(relief, axis=0)) * (1 - 0.7 * detail)
    canvas = canvas * (1 + 0.030 * np.clip(light, -1.5, 1.5))[..., None]
    weave = 0.5 * (np.sin(X * 2.05) * 0.5 + np.sin(Y * 2.05) * 0.5)
    return canvas * (1 + 0.010 * weave + RANDOM.normal(0, 0.011, (H, W)))[..., None]


def detail_map(picture):
    """Where small drawn things are: the ship, the towers, the lamp."""
    grey = picture.mean(axis=2)
    fine = gaussian_filter(np.abs(grey - gaussian_filter(grey, 3)), 5)
    drawn = np.zeros((H, W))
    drawn[250:530, 92:660] = 1
    drawn[205:400, LAMP[0] - 45:LAMP[0] + 90] = 1
    drawn[300:400, 905:955] = 0.8
    for x, y, size, _ in BIRDS:
        drawn[y:y + 48, x:x + 48] = 1
    drawn[380:440, 672:700] = 0.8
    return np.clip(gaussian_filter(drawn, 6) * smooth(fine, 1.2, 5.0), 0, 1)


def main():
    picture = reference()
    Image.fromarray(picture.astype(np.uint8)).save(f"{WORK}/dusk.png")
    if "draft" in sys.argv:
        return
    photo(Image.fromarray(np.clip(stars(paint(picture, detail_map(picture))), 0, 255).astype(np.uint8)), "gui/title/background.jpg", 91)


if __name__ == "__main__":
    main()
