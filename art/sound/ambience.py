"""Five places to listen to. Each is a ring: what sounds over its end goes on at its start."""

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


def beats_along(out, sound, beats, share, pan, gain, random):
    """The same sound at even times: `beats` of them in the ring, the first at `share` of a beat."""
    for beat in range(beats):
        put(out, stereo(sound, pan), SECONDS * (beat + share) / beats, gain * random.uniform(0.85, 1.0))


def blip(length, start, rise):
    """A bubble: a note that climbs as it nears the surface."""
    t = times(length)
    tone = np.sin(2 * np.pi * (start * t + 0.5 * rise * start * t * t / length))
    return tone * np.exp(-t / (length * 0.35)) * np.minimum(1, t / 0.003)


def simmer(random, low, high, each_second):
    """A pot on the range: bubbles in bouts, since the ship's roll carries the water off the hot side and back."""
    out = np.zeros(COUNT)
    bouts = swell(random, (3, 5, 8), 0.8)
    for at in np.sort(random.uniform(0, SECONDS, int(SECONDS * each_second))):
        strength = bouts[samples(at) % COUNT]
        put(out, blip(random.uniform(0.03, 0.10), random.uniform(low, high), random.uniform(0.3, 1.0)), at,
            strength * random.uniform(0.2, 1.0) ** 2)
    return out


def crock(random, pitch, hard):
    """Glazed ware against glazed ware."""
    partials = [(pitch, 1.0, 0.16), (pitch * 2.31, 0.55, 0.10), (pitch * 3.87, 0.30 * hard, 0.06), (pitch * 5.6, 0.16 * hard, 0.04),
                (pitch * 0.37, 0.4, 0.05)]
    return struck(0.25, partials, 0.0008) * random.uniform(0.8, 1.0)


def galley(random):
    t = np.arange(COUNT) / RATE
    beats = round(1.25 * SECONDS) / SECONDS  # the same engine as in the cabin, a bulkhead nearer
    throb = 0.5 + 0.5 * np.cos(2 * np.pi * beats * t) + 0.3 * np.cos(4 * np.pi * beats * t + 0.8)
    engine = noise_ring(COUNT, 45, 120, random) * np.clip(throb, 0, None) ** 1.5
    out = 0.07 * wash(random, 75, 300, -5, (2, 3, 5), 0.5) + stereo(0.045 * engine)
    steam = stereo(noise_ring(COUNT, 2600, 7500, random, -2) * swell(random, (2, 5, 7), 0.7), -0.35)
    fire = stereo(noise_ring(COUNT, 110, 520, random, -3) * swell(random, (3, 4, 7), 0.4), -0.1)
    out += 0.010 * steam + 0.035 * fire
    near = np.zeros_like(out)
    put(near, stereo(simmer(random, 210, 420, 16), -0.45), 0, 0.050)
    put(near, stereo(simmer(random, 480, 900, 11), -0.1), 0, 0.030)
    for at in np.sort(random.uniform(0, SECONDS, 34)):  # coal settles in the range
        put(near, stereo(band(random.standard_normal(samples(0.012)), 900, 4200) * np.linspace(1, 0, samples(0.012)) ** 3, -0.15),
            at, random.uniform(0.01, 0.045))
    for where, strokes in ((1.8, 7), (8.7, 9), (14.1, 5), (19.9, 8)):  # a lid dances on its steam
        at = where
        for stroke in range(strokes):
            lid = struck(0.12, [(1180, 0.8, 0.08), (2060, 0.6, 0.06), (3390, 0.4, 0.04), (620, 0.5, 0.05)], 0.0006)
            put(near, stereo(lid, -0.4), at, 0.030 * np.sin(np.pi * (stroke + 1) / (strokes + 1)) * random.uniform(0.6, 1.0))
            at += random.uniform(0.075, 0.12)
    far = np.zeros_like(out)
    for where, pitch, pan, gain in ((0.9, 1460, 0.5, 0.030), (1.14, 1720, 0.55, 0.020), (4.6, 1330, 0.3, 0.026), (6.2, 1890, 0.7, 0.018),
                                    (6.31, 1540, 0.65, 0.024), (6.47, 1660, 0.7, 0.014), (10.9, 1390, 0.6, 0.028), (13.2, 1770, 0.4, 0.020),
                                    (16.4, 1480, 0.5, 0.024), (16.62, 1250, 0.45, 0.018), (21.3, 1610, 0.6, 0.028), (21.42, 1920, 0.7, 0.016)):
        put(far, stereo(crock(random, pitch, random.uniform(0.5, 1.0)), pan), where, 1.5 * gain)
    for where, gain in ((11.7, 0.05), (12.02, 0.055), (12.33, 0.05), (12.66, 0.06), (12.97, 0.05), (17.6, 0.045), (17.93, 0.05), (18.25, 0.04)):
        chop = struck(0.14, [(205, 1.0, 0.07), (390, 0.6, 0.05), (870, 0.25, 0.03)], 0.001)  # a knife on the board
        put(far, stereo(chop, 0.2), where + random.uniform(0, 0.02), gain)
    timber = [(260, 1.0, 0.07), (570, 0.6, 0.05), (1220, 0.28, 0.03)]
    for where, length, low, high, pan, gain in ((3.1, 1.3, 14, 34, 0.7, 0.08), (9.9, 0.9, 22, 50, -0.7, 0.06), (15.2, 1.6, 12, 30, 0.5, 0.08),
                                                (22.6, 1.1, 16, 38, -0.6, 0.07)):
        put(far, stereo(creak(random, length, low, high, timber), pan), where, gain)
    return out + reverberate_ring(3.2 * near + 3.2 * far, room(0.4, random, 3400), 0.3)


