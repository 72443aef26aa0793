#pragma once

#include <QByteArray>
#include <QString>

namespace Zorv {
class AnimationCode;
}

namespace Family {
class FrameComposer;
}  // namespace Family

namespace Operations {

/// An animated GIF of an animation, as it is played: each frame as the composer draws it, for its
/// time.
///
/// It is shown over and over from its first frame, or once if it ends in a frame that stays. Empty,
/// with `error`, if there is nothing to show, a sprite is not there, or it would be too large.
QByteArray animationGif(const Zorv::AnimationCode& animation, Family::FrameComposer* composer,
                        QString* error);

/// The one sprite file that stands beside a code file; empty, with `error`, if there are none or
/// several.
QString spritesBeside(const QString& codeFile, QString* error);

}  // namespace Operations
