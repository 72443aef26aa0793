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

/// Plays the sounds of a match: the sounds of moves that connect, and the music of the stage.
/// Silent without a sound device. Main thread only.
class MatchSounds
{
public:
    static constexpr int UsualRate = 48000;

    /// The match must outlive this object.
    explicit MatchSounds(const LoadedMatch& match);
    ~MatchSounds();

    /// Plays the sounds of a tick.
    void see(const Rules::State& state);

    /// While paused, nothing is heard.
    void setPaused(bool isPaused);

    QStringList notes() const;

    /// Returns when all sounds are ready to play.
    void waitForFinished() { m_bank.waitForFinished(); }

private:
    void collect(int fighter);
    void beginMusic();

    const LoadedMatch& m_match;
    SoundBank m_bank;
    Mixer m_mixer;
    std::unique_ptr<Zorv::SoundOutput> m_output;  // null without a sound device
    int m_rate = UsualRate;
    bool m_isMusicOn = false;
    QString m_problem;
};

}  // namespace Player
