"""Finds with a sight and a sound of their own: a postmark on every stamp, a light where a lock's task is done.

A scene's stamps and its task get an animation beside its pictures, named like their entries; it plays the sound, too.
"""

import math
import os

import numpy as np
from PIL import Image

from kit import DATA, pack, raster
from small import radius_grid

STAMP = "bnsl-cmn-postage_stamp"
# scene: its task, the sound of it, how wide the light grows in pixels
TASKS = {
    "quay": ("light_lantern", "lantern", 300),
    "cabin": ("open_strong_box", "strongbox", 280),
    "galley": ("light_the_range", "fire", 420),
    "shop": ("wake_automaton", "automaton", 320),
    "lamproom": ("light_the_lamp", "greatlamp", 520),
}
FLARE, MARK = 160, 112


def flare():
    """Lamplight: white in the middle, amber where it ends."""
    _, _, r = radius_grid(FLARE)
    out = np.zeros((FLARE, FLARE, 4))
    for channel, (centre, rim) in enumerate(((255, 255), (248, 158), (206, 34))):
        out[..., channel] = centre + (rim - centre) * np.clip(r * 1.7, 0, 1) ** 0.6
    out[..., 3] = 255 * np.exp(-(r / 0.42) ** 2) * np.clip((1 - r) / 0.25, 0, 1)
    pack(Image.fromarray(out.astype(np.uint8), "RGBA"), "common/flare.png", 0)


def postmark():
    """A round mark and the waves beside it, in the ink of every post office."""
    ink = "#43210f"
    body = '<filter id="worn"><feTurbulence type="fractalNoise" baseFrequency=".19" numOctaves="2" seed="6"/><feColorMatrix type="matrix" values="0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  0 0 0 -5 3.700"/><feComposite in="SourceGraphic" operator="in"/></filter>'
    body += '<filter id="paperglow"><feGaussianBlur stdDeviation="4"/></filter><circle cx="50" cy="56" r="38" fill="#f6e9c6" opacity=".7" filter="url(#paperglow)"/>'
    body += f'<g filter="url(#worn)" transform="rotate(-14 56 56)" fill="none" stroke="{ink}"><circle cx="46" cy="56" r="33" stroke-width="3.400"/><circle cx="46" cy="56" r="21" stroke-width="1.800"/>'
    body += '<path id="ring" d="M46 56m-25.500 0a25.500 25.500 0 1 1 51 0a25.500 25.500 0 1 1 -51 0" stroke="none"/>'
    for index, letter in enumerate("PETREL MAIL 1887 "):
        angle = index * 2 * math.pi / 17 - 2.2
        x, y = 46 + 24.3 * math.sin(angle), 56 - 24.3 * math.cos(angle)
        body += f'<text transform="translate({x:.1f},{y:.1f}) rotate({math.degrees(angle):.0f})" font-family="DejaVu Sans" font-weight="bold" font-size="8.500" text-anchor="middle" fill="{ink}" stroke="none">{letter}</text>'
    body += '<path d="M32 60Q40 47 46 57Q52 47 60 60" stroke-width="3.600" stroke-linecap="round"/>'
    for y in (40, 50, 60, 70):
        body += f'<path d="M82 {y}q4 -5 8 0t8 0t8 0" stroke-width="2.600"/>'
    body += "</g>"
    return raster(MARK, MARK, body)


def animation(path, sound, frames, time):
    """Frames as (picture, its size, scale, alpha), each around the find's middle."""
    title = os.path.splitext(os.path.basename(path))[0]
    lines = [f'<sequence name="{title}">', "  <framelist>"]
    for picture, size, scale, alpha in frames:
        lines.append(f'    <frame texPgFn="{picture}" w="{size}" h="{size}" regx="{size // 2}" regy="{size // 2}" '
                     f'xform="{scale:.3f} 0 0 {scale:.3f} 0 0" alpha="{alpha:.2f}"/>')
    lines += ["  </framelist>", f'  <timeline name="main" frametime="{time}">', f"    <key lua=\"PlaySound('audio/sfx/{sound}.wav');\"/>"]
    lines += [f'    <key frame="{index + 1}"/>' for index in range(len(frames))]
    lines += ["  </timeline>", "</sequence>", ""]
    path = os.path.join(DATA, path)
    with open(path, "w") as out:
        out.write("\n".join(lines))


def lighting(width):
    """A light that takes, flickers once and settles into the scene."""
    shape = [(0.12, .5), (0.2, .7), (0.34, .85), (0.5, .95), (0.42, .8), (0.58, .95), (0.72, 1), (0.82, 1), (0.9, .96), (0.95, .9),
             (0.98, .82), (1, .74), (1, .65), (1, .56), (1, .47), (1, .38), (1, .3), (1, .22), (1, .15), (1, .09), (1, .04)]
    return [("common/flare.png", FLARE, width / FLARE * scale, alpha) for scale, alpha in shape]


def stamping():
    """The mark swings down, stands on the paper, and fades."""
    shape = [(1.9, .25), (1.55, .5), (1.2, .8), (0.94, 1), (1.0, 1), (1.02, 1), (1, 1), (1, 1), (1, 1), (1, 1), (1.01, .92), (1.03, .8), (1.05, .66),
             (1.08, .5), (1.12, .34), (1.16, .18), (1.2, .07)]
    return [("common/postmark.png", MARK, scale, alpha) for scale, alpha in shape]


def main():
    flare()
    pack(postmark(), "common/postmark.png", 64)
    for scene, (name, sound, width) in TASKS.items():
        if not os.path.isdir(os.path.join(DATA, "scenes", scene)):
            continue
        animation(f"scenes/{scene}/{STAMP}.xml", "stamp", stamping(), 50)
        animation(f"scenes/{scene}/tsk-{name}.xml", sound, lighting(width), 55)


if __name__ == "__main__":
    main()
