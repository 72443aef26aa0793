"""The palettes of the fighters: ramps of 32 colours, so that LZ5 can keep the sprites.

The order of the ramps is the same in all of them, from dark to light.
"""

CLEAR, LINE, DEEP = 0, 1, 2
SKIN = (3, 4, 5, 6, 7)
HAIR = (8, 9, 10, 11)
COAT = (12, 13, 14, 15, 16)
CLOTH = (17, 18, 19, 20)
SASH = (21, 22, 23, 24)
LEATHER = (25, 26, 27)
STEEL = (28, 29, 30, 31)
RAMPS = (SKIN, HAIR, COAT, CLOTH, SASH, LEATHER, STEEL)

SHADE = (46, 34, 84)  # dark shades go toward the blue of an evening
GLOW = (255, 246, 214)


def ramp(colour, count, dark=0.30, light=1.12):
    """Shades of a colour: its own is the last but one."""
    shades = []
    for number in range(count):
        part = number / (count - 2)
        if part <= 1:
            strength = dark + (1 - dark) * part
            blue = (1 - part) * 0.30
            shades.append([c * strength * (1 - blue) + s * blue for c, s in zip(colour, SHADE)])
        else:
            shades.append([min(255, c * light * 0.84 + g * 0.16) for c, g in zip(colour, GLOW)])
    return [tuple(int(c + 0.5) for c in shade) + (255,) for shade in shades]


def palette(skin, hair, coat, cloth, sash, leather, steel=(184, 212, 232)):
    """The 32 colours, red, green, blue and alpha of each; the first one is clear."""
    colours = [(255, 0, 255, 0), (22, 18, 34, 255), (44, 36, 62, 255)]
    for colour, places in zip((skin, hair, coat, cloth, sash, leather, steel), RAMPS):
        dark = 0.52 if places is SKIN else 0.36
        colours += ramp(colour, len(places), dark)
    return colours


def act(colours):
    """The bytes of an Adobe colour table, whose last colour is the first one of a sprite."""
    table = [colour[:3] for colour in colours] + [(0, 0, 0)] * (256 - len(colours))
    return b"".join(bytes(colour) for colour in reversed(table))


MAREN_SKIN = (240, 190, 156)
IWAO_SKIN = (214, 156, 112)

# skin, hair, coat, cloth, sash, leather
PALETTES = {
    "characters/maren": {
        "light": palette(MAREN_SKIN, (222, 172, 84), (52, 98, 160), (206, 196, 176),
                         (216, 66, 54), (134, 88, 56)),
        "medium": palette(MAREN_SKIN, (206, 120, 62), (58, 128, 92), (190, 180, 150),
                          (240, 184, 64), (110, 78, 54)),
        "heavy": palette((226, 176, 144), (120, 76, 52), (88, 78, 108), (120, 132, 150),
                         (150, 196, 212), (80, 68, 72)),
        "start": palette((246, 204, 176), (226, 222, 208), (214, 218, 226), (58, 74, 120),
                         (52, 86, 150), (96, 84, 88)),
    },
    "characters/iwao": {
        "light": palette(IWAO_SKIN, (66, 58, 70), (150, 52, 46), (66, 78, 104),
                         (230, 222, 200), (84, 70, 66)),
        "medium": palette(IWAO_SKIN, (66, 58, 70), (54, 96, 124), (96, 84, 74),
                          (224, 176, 66), (74, 66, 70)),
        "heavy": palette((198, 142, 104), (150, 150, 160), (64, 70, 74), (120, 44, 44),
                         (196, 80, 60), (70, 62, 66)),
        "start": palette((222, 172, 132), (120, 70, 44), (210, 200, 176), (40, 96, 104),
                         (36, 110, 120), (110, 90, 66)),
    },
}
