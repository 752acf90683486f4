"""Draws the great lamp's light, two fans that widen from the middle and fade, to data/particles/beam.png.

Run with /usr/bin/python3 from any folder; needs python3-numpy and python3-pil.
"""
import pathlib

import numpy
from PIL import Image

WIDTH, HEIGHT = 512, 128
y, x = numpy.mgrid[0:HEIGHT, 0:WIDTH]
along = numpy.abs(x - (WIDTH - 1) / 2) / (WIDTH / 2)
across = numpy.abs(y - (HEIGHT - 1) / 2) / (HEIGHT / 2)
spread = .16 + .62 * along
light = numpy.exp(-(across / spread) ** 2 * 2.6) * (1 - along) ** 1.1 * (.55 + .45 * numpy.clip(along * 6, 0, 1)) * numpy.clip((1 - across) * 5, 0, 1)
picture = numpy.zeros((HEIGHT, WIDTH, 4), numpy.uint8)
picture[..., :3] = 255
picture[..., 3] = numpy.round(255 * light)
target = pathlib.Path(__file__).resolve().parents[3] / "data/particles/beam.png"
Image.fromarray(picture, "RGBA").save(target, optimize=True)
