#pragma once

#include "sound/mixer.h"
#include "sound/soundbank.h"

#include <memory>

namespace Rules {
struct Game;
struct State;
}  // namespace Rules

namespace Zorv {
class SoundOutput;
}

namespace Player {

struct LoadedMatch;

/// What is heard of a match: the sounds of moves that meet, and the music of the stage. Without a
/// sound device it is silent. Main thread only.
class MatchSounds
{
public:
    static constexpr int UsualRate = 48000;

    /// The match outlives it.
    explicit MatchSounds(const LoadedMatch& match);
    ~MatchSounds();

    /// Plays what a tick is heard of.
    void see(const Rules::State& state);

    /// Nothing is heard until it goes on.
    void setPaused(bool isPaused);

    QStringList notes() const;

    /// Returns when all sounds can be heard.
    void waitForFinished() { m_bank.waitForFinished(); }

private:
    void collect(int fighter);
    void beginMusic();

    const LoadedMatch& m_match;
    SoundBank m_bank;
    Mixer m_mixer;
    std::unique_ptr<Zorv::SoundOutput> m_output;  // null for silence
    int m_rate = UsualRate;
    bool m_isMusicOn = false;
    QString m_problem;
};

}  // namespace Player
