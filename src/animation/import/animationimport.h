#pragma once

#include "cache/spritenumber.h"
#include "code/codedoc/animations.h"
#include "editors/import/importentry.h"
#include "zorv_export.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>
#include <QVector>

namespace Zorv {

/// What an import did, as identifiers in the destination.
struct AnimationImportResult
{
    QStringList added;
    QStringList replaced;
    QStringList skipped;
    QStringList refused;  ///< removed from their list meanwhile, or not a valid name

    int count() const { return added.size() + replaced.size(); }
};

/// Copies animations of other texts into a list of animations.
///
/// Entries are processed one by one: the second of two with the same identifier conflicts with the
/// first, as with one that was there before. The source is not changed. The grammar defines what
/// belongs to an animation and how to rename it (`Animations::codeFor()`).
///
///     AnimationImport import(animations, entries, ImportConflict::Skip);
///     const AssetResult assets = bringAssets(import.sprites());
///     import.insert(animations->currentIndex(), title, assets.renumbered);
///
/// Main thread only.
class ZORV_EXPORT AnimationImport
{
public:
    /// Plans the import without changing anything. No entry may come from `destination`.
    AnimationImport(Animations* destination, const QVector<ImportEntry>& entries,
                    ImportConflict conflicts);

    /// What `insert()` will do, as far as known in advance.
    const AnimationImportResult& planned() const { return m_result; }

    /// The sprites used by the animations to import, without duplicates, in the order of the
    /// frames.
    QVector<SpriteNumber> sprites() const;

    /// Writes the animations as one undo step. New ones are inserted after the animation with the
    /// index `behind`, or at the end of the text if that is out of range; replacements go to the
    /// place of the old animation. `sprites` maps old sprite numbers of frames to new ones. Does
    /// nothing if the destination was destroyed meanwhile.
    AnimationImportResult insert(int behind, const QString& title,
                                 const QHash<SpriteNumber, SpriteNumber>& sprites);

private:
    struct Step
    {
        ImportEntry entry;
        bool isNew = true;
        QPersistentModelIndex replaced;  ///< in the destination; invalid for a new one
    };
    void plan(const QVector<ImportEntry>& entries, ImportConflict conflicts);
    void refuse(const QString& identifier);

    QPointer<Animations> m_destination;
    QVector<Step> m_steps;
    AnimationImportResult m_result;
};

}  // namespace Zorv
