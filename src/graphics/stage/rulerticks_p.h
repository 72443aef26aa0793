#pragma once

#include "zorv_export.h"

#include <QVarLengthArray>

namespace Zorv {

/// The ticks of a ruler, in pixels from the start of the widget.
struct ZORV_EXPORT RulerTicks
{
    static constexpr int Band = 30;         // the width of a ruler
    static constexpr int LabelledTick = 5;  // every fifth tick is long and has a label

    struct Label
    {
        int place;
        qint64 value;  // in model units from the origin
    };

    /// For an axis of `length` pixels.
    RulerTicks(float zoom, int origin, int length);

    int step;  // distance between ticks
    QVarLengthArray<int, 256> small;
    QVarLengthArray<int, 64> large;
    QVarLengthArray<Label, 64> labels;
};

}  // namespace Zorv
