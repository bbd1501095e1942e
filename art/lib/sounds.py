"""Plays the scores of art/sounds with sox and levels each family."""

import re
import subprocess
import sys
import tempfile
from array import array
from pathlib import Path

# Partials of each instrument: multiple of the pitch, strength, share of the ring; then the attack in seconds.
INSTRUMENTS = {
    "bar": (((1, 1.0, 1.0), (3.93, .30, .35), (9.6, .07, .15)), .0015),
    "chime": (((1, 1.0, 1.0), (2, .12, .8), (4, .22, .45), (9.2, .05, .12)), .002),
    "hum": (((1, 1.0, 1.0), (2, .22, .7), (3, .06, .5)), .004),
}
PEAK_DB = -3.5
LOUDEST = 10 ** (-22.2 / 20)  # RMS; no family stands out from the others
RAW = ("-t", "raw", "-e", "signed", "-b", "32", "-r", "44100", "-c", "1")
SEMITONES = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}


def frequency(pitch):
    letter, sharp, octave = re.fullmatch(r"([A-G])(#?)(\d)", pitch).groups()
    return 440 * 2 ** ((SEMITONES[letter] + len(sharp)) / 12 + int(octave) - 4)


def read_score(path):
    """(name, instrument, seconds, [(start, pitch, ring, strength)]) of each sound."""
    sounds = []
    for text in path.read_text().splitlines():
        head = re.fullmatch(r"(\S+): (\w+) (\d+)", text)
        if head:
            sounds.append((head[1], head[2], int(head[3]) / 1000, []))
        elif text.strip() and not text.startswith("#"):
            start, pitch, ring, strength = text.split()
            sounds[-1][3].append((int(start) / 1000, pitch, int(ring) / 1000, float(strength)))
    return sounds


def voices(instrument, notes):
    partials, attack = INSTRUMENTS[instrument]
    for start, pitch, ring, strength in notes:
        for multiple, share, lasting in partials:
            length = max(ring * lasting, .02)
            yield (f"|sox -R -D -r 44100 -b 32 -n -p synth {length:.4f} sine {frequency(pitch) * multiple:.3f} "
                   f"fade l {attack} {length:.4f} {length - attack:.4f} vol {strength * share * .2:.4f} pad {start:.4f}")


def play(sound, target):
    _, instrument, seconds, notes = sound
    silence = f"|sox -D -r 44100 -b 32 -n -p trim 0 {seconds}"
    mixed = [silence, *voices(instrument, notes)]
    subprocess.run(["sox", "-R", "-D", "-m", *(x for voice in mixed for x in ("-v", "1", voice)), *RAW, str(target),
                    "trim", "0", str(seconds), "fade", "t", "0", str(seconds), "0.02", "gain", "-n", str(PEAK_DB)], check=True)


def loudness(path):
    """RMS, full scale being 1."""
    samples = array("i", path.read_bytes())
    return (sum((s / 2 ** 31) ** 2 for s in samples) / len(samples)) ** .5


def main(scores, datas):
    with tempfile.TemporaryDirectory() as room:
        for score in sorted(scores.glob("*.score")):
            family = read_score(score)
            raw = {sound[0]: Path(room) / f"{sound[0]}.raw" for sound in family}
            for sound in family:
                play(sound, raw[sound[0]])
            levels = {name: loudness(path) for name, path in raw.items()}
            level = min(LOUDEST, *levels.values())
            for name, path in raw.items():
                subprocess.run(["sox", "-D", "-v", f"{level / levels[name]:.6f}", *RAW, str(path), "-b", "16", "-t", "wav",
                                str(datas / name)], check=True)


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
