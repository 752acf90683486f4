"""A waltz for the quay: concertina, fiddle, whistle, guitar and bass, in G with a trio in E minor. Unit: a quarter."""

import sys

from master import music
from score import Score, Voicing, chords, nearest, section

BAR = 3
INTRO = ("G | Em | C | D7", "R:3 | R:3 | R:3 | R:2 C5:1")
A = ("G | G | C | G | Em | Am | D | D7",
     "D5:1 B4:.5 D5:.5 G5:1 | F#5:.5 G5:.5 D5:2 | E5:1 C5:.5 E5:.5 G5:1 | D5:1 B4:2 |"
     "E5:1 G5:1 F#5:.5 E5:.5 | C5:1 E5:1 D5:.5 C5:.5 | A4:1 D5:1 F#5:1 | E5:.5 D5:.5 C5:.5 B4:.5 A4:1")
A2 = ("G | G | C | G | Em | C | D7 | G",
      "D5:1 B4:.5 D5:.5 G5:1 | F#5:.5 G5:.5 D5:2 | E5:1 C5:.5 E5:.5 G5:1 | D5:1 B4:2 |"
      "E5:1 G5:1 B5:1 | A5:.5 G5:.5 E5:2 | D5:.5 E5:.5 F#5:1 A5:1 | G5:3")
B = ("Em | Bm | C | G | Am | G/B | A7 | D7",
     "B5:1.5 A5:.5 G5:1 | F#5:1.5 E5:.5 D5:1 | E5:1 G5:1 C6:1 | B5:3 |"
     "C6:1.5 B5:.5 A5:1 | B5:1.5 A5:.5 G5:1 | E5:1 G5:1 F#5:.5 E5:.5 | F#5:1.5 E5:.5 C5:1")
C = ("Em | D | C | Bm | C | G/B | Am | B7",
     "E5:2 B4:1 | F#5:2 D5:1 | G5:1.5 F#5:.5 E5:1 | D5:2 B4:1 |"
     "C5:1 E5:1 G5:1 | D5:1 G5:1 B5:1 | A5:1.5 G5:.5 E5:1 | F#5:2 D#5:1")
C2 = ("Em | D | C | Bm | C | D | C | D7",
      "E5:2 B4:1 | F#5:2 D5:1 | G5:1.5 F#5:.5 E5:1 | D5:2 B4:1 |"
      "C5:1 E5:1 G5:1 | A5:1 F#5:1 D5:1 | G5:1.5 F#5:.5 E5:1 | D5:1 C5:1 A4:1")
STRONG = ({0}, BAR)
FORM = (("intro", INTRO), ("a", A), ("a2", A2), ("b", B), ("a2b", A2), ("c", C), ("c2", C2), ("bb", B), ("end", A2))


def thirds(notes, harmony):
    """A second voice under a tune: the chord note next below."""
    result = []
    for start, length, number in notes:
        classes = next(c for b, span, c, _ in harmony if b <= start < b + span)
        if length >= 1:
            below = number - 3
            while below % 12 not in classes:
                below -= 1
            result.append((start, length, below))
    return result


def accompany(score, start, harmony, trio):
    voicing = Voicing(62)
    for index, (begin, length, classes, bass) in enumerate(chords(harmony, BAR)):
        at = start + begin
        low = nearest(bass if index % 2 == 0 or bass != classes[0] else classes[2], 41)
        score.note("bass", at, 1.3, low, 80, 0.008)
        voices = voicing.next(classes)
        if trio:
            ladder = [nearest(bass, 50)] + voices + [voices[0] + 12]
            for step in range(6):
                score.note("harp", at + step / 2, 1.2, ladder[[0, 1, 2, 3, 4, 2][step]], 58 + 6 * (step == 0))
            for voice in voices:
                score.note("strings", at, length, voice, 48)
        for beat in (1, 2):
            for order, voice in enumerate(voices):
                score.note("guitar", at + beat + order * 0.022, 0.7, voice, (50 if trio else 60) - 6 * (beat == 2), 0.006)
            if not trio:
                score.note("shaker", at + beat, 0.3, 54, 34 - 8 * (beat == 2), 0.008)


def main(font, work, out):
    score = Score(1902, 138)
    score.part("bass", 32, 92, 62, 24)
    score.part("guitar", 24, 92, 44, 40)
    score.part("concertina", 21, 112, 76, 52)
    score.part("fiddle", 40, 84, 56, 64)
    score.part("whistle", 74, 62, 84, 72)
    score.part("clarinet", 71, 68, 70, 62)
    score.part("harp", 46, 84, 40, 60)
    score.part("strings", 49, 84, 64, 70)
    score.part("shaker", 0, 116, 84, 60, drums=True)
    start = 0
    for name, (harmony, tune) in FORM:
        notes, length, harmonies = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name in ("c", "c2"))
        lead = {"a": ("concertina", 84), "a2": ("fiddle", 86), "b": ("whistle", 84), "a2b": ("fiddle", 88),
                "c": ("clarinet", 86), "c2": ("fiddle", 84), "bb": ("whistle", 88), "end": ("fiddle", 92),
                "intro": ("concertina", 76)}[name]
        score.melody(lead[0], start, notes, lead[1], STRONG, 0.94)
        second = {"a2": "concertina", "a2b": "concertina", "b": "fiddle", "bb": "concertina", "c2": "clarinet",
                  "end": "concertina"}.get(name)
        if second:
            score.melody(second, start, thirds(notes, harmonies), 62, STRONG, 0.9)
        if name in ("bb", "end"):
            score.melody("concertina" if name == "end" else "fiddle", start, notes, 70, STRONG, 0.9)
        if name in ("c2", "end"):
            score.tempo(start + length - 2 * BAR, 130)
            score.tempo(start + length - BAR, 122)
            score.tempo(start + length, 138)
        start += length
    music(score, "harbour", start, font, work, out)


main(*sys.argv[1:4])
