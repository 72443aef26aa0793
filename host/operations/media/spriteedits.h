#pragma once

#include "operations/media/mediaresult.h"

#include <QPoint>
#include <QSize>
#include <QVector>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

// Changes to several sprites of a collection. Each is one undo step. Sprites are identified by row.
// A sprite whose record in the file is broken is left unchanged, with a warning. `done` counts the
// sprites that are in the requested state afterwards.

/// The origin for setting an axis: a point of the image, or the current axis.
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

/// Parses the command line's name of a base: "bottom", "top-left", "current". Returns false and
/// changes nothing for any other text.
bool readAxisBase(const QString& name, AxisBase* base);

/// The pixel of an image at a base other than `Current`. Rows and columns are counted from 0. With
/// two middle pixels, takes the right or lower one.
QPoint axisPlace(AxisBase base, const QSize& size);

/// Sets the axis of each sprite to a base plus an offset. If one would leave its range (-32768 to
/// 32767), nothing is changed.
MediaResult setAxes(Family::SpriteCollection* sprites, const QVector<int>& rows, AxisBase base,
                    QPoint offset);

/// The new identifiers of sprites.
struct Renumbering
{
    int group = 0;         ///< the group for all of them
    bool isShift = false;  ///< true: `group` is added to the group of each
    int number = -1;       ///< of the first one, the others count up; negative to keep the numbers
};

/// Renumbers sprites. If an identifier would leave its range (0 to 65535) or already belongs to
/// another sprite, nothing is changed. Frames that show the sprites are text and are not updated.
MediaResult renumberSprites(Family::SpriteCollection* sprites, const QVector<int>& rows,
                            const Renumbering& renumbering);

/// What to preserve when a sprite gets another palette.
enum class PixelsKeep {
    Indices,  ///< colours change; a true-colour sprite has no indices and is reported
    Looks     ///< pixels are mapped to the nearest new colours
};

/// Assigns another palette to sprites: `palette` is an identifier, or a palette file, which is
/// added unless the collection has it.
MediaResult recolorSprites(Family::SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& palette, PixelsKeep keep);

/// One warning line for each broken sprite that was left unchanged.
QStringList brokenSprites(const Family::SpriteCollection& sprites, const QVector<int>& rows);

}  // namespace Operations
