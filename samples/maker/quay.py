"""The old quay in the hour between the last ferry and the first lamp: what its layers show."""

from math import cos, exp, pi, sin

from .effects import Dice, between
from .raster import Canvas, Sprite

# The scenery: clear, line, deep, then ramps.
STONE = tuple(range(3, 9))
WOOD = tuple(range(9, 14))
RUST = tuple(range(14, 18))
SEA = tuple(range(18, 24))
GOLD = tuple(range(24, 28))
PALE = tuple(range(28, 32))
SCENERY = ([(255, 0, 255, 0), (20, 18, 34, 255), (38, 32, 56, 255)]
           + between([(44, 42, 62), (86, 82, 98), (132, 122, 124), (188, 170, 152)], 6)
           + between([(46, 30, 36), (104, 66, 52), (168, 116, 78)], 5)
           + between([(84, 34, 44), (156, 62, 52), (214, 112, 72)], 4)
           + between([(28, 40, 76), (46, 78, 112), (92, 124, 142), (226, 178, 148)], 6)
           + between([(150, 96, 40), (250, 190, 80), (255, 244, 196)], 4)
           + between([(110, 108, 130), (178, 172, 182), (246, 240, 232)], 4))

# The sky and all that is far: 64 steps of evening, then hills and houses.
SKY = between([(34, 38, 84), (62, 58, 116), (116, 82, 138), (184, 104, 132), (236, 148, 118),
               (252, 196, 134), (255, 226, 170)], 64)
HILL = tuple(range(64, 72))
HOUSE = tuple(range(72, 84))
LIT = tuple(range(84, 88))
CLOUD = tuple(range(88, 96))
FAR = (SKY + between([(58, 54, 100), (96, 80, 120), (150, 112, 132)], 8)
       + between([(40, 36, 66), (70, 56, 84), (112, 80, 92), (150, 104, 100)], 12)
       + between([(196, 130, 60), (255, 206, 110)], 4)
       + between([(112, 84, 138), (190, 118, 142), (244, 176, 150), (255, 226, 196)], 8))
FAR = [(255, 0, 255, 0)] + FAR  # a clear one in front: the steps above count from 1
HILL, HOUSE, LIT, CLOUD = (tuple(c + 1 for c in ramp) for ramp in (HILL, HOUSE, LIT, CLOUD))

BAYER = ((0, 8, 2, 10), (12, 4, 14, 6), (3, 11, 1, 9), (15, 7, 13, 5))


def dithered(value, x, y):
    return int(value + BAYER[y & 3][x & 3] / 16)


def placed(canvas, x, y):
    """The sprite with the axis told from its top left corner, not cropped."""
    return Sprite(canvas.width, canvas.height, canvas.pixels, x, y)


def sheet(width, height):
    canvas = Canvas(0, 0, width - 1, height - 1)
    canvas.begin()
    return canvas


def sky():
    canvas = sheet(64, 372)
    for y in range(372):
        value = 63 * min(1, max(0, (y - 10) / 300)) ** 1.25
        for x in range(64):
            canvas.pixels[y * 64 + x] = 1 + min(63, dithered(value, x, y))
    return placed(canvas, 0, 0)


def cloud(width, height, seed, count):
    """Heaps with a flat foot, lit from below by a sun that has gone."""
    canvas = sheet(width, height)
    dice = Dice(seed)
    for _ in range(count):
        middle = dice.within(width * 0.12, width * 0.88)
        base = dice.within(height * 0.45, height - 5)
        wide = dice.within(width * 0.08, width * 0.2)
        for _ in range(9):
            x = middle + dice.within(-wide, wide)
            room = min(x, width - x) - 2
            rx = min(dice.within(8, 22), max(3, room))
            ry = min(rx * dice.within(0.22, 0.4), base - 2)
            canvas.ellipse((x, base - dice.within(0, 5)), rx, ry, CLOUD[::-1], bias=0.0,
                           keep=lambda u, v: v < 4)
    return canvas.sprite_at()


