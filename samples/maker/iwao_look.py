"""How Iwao looks: a knot of hair, a twisted headband, an open coat, a sash and wide trousers."""

from .colours import CLOTH, COAT, HAIR, LEATHER, LINE, SASH, SKIN, STEEL
from .looks import FACES, Build, Fighter
from .raster import mixed


class Iwao(Fighter):
    build = Build(upper=19, fore=18, thigh=27, shin=24, ankle=5, shoulder=11, hip=6, neck=7,
                  head_radius=11, lying=12)

    def hair_behind(self):
        self.canvas.begin()
        start = self.head_point(-8, -4)
        self.trail(start, (6, 5), (1.8, 2.0, 1.2), STEEL, heavy=1.2, bias=-0.8, spread=0.9)
        self.canvas.begin()
        self.trail(start, (5, 5), (1.8, 2.0, 1.2), STEEL, heavy=1.1, spread=0.45)

    def arm(self, side):
        canvas, j, bias = self.canvas, self.j, self.bias(side)
        shoulder, elbow, hand = j.shoulders[side], j.elbows[side], j.hands[side]
        canvas.begin()
        self.fist(side, SKIN, 5.0)
        canvas.chain([(*elbow, 5.6), (*mixed(elbow, hand, 0.35), 6.2), (*hand, 4.2)], SKIN, bias)
        canvas.capsule(mixed(elbow, hand, 0.74), 5.0, mixed(elbow, hand, 0.9), 4.7, SASH, bias)
        canvas.begin()
        canvas.chain([(*shoulder, 7.6), (*mixed(shoulder, elbow, 0.5), 7.2), (*elbow, 5.6)], SKIN,
                     bias)
        canvas.begin()
        canvas.capsule(mixed(shoulder, elbow, 0.2), 8.4, mixed(shoulder, elbow, 0.34), 8.0, SASH,
                       bias)
        canvas.chain([(*shoulder, 8.5), (*mixed(shoulder, elbow, 0.24), 8.3)], COAT, bias - 0.2)

    def leg(self, side):
        canvas, j, bias = self.canvas, self.j, self.bias(side)
        hip, knee, ankle = j.hips[side], j.knees[side], j.ankles[side]
        canvas.begin()
        self.foot(side, LEATHER, 9.5, 3.8, 3.1)
        canvas.capsule(mixed(knee, ankle, 0.5), 5.4, ankle, 4.4, LEATHER, bias)
        canvas.begin()
        low = mixed(knee, ankle, 0.45)
        if side == "near":
            canvas.capsule(j.spine(-0.06), 12.0, j.spine(0.1, 1), 13.0, CLOTH, -0.5)
        canvas.chain([(*hip, 10.2), (*mixed(hip, knee, 0.5), 10.4), (*knee, 9.2), (*low, 8.2)],
                     CLOTH, bias - 0.5)
        canvas.capsule(low, 6.6, mixed(knee, ankle, 0.6), 6.0, CLOTH, bias - 0.6)

    def trunk(self):
        canvas, j = self.canvas, self.j
        canvas.begin()
        skin = self.pose.twist >= 0
        canvas.chain([(*j.spine(0.25, 2.5), 14.5), (*j.spine(0.5, 2), 14.0),
                      (*j.spine(0.74, 0), 14.5)], SKIN if skin else COAT)
        near, far = j.shoulders["near"], j.shoulders["far"]
        canvas.capsule(near, 7.4, far, 7.4, SKIN if skin else COAT)
        if skin:
            self.chest()
            self.coat()
        canvas.begin()
        canvas.chain([(*j.spine(0.16, -10.5), 4.0), (*j.spine(0.10, 1), 4.6),
                      (*j.spine(0.15, 12.5), 4.0)], SASH)
        canvas.begin()
        canvas.capsule(j.spine(0.14, 4), 3.2, j.spine(0.12, 7), 3.2, SASH, 0.6)
        self.trail(j.spine(0.1, 5.5), (5, 5), (2.4, 2.6, 2.2), SASH, heavy=0.4)

    def chest(self):
        canvas, j = self.canvas, self.j
        canvas.ellipse(j.spine(0.72, 7), 6.6, 5.2, SKIN, bias=0.6)
        canvas.ellipse(j.spine(0.72, -1.5), 6.2, 5.2, SKIN, bias=0.4)
        canvas.line(j.spine(0.58, -5), j.spine(0.56, 1.5), SKIN[1])
        canvas.line(j.spine(0.57, 4), j.spine(0.60, 11), SKIN[1])
        canvas.line(j.spine(0.66, 2.8), j.spine(0.46, 4), SKIN[1])
        canvas.put(*j.spine(0.30, 6.5), SKIN[0])

    def coat(self):
        """The open coat: its back half, and its edge."""
        canvas, j = self.canvas, self.j
        points = [j.spine(1.0, -3), j.spine(0.9, -16), j.spine(0.5, -15), j.spine(0.12, -14),
                  j.spine(-0.02, -15 - self.pose.sway * 3), j.spine(-0.02, -6), j.spine(0.3, -4.5),
                  j.spine(0.7, -5)]
        canvas.begin()
        canvas.use(COAT)

        def shade(x, y):
            out = ((x - j.pelvis[0]) * j.front[0] + (y - j.pelvis[1]) * j.front[1])
            return COAT[max(0, min(3, int((out + 17) / 3.4)))]

        canvas.polygon(points, shade)
        canvas.line(j.spine(0.98, -2), j.spine(0.68, -5), SASH[2], 2)
        canvas.line(j.spine(0.68, -5), j.spine(0.0, -6), SASH[2], 2)
        canvas.begin()
        canvas.polygon([j.spine(1.0, 4), j.spine(0.92, 15), j.spine(0.5, 17), j.spine(0.2, 16),
                        j.spine(0.5, 13.6), j.spine(0.75, 12)], COAT[1])

    def head(self):
        canvas, j = self.canvas, self.j
        canvas.begin()
        canvas.capsule(j.spine(0.95, 0), 6.5, self.head_point(-1, 5), 6.2, SKIN, -1.2)
        canvas.begin()
        self.head_ellipse(-6.5, -10.2, 3.4, 2.6, HAIR)
        canvas.begin()
        self.head_ellipse(-1.6, -1, 9.2, 9.4, HAIR)
        self.head_ellipse(1.8, 1, 7.6, 8.2, SKIN, bias=0.4)
        canvas.capsule(self.head_point(1.6, 4), 6.8, self.head_point(4.2, 7), 4.4, SKIN, 0.3)
        self.head_polygon([(-7, -6), (1.5, -5), (0, -0.5), (-1, 4), (-3, 6), (-7, 5), (-9.5, 0)],
                          HAIR[1])
        self.head_pixels([(10, 3, SKIN[3]), (9, 3, SKIN[4]), (10, 4, SKIN[1]), (9, 2, SKIN[3]),
                          (-2, 3, SKIN[2]), (-1, 3, SKIN[3]), (-2, 4, SKIN[1]), (-1, 4, SKIN[2]),
                          (-2, 2, SKIN[3]), (2, 4, SKIN[2]), (3, 5, SKIN[1])])
        self.head_pixels([(1, -2, LINE), (2, -2, LINE), (3, -1, LINE), (4, -1, LINE),
                          (7, -1, LINE), (8, -2, LINE), (9, -2, LINE)])
        self.head_pixels(FACES[self.pose.face])
        self.head_pixels([(3, 8, HAIR[1]), (4, 9, HAIR[1]), (5, 9, HAIR[1]), (6, 9, HAIR[1]),
                          (4, 10, HAIR[1]), (5, 10, HAIR[1]), (6, 8, HAIR[1])])
        canvas.begin()
        canvas.chain([(*self.head_point(-8.6, -4.2), 1.7), (*self.head_point(0, -4.6), 1.9),
                      (*self.head_point(8.2, -4.4), 1.6)], STEEL, 0.6)

    def prop(self, kind, *places):
        if kind == "crate":
            self.crate(*places)

    def crate(self, middle):
        canvas = self.canvas
        x, y = middle
        canvas.begin()
        canvas.use(LEATHER)
        canvas.polygon([(x - 15, y - 13), (x + 15, y - 13), (x + 15, y + 13), (x - 15, y + 13)],
                       LEATHER[1])
        for edge in (-13, -4, 5):
            canvas.polygon([(x - 14, y + edge), (x + 14, y + edge), (x + 14, y + edge + 7),
                            (x - 14, y + edge + 7)], LEATHER[2])
        for post in (-15, 11):
            canvas.polygon([(x + post, y - 13), (x + post + 4, y - 13), (x + post + 4, y + 13),
                            (x + post, y + 13)], LEATHER[1])
        canvas.line((x - 11, y + 11), (x + 10, y - 11), LEATHER[1], 3)
