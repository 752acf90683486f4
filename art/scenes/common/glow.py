"""Draws the flicker of lamps: four frames of warm light, side by side, to lamp_glow.png in the folders of the scenes that have lamps.

Run with /usr/bin/python3 from any folder; needs python3-numpy and python3-pil.
"""
import pathlib

import numpy
from PIL import Image

FRAMES, SIZE = 4, 160
WARM = (255, 214, 140)
STRENGTHS = (0.50, 0.42, 0.54, 0.46)
REACHES = (1.00, 0.95, 1.03, 0.97)


def frame(strength, reach):
    axis = (numpy.arange(SIZE) - (SIZE - 1) / 2) / (SIZE / 2)
    distance = numpy.sqrt(axis[None, :] ** 2 + axis[:, None] ** 2) / reach
    light = numpy.clip(1 - distance, 0, 1) ** 2.2
    picture = numpy.zeros((SIZE, SIZE, 4), numpy.uint8)
    picture[..., :3] = WARM
    picture[..., 3] = numpy.round(255 * strength * light)
    return picture


strip = numpy.concatenate([frame(s, r) for s, r in zip(STRENGTHS, REACHES)], axis=1)
for scene in ("quay", "cabin", "lamproom"):
    target = pathlib.Path(__file__).resolve().parents[3] / "data/scenes" / scene / "lamp_glow.png"
    Image.fromarray(strip, "RGBA").save(target, optimize=True)