def sun():
    size = 120
    data = bytearray()
    for y in range(size):
        for x in range(size):
            out = ((x - 59.5) ** 2 + (y - 59.5) ** 2) ** 0.5
            disc = 1.0 if out < 24 else max(0.0, 1 - (out - 24) / 1.5)
            glow = exp(-max(0, out - 22) / 11) * 0.55 * max(0, 1 - out / 60)
            alpha = min(1.0, disc + glow)
            data += bytes((int(120 + 70 * disc), int(196 + 40 * disc), 255,
                           int(alpha * 255 + 0.5)))
    return Sprite(size, size, data, 0, 0, 32)


def hills():
    width, height = 900, 140
    canvas = sheet(width, height)
    for ridge, (base, colour) in enumerate(((34, 5), (62, 2), (92, 0))):
        for x in range(width):
            t = x / width * 2 * pi
            top = base + 14 * sin(t * (2 + ridge) + ridge) + 7 * sin(t * 7 + 2 * ridge) + 2.2 * sin(
                t * 31 + ridge)
            for y in range(int(top), height):
                fade = (y - top) / 34
                canvas.pixels[y * width + x] = HILL[min(7, colour + dithered(
                    min(1.6, fade), x, y))]
    return placed(canvas, 0, 0)


def town():
    """Houses with stairs of roofs, a church, and here and there a light."""
    canvas = sheet(430, 128)
    dice = Dice(11)
    for row, (bottom, tall) in enumerate(((112, 46), (128, 40))):
        x = 0
        while x < 428:
            wide = int(dice.within(16, 34))
            house(canvas, dice, x, bottom, min(wide, 430 - x), tall + dice.within(-14, 16), row)
            x += wide - int(dice.within(0, 3))
    church(canvas, 96)
    return placed(canvas, 0, 0)


def house(canvas, dice, left, bottom, wide, tall, row):
    top = int(bottom - tall)
    shade = int(dice.within(2, 6)) + 3 * row
    roof = int(dice.within(6, 13))
    canvas.polygon([(left, top), (left + wide, top), (left + wide, bottom), (left, bottom)],
                   HOUSE[min(11, shade)])
    canvas.polygon([(left + wide - 3, top), (left + wide, top), (left + wide, bottom),
                    (left + wide - 3, bottom)], HOUSE[min(11, shade + 2)])
    canvas.polygon([(left - 1, top + 1), (left + wide * 0.5, top - roof),
                    (left + wide + 1, top + 1)], HOUSE[max(0, shade - 3)])
    canvas.line((left + wide * 0.5, top - roof), (left + wide, top), HOUSE[min(11, shade + 1)])
    if dice.next() < 0.6:
        stack = left + int(wide * dice.within(0.2, 0.7))
        canvas.polygon([(stack, top - roof - 2), (stack + 3, top - roof - 2), (stack + 3, top - 2),
                        (stack, top - 2)], HOUSE[max(0, shade - 2)])
    for y in range(top + 5, int(bottom) - 6, 9):
        for x in range(left + 3, left + wide - 6, 6):
            throw = dice.next()
            colour = LIT[int(dice.next() * 4)] if throw < 0.28 else HOUSE[max(0, shade - 2)]
            canvas.polygon([(x, y), (x + 3, y), (x + 3, y + 4), (x, y + 4)], colour)


