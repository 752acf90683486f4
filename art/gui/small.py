"""What is small and moves: cursor, touch mask, particles, markers, gull, lamp. Animations get their XML here,
since it says where in the strip each frame lies."""

import math
import os

import numpy as np
from PIL import Image

from kit import DATA, INK, pack, raster, save


def strip(name, frames, time, registration, loop=True, colours=256):
    """Frames side by side in one picture, and the animation that plays them."""
    w, h = frames[0].size
    sheet = Image.new("RGBA", (w * len(frames), h))
    for index, frame in enumerate(frames):
        sheet.paste(frame, (index * w, 0))
    pack(sheet, name + ".png", colours)
    title = os.path.basename(name)
    lines = [f'<sequence name="{title}">', "  <framelist>"]
    for index in range(len(frames)):
        lines.append(f'    <frame x="{index * w}" y="0" w="{w}" h="{h}" regx="{registration[0]}" regy="{registration[1]}"/>')
    lines += ["  </framelist>", f'  <timeline name="main" frametime="{time}">']
    lines += [f'    <key frame="{index + 1}"/>' for index in range(len(frames))]
    if loop:
        lines.append('    <key jumpto="0"/>')
    lines += ["  </timeline>", "</sequence>", ""]
    with open(os.path.join(DATA, name + ".xml"), "w") as out:
        out.write("\n".join(lines))


def cursor():
    """A quill: white feather, brass nib; the nib's point is the hot spot, pixel (2, 2)."""
    feather = "M12 13.500Q15 9.5 21 12.500Q27 15.5 31.5 20.500L33 19.500Q42 30 45.5 45Q46 46.5 44 45.800Q39 44 35.5 41L36 43.500Q29.500 41 24.5 36.500L24.300 39Q17 33.5 13.8 26L12 26.500Q10.500 19 12 13.500Z"
    body = f'<g filter="url(#shadow)"><path d="{feather}" fill="url(#vane)" stroke="{INK}" stroke-width="1.5" stroke-linejoin="round"/>'
    body += f'<path d="M2 2L8 13.800L11 15.500L14.800 14.200L15.800 11L13.800 8Z" fill="url(#brass)" stroke="{INK}" stroke-width="1.4" stroke-linejoin="round"/></g>'
    for i in range(9):
        t = i / 8
        x, y = 16 + 24 * t, 15 + 24 * t
        body += f'<path d="M{x:.1f} {y:.1f}Q{x - .5:.1f} {y + 4:.1f} {x - 1 + t:.1f} {y + 7 - 5 * abs(t - .4):.1f}M{x:.1f} {y:.1f}Q{x + 3:.1f} {y:.1f} {x + 5 - 4 * abs(t - .45):.1f} {y - 1 + t * 2:.1f}" stroke="#8fa4b2" stroke-width=".7" fill="none" opacity=".8"/>'
    body += '<path d="M12.500 12.500Q26 24 42.5 42.5" stroke="#b88a3e" stroke-width="1.9" fill="none"/><path d="M12.500 12Q26 23.5 42 41.8" stroke="#fff3cf" stroke-width=".8" fill="none"/>'
    body += f'<path d="M2.600 2.600L9.500 10.3" stroke="{INK}" stroke-width="1"/><circle cx="9.8" cy="10.6" r="1.1" fill="{INK}"/>'
    vane = '<linearGradient id="vane" x1="0.9" y1="0.1" x2="0.2" y2="0.9"><stop offset="0" stop-color="#ffffff"/><stop offset=".48" stop-color="#eef3f5"/><stop offset=".52" stop-color="#cfdae0"/><stop offset="1" stop-color="#9fb1bd"/></linearGradient>'
    strip("cursors/software/default", [raster(48, 48, body, vane)], 1000, (2, 2))


def radius_grid(size):
    axis = (np.arange(size) - (size - 1) / 2) / (size / 2)
    x, y = np.meshgrid(axis, axis)
    return x, y, np.hypot(x, y)


def white(alpha):
    out = np.full(alpha.shape + (4,), 255, np.uint8)
    out[..., 3] = np.clip(alpha * 255 + 0.5, 0, 255)
    return Image.fromarray(out)


def smooth(value, low, high):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def touch_mask():
    _, _, r = radius_grid(48)
    pack(white(1 - smooth(r, 0.72, 0.98)), "cursors/software/touchhitmask.png", 0)