def tick(random, pitch, dry):
    """A clock's escapement: the tooth lets go, and the case answers."""
    body = struck(0.09, [(pitch, 0.8, 0.030 / dry), (pitch * 1.83, 0.5, 0.020 / dry), (pitch * 3.1, 0.25, 0.012)], 0.0005)
    put(body, band(random.standard_normal(samples(0.004)), 1800, 7000) * np.linspace(1, 0, samples(0.004)), 0, 0.35)
    return body


def hoof(random):
    knock = struck(0.12, [(330, 1.0, 0.05), (720, 0.7, 0.04), (1350, 0.3, 0.025)], 0.001)
    put(knock, band(random.standard_normal(samples(0.012)), 600, 3000) * np.linspace(1, 0, samples(0.012)) ** 2, 0, 0.3)
    return knock


def shop(random):
    street = 0.05 * wash(random, 90, 520, -4, (2, 3, 5), 0.35) + 0.012 * wash(random, 600, 2400, -5, (3, 5, 7), 0.4)
    indoors = 0.018 * wash(random, 140, 900, -6, (2, 3), 0.2)
    clocks = np.zeros_like(street)
    # beats in the ring, tick and tock, dryness, pan, gain: a tall clock, two on the wall, a carriage clock, three watches
    for beats, high, low, dry, pan, gain in ((24, 620, 540, 0.45, -0.7, 0.105), (37, 1150, 980, 0.8, 0.45, 0.050),
                                             (44, 1420, 1330, 0.9, -0.2, 0.034), (58, 1900, 1760, 1.1, 0.75, 0.026),
                                             (96, 3050, 2900, 1.6, 0.1, 0.013), (119, 3600, 3450, 1.8, -0.45, 0.011),
                                             (121, 2700, 2650, 1.8, 0.6, 0.009)):
        for beat in range(beats):
            sound = tick(random, high if beat % 2 == 0 else low, dry)
            put(clocks, stereo(sound, pan), SECONDS * (beat + 0.13 + (0.05 if beat % 2 else 0)) / beats, gain * random.uniform(0.88, 1.0))
    far = np.zeros_like(street)
    for where, gain in ((6.40, 0.030), (6.52, 0.040), (6.66, 0.034), (6.83, 0.024), (7.06, 0.014)):  # the door of another shop
        put(far, stereo(bell(1244.5, 0.9, 0.9), 0.65), where, gain)
        put(far, stereo(bell(1661.2, 0.7, 0.7), 0.65), where + 0.03, 0.5 * gain)
    for stroke, frequency in enumerate((659.3, 587.3, 523.3, 587.3)):  # a mantel clock is a quarter late
        put(far, stereo(bell(frequency, 2.0, 0.4), -0.4), 17.2 + 0.62 * stroke, 0.032)
    lane = np.zeros(COUNT)
    at = 9.4
    while at < 15.8:  # a horse and cart along the street, from one side to the other
        loud = np.sin(np.pi * (at - 9.4) / 6.4) ** 2
        for offset in (0, 0.17):
            put(lane, band(hoof(random), 150, 1600), at + offset + random.uniform(0, 0.015), loud * (1 if offset == 0 else 0.75))
        at += 0.56
    wheels = np.zeros(COUNT)
    put(wheels, noise_ring(samples(7.4), 80, 700, random, -4) * hump(7.4, 3.7), 9.0)
    across = np.clip((np.arange(COUNT) / RATE - 9.0) / 7.4, 0, 1) * np.pi / 2
    passing = (0.085 * lane + 0.022 * wheels)[:, None] * np.stack([np.cos(across), np.sin(across)], axis=1)
    far += passing
    for where, pan, gain in ((2.7, 0.3, 0.05), (3.25, 0.25, 0.04), (20.6, -0.5, 0.045)):  # a floorboard, a cabinet in the sun
        wood = creak(random, random.uniform(0.35, 0.7), 22, 50, [(340, 1.0, 0.05), (790, 0.5, 0.035), (1600, 0.2, 0.02)])
        put(clocks, stereo(wood, pan), where, gain)
    return street + indoors + reverberate_ring(2.1 * clocks, room(0.5, random, 4200), 0.3) + reverberate_ring(1.6 * far, room(1.2, random, 2600), 0.5)


