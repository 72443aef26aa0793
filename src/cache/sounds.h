#pragma once

#include "core/cachedprojectfile.h"
#include "core/organizableobject.h"

#include <QVariant>

#include <functional>
#include <memory>

namespace Zorv {

class Sound;
struct SoundSample;

/// The sounds of a project: a sortable list and a file. Implemented by the host. Main thread only.
class ZORV_EXPORT Sounds : public OrganizableObject, public CachedProjectFile
{
    Q_OBJECT

public:
    ~Sounds() override;

    virtual unsigned count() const = 0;

    /// Null for an index outside of the list.
    virtual Sound* sound(int index) const = 0;

    /// Makes a row current; see `currentIndex`. An index outside of the list means none.
    virtual void setCurrent(int index) = 0;

    /// Inserts a sound in front of a row, or at the end if `row` is beyond it. An empty identifier
    /// is replaced by a free one.
    virtual Sound* add(int row, const QVariant& id, const SoundSample& sample) = 0;

    /// Returns a function that compresses samples in any thread, before they are stored. While its
    /// result exists, `add()` and `Sound::setSample()` are cheap for these bytes; they must be the
    /// same array, not a copy. The function may outlive the list. By default it is empty: there is
    /// nothing to prepare.
    virtual std::function<std::shared_ptr<const void>(const QByteArray& samples)> packer() const;

    /// The first row, starting at `from`, with an identifier; negative if there is none.
    virtual int find(int from, const QVariant& id) const = 0;

    /// True if a sound in this list could have this identifier. Always true by default.
    virtual bool canName(const QVariant& id) const;

    /// Start and end one undo step. List and file share it.
    void beginChange(const QString& title) override = 0;
    void endChange() override = 0;

    int currentIndex = -1;  ///< the current row

protected:
    explicit Sounds(StreamCache* cache = nullptr);
};

}  // namespace Zorv
