"""The animations that every fighter has: stance, ways, guards and what blows do.

`pace` is the length of a step in ticks, `weight` the pixels by which the body gives way.
"""

from .animation import Animation, held, looped


def stance(body, pace):
    f = posed(body)
    breath = pace + 2
    return [
        play(10, "Idle", looped, f(0, breath), f(1, breath, offset=(0, 1)), f(2, breath + 2,
             offset=(0, 2)), f(3, breath, lean=1, offset=(0, 1)), f(4, breath, lean=1),
             f(5, breath + 2)),
        play(11, "Turn", held, f(0, 2), f(1, 2, lean=-2), f(1, 2, lean=2, flip="h"),
             f(0, 1, flip="h")),
        play(12, "Going down", held, f(0, 2, "guard"), f(1, 2, "low", lean=2), f(2, 1, "crouch")),
        play(13, "Crouched", looped, f(0, breath, "crouch"), f(1, breath, "crouch", lean=1),
             f(2, breath + 2, "crouch", lean=1), f(1, breath, "crouch", lean=1)),
        play(14, "Coming up", held, f(1, 2, "low"), f(0, 2, "guard"), f(2, 1)),
        play(15, "Turn, crouched", held, f(0, 2, "crouch"), f(0, 2, "crouch", flip="h"),
             f(1, 1, "crouch", flip="h")),
    ]


