"""Sparks, dust and drops, in a palette of their own; the water that goes with a figure is drawn
with the colours of its costume."""

from math import cos, pi, sin

from .colours import ramp
from .raster import Canvas, crescent, direction, distance

FIRE = tuple(range(3, 11))
ICE = tuple(range(11, 17))
WATER = tuple(range(17, 24))
DUST = tuple(range(24, 29))


def between(stops, count):
    """Colours from stop to stop."""
    made = []
    for number in range(count):
        place = number * (len(stops) - 1) / (count - 1)
        first = min(int(place), len(stops) - 2)
        made.append(tuple(int(a + (b - a) * (place - first) + 0.5)
                          for a, b in zip(stops[first], stops[first + 1])) + (255,))
    return made


PALETTE = ([(255, 0, 255, 0), (30, 16, 24, 255), (64, 30, 40, 255)]
           + between([(120, 26, 32), (214, 70, 30), (250, 150, 40), (255, 220, 100),
                      (255, 255, 236)], 8)
           + between([(30, 50, 130), (60, 130, 220), (140, 220, 250), (250, 255, 255)], 6)
           + between([(26, 52, 92), (48, 108, 158), (120, 184, 214), (220, 244, 250)], 7)
           + ramp((176, 158, 132), 5, 0.6))


class Dice:
    """Numbers that look thrown and are always the same."""

    def __init__(self, seed):
        self.state = seed * 2654435761 % 2**32 or 1

    def next(self):
        self.state = (self.state * 1664525 + 1013904223) % 2**32
        return (self.state >> 8) / 2**24

    def within(self, low, high):
        return low + (high - low) * self.next()


def star(canvas, count, inner, outer, colour, shift, seed):
    """A polygon of spikes whose lengths differ."""
    dice = Dice(seed)
    points = []
    for spike in range(count):
        angle = 2 * pi * spike / count + shift
        length = outer * dice.within(0.62, 1.0) * (1 if spike % 2 == 0 else 0.8)
        points.append((cos(angle) * length, sin(angle) * length))
        angle += pi / count
        points.append((cos(angle) * inner, sin(angle) * inner))
    canvas.polygon(points, colour)


def burst(colours, size, spikes, seed):
    """A flash with its core, from its edge inward."""
    canvas = Canvas(-60, -60, 60, 60)
    canvas.begin()
    for step, colour in enumerate(colours):
        part = 1 - step / len(colours)
        star(canvas, spikes, size * 0.42 * part + 1, size * part ** 0.8, colour, 0.2, seed)
    return canvas


def embers(canvas, radius, count, colours, seed, length=3):
    dice = Dice(seed)
    for _ in range(count):
        angle = dice.within(0, 2 * pi)
        out = radius * dice.within(0.6, 1.05)
        colour = colours[int(dice.next() * len(colours))]
        start = cos(angle) * out, sin(angle) * out
        end = cos(angle) * (out + length), sin(angle) * (out + length)
        canvas.line(start, end, colour, 1 if dice.next() < 0.6 else 2)


def ring(canvas, radius, width, colour, gaps=0, seed=1):
    dice = Dice(seed)
    skipped = {int(dice.next() * 24) for _ in range(gaps)}
    steps = int(radius * 9)
    for step in range(steps):
        if step * 24 // steps in skipped:
            continue
        angle = 2 * pi * step / steps
        for out in range(int(width * 2)):
            r = radius + out / 2
            canvas.put(cos(angle) * r, sin(angle) * r, colour)


def spark_light():
    yield burst([FIRE[3], FIRE[5], FIRE[7]], 13, 7, 3)
    yield burst([FIRE[2], FIRE[4], FIRE[6], FIRE[7]], 22, 8, 5)
    canvas = burst([FIRE[2], FIRE[4], FIRE[6]], 17, 9, 9)
    canvas.ellipse((0, 0), 6, 6, (0,))
    embers(canvas, 20, 12, FIRE[4:], 4)
    yield canvas
    canvas = Canvas(-60, -60, 60, 60)
    canvas.begin()
    embers(canvas, 22, 14, FIRE[1:6], 6, 2)
    yield canvas


def spark_heavy():
    canvas = burst([FIRE[1], FIRE[3], FIRE[5], FIRE[7]], 24, 8, 11)
    yield canvas
    canvas = burst([FIRE[1], FIRE[3], FIRE[5], FIRE[6], FIRE[7]], 38, 11, 12)
    embers(canvas, 34, 10, FIRE[5:], 13, 5)
    yield canvas
    canvas = burst([FIRE[0], FIRE[2], FIRE[4], FIRE[6]], 32, 13, 14)
    canvas.ellipse((0, 0), 11, 11, (0,))
    ring(canvas, 34, 2, FIRE[5], 8, 15)
    embers(canvas, 36, 18, FIRE[3:], 16, 5)
    yield canvas
    canvas = Canvas(-60, -60, 60, 60)
    canvas.begin()
    ring(canvas, 42, 1, FIRE[2], 15, 17)
    embers(canvas, 40, 20, FIRE[:5], 18, 3)
    yield canvas


