"""A score as text, written out as a MIDI file.

Time is counted in beats of the score's own unit (a quarter, or an eighth in 6/8). A line of melody is text:
`D5:3 E5:2 F5:1 | E5:3 C5:2 G4:1`, pitch and length, `R` for a rest; a bar that is not full stops the program with its
number, so that a slip of the pen is found before it is heard.
"""

import random
import re
import struct

TICKS = 480
NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
KINDS = {"": (0, 4, 7), "m": (0, 3, 7), "7": (0, 4, 10), "m7": (0, 3, 10), "sus": (0, 5, 7), "dim": (0, 3, 6)}


def pitch_class(text):
    return NAMES[text[0]] + text.count("#") - text[1:].count("b")


def pitch(text):
    """MIDI number of a name such as F#5 or Bb4; middle C is C4."""
    return pitch_class(text[:-1]) + 12 * (int(text[-1]) + 1)


def chord(text):
    """Pitch classes of a chord and of its bass: Am, F/A, A7."""
    head, _, bass = text.partition("/")
    root, kind = re.match(r"([A-G][#b]?)(.*)", head).groups()
    base = pitch_class(root)
    return [(base + step) % 12 for step in KINDS[kind]], pitch_class(bass or root) % 12


def nearest(pc, reference):
    return min((n for n in range(128) if n % 12 == pc), key=lambda n: abs(n - reference))


def line(text, bar_beats):
    """Notes (start, length, pitch) of a line of melody, and how long it is."""
    notes, start = [], 0.0
    for number, bar in enumerate(text.split("|"), 1):
        begin = start
        for token in bar.split():
            name, length = token.split(":")
            if name != "R":
                notes.append((start, float(length), pitch(name)))
            start += float(length)
        if abs(start - begin - bar_beats) > 1e-6:
            raise SystemExit(f"bar {number} has {start - begin} of {bar_beats} beats: {bar}")
    return notes, start


def chords(text, bar_beats):
    """Chords (start, length, pitch classes, bass) of a line such as `Dm | Gm A7`; those of a bar share it evenly."""
    result = []
    for number, bar in enumerate(text.split("|")):
        names = bar.split()
        for index, name in enumerate(names):
            length = bar_beats / len(names)
            result.append((number * bar_beats + index * length, length, *chord(name)))
    return result


def clashes(melody, harmony):
    """Long or accented melody notes that are not in their chord: worth a look, often right (a suspension)."""
    found = []
    for start, length, note in melody:
        for begin, span, classes, _ in harmony:
            if begin <= start < begin + span and start == begin and note % 12 not in classes:
                found.append((start, note))
    return found


def section(name, tune, harmony, bar_beats):
    """The tune's notes, its length in beats and its chords; names on standard output what is held against them."""
    notes, length = line(tune, bar_beats)
    harmonies = chords(harmony, bar_beats)
    for where, note in clashes(notes, harmonies):
        print(f"  {name}: beat {where} holds {note} outside its chord")
    return notes, length, harmonies


class Voicing:
    """Three voices that move as little as they can from chord to chord."""

    def __init__(self, centre):
        self.centre = centre
        self.last = None

    def next(self, classes):
        choices = []
        for turn in range(3):
            order = classes[turn:] + classes[:turn]
            low = nearest(order[0], self.centre - 4)
            notes = [low]
            for pc in order[1:]:
                note = notes[-1] + 1
                while note % 12 != pc:
                    note += 1
                notes.append(note)
            choices.append(notes)
        if self.last is None:
            best = min(choices, key=lambda n: abs(sum(n) / 3 - self.centre))
        else:
            best = min(choices, key=lambda n: sum(abs(a - b) for a, b in zip(n, self.last))
                       + 0.4 * abs(sum(n) / 3 - self.centre))
        self.last = best
        return best


