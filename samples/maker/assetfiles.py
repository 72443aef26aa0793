"""Sprite files and sound files, byte by byte as docs/formats.md tells them."""

import struct
import zlib

from .packing import crc64, lz5, pcx, png, rle8

LZ5, RLE8, PNG, PCX = 1, 2, 4, 5
NONE = 0xFFFFFFFF


def sealed(data):
    return data + struct.pack("<Q", crc64(data))


class SpriteFile:
    """Collects palettes and sprites; equal pixels become one stream."""

    def __init__(self):
        self.palettes = []  # (identifier, colours)
        self.streams = {}  # (width, height, bits, pixels): number, codec, bytes
        self.sprites = []
        self.remaps = []

    def add_palette(self, identifier, colours):
        self.palettes.append((identifier, list(colours)))
        return len(self.palettes) - 1

    def add(self, identifier, sprite, palette, codec):
        key = sprite.width, sprite.height, sprite.bits, sprite.pixels
        if key not in self.streams:
            self.streams[key] = len(self.streams), codec, self.packed(sprite, palette, codec)
        self.sprites.append(sealed(struct.pack("<HHhhII8x", *identifier, sprite.x, sprite.y,
                                               self.streams[key][0],
                                               NONE if palette is None else palette)))

    def packed(self, sprite, palette, codec):
        colours = [] if palette is None else self.palettes[palette][1]
        if codec == LZ5:
            return lz5(sprite.pixels)
        if codec == RLE8:
            return rle8(sprite.pixels)
        return (png if codec == PNG else pcx)(sprite, colours)

    def bytes(self):
        offset = (64 + 1040 * len(self.palettes) + 48 * len(self.streams)
                  + 32 * len(self.sprites) + 16 * len(self.remaps))
        tables = [self.palette_record(*each) for each in self.palettes]
        for (width, height, bits, pixels), (_, codec, packed) in self.streams.items():
            tables.append(sealed(struct.pack("<QIHHBB6xQQ", offset, len(packed), width, height,
                                             codec, bits, crc64(pixels), crc64(packed))))
            offset += len(packed)
        tables += self.sprites
        tables += [sealed(struct.pack("<HHHH", *old, *new)) for old, new in self.remaps]
        head = sealed(struct.pack("<8sHHIIIIIQ16x", b"ZORVSPR\x1a", 1, 0, len(self.palettes),
                                  len(self.streams), len(self.sprites), len(self.remaps), 0,
                                  offset))
        return head + b"".join(tables) + b"".join(each[2] for each in self.streams.values())

    @staticmethod
    def palette_record(identifier, colours):
        data = b"".join(bytes(colour) for colour in colours).ljust(1024, b"\0")
        return sealed(struct.pack("<HHHH", *identifier, len(colours), 0) + data)


def deflated_blocks(plain):
    blocks = []
    for start in range(0, len(plain), 32768):
        block = plain[start:start + 32768]
        packed = min(block, zlib.compress(block, 9), key=len)
        blocks.append(struct.pack("<I", len(packed)) + packed)
    return b"".join(blocks)


def sound_file(rate, sounds):
    """`sounds` are pairs of an identifier and samples of 16 bits, one channel."""
    offset = 32 + 64 * len(sounds)
    tables, streams = [], []
    for identifier, samples in sounds:
        plain = struct.pack(f"<{len(samples)}h", *samples)
        packed = deflated_blocks(plain)
        deflated = len(packed) < len(plain) * 4 // 5
        stream = packed if deflated else plain
        tables.append(sealed(struct.pack(
            "<HHHHIIQIB3xQQ8x", *identifier, 1, 16, rate, len(samples), offset, len(stream),
            deflated, crc64(plain), crc64(stream))))
        streams.append(stream)
        offset += len(stream)
    head = sealed(struct.pack("<8sHHIQ", b"ZORVSND\x1a", 1, 0, len(sounds), offset))
    return head + b"".join(tables) + b"".join(streams)
