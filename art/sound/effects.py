"""The game's short sounds."""

import sys

import numpy as np

import master
from dsp import band, bell, hump, noise_ring, put, reverberate, room, samples, stereo, struck, tail_cut

RANDOM = np.random.default_rng(1887)


def noise(seconds, low, high, slope=-3.0):
    return noise_ring(samples(seconds), low, high, RANDOM, slope)


def find():
    """Three small bells upwards, a ship's brass in the distance: heard hundreds of times, so short and soft at the edge."""
    out = np.zeros((samples(1.5), 2))
    for at, frequency, gain, pan in ((0, 1318.5, 0.8, -0.2), (0.075, 1760.0, 0.9, 0.0), (0.15, 2637.0, 0.75, 0.2)):
        put(out, stereo(bell(frequency, 0.9, 0.7), pan), at, gain)
    put(out, stereo(bell(659.25, 1.1, 0.4)), 0.15, 0.25)
    return reverberate(out, room(0.9, RANDOM, 6000), 0.22)


def click():
    """A brass switch on a wooden desk."""
    out = np.zeros(samples(0.12))
    put(out, band(RANDOM.standard_normal(samples(0.012)), 1500, 5200) * np.linspace(1, 0, samples(0.012)) ** 2, 0, 0.5)
    put(out, struck(0.09, [(240, 0.8, 0.05), (610, 0.55, 0.04), (1870, 0.28, 0.03)], 0.0008), 0.001, 0.9)
    put(out, band(RANDOM.standard_normal(samples(0.006)), 2200, 6500) * np.linspace(1, 0, samples(0.006)), 0.034, 0.18)
    return out


def wrong():
    """A muffled double knock on a hollow crate, falling: no, but kindly."""
    out = np.zeros(samples(0.55))
    for at, tune, gain in ((0, 1.0, 1.0), (0.14, 0.82, 0.85)):
        put(out, struck(0.3, [(176 * tune, 1.0, 0.22), (262 * tune, 0.5, 0.16), (415 * tune, 0.25, 0.09)], 0.003), at, gain)
        put(out, band(RANDOM.standard_normal(samples(0.02)), 200, 1100) * np.linspace(1, 0, samples(0.02)) ** 2, at, 0.35 * gain)
    return reverberate(out, room(0.35, RANDOM, 2200), 0.18)


def card():
    """A card turned over on baize: a swish, then the slap of its edge."""
    out = np.zeros(samples(0.34))
    put(out, noise(0.15, 1800, 7500) * hump(0.15, 0.10), 0, 0.30)
    put(out, noise(0.03, 900, 4200) * hump(0.03, 0.002), 0.125, 0.85)
    put(out, struck(0.08, [(310, 0.8, 0.05), (540, 0.35, 0.035)], 0.001), 0.127, 0.55)
    return stereo(out)


def jigsaw():
    """Two pieces of wood pressed together: click, and the settling behind it."""
    out = np.zeros(samples(0.3))
    for at, gain, tune in ((0, 0.6, 1.0), (0.045, 1.0, 0.9)):
        put(out, struck(0.12, [(420 * tune, 1.0, 0.06), (980 * tune, 0.6, 0.045), (2250 * tune, 0.3, 0.025)], 0.0006), at, gain)
        put(out, noise(0.012, 1500, 6000) * hump(0.012, 0.001), at, 0.28 * gain)
    return reverberate(out, room(0.25, RANDOM, 3800), 0.12)


def page():
    """A leaf of heavy paper lifts, bends and falls."""
    out = np.zeros(samples(0.75))
    put(out, noise(0.42, 900, 6500) * hump(0.42, 0.26), 0, 0.36)
    put(out, noise(0.22, 1600, 9000) * hump(0.22, 0.05), 0.33, 0.30)
    for at in np.sort(RANDOM.uniform(0.04, 0.5, 26)):  # fibres that crackle where it bends
        put(out, noise(0.006, 1800, 8000) * hump(0.006, 0.0008), at, RANDOM.uniform(0.1, 0.45))
    put(out, noise(0.07, 250, 1800) * hump(0.07, 0.006), 0.52, 0.45)
    return reverberate(out, room(0.3, RANDOM, 5000), 0.10)