def church(canvas, left):
    canvas.polygon([(left, 40), (left + 16, 40), (left + 16, 112), (left, 112)], HOUSE[4])
    canvas.polygon([(left + 12, 40), (left + 16, 40), (left + 16, 112), (left + 12, 112)], HOUSE[7])
    canvas.polygon([(left - 2, 41), (left + 8, 2), (left + 18, 41)], HOUSE[1])
    canvas.polygon([(left + 9, 6), (left + 8, 2), (left + 18, 41), (left + 13, 41)], HOUSE[4])
    canvas.polygon([(left + 16, 70), (left + 46, 70), (left + 46, 112), (left + 16, 112)], HOUSE[3])
    canvas.polygon([(left + 14, 71), (left + 24, 54), (left + 40, 54), (left + 48, 71)], HOUSE[1])
    for x in (left + 6, left + 22, left + 30, left + 38):
        y = 50 if x < left + 16 else 80
        canvas.polygon([(x, y), (x + 3, y), (x + 3, y + 10), (x, y + 10)], LIT[2])
    canvas.line((left + 8, 0), (left + 8, 4), HOUSE[6])


def dusk():
    canvas = sheet(64, 64)
    canvas.pixels = bytearray(PALE[3:4] * 4096)
    return placed(canvas, 0, 0)


def stones():
    """The edge of the quay and the first rows of its stones: repeats after 64."""
    canvas = sheet(64, 20)
    dice = Dice(5)
    for y in range(20):
        for x in range(64):
            value = 4.6 - y * 0.08 + dice.within(-0.45, 0.45)
            canvas.pixels[y * 64 + x] = STONE[max(0, min(5, int(value)))]
    for y, joints in ((0, ()), (7, (10, 44)), (13, (26, 58)), (19, ())):
        for x in range(64):
            canvas.put(x, y, STONE[1] if y else STONE[5])
            if 0 < y < 19:
                canvas.put(x, y + 1, STONE[4])
        for x in joints:
            canvas.line((x, y), (x, y + 5), STONE[1])
            canvas.line((x + 1, y + 1), (x + 1, y + 5), STONE[5])
    for x in (5, 30, 51):
        canvas.put(x, 4, STONE[2])
        canvas.put(x + 1, 4, STONE[2])
    return placed(canvas, 0, 0)


def wall():
    """Below the edge: big wet blocks, weeds and a ring."""
    canvas = sheet(64, 72)
    dice = Dice(6)
    for y in range(72):
        for x in range(64):
            value = 3.6 - y * 0.045 + dice.within(-0.4, 0.4)
            canvas.pixels[y * 64 + x] = STONE[max(0, min(5, int(value)))]
    for row in range(5):
        y = row * 15
        for x in range(64):
            canvas.put(x, y, LINE_OF[row > 1])
            canvas.put(x, y + 1, STONE[max(0, 4 - row)])
        for x in ((14, 46) if row % 2 else (0, 32)):
            canvas.line((x, y), (x, y + 14), LINE_OF[row > 1])
            canvas.line((x + 1, y + 2), (x + 1, y + 13), STONE[max(0, 4 - row)])
    for _ in range(34):
        x, y = int(dice.within(0, 64)), int(dice.within(36, 70))
        for part in range(int(dice.within(1, 5))):
            canvas.put(x, y + part, SEA[int(dice.within(1, 4))])
    for step in range(40):
        angle = step * pi / 20
        canvas.put(30 + 5 * cos(angle), 24 + 6 * sin(angle), RUST[2 if step < 20 else 1])
        canvas.put(31 + 5 * cos(angle), 24 + 6 * sin(angle), RUST[1])
    canvas.polygon([(27, 16), (34, 16), (34, 20), (27, 20)], RUST[1])
    return placed(canvas, 0, 0)


LINE_OF = (STONE[0], 2)


def wave(number):
    """The water of the harbour; 128 wide, so that it repeats."""
    canvas = sheet(128, 56)
    turn = number * pi / 3
    for y in range(56):
        near = y / 55
        depth = 26 / (0.18 + near)  # rows of waves grow toward the onlooker
        for x in range(128):
            t = x / 128 * 2 * pi
            swell = (sin(depth * 1.7 + sin(t * 2 + depth) * 1.3 + turn)
                     + 0.7 * sin(depth * 0.9 - turn + 1.6 * sin(t * 3 - depth * 0.7))
                     + 0.35 * sin(t * 5 + depth * 2.3 + turn))
            value = 4.3 - 3.3 * near ** 0.6 + 0.55 * swell
            canvas.pixels[y * 128 + x] = SEA[max(0, min(4, dithered(value, x, y)))]
            if swell > 1.45 + 0.2 * near:
                canvas.pixels[y * 128 + x] = SEA[5] if near < 0.62 else SEA[3]
    return placed(canvas, 0, 0)


