"""The poses of Maren's own sprites: which limb each attack uses, the boat hook, rope and sea."""

from .poses import blend, look

STRIKES = {
    "jab": "punch far", "elbow": "hook near", "round-kick": "kick", "axe-kick": "heel",
    "low-jab": "punch far", "low-kick": "kick", "sweep": "kick", "air-jab": "punch near",
    "air-kick": "kick", "heel": "heel", "overboard": "both", "undertow": "both",
    "boarding": "shoulder",
}


def hook(butt, tip, legs="wide", first=0.1, second=0.42, **more):
    """Both hands on the shaft, at parts of its length: the near one and the far one."""
    near, far = blend(butt, tip, first), blend(butt, tip, second)
    return look(((*far, 0), (*near, 0)), legs, props=(("hook", butt, tip),), **more)


def carried(angle_tip=(-26, -118), **more):
    """The hook over the shoulder, held by the near hand."""
    butt = (20, -50)
    near = blend(butt, angle_tip, 0.16)
    more.setdefault("legs", "close")
    far = more.pop("far", (6, 32))
    return look((far, (*near, 0)), posture="stand", props=(("shouldered", butt, angle_tip),),
                **more)


def planted(x=22, **more):
    """The hook upright on the floor."""
    return look(((x, -62, 0), more.pop("near", (-10, 26))), more.pop("legs", "close"),
                props=(("hook", (x, -1), (x, -112)),), far_front=True, posture="stand", **more)


def pulled(end, far, near, legs="wide", **more):
    """A tight rope from both hands to a point."""
    return look(((*far, 0), (*near, 0)), legs, face="fierce",
                props=(("rope", near, far, end),), **more)


def wave(number):
    arms = [((30, 0), (-18, 10)), ((20, -20), (-10, 22)), ((28, 10), (10, -24)),
            ((26, -8), (-20, -8))][number]
    legs = [((1.2, 14), (-0.4, 4)), ((0.4, 2), (1.4, 20)), ((-0.6, 10), (1.6, 12)),
            ((1.5, 22), (-0.2, 2))][number]
    return look(arms, legs, face="shout", sway=1, twist=(1, 0.3, -0.7, 0.4)[number],
                props=(("sea", number),))


SPECIALS = {
    300: [hook((-30, -46), (52, -84)), hook((-46, -56), (36, -78), sway=-0.3, face="fierce"),
          hook((-12, -60), (74, -72), face="fierce", sway=0.3),
          hook((16, -66), (111, -67), face="shout", sway=0.9, twist=0.4, strain=True),
          hook((8, -64), (98, -68), face="fierce", sway=0.4, twist=0.6),
          hook((-14, -56), (72, -76), face="fierce"), hook((-28, -46), (54, -84)), look()],
    310: [look("back", "wide", face="fierce", sway=-0.2, hip=(-3, 0)),
          look("back", "wide", face="fierce", hip=(-3, 3), chest=(2, 4)),
          look("run2", ((-0.3, 0), (38, -78, 0)), face="shout", sway=-0.8, twist=0.3, tilt=-8,
               props=(("spray", 1),)),
          look("run3", ((0.3, 0), (-38, -78, 0)), face="shout", sway=-1, twist=-0.5, tilt=8,
               props=(("spray", -1),)),
          look("wide", "air", sway=-0.6), look("wide", "fall", sway=0.8),
          look("low", "wide", hip=(-2, 0), sway=-0.4), look()],
    320: [look(((14, 14), (-8, -20)), props=(("coil", -16, -116),)),
          look(((16, 12), (-12, -16)), "wide", face="fierce", props=(("coil", -28, -110),)),
          look(((14, 12), (12, -22)), "wide", face="fierce", sway=0.3,
               props=(("coil", 22, -118),)),
          look(((18, 14), (36, -72, 0)), "wide", face="shout", twist=-0.3, sway=0.7, strain=True,
               props=(("cast", (36, -72), (88, -72)),)),
          look(((20, 16), (18, 12)), face="fierce", twist=0.4,
               props=(("slack", (18, -70), (44, -2)),)), look()],
    321: [pulled((96, -66), (40, -68), (26, -64), twist=0.4),
          pulled((84, -64), (26, -64), (6, -60), sway=0.3),
          pulled((66, -62), (6, -66), (-14, -56), sway=0.8, hip=(-6, 4), legs=((1.4, 0),
                 (-0.9, 0))),
          pulled((40, -60), (8, -62), (-10, -56), sway=0.2), look()],
    330: [look(((10, 20), (-10, 22)), posture="stand", face="closed"),
          look(((16, 28), (-18, 28)), "wide", posture="low", face="closed", sway=-0.7,
               props=(("drops",),)),
          look(((26, -14), (-20, 18)), "wide", face="shout", sway=0.5),
          wave(0), wave(1), wave(2), wave(3),
          look("up", "air", sway=0.6), look("wide", "fall", sway=0.9),
          look("low", "wide", hip=(-2, 0), sway=-0.5), look()],
    400: [carried(face="calm", far=(5, 33)), carried(legs=((0.9, 0), (-0.8, 3)), sway=0.4),
          carried(legs=((-0.7, 3), (0.9, 0)), sway=0.4), carried(face="laugh"),
          planted(face="calm"), look(posture="stand")],
    410: [look("rest", "close"), look("wave1", "close", face="laugh", palms=True),
          look("wave2", "close", face="laugh", palms=True)],
    420: [planted(face="calm"), planted(x=16, near=(12, 4), face="closed"),
          carried((-18, -124), face="calm"), carried(face="laugh", far=(12, 22))],
    421: [look(((9, 18), (7, 22)), "close", posture="stand", tilt=12, far_front=True,
               props=(("knot", 0),)),
          look(((13, 15), (3, 20)), "close", posture="stand", tilt=14, far_front=True,
               props=(("knot", 1),)),
          look(((9, 20), (9, 14)), "close", posture="stand", tilt=12, far_front=True,
               props=(("knot", 2),)),
          look(((15, 8), (12, 13)), "close", posture="stand", face="laugh", far_front=True,
               props=(("knot", 3),))],
    430: [look("rest", "close", posture="stand", tilt=6),
          look(((12, 6), (-7, 32)), "close", posture="stand", tilt=14, face="closed",
               far_front=True),
          look(((8, 32), (-12, 22)), "close", posture="stand", tilt=18, face="closed")],
}
