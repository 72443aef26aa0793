"""The poses of Iwao's own sprites: which limb each attack uses, and his heavy work."""

from .poses import look

STRIKES = {
    "palm": "palm near", "forearm": "hook near", "hammer": "hammer", "stomp": "stomp",
    "low-palm": "palm far", "shove": "both", "barrel": "both", "air-palm": "palm near",
    "belly": "belly", "drop": "knee", "load": "both", "unload": "both", "cart": "shoulder",
}


def charging(number):
    legs = [((1.5, 3), (-1.5, 2)), ((0.4, 0), (-0.9, 12)), ((-1.5, 2), (1.5, 3)),
            ((-0.9, 12), (0.4, 0))][number]
    return look(((44, -74, 0), (52, -64, 0)), legs, face="shout", twist=-0.9, chest=(5, 3),
                hip=(4, 1), near_bend=-1, sway=1, props=(("wind", number),))


def carrying(number, **more):
    """A heavy load above the head."""
    return look(((12, -24), (-12, -26)), "wide", posture="guard", palms=True,
                **dict(dict(face="fierce"), **more))


def wave(number):
    spread = (0, 4, -3)[number]
    return look(((38, -56 + spread, 0), (34, -44 + spread, 0)), "wide", face="shout", palms=True,
                twist=0.15, sway=0.6, strain=True, props=(("wave", number),))


SPECIALS = {
    300: [look(((10, 12), (-6, 18)), "wide", face="fierce", hip=(-3, 0)),
          look(((14, 12), (4, 16)), ((1.2, 0), (-1.1, 4)), face="fierce", twist=-0.4),
          charging(0), charging(1), charging(2), charging(3),
          look("back", ((1.4, 0), (-1.0, 0)), face="fierce", sway=-0.6), look("low", "wide"),
          look()],
    310: [look(((8, -10), (-4, -16)), "wide", face="fierce", twist=0.5),
          look(((-8, -26), (-14, -28)), "wide", face="fierce", twist=0.3, sway=-0.3),
          look(((8, -28), (2, -30)), "wide", face="shout", twist=0.3, sway=0.2),
          look(((50, -108, 0), (46, -100, 0)), "wide", face="shout", twist=0.1, sway=0.7,
               strain=True, props=(("arc", "bell", 58, -104, 0),)),
          look(((54, -68, 0), (50, -60, 0)), "wide", face="shout", twist=0.1, sway=0.8,
               strain=True, props=(("arc", "bell", 62, -70, 1),)),
          look(((26, 22), (20, 28)), "wide", face="fierce", hip=(-2, 0)),
          look("low", "wide", face="fierce"), look()],
    320: [look(((14, 8), (8, 14)), palms=True, face="fierce"),
          look(((22, 4), (16, 12)), "wide", palms=True, face="fierce"),
          look(((46, -76, 0), (44, -64, 0)), "wide", palms=True, face="shout", twist=0.1,
               strain=True),
          look(((22, 2), (18, 10)), "wide", palms=True, face="fierce", twist=0.2), look()],
    321: [look(((26, -6), (22, 2)), "wide", posture="guard", palms=True, face="fierce",
               twist=0.3),
          carrying(1), carrying(2, twist=0.2, sway=0.4), carrying(3, twist=-0.7, sway=0.6),
          look(((30, 20), (26, 26)), "wide", posture="low", palms=True, face="shout", twist=0.1,
               lean=16, sway=0.8, props=(("dust", 44),)), look(posture="stand")],
    330: [look(((16, 24), (-16, 26)), "wide", posture="guard", face="closed"),
          look(((28, 18), (-28, 20)), "wide", posture="low", palms=True, face="closed",
               sway=-0.5, props=(("drops",),)),
          look(((4, 20), (-14, 24)), "wide", face="fierce", palms=True, hip=(-3, 0)),
          wave(0), wave(1), wave(2), look("low", "wide", face="fierce"), look("low"), look()],
    400: [look(((-2, -24), (-22, -20)), "close", posture="stand", palms=True,
               props=(("crate", (-14, -136)),)),
          look(((24, 12), (10, 16)), "close", posture="guard", palms=True, lean=4,
               props=(("crate", (36, -74)),)),
          look(((26, 24), (20, 26)), "wide", posture="low", palms=True, lean=16, tilt=14,
               props=(("crate", (44, -40)),)),
          look(((30, 10), (28, 14)), "crouch", posture="crouch", palms=True, lean=8,
               props=(("crate", (46, -14)),)),
          look("low", posture="guard", props=(("crate", (46, -14)),)),
          look(posture="stand", props=(("crate", (46, -14)),))],
    410: [look("rest", "close"), look(((8, 30), (9, -10)), "close", tilt=-16, face="shout",
                                      palms=True),
          look(((14, -26), (-14, -26)), "close", tilt=-18, face="closed")],
    420: [look("rest", "wide", posture="stand"), look(((8, 20), (10, 22)), "wide",
                                                      posture="stand", far_front=True),
          look(((-4, 17), (15, 15)), "wide", posture="stand", far_front=True, face="closed",
               twist=0.6)],
    421: [look("hips", "wide", posture="stand", near_bend=1),
          look("hips", "wide", posture="stand", tilt=-14, face="laugh", chest=(-1, -0.6)),
          look("hips", "wide", posture="stand", tilt=-8, face="laugh", chest=(1, 1))],
    430: [look("limp", "wide", posture="low", tilt=12, face="closed"),
          look(((14, 22), (-16, 24)), "crouch", posture="crouch", tilt=12, face="closed"),
          look(((14, 20), (10, 24)), ((1.9, 0), (1.5, 0)), posture="crouch", hip=(-6, 15),
               chest=(-6, 13), tilt=18, face="closed")],
}
