#!/usr/bin/env python3
"""Makes the phone's own ring tones, the WAV files in phoneui/shell/ringtones/basicring.

Each tone is a list of notes that are mixed into one. The outcome is the same at each run.
"""
import array
import math
import random
import sys
import wave
from pathlib import Path

RATE = 16000  # samples a second
PEAK = 0.7  # of full scale
FADE = 0.015  # seconds: no tone ends with a click
FOLDER = Path(__file__).resolve().parent.parent / "phoneui/shell/ringtones/basicring"


def pitch(name):
    """The frequency of a note such as "A4" or "C#6"."""
    step = {"C": -9, "D": -7, "E": -5, "F": -4, "G": -2, "A": 0, "B": 2}[name[0]] + name.count("#")
    return 440.0 * 2 ** ((step + 12 * (int(name[-1]) - 4)) / 12)


def partials(frequency, seconds, parts, decay, attack=0.004):
    """A struck sound: each part is a multiple of the frequency and its loudness, and higher parts fade sooner."""
    samples = []
    for n in range(int(seconds * RATE)):
        t = n / RATE
        value = sum(loud * math.exp(-t * decay * multiple**0.7) * math.sin(2 * math.pi * frequency * multiple * t)
                    for multiple, loud in parts if frequency * multiple < RATE / 2)
        samples.append(value * min(1.0, t / attack))
    return samples


def held(frequencies, seconds, edge=0.006):
    """A steady sound of several frequencies with soft edges."""
    samples = []
    for n in range(int(seconds * RATE)):
        t = n / RATE
        edges = min(1.0, t / edge, (seconds - t) / edge)
        samples.append(edges * sum(math.sin(2 * math.pi * f * t) for f in frequencies) / len(frequencies))
    return samples


def plucked(frequency, seconds, seed):
    """A string: noise that runs around a loop as long as one swing and loses its edges on the way."""
    dice = random.Random(seed)
    loop = [dice.uniform(-1, 1) for _ in range(round(RATE / frequency))]
    samples = []
    for n in range(int(seconds * RATE)):
        at = n % len(loop)
        samples.append(loop[at])
        loop[at] = 0.498 * (loop[at] + loop[(at + 1) % len(loop)])
    return samples


def mixed(notes):
    """One tone of (start in seconds, samples)."""
    length = max(int(start * RATE) + len(samples) for start, samples in notes)
    tone = [0.0] * length
    for start, samples in notes:
        first = int(start * RATE)
        for n, value in enumerate(samples):
            tone[first + n] += value
    loudest = max(map(abs, tone))
    fade = int(FADE * RATE)
    return [value * PEAK / loudest * min(1.0, (length - n) / fade) for n, value in enumerate(tone)]


BELL = [(1, 1.0), (2.0, 0.5), (2.4, 0.35), (3.0, 0.3), (4.5, 0.25), (5.33, 0.12)]
WOOD = [(1, 1.0), (3.93, 0.35), (9.2, 0.08)]
GLASS = [(1, 1.0), (2.0, 0.2), (3.0, 0.12)]


def run(names, step, instrument):
    """Notes that follow each other at an even pace."""
    return [(i * step, instrument(pitch(name), i)) for i, name in enumerate(names)]


def classic():
    """The two gongs of an old telephone, struck by turns."""
    return [(burst + i * 0.045, partials(1250 if i % 2 else 1560, 0.25, BELL, 11, attack=0.001))
            for burst in (0.0, 1.0) for i in range(16)]


def bell():
    return [(i * 0.9, partials(pitch(name), 1.1, BELL, 3.2)) for i, name in enumerate(("E5", "C5"))]


def chime():
    return run(("G5", "E5", "C5", "G4"), 0.38, lambda f, _: partials(f, 1.0, GLASS, 4))


def marimba():
    names = ("C5", "E5", "G5", "C6", "G5", "E5", "A5", "F5", "D5", "G5", "C5")
    return run(names, 0.15, lambda f, _: partials(f, 0.45, WOOD, 8))


def trill():
    return [(burst + i * 0.055, held((1046.5 if i % 2 else 1318.5,), 0.055, edge=0.004))
            for burst in (0.0, 0.85) for i in range(10)]


def pulse():
    return [(burst + i * 0.16, held((880.0, 1318.5), 0.09)) for burst in (0.0, 0.9) for i in range(3)]


def harp():
    names = ("C4", "E4", "G4", "A4", "C5", "E5", "G5", "C6")
    return run(names, 0.14, lambda f, i: plucked(f, 1.1, seed=i))


TONES = {"Classic": classic, "Bell": bell, "Chime": chime, "Marimba": marimba, "Trill": trill, "Pulse": pulse,
         "Harp": harp}


def write(path, tone):
    samples = array.array("h", (round(value * 32767) for value in tone))
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setparams((1, 2, RATE, 0, "NONE", ""))
        file.writeframes(samples.tobytes())


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, notes in TONES.items():
        tone = mixed(notes())
        write(FOLDER / f"{name}.wav", tone)
        print(f"{name}: {len(tone) / RATE:.2f} s")


if __name__ == "__main__":
    main()
