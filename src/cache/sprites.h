#pragma once

#include "cache/preparedimage.h"
#include "core/cachedprojectfile.h"
#include "core/organizableobject.h"

namespace Zorv {

class Palettes;
class Sprite;

/// The sprites of a project: a list that can be rearranged, and a file.
///
/// Implemented by the host. Pixels are decoded when they are shown. A record is valid until the
/// collection signals a change. Main thread only.
class ZORV_EXPORT Sprites : public OrganizableObject, public CachedProjectFile
{
    Q_OBJECT

public:
    ~Sprites() override;

    /// To be called once after a batch of additions, before `count()` is asked again.
    virtual void refresh() = 0;

    virtual void removeSprite(int index) = 0;

    /// Makes a row current, in `currentIndex`; one outside of the list means that none is.
    virtual void setCurrent(int index) = 0;

    /// The palettes; never null. The collection's.
    virtual Palettes* palettes() const = 0;

    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sprite* sprite(int index) const = 0;

    /// Appends an empty sprite; `refresh()` shows it.
    virtual Sprite* addSprite() = 0;

    /// The first row from `from` on with an "Identifier"; negative if there is none. Looks at one
    /// after the other; a host that knows better overrides it.
    virtual int find(int from, const QVariant& id) const;

    /// True if a sprite of the list could have an identifier. By default all can be.
    virtual bool canName(const QVariant& id) const;

    /// What makes images ready for `Sprite::setPrepared()`, so that the dear part of adding many
    /// can be done on other threads. By default it does nothing beforehand.
    virtual ImagePreparer imagePreparer() const;

    /// Opens and closes one step of undo; the same for list and file.
    void beginChange(const QString& title) override = 0;
    void endChange() override = 0;

    int currentIndex = -1;  ///< the current row

signals:
    /// The collection is about to die, and is still whole: whoever shows sprites lets go of them.
    void closing();

protected:
    explicit Sprites(StreamCache* cache = nullptr);
};

}  // namespace Zorv
