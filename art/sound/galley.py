"""Morning in the galley: a hornpipe in F for concertina over plucked strings and a tuba, spoons on the rail; in D minor
somebody is after the jam. Unit: a quarter, eighths long and short."""

import sys

from master import music
from score import Score, Voicing, chords, line, nearest, section

BAR = 4
INTRO = ("F | C7 | F | C7", "R:4 | R:2 C5:.5 D5:.5 E5:1 | R:4 | R:2 A4:.5 Bb4:.5 B4:1")
A = ("F | C7 | F | C7 | Bb | F | G7 | C7",
     "C5:.5 F5:.5 F5:.5 G5:.5 A5:1 F5:1 | G5:.5 E5:.5 C5:1 D5:.5 E5:.5 C5:1 |"
     "C5:.5 F5:.5 F5:.5 G5:.5 A5:1 C6:1 | Bb5:.5 A5:.5 G5:2 C5:1 |"
     "D5:.5 F5:.5 Bb5:1 A5:.5 G5:.5 F5:1 | C5:.5 F5:.5 A5:1 G5:.5 F5:.5 C5:1 |"
     "B4:.5 D5:.5 G5:1 F5:.5 D5:.5 B4:1 | C5:1 E5:.5 D5:.5 C5:1 R:1")
A2 = ("F | C7 | F | C7 | Bb | F/A | C7 | F",
      "C5:.5 F5:.5 F5:.5 G5:.5 A5:1 F5:1 | G5:.5 E5:.5 C5:1 D5:.5 E5:.5 C5:1 |"
      "C5:.5 F5:.5 F5:.5 G5:.5 A5:1 C6:1 | Bb5:.5 A5:.5 G5:2 C5:1 |"
      "D5:.5 F5:.5 Bb5:1 A5:.5 G5:.5 F5:1 | C5:.5 F5:.5 A5:1 G5:.5 F5:.5 C5:1 |"
      "E5:.5 G5:.5 Bb5:1 A5:.5 G5:.5 E5:1 | F5:1 A5:.5 G5:.5 F5:1 R:1")
B = ("Bb | F | Gm | Dm | Bb | F/A | G7 | C7",
     "F5:1.5 G5:.5 F5:1 D5:1 | C5:1.5 D5:.5 C5:1 A4:1 | Bb4:.5 D5:.5 G5:1 A5:.5 Bb5:.5 G5:1 | A5:3 R:1 |"
     "Bb5:1.5 A5:.5 G5:1 F5:1 | A5:1.5 G5:.5 F5:1 C5:1 | B4:.5 D5:.5 F5:.5 G5:.5 B5:1 G5:1 |"
     "C6:1 Bb5:.5 G5:.5 E5:1 C5:1")
C = ("Dm | A7 | Dm | A7 | Gm | Dm | G7 | C7",
     "D3:.5 R:.5 F3:.5 R:.5 A3:1 F3:1 | E3:.5 R:.5 G3:.5 R:.5 A3:1 C#3:1 | D3:.5 R:.5 F3:.5 R:.5 A3:1 D4:1 |"
     "C#4:.5 Bb3:.5 A3:2 R:1 | Bb3:.5 R:.5 D4:.5 R:.5 G4:1 F4:.5 D4:.5 | A3:.5 R:.5 D4:.5 R:.5 F4:1 E4:.5 D4:.5 |"
     "B3:.5 D4:.5 F4:1 D4:.5 B3:.5 G3:1 | C4:1 E4:.5 G4:.5 C4:1 R:1")
# Cups on their hooks, answering whoever tiptoes below.
CUPS = ("R:3 A5:.5 F5:.5 | R:3 G5:.5 E5:.5 | R:3 F5:.5 A5:.5 | R:2 A5:.5 G5:.5 E5:1 |"
        "R:2 R:.5 Bb5:.5 D6:1 | R:2 R:.5 A5:.5 D6:1 | G5:.5 R:.5 B5:.5 R:.5 D6:1 B5:1 | C6:1 G5:.5 E5:.5 C5:1 R:1")
STRONG = ({0, 2}, BAR)
FORM = (("intro", INTRO), ("a", A), ("a2", A2), ("b", B), ("a3", A2), ("c", C), ("bb", B), ("end", A2))


