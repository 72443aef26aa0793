"""A jointed figure: from a pose to joints, and from joints to limbs with clothes on."""

from dataclasses import dataclass, field
from math import cos, pi, radians, sin, sqrt

from .raster import Canvas, direction, distance, mixed, turned


@dataclass
class Pose:
    """Places in pixels from the axis, of a figure that looks to the right. The near side is that
    of the onlooker. Feet are told by their soles, heads by their middles."""
    head: tuple
    neck: tuple
    pelvis: tuple
    near_hand: tuple
    far_hand: tuple
    near_foot: tuple
    far_foot: tuple
    tilt: float = 0  # of the head, in degrees; positive looks down
    twist: float = 1  # 1: the chest shows, -1: the back does
    near_pitch: float = None  # of a foot in degrees; None follows the shin
    far_pitch: float = None
    near_bend: int = 1  # -1 bends the elbow upward
    far_bend: int = 1
    face: str = "calm"
    far_front: bool = False  # the far arm in front of the chest
    near_back: bool = False  # the near arm behind it
    palms: bool = False  # open hands
    sway: float = 0  # what is loose: 0 hangs, 1 flies back, -1 forward
    turn: float = 0  # the whole figure in degrees, clockwise, around its pelvis
    ground: bool = False  # set down on the floor after the turn
    props: tuple = ()


def lengthened(start, end, most):
    """The end, brought near enough for a limb that can be stretched a little."""
    far = distance(start, end)
    return end if far <= most * 1.1 else mixed(start, end, most * 1.1 / far)


def joint(start, end, first, second, side):
    """The elbow or knee between two points."""
    far = max(0.01, distance(start, end))
    stretch = max(1, far / (first + second))
    first, second = first * stretch, second * stretch
    along = max(-first, min(first, (first * first - second * second + far * far) / (2 * far)))
    out = sqrt(max(0, first * first - along * along)) * side
    ux, uy = (end[0] - start[0]) / far, (end[1] - start[1]) / far
    return start[0] + ux * along - uy * out, start[1] + uy * along + ux * out


@dataclass
class Joints:
    head: tuple = ()
    neck: tuple = ()
    pelvis: tuple = ()
    up: tuple = ()  # along the spine
    front: tuple = ()  # to where the chest faces
    shoulders: dict = field(default_factory=dict)
    elbows: dict = field(default_factory=dict)
    hands: dict = field(default_factory=dict)
    hips: dict = field(default_factory=dict)
    knees: dict = field(default_factory=dict)
    ankles: dict = field(default_factory=dict)
    pitches: dict = field(default_factory=dict)
    tilt: float = 0

    def spine(self, along, out=0.0):
        """A point of the trunk: 0 at the pelvis, 1 at the neck, `out` pixels to the front."""
        x, y = mixed(self.pelvis, self.neck, along)
        return x + self.front[0] * out, y + self.front[1] * out


def joints(pose, build):
    j = Joints(pose.head, pose.neck, pose.pelvis, tilt=radians(pose.tilt))
    angle = direction(pose.pelvis, pose.neck)
    j.up = cos(angle), sin(angle)
    j.front = -sin(angle), cos(angle)
    for side, sign in (("near", -1), ("far", 1)):
        out = sign * build.shoulder * pose.twist
        base = j.spine(1 - build.neck / max(1, distance(pose.pelvis, pose.neck)), out)
        j.shoulders[side] = base
        hand = lengthened(base, getattr(pose, side + "_hand"), build.upper + build.fore)
        j.hands[side] = hand
        j.elbows[side] = joint(base, hand, build.upper, build.fore, getattr(pose, side + "_bend"))
        hip = j.spine(0, sign * build.hip * (0.4 + 0.6 * pose.twist))
        j.hips[side] = hip
        x, y = getattr(pose, side + "_foot")
        pitch = getattr(pose, side + "_pitch")
        ankle = lengthened(hip, (x, y - build.ankle), build.thigh + build.shin)
        j.ankles[side] = ankle
        j.knees[side] = joint(hip, ankle, build.thigh, build.shin, -1)
        if pitch is None and y > -4:
            j.pitches[side] = 0.0
        elif pitch is None:
            j.pitches[side] = direction(j.knees[side], ankle) - radians(65)
        else:
            j.pitches[side] = radians(pitch)
    if pose.turn or pose.ground:
        turn_all(j, pose, build)
    return j


def turn_all(j, pose, build):
    angle = radians(pose.turn)
    about = pose.pelvis

    def moved(point):
        return turned(point, angle, about)

    j.head, j.neck = moved(j.head), moved(j.neck)
    j.up, j.front = turned(j.up, angle), turned(j.front, angle)
    for places in (j.shoulders, j.elbows, j.hands, j.hips, j.knees, j.ankles):
        for side in places:
            places[side] = moved(places[side])
    for side in j.pitches:
        j.pitches[side] += angle
    j.tilt += angle
    if pose.ground:
        sink(j, build)


