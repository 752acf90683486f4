"""The captain's cabin by night: celesta over plucked strings in A minor, a clarinet that remembers. Unit: a quarter."""

import sys

from master import music
from score import Score, Voicing, chords, line, nearest, section

BAR = 4
INTRO = ("Am | F | Am/C | E", "R:4 | R:2 E5:1 D#5:1 | E5:3 R:1 | R:2 B4:1 G#4:1")
A = ("Am | Am/G | F | E | Am | Dm | E7 | Am",
     "A4:.5 C5:.5 E5:1 D#5:1 E5:1 | C5:1.5 B4:.5 A4:2 | A4:.5 C5:.5 F5:1 E5:1 C5:1 | B4:3 R:1 |"
     "A4:.5 C5:.5 E5:1 D#5:1 E5:1 | F5:1.5 E5:.5 D5:2 | E5:.5 D5:.5 C5:.5 B4:.5 G#4:1 B4:1 | A4:3 R:1")
B = ("F | G | C/E | Am | Dm | Bb | E | E7",
     "C5:2 F5:1.5 E5:.5 | D5:3 B4:1 | E5:2 G5:1.5 F5:.5 | E5:3 C5:1 |"
     "D5:1 F5:1 A5:1.5 G5:.5 | F5:2 D5:1 Bb4:1 | B4:1 E5:1 G#5:1 F5:1 | E5:3 R:1")
COUNTER = ("R:2 C5:2 | E5:3 R:1 | F4:2 A4:2 | G#4:3 R:1 | R:2 A4:2 | A4:2 F4:2 | G#4:2 D5:2 | C5:3 R:1")
STRONG = ({0, 2}, BAR)


def accompany(score, start, harmony, name):
    voicing = Voicing(55)
    warm = name == "b"
    for begin, length, classes, bass in chords(harmony, BAR):
        at = start + begin
        low = nearest(bass, 40)
        fifth = nearest(classes[2], 45)
        score.note("pizzicato", at, 0.6, low, 74)
        score.note("pizzicato", at, 0.6, low + 12, 56)
        score.note("pizzicato", at + 2, 0.6, fifth, 60)
        score.note("pizzicato", at + 3.5, 0.4, low + 12, 44)
        voices = voicing.next(classes)
        for voice in voices:
            score.note("strings", at, length, voice, 52 if warm else 42)
        score.note("cello", at, length * 0.98, low, 60 if warm else 46)
        if warm:
            ladder = [nearest(bass, 48)] + voices + [voices[0] + 12]
            for step in range(8):
                score.note("harp", at + step / 2, 1.4, ladder[[0, 1, 2, 3, 4, 3, 2, 1][step]], 52 + 6 * (step % 4 == 0))
        else:
            for beat, order in ((1, 1), (1.5, 2), (3, 2)):
                score.note("harp", at + beat, 1.4, voices[order] + 12, 44)
        for beat in range(4):  # the chronometer on its shelf
            score.note("clock", at + beat, 0.2, 76 if beat % 2 == 0 else 77, 56, 0)
    for begin in range(0, int(chords(harmony, BAR)[-1][0]) + 1, 4 * BAR):
        score.swell("strings", start + begin, 4 * BAR, 70, 108)


def main(font, work, out):
    score = Score(1871, 74)
    score.part("celesta", 8, 122, 58, 74)
    score.part("clarinet", 71, 72, 72, 70)
    score.part("pizzicato", 45, 96, 60, 54)
    score.part("cello", 42, 78, 76, 60)
    score.part("strings", 49, 112, 54, 80)
    score.part("harp", 46, 116, 42, 70)
    score.part("clock", 0, 110, 88, 60, drums=True)
    start = 0
    for name, (harmony, tune) in (("intro", INTRO), ("a", A), ("b", B), ("a2", A)):
        notes, length, _ = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name)
        if name == "b":
            score.melody("clarinet", start, notes, 84, STRONG)
        else:
            score.melody("celesta", start, notes, 84 if name != "intro" else 64, STRONG, 1.3)
            if name == "a2":
                score.melody("celesta", start, [n for n in notes if n[1] >= 1], 52, STRONG, 1.3, transpose=12)
                score.melody("clarinet", start, line(COUNTER, BAR)[0], 66, STRONG)
        if name in ("b", "a2"):
            score.tempo(start + length - 2 * BAR, 70)
            score.tempo(start + length - BAR, 64)
            score.tempo(start + length, 74)
        start += length
    music(score, "cabin", start, font, work, out)


main(*sys.argv[1:4])