def particles():
    x, y, r = radius_grid(64)
    edge = 1 - smooth(r, 0.86, 0.99)
    pack(white((np.exp(-(r / 0.1) ** 2) + 0.75 * np.exp(-np.abs(x) / 0.035 - np.abs(y) / 0.22)
                + 0.75 * np.exp(-np.abs(y) / 0.035 - np.abs(x) / 0.22) + 0.22 * np.exp(-(r / 0.28) ** 2)) * edge), "particles/spark.png", 0)
    angle = np.arctan2(x, -y)
    turn = np.abs((angle + math.pi / 5) % (2 * math.pi / 5) - math.pi / 5)
    outline = 0.38 / (np.cos(turn) * 0.5 + np.sin(turn) * 0.72) * 0.96
    pack(white((1 - smooth(r - outline, -0.05, 0.02)) * (0.8 + 0.2 * (1 - r)) + 0.35 * np.exp(-np.maximum(r - outline, 0) / 0.08) * edge), "particles/star.png", 0)
    pack(white(np.exp(-(r / 0.42) ** 2) * edge), "particles/glow.png", 0)
    random = np.random.default_rng(3)
    from scipy.ndimage import gaussian_filter
    noise = sum(gaussian_filter(random.standard_normal((64, 64)), s, mode="wrap") * s for s in (3, 6, 11))
    noise = (noise - noise.min()) / np.ptp(noise)
    puff = smooth(noise * 0.55 + 0.62 - r, 0.0, 0.62) * (0.55 + 0.45 * noise)
    pack(white(puff * (1 - smooth(r, 0.7, 0.98))), "particles/smoke.png", 0)
    pack(white(np.exp(-((r - 0.74) / 0.075) ** 2) + 0.25 * np.exp(-((r - 0.66) / 0.16) ** 2) * (r < 0.95)), "particles/ring.png", 0)
    x, y, r = radius_grid(32)
    low = y - 0.22
    half = np.where(low > 0, np.sqrt(np.clip(0.52 ** 2 - low ** 2, 0, 1)), 0.52 * np.clip((low + 1.08) / 1.08, 0, 1) ** 1.35)
    drop = 1 - smooth(np.abs(x) - half, -0.07, 0.05)
    drop[(low < -1.05) | (low > 0.56)] = 0
    shine = 0.45 * np.exp(-((x + 0.16) / 0.12) ** 2 - ((y - 0.12) / 0.2) ** 2)
    pack(white(drop * (0.62 + 0.38 * smooth(np.hypot(x, low), 0.1, 0.52) + shine)), "particles/drop.png", 0)


def markers():
    """Found: a gold ring drawn by a pen, with a burst. Not found: a red cross that shakes and goes."""
    gold = '<linearGradient id="au" x1="0" y1="0" x2=".5" y2="1"><stop offset="0" stop-color="#fffbe0"/><stop offset=".45" stop-color="#ffd565"/><stop offset="1" stop-color="#b8741c"/></linearGradient>'
    frames, turn = [], 2 * math.pi * 31
    for index in range(8):
        t = (index + 1) / 8
        drawn = min(1, t / 0.75)
        body = f'<circle cx="48" cy="48" r="{20 + 16 * t:.1f}" fill="#ffe9a0" opacity="{.35 * (1 - t) + .05:.2f}" filter="url(#softer)"/>'
        dash = f'stroke-dasharray="{turn * drawn:.1f} {turn:.1f}" transform="rotate(-100 48 48)"'
        body += f'<circle cx="48" cy="48" r="31" fill="none" stroke="{INK}" stroke-width="8" stroke-linecap="round" opacity=".8" {dash}/><circle cx="48" cy="48" r="31" fill="none" stroke="url(#au)" stroke-width="5" stroke-linecap="round" {dash}/>'
        if index >= 4:
            k = (index - 4) / 3
            for ray in range(12):
                a = ray * math.pi / 6
                inner, outer = 36 + 3 * k, 36 + 3 * k + 8 * math.sin(math.pi * (0.25 + 0.75 * k))
                if outer - inner > 0.6:
                    body += f'<path d="M{48 + inner * math.cos(a):.1f} {48 + inner * math.sin(a):.1f}L{48 + outer * math.cos(a):.1f} {48 + outer * math.sin(a):.1f}" stroke="#ffe9a0" stroke-width="2.6" stroke-linecap="round" opacity="{1 - .5 * k:.2f}"/>'
        frames.append(raster(96, 96, body, gold))
    strip("gui/markers/found", frames, 50, (48, 48), loop=False)
    frames = []
    for index, (shift, size, fade) in enumerate(((0, .55, .7), (0, 1.12, 1), (-4, 1, 1), (4, 1, 1), (-3, 1, 1), (2, 1, .85), (0, .96, .55), (0, .9, .22))):
        arms = "M-20 -21Q-4 -6 21 20M20 -22Q3 -4 -20 21"
        body = f'<g transform="translate({48 + shift},48) scale({size})" opacity="{fade}" fill="none" stroke-linecap="round"><path d="{arms}" stroke="{INK}" stroke-width="13" opacity=".8"/><path d="{arms}" stroke="#c23320" stroke-width="8.5"/><path d="{arms}" stroke="#ff9a7c" stroke-width="2.4" transform="translate(-1.2,-1.6)" opacity=".8"/></g>'
        frames.append(raster(96, 96, body))
    strip("gui/markers/not_found", frames, 60, (48, 48), loop=False)


