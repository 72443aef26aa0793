#!/usr/bin/env python3
"""Makes the sprites and sounds of the broken twin, each with faults that `zorv check` finds.

usage: make_broken.py [FOLDER]
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from maker.assetfiles import LZ5, SpriteFile, sound_file  # noqa: E402
from maker.raster import Sprite  # noqa: E402

RATE = 8000


def sprites():
    """A palette beyond LZ5, one that nothing uses, and a sprite that nothing shows."""
    file = SpriteFile()
    colours = [(4 * shade, 2 * shade, 60, 255) for shade in range(64)]
    used = file.add_palette((0, 0), colours)
    file.add_palette((0, 1), colours[::-1])
    for number in range(2):
        file.add((100, number), Sprite(8, 8, [1 + number] * 64, 4, 8), used, LZ5)
    return file.bytes()


def samples(pitch):
    return [(i * pitch % 200 - 100) * 200 for i in range(400)]


def sounds():
    return sound_file(RATE, [((0, 0), samples(7)), ((0, 1), samples(11))])


def damaged_sounds():
    data = bytearray(sound_file(RATE, [((0, 0), samples(5))]))
    data[-1] ^= 1
    return bytes(data)


FILES = {
    "characters/iwao/iwao.sprites": sprites,
    "characters/iwao/iwao.sounds": sounds,
    "stages/pier/pier.sounds": damaged_sounds,
}


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent / "broken"
    for name, make in FILES.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(make())


if __name__ == "__main__":
    main()
