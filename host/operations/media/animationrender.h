#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Family {
class AnimationNode;
class FrameComposer;
struct FrameStyle;
}  // namespace Family

namespace Operations {

/// Nothing but the sprite, with the colours that boxes have in the host's settings.
Family::FrameStyle stageStyle();

/// A frame of an animation, counted from 0, as a picture. It covers the area of all frames, so
/// that the pictures of an animation lie upon each other; where the axis is on it stands in its
/// text `axis`, as in the files that sprites are written to. Indexed where that is enough. Null,
/// with `error`, if there is no such frame, or it cannot be drawn as a whole.
QImage renderFrame(const Family::AnimationNode& animation, int frame,
                   Family::FrameComposer* composer, QString* error);

/// All frames of an animation side by side on one picture.
struct AnimationSheet
{
    QImage image;  ///< indexed if all frames are, with the same colours

    /// Where each frame stands, its axis, time and boxes, as an object of JSON in UTF-8.
    QByteArray json;
};

/// Draws the frames of an animation in rows of so many; 0 makes the sheet about square. All cells
/// have the same size, with the axis at the same place. `imageName` is what the JSON calls the
/// picture. Without an image, with `error`, if a frame cannot be drawn as a whole, or there is
/// none.
AnimationSheet renderSheet(const Family::AnimationNode& animation, int columns,
                           const QString& imageName, Family::FrameComposer* composer,
                           QString* error);

}  // namespace Operations
