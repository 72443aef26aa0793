#pragma once

#include "core/cachedprojectfile.h"
#include "core/organizableobject.h"

#include <QVariant>

#include <functional>
#include <memory>

namespace Zorv {

class Sound;
struct SoundSample;

/// The sounds of a project: a list that can be rearranged, and a file. Implemented by the
/// host. Main thread only.
class ZORV_EXPORT Sounds : public OrganizableObject, public CachedProjectFile
{
    Q_OBJECT

public:
    ~Sounds() override;

    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sound* sound(int index) const = 0;

    /// Makes a row current, in `currentIndex`; one outside of the list means that none is.
    virtual void setCurrent(int index) = 0;

    /// Puts a sound in front of a row; at the end for a row beyond it. An empty identifier takes a
    /// free one.
    virtual Sound* add(int row, const QVariant& id, const SoundSample& sample) = 0;

    /// Packs samples in any thread, before they are stored: as long as the result lives, `add()`
    /// and `Sound::setSample()` take these bytes, which may not be a copy, and cost little. It may
    /// outlive the list. By default there is nothing to be done, and it is empty.
    virtual std::function<std::shared_ptr<const void>(const QByteArray& samples)> packer() const;

    /// The first row from `from` on with an identifier; negative if there is none.
    virtual int find(int from, const QVariant& id) const = 0;

    /// True if a sound of the list could have an identifier. By default all can be.
    virtual bool canName(const QVariant& id) const;

    /// Opens and closes one step of undo; the same for list and file.
    void beginChange(const QString& title) override = 0;
    void endChange() override = 0;

    int currentIndex = -1;  ///< the current row

protected:
    explicit Sounds(StreamCache* cache = nullptr);
};

}  // namespace Zorv
