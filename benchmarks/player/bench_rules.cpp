// A match of the sample game, with people who press something new every fourth tick: ticks a
// second, what a tick costs beside a copy of its state, and how large ten seconds of states are.

#include "support/bench.h"

#include "rules/gamereader.h"
#include "rules/tick.h"

#include <QRandomGenerator>

#include <cstring>
#include <vector>

using namespace Rules;

namespace {

constexpr int Ticks = 60000;
constexpr int Rounds = 7;
constexpr int RingStates = 600;
constexpr double MostRingBytes = 64.0 * 1024 * 1024;

bool load(Game* game)
{
    const QString folder = QStringLiteral(ZORV_SAMPLES "/arena");
    GameReader reader(folder);
    QString error;
    for (int i = 0; i < 2; ++i) {
        const QString file = findMainFile(folder, QStringLiteral(".character"), {}, i, &error);
        if (!reader.readFighter(file, &game->fighters[i], &error)) {
            return false;
        }
    }
    const QString stage = findMainFile(folder, QStringLiteral(".stage"), {}, 0, &error);
    const bool isRead = reader.readStage(stage, &game->stage, &error);
    game->hasIntro = false;
    completeGame(game);
    return isRead;
}

std::vector<Inputs> makeInputs()
{
    QRandomGenerator random(1);
    std::vector<Inputs> inputs(Ticks);
    for (int i = 1; i < Ticks; ++i) {
        inputs[i] = inputs[i - 1];
        for (quint8& signs : inputs[i].signs) {
            signs =
                random.bounded(4) == 0 ? quint8(random.bounded(256) & random.bounded(256)) : signs;
        }
    }
    return inputs;
}

/// Copies through a ring, as a player keeps them.
void copyStates(const State& state, std::vector<State>* ring)
{
    for (int i = 0; i < Ticks; ++i) {
        memcpy(&(*ring)[size_t(i % 8)], &state, sizeof state);
        asm volatile("" : : "r"(ring->data()) : "memory");
    }
}

}  // namespace

int main()
{
    Game game;
    if (!load(&game)) {
        std::puts("The samples cannot be read.");
        return 1;
    }
    const std::vector<Inputs> inputs = makeInputs();
    std::vector<State> ring(8);
    quint64 hash = 0;
    const auto play = [&] {
        State state = firstState(game);
        for (const Inputs& each : inputs) {
            tick(game, each, &state);
            if (state.phase == Phase::MatchOver) {
                state = firstState(game);
            }
        }
        hash = hashOf(state);
    };
    const State first = firstState(game);
    Bench::figure("ticks a second", Ticks / Bench::median(Rounds, play) * 1000, "ticks");
    Bench::figure("bytes of a state", sizeof(State), "bytes");
    Bench::ratio("a tick, to a copy of its state",
                 Bench::pairedRatio(Rounds, play, [&] { copyStates(first, &ring); }), 1, 50);
    Bench::ratio("600 states, to 64 MiB", double(sizeof(State)) * RingStates, MostRingBytes, 1);
    std::printf("end %016llx\n", static_cast<unsigned long long>(hash));
    return 0;
}
