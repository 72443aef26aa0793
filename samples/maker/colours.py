"""Palettes of 256 colours as Adobe colour tables: 768 bytes of red, green and blue."""

# Sixteen ramps of sixteen shades: the colour of each ramp at its brightest. The ramps of skin and
# hair are the fighter's, those of the clothes change with the palette.
SHARED = [(255, 0, 255), (240, 240, 240), (90, 70, 60), (200, 160, 90)]


def table(ramps):
    """The bytes of a table. The first ramps are shared; what is left is grey."""
    colours = SHARED + list(ramps)
    colours += [(170, 170, 170)] * (16 - len(colours))
    data = bytearray()
    for colour in colours:
        for shade in range(16):
            # Dark shades go toward blue, as in the light of an evening.
            red, green, blue = (part * (shade + 1) // 16 for part in colour)
            data += bytes((red, green, min(255, blue + (15 - shade) * 2)))
    return bytes(data)


PALETTES = {
    "characters/maren": {
        "light": [(244, 206, 178), (214, 160, 84), (48, 92, 148), (226, 74, 58)],
        "medium": [(244, 206, 178), (214, 160, 84), (58, 122, 86), (240, 190, 70)],
        "heavy": [(236, 194, 166), (120, 72, 48), (70, 66, 82), (160, 196, 214)],
        "start": [(250, 216, 190), (232, 226, 210), (228, 228, 232), (40, 60, 110)],
    },
    "characters/iwao": {
        "light": [(222, 172, 130), (40, 36, 44), (120, 50, 44), (232, 226, 204)],
        "medium": [(222, 172, 130), (40, 36, 44), (52, 76, 96), (220, 170, 60)],
        "heavy": [(206, 150, 110), (150, 150, 156), (42, 48, 50), (190, 60, 50)],
        "start": [(228, 180, 140), (96, 52, 30), (214, 204, 176), (30, 100, 110)],
    },
}