def litter():
    """Something light falls into a wicker basket: a rustle, the creak of the weave, a small bright note above."""
    out = np.zeros((samples(0.9), 2))
    put(out, stereo(noise(0.16, 900, 5200) * hump(0.16, 0.02)), 0, 0.4)
    for at in np.sort(RANDOM.uniform(0.02, 0.22, 14)):
        put(out, stereo(noise(0.008, 1400, 6000) * hump(0.008, 0.001), RANDOM.uniform(-0.4, 0.4)), at, RANDOM.uniform(0.15, 0.5))
    put(out, stereo(struck(0.2, [(196, 1.0, 0.12), (305, 0.5, 0.09), (520, 0.25, 0.06)], 0.002)), 0.03, 0.9)
    put(out, stereo(bell(1567.98, 0.5, 0.5)), 0.13, 0.34)
    return reverberate(out, room(0.4, RANDOM, 5000), 0.16)


def returned():
    """A rising run on a small harp: what was lost goes home."""
    out = np.zeros((samples(1.7), 2))
    for step, frequency in enumerate((783.99, 987.77, 1174.66, 1567.98, 1975.53)):
        string = struck(1.0, [(frequency, 1.0, 0.9), (frequency * 2, 0.35, 0.5), (frequency * 3.01, 0.14, 0.28), (frequency * 4.02, 0.06, 0.15)], 0.003)
        put(out, stereo(string, -0.3 + 0.15 * step), 0.07 * step, 0.55 + 0.08 * step)
    return reverberate(out, room(1.1, RANDOM, 6500), 0.28)


def welldone():
    """The ship's bell twice, then a peal up the chord, with a rush of air beneath it."""
    out = np.zeros((samples(3.0), 2))
    for at, gain in ((0.0, 0.9), (0.24, 1.0)):
        put(out, stereo(bell(830.61, 1.9, 0.9), -0.1), at, gain)
        put(out, stereo(bell(415.3, 1.6, 0.5), 0.1), at, 0.4 * gain)
    for step, frequency in enumerate((1046.5, 1244.51, 1661.22, 2093.0, 2489.02)):
        put(out, stereo(bell(frequency, 1.2, 0.7), -0.4 + 0.2 * step), 0.52 + 0.085 * step, 0.6)
    for frequency, pan in ((830.61, -0.3), (1046.5, 0.0), (1244.51, 0.3), (1661.22, 0.15)):
        put(out, stereo(bell(frequency, 1.7, 0.5), pan), 1.02, 0.5)
    put(out, stereo(noise(1.2, 1500, 7000) * hump(1.2, 0.7)), 0.2, 0.1)
    return reverberate(out, room(1.4, RANDOM, 6000), 0.25)


def stamp():
    """A postmark comes down on a stamp, twice on its pad and once on the paper, and a small bell is pleased."""
    out = np.zeros((samples(1.1), 2))
    for at, gain, tune in ((0.0, 0.35, 1.25), (0.20, 1.0, 1.0)):
        put(out, stereo(struck(0.16, [(135 * tune, 1.0, 0.10), (240 * tune, 0.6, 0.07), (610 * tune, 0.25, 0.03)], 0.001)), at, gain)
        put(out, stereo(noise(0.03, 300, 2400) * hump(0.03, 0.002)), at, 0.5 * gain)
    put(out, stereo(noise(0.14, 1400, 6500) * hump(0.14, 0.03)), 0.25, 0.10)  # peeled off the paper
    put(out, stereo(bell(1975.5, 0.6, 0.5), 0.15), 0.27, 0.34)
    return reverberate(out, room(0.5, RANDOM, 4200), 0.16)


