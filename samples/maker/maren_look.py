"""How Maren looks: a captain's cap, a braid, a blue coat, a red scarf and sea boots."""

from math import cos, pi, sin

from .colours import CLOTH, COAT, HAIR, LEATHER, LINE, SASH, SKIN, STEEL
from .looks import FACES, Build, Fighter
from .raster import direction, mixed, turned


class Maren(Fighter):
    build = Build(upper=16, fore=16, thigh=26, shin=24, ankle=4.5, shoulder=6, hip=4, neck=5,
                  head_radius=10, lying=8)

    def hair_behind(self):
        canvas = self.canvas
        canvas.begin()
        self.scarf_tail()
        canvas.begin()
        points = self.trail(self.head_point(-6.5, 3), (4, 5, 5, 5, 5, 5, 4),
                            (3.2, 3.6, 3.2, 3.3, 3.0, 2.8, 2.3, 1.2), HAIR, spread=0.42)
        for (x, y, radius), (x1, y1, _) in list(zip(points, points[1:]))[1:6]:
            # The strands of the braid cross at each knot.
            canvas.line((x - radius * 0.6, y + 1), (x1 + radius * 0.3, y1 - 2), HAIR[0])
            canvas.put(x + 0.5, y + 2, HAIR[3])
        x, y, _ = points[6]
        canvas.capsule((x, y), 2.2, (x, y + 1), 2.0, SASH)

    def scarf_tail(self):
        x, y = self.j.neck
        start = x - self.j.front[0] * 4, y - self.j.front[1] * 4
        self.canvas.begin()
        self.trail(start, (6, 6, 6), (2.4, 2.6, 2.6, 1.3), SASH, heavy=1.3, spread=0.95)

    def arm(self, side):
        canvas, j, bias = self.canvas, self.j, self.bias(side)
        shoulder, elbow, hand = j.shoulders[side], j.elbows[side], j.hands[side]
        canvas.begin()
        self.fist(side, SKIN, 3.5)
        canvas.capsule(elbow, 3.5, hand, 2.6, SKIN, bias)
        wrist = mixed(elbow, hand, 0.86)
        canvas.capsule(wrist, 3.1, hand, 3.1, LEATHER, bias)
        canvas.chain([(*shoulder, 5.2), (*mixed(shoulder, elbow, 0.5), 4.6), (*elbow, 4.1)], COAT,
                     bias)
        cuff = mixed(elbow, hand, 0.3)
        canvas.capsule(elbow, 4.1, cuff, 3.9, COAT, bias)
        canvas.capsule(cuff, 4.2, mixed(elbow, hand, 0.4), 4.1, COAT, bias + 1.2)

    def leg(self, side):
        canvas, j, bias = self.canvas, self.j, self.bias(side)
        hip, knee, ankle = j.hips[side], j.knees[side], j.ankles[side]
        canvas.begin()
        self.foot(side, LEATHER, 7.5, 3.3, 2.5)
        top = mixed(knee, ankle, 0.42)
        if side == "near":
            canvas.chain([(*j.spine(-0.06), 8.0), (*j.spine(0.12), 7.6)], CLOTH, -0.3)
        canvas.chain([(*hip, 7.4), (*mixed(hip, knee, 0.55), 6.6), (*knee, 5.0)], CLOTH, bias)
        canvas.chain([(*knee, 5.0), (*mixed(knee, ankle, 0.3), 5.1), (*top, 4.6)], CLOTH, bias)
        canvas.begin()
        self.foot(side, LEATHER, 7.5, 3.3, 2.5)
        canvas.chain([(*top, 5.0), (*mixed(knee, ankle, 0.7), 4.5), (*ankle, 3.6)], LEATHER, bias)
        canvas.capsule(mixed(knee, ankle, 0.38), 5.2, top, 5.2, LEATHER, bias + 0.9)

    def trunk(self):
        canvas, j = self.canvas, self.j
        canvas.begin()
        self.skirt()
        canvas.chain([(*j.spine(0.2), 7.6), (*j.spine(0.42), 6.8), (*j.spine(0.72, 0.6), 8.4)],
                     COAT)
        near, far = j.shoulders["near"], j.shoulders["far"]
        canvas.capsule(near, 5.0, far, 5.0, COAT)
        canvas.capsule(j.spine(0.7, 3.2), 5.2, j.spine(0.62, 3.6), 5.0, COAT)
        self.shirt()
        canvas.begin()
        canvas.capsule(j.spine(0.24, -6.4), 2.2, j.spine(0.2, 6.6), 2.2, SASH)
        canvas.begin()
        canvas.capsule(j.spine(0.98, -4.5), 3.1, j.spine(0.93, 5), 2.9, SASH)

    def skirt(self):
        """The hem of the coat."""
        j = self.j
        back, front = j.spine(0.22, -7.4), j.spine(0.22, 7.4)
        sway = self.pose.sway * 3
        points = [back, front, j.spine(-0.18, 9.5), j.spine(-0.10, 3), j.spine(-0.16, -2),
                  j.spine(-0.24, -10.5 - sway)]
        self.canvas.use(COAT)
        self.canvas.polygon(points, COAT[1])
        inner = [back, j.spine(0.22, 6), j.spine(-0.12, 8), j.spine(-0.04, 3),
                 j.spine(-0.1, -2.4), j.spine(-0.17, -9 - sway)]
        self.canvas.polygon(inner, COAT[2])

    def shirt(self):
        j = self.j
        if self.pose.twist < 0:
            return
        self.canvas.use(STEEL)
        self.canvas.polygon([j.spine(0.95, 0.5), j.spine(0.95, 6), j.spine(0.62, 6.6),
                             j.spine(0.42, 4.6)], STEEL[3])
        self.canvas.polygon([j.spine(0.95, 3.8), j.spine(0.95, 6), j.spine(0.62, 6.6),
                             j.spine(0.46, 5)], STEEL[2])
        self.canvas.line(j.spine(0.93, 0), j.spine(0.40, 4.2), COAT[4])
        self.canvas.line(j.spine(0.36, 4.2), j.spine(0.27, 4.6), COAT[0])
        for along in (0.72, 0.56, 0.42):
            self.canvas.put(*j.spine(along, 0.2 + (0.72 - along) * 4), HAIR[3])

    def head(self):
        canvas, j = self.canvas, self.j
        canvas.begin()
        canvas.capsule(j.spine(0.97, 0.5), 3.2, self.head_point(0, 6), 3.2, SKIN, -1.2)
        canvas.begin()
        self.head_ellipse(-2.4, 0.6, 7.2, 8.2, HAIR)
        self.head_ellipse(1.8, 1.6, 6.6, 7.2, SKIN, bias=0.5)
        canvas.capsule(self.head_point(2.4, 3), 5.6, self.head_point(4.4, 6.4), 3.2, SKIN, 0.4)
        self.head_pixels([(9, 3, SKIN[3]), (8, 3, SKIN[4]), (9, 4, SKIN[1]), (3, 4, SKIN[2]),
                          (4, 4, SKIN[2])])
        self.head_polygon([(-6, -4), (4.5, -4.5), (2.5, -1.5), (0.4, 0.2), (-0.4, 4.2), (-1.8, 7),
                           (-4.4, 8.4), (-7.4, 5), (-8.4, 0)], self.strand)
        self.head_polygon([(3.5, -4.5), (8.8, -4), (7.6, -1.4), (6.0, -2.6)], HAIR[2])
        self.head_pixels([(5, -3, HAIR[3]), (6, -3, HAIR[3]), (-2, 3, SKIN[3]), (-1, 3, SKIN[3]),
                          (-2, 4, SKIN[1]), (-1, 4, SKIN[2])])
        self.head_pixels(FACES[self.pose.face])
        self.cap()

    def strand(self, x, y):
        """Hair that falls to the back, in locks."""
        u, v = turned((x + 0.5, y + 0.5), -self.j.tilt, self.j.head)
        u, v = u - self.j.head[0], v - self.j.head[1]
        lock = int(u + 0.45 * v + 40) % 5
        return HAIR[(1, 2, 2, 3, 2)[lock] if v < 4.5 else (0, 1, 2, 2, 1)[lock]]

    def cap(self):
        self.canvas.begin()
        self.head_ellipse(-0.6, -4.6, 8.9, 6.2, COAT, angle=-0.10, bias=0.2,
                          keep=lambda u, v: v < 0.6)
        self.head_polygon([(-9, -5.4), (8.4, -6), (8.6, -3.4), (-8.8, -2.6)], COAT[0])
        self.head_polygon([(2.6, -4), (8.6, -4.6), (12, -1.9), (8, -2.4), (3.4, -2)], LINE)
        self.head_pixels([(10, -3, STEEL[1]), (9, -4, STEEL[1]), (8, -4, STEEL[1]),
                          (4, -6, HAIR[3]), (5, -6, HAIR[3]), (4, -7, HAIR[3]), (5, -7, HAIR[2]),
                          (3, -5, HAIR[2]), (6, -5, HAIR[2])])

    # ("hook", butt, tip): the boat hook from end to end.
    def prop(self, kind, *places):
        if kind == "hook":
            self.hook(*places)
        elif kind == "rope":
            self.rope(places)
        elif kind == "coil":
            self.coil(places, 13, 5)
        elif kind == "cast":
            self.rope(places)
            self.coil((places[1][0] + 8, places[1][1]), 9, 8)
        elif kind == "slack":
            (x, y), end = places
            self.rope([(x, y), (x + 10, y + 34), (x + 14, y + 62), end, (end[0] + 16, end[1])])
        elif kind == "knot":
            self.knot(places[0])

    def prop_behind(self, kind, *places):
        if kind == "shouldered":
            self.hook(*places)

    def coil(self, centre, width, height):
        """A loop of rope, seen from the side."""
        points = [(centre[0] + cos(step * pi / 8) * width, centre[1] + sin(step * pi / 8) * height)
                  for step in range(17)]
        self.rope(points)

    def knot(self, step):
        """A short piece of rope between the hands."""
        near, far = self.j.hands["near"], self.j.hands["far"]
        low = (near[0] + far[0]) / 2, max(near[1], far[1]) + (12, 8, 5, 10)[step]
        self.rope([near, low, far])
        self.rope([near, (near[0] - 3, near[1] + 14)])
        self.rope([far, (far[0] + 3, far[1] + 13)])
        if step > 1:
            self.coil((low[0], low[1] - 4), 4, 4)

    def hook(self, butt, tip):
        canvas = self.canvas
        canvas.begin()
        canvas.use(LEATHER)
        canvas.line(butt, tip, LEATHER[1], 3)
        canvas.line((butt[0], butt[1] - 1), (tip[0], tip[1] - 1), LEATHER[2])
        canvas.begin()
        canvas.use(STEEL)
        angle = direction(butt, tip)

        def at(along, out):
            return turned((tip[0] + along, tip[1] + out), angle, tip)

        canvas.line(at(-9, 0), at(4, 0), STEEL[2], 3)
        canvas.line(at(0, 0), at(7, 0), STEEL[3], 2)
        for start, end in (((-4, 0), (-1, 5)), ((-1, 5), (-4, 8)), ((-4, 8), (-8, 7))):
            canvas.line(at(*start), at(*end), STEEL[1], 2)

    def rope(self, places):
        self.canvas.begin()
        self.canvas.use(LEATHER)
        for start, end in zip(places, places[1:]):
            self.canvas.line(start, end, LEATHER[2], 2)
        for number, (start, end) in enumerate(zip(places, places[1:])):
            if number % 2:
                self.canvas.line(start, end, LEATHER[1], 1)