def spark_guard():
    for number, (size, inner) in enumerate(((14, 0), (20, 9), (22, 15))):
        canvas = Canvas(-60, -60, 60, 60)
        canvas.begin()
        if number < 2:
            for step, colour in enumerate((ICE[1], ICE[3], ICE[5])):
                star(canvas, 6, 3, size * (1 - step * 0.28), colour, pi / 6, 21)
        if inner:
            canvas.ellipse((0, 0), inner - 4, inner - 4, (0,))
        ring(canvas, size * 0.8, 2 if number < 2 else 1, ICE[4 - number], 3 * number, 22)
        embers(canvas, size, 5 + 2 * number, ICE[2:], 23 + number, 3)
        yield canvas


def dust():
    puffs = [(-6, -3, 5), (1, -4, 6), (8, -3, 4.5), (-12, -2, 3.5), (13, -2, 3)]
    for number in range(4):
        canvas = Canvas(-60, -60, 60, 60)
        canvas.begin()
        for x, y, radius in puffs[:3 + min(2, number)]:
            size = radius * (0.75, 1.05, 1.05, 0.7)[number]
            canvas.ellipse((x * (1 + number * 0.32), y * (1 + number * 0.45)), size, size * 0.85,
                           DUST)
        if number > 1:
            for x, y, radius in puffs[:2 * number - 1]:
                canvas.ellipse((x * (1 + number * 0.32) + 2, y * (1 + number * 0.45) + 1),
                               radius * 0.22 * number, radius * 0.2 * number, (0,))
        yield canvas


def drop():
    canvas = Canvas(-20, -20, 20, 20)
    canvas.begin()
    canvas.capsule((0.5, -5), 0.8, (0.5, -2), 2.4, WATER)
    canvas.put(0, -4, WATER[6])
    yield canvas
    canvas = Canvas(-20, -20, 20, 20)
    canvas.begin()
    canvas.capsule((0.5, -7), 0.7, (0.5, -2.5), 2.7, WATER)
    canvas.put(0, -4, WATER[6])
    yield canvas
    canvas = Canvas(-20, -20, 20, 20)
    canvas.begin()
    canvas.capsule((0.5, -7), 0.6, (0.5, -0.5), 2.9, WATER)
    canvas.put(-1, -2, WATER[6])
    yield canvas
    canvas = Canvas(-20, -20, 20, 20)
    canvas.begin()
    for x, y, r in ((-6, -2, 1.2), (-3, -5, 1.4), (3, -5, 1.4), (7, -2, 1.2), (0, -1, 2)):
        canvas.ellipse((x, y), r + 0.5, r, WATER)
    yield canvas


def splash():
    """A crown of water that rises, opens and falls."""
    for number in range(5):
        canvas = Canvas(-60, -80, 60, 30)
        canvas.begin()
        high = (12, 26, 36, 30, 10)[number]
        wide = (9, 15, 22, 29, 33)[number]
        if number < 4:
            crown(canvas, wide, high, WATER[1], WATER[3], 0.7)
            canvas.begin()
            crown(canvas, wide, high * 0.78, WATER[3], WATER[5], 1.0)
        canvas.ellipse((0, -2), wide * 0.9, 3.4, WATER[2:])
        dice = Dice(40 + number)
        for _ in range(4 + 4 * number):
            x, y = dice.within(-wide, wide) * 1.2, -dice.within(0.2, 1.25) * high - 3
            size = dice.within(0.7, 1.9)
            canvas.ellipse((x, y), size, size, WATER)
        yield canvas


def crown(canvas, wide, high, low, top, open_):
    """A ring of tongues around a middle; dark at the foot, light at the tips."""
    points = [(-wide * 0.62, 0)]
    for tongue in range(5):
        across = (tongue - 2) / 2
        tip = high * (0.78 + 0.22 * ((tongue * 7) % 3) / 2) * (1.05 - 0.3 * abs(across))
        points += [(wide * open_ * (across * 0.92 - 0.10), -tip * 0.55),
                   (wide * open_ * across * 1.12, -tip),
                   (wide * open_ * (across * 0.92 + 0.12), -tip * 0.5)]
        if tongue < 4:
            points.append((wide * open_ * (across + 0.25) * 0.86, -high * 0.24))
    points.append((wide * 0.62, 0))
    canvas.use(WATER)
    canvas.polygon(points, lambda x, y: low + min(top - low, max(0, int(-y / high * (top - low + 1)
                                                                        + 0.3 - x / wide * 0.5))))


