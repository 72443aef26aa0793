"""Maren Ölund, a ferrywoman: of middle size, fast, with a boat hook."""

from .animation import held, looped
from .attack import Attack
from .basics import play, posed
from .body import Body

FOLDER = "characters/maren"
NAME = "Maren Ölund"

# What stands below the first line of each file.
REMARKS = {
    "basics": "Hur hon står, går, hoppar, värjer sig, träffas, faller och får luft på nytt.",
    "attacks": "Slag på slag; båtshaken får vila här. Sparkar når längre än händerna gör.",
    "specials": "Båtshake, tidvatten, rep och sjögång: för den som håller avstånd på kajen.",
    "moves": "Träffar räknas från första bildrutan då något kan nås; därför så många små tal.",
}
BODY = Body(height=102, head=20, head_width=9, chest=15, legs=50, stride=14)
PACE = 5
WEIGHT = 5

STANDING = [
    Attack("jab", 100, "Jab", "Quick, to begin with.", "light", "stand",
           (2, 2), (3,), (3, 3), 46, 78, 10, 6, (28, 2), "high", 14, (3, 0), 2, (1, 0), "elbow"),
    Attack("elbow", 101, "Elbow", "Short, and hard to get away from.", "medium", "stand",
           (3, 3), (2, 2), (4, 5), 42, 74, 14, 10, (58, 5), "high", 17, (4, 0), 3, (1, 1),
           "harpoon-l"),
    Attack("round-kick", 102, "Round kick", "The longest reach that she has without the hook.",
           "heavy", "stand", (4, 4, 2), (2, 3), (6, 6, 4), 66, 66, 16, 14, (92, 9), "high", 22,
           (6, -1.5), 4, (1, 2), shake=(2, 1)),
    Attack("axe-kick", 103, "Axe kick", "Comes from above: who crouches is hit.",
           "forward-heavy", "stand", (6, 6, 6, 3), (2, 2), (7, 7), 52, 80, 22, 12, (80, 8), "high",
           19, (4, 0), 4, (1, 2), velocity=(1.5, 0)),
]

CROUCHED = [
    Attack("low-jab", 110, "Low jab", "For the shins.", "low-light", "crouch",
           (2, 2), (3,), (3, 4), 44, 34, 10, 4, (24, 2), "low", 13, (3, 0), 2, (1, 0), "low-kick"),
    Attack("low-kick", 111, "Low kick", "The root of most of her combos.", "low-medium", "crouch",
           (3, 2), (3,), (4, 5), 58, 14, 12, 4, (50, 4), "low", 17, (4, 0), 3, (1, 1),
           "harpoon-l"),
    Attack("sweep", 112, "Sweep", "Takes the feet away.", "low-heavy", "crouch",
           (4, 4), (2, 2), (7, 7, 5), 64, 8, 12, 6, (84, 8), "low", 30, (2, -3), 4, (1, 2),
           shake=(1, 1)),
]

JUMPING = [
    Attack("air-jab", 120, "Jab in the air", "Stays for long.", "light", "air",
           (2, 2), (8,), (4,), 38, 62, 12, 2, (26, 2), "high", 14, (3, 0), 2, (1, 0), air="only"),
    Attack("air-kick", 121, "Kick in the air", "Also behind her back.", "medium", "air",
           (3, 3), (3, 3), (4, 4), -44, 52, 16, -4, (54, 5), "high", 16, (-3, 0), 3, (1, 1),
           air="only"),
    Attack("heel", 122, "Heel", "Downward, against whoever stands below.", "heavy", "air",
           (4, 4), (3, 2), (5, 5), 40, 44, 26, 6, (86, 8), "high", 20, (3, 2), 4, (1, 2),
           air="only", shake=(2, 1)),
]

THROWS = [
    Attack("overboard", 130, "Overboard", "Over the hip and away.", "throw", "stand",
           (2, 2), (2,), (8, 8), 30, 60, 30, 4, (120, 0), "throw", 40, (5, -6), 5, (1, 3)),
    Attack("undertow", 131, "Undertow", "Under her and behind: she changes the side.",
           "throw-back", "stand", (2, 2), (2,), (9, 9), 30, 60, 30, -4, (110, 0), "throw", 40,
           (-5, -6), 5, (1, 3)),
    Attack("boarding", 140, "Boarding", "Out of the run, with the shoulder.", "medium", "guard",
           (3, 3), (4, 3), (6, 6), 34, 68, 34, 14, (66, 6), "middle", 21, (5, -2), 3, (1, 1),
           source="run", velocity=(5, 0), shake=(1,)),
]

