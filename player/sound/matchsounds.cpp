#include "sound/matchsounds.h"

#include "family/assets/assetid.h"
#include "picture/loadedmatch.h"
#include "rules/state.h"

#include <zorv/editors/sound/soundoutput.h>

#include <climits>

namespace Player {

using Rules::Event;
using Rules::Move;
using Rules::SoundId;

namespace {

// Owners 0 and 1 are the fighters.
constexpr int StageOwner = 2;
constexpr quint64 MusicKey = quint64(StageOwner) << 32;

}  // namespace

MatchSounds::MatchSounds(const LoadedMatch& match) : m_match(match)
{
    Zorv::SampleInfo wanted;
    wanted.channels = Mixer::Channels;
    wanted.bits = 16;
    wanted.sampleRate = UsualRate;
    auto* const system = Zorv::SoundSystem::instance();
    const Zorv::SampleInfo form = system->playableForm(wanted, &m_problem);
    if (form.channels != Mixer::Channels || form.bits != 16 || form.sampleRate <= 0) {
        return;
    }
    m_rate = form.sampleRate;
    m_output.reset(system->open(form, nullptr));
    collect(0);
    collect(1);
    m_bank.addWave(MusicKey, match.stage.music.file);
    m_bank.convert(m_rate);
    m_output->start(&m_mixer);
}

MatchSounds::~MatchSounds()
{
    if (m_output) {
        m_output->stop();
    }
}

/// Collects the sounds that moves name.
void MatchSounds::collect(int fighter)
{
    QVector<quint32> ids;
    const auto take = [&ids](const SoundId& id) {
        const quint32 key = Family::AssetId{quint16(id.group), quint16(id.number)}.key();
        if (id.group >= 0 && !ids.contains(key)) {
            ids.append(key);
        }
    };
    for (const Move& move : m_match.game.fighters[fighter].moves) {
        take(move.hitSound);
        take(move.guardSound);
    }
    m_bank.addFile(fighter, m_match.looks[fighter].sounds, ids);
}

QStringList MatchSounds::notes() const
{
    QStringList notes = m_bank.notes();
    if (!m_problem.isEmpty()) {
        notes.append(m_problem);
    }
    return notes;
}

void MatchSounds::setPaused(bool isPaused)
{
    if (m_output) {
        isPaused ? m_output->suspend() : m_output->resume();
    }
}

void MatchSounds::beginMusic()
{
    const MusicLook& music = m_match.stage.music;
    const QByteArray samples = m_bank.find(MusicKey);
    if (samples.isEmpty()) {
        return;
    }
    m_isMusicOn = true;
    // The loop is given in frames of the file, which may have another sample rate.
    const auto place = [&](int frame) {
        const int rate = m_bank.rateOf(MusicKey);
        return frame < 0 || rate <= 0 ? -1
                                      : int(qMin(qint64(frame) * m_rate / rate, qint64(INT_MAX)));
    };
    m_mixer.playMusic(samples, music.volume,
                      {qMax(place(music.loopFirst), 0), place(music.loopLast)},
                      int(music.fade * m_rate));
}

void MatchSounds::see(const Rules::State& state)
{
    if (!m_output) {
        return;
    }
    if (!m_isMusicOn) {
        beginMusic();
    }
    for (int i = 0; i < state.eventCount; ++i) {
        const Event& event = state.events[i];
        if (event.kind != Event::Hit && event.kind != Event::Guarded) {
            continue;
        }
        const Move& move = m_match.game.fighters[event.fighter].moves.at(event.move);
        const SoundId& id = event.kind == Event::Hit ? move.hitSound : move.guardSound;
        if (id.group >= 0) {
            m_mixer.play(m_bank.find(SoundBank::keyOf(event.fighter, id.group, id.number)),
                         move.volume);
        }
    }
}

}  // namespace Player
