"""Iwao Tetsuo (岩尾鉄男), a docker: tall, heavy, slow, and hard to move."""

from .animation import held, looped
from .attack import Attack
from .basics import play, posed
from .body import Body

FOLDER = "characters/iwao"
NAME = "岩尾鉄男 (Iwao Tetsuo)"

# What stands below the first line of each file.
REMARKS = {
    "basics": "立ち、歩き、跳び、守り、倒れる。どれもゆっくり。",
    "attacks": "通常技。力は強いが、外すと長い隙ができる。",
    "specials": "突進、鐘、起重機、そして大波。",
    "moves": "数字は六十分の一秒。有利の数字は最初の攻撃枠で当たったときのもの。",
}
BODY = Body(height=118, head=22, head_width=10, chest=23, legs=52, stride=20)
PACE = 7
WEIGHT = 3

STANDING = [
    Attack("palm", 100, "Palm", "Flat hand; pushes more than it hurts.", "light", "stand",
           (3, 3), (3,), (4, 4), 44, 76, 16, 6, (36, 3), "high", 16, (5, 0), 2, (2, 0),
           "forearm"),
    Attack("forearm", 101, "Forearm", "Against whoever comes too near.", "medium", "stand",
           (4, 4), (3, 2), (5, 6), 48, 70, 20, 8, (74, 7), "middle", 20, (4, 0), 3, (2, 1),
           "charge-l"),
    Attack("hammer", 102, "Hammer", "Both fists from above.", "heavy", "stand",
           (6, 6, 4), (3, 3), (8, 8, 6), 58, 68, 34, 16, (124, 12), "high", 28, (4, 2), 5, (2, 2),
           shake=(4, 3, 2, 1)),
    Attack("stomp", 103, "Stomp", "Shakes the quay.", "forward-heavy", "stand",
           (7, 7, 4), (3,), (9, 9), 40, 10, 24, 4, (90, 9), "low", 26, (3, -2), 4, (2, 2),
           shake=(5, 4, 3, 2, 1)),
]

CROUCHED = [
    Attack("low-palm", 110, "Low palm", "Slow for a light one.", "low-light", "crouch",
           (3, 3), (3,), (4, 4), 42, 40, 14, 4, (32, 3), "low", 15, (4, 0), 2, (2, 0), "shove"),
    Attack("shove", 111, "Shove", "Makes room.", "low-medium", "crouch",
           (4, 3), (3,), (5, 6), 50, 36, 24, 6, (62, 6), "middle", 19, (8, 0), 3, (2, 1),
           "charge-l"),
    Attack("barrel", 112, "Barrel", "Rolls a barrel that is not there.", "low-heavy", "crouch",
           (6, 5), (3, 3, 3), (9, 8), 62, 14, 26, 8, (104, 10), "low", 34, (3, -4), 4, (2, 2),
           velocity=(2.5, 0), shake=(2, 2, 1)),
]

JUMPING = [
    Attack("air-palm", 120, "Palm in the air", "Mostly to be let alone.", "light", "air",
           (3, 3), (6,), (5,), 38, 60, 16, 2, (34, 3), "high", 15, (4, 0), 2, (2, 0), air="only"),
    Attack("belly", 121, "Belly", "The whole weight.", "medium", "air",
           (4, 3), (10,), (6,), 30, 48, 44, 0, (78, 7), "high", 20, (3, 1), 3, (2, 1),
           air="only"),
    Attack("drop", 122, "Drop", "Knee first.", "heavy", "air",
           (5, 5), (4, 4), (6, 6), 34, 30, 34, 4, (112, 11), "high", 26, (2, 4), 5, (2, 2),
           air="only", shake=(3, 2, 1)),
]

THROWS = [
    Attack("load", 130, "Load", "Lifts the other one like a sack, and puts it down.", "throw",
           "stand", (2, 3), (3,), (9, 9), 34, 62, 40, 6, (150, 0), "throw", 44, (3, -7), 6,
           (2, 3)),
    Attack("unload", 131, "Unload", "The same, behind him.", "throw-back", "stand",
           (2, 3), (3,), (10, 10), 34, 62, 40, -6, (140, 0), "throw", 44, (-4, -6), 6, (2, 3)),
    Attack("cart", 140, "Cart", "Out of the run; only a wall stops him.", "heavy", "guard",
           (4, 4), (5, 5), (8, 8), 40, 60, 52, 18, (96, 9), "middle", 28, (7, -2), 4, (2, 2),
           source="run", velocity=(4.5, 0), shake=(2, 2, 2, 1)),
]

