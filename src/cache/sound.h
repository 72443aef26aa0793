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

    /// The samples, unpacked when they are asked for; empty if they are broken.
    virtual QByteArray sampleData() const = 0;

    /// Unpacks the samples as they are now, in any thread, whatever becomes of the sound meanwhile.
    /// By default it gives `sampleData()`, which is called at once.
    virtual std::function<QByteArray()> sampleReader() const;

    /// The form of the samples, without unpacking.
    virtual SampleInfo sampleInfo() const = 0;

    /// Replaces the samples: PCM bytes of that form.
    virtual void setSample(const SampleInfo& info, const QByteArray& data) = 0;

    /// Appends a copy right behind this sound.
    virtual void duplicate() = 0;
};

}  // namespace Zorv
