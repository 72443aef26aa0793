"""What moves on the quay. Nothing here has contact boxes."""

from .animation import Animation, Frame, looped

WAVES = [Frame(20, number, 9, offset=(shift, rise))
         for number, shift, rise in ((0, 0, 0), (1, 1, 0), (2, 2, 1), (3, 3, 1), (4, 2, 1),
                                     (5, 1, 0))]
FOAM = [Frame(21, number, 5, scale=(1 + number / 10, 1)) for number in range(4)]
FOAM += [Frame(21, 3 - number, 5, flip="h", scale=(1.3 - number / 10, 1)) for number in range(4)]

GULL = [Frame(30, number, ticks, offset=(2 * number, lift))
        for number, ticks, lift in ((0, 4, 0), (1, 4, -2), (2, 5, -4), (3, 5, -5), (4, 14, -4),
                                    (3, 4, -2))]
GULL_BACK = [Frame(30, number, ticks, offset=(-2 * number, lift), flip="h")
             for number, ticks, lift in ((0, 4, 0), (1, 4, -2), (2, 5, -4), (3, 5, -5),
                                         (4, 14, -4), (3, 4, -2))]

FLAG = [Frame(40, number, 6) for number in range(6)]
LAMP = [Frame(41, 0, 90), Frame(41, 1, 2), Frame(41, 0, 7), Frame(41, 1, 1), Frame(41, 0, 40),
        Frame(41, 2, 3)]
CRANE = [Frame(42, 0, 12, angle=angle) for angle in (0, 0.5, 1, 1.5, 1, 0.5, 0, -0.5, -1, -0.5)]
BOAT = [Frame(43, 0, 10, offset=(0, rise), angle=angle)
        for rise, angle in ((0, 0), (1, 0.75), (2, 1.5), (3, 1.5), (2, 0.75), (1, 0), (0, -0.75),
                            (1, -1.5))]
MIRROR = [Frame(43, 0, 10, offset=(0, rise), flip="v", scale=(1, 0.6), angle=angle)
          for rise, angle in ((0, 0), (-1, -0.75), (-2, -1.5), (-3, -1.5), (-2, -0.75), (-1, 0),
                              (0, 0.75), (-1, 1.5))]
CAT = [Frame(50, 0, 120), Frame(50, 1, 8), Frame(50, 2, 60), Frame(50, 1, 8),
       Frame(50, 0, 60, flip="h"), Frame(50, 3, 30)]

SCENERY = [
    ("Water", [
        Animation("waves", "Waves", looped(WAVES)),
        Animation("foam", "Foam at the wall", looped(FOAM), "There and, turned round, back again."),
        Animation("boat", "Boat", looped(BOAT)),
        Animation("boat-mirrored", "Boat in the water", looped(MIRROR),
                  "Upside down and flatter; turns against the boat."),
    ]),
    ("Air", [
        Animation("gull", "Gull", looped(GULL)),
        Animation("gull-back", "Gull, the other way", looped(GULL_BACK)),
        Animation("flag", "Flag", looped(FLAG)),
    ]),
    ("Quay", [
        Animation("lamp", "Lamp with a bad contact", looped(LAMP, 1),
                  "The first, long frame is shown once."),
        Animation("crane", "Crane in the wind", looped(CRANE)),
        Animation("cat", "Кот", looped(CAT), "Спит, слушает, моет лапу."),
    ]),
]
