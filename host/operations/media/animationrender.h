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

/// Draws only the sprite; boxes would have the colours of the host's settings.
Family::FrameStyle stageStyle();

/// Renders a frame of an animation, counted from 0. The picture covers the area of all frames, so
/// that the pictures of an animation align. Its text `axis` holds the axis, as in exported sprite
/// files. Indexed if possible. Null, with `error`, if there is no such frame, or a part of it
/// cannot be drawn.
QImage renderFrame(const Family::AnimationNode& animation, int frame,
                   Family::FrameComposer* composer, QString* error);

/// All frames of an animation side by side in one picture.
struct AnimationSheet
{
    QImage image;  ///< indexed if all frames are, with the same colours

    /// The position, axis, time and boxes of each frame, as a JSON object in UTF-8.
    QByteArray json;
};

/// Draws the frames of an animation in rows of `columns`; 0 makes the sheet about square. All cells
/// have the same size and the axis at the same place. The JSON calls the picture `imageName`.
/// Returns no image, but `error`, if there are no frames or one cannot be drawn completely.
AnimationSheet renderSheet(const Family::AnimationNode& animation, int columns,
                           const QString& imageName, Family::FrameComposer* composer,
                           QString* error);

}  // namespace Operations
