"""Sounds from nothing: noise, falling tones, plates that ring and throats that grunt.

A sound is a list of samples; most lie between -1 and 1 until `finished` scales them.
"""

from math import cos, exp, log, pi, sin

RATE = 22050


def noise(seconds, seed):
    state = seed * 2654435761 % 2**32 or 1
    made = []
    for _ in range(int(seconds * RATE)):
        state = (state * 1664525 + 1013904223) % 2**32
        made.append((state >> 8) / 2**23 - 1)
    return made


def tone(seconds, first, last=None, curve=4.0):
    """A sine whose pitch falls from the first to the last hertz."""
    last = first if last is None else last
    made, phase = [], 0.0
    count = int(seconds * RATE)
    for place in range(count):
        made.append(sin(phase))
        pitch = last + (first - last) * exp(-curve * place / count)
        phase += 2 * pi * pitch / RATE
    return made


def low(samples, hertz):
    """What is below a pitch."""
    part = 1 - exp(-2 * pi * hertz / RATE)
    value, made = 0.0, []
    for sample in samples:
        value += (sample - value) * part
        made.append(value)
    return made


def high(samples, hertz):
    return [sample - below for sample, below in zip(samples, low(samples, hertz))]


def band(samples, hertz, width, sweep=None):
    """A resonance; `sweep` is the pitch at the end."""
    made, a, b = [], 0.0, 0.0
    count = max(1, len(samples))
    keep = exp(-pi * width / RATE)
    around = 0.0
    for place, sample in enumerate(samples):
        if place % 64 == 0:
            pitch = hertz if sweep is None else hertz + (sweep - hertz) * place / count
            around = 2 * keep * cos(2 * pi * pitch / RATE)
        value = (1 - keep) * 2 * sample + around * a - keep * keep * b
        a, b = value, a
        made.append(value)
    return made


def fading(samples, speed, attack=0.002):
    """Loud at once, then less and less: to about a third after 1 / speed seconds."""
    rise = max(1, int(attack * RATE))
    return [sample * min(1.0, place / rise) * exp(-speed * place / RATE)
            for place, sample in enumerate(samples)]


def swelling(samples, peak=0.5):
    """From nothing to the peak, a part of the whole, and back."""
    count = max(1, len(samples))
    return [sample * sin(pi * (place / count) ** (log(0.5) / log(peak))) ** 2
            for place, sample in enumerate(samples)]


def mixed(*parts):
    """Sums pairs of strength and samples, or triples with a start in seconds in front."""
    placed = []
    for part in parts:
        start, strength, samples = part if len(part) == 3 else (0.0, *part)
        placed.append((int(start * RATE), strength, samples))
    made = [0.0] * max(start + len(samples) for start, _, samples in placed)
    for start, strength, samples in placed:
        for place, sample in enumerate(samples, start):
            made[place] += sample * strength
    return made


def hard(samples, drive):
    """Overdriven: loud parts lose their tops."""
    return [sample * drive / (1 + abs(sample * drive)) for sample in samples]


def finished(samples, loud=0.85):
    """Whole numbers of 16 bits that end in silence."""
    most = max(abs(sample) for sample in samples) or 1
    tail = min(len(samples), RATE // 100)
    made = []
    for place, sample in enumerate(samples):
        left = min(1.0, (len(samples) - place) / tail)
        made.append(int(sample / most * loud * left * 32767))
    while made and made[-1] == 0:
        made.pop()
    return made


def thud(seconds, pitch, speed, seed):
    """A dull body: a falling tone and a slap of noise."""
    return mixed((1.0, fading(tone(seconds, pitch * 2.4, pitch, 9), speed)),
                 (0.5, fading(low(noise(seconds * 0.5, seed), 900), speed * 2)))


def slap(seconds, hertz, seed):
    return fading(band(noise(seconds, seed), hertz, hertz * 0.8), 26 / (seconds * 4), 0.001)


def swing(seconds, first, last, seed):
    """Air that is cut."""
    return swelling(band(noise(seconds, seed), first, first * 0.5, last), 0.45)


def knock(pitch, seconds, seed):
    """Wood on wood."""
    parts = [(1.0, fading(tone(seconds, pitch), 34)),
             (0.6, fading(tone(seconds, pitch * 2.71), 52)),
             (0.4, fading(tone(seconds, pitch * 4.9), 80)),
             (0.5, fading(high(noise(0.03, seed), 1200), 160, 0.0005))]
    return mixed(*parts)


def bell(pitch, seconds, speed):
    """A harbour bell: the partials of bronze, the low ones longest."""
    partials = [(0.5, 1.0, 0.5), (1.0, 1.0, 1.0), (1.19, 0.7, 1.2), (1.5, 0.5, 1.4),
                (2.0, 0.8, 1.8), (2.51, 0.4, 2.6), (3.01, 0.3, 3.2), (4.1, 0.25, 4.6),
                (5.4, 0.18, 7.0)]
    return mixed(*[(strength, fading(tone(seconds, pitch * part), speed * quick, 0.001))
                   for part, strength, quick in partials],
                 (0.4, fading(high(noise(0.04, 77), 1500), 120, 0.0005)))


def water(seconds, seed, heavy=1.0):
    """A splash: noise that closes, and drops that rise in pitch."""
    body = fading(band(noise(seconds, seed), 1800 / heavy, 1500, 500 / heavy), 5 / seconds, 0.02)
    deep = fading(low(noise(seconds, seed + 1), 340), 6 / seconds, 0.03)
    parts = [(1.0, body), (1.6 * heavy, deep)]
    for start, pitch in ((0.16, 620), (0.27, 880), (0.36, 760), (0.46, 1150)):
        if start < seconds * 0.7:
            parts.append((start, 0.16, fading(tone(0.07, pitch, pitch * 1.9, 3), 42, 0.004)))
    return mixed(*parts)


def grunt(seconds, pitch, formants, seed, drop=0.72):
    """A throat: pulses whose pitch falls, through the resonances of a mouth."""
    count = int(seconds * RATE)
    pulses, phase = [], 0.0
    rough = noise(seconds, seed)
    for place in range(count):
        t = place / count
        phase += pitch * (1 + 0.12 * sin(9 * t) - (1 - drop) * t) / RATE
        phase -= int(phase)
        pulses.append((1 - 2 * phase) * 0.8 + rough[place] * (0.10 + 0.2 * t))
    voiced = mixed(*[(strength, band(pulses, hertz, width))
                     for hertz, width, strength in formants])
    return swelling(voiced, 0.28)


# The vowels of two people: pitch, width and strength of each resonance.
HER = [(820, 90, 1.0), (1300, 110, 0.6), (2900, 180, 0.22)]
HIS = [(520, 80, 1.0), (920, 100, 0.7), (2300, 200, 0.15)]
