#pragma once

#include "family/assets/palettelist.h"
#include "operations/media/selection.h"

#include <QImage>
#include <QRect>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Sprites side by side in one picture.
struct SpriteSheet
{
    /// A sprite and its position.
    struct Place
    {
        int row;
        QRect rect;
    };

    QImage image;  ///< indexed if all sprites are, with the same colours
    QVector<Place> places;
    QString error;       ///< why there is no picture; empty on success
    QStringList broken;  ///< one line for each sprite that could not be drawn
    bool isCanceled = false;
};

/// Draws the selected sprites in rows of `columns`; 0 makes the sheet about square. Each column is
/// as wide as its widest sprite, each row as high as its highest. With `colors`, indexed sprites
/// are drawn in those.
SpriteSheet makeSpriteSheet(const Family::SpriteCollection& sprites, const Selection& selection,
                            int columns, const Family::PaletteColors* colors = nullptr);

}  // namespace Operations
