"""The Petrel's own theme: 6/8 in D minor, dusk first, the lit lamp in F major in the middle. Unit: an eighth."""

import sys

from master import music
from score import Score, Voicing, chords, line, nearest, section

BAR = 6
INTRO = ("Dm | Dm/C | Bb | Asus A", "R:6 | R:3 A4:2 D5:1 | F5:5 E5:1 | E5:3 R:2 A4:1")
A = ("Dm | C | Bb | Asus A | Dm | C | Bb | A",
     "D5:3 E5:2 F5:1 | E5:3 C5:2 G4:1 | Bb4:2 C5:1 D5:2 F5:1 | E5:5 A4:1 |"
     "D5:3 E5:2 F5:1 | G5:3 E5:2 C5:1 | F5:2 D5:1 Bb4:2 D5:1 | C#5:2 B4:1 A4:2 A4:1")
A2 = ("Dm | C | Bb | Asus A | Dm | Bb | Gm A7 | Dm",
      "D5:3 E5:2 F5:1 | E5:3 C5:2 G4:1 | Bb4:2 C5:1 D5:2 F5:1 | E5:5 A4:1 |"
      "D5:3 F5:2 A5:1 | Bb5:3 A5:2 F5:1 | G5:2 F5:1 E5:2 C#5:1 | D5:5 C5:1")
B = ("F | C/E | Dm | Am | Bb | F/A | Gm | Asus A7",
     "F5:3 G5:2 A5:1 | G5:3 E5:2 C5:1 | F5:3 E5:2 D5:1 | C5:5 C5:1 |"
     "D5:3 F5:2 Bb5:1 | A5:3 F5:2 C5:1 | D5:2 G5:1 Bb5:2 A5:1 | A5:2 F5:1 E5:2 A4:1")
A3 = (A2[0], A2[1].replace("D5:5 C5:1", "D5:6"))
CODA = ("Bb | C | Dm | Asus A", "D5:3 F5:2 D5:1 | E5:3 G5:2 E5:1 | D5:6 | R:6")
# A line against the theme, in the horn, a third or a sixth below it where it moves and still where it rests.
COUNTER_A2 = ("A4:6 | G4:3 E4:3 | F4:3 Bb4:3 | A4:3 C#5:3 | A4:3 D5:3 | D5:3 F5:3 | Bb4:3 C#5:3 | A4:6")
COUNTER_B = ("A4:3 C5:3 | C5:3 G4:3 | A4:6 | E4:3 A4:3 | Bb4:3 D5:3 | C5:3 A4:3 | Bb4:3 D5:3 | D5:3 C#5:3")
STRONG = ({0, 3}, BAR)


def accompany(score, start, harmony, dark, full):
    voicing = Voicing(57)
    for begin, length, classes, bass in chords(harmony, BAR):
        at = start + begin
        low = nearest(bass, 38)
        score.note("basses", at, length * 0.98, low, 58 + 10 * full)
        score.note("celli", at, length * 0.98, low + 12, 50 + 8 * full)
        voices = voicing.next(classes)
        for voice in voices:
            score.note("strings", at, length * 1.0, voice, 44 + 12 * full)
        ladder = [nearest(bass, 45)] + voices + [voices[0] + 12, voices[1] + 12]
        pattern = [0, 1, 2, 3, 2, 1] if dark else [0, 2, 3, 4, 5, 3]
        for step in range(int(length)):
            score.note("harp", at + step, 2.2, ladder[pattern[step % 6]], 52 + (9 if step % 3 == 0 else 0) + 6 * full)
    for begin in range(0, int(chords(harmony, BAR)[-1][0]) + 1, 4 * BAR):
        score.swell("strings", start + begin, 4 * BAR, 74, 112)
        score.swell("celli", start + begin, 4 * BAR, 78, 112)


def main(font, work, out):
    score = Score(1887, 180)
    score.part("basses", 43, 84, 70, 40)
    score.part("celli", 42, 112, 78, 50)
    score.part("strings", 49, 116, 60, 70)
    score.part("harp", 46, 92, 44, 60)
    score.part("cor", 69, 102, 58, 64)
    score.part("horn", 60, 84, 50, 76)
    score.part("violins", 48, 92, 46, 70)
    score.part("flute", 73, 76, 70, 70)
    score.part("bell", 14, 108, 76, 90)
    score.part("drums", 47, 120, 64, 70)
    start = 0
    for name, (harmony, tune) in (("intro", INTRO), ("a", A), ("a2", A2), ("b", B), ("a3", A3), ("coda", CODA)):
        notes, length, _ = section(name, tune, harmony, BAR)
        accompany(score, start, harmony, name in ("intro", "a", "coda"), {"a2": 0.6, "b": 0.8, "a3": 1.3}.get(name, 0))
        if name in ("intro", "a", "coda"):
            score.melody("cor", start, notes, 84 if name == "a" else 68, STRONG)
        if name == "a2":
            score.melody("violins", start, notes, 82, STRONG)
            score.melody("cor", start, notes, 60, STRONG)
            score.melody("horn", start, line(COUNTER_A2, BAR)[0], 62, STRONG)
        if name == "b":
            score.melody("flute", start, notes, 84, STRONG)
            score.melody("violins", start, notes, 66, STRONG)
            score.melody("horn", start, line(COUNTER_B, BAR)[0], 66, STRONG)
        if name == "a3":
            score.melody("violins", start, notes, 94, STRONG)
            score.melody("violins", start, notes, 74, STRONG, transpose=-12)
            score.melody("flute", start, notes, 70, STRONG, transpose=12)
            score.melody("horn", start, line(COUNTER_A2, BAR)[0], 78, STRONG)
            for bar in range(0, 8, 2):
                score.note("drums", start + bar * BAR, 3, 38, 76)
            for step in range(12):  # a roll into the last cadence
                score.note("drums", start + 6.5 * BAR + step / 4, 0.5, 45, 50 + 4 * step)
        if name in ("intro", "coda"):  # the ship's bell, two strokes
            for offset in (0, 1.5):
                score.note("bell", start + offset, 6, 74, 60)
        last = start + length - BAR
        if name in ("a2", "b", "a3", "coda"):  # breathe at the end of a strain
            score.tempo(last - 3, 172)
            score.tempo(last, 158)
            score.tempo(last + BAR, 180)
        start += length
    music(score, "title", start, font, work, out, file="mainmenumusic.mp3")


main(*sys.argv[1:4])
