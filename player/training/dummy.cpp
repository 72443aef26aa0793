#include "training/dummy.h"

#include "rules/tick.h"

namespace Player {

using Rules::Inputs;
using Rules::State;

namespace {

constexpr int RandomTicks = 8;  // random input changes after this many ticks
constexpr quint8 Forward = Inputs::Right;
constexpr quint8 Back = Inputs::Left;

/// A hash instead of a random generator: a rewound match must repeat itself.
quint32 scattered(quint32 number)
{
    number = (number ^ (number >> 16)) * 0x45d9f3bU;
    number = (number ^ (number >> 16)) * 0x45d9f3bU;
    return number ^ (number >> 16);
}

}  // namespace

void Dummy::setMode(Mode mode, const State& state)
{
    m_mode = mode;
    m_start = state.tick;
    if (mode == Record) {
        m_record.clear();
    }
}

void Dummy::startAnew(const State& state)
{
    m_start = state.tick;
}

void Dummy::takeOver(const Dummy& other)
{
    m_mode = other.m_mode;
    m_record = other.m_record;
    m_start = other.m_start;
}

/// Crouches against low attacks.
quint8 Dummy::guardSigns(const State& state) const
{
    const Rules::FighterState& other = state.fighters[1 - m_fighter];
    const bool isLow =
        other.move >= 0 &&
        m_game.fighters[1 - m_fighter].moves.at(other.move).hit.level == Rules::HitLevel::Low;
    return isLow ? quint8(Back | Inputs::Down) : Back;
}

quint8 Dummy::signs(const State& state, quint8 person)
{
    const int facing = state.fighters[m_fighter].facing;
    const auto mirrored = [facing](quint8 signs) { return Rules::mirrored(signs, facing); };
    const int at = state.tick - m_start;
    switch (m_mode) {
    case Stand:
        return 0;
    case Crouch:
        return Inputs::Down;
    case Guard:
        return mirrored(guardSigns(state));
    case Jump:
        return Inputs::Up;
    case Random: {
        const quint32 number = scattered(quint32(state.tick / RandomTicks));
        return mirrored(quint8(number & (number >> 8) & 0x7f) | (number & 0x10000 ? Forward : 0));
    }
    case Record:
        // After rewinding, recording continues from that point.
        m_record.resize(qBound(0, at, qMin(m_record.size(), MostTicks)));
        if (m_record.size() == at && at < MostTicks) {
            m_record.append(mirrored(person));
        }
        return person;
    case Replay:
        return m_record.isEmpty() || at < 0 ? 0 : mirrored(m_record.at(at % m_record.size()));
    default:
        return person;
    }
}

}  // namespace Player
