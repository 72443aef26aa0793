"""How a figure stands in each sprite: tables of arms, legs and faces over the postures of bodies.

Arms are the far and the near hand from the base of the neck, in percent of the height. Legs are
the far and the near sole from the middle: across in strides, up in percent of the height.
"""

from math import cos, pi, sin

from .body import POSTURES
from .figure import Pose
from .raster import distance

ARMS = {
    "fight": ((19, 7), (9, 14)),
    "fight1": ((19, 8), (9, 15)),
    "fight2": ((19, 9), (9, 16)),
    "low": ((17, 9), (8, 16)),
    "block": ((13, -2), (10, 4)),
    "block1": ((12, -4), (9, 2)),
    "block low": ((15, 2), (11, 8)),
    "rest": ((11, 26), (-10, 29)),
    "swing0": ((14, 23), (-14, 24)),
    "swing1": ((8, 28), (-8, 29)),
    "swing2": ((-2, 31), (2, 31)),
    "swing3": ((-9, 28), (10, 26)),
    "swing4": ((-14, 24), (15, 22)),
    "run0": ((17, 9), (-18, 18)),
    "run1": ((8, 18), (-6, 22)),
    "run2": ((-10, 20), (12, 14)),
    "run3": ((-18, 18), (17, 7)),
    "run4": ((-8, 22), (9, 17)),
    "run5": ((10, 18), (-8, 20)),
    "up": ((12, -26), (-8, -28)),
    "wide": ((25, 2), (-24, 4)),
    "flail": ((24, -8), (-20, 8)),
    "flail1": ((27, 2), (-16, 14)),
    "flail2": ((20, 14), (-10, 20)),
    "back": ((-14, 18), (-20, 14)),
    "belly": ((9, 24), (5, 27)),
    "tuck": ((14, 26), (10, 30)),
    "hips": ((8, 24), (-14, 24)),
    "throat": ((4, 1), (3, 3)),
    "trail up": ((4, -32), (-10, -29)),
    "wave1": ((8, 26), (10, -24)),
    "wave2": ((8, 26), (-4, -28)),
    "limp": ((14, 28), (-4, 32)),
    "lie": ((16, 14), (2, 26)),
    "lie up": ((16, -16), (4, -20)),
    "lie wide": ((22, 4), (-2, 8)),
}

LEGS = {
    "stand": ((0.75, 0), (-0.8, 0)),
    "wide": ((0.95, 0), (-1.0, 0)),
    "close": ((0.35, 0), (-0.35, 0)),
    "crouch": ((0.75, 0), (-0.55, 0)),
    "rise": ((0.45, 6), (-0.35, 0)),
    "rise1": ((0.55, 10), (-0.3, 2)),
    "air": ((0.65, 10), (-0.35, 0)),
    "air1": ((0.75, 14), (-0.2, 4)),
    "fall": ((0.5, 2), (-0.6, 5)),
    "ball": ((0.5, 17), (0.2, 14)),
    "loose": ((0.9, 8), (0.1, 3)),
    "run0": ((1.4, 3), (-1.7, 12)),
    "run1": ((0.5, 0), (-1.0, 22)),
    "run2": ((-0.8, 0), (0.9, 18)),
    "run3": ((-1.7, 12), (1.4, 3)),
    "run4": ((-1.0, 22), (0.5, 0)),
    "run5": ((0.9, 18), (-0.8, 0)),
    "kneel": ((0.9, 0), (-1.3, 0)),
    "sit": ((2.6, 0), (2.0, 0)),
}


def look(arms="fight", legs="stand", **more):
    return dict(more, arms=arms, legs=legs)


def step(phase, reach=0.95, lift=6):
    """The legs of a way at a part of its turn: each foot stands for one half and flies for the
    other."""
    soles = []
    for shift in (0.0, 0.5):
        t = (phase + shift) % 1
        if t < 0.5:
            soles.append((reach * (1 - 4 * t), 0))
        else:
            soles.append((-reach * cos((t - 0.5) * 2 * pi), lift * sin((t - 0.5) * 2 * pi)))
    return tuple(soles)