def howl(random, low, high, turns, bands=14):
    """Wind in a gap: narrow bands of noise, of which those near a wandering pitch sound."""
    t = np.arange(COUNT) / COUNT
    wander = sum(np.sin(2 * np.pi * (turn * t + random.random())) / (i + 1) for i, turn in enumerate(turns))
    wander = 0.5 + 0.5 * wander / np.abs(wander).max()
    frequency = np.fft.rfftfreq(COUNT, 1 / RATE)
    out = np.zeros(COUNT)
    for index in range(bands):
        share = index / (bands - 1)
        centre = low * (high / low) ** share
        spectrum = np.exp(-((frequency - centre) / (0.035 * centre)) ** 2)
        voice = np.fft.irfft(spectrum * np.exp(1j * random.uniform(0, 2 * np.pi, len(frequency))), COUNT)
        out += voice / np.sqrt(np.mean(voice ** 2)) * np.exp(-((share - wander) / 0.12) ** 2)
    return out * (0.25 + 0.75 * wander ** 1.5)


def lamproom(random):
    """A gale goes round a glass drum; the sea is a long way down; iron that is walked on only by the weather."""
    surf = np.zeros((COUNT, 2))
    for where, pan in ((1.0, -0.4), (6.2, 0.4), (10.4, -0.1), (15.9, 0.5), (20.3, -0.5)):  # seas on the rock
        length = random.uniform(4.2, 5.6)
        put(surf, stereo(noise_ring(samples(length), 60, 420, random, -4) * hump(length, length * 0.3), pan), where, 1.0)
    gale = 0.07 * wash(random, 110, 700, -4, (3, 4, 7), 0.55) + 0.028 * wash(random, 700, 3200, -5, (4, 5, 9), 0.7)
    out = gale + 0.13 * surf + 0.05 * wash(random, 40, 130, -3, (2, 3, 5), 0.5)
    out += stereo(0.07 * howl(random, 260, 620, (2, 3, 5, 7)), -0.55) + stereo(0.045 * howl(random, 420, 1050, (3, 4, 5, 8)), 0.6)
    near = np.zeros_like(out)
    for where, length, gain in ((2.0, 2.6, 0.6), (8.9, 3.4, 1.0), (14.2, 2.2, 0.7), (19.0, 3.8, 0.9)):  # spray thrown on the panes
        for at in random.uniform(0, length, int(70 * length)):
            drop = struck(0.03, [(random.uniform(2300, 5200), 1.0, 0.018), (random.uniform(900, 1500), 0.4, 0.02)], 0.0005)
            put(near, stereo(drop, random.uniform(-0.9, 0.9)), where + at,
                0.028 * gain * np.sin(np.pi * at / length) * random.uniform(0.1, 1.0) ** 2)
    for where, strokes, pan in ((4.1, 6, -0.6), (11.3, 9, 0.5), (17.4, 5, -0.3), (22.1, 7, 0.7)):  # a pane loose in its lead
        at = where
        for stroke in range(strokes):
            pane = struck(0.09, [(430, 0.8, 0.05), (1010, 0.5, 0.035), (2240, 0.25, 0.02)], 0.001)
            put(near, stereo(pane, pan), at, 0.030 * random.uniform(0.4, 1.0))
            at += random.uniform(0.055, 0.10)
    iron = [(410, 1.0, 0.16), (655, 0.7, 0.13), (1130, 0.45, 0.09), (1890, 0.2, 0.05)]
    for where, length, low, high, pan, gain in ((0.6, 1.4, 16, 42, 0.4, 0.05), (7.0, 2.0, 11, 30, -0.5, 0.06), (12.9, 1.1, 20, 52, 0.6, 0.045),
                                                (18.3, 1.8, 13, 34, -0.2, 0.055)):  # the gallery
        put(near, stereo(creak(random, length, low, high, iron), pan), where, gain)
    turn = struck(0.2, [(300, 1.0, 0.08), (760, 0.5, 0.06), (1640, 0.25, 0.04)], 0.001)  # the clockwork that carries the lens
    beats_along(near, turn, 16, 0.3, 0.05, 0.035, random)
    return out + reverberate_ring(2.6 * near, room(0.9, random, 3600), 0.4)


def main(out, decibel=-27.0):
    """Quiet: they lie under the music and share the effects' volume."""
    for make, seed in ((harbour, 31), (cabin, 47), (galley, 53), (shop, 61), (lamproom, 73)):
        sound = master.loudness_set(make(np.random.default_rng(seed)), decibel)
        master.write(f"{out}/ambient_{make.__name__}.wav", sound)
        print(f"ambient_{make.__name__}.wav: {SECONDS} s, {master.level(sound):.1f} dB RMS, "
              f"peak {20 * np.log10(np.abs(sound).max()):.1f} dB")


main(sys.argv[1])
