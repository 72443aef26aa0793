#pragma once

#include "media/soundsample.h"
#include "zorv_export.h"

#include <QVector>

#include <memory>

namespace Zorv {

/// The least and the greatest value of any part of a sound, in a time that does not depend on how
/// long the part is. It shares the data of the sound. Made in any thread, and never changed.
class ZORV_EXPORT WavePyramid
{
public:
    /// Values as numbers of the sound's bits, signed.
    struct Extremes
    {
        qint32 least = 0;
        qint32 greatest = 0;
    };

    explicit WavePyramid(const SoundSample& sound);

    int frames() const { return m_frames; }

    /// The value of a channel; 0 for what is not there.
    qint32 value(int frame, int channel) const;

    /// Of the frames from `first` on and before `end`, cut to those that are there; of none, both
    /// are 0.
    Extremes extremes(int channel, int first, int end) const;

private:
    void buildBase();
    void buildLevels();
    void widen(Extremes* found, int channel, int first, int end) const;

    SampleInfo m_info;
    QByteArray m_data;
    int m_frames = 0;
    int m_frameBytes = 0;
    QVector<QVector<Extremes>> m_levels;  // the finest first; the channels of a block together
};

}  // namespace Zorv
