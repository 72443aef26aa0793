#pragma once

#include "editors/import/importentry.h"
#include "zorv_export.h"

#include <QByteArray>
#include <QHash>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

namespace Zorv {

class Palette;
class PixelCopy;
class Sprite;
class Sprites;

/// The result of an import of sprites.
struct SpriteImportResult
{
    bool isGivenUp = false;  ///< cancelled: everything was undone
    int added = 0;
    int replaced = 0;
    int skipped = 0;
    int refused = 0;     ///< invalid sprite names
    int palettes = 0;    ///< palettes that were new to the destination
    QStringList errors;  ///< why others were left out, one line each for the user

    int count() const { return added + replaced; }
};

/// Imports sprites of other collections with their palettes and axes, as one undo step.
///
/// Entries are taken in order: if two have the same identifier, the second one conflicts with the
/// first as with a sprite that was there before. New sprites go behind the others. A palette with
/// colours that the destination already has is not added again. Pixels are read on worker threads.
/// Events are processed meanwhile, so a source may be closed: what was not read yet is left out.
/// The destination has an open change during this.
class ZORV_EXPORT SpriteImport
{
public:
    /// Only plans. `destination` must not be the list of an entry.
    SpriteImport(Sprites* destination, const QVector<ImportEntry>& entries,
                 ImportConflict conflicts);

    /// True if the import will replace the sprite of this row of the destination.
    bool replaces(int row) const;

    /// Runs the import with a progress display. If the user cancels it, nothing is imported. Call
    /// it only once.
    SpriteImportResult run(const QString& title);

private:
    struct Step
    {
        ImportEntry entry;
        bool isNew = true;
        QPersistentModelIndex replaced;  ///< row of the destination, if it is not new
    };

    /// A sprite to import, without its name.
    struct Arrival
    {
        std::shared_ptr<PixelCopy> pixels;  ///< null if the sprite is gone
        bool isWhole = false;
        QPoint axis;
        QByteArray colors;  ///< all 256 palette entries; empty without a palette
        QVariant paletteId;
    };

    void plan(const QVector<ImportEntry>& entries, ImportConflict conflicts);
    Arrival read(int step) const;
    void take(int step, const Arrival& arrival);
    bool put(const Step& step, const Arrival& arrival);
    Palette* palette(const Arrival& arrival);
    void keep(const QByteArray& colors, int row);
    void removeEmpty(int first);

    QPointer<Sprites> m_destination;
    QVector<Step> m_steps;
    QHash<QByteArray, int> m_palettes;  // rows of the destination by all colours,
    QHash<QByteArray, int> m_alike;     // and by colours except the alpha of entry 0
    int m_addedCount = 0;
    QVector<int> m_empty;  // indices of added sprites that did not get their pixels
    SpriteImportResult m_result;
};

}  // namespace Zorv