def sprites():
    for group, made in ((9000, spark_light()), (9001, spark_heavy()), (9002, spark_guard()),
                        (9010, dust()), (9020, drop())):
        for number, canvas in enumerate(made):
            yield (group, number), canvas.sprite()


def splashes():
    for number, canvas in enumerate(splash()):
        canvas.edges(outline=0)
        yield (340, number), canvas.sprite()


# What goes with a figure.

# Of the trace of a blow: how far it reaches back from where it ends, in radians, and its width.
ARCS = {"kick": (1.3, 9), "heel": (-1.6, 10), "hammer": (-1.8, 13), "bell": (-1.7, 13)}


def arc(canvas, colours, kind, pivot, end):
    """The trace of a limb that turned around a pivot and is now at its end."""
    back, width = ARCS[kind]
    if kind == "kick" and end[1] > -24:  # a sweep draws its trace along the floor
        crescent(canvas, (pivot[0], -12), end[0] - pivot[0], 2.4, 0.1, 7, colours, 0.12)
        return
    angle = direction(pivot, end)
    crescent(canvas, pivot, distance(pivot, end) + 2, angle + back, angle, width, colours)


def water_drops(canvas, colours, count, seed, area):
    dice = Dice(seed)
    left, top, right, bottom = area
    for _ in range(count):
        x, y = dice.within(left, right), dice.within(top, bottom)
        size = dice.within(0.8, 2.1)
        canvas.ellipse((x, y), size, size * 1.2, colours)


# The outline of a wave in parts of its width and height: up its back, over the lip, and down the
# hollow below it.
CREST = [(0.00, 0.00), (0.14, 0.05), (0.27, 0.16), (0.38, 0.36), (0.46, 0.60), (0.53, 0.80),
         (0.61, 0.94), (0.71, 1.00), (0.81, 0.97), (0.90, 0.87), (0.96, 0.72), (0.97, 0.58),
         (0.93, 0.66), (0.86, 0.74), (0.78, 0.74), (0.72, 0.66), (0.69, 0.52), (0.69, 0.36),
         (0.73, 0.20), (0.82, 0.08), (0.96, 0.00)]
BACK = 8  # so many points belong to its back


def crest(canvas, colours, left, width, height, number, seed):
    """A wave that runs to the right and breaks; it stands on the floor."""
    dark, middle, light, white = colours
    points = [(left + x * width, -y * height) for x, y in CREST]
    back = points[:BACK]

    def surface(x):
        for (x0, y0), (x1, y1) in zip(back, back[1:]):
            if x < x1:
                return y0 + (y1 - y0) * (x - x0) / (x1 - x0)
        return -height

    def shade(x, y):
        t, deep = (x - left) / width, (y - surface(x)) / height
        if t > 0.66 and -y < height * 0.74 - (t - 0.66) * 30:
            return dark if sin(y * 0.55 + x * 0.2 + number) < 0.75 else middle
        stripe = sin(deep * 17 - t * 4 + number * 2.1)
        if deep < 0.05 or t > 0.9:
            return white
        return light if stripe > 0.25 else middle if deep < 0.62 or stripe > -0.6 else dark

    canvas.use(colours)
    canvas.polygon(points, shade)
    dice = Dice(seed)
    for place, (x, y) in enumerate(points[4:BACK + 5]):
        # The foam of the lip hangs in claws.
        for _ in range(3 + place // 2):
            size = dice.within(1.2, 2.9)
            canvas.ellipse((x + dice.within(-3, 3), y + dice.within(-2, 2.5)), size, size * 0.85,
                           (white,))
    for claw in range(5):
        x, y = left + width * (0.78 + claw * 0.048), -height * (0.73 - 0.02 * claw)
        long = dice.within(0.06, 0.16) * height
        canvas.capsule((x, y), 1.7, (x + dice.within(-1, 2), y + long), 0.7, (light, white))
    for _ in range(14):
        x, y = left + width * dice.within(0.72, 1.14), -height * dice.within(0.5, 1.24)
        size = dice.within(0.7, 1.5)
        canvas.ellipse((x, y), size, size, (white,))
    for _ in range(16):
        x, size = left + width * dice.within(0.05, 1.0), dice.within(1.0, 2.4)
        canvas.ellipse((x, -size * 0.6), size * 1.5, size * 0.8, (light, white))
