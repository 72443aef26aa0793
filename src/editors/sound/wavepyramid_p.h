#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QVector>

#include <memory>

namespace Zorv {

/// Minimum and maximum of any part of a sound, in time independent of the part's length. It shares
/// the sound's data. Can be built in any thread; immutable.
class ZORV_EXPORT WavePyramid
{
public:
    /// Signed values with the bits of the sound.
    struct Extremes
    {
        qint32 least = 0;
        qint32 greatest = 0;
    };

    explicit WavePyramid(const SoundSample& sound);

    int frames() const { return m_frames; }

    /// The value of a channel; 0 if it does not exist.
    qint32 value(int frame, int channel) const;

    /// For the frames from `first` to before `end`, clamped to existing ones; both 0 for an empty
    /// range.
    Extremes extremes(int channel, int first, int end) const;

private:
    void buildBase();
    void buildLevels();
    void widen(Extremes* found, int channel, int first, int end) const;

    SampleInfo m_info;
    QByteArray m_data;
    int m_frames = 0;
    int m_frameBytes = 0;
    QVector<QVector<Extremes>> m_levels;  // finest first; channels interleaved within a block
};

}  // namespace Zorv
