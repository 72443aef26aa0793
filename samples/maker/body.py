"""The size of a fighter, and the contact boxes that follow from it.

Boxes are left, top, right and bottom from the axis between the feet, with y downward and all four
inclusive. A fighter looks to the right.
"""

from dataclasses import dataclass

from .animation import Frame

# How much of the height is left, in percent, and by how much of the legs the feet leave the floor.
POSTURES = {
    "stand": (100, 0),
    "guard": (96, 0),
    "low": (84, 0),
    "crouch": (64, 0),
    "rise": (98, 15),
    "air": (96, 45),
}
# The axis of these sprites is the middle of the body, so that a turn keeps it in its place.
TURNING = ("tumble", "spin")


@dataclass(frozen=True)
class Body:
    height: int
    head: int  # height of the head
    head_width: int  # each of the widths is half of it
    chest: int
    legs: int  # height of the legs
    stride: int

    def boxes(self, posture, lean=0):
        """Head, chest and legs; fewer where a fighter is small or cannot be hit."""
        if posture in ("none", "spin"):
            return ()
        if posture == "lying":
            half = self.height // 2
            return ((-half, -2 * self.stride, half, 0),)
        if posture == "tumble":
            size = self.height * 3 // 10
            middle = -self.height // 2
            return ((lean - size, middle - size, lean + size, middle + size),)
        percent, lifted = POSTURES[posture]
        top = -self.height * percent // 100
        feet = -self.legs * lifted // 100
        neck = top + self.head
        hip = feet - self.legs * percent // 100 * (100 - lifted) // 100
        boxes = [(lean - self.head_width, top, lean + self.head_width, neck - 1)]
        middle = lean // 2
        if posture == "crouch":
            boxes.append((middle - self.chest, neck, middle + self.chest, 0))
        else:
            boxes.append((middle - self.chest, neck, middle + self.chest, hip - 1))
            boxes.append((-self.stride, hip, self.stride, feet))
        return tuple(boxes)

    def frame(self, group, number, delay=1, posture="stand", lean=0, strike=None, limb=None,
              offset=(0, 0), **options):
        """A frame in a posture. `strike` is what hits, `limb` what is stretched and can be hit:
        both are reach, height in percent and thickness."""
        body = self.boxes(posture, lean)
        if limb:
            body += (self.limb(limb, lean, 0),)
        attack = (self.limb(strike, lean, 4),) if strike else ()
        boxes = moved(attack, offset), moved(body, offset)
        if posture in TURNING:
            offset = (offset[0], offset[1] - self.height // 2)
        return Frame(group, number, delay, *boxes, offset, pose=(posture, lean, strike, limb),
                     **options)

    def limb(self, limb, lean, margin):
        """The box from the chest to the end of a limb; a negative reach is behind the back."""
        reach, percent, thickness = limb
        near = lean // 2 + (self.chest - 6 if reach > 0 else 6 - self.chest)
        far = lean // 2 + reach
        middle = -self.height * percent // 100
        half = thickness // 2 + margin // 2
        return (min(near, far), middle - half, max(near, far) + margin // 4, middle + half)


def moved(boxes, offset):
    """The boxes moved with the sprite; none goes below the floor."""
    x, y = offset
    return tuple((left + x, top + y, right + x, min(0, bottom + y))
                 for left, top, right, bottom in boxes)