def chord(out, at, notes, seconds, gain, slow=0.0):
    """Soft bells one after the other, spread from left to right."""
    for step, frequency in enumerate(notes):
        tone = bell(frequency, seconds, 0.35)
        if slow:
            tone = tone * np.minimum(1, np.arange(len(tone)) / samples(slow)) ** 2
        put(out, stereo(tone, -0.4 + 0.8 * step / max(1, len(notes) - 1)), at + 0.09 * step, gain)


def lantern():
    """A match along its box, the wick takes, the glass goes over it."""
    out = np.zeros((samples(2.6), 2))
    put(out, stereo(noise(0.20, 2400, 8000) * hump(0.20, 0.15)), 0.0, 0.35)
    for at in np.sort(RANDOM.uniform(0.0, 0.5, 30)):
        put(out, stereo(noise(0.005, 2500, 9000) * hump(0.005, 0.0006), RANDOM.uniform(-0.2, 0.2)), at, RANDOM.uniform(0.05, 0.3))
    put(out, stereo(noise(0.55, 900, 5200) * hump(0.55, 0.08)), 0.16, 0.30)
    put(out, stereo(noise(0.8, 70, 420) * hump(0.8, 0.16)), 0.32, 0.42)
    put(out, stereo(struck(0.5, [(1830, 1.0, 0.3), (3020, 0.5, 0.2), (4700, 0.25, 0.12)], 0.001), 0.1), 0.86, 0.30)
    chord(out, 0.50, (392.0, 493.88, 587.33, 783.99), 1.7, 0.42, 0.05)
    return reverberate(out, room(0.9, RANDOM, 5200), 0.22)


def fire():
    """Coal into the range, three strokes of the bellows, and it draws."""
    out = np.zeros((samples(2.8), 2))
    for at in np.sort(RANDOM.uniform(0.0, 0.42, 13)):
        tune = RANDOM.uniform(0.7, 1.5)
        put(out, stereo(struck(0.09, [(420 * tune, 1.0, 0.04), (1130 * tune, 0.6, 0.03), (2600 * tune, 0.3, 0.018)], 0.0008),
                        RANDOM.uniform(-0.4, 0.4)), at, RANDOM.uniform(0.2, 0.6))
    for stroke, at in enumerate((0.55, 0.93, 1.28)):
        put(out, stereo(noise(0.32, 350, 3200) * hump(0.32, 0.11)), at, 0.26 + 0.06 * stroke)
        put(out, stereo(noise(0.55, 60, 380) * hump(0.55, 0.2)), at + 0.10, 0.22 + 0.14 * stroke)
    for at in np.sort(RANDOM.uniform(1.3, 2.3, 26)):
        put(out, stereo(noise(0.008, 900, 5200) * hump(0.008, 0.0008), RANDOM.uniform(-0.5, 0.5)), at, RANDOM.uniform(0.08, 0.4))
    chord(out, 1.40, (349.23, 440.0, 523.25), 1.3, 0.40, 0.06)
    return reverberate(out, room(0.5, RANDOM, 3600), 0.18)


def automaton():
    """A penny drops, a ratchet is wound, and a small mechanism remembers its tune."""
    out = np.zeros((samples(3.0), 2))
    for at, gain in ((0.0, 1.0), (0.11, 0.6), (0.19, 0.4), (0.245, 0.25)):
        put(out, stereo(struck(0.3, [(2730, 1.0, 0.18), (4410, 0.6, 0.12), (6100, 0.3, 0.07)], 0.0006), -0.2), at, 0.42 * gain)
    at = 0.42
    for tooth in range(13):
        put(out, stereo(struck(0.06, [(900, 0.8, 0.025), (2100, 0.6, 0.018), (3900, 0.3, 0.01)], 0.0005), 0.2), at, 0.30 + 0.015 * tooth)
        at += 0.062 - 0.0012 * tooth
    for step, (when, frequency) in enumerate(((0, 587.33), (1, 783.99), (1.5, 880.0), (2, 932.33), (3, 880.0), (4, 783.99))):
        reed = struck(1.0, [(frequency * 2, 1.0, 0.8), (frequency * 4.02, 0.35, 0.4), (frequency * 8.3, 0.12, 0.15)], 0.002)
        put(out, stereo(reed, -0.2 + 0.1 * step), 1.18 + 0.17 * when, 0.5)
        put(out, stereo(struck(0.03, [(1500, 1.0, 0.012)], 0.0005), 0.25), 1.18 + 0.17 * when, 0.10)
    return reverberate(out, room(0.7, RANDOM, 5600), 0.22)