def foam(number):
    canvas = sheet(150, 12)
    dice = Dice(70)
    for _ in range(46):
        x, y = dice.within(6, 144), dice.within(3, 9)
        grow = dice.within(-0.6, 0.8)
        size = dice.within(1.2, 2.6) + number * grow * 0.45
        if size > 0.7:
            canvas.ellipse((x + number * dice.within(-1, 1), y), size * 1.6, size * 0.8, PALE[1:])
    return placed(canvas, 0, 0)


def gull(number):
    """Seen from the side; the wings go from high to low, and glide at last."""
    canvas = Canvas(-26, -26, 26, 26)
    wrist, tip = (((-4, -10), (-12, -17)), ((-4, -7), (-15, -9)), ((-3, -1), (-16, 3)),
                  ((-2, 6), (-10, 13)), ((-5, -5), (-18, -3)))[number]
    for shift, shades in ((3, PALE[:3]), (0, PALE)):
        canvas.begin()
        canvas.use(shades)
        bend, end = (wrist[0] + 2 * shift, wrist[1]), (tip[0] + 2 * shift, tip[1])
        canvas.polygon([(4 + shift * 0.3, -1), bend, end, (bend[0] - 5, bend[1] + 4), (-4, 2)],
                       shades[-1])
        canvas.polygon([(bend[0] - 5, bend[1] + 4), (bend[0] - 2, bend[1] + 3), (1, 1), (-4, 2)],
                       shades[-2])
        canvas.polygon([end, (end[0] + 4, (end[1] + bend[1]) / 2), (bend[0] - 5, bend[1] + 4)], 1)
        if shift:
            canvas.begin()
            canvas.polygon([(-6, -0.5), (-12, 0), (-13, 2.5), (-7, 2.5)], PALE[2])
            canvas.capsule((-6, 1), 1.8, (5, 0.2), 2.8, PALE)
            canvas.capsule((6, -1.5), 2.3, (7.4, -1.8), 2.1, PALE)
            canvas.line((9.5, -1.5), (12, -0.5), GOLD[1])
            canvas.put(8, -2.5, 1)
    canvas.edges()
    return canvas.sprite()


def flag(number):
    """Blue with a yellow cross of nobody's, and its pole."""
    canvas = Canvas(-2, -4, 34, 64)
    canvas.begin()
    canvas.use(WOOD)
    canvas.line((0, -2), (0, 62), WOOD[3], 2)
    canvas.put(0, -4, GOLD[2])
    canvas.put(0, -3, GOLD[1])
    canvas.begin()
    canvas.use(RUST)
    phase = number * pi / 3
    for x in range(28):
        shift = sin(x * 0.36 - phase) * (0.6 + x * 0.09)
        slope = cos(x * 0.36 - phase)
        for y in range(16):
            cross = 8 <= x <= 11 or 6 <= y <= 9
            shade = 1 if slope < -0.35 else 2 if slope < 0.55 else 3
            canvas.put(x + 2, y + shift, GOLD[shade] if cross else RUST[shade])
    canvas.edges()
    return canvas.sprite()


