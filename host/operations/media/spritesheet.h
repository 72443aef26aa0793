#pragma once

#include "family/assets/palettelist.h"
#include "operations/media/selection.h"

#include <QImage>
#include <QRect>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// Sprites side by side on one picture.
struct SpriteSheet
{
    /// A sprite and where it stands.
    struct Place
    {
        int row;
        QRect rect;
    };

    QImage image;  ///< indexed if all sprites are, and show the same colours
    QVector<Place> places;
    QString error;       ///< why there is no picture; empty if there is one
    QStringList broken;  ///< a line for each sprite that could not be drawn
    bool isCanceled = false;
};

/// Draws the selected sprites in rows of so many; 0 makes the sheet about square. Each column is as
/// wide as its widest sprite and each row as high as its highest. With `colors` sprites that are
/// indexed are shown in them.
SpriteSheet makeSpriteSheet(const Family::SpriteCollection& sprites, const Selection& selection,
                            int columns, const Family::PaletteColors* colors = nullptr);

}  // namespace Operations