def ways(body, pace):
    f = posed(body)
    step = [f(number, pace, lean=lean, offset=(0, -rise))
            for number, lean, rise in ((0, 1, 0), (1, 2, 1), (2, 3, 2), (3, 2, 1), (4, 1, 0),
                                       (5, 2, 1), (6, 3, 2), (7, 2, 1))]
    back = [f(7 - number, pace, lean=-lean, offset=(0, -rise))
            for number, lean, rise in ((0, 1, 0), (1, 2, 1), (2, 3, 1), (3, 2, 0), (4, 1, 0),
                                       (5, 2, 1), (6, 3, 1), (7, 2, 0))]
    run = [f(number, max(2, pace // 2 + 1), "guard", lean=lean, offset=(4, -rise))
           for number, lean, rise in ((0, 12, 0), (1, 14, 2), (2, 15, 4), (3, 12, 0), (4, 14, 2),
                                      (5, 15, 4))]
    return [
        play(20, "Walk forward", looped, *step),
        play(21, "Walk back", looped, *back),
        play(22, "Run", lambda frames: looped(frames, 1), f(6, 3, "low", lean=8), *run),
        play(23, "Hop back", held, f(0, 2, "low", lean=-3), f(1, 5, "rise", lean=-6),
             f(2, 5, "rise", lean=-4), f(3, 1, "low", lean=2)),
        play(24, "Stop", held, f(0, 3, "guard", lean=-4), f(1, 4, "low", lean=-6),
             f(2, 1, "guard", lean=-2)),
        play(30, "Jump, start", held, f(0, 2, "low"), f(1, 1, "low", lean=2)),
        play(31, "Jump", held, f(0, 4, "rise"), f(1, 6, "air"), f(2, 8, "air"), f(3, 6, "rise"),
             f(4, 1, "rise")),
        play(32, "Jump forward", held, f(0, 4, "rise", lean=6), f(1, 4, "tumble", angle=-45),
             f(1, 4, "tumble", angle=-135), f(1, 4, "tumble", angle=-225),
             f(1, 4, "tumble", angle=-315), f(2, 4, "rise", lean=4), f(3, 1, "rise")),
        play(33, "Jump back", held, f(0, 4, "rise", lean=-6), f(1, 4, "tumble", angle=45),
             f(1, 4, "tumble", angle=135), f(1, 4, "tumble", angle=225),
             f(1, 4, "tumble", angle=315), f(2, 4, "rise", lean=-4), f(3, 1, "rise")),
        play(34, "Landing", held, f(0, 2, "low", scale=(1.04, 0.96)), f(1, 2, "guard"), f(2, 1)),
    ]


def guards(body):
    f = posed(body)
    return [
        play(40, "Guard", held, f(0, 2, "guard"), f(1, 2, "guard", lean=-3),
             f(2, 1, "guard", lean=-4)),
        play(41, "Guard, crouched", held, f(0, 2, "crouch"), f(1, 1, "crouch", lean=-3)),
        play(42, "Guard in the air", held, f(0, 2, "rise"), f(1, 1, "rise", lean=-4)),
        play(43, "Guarded blow", held, f(0, 3, "guard", lean=-6, offset=(-2, 0)),
             f(1, 4, "guard", lean=-5, offset=(-1, 0)), f(2, 1, "guard", lean=-4)),
        play(44, "Guarded blow, crouched", held, f(0, 3, "crouch", lean=-5, offset=(-2, 0)),
             f(1, 1, "crouch", lean=-3)),
        play("push-off", "Push off", held, f(0, 3, "guard", lean=-6),
             f(2, 4, "guard", lean=-4, strike=(56, 70, 40)), f(1, 8, "guard", lean=-5),
             f(2, 1, "guard", lean=-4), group=43,
             comment="Out of a guarded blow: both hands forward."),
    ]


def blows(body, weight):
    """What a blow does: each goes back by the weight and comes up again."""

    def hit(number, title, posture, lean, ticks):
        frames = [body.frame(number, 0, 2, posture, lean=lean // 2),
                  body.frame(number, 1, ticks, posture, lean=lean, offset=(-weight, 0)),
                  body.frame(number, 2, ticks + 1, posture, lean=lean * 2 // 3,
                             offset=(-weight // 2, 0)),
                  body.frame(number, 3, 3, posture, lean=lean // 3),
                  body.frame(number, 4, 1, posture)]
        return Animation(str(number), title, held(frames))

    return [
        hit(50, "Hit high, light", "stand", -8, 4),
        hit(51, "Hit high, heavy", "stand", -14, 8),
        hit(52, "Hit in the middle, light", "guard", 6, 4),
        hit(53, "Hit in the middle, heavy", "low", 12, 8),
        hit(54, "Hit crouched, light", "crouch", -6, 4),
        hit(55, "Hit crouched, heavy", "crouch", -10, 8),
    ]


def falls(body, weight):
    f = posed(body)
    return [
        play(56, "Hit in the air", held, f(0, 3, "rise", lean=-8), f(1, 5, "rise", lean=-12),
             f(2, 1, "rise", lean=-10)),
        play(57, "Thrown up", held, f(0, 3, "rise", lean=-10), f(1, 4, "tumble", angle=30),
             f(1, 4, "tumble", angle=60), f(2, 1, "tumble", angle=90)),
        play(58, "Falling", held, f(0, 4, "tumble", angle=100), f(0, 4, "tumble", angle=115),
             f(1, 1, "tumble", angle=130)),
        play(59, "On the floor and up again", held, f(0, 3, "none", offset=(0, weight // 2)),
             f(1, 4, "none", offset=(0, -12)), f(2, 4, "none", offset=(0, -6)), f(3, 1, "none")),
        play(60, "Lying", held, f(0, 2, "none"), f(1, 1, "lying")),
        play(61, "Getting up", held, f(0, 6, "none"), f(1, 5, "none"), f(2, 5, "none"),
             f(3, 4, "crouch"), f(4, 3, "low"), f(5, 1, "stand")),
        play(62, "Recovery in the air", held, f(0, 3, "none"), f(1, 4, "spin", angle=-120),
             f(1, 4, "spin", angle=-240), f(2, 3, "rise"), f(3, 1, "rise")),
        play(63, "Dizzy", looped, f(0, 8, "guard", lean=-4), f(1, 8, "guard", lean=-1),
             f(2, 8, "guard", lean=3), f(1, 8, "guard", lean=1, flip="h")),
        play(64, "Knocked out", held, f(0, 4, "low", lean=-6), f(1, 6, "low", lean=-10),
             f(2, 8, "crouch", lean=-4), f(3, 1, "none")),
        play(65, "Held", looped, f(0, 5, "stand", lean=-6), f(1, 5, "stand", lean=-8)),
        play(66, "Thrown", held, f(0, 3, "spin", angle=60), f(0, 3, "spin", angle=120, flip="v"),
             f(0, 3, "spin", angle=180, flip="hv"), f(1, 1, "none")),
    ]


def posed(body):
    """Makes frames whose group of sprites is told later."""
    def frame(number, delay, posture="stand", **options):
        return lambda group: body.frame(group, number, delay, posture, **options)

    return frame


def play(identifier, title, end, *frames, group=None, comment=""):
    """An animation whose sprites are in the group of its own number, if no other is told."""
    group = identifier if group is None else group
    return Animation(str(identifier), title, end([frame(group) for frame in frames]), comment)
