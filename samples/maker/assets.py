"""The files of sprites and sounds: what is drawn, with which palette and in which codec."""

from . import assetfiles, drawing, effects, quay, voices
from .colours import PALETTES
from .synth import RATE

COSTUMES = ("light", "medium", "heavy", "start")
CODECS = {"LZ5": assetfiles.LZ5, "RLE8": assetfiles.RLE8, "PNG": assetfiles.PNG,
          "PCX": assetfiles.PCX}


def fighter_sprites(fighter):
    file = assetfiles.SpriteFile()
    costumes = [file.add_palette((0, number), PALETTES[fighter.FOLDER][name])
                for number, name in enumerate(COSTUMES)]
    sparks = file.add_palette((1, 0), effects.PALETTE)
    for identifier, sprite in drawing.figures(fighter):
        file.add(identifier, sprite, costumes[0], assetfiles.LZ5)
        if identifier == (10, 0):
            stance = sprite
    if fighter.FOLDER == "characters/maren":
        for identifier, sprite in effects.splashes():
            file.add(identifier, sprite, sparks, assetfiles.LZ5)
    for identifier, sprite in effects.sprites():
        file.add(identifier, sprite, sparks, assetfiles.RLE8)
    # For the choice of fighters: the stance in each costume, with the pixels that are there.
    for number, palette in enumerate(costumes):
        file.add((9100, number), stance, palette, assetfiles.LZ5)
    return file.bytes()


def quay_sprites():
    file = assetfiles.SpriteFile()
    palettes = {None: None, "scenery": file.add_palette((0, 0), quay.SCENERY),
                "far": file.add_palette((0, 1), quay.FAR)}
    for identifier, sprite, palette, codec in quay.sprites():
        file.add(identifier, sprite, palettes[palette], CODECS[codec])
    return file.bytes()


def sounds(fighter):
    return assetfiles.sound_file(RATE, list(voices.SOUNDS[fighter.FOLDER]()))