def greatlamp():
    """The great burner takes with a breath that fills the drum, and the lens begins to turn."""
    out = np.zeros((samples(4.0), 2))
    for at in (0.0, 0.16, 0.30, 0.43):  # oil down the pipe
        t = np.arange(samples(0.11)) / master.RATE
        put(out, stereo(np.sin(2 * np.pi * (260 * t + 900 * t * t)) * hump(0.11, 0.03)), at, 0.22)
    put(out, stereo(noise(1.5, 50, 340) * hump(1.5, 0.3)), 0.50, 0.62)
    put(out, stereo(noise(1.1, 700, 4200) * hump(1.1, 0.14)), 0.52, 0.16)
    for stroke in range(6):  # the clockwork under it
        put(out, stereo(struck(0.14, [(210, 1.0, 0.07), (540, 0.6, 0.05), (1250, 0.25, 0.03)], 0.001)), 1.15 + 0.36 * stroke, 0.16)
    chord(out, 0.80, (261.63, 329.63, 392.0, 523.25, 659.26), 2.4, 0.44, 0.12)
    chord(out, 1.55, (1046.5, 1318.5), 1.6, 0.14, 0.02)
    return reverberate(out, room(1.5, RANDOM, 4800), 0.28)


def strongbox():
    """The second key turns, the bolts go back, and an iron lid that has not been lifted for years is lifted."""
    out = np.zeros((samples(2.4), 2))
    for tooth in range(3):
        put(out, stereo(struck(0.06, [(1350, 0.8, 0.03), (2900, 0.6, 0.02), (4700, 0.3, 0.012)], 0.0005), 0.2), 0.045 * tooth, 0.22)
    put(out, stereo(struck(0.14, [(420, 1.0, 0.06), (980, 0.6, 0.045), (2100, 0.35, 0.03)], 0.0008), 0.2), 0.15, 0.42)
    for at, gain in ((0.27, 1.0), (0.35, 0.7)):
        put(out, stereo(struck(0.3, [(165, 1.0, 0.16), (330, 0.7, 0.12), (760, 0.45, 0.09), (1640, 0.25, 0.05)], 0.001)), at, 0.75 * gain)
    at = 0.52
    while at < 1.12:  # its hinge
        share = (at - 0.52) / 0.60
        put(out, stereo(struck(0.05, [(690 + 260 * share, 1.0, 0.035), (1730 + 500 * share, 0.5, 0.02)], 0.0006), 0.1), at,
            0.24 * np.sin(np.pi * share) + 0.03)
        at += RANDOM.uniform(0.8, 1.2) / (42 + 38 * np.sin(np.pi * share))
    put(out, stereo(struck(0.25, [(118, 1.0, 0.15), (205, 0.6, 0.10), (470, 0.3, 0.06)], 0.002)), 1.14, 0.55)
    chord(out, 0.90, (440.0, 554.37, 659.26, 880.0), 1.3, 0.36, 0.03)
    return reverberate(out, room(0.6, RANDOM, 3800), 0.2)


def main(out):
    for make in (find, click, wrong, card, jigsaw, page, litter, returned, welldone, stamp, lantern, fire, automaton, greatlamp, strongbox):
        sound = master.peak_set(tail_cut(make()))
        master.write(f"{out}/{make.__name__}.wav", sound)
        print(f"{make.__name__}.wav: {len(sound) / master.RATE:.2f} s, {master.level(sound):.1f} dB RMS")


main(sys.argv[1])