def gull():
    frames = []
    for index in range(6):
        beat = math.cos(2 * math.pi * index / 6)  # 1: wings up
        lag = math.cos(2 * math.pi * index / 6 - 0.9)
        body_y = 35 - 2.5 * beat
        wings = ""
        for side in (-1, 1):
            elbow = (48 + side * 17, body_y - 4 - 11 * beat)
            tip = (48 + side * 42, body_y - 2 - 22 * lag + 3)
            wings += (f'<path d="M{48 + side * 3} {body_y - 3:.1f}Q{48 + side * 9} {elbow[1] - 4:.1f} {elbow[0]} {elbow[1]:.1f}Q{48 + side * 29} {elbow[1] + (tip[1] - elbow[1]) * .25 - 4:.1f} {tip[0]} {tip[1]:.1f}'
                      f'Q{48 + side * 30} {elbow[1] + (tip[1] - elbow[1]) * .45 + 5:.1f} {48 + side * 16} {elbow[1] + 8:.1f}Q{48 + side * 9} {body_y + 2:.1f} {48 + side * 3} {body_y + 4:.1f}Z" fill="url(#wing)" stroke="#2b3640" stroke-width="1.2" stroke-linejoin="round"/>'
                      f'<path d="M{tip[0]} {tip[1]:.1f}Q{48 + side * 35} {tip[1] + (elbow[1] - tip[1]) * .35 + 1:.1f} {48 + side * 31} {tip[1] + (elbow[1] - tip[1]) * .5 + 2:.1f}L{48 + side * 32.5} {tip[1] + (elbow[1] - tip[1]) * .4 - 2:.1f}Z" fill="#26303a"/>')
        y = body_y
        body = wings + (f'<path d="M40 {y + 6:.1f}Q34 {y + 10:.1f} 33 {y + 12.5:.1f}Q40 {y + 13:.1f} 45 {y + 9:.1f}Z" fill="#dfe6ea" stroke="#2b3640" stroke-width="1.1"/>'
                        f'<path d="M40 {y + 5:.1f}Q42 {y - 3:.1f} 50 {y - 4:.1f}Q57 {y - 6:.1f} 60 {y - 2:.1f}Q61 {y + 2:.1f} 56 {y + 5:.1f}Q48 {y + 11:.1f} 40 {y + 5:.1f}Z" fill="#fbfdfd" stroke="#2b3640" stroke-width="1.2"/>'
                        f'<path d="M59.500 {y - 2:.1f}L66.500 {y:.1f}L60 {y + 1.5:.1f}Z" fill="#efb02e" stroke="#2b3640" stroke-width=".9"/><circle cx="57" cy="{y - 2:.1f}" r="1.2" fill="#1a1f24"/>')
        frames.append(raster(96, 64, body, '<linearGradient id="wing" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fdfefe"/><stop offset="1" stop-color="#a9b8c2"/></linearGradient>'))
    strip("gui/title/gull", frames, 90, (48, 36))


def lamp():
    """The glow of a lamp, for add: round, warm, with a flame's restlessness in its reach."""
    random = np.random.default_rng(12)
    x, y, _ = radius_grid(128)
    frames = []
    for reach in (1.0, 0.93, 1.04, 0.97):
        dx, dy = random.uniform(-0.02, 0.02, 2)
        r = np.hypot(x - dx, (y - dy) * 1.04) / reach
        alpha = (0.95 * np.exp(-(r / 0.12) ** 2) + 0.5 * np.exp(-(r / 0.32) ** 2) + 0.2 * np.exp(-(r / 0.6) ** 2)) * (1 - smooth(np.hypot(x, y), 0.7, 0.98))
        heat = np.clip(np.exp(-(r / 0.2) ** 2), 0, 1)[..., None]
        colour = np.array([255, 176, 74]) * (1 - heat) + np.array([255, 246, 214]) * heat
        frames.append(Image.fromarray(np.dstack([colour, np.clip(alpha, 0, 1) * 255]).astype(np.uint8)))
    strip("gui/title/lamp_glow", frames, 130, (64, 64), colours=0)


def main():
    cursor()
    touch_mask()
    particles()
    markers()
    gull()
    lamp()


if __name__ == "__main__":
    main()
