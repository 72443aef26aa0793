#!/usr/bin/env python3
"""Makes those files of the sample game that follow from tables: animations, the moves of normal
attacks, palettes, sprites, sounds and the music. What is not named here is written by hand.

The same tables give the same bytes. usage: make_samples.py [FOLDER]
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from maker import assets, basics, colours, iwao, maren, music  # noqa: E402
from maker.animation import animation_lines  # noqa: E402
from maker.attack import move_lines  # noqa: E402
from maker.scenery import SCENERY  # noqa: E402

def code(lines):
    """The bytes of a code file."""
    return "".join(line + "\r\n" for line in lines).encode()


def title(fighter, name, text):
    return [f"{fighter.NAME}: {text}", fighter.REMARKS[name]]


def fighter_files(fighter):
    body = fighter.BODY
    yield "basics.anim", code(animation_lines(
        title(fighter, "basics", f"stance, ways, guards and blows. {body.height} pixels high."),
        [("Stance", basics.stance(body, fighter.PACE)),
         ("Ways", basics.ways(body, fighter.PACE)),
         ("Guards", basics.guards(body)),
         ("Blows", basics.blows(body, fighter.WEIGHT)),
         ("Falls", basics.falls(body, fighter.WEIGHT)),
         ("Before and after the fight: nothing can be hit", fighter.poses())]))
    yield "attacks.anim", code(animation_lines(
        title(fighter, "attacks", "normal attacks. Each ends with a frame that stays."),
        [(heading, [attack.animation(body) for attack in rows])
         for heading, rows in fighter.ATTACKS]))
    yield "specials.anim", code(animation_lines(
        title(fighter, "specials", "special attacks. The strengths of one share their sprites."),
        fighter.specials()))
    yield "moves.code", code(move_lines(
        title(fighter, "moves", "normal attacks. Ticks are those of the animations."),
        fighter.ATTACKS, body))


def files():
    for fighter in (maren, iwao):
        for name, data in fighter_files(fighter):
            yield f"{fighter.FOLDER}/{name}", data
        for name, palette in colours.PALETTES[fighter.FOLDER].items():
            yield f"{fighter.FOLDER}/palettes/{name}.act", colours.act(palette)
        name = Path(fighter.FOLDER).name
        yield f"{fighter.FOLDER}/{name}.sprites", assets.fighter_sprites(fighter)
        yield f"{fighter.FOLDER}/{name}.sounds", assets.sounds(fighter)
    yield "stages/quay/quay.sprites", assets.quay_sprites()
    yield "stages/quay/scenery.anim", code(animation_lines(
        ["The old quay: what moves. Гавань никогда не спит."], SCENERY))
    yield "stages/quay/quay.wav", music.wave()


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent / "arena"
    for name, data in files():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


if __name__ == "__main__":
    main()
