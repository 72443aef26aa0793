#include "training/session.h"

#include "rules/tick.h"

namespace Player {

using Rules::FighterState;
using Rules::Phase;
using Rules::State;

namespace {

constexpr int TicksASecond = 60;

}  // namespace

Session::Session(const Rules::Game& game)
    : m_game(game), m_state(Rules::firstState(game)), m_meter(game), m_dummy(game, 1)
{
}

bool Session::clockTick(const Rules::Inputs& inputs)
{
    m_clockTicks = (m_clockTicks + 1) % int(m_speed);
    if (m_isPaused || m_clockTicks != 0) {
        return false;
    }
    step(inputs);
    return true;
}

void Session::step(const Rules::Inputs& inputs)
{
    m_ring.push(m_state);
    Rules::Inputs held = inputs;
    held.signs[1] = m_dummy.signs(m_state, inputs.signs[1]);
    Rules::tick(m_game, held, &m_state);
    if (m_isEndless) {
        fillUp();
    }
    m_meter.see(m_state);
}

bool Session::stepBack()
{
    if (!m_ring.pop(&m_state)) {
        return false;
    }
    m_meter.see(m_state);
    return true;
}

void Session::nextSpeed()
{
    m_speed = m_speed == Speed::Full   ? Speed::Half
              : m_speed == Speed::Half ? Speed::Quarter
                                       : Speed::Full;
}

void Session::fillUp()
{
    const bool areFree = Rules::isFree(m_state.fighters[0]) && Rules::isFree(m_state.fighters[1]);
    m_state.clock = m_game.stage.seconds > 0 ? m_game.stage.seconds * TicksASecond : -1;
    for (int i = 0; i < 2 && areFree && m_state.phase == Phase::Fight; ++i) {
        m_state.fighters[i].life = m_game.fighters[i].life;
        m_state.fighters[i].power = m_game.fighters[i].power;
    }
    if (m_state.phase == Phase::Victory) {
        resetPlaces();
    }
}

void Session::resetPlaces()
{
    const State before = m_state;
    Rules::Game game = m_game;
    game.hasIntro = false;
    m_ring.push(m_state);
    m_state = Rules::firstState(game);
    m_state.tick = before.tick;
    m_state.round = before.round;
    for (int i = 0; i < 2; ++i) {
        m_state.fighters[i].wins = before.fighters[i].wins;
        m_state.fighters[i].power = m_isEndless ? m_game.fighters[i].power : 0;
    }
    m_meter.clear();
}

void Session::takeOver(const Session& other)
{
    const State& before = other.m_state;
    Rules::Game game = m_game;
    game.hasIntro = false;
    m_state = Rules::firstState(game);
    m_state.tick = before.tick;
    m_state.round = before.round;
    if (before.phase == Phase::Fight && before.clock > 0) {
        m_state.clock = qMin(before.clock, m_state.clock);
    }
    for (int i = 0; i < 2; ++i) {
        FighterState& own = m_state.fighters[i];
        const FighterState& old = before.fighters[i];
        const qint32 left = m_game.stage.left * Rules::One;
        const qint32 right = m_game.stage.right * Rules::One;
        own.x = qBound(left, old.x, right);
        own.facing = old.facing;
        own.life = qBound(1, old.life, m_game.fighters[i].life);
        own.power = qBound(0, old.power, m_game.fighters[i].power);
        own.wins = qMin(old.wins, m_game.stage.rounds - 1);
    }
    m_isPaused = other.m_isPaused;
    m_isEndless = other.m_isEndless;
    m_speed = other.m_speed;
    m_dummy.takeOver(other.m_dummy);
}

void Session::beginMatch()
{
    m_state = Rules::firstState(m_game);
    m_ring.clear();
    m_meter.clear();
    m_dummy.startAnew(m_state);
}

}  // namespace Player
