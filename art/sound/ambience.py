"""Two places to listen to. Each is a ring: what sounds over its end goes on at its start."""

import sys

import numpy as np

import master
from dsp import RATE, band, bell, hump, noise_ring, put, reverberate_ring, room, samples, stereo, struck, times

SECONDS = 24.0
COUNT = samples(SECONDS)


def swell(random, turns, depth):
    """A slow rise and fall, whole turns round the ring."""
    t = np.arange(COUNT) / COUNT
    wave = sum(np.sin(2 * np.pi * (turn * t + random.random())) / (i + 1) for i, turn in enumerate(turns))
    return 1 + depth * wave / np.abs(wave).max()


def wash(random, low, high, slope, turns, depth):
    ears = [noise_ring(COUNT, low, high, random, slope) * swell(random, turns, depth) for _ in range(2)]
    return np.stack(ears, axis=1)


def lap(random):
    """One small wave against the quay: a slap, a wash behind it, a few bubbles."""
    seconds = random.uniform(0.9, 1.7)
    count = samples(seconds)
    body = noise_ring(count, 180, random.uniform(900, 1600), random, -4) * hump(seconds, random.uniform(0.12, 0.3))
    hiss = noise_ring(count, 1200, 4200, random, -5) * hump(seconds, random.uniform(0.25, 0.45))
    sound = body + 0.35 * hiss
    for _ in range(random.integers(2, 7)):
        length = random.uniform(0.03, 0.09)
        t = times(length)
        start = random.uniform(320, 820)
        drop = np.sin(2 * np.pi * (start * t + start * 3.0 * t * t)) * np.exp(-t / (length * 0.3)) * np.minimum(1, t / 0.004)
        put(sound, drop, random.uniform(0.1, seconds - 0.15), random.uniform(0.3, 0.9))
    return sound


def cry(length, top, random):
    """One cry of a gull: up fast, down slowly, rough in the throat."""
    t = times(length)
    share = t / length
    tone = top * (0.72 + 0.28 * np.sin(np.pi * np.minimum(1, share * 1.25 + 0.12)) - 0.12 * share)
    tone *= 1 + 0.012 * np.sin(2 * np.pi * 27 * t + random.uniform(0, 6))
    phase = 2 * np.pi * np.cumsum(tone) / RATE
    voice = sum(a * np.sin(k * phase) for k, a in ((1, 0.8), (2, 1.0), (3, 0.55), (4, 0.3), (5, 0.14)))
    breath = band(random.standard_normal(len(t)), 1500, 4500) * 0.12
    return (voice + breath) * hump(length, length * 0.22)


def gull(random, top, calls):
    out = np.zeros(samples(0.5 * calls + 1.2))
    at = 0.0
    for call in range(calls):
        length = (0.52 if call == 0 else 0.26) * random.uniform(0.9, 1.1)
        put(out, cry(length, top * (1.06 if call == 0 else 1 - 0.02 * call), random), at, 1.0 if call else 0.85)
        at += length + random.uniform(0.06, 0.12)
    return out


def creak(random, seconds, low, high, bodies):
    """Wood that sticks and slips: a train of small knocks, faster, then slower, in the timber's own resonances."""
    count = samples(seconds)
    knocks = np.zeros(count)
    at = 0.0
    while at < seconds - 0.02:
        share = at / seconds
        rate = low + (high - low) * np.sin(np.pi * share) ** 1.5
        knocks[samples(at)] = random.uniform(0.5, 1.0)
        at += random.uniform(0.8, 1.2) / rate
    sound = np.zeros(count)
    for frequency, gain, fall in bodies:
        body = struck(0.12, [(frequency, gain, fall)], 0.0008)
        sound += np.convolve(knocks, body)[:count]
    return sound * hump(seconds, seconds * 0.45)


