"""Frames and animations, and how they are written."""

from dataclasses import dataclass, replace


@dataclass(frozen=True)
class Frame:
    group: int
    number: int
    delay: int = 1
    attack: tuple = ()
    body: tuple = ()
    offset: tuple = (0, 0)
    flip: str = ""
    scale: tuple = ()
    angle: float = 0
    loop: bool = False
    pose: tuple = ()  # posture, lean, strike and limb, for the drawing

    def lines(self):
        for box in self.attack:
            yield "attack " + box_text(box)
        for box in self.body:
            yield "body   " + box_text(box)
        yield "  ".join(self.parts())

    def parts(self):
        yield f"frame {self.group},{self.number}"
        if self.offset != (0, 0):
            yield "offset {},{}".format(*self.offset)
        if self.delay != 1:
            yield f"delay {self.delay}"
        if self.flip:
            yield f"flip {self.flip}"
        if self.scale:
            yield "scale {:g},{:g}".format(*self.scale)
        if self.angle:
            yield f"angle {self.angle:g}"
        if self.loop:
            yield "loop"


@dataclass(frozen=True)
class Animation:
    identifier: str
    name: str
    frames: tuple
    comment: str = ""

    def lines(self):
        if self.comment:
            for line in self.comment.split("\n"):
                yield "# " + line
        yield f'animation {self.identifier} "{self.name}"' if self.name else (
            f"animation {self.identifier}")
        for frame in self.frames:
            yield from frame.lines()


def looped(frames, at=0):
    """The frames with the loop point at one of them."""
    frames = list(frames)
    frames[at] = replace(frames[at], loop=True)
    return tuple(frames)


def held(frames):
    """The frames with a last one that stays."""
    frames = list(frames)
    frames[-1] = replace(frames[-1], delay=-1)
    return tuple(frames)


def box_text(box):
    return "{},{}, {},{}".format(*box)


def animation_lines(title, sections):
    """The lines of a file. `sections` are pairs of a heading and animations."""
    yield "zorv 1"
    for line in title:
        yield "# " + line
    for heading, animations in sections:
        yield ""
        yield "# " + heading
        yield "# " + "-" * len(heading)
        for animation in animations:
            yield ""
            yield from animation.lines()
