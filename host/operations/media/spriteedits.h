#pragma once

#include "operations/media/mediaresult.h"

#include <QPoint>
#include <QSize>
#include <QVector>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

// Changes of several sprites of a collection, each of them one step of undo. Sprites are told by
// their rows. One whose record in the file is broken is left as it is, and told as a warning;
// `done` counts those that are as they were asked for.

/// From where an axis is told: a place of the image, or where the axis is now.
enum class AxisBase {
    TopLeft,
    Top,
    TopRight,
    Left,
    Middle,
    Right,
    BottomLeft,
    Bottom,  ///< the middle of the bottom edge: where feet stand
    BottomRight,
    Current
};

/// Reads what the command line calls a base: "bottom", "top-left", "current". False, and no
/// change, for any other text.
bool readAxisBase(const QString& name, AxisBase* base);

/// The pixel of an image at a base that is none but `Current`: rows and columns of pixels are
/// counted from 0, and of the two in the middle it is the one further right, or further down.
QPoint axisPlace(AxisBase base, const QSize& size);

/// Puts the axis of each sprite at a place, moved by an offset. If one would leave its range
/// (-32768 to 32767), nothing is changed.
MediaResult setAxes(Family::SpriteCollection* sprites, const QVector<int>& rows, AxisBase base,
                    QPoint offset);

/// Which identifiers sprites get.
struct Renumbering
{
    int group = 0;         ///< the group of all of them,
    bool isShift = false;  ///< or what is added to the group of each
    int number = -1;       ///< of the first one, the others count on; negative to keep the numbers
};

/// Gives sprites other identifiers. If one would leave its range (0 to 65535), or be that of
/// another sprite, nothing is changed. Frames that show them are text, and stay.
MediaResult renumberSprites(Family::SpriteCollection* sprites, const QVector<int>& rows,
                            const Renumbering& renumbering);

/// What pixels keep when their sprite gets another palette.
enum class PixelsKeep {
    Indices,  ///< colours change; a sprite of true colour has no indices, and is told
    Looks     ///< they take the nearest of the new colours
};

/// Gives sprites another palette: that of an identifier, or of a palette file, which is added
/// unless the collection has it.
MediaResult recolorSprites(Family::SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& palette, PixelsKeep keep);

/// What to tell of broken sprites that were left: a line each.
QStringList brokenSprites(const Family::SpriteCollection& sprites, const QVector<int>& rows);

}  // namespace Operations
