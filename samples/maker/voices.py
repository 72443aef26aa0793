"""The sounds that the moves name, by group and number."""

from .synth import (HER, HIS, RATE, bell, fading, finished, grunt, hard, high, knock, low, mixed,
                    noise, slap, swing, thud, tone, water)


def blow(weight, seed, bright):
    """A fist that was swung and lands: the heavier, the deeper and longer."""
    lead = 0.05 + 0.02 * weight
    return mixed((0.5, swing(lead * 1.6, 700 - 90 * weight, 1700 - 160 * weight, seed)),
                 (lead, 1.0, hard(thud(0.16 + 0.06 * weight, 96 - 13 * weight, 22 - 3 * weight,
                                       seed + 1), 1.4 + 0.3 * weight)),
                 (lead, bright, slap(0.09 + 0.02 * weight, 1900 - 260 * weight, seed + 2)))


def throw(seed, voice):
    return mixed((0.7, swing(0.3, 300, 900, seed)), (0.02, 0.5, voice),
                 (0.3, 1.0, thud(0.4, 52, 10, seed + 1)),
                 (0.31, 0.5, fading(low(noise(0.3, seed + 2), 500), 12)))


def guarded(weight, seed):
    """Against forearms: cloth and bone, with little behind it."""
    return mixed((1.0, fading(low(noise(0.12 + 0.03 * weight, seed), 1300 - 200 * weight), 30)),
                 (0.8, fading(tone(0.12 + 0.03 * weight, 210 - 24 * weight, 120), 34)),
                 (0.3, fading(high(noise(0.05, seed + 1), 2000), 80)))


def guards():
    for number in range(3):
        yield (5, number), finished(guarded(number, 60 + number), 0.6 + 0.08 * number)
    yield (5, 3), finished(mixed((0.7, swing(0.16, 500, 1200, 66)), (0.1, 1.0, guarded(2, 67))))


def maren():
    heave = grunt(0.26, 236, HER, 21)
    yield (1, 0), finished(blow(0, 1, 0.9), 0.62)
    yield (1, 1), finished(blow(1, 5, 0.8), 0.72)
    yield (1, 2), finished(mixed((1.0, blow(2, 9, 0.8)), (0.02, 0.35, grunt(0.2, 250, HER, 22))))
    yield (1, 3), finished(throw(13, heave))
    wood = mixed((0.6, swing(0.16, 900, 2400, 31)), (0.12, 1.0, knock(310, 0.3, 32)),
                 (0.12, 0.6, thud(0.2, 80, 20, 33)))
    yield (2, 0), finished(wood, 0.8)
    yield (2, 1), finished(mixed((1.0, wood), (0.13, 0.5, bell(1240, 0.5, 9)), (0.0, 0.3, heave)))
    yield (2, 2), finished(mixed((0.9, swing(0.2, 500, 1900, 35)), (0.08, 0.8, water(0.45, 36)),
                                 (0.1, 0.8, thud(0.2, 84, 18, 37))), 0.8)
    yield (2, 3), finished(mixed((0.9, swing(0.24, 420, 1700, 38)), (0.08, 1.0, water(0.7, 39)),
                                 (0.1, 1.0, thud(0.26, 70, 15, 40)), (0.0, 0.35, heave)))
    yield (2, 4), finished(mixed((1.0, swing(0.3, 600, 3600, 41)),
                                 (0.25, 0.9, slap(0.08, 2600, 42)),
                                 (0.27, 0.4, fading(band_of_rope(), 14))), 0.75)
    yield (2, 5), finished(mixed((1.0, water(1.1, 43, 1.5)), (0.04, 1.0, thud(0.5, 48, 8, 45)),
                                 (0.0, 0.3, grunt(0.4, 262, HER, 46, 0.85))), 0.95)
    yield from guards()


def band_of_rope():
    """Fibres that creak: a row of small clicks."""
    samples = [0.0] * int(0.22 * RATE)
    place, gap = 0, 160
    while place < len(samples):
        samples[place] = 1.0
        place += gap
        gap = gap * 21 // 20
    return high(low(samples, 2400), 300)


def iwao():
    heave = grunt(0.34, 104, HIS, 121)
    yield (2, 0), finished(blow(1, 101, 1.0), 0.7)
    yield (2, 1), finished(blow(2, 105, 0.7), 0.8)
    yield (2, 2), finished(mixed((1.0, blow(3, 109, 0.7)), (0.02, 0.4, heave)), 0.92)
    yield (2, 3), finished(throw(113, heave), 0.92)
    charge = mixed((0.7, swing(0.2, 260, 700, 131)), (0.1, 1.2, hard(thud(0.36, 54, 11, 132), 2)),
                   (0.1, 0.5, slap(0.12, 900, 133)))
    yield (3, 0), finished(charge, 0.88)
    yield (3, 1), finished(mixed((1.0, charge), (0.0, 0.5, grunt(0.4, 96, HIS, 122)),
                                 (0.16, 0.5, knock(150, 0.3, 134))), 0.95)
    yield (3, 2), finished(mixed((0.4, swing(0.14, 300, 900, 135)), (0.1, 1.0, bell(392, 1.1, 3.2)),
                                 (0.1, 0.6, thud(0.25, 66, 14, 136))), 0.85)
    yield (3, 3), finished(mixed((0.4, swing(0.16, 240, 800, 137)), (0.12, 1.0, bell(262, 1.7, 2)),
                                 (0.12, 0.8, thud(0.4, 52, 10, 138)), (0.0, 0.3, heave)), 0.95)
    yield (3, 4), finished(mixed((0.6, swing(0.34, 200, 620, 139)), (0.0, 0.4, heave),
                                 (0.32, 1.3, hard(thud(0.6, 44, 7, 140), 2)),
                                 (0.34, 0.4, knock(120, 0.4, 141)),
                                 (0.34, 0.5, fading(low(noise(0.5, 142), 420), 8))), 0.95)
    yield (3, 5), finished(mixed((1.0, water(1.3, 143, 2.0)), (0.05, 1.2, thud(0.7, 40, 6, 145)),
                                 (0.0, 0.35, grunt(0.5, 92, HIS, 146, 0.9))), 0.97)
    yield from guards()


SOUNDS = {"characters/maren": maren, "characters/iwao": iwao}
