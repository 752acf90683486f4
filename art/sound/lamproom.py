"""The lamp room in a gale: C minor for cellos and horn over a swell of the low strings, E flat as the lamp takes, C major
while its beam goes round. Unit: a quarter."""

import sys

from master import music
from score import Score, Voicing, chords, line, nearest, section

BAR = 4
INTRO = ("Cm | Cm | Ab/C | Cm", "R:4 | R:2 G2:1 C3:1 | Eb3:3 D3:1 | C3:2 G2:2")
A = ("Cm | Ab | Fm | Gsus G | Cm | Eb | Fm | G7",
     "G3:2 C4:1.5 D4:.5 | Eb4:3 D4:.5 C4:.5 | C4:1 Ab3:1 F3:2 | C4:2 B3:2 |"
     "G3:2 C4:1.5 D4:.5 | Eb4:2 F4:1 G4:1 | Ab4:2 G4:1 F4:1 | G4:3 D4:1")
A2 = ("Cm | Ab | Fm | Gsus G | Cm | Eb | Ab | Bbsus Bb",
      "G3:2 C4:1.5 D4:.5 | Eb4:3 D4:.5 C4:.5 | C4:1 Ab3:1 F3:2 | C4:2 B3:2 |"
      "G3:2 C4:1.5 D4:.5 | Eb4:2 F4:1 G4:1 | C5:2 Bb4:1 Ab4:1 | Bb4:3 F4:1")
B = ("Eb | Bb/D | Cm | Ab | Eb/G | Fm | Ab | Bbsus Bb",
     "G4:2 Bb4:1.5 C5:.5 | Bb4:2 F4:1 Bb4:1 | C5:1.5 D5:.5 Eb5:2 | Eb5:1 D5:.5 C5:.5 Ab4:2 |"
     "Bb4:1 Eb5:1 G5:2 | F5:1.5 Eb5:.5 C5:1 Ab4:1 | C5:1 Eb5:1 Ab5:2 | Eb5:2 D5:1 F5:1")
CODA = ("Eb | Ab | Ab Bb | C", "G5:3 Eb5:1 | C5:3 Eb5:1 | C5:2 D5:2 | E5:4")
COUNTER_B = ("Eb4:2 G4:2 | F4:4 | G4:2 C5:2 | C5:2 C4:2 | G4:2 Bb4:2 | Ab4:2 F4:2 | Eb4:2 C5:2 | Bb4:2 Bb4:2")
STRONG = ({0, 2}, BAR)
FORM = (("intro", INTRO), ("a", A), ("a2", A2), ("b", B), ("coda", CODA))


def accompany(score, start, harmony, name):
    voicing = Voicing(55)
    light = name in ("b", "coda")
    storm = {"intro": 0.2, "a": 0.5, "a2": 1.0, "b": 0.6, "coda": 0.1}[name]
    for begin, length, classes, bass in chords(harmony, BAR):
        at = start + begin
        low = nearest(bass, 34)
        score.note("basses", at, length * 0.99, low, 64 + 10 * storm)
        score.note("celli", at, length * 0.99, low + 12, 50 + 8 * storm)
        voices = voicing.next(classes)
        for voice in voices:
            score.note("strings", at, length, voice, 54 + 10 * storm + 8 * light)
            if name in ("a", "a2"):
                score.note("tremolo", at, length, voice - 12, 52 + 16 * storm)
            if light:
                score.note("choir", at, length, voice, 54 if name == "b" else 62)
        if light:  # the beam comes round, once in a bar
            ladder = [low + 12] + voices + [v + 12 for v in voices] + [voices[0] + 24]
            for step in range(int(length * 2)):
                score.note("harp", at + step / 2, 2.5, ladder[[0, 1, 2, 3, 4, 5, 6, 7][step % 8]], 52 + 10 * (step == 0))
            score.note("glint", at + length - 0.5, 3, voices[2] + 24, 60)
    for begin in range(0, int(chords(harmony, BAR)[-1][0]) + 1, 2 * BAR):  # seas, two bars each
        for part, low, high in (("strings", 74, 116), ("tremolo", 50, 118), ("celli", 80, 116)):
            score.swell(part, start + begin, 2 * BAR, low, high)


def roll(score, start, beats, low, high):
    steps = int(beats * 6)
    for step in range(steps):
        score.note("drums", start + step / 6, 0.4, 36, low + (high - low) * step / steps)


def main(font, work, out):
    score = Score(1881, 66)
    score.part("basses", 43, 104, 70, 50)
    score.part("celli", 42, 124, 80, 56)
    score.part("cello", 42, 116, 52, 66)
    score.part("strings", 48, 122, 60, 74)
    score.part("tremolo", 44, 112, 46, 76)
    score.part("horn", 60, 112, 48, 78)
    score.part("violins", 49, 104, 44, 74)
    score.part("oboe", 68, 78, 66, 74)
    score.part("choir", 52, 92, 64, 90)
    score.part("harp", 46, 118, 42, 70)
    score.part("glint", 8, 116, 84, 90)
    score.part("bell", 14, 118, 84, 96)
    score.part("drums", 47, 126, 64, 74)
    start = 0
    for name, (harmony, tune) in FORM:
        notes, length, _ = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name)
        if name in ("intro", "a"):
            score.melody("cello", start, notes, 88, STRONG, 1.0)
        if name == "intro":
            roll(score, start + 2 * BAR, 2 * BAR, 36, 66)
            score.note("bell", start, 6, 67, 52)  # the reef's bell, to leeward
            score.note("bell", start + 2.5 * BAR, 6, 67, 44)
        if name == "a":
            score.melody("horn", start + 4 * BAR, line("R:4 | Bb3:4 | C4:4 | B3:4", BAR)[0], 58, STRONG, 1.0)
            roll(score, start + 6 * BAR, 2 * BAR, 36, 74)
        if name == "a2":
            score.melody("horn", start, notes, 88, STRONG, 1.0)
            score.melody("cello", start, notes, 70, STRONG, 1.0)
            for bar in (0, 2, 4):
                score.note("drums", start + bar * BAR, 2, 36, 84)
            roll(score, start + 6 * BAR, 2 * BAR, 40, 90)
        if name == "b":
            score.melody("violins", start, notes, 88, STRONG, 1.02)
            score.melody("oboe", start, notes, 70, STRONG, 1.0)
            score.melody("horn", start, line(COUNTER_B, BAR)[0], 72, STRONG, 1.0)
            score.note("drums", start, 2, 39, 80)
        if name == "coda":
            score.melody("oboe", start, notes, 84, STRONG, 1.02)
            score.melody("horn", start, notes, 66, STRONG, 1.02, transpose=-12)
            score.melody("violins", start, [n for n in notes if n[1] >= 2], 62, STRONG, 1.05)
            score.note("bell", start + 3 * BAR, 6, 72, 46)
            score.tempo(start + 2 * BAR, 60)
            score.tempo(start + 3 * BAR, 54)
            score.tempo(start + length, 66)
        start += length
    music(score, "lamproom", start, font, work, out)


main(*sys.argv[1:4])