ATTACKS = [("Standing", STANDING), ("Crouched", CROUCHED), ("In the air", JUMPING),
           ("Throws and runs", THROWS)]


def charge(identifier, title, steps):
    f = posed(BODY)
    strike = dict(strike=(46, 62, 56), limb=(34, 62, 40))
    frames = [f(0, 6, lean=-6), f(1, 4, "guard", lean=6)]
    frames += [f(2 + step % 4, 3, "guard", lean=20, offset=(5, -(step % 2)), **strike)
               for step in range(steps)]
    frames += [f(6, 8, "guard", lean=10), f(7, 6, lean=4), f(8, 1)]
    return play(identifier, title, held, *frames, group=300)


def bell(identifier, title, charged):
    f = posed(BODY)
    return play(
        identifier, title, held, f(0, 6, lean=-8), f(1, charged, lean=-14, offset=(-2, 0)),
        f(2, 2, lean=4),
        f(3, 3, lean=16, strike=(54, 88, 40), limb=(36, 88, 30), scale=(1.1, 1)),
        f(4, 3, lean=18, strike=(60, 60, 40), limb=(40, 60, 30), scale=(1.1, 1), angle=-8),
        f(5, 10, "low", lean=12), f(6, 8, "guard", lean=6), f(7, 1), group=310)


def specials():
    f = posed(BODY)
    none = "none"
    return [
        ("Charge: shoulder first, farther with each strength", [
            charge("charge-l", "Charge, light", 3), charge("charge-m", "Charge, medium", 5),
            charge("charge-h", "Charge, heavy", 8)]),
        ("Bell: the harbour bell, which somebody's head stands for", [
            bell("bell-l", "Bell, light", 4), bell("bell-m", "Bell, medium", 8),
            bell("bell-h", "Bell, heavy", 14)]),
        ("Crane: takes hold, turns, and lets go", [
            play("crane", "Crane", held, f(0, 3, lean=4), f(1, 2, lean=10),
                 f(2, 3, lean=12, strike=(44, 60, 60)), f(3, 24, lean=6), f(4, 1), group=320),
            play("crane-turn", "Crane, with a load", held, f(0, 8, none), f(1, 4, none),
                 f(2, 4, none), f(3, 4, none, flip="h"), f(2, 4, none, flip="h"), f(1, 4, none),
                 f(2, 4, none), f(3, 4, none, flip="h"), f(4, 6, none, scale=(1.15, 0.9),
                   strike=(80, 70, 60)), f(5, 1), group=321, comment="Follows if somebody was caught. Two turns.")]),
        ("大波: the great wave, for a full bar of power", [
            play("大波", "大波 – great wave", held, f(0, 8, none), f(1, 24, none), f(2, 4, "low",
                 lean=8), *[f(3 + wave % 3, 5, "guard", lean=14, offset=(4 * wave, 0),
                              strike=(80 + 12 * wave, 30, 60 + 4 * wave),
                              scale=(1 + wave / 20, 1 + wave / 10))
                            for wave in range(6)],
                 f(6, 12, "low", lean=4), f(7, 8, "guard"), f(8, 1), group=330,
                 comment="波は一つ一つ大きくなる。")]),
    ]


def poses():
    f = posed(BODY)
    none = "none"
    return [
        play("intro", "Puts down a crate", held, f(0, 24, none), f(1, 8, none), f(2, 8, none),
             f(3, 12, none), f(4, 8, none), f(5, 1, none), group=400),
        play("taunt", "Yawns", held, f(0, 8), f(1, 20, lean=-6), f(2, 10, lean=-4), f(0, 1),
             group=410),
        play("win-1", "Folds his arms", held, f(0, 12, none), f(1, 8, none), f(2, 1, none),
             group=420),
        play("win-2", "Laughs", looped, f(0, 6, none), f(1, 5, none), f(2, 5, none),
             f(1, 5, none), f(2, 5, none), group=421),
        play("lose", "Sits down", held, f(0, 16, none), f(1, 24, none), f(2, 1, none), group=430),
    ]
