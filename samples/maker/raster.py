"""Shapes in indexed colours: round ones with shades, flat ones, lines, and dark edges."""

from math import atan2, ceil, cos, floor, hypot, pi, sin, sqrt

LINE = 1
LIGHT = (0.42, -0.70, 0.58)  # from above and from the front


class Canvas:
    """Pixels around an axis. A part in front of another one gets an edge where they meet."""

    def __init__(self, left, top, right, bottom):
        self.left, self.top = left, top
        self.width, self.height = right - left + 1, bottom - top + 1
        self.pixels = bytearray(self.width * self.height)
        self.parts = bytearray(self.width * self.height)
        self.part = 0
        self.darkest = {}  # of the ramp of each colour

    def begin(self):
        """What is drawn from here on is one part."""
        self.part += 1

    def use(self, ramp):
        for colour in ramp:
            self.darkest.setdefault(colour, ramp[0])

    def put(self, x, y, colour):
        x, y = floor(x) - self.left, floor(y) - self.top
        if 0 <= x < self.width and 0 <= y < self.height:
            self.pixels[y * self.width + x] = colour
            self.parts[y * self.width + x] = self.part

    def rows(self, top, bottom):
        return range(max(self.top, floor(top)), min(self.top + self.height - 1, ceil(bottom)) + 1)

    def columns(self, left, right):
        return range(max(self.left, floor(left)), min(self.left + self.width - 1, ceil(right)) + 1)

    def capsule(self, start, r0, end, r1, ramp, bias=0.0):
        """A limb between two points with a radius at each."""
        self.use(ramp)
        x0, y0 = start
        dx, dy = end[0] - x0, end[1] - y0
        square = dx * dx + dy * dy or 1e-9
        most, grow, last = max(r0, r1), r1 - r0, len(ramp) - 1
        lx, ly, lz = (part * len(ramp) / 1.55 for part in LIGHT)
        base = 0.55 / 1.55 * len(ramp) + bias
        pixels, parts, part = self.pixels, self.parts, self.part
        columns = self.columns(min(x0, x0 + dx) - most, max(x0, x0 + dx) + most)
        for y in self.rows(min(y0, y0 + dy) - most, max(y0, y0 + dy) + most):
            py = y + 0.5 - y0
            place = (y - self.top) * self.width - self.left
            for x in columns:
                px = x + 0.5 - x0
                along = (px * dx + py * dy) / square
                along = 0.0 if along < 0 else 1.0 if along > 1 else along
                radius = r0 + grow * along
                nx, ny = px - along * dx, py - along * dy
                left = radius * radius - nx * nx - ny * ny
                if left >= 0:
                    shade = int(base + (nx * lx + ny * ly + sqrt(left) * lz) / radius)
                    pixels[place + x] = ramp[0 if shade < 0 else last if shade > last else shade]
                    parts[place + x] = part

    def chain(self, points, ramp, bias=0.0):
        """Capsules through (x, y, radius)."""
        for (x0, y0, r0), (x1, y1, r1) in zip(points, points[1:]):
            self.capsule((x0, y0), r0, (x1, y1), r1, ramp, bias)

    def ellipse(self, centre, rx, ry, ramp, angle=0.0, bias=0.0, keep=None):
        """A solid; `keep` tells if a point counts, relative to the centre and before the turn."""
        self.use(ramp)
        c, s = cos(angle), sin(angle)
        most = max(rx, ry)
        for y in self.rows(centre[1] - most, centre[1] + most):
            py = y + 0.5 - centre[1]
            place = (y - self.top) * self.width - self.left
            for x in self.columns(centre[0] - most, centre[0] + most):
                px = x + 0.5 - centre[0]
                u, v = px * c + py * s, py * c - px * s
                ex, ey = u / rx, v / ry
                flat = ex * ex + ey * ey
                if flat <= 1 and (keep is None or keep(u, v)):
                    nx, ny = ex * c - ey * s, ex * s + ey * c
                    self.pixels[place + x] = ramp[level(nx, ny, flat, len(ramp), bias)]
                    self.parts[place + x] = self.part

    def polygon(self, points, colour):
        """An area of one colour, or of what `colour(x, y)` gives for a pixel."""
        chosen = colour if callable(colour) else None
        for y in self.rows(min(p[1] for p in points), max(p[1] for p in points)):
            crossings = []
            middle = y + 0.5
            for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
                if (y0 <= middle) != (y1 <= middle):
                    crossings.append(x0 + (middle - y0) * (x1 - x0) / (y1 - y0))
            crossings.sort()
            place = (y - self.top) * self.width - self.left
            for left, right in zip(crossings[::2], crossings[1::2]):
                for x in self.columns(ceil(left - 0.5), ceil(right - 0.5) - 1):
                    self.pixels[place + x] = chosen(x, y) if chosen else colour
                    self.parts[place + x] = self.part

    def line(self, start, end, colour, width=1):
        """A line; thicker ones are squares along it."""
        steps = max(1, ceil(max(abs(end[0] - start[0]), abs(end[1] - start[1]))))
        shift = (width - 1) / 2
        for step in range(steps + 1):
            x = start[0] + (end[0] - start[0]) * step / steps - shift
            y = start[1] + (end[1] - start[1]) * step / steps - shift
            for dy in range(width):
                for dx in range(width):
                    self.put(x + dx, y + dy, colour)

    def area(self):
        """Left, top, right and bottom of what is drawn, from the corner; nothing if it is empty."""
        width = self.width
        rows = [(y, self.parts[y * width:(y + 1) * width]) for y in range(self.height)]
        rows = [(y, row) for y, row in rows if any(row)]
        if not rows:
            return None
        return (min(width - len(row.lstrip(b"\0")) for _, row in rows), rows[0][0],
                max(len(row.rstrip(b"\0")) for _, row in rows) - 1, rows[-1][0])

    def edges(self, outline=LINE):
        """Darkens what lies just behind another part, and draws the line around the whole."""
        width, pixels, parts = self.width, self.pixels, self.parts
        left, top, right, bottom = self.area()
        for y in range(max(1, top - 1), min(self.height - 2, bottom + 1) + 1):
            for place in range(y * width + max(1, left - 1),
                               y * width + min(width - 2, right + 1) + 1):
                part = parts[place]
                near = max(parts[place - 1], parts[place + 1], parts[place - width],
                           parts[place + width])
                if part and near > part:
                    pixels[place] = self.darkest.get(pixels[place], pixels[place])
                elif near and not part:
                    pixels[place] = outline

    def sprite(self):
        """The pixels cropped to what is drawn."""
        width = self.width
        rows = [self.pixels[y * width:(y + 1) * width] for y in range(self.height)]
        used = [y for y, row in enumerate(rows) if any(row)]
        if not used:
            return Sprite(1, 1, b"\0", 0, 0)
        top, bottom = used[0], used[-1]
        left = min(next(x for x, p in enumerate(rows[y]) if p) for y in used)
        right = max(len(rows[y].rstrip(b"\0")) for y in used) - 1
        data = b"".join(bytes(rows[y][left:right + 1]) for y in range(top, bottom + 1))
        return Sprite(right - left + 1, bottom - top + 1, data, -self.left - left,
                      -self.top - top)

    def sprite_at(self):
        """The pixels cropped, with the axis at the top left corner of the canvas's own area."""
        sprite = self.sprite()
        return Sprite(sprite.width, sprite.height, sprite.pixels, sprite.x + self.left,
                      sprite.y + self.top)


