#pragma once

#include "cache/preparedimage.h"
#include "core/cachedprojectfile.h"
#include "core/organizableobject.h"

namespace Zorv {

class Palettes;
class Sprite;

/// The sprites of a project: a sortable list and a file.
///
/// Implemented by the host. Pixels are decoded when they are shown. A pointer to a sprite is valid
/// until the collection signals a change. Main thread only.
class ZORV_EXPORT Sprites : public OrganizableObject, public CachedProjectFile
{
    Q_OBJECT

public:
    ~Sprites() override;

    /// Call this once after a batch of additions, before the next `count()`.
    virtual void refresh() = 0;

    virtual void removeSprite(int index) = 0;

    /// Makes a row current; see `currentIndex`. An index outside of the list means none.
    virtual void setCurrent(int index) = 0;

    /// The palettes; never null. Owned by the collection.
    virtual Palettes* palettes() const = 0;

    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sprite* sprite(int index) const = 0;

    /// Appends an empty sprite. It becomes visible with `refresh()`.
    virtual Sprite* addSprite() = 0;

    /// The first row, starting at `from`, with this "Identifier"; negative if there is none. The
    /// default is a linear search; a host can override it with something faster.
    virtual int find(int from, const QVariant& id) const;

    /// True if a sprite in this list could have this identifier. Always true by default.
    virtual bool canName(const QVariant& id) const;

    /// Returns a function that prepares images for `Sprite::setPrepared()`, so that the expensive
    /// part of adding many images can run in other threads. By default nothing is prepared.
    virtual ImagePreparer imagePreparer() const;

    /// Start and end one undo step. List and file share it.
    void beginChange(const QString& title) override = 0;
    void endChange() override = 0;

    int currentIndex = -1;  ///< the current row

signals:
    /// The collection is about to be destroyed but is still complete. Receivers that show sprites
    /// must release them.
    void closing();

protected:
    explicit Sprites(StreamCache* cache = nullptr);
};

}  // namespace Zorv