def lamp(number):
    """0 burns, 1 is dark, 2 glows a little."""
    canvas = Canvas(-20, 0, 20, 161)
    canvas.begin()
    canvas.use(STONE)
    canvas.capsule((0, 36), 1.8, (0, 150), 2.6, STONE[:4])
    canvas.capsule((0, 138), 4.0, (0, 158), 5.0, STONE[:4])
    canvas.polygon([(-8, 154), (9, 154), (10, 161), (-9, 161)], STONE[1])
    for y in (60, 128):
        canvas.capsule((-3, y), 2, (3, y), 2, STONE[:5])
    canvas.line((-9, 40), (9, 40), STONE[2], 2)
    canvas.begin()
    glass = ((GOLD[2], GOLD[3]), (SEA[1], SEA[2]), (GOLD[0], GOLD[1]))[number]
    canvas.polygon([(-8, 12), (9, 12), (6, 34), (-5, 34)], glass[0])
    canvas.polygon([(-4, 14), (5, 14), (3, 32), (-2, 32)], glass[1])
    canvas.line((-8, 12), (-5, 34), STONE[0])
    canvas.line((8, 12), (5, 34), STONE[0])
    canvas.line((0, 12), (0, 33), STONE[1])
    canvas.polygon([(-11, 12), (0, 2), (1, 2), (12, 12)], STONE[1])
    canvas.line((-10, 11), (0, 2), STONE[3])
    canvas.polygon([(-6, 33), (7, 33), (5, 38), (-4, 38)], STONE[1])
    canvas.put(0, 0, STONE[2])
    canvas.put(0, 1, STONE[2])
    canvas.edges()
    return canvas.sprite()


def lamp_light():
    """A cone of light with alpha, wider below."""
    width, height = 160, 150
    data = bytearray()
    for y in range(height):
        for x in range(width):
            across = abs(x - 79.5) / (14 + y * 0.42)
            down = 1 - y / height
            light = max(0.0, 1 - across) ** 1.4 * down
            ball = exp(-((x - 79.5) ** 2 + (y + 12) ** 2) / 500)
            data += bytes((150, 214, 255, int(min(1, light * 0.55 + ball) * 200 + 0.5)))
    return Sprite(width, height, data, 80, 0, 32)


def crane():
    """A harbour crane of lattice; its axis is at its foot."""
    canvas = Canvas(-90, -150, 60, 4)
    canvas.begin()
    canvas.use(HOUSE)

    def lattice(a, b, c, d, count):
        for left, right in ((a, b), (c, d)):
            canvas.line(left, right, HOUSE[1], 2)
        for step in range(count):
            t, u = step / count, (step + 1) / count
            first = a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t
            second = c[0] + (d[0] - c[0]) * u, c[1] + (d[1] - c[1]) * u
            third = a[0] + (b[0] - a[0]) * u, a[1] + (b[1] - a[1]) * u
            canvas.line(first, second, HOUSE[3])
            canvas.line(second, third, HOUSE[3])

    lattice((-14, 0), (-8, -88), (14, 0), (8, -88), 6)
    lattice((-4, -96), (-78, -138), (2, -108), (-76, -142), 11)
    canvas.polygon([(-14, -112), (16, -112), (20, -88), (-14, -88)], HOUSE[2])
    canvas.polygon([(-12, -110), (-2, -110), (-2, -98), (-12, -98)], LIT[1])
    canvas.polygon([(16, -108), (34, -104), (34, -90), (18, -88)], HOUSE[0])
    canvas.line((10, -112), (2, -140), HOUSE[2], 2)
    canvas.line((2, -140), (-76, -142), HOUSE[3])
    canvas.line((2, -140), (32, -104), HOUSE[3])
    canvas.line((-76, -140), (-76, -70), HOUSE[2])
    canvas.polygon([(-80, -70), (-72, -70), (-73, -62), (-79, -62)], HOUSE[1])
    canvas.polygon([(-22, -2), (22, -2), (24, 4), (-24, 4)], HOUSE[1])
    return canvas.sprite()


