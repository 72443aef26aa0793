#!/usr/bin/env python3
"""Makes the drawings of the first lesson: thirty PNG files of one fighter, all of one size, with the
axis in the middle of the bottom edge. They are called by the sprites of a new character that they
are for, maren-GROUP-NUMBER.png.

The same tables give the same bytes. usage: make_drawings.py [FOLDER]
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from maker import drawing, maren  # noqa: E402
from maker.colours import PALETTES  # noqa: E402
from maker.packing import png  # noqa: E402
from maker.raster import Sprite  # noqa: E402

# The sprite of a new character, and that of the sample game which shows the same.
DRAWINGS = {
    (10, 0): (10, 0), (10, 1): (10, 2), (10, 2): (10, 4), (12, 0): (12, 1),
    (13, 0): (13, 0), (13, 1): (13, 1),
    (20, 0): (20, 0), (20, 1): (20, 2), (20, 2): (20, 4), (20, 3): (20, 6),
    (31, 0): (31, 1), (31, 1): (31, 3), (40, 0): (40, 2), (41, 0): (41, 1), (43, 0): (43, 0),
    (50, 0): (50, 1), (51, 0): (51, 1), (52, 0): (52, 1), (53, 0): (53, 1), (54, 0): (54, 1),
    (58, 0): (58, 0), (60, 0): (60, 0), (61, 0): (61, 2),
    (200, 0): (100, 1), (200, 1): (100, 2),
    (210, 0): (102, 1), (210, 1): (102, 3),
    (220, 0): (101, 1), (220, 1): (101, 2),
    (240, 1): (112, 3),
}


def on_canvas(sprite, width, height):
    """The sprite with its axis in the middle of the bottom edge, or as low as it fits."""
    pixels = bytearray(width * height)
    left, top = width // 2 - sprite.x, min(height - 1 - sprite.y, height - sprite.height)
    for y in range(sprite.height):
        line = sprite.pixels[y * sprite.width:(y + 1) * sprite.width]
        start = (top + y) * width + left
        pixels[start:start + sprite.width] = line
    return Sprite(width, height, bytes(pixels), width // 2, height - 1)


def files():
    sprites = dict(drawing.figures(maren))
    used = [sprites[old] for old in DRAWINGS.values()]
    half = max(max(sprite.x, sprite.width - sprite.x) for sprite in used)
    height = max(sprite.y for sprite in used) + 1
    for (group, number), old in DRAWINGS.items():
        sprite = on_canvas(sprites[old], 2 * half, height)
        yield f"maren-{group}-{number}.png", png(sprite, PALETTES[maren.FOLDER]["light"])


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent / "drawings"
    folder.mkdir(parents=True, exist_ok=True)
    for name, data in files():
        (folder / name).write_bytes(data)


if __name__ == "__main__":
    main()
