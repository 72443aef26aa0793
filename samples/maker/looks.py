"""What the fighters have in common in their looks: how a build is told, faces, and what is drawn in
the air around them."""

from dataclasses import dataclass
from math import cos, pi, sin

from . import effects
from .colours import DEEP, LINE, SKIN, STEEL
from .figure import Painter
from .raster import crescent

WHITE = STEEL[3]


@dataclass(frozen=True)
class Build:
    """Lengths in pixels."""
    upper: float
    fore: float
    thigh: float
    shin: float
    ankle: float
    shoulder: float
    hip: float
    neck: float  # from its base down to the shoulders
    head_radius: float
    lying: float  # from the spine to the floor


# Pixels of a face: near eye, far eye, brows and mouth, from the middle of the head.
FACES = {
    "calm": [(2, 0, LINE), (3, 0, LINE), (4, 0, LINE), (3, 1, LINE), (3, 2, DEEP), (2, 1, WHITE),
             (4, 1, WHITE), (6, 0, LINE), (7, 0, LINE), (7, 1, LINE), (7, 2, DEEP), (6, 1, WHITE),
             (5, 6, SKIN[0]), (6, 6, SKIN[1])],
    "fierce": [(1, -1, LINE), (2, -1, LINE), (3, 0, LINE), (4, 0, LINE), (3, 1, LINE),
               (2, 0, WHITE), (2, 1, WHITE), (4, 1, WHITE), (6, 0, LINE), (7, -1, LINE),
               (7, 0, LINE), (7, 1, LINE), (6, 1, WHITE), (4, 6, SKIN[1]), (5, 6, DEEP),
               (6, 6, DEEP)],
    "shout": [(1, -1, LINE), (2, -1, LINE), (3, 0, LINE), (4, 0, LINE), (3, 1, LINE),
              (2, 0, WHITE), (2, 1, WHITE), (4, 1, WHITE), (6, 0, LINE), (7, -1, LINE),
              (7, 0, LINE), (7, 1, LINE), (6, 1, WHITE), (4, 5, LINE), (5, 5, WHITE),
              (6, 5, WHITE), (4, 6, LINE), (5, 6, SKIN[0]), (6, 6, LINE), (5, 7, LINE)],
    "hurt": [(1, -1, LINE), (2, 0, LINE), (3, 1, LINE), (4, 1, LINE), (2, 2, LINE), (7, 0, LINE),
             (6, 1, LINE), (7, 2, LINE), (4, 5, LINE), (5, 5, LINE), (6, 5, LINE), (5, 6, WHITE),
             (4, 6, WHITE), (6, 6, LINE), (3, 6, SKIN[0])],
    "closed": [(2, 1, LINE), (3, 2, LINE), (4, 1, LINE), (6, 1, LINE), (7, 2, LINE),
               (5, 6, SKIN[0]), (4, 6, SKIN[1])],
    "laugh": [(2, 2, LINE), (3, 1, LINE), (4, 2, LINE), (6, 1, LINE), (7, 2, LINE),
              (3, 5, LINE), (4, 5, WHITE), (5, 5, WHITE), (6, 5, WHITE), (4, 6, SKIN[0]),
              (5, 6, SKIN[0]), (4, 7, LINE), (5, 7, LINE)],
}


class Fighter(Painter):
    """What is drawn in the air around both of them, with the colours of their steel."""

    def effect(self, kind, *values):
        if kind == "arc":
            blow, x, y, step = values
            if step == 0:
                pivot = self.j.hips["near"] if blow in ("kick", "heel") else self.j.spine(0.9)
                effects.arc(self.canvas, STEEL[1:], blow, pivot, (x, y))
        elif kind == "dust":
            for out, size in ((-12, 4), (-4, 5), (6, 4.5), (13, 3)):
                self.canvas.ellipse((values[0] + out, -size * 0.8), size, size * 0.8, STEEL)
        elif kind == "drops":
            effects.water_drops(self.canvas, STEEL[1:], 26, 7, (-38, -96, 42, -4))
        elif kind == "spray":
            side = values[0]
            effects.arc(self.canvas, STEEL[1:], "kick", self.j.pelvis, (side * 40, -80))
            effects.water_drops(self.canvas, STEEL[1:], 10, 9 + side, (side * 18, -104, side * 50,
                                                                       -54))
        elif kind == "wave":
            number = values[0]
            effects.crest(self.canvas, STEEL, 12, 76, 58 + (0, 4, -2)[number], number, 31 + number)
        elif kind == "sea":
            self.sea(values[0])
        elif kind == "stars":
            self.stars(values[0])

    def stars(self, number):
        """What a dizzy head sees."""
        x, y = self.head_point(0, -15)
        for star in range(3):
            angle = (number / 3 + star) * 2 * pi / 3
            px, py = x + cos(angle) * 13, y + sin(angle) * 4
            for dx, dy in ((0, 0), (1, 0), (-1, 0), (0, 1), (0, -1)):
                self.canvas.put(px + dx, py + dy, WHITE if dx == dy else STEEL[2])

    def sea(self, number):
        """Water that turns around the figure and strikes to the front."""
        start = (2.2, 1.2, 2.8, 1.8)[number]
        for radius, wide, flat in ((46, 15, 0.62), (62, 12, 0.5)):
            crescent(self.canvas, (14, -62), radius, start, start - 3.2, wide, STEEL, flat)
        effects.water_drops(self.canvas, STEEL[1:], 14, 50 + number, (24, -96, 84, -30))
