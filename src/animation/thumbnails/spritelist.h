#pragma once

#include "cache/spritenumber.h"
#include "editors/framework/rowlist.h"
#include "media/tools/colorblindness.h"

#include <memory>

namespace Zorv {

class SpriteListPrivate;
class SpriteUses;
class Sprites;

/// The sprites of a collection as a grid of small pictures with their names.
///
/// Only what is in sight is decoded; a sprite that is broken shows "!". The selected sprites can be
/// dragged, as `draggedSprites()` reads them. Main thread only.
class ZORV_EXPORT SpriteList : public RowList
{
    Q_OBJECT

public:
    explicit SpriteList(QWidget* parent = nullptr);
    ~SpriteList() override;

    /// Null for none. A collection that dies is let go of.
    void setSprites(Sprites* sprites);
    Sprites* sprites() const;

    /// Marks the sprites that no frame shows; null for no marks. Not owned, and may die.
    void setUses(SpriteUses* uses);

    /// Shows the pictures as somebody else sees them.
    void setColorSight(const ColorSight& sight);

    /// True for a row that has the mark.
    bool isMarked(int row) const;

    /// The numbers of the selected sprites, or of all, in the order of their rows. Sprites without
    /// a number are left out.
    QVector<SpriteNumber> selectedSprites() const;
    QVector<SpriteNumber> allSprites() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

    /// Tool tips tell what the marks mean.
    bool viewportEvent(QEvent* event) override;

private:
    void updateGrid();

    std::unique_ptr<SpriteListPrivate> d;
};

}  // namespace Zorv
