"""The painting at the voyage's end: the same coast at dawn, every lamp on it burning, the Petrel on her way home.

Made like the title's painting, of whose sky, rock, sea and brush it consists, in the light of the other end of the night.
The letter lies over its left half. `dawn.py draft` leaves out the brush.
"""

import math
import sys

import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter

import painting
from kit import WORK, pack, photo, raster
from painting import CLOUD, H, HORIZON, W, X, Y, cliff, colours, lay, lighthouse, mix, rgb, sample, sea, ship, smooth

SUN = (884, 446)
# Every lamp: where it burns, how far its light reaches, how strong it is. The last one is the near tower's.
LAMPS = [(716, 424, 5, .8), (770, 404, 6, .9), (838, 421, 5, .8), (964, 386, 9, 1.0), (620, 430, 4, .7), (566, 434, 4, .6), (172, 312, 12, 1.0), (446, 428, 4, .6), (1092, 196, 17, 1.35)]
TOWERS = [(716, 424, .36), (770, 404, .5), (838, 421, .38), (964, 386, .8), (172, 312, 1.15), (620, 430, .3), (566, 434, .28), (446, 428, .3)]


def sky():
    high = (HORIZON - Y) / HORIZON
    sun = (X - SUN[0]) / W
    near = colours(high, [(0.0, rgb("#fff0b4")), (0.06, rgb("#ffdc92")), (0.16, rgb("#fbbf8a")), (0.3, rgb("#eba79a")), (0.5, rgb("#b7a3ba")), (0.75, rgb("#7f97c0")), (1.0, rgb("#5f83b4"))])
    far = colours(high, [(0.0, rgb("#f2b79c")), (0.1, rgb("#dba3a4")), (0.3, rgb("#a79bbb")), (0.6, rgb("#6e8cb6")), (1.0, rgb("#4a70a4"))])
    base = mix(near, far, smooth(np.abs(sun), 0.10, 0.6))
    rise = np.maximum(high, 0.012)
    depth = 0.13 / (rise + 0.10)
    u, v = (X - 640) / W * depth * 1.2, depth * 0.66
    bend = 0.06 * sample(painting.WARP, u * 0.9 + 0.4, v * 1.1)
    cover = sample(CLOUD, u * 0.62 + 0.61 + bend, v * 1.9 + bend) + 0.35 * sample(CLOUD, u * 2.3 + 0.5, v * 5.1)
    below = sample(CLOUD, u * 0.62 + 0.61 + bend, v * 1.9 + bend + 0.03) + 0.35 * sample(CLOUD, u * 2.3 + 0.5, v * 5.1 + 0.05)
    body = smooth(cover, 0.0, 0.4) * smooth(high, 0.0, 0.07)
    lit = smooth(cover - below, -0.12, 0.28) * (0.35 + 0.9 * np.exp(-(sun / 0.42) ** 2))
    dark = colours(high, [(0, rgb("#d99a92")), (0.2, rgb("#a78ca4")), (0.5, rgb("#7c86ac")), (1, rgb("#5c7aa6"))])
    fire = colours(high, [(0, rgb("#fff3c0")), (0.2, rgb("#ffd9a0")), (0.45, rgb("#ffc4ac")), (0.8, rgb("#e8c8d0"))])
    base = mix(base, mix(dark, fire, np.clip(lit, 0, 1)), body * 0.8)
    r = np.hypot(X - SUN[0], Y - SUN[1])
    ray = 0.5 + 0.5 * np.sin(np.arctan2(Y - SUN[1], X - SUN[0]) * 22 + 3 * sample(CLOUD, X / 900, Y / 900))
    base += (np.exp(-r / 330) * (0.8 + 0.5 * ray * smooth(r, 30, 160)) * 80)[..., None] * np.array([1.0, 0.72, 0.36])
    base += (np.exp(-(r / 60) ** 2) * 120)[..., None] * np.array([1.0, 0.86, 0.55])
    return mix(base, rgb("#fffbe0"), smooth(30 - r, 0, 4))


def warmed(image, inside, share):
    """The sun's side of the rock takes its colour."""
    light = np.exp(-np.abs(X - SUN[0]) / 420) * share
    return mix(image, image * np.array([1.25, 1.02, 0.82]) + np.array([26, 12, 0]), inside * light)


def land(image):
    image, inside = cliff(image, [(0, 466), (300, 462), (420, 446), (560, 450), (640, 446), (720, 438), (790, 426), (850, 440), (930, 446), (1366, 440)], 0.15, rgb("#9c93a8"), 0.13, 0.55)
    image = warmed(image, inside, .5)
    image, inside = cliff(image, [(0, 480), (880, 476), (920, 444), (960, 424), (1020, 410), (1366, 396)], 0.5, rgb("#9a8f9c"), 0.37, 0.30)
    image = warmed(image, inside, .6)
    for x, y, scale in TOWERS:
        if x < 900 or scale > .6:
            lay(image, raster(40, 90, pale_tower(), scale=scale), int(x - 20 * scale), int(y - 22 * scale), rgb("#c9a7a4"), 0.5 - 0.3 * scale)
    image, left = cliff(image, [(0, 372), (60, 378), (140, 386), (210, 396), (262, 424), (310, 470), (420, 500), (1366, 500)], 0.8, rgb("#8d8796"), 0.21, 0.12)
    image = warmed(image, left, .5)
    body, defs = lighthouse()
    lay(image, raster(160, 260, body, defs), LAMPS[-1][0] - 80, LAMPS[-1][1] - 50, rgb("#f2c6a4"), 0.16)
    image, right = cliff(image, [(0, 500), (930, 500), (964, 466), (990, 420), (1020, 396), (1050, 372), (1080, 366), (1170, 368), (1206, 340), (1270, 306), (1366, 280)], 1.0, rgb("#a09096"), 0.61, 0.03)
    return warmed(image, right, .9), np.maximum(left, right)


