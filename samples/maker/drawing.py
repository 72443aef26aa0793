"""All sprites of a fighter, from the animations and the tables of poses."""

from . import basics, iwao_poses, maren_poses, strikes
from .figure import draw
from .iwao_look import Iwao
from .maren_look import Maren
from .poses import COMMON, pose_of

OWN = {"characters/maren": maren_poses, "characters/iwao": iwao_poses}
LOOKS = {"characters/maren": Maren, "characters/iwao": Iwao}


def animations(fighter):
    body = fighter.BODY
    yield from basics.stance(body, fighter.PACE)
    yield from basics.ways(body, fighter.PACE)
    yield from basics.guards(body)
    yield from basics.blows(body, fighter.WEIGHT)
    yield from basics.falls(body, fighter.WEIGHT)
    yield from fighter.poses()
    for _, rows in fighter.ATTACKS:
        yield from (attack.animation(body) for attack in rows)
    for _, made in fighter.specials():
        yield from made


def pose_tables(fighter):
    """The rows of all sprites by their groups."""
    own = OWN[fighter.FOLDER]
    tables = dict(COMMON)
    tables.update(own.SPECIALS)
    for _, attacks in fighter.ATTACKS:
        for attack in attacks:
            tables[attack.number] = strikes.specs(fighter.BODY, attack, own.STRIKES[attack.name])
    return tables


def first_frames(fighter):
    """The frame that shows each sprite first: its boxes are those that the figure fills."""
    frames = {}
    for animation in animations(fighter):
        for frame in animation.frames:
            frames.setdefault((frame.group, frame.number), frame)
    return dict(sorted(frames.items()))


def figures(fighter):
    """Pairs of an identifier and a sprite. Equal poses are drawn once."""
    tables = pose_tables(fighter)
    drawn = {}
    for (group, number), frame in first_frames(fighter).items():
        look = LOOKS[fighter.FOLDER]
        pose = pose_of(fighter.BODY, frame, tables[group][number], look.build)
        key = repr(pose)
        if key not in drawn:
            drawn[key] = draw(pose, look)
        yield (group, number), drawn[key]
