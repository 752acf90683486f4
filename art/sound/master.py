"""Levels, loops and files: what every sound goes through last."""

import subprocess
import sys
import wave

import numpy as np

RATE = 44100
CEILING = 10 ** (-3.6 / 20)  # under -3 dB by what lossy coding may overshoot


def read(path):
    with wave.open(path) as source:
        data = np.frombuffer(source.readframes(source.getnframes()), "<i2").astype(float) / 32768
        return data.reshape(-1, source.getnchannels())


def write(path, sound):
    sound = np.asarray(sound, float)
    sound = sound.reshape(len(sound), -1)
    noise = np.random.default_rng(5)
    dither = (noise.random(sound.shape) - noise.random(sound.shape)) / 32768
    with wave.open(path, "wb") as out:
        out.setnchannels(sound.shape[1])
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes((np.clip(sound + dither, -1, 1) * 32767).astype("<i2").tobytes())


def level(sound):
    return 20 * np.log10(np.sqrt(np.mean(np.square(sound))) + 1e-12)


def peak_set(sound, decibel=-3.1):
    return sound * 10 ** (decibel / 20) / np.abs(sound).max()


def limit(sound, loop):
    """Looking ahead by 4 ms; for a loop the gain runs round the seam."""
    need = np.minimum(1, CEILING / np.maximum(np.abs(sound).max(axis=1), 1e-9))
    ahead = int(0.004 * RATE)
    pad = 8 * ahead
    ends = np.concatenate([need[-pad:], need, need[:pad]]) if loop else np.pad(need, pad, constant_values=1)
    from scipy.ndimage import minimum_filter1d, uniform_filter1d
    held = minimum_filter1d(ends, 4 * ahead + 1)
    gain = uniform_filter1d(uniform_filter1d(held, 2 * ahead + 1), 2 * ahead + 1)[pad:-pad]
    return sound * gain[:, None]


def loudness_set(sound, decibel, loop=True):
    for _ in range(6):
        sound = limit(sound * 10 ** ((decibel - level(sound)) / 20), loop)
    return sound


def cycle_cut(sound, seconds):
    """The second of two rendered cycles: the tail of the first is in it. The last 40 ms lead into its first sample."""
    length = int(round(seconds * RATE))
    cycle = sound[length:2 * length].copy()
    count = int(0.04 * RATE)
    ramp = np.linspace(0, 1, count)[:, None]
    cycle[-count:] = cycle[-count:] * (1 - ramp) + sound[length - count:length] * ramp
    return cycle


def encode(wav, path):
    """By the file's ending. LAME notes how much silence it added, so that players repeat without a gap."""
    if path.endswith(".mp3"):
        subprocess.run(["lame", "--quiet", "-V", "2", wav, path], check=True)
    else:
        subprocess.run(["oggenc", "-Q", "-s", "1", "-q", "4", wav, "-o", path], check=True)


def music(score, name, cycle_beats, font, work, out, decibel=-19.0, file=None):
    """Render a score to a loop without a gap; its file has the tune's name unless another one is given."""
    score.write(f"{work}/{name}.mid", cycle_beats, 3)
    raw = f"{work}/{name}_raw.wav"
    subprocess.run(["fluidsynth", "-ni", "-q", "-g", "0.5", "-r", str(RATE), "-O", "s16",
                    "-o", "synth.reverb.active=1", "-o", "synth.reverb.room-size=0.72", "-o", "synth.reverb.damp=0.35",
                    "-o", "synth.reverb.width=0.8", "-o", "synth.reverb.level=0.55", "-o", "synth.chorus.active=0",
                    "-F", raw, font, f"{work}/{name}.mid"], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    sound = read(raw)
    if np.abs(sound).max() > 0.99:
        sys.exit(f"{name}: the synthesiser clips; lower its gain")
    seconds = score.seconds(cycle_beats)
    cycle = cycle_cut(sound, seconds)
    loop = loudness_set(cycle - cycle.mean(axis=0), decibel)  # some instruments of the set sit off the middle
    write(f"{work}/{name}.wav", loop)
    file = file or f"{name}.ogg"
    encode(f"{work}/{name}.wav", f"{out}/{file}")
    print(f"{file}: {seconds:.2f} s, {level(loop):.1f} dB RMS")