def boat():
    """The ferry, tied up for the night; the axis is in the middle of its water line."""
    canvas = Canvas(-90, -80, 90, 20)
    canvas.begin()
    hull = [(-70, -14), (76, -18), (64, 8), (-58, 8)]
    canvas.use(RUST)
    canvas.polygon(hull, lambda x, y: RUST[3] if y < -12 else RUST[2] if y < -2 else RUST[1])
    canvas.polygon([(-61, 3), (67, 3), (64, 8), (-58, 8)], SEA[0])
    canvas.line((-70, -14), (76, -18), PALE[3], 2)
    canvas.begin()
    canvas.use(PALE)
    canvas.polygon([(-46, -38), (36, -38), (42, -17), (-48, -15)],
                   lambda x, y: PALE[2] if y > -34 else PALE[3])
    canvas.polygon([(-48, -40), (38, -40), (38, -37), (-48, -37)], PALE[1])
    for x in range(-40, 30, 12):
        canvas.polygon([(x, -33), (x + 8, -33), (x + 8, -25), (x, -25)],
                       GOLD[2] if x in (-28, 8) else SEA[1])
    canvas.begin()
    canvas.polygon([(4, -56), (30, -56), (33, -40), (2, -40)], PALE[2])
    canvas.polygon([(7, -53), (28, -53), (29, -45), (6, -45)], SEA[2])
    canvas.polygon([(1, -58), (33, -58), (33, -55), (1, -55)], RUST[2])
    canvas.begin()
    canvas.polygon([(-30, -60), (-18, -61), (-16, -40), (-30, -40)],
                   lambda x, y: WOOD[0] if y < -55 else RUST[3] if x > -22 else RUST[2])
    canvas.begin()
    canvas.use(WOOD)
    canvas.line((44, -17), (46, -70), WOOD[3], 2)
    canvas.line((46, -68), (74, -18), WOOD[1])
    canvas.line((46, -68), (16, -57), WOOD[1])
    for x in range(-66, 72, 12):
        canvas.line((x, -15), (x, -21), PALE[1])
    canvas.line((-68, -21), (74, -24), PALE[1])
    canvas.begin()
    for x in (-40, -12, 16, 44):
        canvas.ellipse((x, -6), 4, 4, STONE[:3])
        canvas.ellipse((x, -6), 1.6, 1.6, (RUST[1],))
    canvas.edges()
    return canvas.sprite()


def bollard():
    canvas = Canvas(-24, 0, 24, 46)
    canvas.begin()
    canvas.capsule((0, 18), 10, (0, 42), 11, STONE[:4])
    canvas.begin()
    canvas.ellipse((0, 10), 15, 8, STONE[:5])
    canvas.begin()
    for y in (24, 28, 32):
        canvas.capsule((-11, y), 2.2, (11, y + 1), 2.2, WOOD[1:])
    canvas.begin()
    canvas.chain([(9, 33, 2.2), (16, 38, 2.2), (22, 45, 2.2)], WOOD[1:])
    canvas.edges()
    return canvas.sprite_at()


def nets():
    """Nets on a rack, corks and a crate."""
    canvas = sheet(150, 96)
    canvas.use(WOOD)
    canvas.polygon([(8, 0), (13, 0), (13, 95), (8, 95)], WOOD[2])
    canvas.polygon([(132, 4), (137, 4), (137, 95), (132, 95)], WOOD[2])
    canvas.polygon([(0, 8), (149, 10), (149, 15), (0, 13)], WOOD[3])
    canvas.begin()
    for step in range(-20, 36):
        for row in range(60):
            t = row / 60
            low = 14 + row + 12 * sin(pi * min(1, max(0, (step * 5 + row * 0.5) / 150)))
            x = step * 5 + row * 0.5
            other = step * 5 + 40 - row * 0.5
            for place in (x, other):
                if 14 <= place <= 130 and t < 0.55 + 0.45 * sin(pi * (place - 14) / 116):
                    canvas.put(place, low, SEA[2] if place == x else SEA[3])
    canvas.begin()
    for number in range(7):
        x = 22 + number * 16
        y = 50 + 26 * sin(pi * (x - 14) / 116)
        canvas.ellipse((x, y), 4, 4.6, RUST if number % 3 else GOLD)
    canvas.begin()
    canvas.use(WOOD)
    canvas.polygon([(92, 62), (146, 62), (146, 96), (92, 96)], WOOD[2])
    for y in (63, 74, 85):
        canvas.polygon([(94, y), (144, y), (144, y + 9), (94, y + 9)],
                       lambda x, _, row=y: WOOD[4 if (x * 7 + row) % 23 < 3 else 3])
    for x in (92, 140):
        canvas.polygon([(x, 62), (x + 6, 62), (x + 6, 96), (x, 96)], WOOD[1])
    canvas.edges()
    return canvas.sprite_at()


