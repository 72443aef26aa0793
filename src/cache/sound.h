#pragma once

#include "code/codedoc/propertyitem.h"
#include "media/soundsample.h"
#include "zorv_export.h"

#include <functional>

namespace Zorv {

/// One sound of a collection. Implemented by the host. Main thread only.
class ZORV_EXPORT Sound : public PropertyItem
{
public:
    ~Sound() override;

    /// The samples, decompressed on demand; empty if they are damaged.
    virtual QByteArray sampleData() const = 0;

    /// Returns a function that decompresses the current samples in any thread, even after the sound
    /// has changed or been deleted. By default it returns the result of `sampleData()`, which is
    /// called at once.
    virtual std::function<QByteArray()> sampleReader() const;

    /// The format of the samples, without decompressing them.
    virtual SampleInfo sampleInfo() const = 0;

    /// Replaces the samples with PCM bytes in the given format.
    virtual void setSample(const SampleInfo& info, const QByteArray& data) = 0;

    /// Inserts a copy directly behind this sound.
    virtual void duplicate() = 0;
};

}  // namespace Zorv