ATTACKS = [("Standing", STANDING), ("Crouched", CROUCHED), ("In the air", JUMPING),
           ("Throws and runs", THROWS)]


def hook(identifier, title, active, recovery):
    f = posed(BODY)
    return play(
        identifier, title, held, f(0, 4, lean=-4), f(1, 4, lean=-8), f(2, 3, lean=4),
        f(3, active, lean=14, strike=(112, 66, 12), limb=(84, 66, 10), offset=(3, 0)),
        f(4, 3, lean=12, limb=(84, 66, 10), offset=(3, 0)), f(5, recovery, lean=6, offset=(1, 0)),
        f(6, 5, lean=2), f(7, 1), group=300)


def tide(identifier, title, turns, comment=""):
    f = posed(BODY)
    frames = [f(0, 3, "low", lean=4), f(1, 2, "low", lean=8)]
    for turn in range(turns):
        strike = dict(strike=(40, 82, 34), limb=(30, 82, 22))
        frames.append(f(2, 3, "rise", lean=8, offset=(2, -4 * turn), **strike))
        frames.append(f(3, 3, "rise", lean=6, offset=(2, -4 * turn - 2), flip="h", **strike))
    frames += [f(4, 6, "air"), f(5, 6, "rise"), f(6, 5, "low", scale=(1.05, 0.95)), f(7, 1)]
    return play(identifier, title, held, *frames, group=310, comment=comment)


def specials():
    f = posed(BODY)
    none = dict(posture="none")
    return [
        ("Harpoon: the boat hook, thrust far out", [
            hook("harpoon-l", "Harpoon, light", 4, 6),
            hook("harpoon-m", "Harpoon, medium", 5, 8),
            hook("harpoon-h", "Harpoon, heavy", 6, 11)]),
        ("Tide: a kick that rises, one turn more for each strength", [
            tide("tide-l", "Tide, light", 1, "Nobody hits her feet while she rises."),
            tide("tide-m", "Tide, medium", 2), tide("tide-h", "Tide, heavy", 3)]),
        ("Rope: a loop that pulls the other one near", [
            play("rope", "Rope", held, f(0, 5, lean=-6), f(1, 5, lean=-10), f(2, 3, lean=6),
                 f(3, 4, lean=10, strike=(96, 70, 18)), f(4, 12, lean=4), f(5, 1), group=320),
            play("rope-pull", "Rope, with a catch", held, f(0, 6, lean=8), f(1, 6, lean=-4),
                 f(2, 6, lean=-12, offset=(-4, 0), strike=(124, 60, 60)),
                 f(3, 4, lean=-6), f(4, 1), group=321,
                 comment="Follows if the loop has caught somebody.")]),
        ("Sjögång: the heavy sea, for a full bar of power", [
            play("sjögång", "Sjögång – heavy sea", held, f(0, 6, **none), f(1, 20, **none),
                 f(2, 3, lean=6), *[f(3 + turn % 4, 4, "rise", lean=10,
                                      offset=(6 * turn, -3 * turn),
                                      angle=(0, 12, -12, 6)[turn % 4],
                                      strike=(70, 60, 60), limb=(40, 60, 30))
                                    for turn in range(8)],
                 f(7, 8, "air"), f(8, 6, "rise"), f(9, 8, "low", scale=(1.06, 0.94)), f(10, 1),
                 group=330, comment="Twenty-six ticks in which nothing can hit her, then eight "
                                    "waves.")]),
    ]


def poses():
    f = posed(BODY)
    none = "none"
    return [
        play("intro", "Steps off the ferry", held, f(0, 20, none, offset=(-30, 0)),
             f(1, 6, none, offset=(-24, -2)), f(2, 6, none, offset=(-16, 0)),
             f(1, 6, none, offset=(-8, -2)), f(3, 10, none), f(4, 16, none), f(5, 1, none),
             group=400),
        play("taunt", "Waves", held, f(0, 5), f(1, 6, lean=-2), f(2, 6, lean=-2),
             f(1, 6, lean=-2), f(2, 6, lean=-2), f(0, 1), group=410),
        play("win-1", "Shoulders the hook", held, f(0, 10, none), f(1, 6, none), f(2, 6, none),
             f(3, 1, none), group=420),
        play("win-2", "Ties a knot, unties it, ties it", looped, f(0, 12, none), f(1, 8, none),
             f(2, 8, none), f(3, 16, none), f(2, 8, none), f(1, 8, none), group=421),
        play("lose", "Looks at the clock", held, f(0, 14, none), f(1, 20, none), f(2, 1, none),
             group=430),
    ]