class Score:
    def __init__(self, seed, beats_per_minute):
        self.random = random.Random(seed)
        self.tempos = [(0.0, beats_per_minute)]
        self.channels = {}
        self.events = []
        self.controls = []

    def part(self, name, program, volume, pan, reverb, drums=False):
        used = {c["channel"] for c in self.channels.values()}
        number = 9 if drums else next(n for n in range(16) if n != 9 and n not in used)
        self.channels[name] = dict(channel=number, program=program, volume=volume, pan=pan, reverb=reverb)

    def tempo(self, beat, beats_per_minute):
        self.tempos.append((beat, beats_per_minute))

    def note(self, part, start, length, number, velocity, loose=0.012):
        """loose: how far, in beats, the player may be off the beat."""
        shift = self.random.uniform(-loose, loose)
        force = max(1, min(127, int(velocity + self.random.uniform(-4, 4))))
        self.events.append((max(0.0, start + shift), length, self.channels[part]["channel"], number, force))

    def swell(self, part, start, length, low, high):
        """Expression up to the middle of the span and down again."""
        steps = 24
        for step in range(steps + 1):
            shape = 1 - abs(2 * step / steps - 1)
            self.controls.append((start + length * step / steps, self.channels[part]["channel"], 11,
                                  int(low + (high - low) * shape)))

    def melody(self, part, start, notes, velocity, strong, legato=0.97, transpose=0, loose=0.012):
        """strong: beats of the bar that get an accent, as a set of starts modulo the bar, the bar's length last."""
        accents, bar = strong
        for begin, length, number in notes:
            accent = 7 if (begin % bar) in accents else 0
            self.note(part, start + begin, length * legato, number + transpose,
                      velocity + accent + (number - 72) * 0.35, loose)

    def seconds(self, beats):
        """Time of a beat of the first cycle."""
        total, tempos = 0.0, sorted(self.tempos)
        for index, (beat, speed) in enumerate(tempos):
            end = tempos[index + 1][0] if index + 1 < len(tempos) else beats
            if beats <= beat:
                break
            total += (min(end, beats) - beat) * 60.0 / speed
        return total

    def write(self, path, cycle_beats, cycles):
        """Every cycle is played alike, so that any one may follow any other."""
        tracks = [self._tempo_track(cycle_beats, cycles)]
        for name, channel in self.channels.items():
            tracks.append(self._part_track(channel, cycle_beats, cycles))
        with open(path, "wb") as out:
            out.write(b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS) + b"".join(tracks))

    def _tempo_track(self, cycle_beats, cycles):
        raw = []
        for cycle in range(cycles):
            for beat, speed in self.tempos:
                micro = struct.pack(">I", int(round(60e6 / speed)))[1:]
                raw.append((self._tick(cycle * cycle_beats + beat), 0, b"\xff\x51\x03" + micro))
        return self._track(raw)

    def _part_track(self, channel, cycle_beats, cycles):
        number = channel["channel"]
        raw = [(0, 0, bytes([0xC0 | number, channel["program"]]))]
        for control, key in ((7, "volume"), (10, "pan"), (91, "reverb")):
            raw.append((0, 0, bytes([0xB0 | number, control, channel[key]])))
        for cycle in range(cycles):
            base = cycle * cycle_beats
            for start, length, owner, note, force in self.events:
                if owner == number:
                    raw.append((self._tick(base + start), 2, bytes([0x90 | number, note, force])))
                    raw.append((self._tick(base + start + length), 1, bytes([0x80 | number, note, 0])))
            for start, owner, control, value in self.controls:
                if owner == number:
                    raw.append((self._tick(base + start), 0, bytes([0xB0 | number, control, value])))
        return self._track(raw)

    @staticmethod
    def _tick(beat):
        return int(round(beat * TICKS))

    @staticmethod
    def _length(number):
        out = [number & 127]
        while number > 127:
            number >>= 7
            out.append((number & 127) | 128)
        return bytes(reversed(out))

    def _track(self, raw):
        body, last = b"", 0
        for tick, _, data in sorted(raw, key=lambda item: (item[0], item[1])):
            body += self._length(tick - last) + data
            last = tick
        body += b"\x00\xff\x2f\x00"
        return b"MTrk" + struct.pack(">I", len(body)) + body