def swung(notes):
    """Second eighths of a beat come late, as sailors dance."""
    late = lambda beat: beat + 0.13 if abs(beat % 1 - 0.5) < 1e-6 else beat
    return [(late(start), late(start + length) - late(start), number) for start, length, number in notes]


def seconds_below(notes, harmony):
    """A second voice: the chord note below each note that lasts."""
    result = []
    for start, length, number in notes:
        classes = next(c for b, span, c, _ in harmony if b <= start < b + span)
        if length >= 0.8:
            below = number - 3
            while below % 12 not in classes:
                below -= 1
            result.append((start, length, below))
    return result


def accompany(score, start, harmony, name):
    voicing = Voicing(60)
    tiptoe = name == "c"
    for index, (begin, length, classes, bass) in enumerate(chords(harmony, BAR)):
        at = start + begin
        low, fifth = nearest(bass, 40), nearest(classes[2], 38)
        voices = voicing.next(classes)
        if not tiptoe:
            score.note("tuba", at, 0.7, low, 78)
            score.note("tuba", at + 2, 0.7, fifth if bass == classes[0] else low, 72)
        score.note("pizzicato", at, 0.5, low + 12, 84)
        score.note("pizzicato", at + 2, 0.5, fifth + 12, 76)
        for beat in (1, 3):
            for voice in voices:
                score.note("pizzicato", at + beat, 0.4, voice, 56 if tiptoe else 66)
            if not tiptoe:
                for order, voice in enumerate(voices):
                    score.note("banjo", at + beat + order * 0.015, 0.4, voice + 12, 70 - 5 * (beat == 3), 0.006)
            score.note("spoons", at + beat, 0.2, 77, 44 if tiptoe else 60, 0.008)
        if name in ("a2", "a3", "bb", "end"):
            score.note("spoons", at + 1.63, 0.2, 76, 40, 0.006)
            score.note("spoons", at + 3.63, 0.2, 76, 46, 0.006)
            if index % 2:
                for step in range(3):  # a rattle of the spoons down the rail
                    score.note("spoons", at + 3 + step / 3, 0.2, 76, 52 - 4 * step, 0.006)
        if name in ("bb", "end") and index % 4 == 3:
            score.note("spoons", at, 0.8, 81, 50)


def main(font, work, out):
    score = Score(1904, 116)
    score.part("tuba", 58, 120, 60, 34)
    score.part("pizzicato", 45, 104, 52, 46)
    score.part("banjo", 105, 100, 38, 36)
    score.part("concertina", 21, 108, 74, 46)
    score.part("clarinet", 71, 88, 52, 54)
    score.part("bassoon", 70, 104, 58, 50)
    score.part("cups", 13, 120, 88, 60)
    score.part("whistle", 72, 82, 44, 60)
    score.part("spoons", 0, 104, 84, 40, drums=True)
    start = 0
    for name, (harmony, tune) in FORM:
        notes, length, harmonies = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name)
        lead = {"b": ("clarinet", 86), "c": ("bassoon", 88), "bb": ("clarinet", 84)}.get(name, ("concertina", 84))
        score.melody(lead[0], start, swung(notes), lead[1], STRONG, 0.8 if name == "c" else 0.88)
        if name in ("a2", "a3", "end", "b"):
            score.melody("concertina", start, swung(seconds_below(notes, harmonies)), 58, STRONG, 0.8)
        if name in ("a3", "end"):
            score.melody("clarinet", start, swung(notes), 64, STRONG, 0.85, transpose=-12)
        if name in ("bb", "end"):
            score.melody("whistle", start, swung(notes), 74, STRONG, 0.85, transpose=12 if name == "bb" else 0)
        if name == "bb":
            score.melody("concertina", start, swung(notes), 70, STRONG, 0.85)
        if name == "c":
            score.melody("cups", start, swung(line(CUPS, BAR)[0]), 96, STRONG, 0.6)
        if name == "a3":
            score.melody("cups", start, [n for n in swung(notes) if n[1] >= 0.8], 84, STRONG, 0.6, transpose=12)
        if name in ("c", "end"):
            score.tempo(start + length - BAR, 108)
            score.tempo(start + length, 116)
        start += length
    music(score, "galley", start, font, work, out)


main(*sys.argv[1:4])
