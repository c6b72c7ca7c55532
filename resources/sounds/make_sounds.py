#!/usr/bin/env python3
"""Makes the program's sounds: mono AIFF files of 16 bit at 22050 Hz, the same bytes on every run.

    make_sounds.py FOLDER

writes FOLDER/Seatbelts.aiff, FOLDER/Funk.aiff and the alerts FOLDER/alerts/{Tink,Basso,Frog,Bottle,Glass}.aiff.
"""

import math
import pathlib
import struct
import sys

RATE = 22050  # samples a second
LEVEL = 0.35  # of full scale, the peak of every sound


def tone(seconds, wave):
    """Samples of `wave`, a function of the time in seconds."""
    return [wave(i / RATE) for i in range(int(seconds * RATE))]


def sine(frequency, t):
    return math.sin(2 * math.pi * frequency * t)


def fading(t, half_life):
    return 0.5 ** (t / half_life)


def partials(t, base, rows):
    """Rows of (frequency as a multiple of base, strength, half-life in seconds)."""
    return sum(strength * fading(t, half_life) * sine(base * multiple, t) for multiple, strength, half_life in rows)


def mix(length, *parts):
    """One sound out of parts, each (start in seconds, samples)."""
    samples = [0.0] * int(length * RATE)
    for start, part in parts:
        at = int(start * RATE)
        for i, value in enumerate(part[: len(samples) - at]):
            samples[at + i] += value
    return samples


def noise():
    """Even noise between -1 and 1, the same on every run and machine."""
    state = 0x2545F491
    while True:
        state = (state * 1664525 + 1013904223) & 0xFFFFFFFF
        yield state / 0x80000000 - 1


def low_passed(samples, frequency):
    share = 1 - math.exp(-2 * math.pi * frequency / RATE)
    value, out = 0.0, []
    for sample in samples:
        value += share * (sample - value)
        out.append(value)
    return out


def chime_note(frequency, seconds):
    rows = [(1, 1, 0.13), (2, 0.35, 0.07), (3, 0.12, 0.04), (5.4, 0.05, 0.02)]
    return tone(seconds, lambda t: partials(t, frequency, rows) * min(1, t / 0.006))


def seatbelts():
    """Two falling bell notes, as in a cabin."""
    return mix(0.95, (0.0, chime_note(659.26, 0.6)), (0.3, chime_note(523.25, 0.65)))


def funk():
    """A plucked bass note that slides up to a short chord."""

    def bass(t):
        frequency = 98 + 12 * (1 - fading(t, 0.02))
        return fading(t, 0.06) * (sine(frequency, t) + 0.5 * sine(2 * frequency, t) + 0.25 * sine(3 * frequency, t))

    def chord(t):
        return fading(t, 0.05) * sum(sine(f, t) + 0.3 * sine(2 * f, t) for f in (329.63, 415.30, 493.88)) / 3

    return mix(0.5, (0.0, tone(0.3, bass)), (0.16, tone(0.3, chord)))


def tink():
    """A light high tick."""
    rows = [(1, 1, 0.02), (1.51, 0.5, 0.012), (2.32, 0.25, 0.006)]
    return tone(0.2, lambda t: partials(t, 2793.83, rows))


def basso():
    """A low thud."""
    thud = tone(0.45, lambda t: fading(t, 0.07) * math.sin(2 * math.pi * (62 * t + 1.6 * (1 - fading(t, 0.025)))))
    source = noise()
    knock = low_passed(tone(0.08, lambda t: fading(t, 0.012) * next(source)), 500)
    return mix(0.5, (0.0, thud), (0.0, knock))


def frog():
    """A croak in two bursts: a rough low buzz through two throat resonances."""

    def burst(seconds, base):
        def wave(t):
            pulse = (t * base) % 1 / base  # seconds since the last opening of the throat
            voice = fading(pulse, 0.004) * (sine(560, pulse) + 0.6 * sine(1180, pulse))
            return voice * math.sin(math.pi * min(1, t / seconds)) ** 0.5

        return tone(seconds, wave)

    return mix(0.5, (0.0, burst(0.14, 58)), (0.19, burst(0.28, 72)))


def bottle():
    """A breath across the neck of a bottle."""
    source = noise()
    breath = low_passed(tone(0.6, lambda t: next(source)), 900)

    def blown(i):
        t = i / RATE
        swell = min(1, t / 0.05) * min(1, (0.6 - t) / 0.3)
        hollow = sine(233, t) + 0.18 * sine(3 * 233, t)
        return swell * (hollow + 0.35 * breath[i])

    return [blown(i) for i in range(len(breath))]


def glass():
    """A ringing glass."""
    rows = [(1, 1, 0.16), (1.003, 0.6, 0.16), (2.32, 0.5, 0.09), (4.25, 0.25, 0.05), (6.63, 0.12, 0.025)]
    return tone(0.9, lambda t: partials(t, 1174.66, rows))


def finished(samples):
    """At the common level, with an attack of 2 ms and an end of 20 ms that do not click."""
    peak = max(abs(sample) for sample in samples)
    attack, end = 0.002 * RATE, 0.020 * RATE
    count = len(samples)
    return [
        LEVEL * sample / peak * min(1, i / attack) * min(1, (count - 1 - i) / end) for i, sample in enumerate(samples)
    ]


def extended(number):
    """A positive whole number as the 80-bit float of the format."""
    exponent = number.bit_length() - 1
    return struct.pack(">HQ", 16383 + exponent, number << (63 - exponent))


def chunk(name, body):
    return name + struct.pack(">I", len(body)) + body + b"\0" * (len(body) % 2)


def aiff(samples):
    data = struct.pack(">%dh" % len(samples), *(round(32767 * sample) for sample in samples))
    common = struct.pack(">hIh", 1, len(samples), 16) + extended(RATE)
    return chunk(b"FORM", b"AIFF" + chunk(b"COMM", common) + chunk(b"SSND", struct.pack(">II", 0, 0) + data))


SOUNDS = {
    "Seatbelts": seatbelts,
    "Funk": funk,
    "alerts/Tink": tink,
    "alerts/Basso": basso,
    "alerts/Frog": frog,
    "alerts/Bottle": bottle,
    "alerts/Glass": glass,
}


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    (folder / "alerts").mkdir(parents=True, exist_ok=True)
    for name, make in SOUNDS.items():
        (folder / (name + ".aiff")).write_bytes(aiff(finished(make())))


if __name__ == "__main__":
    main()
