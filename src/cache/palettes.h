#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QAbstractListModel>

namespace Zorv {

class Palette;
class Sprites;

/// The palettes of a sprite collection, as a list. Implemented by the host. Main thread only.
///
/// An identifier is a host's value, shown as the property "Identifier". `count()`, the current
/// row and the rows of the model are true when an operation returns.
class ZORV_EXPORT Palettes : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    virtual int count() const = 0;

    /// Makes a row current, in `currentIndex`.
    virtual void setCurrent(int row) = 0;

    /// Null for a row outside of the list.
    virtual Palette* palette(int row) const = 0;

    /// Puts a palette in front of a row, or behind the others. With `askId` the identifier is only
    /// a wish: the host takes a free one if it is taken. Null if it could not be added.
    virtual Palette* insert(int row, const RGBA (&colors)[256], const QVariant& id, bool askId) = 0;
    virtual Palette* addPalette(const RGBA (&colors)[256], const QVariant& id, bool askId) = 0;

    virtual void remove(int row) = 0;

    /// The first row from `from` on with an identifier; negative if there is none.
    virtual int find(int from, const QVariant& id) const = 0;

    /// Removes all palettes, or those that no sprite uses, or those that repeat an earlier one,
    /// whose sprites then use that one.
    virtual void clear() = 0;
    virtual void removeUnused() = 0;
    virtual void removeDuplicates() = 0;

    /// Bracket several changes into one step of undo.
    virtual void beginUpdate(const QString& title) = 0;
    virtual void endUpdate() = 0;

    /// The table of what stands in for what, a row each; null if the host has none. The list's.
    virtual QAbstractItemModel* remapModel() = 0;

    /// The collection whose palettes these are.
    virtual Sprites* sprites() const = 0;

    int currentIndex = 0;  ///< the current row; `count()` or beyond if none is

signals:
    /// Palettes have changed; `count` is true if rows came or went.
    void palChanged(bool count);
};

}  // namespace Zorv