def cat(number):
    """0 sleeps, 1 lifts its head, 2 listens, 3 washes a paw."""
    canvas = Canvas(-24, 0, 24, 23)
    canvas.begin()
    canvas.use(STONE)
    fur = STONE[:4]
    if number < 2:
        canvas.chain([(-12, 18, 2.2), (-4, 21, 2.2), (6, 21.4, 1.8)], fur, 0.4)
        canvas.begin()
        canvas.ellipse((-2, 16), 12.5, 6.2, fur)
        head = (9, 15.5) if number == 0 else (10.5, 11)
    else:
        canvas.chain([(-7, 20, 2), (-13, 21, 2), (-17, 18, 1.4)], fur, 0.4)
        canvas.begin()
        canvas.chain([(-4, 17, 6), (3, 10, 4.4)], fur)
        canvas.capsule((4, 13), 2, (5, 21), 1.6, fur, 0.5)
        head = (5, 6) if number == 2 else (7, 8.5)
    canvas.begin()
    x, y = head
    canvas.ellipse(head, 5, 4.3, fur, bias=0.6)
    canvas.polygon([(x - 5, y - 2), (x - 4.4, y - 7), (x - 1, y - 4)], STONE[1])
    canvas.polygon([(x + 1, y - 4), (x + 3.6, y - 7), (x + 4.6, y - 2)], STONE[1])
    canvas.put(x + 4, y + 1, RUST[2])
    if number in (0, 3):
        canvas.line((x, y), (x + 2, y), 1)
    else:
        canvas.put(x + 1, y - 1, GOLD[2])
        canvas.put(x + 3, y - 1, GOLD[2])
    if number == 3:
        canvas.begin()
        canvas.chain([(3, 16, 2), (9, 13, 2), (11, 9, 2.1)], fur, 0.8)
        canvas.put(12, 10, RUST[2])
    canvas.edges()
    return canvas.sprite()


def sprites():
    """Identifier, sprite, name of its palette, and codec."""
    yield (1, 0), sky(), "far", "PNG"
    yield (2, 0), cloud(300, 44, 3, 7), "far", "RLE8"
    yield (2, 1), cloud(260, 60, 8, 5), "far", "RLE8"
    yield (3, 0), sun(), None, "PNG"
    yield (4, 0), hills(), "far", "PNG"
    yield (5, 0), town(), "far", "RLE8"
    yield (6, 0), dusk(), "scenery", "LZ5"
    yield (10, 0), stones(), "scenery", "PCX"
    yield (10, 1), wall(), "scenery", "PCX"
    yield (11, 0), bollard(), "scenery", "LZ5"
    yield (11, 1), nets(), "scenery", "LZ5"
    for number in range(6):
        yield (20, number), wave(number), "scenery", "LZ5"
    for number in range(4):
        yield (21, number), foam(number), "scenery", "LZ5"
    for number in range(5):
        yield (30, number), gull(number), "scenery", "LZ5"
    for number in range(6):
        yield (40, number), flag(number), "scenery", "LZ5"
    for number in range(3):
        yield (41, number), lamp(number), "scenery", "LZ5"
    yield (41, 3), lamp_light(), None, "PNG"
    yield (42, 0), crane(), "far", "RLE8"
    yield (43, 0), boat(), "scenery", "LZ5"
    for number in range(4):
        yield (50, number), cat(number), "scenery", "LZ5"
