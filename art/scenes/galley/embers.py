#!/usr/bin/python3
"""Draws the breathing of the embers in the range: four frames of red light, side by side, to ember_glow.png of the scene."""
import pathlib

import numpy
from PIL import Image

FRAMES, WIDTH, HEIGHT = 4, 200, 120
STRENGTHS = (0.34, 0.24, 0.40, 0.30)

y, x = numpy.mgrid[0:HEIGHT, 0:WIDTH]
light = numpy.clip(1 - numpy.hypot((x - WIDTH / 2 + .5) / (WIDTH / 2), (y - HEIGHT / 2 + .5) / (HEIGHT / 2)), 0, 1) ** 1.6
strip = numpy.zeros((HEIGHT, WIDTH * FRAMES, 4), numpy.uint8)
strip[..., :3] = (255, 138, 46)
for k, strength in enumerate(STRENGTHS):
    strip[:, k * WIDTH:(k + 1) * WIDTH, 3] = numpy.round(255 * strength * light)
target = pathlib.Path(__file__).resolve().parents[3] / "data/scenes/galley"
target.mkdir(exist_ok=True)
Image.fromarray(strip, "RGBA").save(target / "ember_glow.png", optimize=True)
