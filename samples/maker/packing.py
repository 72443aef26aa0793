"""The codecs of sprite files, and the checksum of their records."""

import struct
import zlib

POLYNOMIAL = 0x95AC9329AC4BC9B5


def crc_table():
    for value in range(256):
        for _ in range(8):
            value = value >> 1 ^ (POLYNOMIAL if value & 1 else 0)
        yield value


CRC_TABLE = list(crc_table())


def crc64(data):
    register = 0xFFFFFFFFFFFFFFFF
    for byte in data:
        register = register >> 8 ^ CRC_TABLE[register & 255 ^ byte]
    return register


def run_at(pixels, place, most):
    end = min(len(pixels), place + most)
    value = pixels[place]
    length = 1
    while place + length < end and pixels[place + length] == value:
        length += 1
    return length


def match_at(pixels, place, seen):
    """The longest copy of what lies 1024 pixels back at most: length and distance."""
    best, back = 0, 0
    for start in reversed(seen.get(pixels[place:place + 3], ())[-16:]):
        if place - start > 1024:
            break
        if pixels[start:start + best] != pixels[place:place + best]:
            continue  # cannot be longer
        length = max(3, best)
        while (length < 258 and place + length < len(pixels)
               and pixels[start + length] == pixels[place + length]):
            length += 1
        if length > best:
            best, back = length, place - start
    return best, back


def lz5_packets(pixels):
    """Runs as (pixel, length) and copies as (None, length, distance)."""
    seen = {}
    place = 0
    while place < len(pixels):
        run = run_at(pixels, place, 263)
        length, back = match_at(pixels, place, seen)
        if length >= 4 and length > run + 2:
            yield None, length, back
        else:
            length = run
            yield pixels[place], run
        for known in range(place, place + length):
            seen.setdefault(pixels[known:known + 3], []).append(known)
        place += length


def lz5(pixels):
    """The fourth of four short copies hides its distance in the upper bits of the lengths."""
    packets = list(lz5_packets(pixels))
    short = [number for number, packet in enumerate(packets)
             if packet[0] is None and packet[1] <= 64 and packet[2] <= 256]
    forms = {}
    for series in (short[first:first + 4] for first in range(0, len(short), 4)):
        hidden = packets[series[3]][2] - 1 if len(series) == 4 else 0
        for turn, number in enumerate(series):
            _, length, back = packets[number]
            head = length - 1 | (hidden << 2 * turn & 0xC0)
            forms[number] = bytes((head, back - 1) if turn < 3 else (head,))
    data = bytearray()
    for first in range(0, len(packets), 8):
        group = packets[first:first + 8]
        data.append(sum(1 << bit for bit, packet in enumerate(group) if packet[0] is None))
        for number, packet in enumerate(group, first):
            data += forms.get(number) or lz5_packet(*packet)
    return bytes(data)


def lz5_packet(pixel, length, back=0):
    if pixel is None:
        return bytes((back - 1 >> 2 & 0xC0, back - 1 & 255, length - 3))
    return bytes((length << 5 | pixel,)) if length < 8 else bytes((pixel, length - 8))


def rle8(pixels):
    data = bytearray()
    place = 0
    while place < len(pixels):
        length = run_at(pixels, place, 63)
        value = pixels[place]
        if length > 1 or value >> 6 == 1:
            data.append(64 + length)
        data.append(value)
        place += length
    return bytes(data)


def pcx(sprite, colours):
    """A whole file, with its palette behind the picture."""
    line = sprite.width + sprite.width % 2
    head = struct.pack("<BBBBHHHHHH48sBBHHHH54x", 10, 5, 1, 8, 0, 0, sprite.width - 1,
                       sprite.height - 1, 72, 72, bytes(48), 0, 1, line, 1, 0, 0)
    data = bytearray()
    for y in range(sprite.height):
        row = sprite.pixels[y * sprite.width:(y + 1) * sprite.width].ljust(line, b"\0")
        place = 0
        while place < line:
            length = run_at(row, place, 63)
            if length > 1 or row[place] >= 192:
                data.append(192 + length)
            data.append(row[place])
            place += length
    return head + bytes(data) + b"\x0c" + b"".join(bytes(c[:3]) for c in colours).ljust(768, b"\0")


def png(sprite, colours):
    """A whole file of a palette, or of true colours with alpha."""
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(
            ">I", zlib.crc32(name + data))

    if sprite.bits == 8:
        kind, tables = 3, chunk(b"PLTE", b"".join(bytes(c[:3]) for c in colours)) + chunk(
            b"tRNS", b"\0")
        rows = [sprite.pixels[y * sprite.width:(y + 1) * sprite.width]
                for y in range(sprite.height)]
    else:
        kind, tables = 6, b""
        rgba = bytearray(sprite.pixels)
        rgba[0::4], rgba[2::4] = sprite.pixels[2::4], sprite.pixels[0::4]
        rows = [bytes(rgba[4 * y * sprite.width:4 * (y + 1) * sprite.width])
                for y in range(sprite.height)]
    head = struct.pack(">IIBBBBB", sprite.width, sprite.height, 8, kind, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + tables + chunk(b"IDAT", data)
            + chunk(b"IEND", b""))
