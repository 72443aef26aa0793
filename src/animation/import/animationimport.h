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

/// What an import did, by the identifiers of the destination.
struct AnimationImportResult
{
    QStringList added;
    QStringList replaced;
    QStringList skipped;
    QStringList refused;  ///< gone from their list, or an identifier that cannot name an animation

    int count() const { return added.size() + replaced.size(); }
};

/// Takes animations of other texts over into a list of animations.
///
/// Entries are taken one by one: of two with the same identifier the second one meets the first
/// as it would meet one that was there before. The source is not changed. The grammar says what
/// belongs to an animation and how it is called otherwise (`Animations::codeFor()`).
///
///     AnimationImport import(animations, entries, ImportConflict::Skip);
///     const AssetResult assets = bringAssets(import.sprites());
///     import.insert(animations->currentIndex(), title, assets.renumbered);
///
/// Main thread only.
class ZORV_EXPORT AnimationImport
{
public:
    /// Plans; nothing is changed. `destination` must not be the list of an entry.
    AnimationImport(Animations* destination, const QVector<ImportEntry>& entries,
                    ImportConflict conflicts);

    /// What `insert()` will do, as far as it is known.
    const AnimationImportResult& planned() const { return m_result; }

    /// The sprites that the frames of the animations that will come show, each once, in the order
    /// of the frames.
    QVector<SpriteNumber> sprites() const;

    /// Writes the animations, as one step of undo. New ones stand behind the lines of the one at
    /// `behind`, or at the end of the text for a place outside of the list; those that replace one
    /// stand in its place. A frame whose sprite is a key of `sprites` shows its value.
    /// Nothing comes if the destination has gone meanwhile.
    AnimationImportResult insert(int behind, const QString& title,
                                 const QHash<SpriteNumber, SpriteNumber>& sprites);

private:
    struct Step
    {
        ImportEntry entry;
        bool isNew = true;
        QPersistentModelIndex replaced;  ///< of the destination, for one that is not new
    };
    void plan(const QVector<ImportEntry>& entries, ImportConflict conflicts);
    void refuse(const QString& identifier);

    QPointer<Animations> m_destination;
    QVector<Step> m_steps;
    AnimationImportResult m_result;
};

}  // namespace Zorv