def harbour(random):
    out = 0.09 * wash(random, 90, 420, -4, (2, 3, 5), 0.4) + 0.045 * wash(random, 500, 3500, -5, (3, 4, 7), 0.5)
    at = 0.0
    while at < SECONDS - 0.4:
        put(out, stereo(lap(random), random.uniform(-0.8, 0.8)), at, random.uniform(0.05, 0.15))
        at += random.uniform(0.5, 1.3)
    far = np.zeros_like(out)
    for where, top, calls, pan, gain in ((2.6, 1050, 4, -0.6, 0.05), (4.4, 960, 2, 0.3, 0.03), (11.8, 1120, 5, 0.7, 0.045),
                                         (18.9, 1000, 3, -0.2, 0.035)):
        put(far, stereo(gull(random, top, calls), pan), where, gain)
    for where in (7.1, 7.62, 8.05, 15.4, 15.85, 22.6):  # a halyard against its mast
        tink = struck(0.5, [(1730, 1.0, 0.35), (2950, 0.6, 0.22), (4480, 0.35, 0.15), (310, 0.5, 0.08)])
        put(far, stereo(tink, 0.45), where + random.uniform(0, 0.05), random.uniform(0.035, 0.06))
    put(far, stereo(bell(523.0, 3.0, 0.6), -0.75), 13.9, 0.035)  # the buoy outside
    put(far, stereo(bell(523.0, 3.0, 0.6), -0.75), 21.2, 0.022)
    for where, pan in ((5.6, -0.3), (10.1, 0.6), (16.9, -0.5)):  # a mooring rope takes the strain
        rope = creak(random, random.uniform(0.8, 1.3), 38, 70, [(360, 1.0, 0.03), (820, 0.5, 0.02), (1400, 0.25, 0.015)])
        put(far, stereo(rope, pan), where, 0.035)
    return out + reverberate_ring(2.2 * far, room(1.6, random, 3800), 0.5)


def cabin(random):
    sea = 0.13 * wash(random, 75, 260, -5, (2, 3, 5), 0.5) + 0.035 * wash(random, 230, 1100, -6, (2, 4, 5), 0.6)
    t = np.arange(COUNT) / RATE
    beats = round(1.25 * SECONDS) / SECONDS  # the engine turns over, far below
    throb = 0.5 + 0.5 * np.cos(2 * np.pi * beats * t) + 0.25 * np.cos(4 * np.pi * beats * t + 0.8)
    engine = noise_ring(COUNT, 45, 95, random) * np.clip(throb, 0, None) ** 1.5
    out = sea + stereo(0.03 * engine)
    wood = np.zeros_like(out)
    timbers = ([(240, 1.0, 0.07), (530, 0.6, 0.05), (1180, 0.28, 0.03)], [(310, 1.0, 0.06), (760, 0.55, 0.04), (1650, 0.2, 0.02)],
               [(180, 1.0, 0.09), (410, 0.7, 0.06), (890, 0.3, 0.04)])
    for where, length, low, high, kind, pan, gain in (
            (1.4, 1.5, 14, 34, 0, -0.5, 0.10), (3.3, 0.6, 22, 48, 1, 0.4, 0.06), (6.8, 1.9, 11, 30, 2, 0.1, 0.11),
            (9.2, 0.8, 26, 60, 1, 0.7, 0.05), (12.3, 1.4, 14, 36, 0, -0.6, 0.09), (15.0, 0.5, 20, 44, 1, 0.3, 0.06),
            (17.7, 2.1, 10, 28, 2, -0.2, 0.11), (20.3, 0.9, 24, 52, 1, 0.6, 0.05), (22.4, 1.2, 13, 33, 0, -0.4, 0.08)):
        put(wood, stereo(creak(random, length, low, high, timbers[kind]), pan), where, gain)
    for where, gain in ((5.3, 0.030), (5.62, 0.018), (14.0, 0.026), (14.35, 0.015), (21.6, 0.022)):
        chain = struck(0.35, [(2140, 1.0, 0.2), (3310, 0.6, 0.14), (5200, 0.3, 0.09)])  # the hanging lamp's ring
        put(wood, stereo(chain, 0.25), where, gain)
    return out + reverberate_ring(3.4 * wood, room(0.45, random, 2600), 0.35)


def main(out, decibel=-27.0):
    """Quiet: they lie under the music and share the effects' volume."""
    for make, seed in ((harbour, 31), (cabin, 47)):
        sound = master.loudness_set(make(np.random.default_rng(seed)), decibel)
        master.write(f"{out}/ambient_{make.__name__}.wav", sound)
        print(f"ambient_{make.__name__}.wav: {SECONDS} s, {master.level(sound):.1f} dB RMS, "
              f"peak {20 * np.log10(np.abs(sound).max()):.1f} dB")


main(sys.argv[1])
