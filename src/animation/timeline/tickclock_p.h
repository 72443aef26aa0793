#pragma once

#include <QtGlobal>

#include <algorithm>

namespace Zorv {

/// Computes timer intervals so that on average 60 ticks occur per second.
///
/// A timer works in whole milliseconds, fires late, and starts only when the work of a tick is
/// done. So the error of each tick is kept in nanoseconds and compensated in the next ones. In slow
/// motion a tick takes several periods.
struct TickClock
{
    static constexpr qint64 Period = 16'666'667;  ///< nanoseconds per tick
    static constexpr qint64 Millisecond = 1'000'000;

    /// Milliseconds until the first tick.
    int firstInterval() const { return 16 * slowness; }

    /// Takes the nanoseconds since the last tick, returns the milliseconds until the next.
    int step(qint64 elapsed)
    {
        const qint64 period = Period * slowness;
        error += period - elapsed;
        measure(elapsed);
        return int(std::max<qint64>((error + period) / Millisecond, 0));
    }

    int slowness = 1;  ///< periods per tick
    qint64 error = 0;  ///< nanoseconds by which the ticks are ahead
    float currentFPS = 60.0F / float(slowness);
    unsigned int frameCount = 0;  ///< ticks since the rate was measured
    qint64 fpsElapsed = 0;        ///< nanoseconds since then

private:
    void measure(qint64 elapsed)
    {
        fpsElapsed += elapsed;
        ++frameCount;
        if (fpsElapsed > 999 * Millisecond) {
            currentFPS = float(frameCount * 1e9 / double(fpsElapsed));
            fpsElapsed = 0;
            frameCount = 0;
        }
    }
};

}  // namespace Zorv
