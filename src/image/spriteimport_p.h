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

/// What an import of sprites did.
struct SpriteImportResult
{
    bool isGivenUp = false;  ///< all was taken back
    int added = 0;
    int replaced = 0;
    int skipped = 0;
    int refused = 0;     ///< of a name that no sprite can have
    int palettes = 0;    ///< that the destination did not have
    QStringList errors;  ///< why others were left out, a line each for the person

    int count() const { return added + replaced; }
};

/// Sprites of other collections on their way into one, with their palettes and axes, as one step of
/// undo.
///
/// Entries are taken one by one: of two with the same identifier the second one meets the first as
/// it would meet one that was there before. New sprites come behind the others. A palette whose
/// colours the destination has is not added again. Pixels are read on other threads; events are
/// processed meanwhile, so a source may go: what was not read of it is left out. The destination
/// has an open change then.
class ZORV_EXPORT SpriteImport
{
public:
    /// Plans; nothing is changed. `destination` must not be the list of an entry.
    SpriteImport(Sprites* destination, const QVector<ImportEntry>& entries,
                 ImportConflict conflicts);

    /// True if the sprite of a row of the destination will be another one.
    bool replaces(int row) const;

    /// With progress, by which the person can give up: nothing comes then. Once.
    SpriteImportResult run(const QString& title);

private:
    struct Step
    {
        ImportEntry entry;
        bool isNew = true;
        QPersistentModelIndex replaced;  ///< of the destination, for one that is not new
    };

    /// All of a sprite but its name.
    struct Arrival
    {
        std::shared_ptr<PixelCopy> pixels;  ///< null if the sprite has gone
        bool isWhole = false;
        QPoint axis;
        QByteArray colors;  ///< of its palette, all 256; empty without one
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
    QHash<QByteArray, int> m_palettes;  // rows of the destination by their colours,
    QHash<QByteArray, int> m_alike;     // and by these without the alpha of entry 0
    int m_addedCount = 0;
    QVector<int> m_empty;  // of those that were added, without the pixels that they were to have
    SpriteImportResult m_result;
};

}  // namespace Zorv
