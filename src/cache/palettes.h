#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QAbstractListModel>

namespace Zorv {

class Palette;
class Sprites;

/// The palettes of a sprite collection as a list. Implemented by the host. Main thread only.
///
/// The host defines the type of the identifiers, shown as the property "Identifier". When an
/// operation returns, `count()`, the current row and the rows of the model are up to date.
class ZORV_EXPORT Palettes : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    virtual int count() const = 0;

    /// Makes a row current; see `currentIndex`.
    virtual void setCurrent(int row) = 0;

    /// Null for a row outside of the list.
    virtual Palette* palette(int row) const = 0;

    /// Insert a palette in front of a row, or append it. With `askId` the identifier is only a
    /// suggestion: the host chooses a free one if it is taken. Null on failure.
    virtual Palette* insert(int row, const RGBA (&colors)[256], const QVariant& id, bool askId) = 0;
    virtual Palette* addPalette(const RGBA (&colors)[256], const QVariant& id, bool askId) = 0;

    virtual void remove(int row) = 0;

    /// The first row, starting at `from`, with an identifier; negative if there is none.
    virtual int find(int from, const QVariant& id) const = 0;

    /// Remove all palettes; those that no sprite uses; or duplicates of an earlier palette, which
    /// their sprites then use instead.
    virtual void clear() = 0;
    virtual void removeUnused() = 0;
    virtual void removeDuplicates() = 0;

    /// Combine several changes into one undo step.
    virtual void beginUpdate(const QString& title) = 0;
    virtual void endUpdate() = 0;

    /// The table of palette replacements, one per row; null if the host has none. Owned by the
    /// list.
    virtual QAbstractItemModel* remapModel() = 0;

    /// The collection that these palettes belong to.
    virtual Sprites* sprites() const = 0;

    int currentIndex = 0;  ///< the current row; at least `count()` if there is none

signals:
    /// Palettes have changed; `count` is true if rows came or went.
    void palChanged(bool count);
};

}  // namespace Zorv
