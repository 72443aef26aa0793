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

/// An animated GIF of an animation as it plays: each frame as the composer draws it, for its
/// duration.
///
/// It loops from the first frame, or plays once if the last frame stays. Empty, with `error`, if
/// there is nothing to show, a sprite is missing, or the GIF would be too large.
QByteArray animationGif(const Zorv::AnimationCode& animation, Family::FrameComposer* composer,
                        QString* error);

/// The only sprite file beside a code file. Empty, with `error`, if there are none or several.
QString spritesBeside(const QString& codeFile, QString* error);

}  // namespace Operations
