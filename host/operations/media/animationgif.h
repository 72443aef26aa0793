#pragma once

#include "assets/palettelist.h"

#include <QByteArray>

namespace Zorv {
class AnimationCode;
}

namespace Family {

class SpriteCollection;

/// An animated GIF of an animation, as it is played: its sprites by their axes, with the offset,
/// flip, scale, angle and time of each frame.
///
/// It is shown over and over from its first frame, or once if it ends in a frame that stays. With
/// `colors` sprites that are indexed are shown in them. Empty, with `error`, if there is nothing to
/// show, or a sprite is not there.
QByteArray animationGif(const Zorv::AnimationCode& animation, const SpriteCollection& sprites,
                        const PaletteColors* colors, QString* error);

/// The one sprite file that stands beside a code file; empty, with `error`, if there are none or
/// several.
QString spritesBeside(const QString& codeFile, QString* error);

}  // namespace Family
