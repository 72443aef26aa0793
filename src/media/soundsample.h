#pragma once

#include <QByteArray>

namespace Zorv {

/// The form of a sound in PCM.
struct SampleInfo
{
    quint16 channels = 0;
    quint16 bits = 0;  ///< a sample
    qint32 sampleRate = 0;
    qint32 frames = 0;  ///< of `channels` samples each
};

/// A sound in memory.
struct SoundSample : SampleInfo
{
    /// What a player does with a sound.
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