def walk(number, forward):
    arms = ("swing3", "swing4", "swing3", "swing2", "swing1", "swing0", "swing1", "swing2")[number]
    far, near = ARMS[arms]
    guard_far, guard_near = ARMS["fight"]
    # Half on guard: the hands stay high and only sway.
    arms = (blend(guard_far, far, 0.32), blend(guard_near, near, 0.32))
    return look(arms, step((number / 8 + 0.02) % 1), sway=0.25 if forward else -0.15, planted=True)


def blend(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


HURT = dict(face="hurt")
LYING = dict(turn=-90, ground=True, aside=13, face="closed", posture="stand", sway=0)

# The sprites that every fighter has, by group and number.
COMMON = {
    10: [look(arms, planted=True) for arms in ("fight", "fight1", "fight2", "fight2", "fight1",
                                               "fight")],
    11: [look("fight"), look("low", "close", twist=0.35, sway=0.4)],
    12: [look("fight"), look("low"), look("low", "crouch")],
    13: [look("low", "crouch"), look("low", "crouch", chest=(0, 0.8)),
         look("low", "crouch", chest=(0, 1.4))],
    14: [look("low"), look("low", "crouch"), look("fight")],
    15: [look("low", "crouch"), look("low", "crouch", twist=0.4)],
    20: [walk(number, True) for number in range(8)],
    21: [walk(number, False) for number in range(8)],
    22: [look(f"run{n}", f"run{n}", sway=1, face="fierce", hip=(3, 0)) for n in range(6)]
    + [look("run0", "wide", sway=0.4, face="fierce")],
    23: [look("low", "wide", sway=-0.2), look("wide", ((1.2, 6), (0.1, 2)), sway=-0.8),
         look("flail2", ((1.1, 3), (-0.2, 0)), sway=-0.5), look("low")],
    24: [look("back", ((1.3, 0), (-0.9, 0)), sway=-0.7, near_bend=1),
         look("fight", ((1.3, 0), (-0.9, 0)), sway=-0.4), look("fight")],
    30: [look("back", "stand", hip=(-3, 0)), look("back", "stand", hip=(-3, 2))],
    31: [look("up", "rise", sway=-0.2, face="fierce"), look("fight", "air"),
         look("low", "air1", sway=0.2), look("wide", "rise", sway=0.7),
         look("wide", "fall", sway=0.9)],
    32: [look("up", "rise1", sway=0.5, face="fierce"), look("tuck", "ball", ball=True, sway=0.8),
         look("wide", "rise", sway=0.5), look("wide", "fall", sway=0.8)],
    33: [look("wide", "rise1", sway=-0.5), look("tuck", "ball", ball=True, sway=0.8),
         look("wide", "rise", sway=-0.3), look("wide", "fall", sway=0.6)],
    34: [look("hips", "wide", sway=-0.6, hip=(-3, 0)), look("low", "wide", sway=-0.2), look()],
    40: [look("low"), look("block"), look("block1", face="fierce")],
    41: [look("block low", "crouch"), look("block", "crouch", face="fierce")],
    42: [look("block low", "rise"), look("block1", "rise1", face="fierce")],
    43: [look("block1", "wide", tilt=-6, face="hurt", sway=-0.5), look("block1", "wide",
         face="fierce", sway=-0.2), look("block1", face="fierce")],
    44: [look("block1", "crouch", tilt=-6, face="hurt", sway=-0.4),
         look("block", "crouch", face="fierce")],
    50: [look("flail2", tilt=-10, **HURT), look("flail", "wide", tilt=-24, sway=-0.9, **HURT),
         look("flail1", "wide", tilt=-14, sway=-0.5, **HURT), look("low", tilt=-4, **HURT),
         look("fight")],
    51: [look("flail2", tilt=-14, **HURT), look("up", "wide", tilt=-34, sway=-1, hip=(2, 0),
         **HURT), look("flail", "wide", tilt=-24, sway=-0.8, **HURT),
         look("flail2", tilt=-8, **HURT), look("fight")],
    52: [look("belly", tilt=8, **HURT), look("belly", "wide", tilt=20, sway=0.4, hip=(-4, 0),
         **HURT), look("belly", "wide", tilt=14, hip=(-3, 0), **HURT), look("low", **HURT),
         look("low")],
    53: [look("belly", tilt=12, hip=(-3, 0), **HURT), look("belly", "wide", tilt=30, sway=0.5,
         hip=(-9, 0), **HURT), look("belly", "wide", tilt=22, hip=(-7, 0), **HURT),
         look("belly", tilt=8, hip=(-3, 0), face="closed"), look("low")],
    54: [look("low", "crouch", tilt=-8, **HURT), look("flail2", "crouch", tilt=-22, sway=-0.8,
         **HURT), look("flail2", "crouch", tilt=-14, sway=-0.4, **HURT),
         look("low", "crouch", tilt=-4, **HURT), look("low", "crouch")],
    55: [look("low", "crouch", tilt=-12, **HURT), look("flail", "crouch", tilt=-32, sway=-1,
         **HURT), look("flail1", "crouch", tilt=-22, sway=-0.6, **HURT),
         look("flail2", "crouch", tilt=-8, **HURT), look("low", "crouch")],
    56: [look("flail2", "rise", tilt=-16, sway=-0.6, **HURT),
         look("flail", ((1.5, 10), (0.7, 4)), tilt=-28, sway=-1, **HURT),
         look("flail1", ((1.6, 12), (0.8, 8)), tilt=-20, sway=-0.8, **HURT)],
    57: [look("flail", ((1.2, 8), (0.4, 0)), tilt=-26, sway=-1, **HURT),
         look("trail up", "loose", limp=True, tilt=-26, sway=0, **HURT),
         look("up", "loose", limp=True, tilt=-30, sway=0.3, **HURT)],
    58: [look("up", "loose", limp=True, tilt=-26, sway=0.4, **HURT),
         look("trail up", "loose", limp=True, tilt=-30, sway=0.6, **HURT)],
    59: [look("lie wide", ((1.4, 26), (0.6, 20)), **dict(LYING, face="hurt")),
         look("lie up", ((1.8, 18), (1.0, 10)), **dict(LYING, face="hurt")),
         look("lie up", ((1.2, 8), (0.2, 2)), **dict(LYING, face="hurt")),
         look("lie", ((0.9, 6), (-0.2, 0)), **LYING)],
    60: [look("lie wide", ((1.2, 12), (0.2, 0)), **LYING), look("lie", ((0.9, 6), (-0.2, 0)),
         **LYING)],
    61: [look("lie", ((1.2, 14), (0.6, 8)), **dict(LYING, face="hurt")),
         look("hips", "sit", posture="crouch", hip=(-8, 13), face="hurt", chest=(-10, 12)),
         look("rest", "kneel", posture="crouch", hip=(-2, 6), face="fierce", chest=(4, 2)),
         look("low", "crouch", face="fierce"), look("low"), look()],
    62: [look("flail", ((1.2, 8), (0.4, 0)), posture="rise", lean=-6, tilt=-10, **HURT),
         look("tuck", "ball", ball=True, sway=0.8, face="fierce"), look("wide", "rise1"),
         look("wide", "fall", sway=0.5)],
    63: [look("limp", "wide", tilt=-8, face="closed", props=(("stars", 0),)),
         look("limp", "wide", tilt=2, face="hurt", props=(("stars", 1),)),
         look("limp", "wide", tilt=12, face="closed", props=(("stars", 2),))],
    64: [look("limp", "wide", tilt=-12, **HURT), look("limp", "wide", tilt=-24, **HURT),
         look("limp", "kneel", tilt=-14, face="closed"),
         look("lie", ((0.9, 6), (-0.2, 0)), **LYING)],
    65: [look("throat", "close", tilt=-14, **HURT), look("throat", ((0.5, 4), (-0.3, 6)),
         tilt=-20, **HURT)],
    66: [look("wide", "loose", limp=True, tilt=-20, sway=0.5, **HURT),
         look("lie", ((0.9, 6), (-0.2, 0)), **LYING)],
}


def pose_of(body, frame, spec, build):
    """The pose of a sprite from the frame that shows it first and its row of a table."""
    posture, lean, _, _ = frame.pose
    posture = spec.get("posture", posture)
    lean = spec.get("lean", lean)
    if "h" in frame.flip:
        lean = -lean
    if posture in ("none", "lying"):
        posture = "stand"
    unit = body.height / 100
    if spec.get("ball") or spec.get("limp"):
        return curled(body, spec)
    percent, lifted = POSTURES[posture]
    top = -body.height * percent / 100
    feet = -body.legs * lifted / 100
    head = (lean, top + body.head / 2)
    neck = (lean * 0.72 - 0.02 * body.height, top + body.head * 0.98)
    if posture == "crouch":
        pelvis = (lean * 0.1 - 0.07 * body.height, -0.23 * body.height)
    else:
        pelvis = (lean * 0.14 - 0.01 * body.height,
                  feet - body.legs * percent / 100 * (100 - lifted) / 100 - 1)
    pelvis = shifted(pelvis, spec.get("hip", (0, 0)), unit)
    neck = shifted(neck, spec.get("chest", (0, 0)), unit)
    head = shifted(head, spec.get("chest", (0, 0)), unit)
    far, near = hands(spec, neck, unit)
    # Where the frame moves the sprite up or down, what stands on the floor stays there.
    floor = -frame.offset[1] if spec.get("planted") else 0
    far_foot, near_foot = soles(spec, feet, body.stride, unit, floor)
    if "aside" in spec:
        far, near, far_foot, near_foot, head, neck, pelvis = (
            shifted(each, (spec["aside"], 0), unit)
            for each in (far, near, far_foot, near_foot, head, neck, pelvis))
    if in_pixels(spec, "legs", LEGS):
        pelvis, moved = strained(pelvis, near_foot, build.thigh + build.shin + 3)
        neck, head = (neck[0] + moved * 0.5, neck[1]), (head[0] + moved * 0.3, head[1])
    if spec.get("strain"):
        reach = max(near, far, key=lambda hand: abs(hand[0] - neck[0]))
        out = build.shoulder * abs(spec.get("twist", 1))
        neck, moved = strained(neck, reach, build.upper + build.fore + out)
        pelvis, head = (pelvis[0] + moved * 0.4, pelvis[1]), (head[0] + moved * 0.6, head[1])
    return Pose(head, neck, pelvis, near, far, near_foot, far_foot, **options(spec))


def in_pixels(spec, limbs, table):
    return not isinstance(spec[limbs], str) and any(len(each) == 3 for each in spec[limbs])


def strained(start, end, length):
    """The start moved across as far as a limb is too short, but not by much."""
    moved = max(0, min(14, distance(start, end) - length))
    moved = moved if end[0] > start[0] else -moved
    return (start[0] + moved, start[1]), moved


def curled(body, spec):
    """Around the axis, which is the middle of the body: for what is turned in the air."""
    unit = body.height / 100
    tight = bool(spec.get("ball"))
    neck = (8 * unit, -15 * unit) if tight else (-6 * unit, -26 * unit)
    head = (13 * unit, -21 * unit) if tight else (-6 * unit, -37 * unit)
    pelvis = (-9 * unit, 9 * unit) if tight else (0, 3 * unit)
    if tight:
        near_foot, far_foot = (8 * unit, 23 * unit), (11 * unit, 20 * unit)
        near, far = (12 * unit, 9 * unit), (15 * unit, 6 * unit)
    else:
        near_foot, far_foot = (6 * unit, 42 * unit), (14 * unit, 35 * unit)
        far, near = hands(spec, neck, unit)
    more = options(spec)
    if tight:
        more["tilt"] = 35
        more["near_pitch"] = more["far_pitch"] = 50
    return Pose(head, neck, pelvis, near, far, near_foot, far_foot, **more)


def shifted(point, by, unit):
    return point[0] + by[0] * unit, point[1] + by[1] * unit


def hands(spec, neck, unit):
    """The far and the near hand; a third element tells that the place is in pixels."""
    arms = spec["arms"]
    arms = ARMS[arms] if isinstance(arms, str) else arms
    return tuple(hand[:2] if len(hand) == 3 else shifted(neck, hand, unit) for hand in arms)


def soles(spec, feet, stride, unit, floor):
    legs = spec["legs"]
    legs = LEGS[legs] if isinstance(legs, str) else legs
    return tuple(leg[:2] if len(leg) == 3
                 else (leg[0] * stride, feet - leg[1] * unit + (0 if leg[1] else floor))
                 for leg in legs)


OPTIONS = ("tilt", "twist", "near_pitch", "far_pitch", "near_bend", "far_bend", "face",
           "far_front", "near_back", "palms", "sway", "turn", "ground", "props")


def options(spec):
    return {name: spec[name] for name in OPTIONS if name in spec}