def sink(j, build):
    """Moves all down or up until the lowest part lies on the floor."""
    low = max([j.head[1] + build.head_radius, j.pelvis[1] + build.lying, j.spine(0.75)[1]
               + build.lying] + [p[1] + 4 for p in (*j.ankles.values(), *j.knees.values())])

    def moved(point):
        return point[0], min(-3, point[1] - low)  # what hangs lower lies on the floor as well

    j.head, j.neck, j.pelvis = moved(j.head), moved(j.neck), moved(j.pelvis)
    for places in (j.shoulders, j.elbows, j.hands, j.hips, j.knees, j.ankles):
        for side in places:
            places[side] = moved(places[side])


def draw(pose, look):
    """The sprite of a pose."""
    canvas = Canvas(-130, -210, 190, 70)
    j = joints(pose, look.build)
    painter = look(canvas, j, pose)
    for prop in pose.props:
        painter.prop_behind(*prop)
    painter.hair_behind()
    if not pose.far_front:
        painter.arm("far")
    if pose.near_back:
        painter.arm("near")
    painter.leg("far")
    painter.leg("near")
    painter.trunk()
    painter.head()
    if pose.far_front:
        painter.arm("far")
    for prop in pose.props:
        painter.prop(*prop)
    if not pose.near_back:
        painter.arm("near")
    for prop in pose.props:
        painter.prop_front(*prop)
    canvas.edges()
    for prop in pose.props:
        painter.effect(*prop)
    return canvas.sprite()


class Painter:
    """What the figures have in common. A subclass names its build and dresses the parts."""

    def __init__(self, canvas, j, pose):
        self.canvas, self.j, self.pose = canvas, j, pose

    @staticmethod
    def bias(side):
        return -0.9 if side == "far" else 0.0

    def head_point(self, x, y):
        """A point of the head, from its middle and before its tilt."""
        return turned((self.j.head[0] + x, self.j.head[1] + y), self.j.tilt, self.j.head)

    def head_ellipse(self, x, y, rx, ry, ramp, angle=0.0, bias=0.0, keep=None):
        self.canvas.ellipse(self.head_point(x, y), rx, ry, ramp, self.j.tilt + angle, bias, keep)

    def head_polygon(self, points, colour):
        self.canvas.polygon([self.head_point(x, y) for x, y in points], colour)

    def head_pixels(self, pixels):
        for x, y, colour in pixels:
            px, py = self.head_point(x + 0.5, y + 0.5)
            self.canvas.put(px, py, colour)

    def trail(self, start, lengths, radii, ramp, heavy=1.0, bias=0.0, spread=0.0):
        """Something loose that hangs from a point, or flies when the figure moves."""
        sway = self.pose.sway
        points = [(*start, radii[0])]
        x, y = start
        for number, (length, radius) in enumerate(zip(lengths, radii[1:])):
            angle = pi / 2 + sway * 1.25 * heavy + 0.16 * number * (sway + 0.25) + spread
            x, y = x + cos(angle) * length, y + sin(angle) * length
            if self.pose.ground:
                y = min(y, -radius)
            points.append((x, y, radius))
        self.canvas.chain(points, ramp, bias)
        return points

    def fist(self, side, ramp, size):
        """A closed or an open hand at the end of the forearm."""
        hand = self.j.hands[side]
        angle = direction(self.j.elbows[side], hand)
        ahead = hand[0] + cos(angle) * size * 0.5, hand[1] + sin(angle) * size * 0.5
        if self.pose.palms:
            tip = hand[0] + cos(angle) * size * 1.6, hand[1] + sin(angle) * size * 1.6
            self.canvas.capsule(hand, size * 0.85, tip, size * 0.5, ramp, self.bias(side))
            thumb = turned((hand[0] + size * 1.2, hand[1]), angle - 0.9, hand)
            self.canvas.capsule(hand, size * 0.45, thumb, size * 0.35, ramp, self.bias(side))
        else:
            self.canvas.capsule(hand, size, ahead, size * 0.92, ramp, self.bias(side))

    def foot(self, side, ramp, length, heel, toe):
        """Heel and toes below the ankle."""
        x, y = self.j.ankles[side]
        pitch = self.j.pitches[side]
        down = turned((0, 1), pitch)
        lift = self.build.ankle - heel
        middle = x + down[0] * lift, y + down[1] * lift
        back = turned((middle[0] - 2, middle[1]), pitch, middle)
        slope = heel - toe
        front = turned((middle[0] + length, middle[1] + slope), pitch, middle)
        self.canvas.chain([(*back, heel), (*mixed(back, front, 0.55), (heel + toe) / 2 + 0.2),
                           (*front, toe)], ramp, self.bias(side))

    # What a prop draws, at four moments; most use one of them.
    def prop_behind(self, kind, *_):
        pass

    def prop(self, kind, *_):
        pass

    def prop_front(self, kind, *_):
        pass

    def effect(self, kind, *_):
        pass
