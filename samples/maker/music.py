"""The piece of the quay: two voices, written as sound data of 8 bits in whole numbers only."""

import struct

RATE = 11025
BEAT = RATE // 4  # 120 beats a minute, in halves

# Half tones above A2, 0 and more; None is a rest. One letter is one half beat.
MELODY = [12, None, 15, 17, 19, None, 17, 15, 12, None, 10, 12, 15, 12, 10, None,
          12, None, 15, 17, 19, 22, 24, 22, 19, None, 17, 15, 12, None, None, None]
BASS = [0, 0, 7, 0, 0, 0, 7, 0, -2, -2, 5, -2, -2, -2, 5, -2,
        -4, -4, 3, -4, -4, -4, 3, -4, -5, -5, 2, -5, 0, 0, 7, 0]

# Hundredths of a hertz for the twelve half tones from A2.
TONES = [11000, 11654, 12347, 13081, 13859, 14683, 15556, 16481, 17461, 18500, 19600, 20765]


def hundredths(tone):
    frequency = TONES[tone % 12]
    octave = tone // 12
    return frequency << octave if octave >= 0 else frequency >> -octave


def triangle(phase):
    """-64 to 64 over a turn of 65536."""
    return abs((phase & 0xffff) - 0x8000) // 256 - 64


def voice(tones, strength):
    samples = []
    phase = 0
    for tone in tones:
        for place in range(BEAT):
            if tone is None:
                samples.append(0)
                continue
            phase += hundredths(tone) * 65536 // (RATE * 100)
            fade = 256 - 200 * place // BEAT
            samples.append(triangle(phase) * fade * strength // (256 * 16))
    return samples


def wave():
    mixed = [128 + a + b for a, b in zip(voice(MELODY, 12), voice(BASS, 14))]
    data = bytes(mixed)
    head = struct.pack("<4sI4s4sIHHIIHH4sI", b"RIFF", len(data) + 36, b"WAVE", b"fmt ", 16, 1, 1,
                       RATE, RATE, 1, 8, b"data", len(data))
    return head + data