def pale_tower():
    return ('<path d="M14 88L16.500 30H23.500L26 88Z" fill="#e9d8c8"/><path d="M26 88L23.500 30H21L22 88Z" fill="#8d7f92"/><path d="M15.200 62H24.800L25.300 74H14.700ZM16 40H24L24.400 50H15.600Z" fill="#b5573f"/>'
            '<path d="M13 30H27V27H13Z" fill="#5c5566"/><rect x="16" y="17" width="8" height="10" fill="#fff3b8"/><path d="M14 17H26L20 9Z" fill="#8f4636"/>')


def burning(image):
    """A halo around each lamp, its two beams, and a sparkle on the flame itself."""
    for x, y, size, gain in LAMPS:
        dx, dy = X - x, Y - y
        r = np.hypot(dx, dy) + 1e-6
        glow = 1.5 * np.exp(-(r / size) ** 2) + .5 * np.exp(-(r / (3 * size)) ** 2) + .22 * np.exp(-(r / (8 * size)) ** 2)
        for angle in (math.radians(184), math.radians(-5)):
            off = np.abs((np.arctan2(dy, dx) - angle + math.pi) % (2 * math.pi) - math.pi)
            glow = glow + .5 * np.exp(-(off / .075) ** 2) * np.exp(-r / (16 * size)) * smooth(r, 2, size * 1.5)
        image = image + (glow * gain * 150)[..., None] * np.array([1.0, 0.86, 0.52])
    return image


def smoke(image, x, y):
    random = np.random.default_rng(5)
    for i in range(120):
        t = i / 120
        px, py = x - 190 * t + 5 * math.sin(8 * t), y - 54 * t ** .7 + 7 * math.sin(11 * t) * t
        size = 4 + 24 * t
        px, py = px + random.normal(0, size * .4), py + random.normal(0, size * .3)
        puff = np.exp(-((X - px) ** 2 + 1.3 * (Y - py) ** 2) / size ** 2) * .16 * (1 - t)
        image = mix(image, mix(rgb("#6b6478"), rgb("#f0c8b0"), smooth((py - Y) / size, -1, 1)), puff)
    return image


def reference():
    image, near = land(sky())
    image = burning(image)
    low = sea(np.clip(image, 0, 330))
    low = mix(low, rgb("#d8b4a8"), 0.16 * np.exp(-(Y - HORIZON) / 130))
    path = np.exp(-((X - SUN[0]) / (30 + 0.55 * np.clip(Y - HORIZON, 0, None))) ** 2)
    sparkle = smooth(sample(painting.WAVE, (X - W / 2) / 300, np.clip(Y - HORIZON, 0, None) ** .8 / 30), .05, .5)
    low = low + (path * sparkle * 90 * np.exp(-(Y - HORIZON) / 240))[..., None] * np.array([1.0, 0.78, 0.44])
    image = mix(image, low, smooth(Y, HORIZON - 0.5, HORIZON + 1.0) * (1 - near * smooth(HORIZON + 11 - Y, 0, 3)))
    image = painting.mist(image)
    x, y, scale = 700, 356, 0.5
    image = smoke(image, x + 134, y + 28)
    image = ship(image, x, y, scale)
    for bx, by, size, lean in ((1000, 120, 13, -8), (1040, 150, 10, 6), (940, 176, 8, 12), (760, 210, 9, -4), (802, 232, 7, 8), (1150, 260, 8, 0), (110, 190, 10, 4)):
        b = f'<g transform="translate(24,24) rotate({lean}) scale({size / 16})"><path d="M-20 -3Q-11 -12 -2 1Q0 3 2 1Q11 -12 20 -4Q11 -7 4 3Q0 8 -4 3Q-11 -7 -20 -3Z" fill="#4a4a60"/></g>'
        lay(image, raster(48, 48, b), bx, by)
    image = image * (1 - 0.34 * smooth(np.hypot((X - W / 2) / (W * 0.62), (Y - H * 0.46) / (H * 0.72)), 0.66, 1.25))[..., None]
    return np.clip(image, 0, 255)


def detail_map(picture):
    grey = picture.mean(axis=2)
    fine = gaussian_filter(np.abs(grey - gaussian_filter(grey, 3)), 5)
    drawn = np.zeros((H, W))
    drawn[350:500, 694:990] = 1
    for x, y, size, _ in LAMPS:
        drawn[y - 30:y + 12 * size, x - 3 * size:x + 3 * size + 40] = 1
    drawn[100:300, 740:1190] = np.maximum(drawn[100:300, 740:1190], .6)
    return np.clip(gaussian_filter(drawn, 6) * smooth(fine, 1.2, 5.0), 0, 1)


def thumbnail(dawn):
    """What the map's panel shows when no place is on offer: the ship and the light."""
    pack(dawn.convert("RGBA").resize((180, 136), Image.LANCZOS, (680, 140, 1180, 140 + 500 * 136 / 180)), "gui/maphud/thumbnail_none.png", 256)


def main():
    picture = reference()
    Image.fromarray(picture.astype(np.uint8)).save(f"{WORK}/dawn.png")
    if "draft" in sys.argv:
        return
    dawn = Image.fromarray(np.clip(painting.paint(picture, detail_map(picture)), 0, 255).astype(np.uint8))
    photo(dawn, "scenes/end/backgroundend.jpg", 91)
    thumbnail(dawn)


if __name__ == "__main__":
    main()