class Sprite:
    """Pixels with the axis from their top left corner; `bits` is 8 for indices, 32 for BGRA."""

    def __init__(self, width, height, pixels, x, y, bits=8):
        self.width, self.height, self.pixels, self.bits = width, height, bytes(pixels), bits
        self.x, self.y = x, y


def level(nx, ny, flat, count, bias):
    nz = sqrt(max(0.0, 1 - flat))
    value = nx * LIGHT[0] + ny * LIGHT[1] + nz * LIGHT[2]
    shade = int((value + 0.55) / 1.55 * count + bias)
    return 0 if shade < 0 else count - 1 if shade >= count else shade


def turned(point, angle, about=(0, 0)):
    """The point turned by radians, with y downward: positive is clockwise on the screen."""
    c, s = cos(angle), sin(angle)
    x, y = point[0] - about[0], point[1] - about[1]
    return about[0] + x * c - y * s, about[1] + x * s + y * c


def mixed(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def distance(a, b):
    return hypot(b[0] - a[0], b[1] - a[1])


def direction(a, b):
    return atan2(b[1] - a[1], b[0] - a[0])


def crescent(canvas, centre, radius, start, end, width, ramp, flat=1.0):
    """A trace in the air: from nothing at `start` to its full width near `end`, in radians."""
    turn = end - start
    steps = int(abs(turn) * (radius + width)) + 2
    canvas.use(ramp)
    for step in range(steps + 1):
        t = step / steps
        angle = start + turn * t
        wide = width * sin(pi * t ** 1.7)
        count = max(1, int(wide * 2))
        for place in range(count):
            out = place / count
            r = radius - wide * 0.5 + wide * out
            shade = min(len(ramp) - 1, int(out * out * len(ramp) * 0.7 + t * len(ramp) * 0.45))
            canvas.put(centre[0] + cos(angle) * r, centre[1] + sin(angle) * r * flat, ramp[shade])
