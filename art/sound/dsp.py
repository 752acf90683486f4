"""Small tools for sounds made from nothing: shaped noise, struck bodies, rooms. All work on a ring when asked to."""

import numpy as np

RATE = 44100


def samples(seconds):
    return int(round(seconds * RATE))


def times(seconds):
    return np.arange(samples(seconds)) / RATE


def noise_ring(count, low, high, random, slope=0.0):
    """Noise between two frequencies that repeats after `count` samples without a seam; slope in dB an octave."""
    frequency = np.fft.rfftfreq(count, 1 / RATE)
    safe = np.maximum(frequency, 1.0)
    shape = 1 / np.sqrt(1 + (low / safe) ** 6) / np.sqrt(1 + (safe / high) ** 6)
    shape *= (safe / low) ** (slope / 6.02)
    shape[0] = 0
    phase = random.uniform(0, 2 * np.pi, len(frequency))
    sound = np.fft.irfft(shape * np.exp(1j * phase), count)
    return sound / np.sqrt(np.mean(sound ** 2))


def struck(seconds, partials, attack=0.0015):
    """A struck body: (frequency, loudness, seconds to fall by 60 dB) for each of its partials."""
    t = times(seconds)
    sound = sum(a * np.sin(2 * np.pi * f * t + 0.7 * i) * np.exp(-6.91 * t / d)
                for i, (f, a, d) in enumerate(partials))
    return sound * np.minimum(1, t / attack) * np.minimum(1, (seconds - t) / 0.01)


def bell(frequency, seconds, brightness=1.0):
    return struck(seconds, [(frequency, 1.0, seconds), (frequency * 2.003, 0.42 * brightness, seconds * 0.7),
                            (frequency * 2.76, 0.22 * brightness, seconds * 0.5),
                            (frequency * 5.41, 0.10 * brightness, seconds * 0.22)])


def band(sound, low, high, order=2):
    from scipy.signal import butter, sosfilt
    return sosfilt(butter(order, [low, high], "band", fs=RATE, output="sos"), sound)


def hump(seconds, rise):
    """From nothing to one at `rise` seconds and back, smooth at both ends."""
    t = times(seconds)
    up = np.sin(np.clip(t / rise, 0, 1) * np.pi / 2) ** 2
    down = np.cos(np.clip((t - rise) / (seconds - rise), 0, 1) * np.pi / 2) ** 2
    return up * down


def room(seconds, random, dark=4500.0):
    """Impulse response of a room, both ears: noise that dies away, its high end first."""
    count = samples(seconds)
    t = np.arange(count) / RATE
    ears = []
    for _ in range(2):
        low = noise_ring(count, 120, dark * 0.35, random) * np.exp(-6.91 * t / seconds)
        high = noise_ring(count, dark * 0.35, dark, random) * np.exp(-6.91 * t / (seconds * 0.5))
        ear = (low + 0.6 * high) * np.minimum(1, t / 0.006)
        ears.append(ear / np.sqrt(np.sum(ear ** 2)))
    return np.stack(ears, axis=1)


def reverberate(sound, response, wet):
    """Wet sound in both ears beside the dry one, with the tail behind it."""
    from scipy.signal import fftconvolve
    sound = stereo(sound)
    tail = np.zeros((len(sound) + len(response), 2))
    tail[:len(sound)] = sound
    for ear in range(2):
        part = fftconvolve(sound[:, ear], response[:, ear])
        tail[:len(part), ear] += wet * part
    return tail


def reverberate_ring(sound, response, wet):
    size = len(sound)
    padded = np.zeros_like(sound)
    padded[:len(response)] = response
    wet_sound = np.fft.irfft(np.fft.rfft(sound, axis=0) * np.fft.rfft(padded, axis=0), size, axis=0)
    return sound + wet * wet_sound


def stereo(sound, pan=0.0):
    """pan from -1, left, to 1, right, at even power."""
    if sound.ndim == 2:
        return sound
    angle = (pan + 1) * np.pi / 4
    return np.stack([sound * np.cos(angle), sound * np.sin(angle)], axis=1) * np.sqrt(2)


def put(target, sound, seconds, gain=1.0):
    """Mix a sound in at a time; on a longer sound than the target it goes round."""
    start = samples(seconds)
    where = (start + np.arange(len(sound))) % len(target)
    np.add.at(target, where, gain * sound)


def tail_cut(sound, floor=10 ** (-66 / 20)):
    sound = stereo(sound)
    loud = np.nonzero(np.abs(sound).max(axis=1) > floor * np.abs(sound).max())[0]
    sound = sound[:loud[-1] + 1].copy()
    fade = min(samples(0.02), len(sound))
    sound[-fade:] *= np.linspace(1, 0, fade)[:, None]
    return sound
