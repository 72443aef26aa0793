#pragma once

#include "media/soundsample.h"

/// A sound with these bytes, which are a whole number of frames.
inline Zorv::SoundSample soundOf(const QByteArray& data, quint16 channels = 1, quint16 bits = 16)
{
    Zorv::SoundSample sound;
    sound.channels = channels;
    sound.bits = bits;
    sound.sampleRate = 22050;
    sound.frames = data.size() / (channels * bits / 8);
    sound.data = data;
    return sound;
}
