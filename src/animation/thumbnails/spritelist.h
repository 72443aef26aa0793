#pragma once

#include "cache/spritenumber.h"
#include "editors/framework/rowlist.h"
#include "media/tools/colorblindness.h"

#include <memory>

namespace Zorv {

class SpriteListPrivate;
class SpriteUses;
class Sprites;

/// The sprites of a collection as a grid of thumbnails with names.
///
/// Decodes only visible sprites; a broken sprite shows "!". Selected sprites can be dragged; see
/// `draggedSprites()`. Main thread only.
class ZORV_EXPORT SpriteList : public RowList
{
    Q_OBJECT

public:
    explicit SpriteList(QWidget* parent = nullptr);
    ~SpriteList() override;

    /// Null for none. Releases a collection that is destroyed.
    void setSprites(Sprites* sprites);
    Sprites* sprites() const;

    /// Marks sprites that no frame uses; null for no marks. Not owned; may be destroyed.
    void setUses(SpriteUses* uses);

    /// Simulates how another person sees the colours.
    void setColorSight(const ColorSight& sight);

    /// True if the sprite of this row is marked as unused.
    bool isMarked(int row) const;

    /// The numbers of the selected sprites, or of all sprites, in the order of the rows. Leaves out
    /// sprites without a number.
    QVector<SpriteNumber> selectedSprites() const;
    QVector<SpriteNumber> allSprites() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

    /// Shows tool tips that explain the marks.
    bool viewportEvent(QEvent* event) override;

private:
    void updateGrid();

    std::unique_ptr<SpriteListPrivate> d;
};

}  // namespace Zorv
