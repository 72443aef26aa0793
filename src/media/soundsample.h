#pragma once

#include <QByteArray>

namespace Zorv {

/// The format of a PCM sound.
struct SampleInfo
{
    quint16 channels = 0;
    quint16 bits = 0;  ///< per sample
    qint32 sampleRate = 0;
    qint32 frames = 0;  ///< of `channels` samples each
};

/// A sound in memory.
struct SoundSample : SampleInfo
{
    /// The playback state of a sound.
    enum State {
        PlayingState = 0,  ///< once
        LoopingState = 1,
        PausedState = 2,
        StoppedState = 3
    };

    /// The PCM bytes as a WAV file holds them: little-endian, frame by frame.
    QByteArray data;
};

}  // namespace Zorv
