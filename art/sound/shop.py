"""An afternoon in the curiosity shop: a music box in five-four, G minor, that somebody winds up and that runs down; in the
back room a clarinet asks what the things remember. Unit: a quarter."""

import sys

from master import music
from score import Score, Voicing, chords, nearest, section

BAR = 5
INTRO = ("Gm | Eb | Gm | D7",
         "D5:1 G5:.5 A5:.5 Bb5:1 A5:1 G5:1 | Bb5:1 G5:1 Eb5:1 R:2 | D5:1 G5:.5 A5:.5 Bb5:1 C6:1 D6:1 | C6:1 A5:1 F#5:1 R:2")
A = ("Gm | Eb | Cm | D7 | Gm | Ebm | Bb/D | D7",
     "D5:1 G5:.5 A5:.5 Bb5:1 A5:1 G5:1 | Bb5:1 G5:1 Eb5:1 F5:1 G5:1 | C6:1 Bb5:.5 A5:.5 G5:1 Eb5:1 C5:1 |"
     "D5:1 F#5:1 A5:1 C6:1 A5:1 | D5:1 G5:.5 A5:.5 Bb5:1 C6:1 D6:1 | Eb6:1 Bb5:1 Gb5:1 Bb5:1 Gb5:1 |"
     "F5:1 D5:.5 F5:.5 Bb5:1 A5:1 F5:1 | F#5:2 A5:1 D5:2")
A2 = ("Gm | Eb | Cm | D7 | Gm | Ebm | Cm D7 | Gm",
      "D5:1 G5:.5 A5:.5 Bb5:1 A5:1 G5:1 | Bb5:1 G5:1 Eb5:1 F5:1 G5:1 | C6:1 Bb5:.5 A5:.5 G5:1 Eb5:1 C5:1 |"
      "D5:1 F#5:1 A5:1 C6:1 A5:1 | D5:1 G5:.5 A5:.5 Bb5:1 C6:1 D6:1 | Eb6:1 Bb5:1 Gb5:1 Bb5:1 Gb5:1 |"
      "G5:1 Eb5:.5 C5:1 D5:.5 F#5:1 A5:1 | G5:2 D5:1 Bb4:1 G4:1")
B = ("Bb | Gm | Eb | F7 | Bb | D7/F# | Eb | Cm D7",
     "F5:2 D5:1 Bb4:1 C5:1 | D5:3 G5:1 F5:1 | Eb5:2 G5:1 Bb5:1 G5:1 | A5:1 G5:1 F5:1 Eb5:1 C5:1 |"
     "D5:2 F5:1 Bb5:1 A5:1 | A5:2 F#5:1 D5:2 | G5:2 Bb5:1 Eb6:1 D6:1 | C6:2.5 A5:.5 F#5:1 D5:1")
C = ("Gm | Ebm | Gm | Ebm | Cm | Abm | Eb | D7",
     "G4:3 D4:2 | Gb4:2 Eb4:1 Bb3:2 | Bb4:3 G4:2 | Bb4:2 Gb4:1 Eb4:2 |"
     "Eb5:3 C5:2 | Eb5:2 B4:1 Ab4:2 | G4:3 Bb4:2 | A4:2 C5:1 F#4:2")
CODA = ("Gm | Eb | Cm D7 | Gm",
        "D5:1 G5:.5 A5:.5 Bb5:1 A5:1 G5:1 | Bb5:1 G5:1 Eb5:1 R:2 | G5:1 Eb5:1.5 F#5:1.5 A5:1 | G5:1 D5:1 G5:1 Bb5:2")
STRONG = ({0, 3}, BAR)
FORM = (("intro", INTRO), ("a", A), ("a2", A2), ("b", B), ("c", C), ("a3", A2), ("coda", CODA))


def accompany(score, start, harmony, name):
    voicing = Voicing(60)
    for begin, length, classes, bass in chords(harmony, BAR):
        at = start + begin
        low = nearest(bass, 43)
        voices = voicing.next(classes)
        if name in ("intro", "coda", "a"):  # the box's own comb
            comb = [low + 24, voices[1] + 12, voices[2] + 12]
            for beat, order in ((0, 0), (1, 1), (2, 2), (3, 1), (4, 2)):
                if beat < length:
                    score.note("box", at + beat, 1.5, comb[order], 50 + 8 * (beat == 0), 0.004)
        if name in ("a", "a2", "b", "a3"):
            score.note("pizzicato", at, 0.6, low, 80)
            if length > 3:
                score.note("pizzicato", at + 3, 0.6, nearest(classes[2], 47), 66)
            for beat in (1, 2, 4):
                if beat < length:
                    for voice in voices[:2]:
                        score.note("pizzicato", at + beat, 0.4, voice, 48)
        if name in ("b", "a3"):
            ladder = [low] + voices + [voices[0] + 12, voices[1] + 12]
            for step in range(int(length * 2)):
                score.note("harp", at + step / 2, 1.4, ladder[[0, 1, 2, 3, 4, 5, 4, 3, 2, 1][step % 10]],
                           54 + 8 * (step in (0, 6)))
        if name in ("b", "c", "a3"):
            for voice in voices:
                score.note("strings", at, length, voice, 56 if name == "c" else 46)
            score.note("cello", at, length * 0.98, low, 60)
        if name == "c":  # lustres of a chandelier, touched by the draught
            for step, order in enumerate((2, 0, 1, 2)):
                score.note("glass", at + 1.5 + step * 0.5, 2, voices[order] + 24, 92 - 6 * step)


def main(font, work, out):
    score = Score(1866, 122)
    score.part("box", 10, 112, 68, 62)
    score.part("celesta", 8, 112, 50, 70)
    score.part("glass", 11, 124, 88, 90)
    score.part("clarinet", 71, 80, 60, 66)
    score.part("pizzicato", 45, 108, 56, 50)
    score.part("harp", 46, 104, 40, 66)
    score.part("strings", 44, 104, 72, 80)
    score.part("cello", 42, 104, 78, 60)
    score.part("flute", 73, 72, 46, 72)
    score.part("clock", 0, 100, 30, 60, drums=True)
    score.tempo(0, 96)  # wound up: it gathers speed
    score.tempo(BAR, 110)
    score.tempo(2 * BAR, 118)
    score.tempo(3 * BAR, 122)
    start = 0
    for name, (harmony, tune) in FORM:
        notes, length, _ = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name)
        if name in ("intro", "a", "coda"):
            score.melody("box", start, notes, 84, STRONG, 1.4, loose=0.005)
        if name in ("a2", "a3"):
            score.melody("celesta", start, notes, 84, STRONG, 1.3)
        if name == "a3":
            score.melody("flute", start, notes, 68, STRONG, 0.95)
            score.melody("box", start, [n for n in notes if n[1] >= 1], 62, STRONG, 1.4, transpose=12)
        if name == "b":
            score.melody("clarinet", start, notes, 84, STRONG)
            score.melody("celesta", start, [n for n in notes if n[1] >= 2], 60, STRONG, 1.3, transpose=12)
        if name == "c":
            score.melody("clarinet", start, notes, 86, STRONG)
            for bar in range(8):  # the tall clock in the corner has been listening
                score.note("clock", start + bar * BAR, 0.3, 77, 66, 0)
                score.note("clock", start + bar * BAR + 2.5, 0.3, 76, 58, 0)
        start += length
    end = start
    for bar, speed in ((4, 116), (3, 106), (2, 92), (1.5, 82), (1, 72)):  # and runs down
        score.tempo(end - bar * BAR, speed)
    score.tempo(end, 96)
    music(score, "shop", start, font, work, out)


main(*sys.argv[1:4])
