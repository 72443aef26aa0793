#pragma once

#include <QString>
#include <QVector>

namespace Family {

/// One step of a motion: what is done in one moment.
struct MotionStep
{
    /// Forward is where the fighter looks.
    enum Sign : quint8 {
        Up = 1,
        Down = 2,
        Forward = 4,
        Back = 8,
        Light = 16,
        Medium = 32,
        Heavy = 64,
        Start = 128
    };
    static constexpr quint8 Directions = Up | Down | Forward | Back;
    static constexpr quint8 Buttons = Light | Medium | Heavy | Start;
    static constexpr int MostHeld = 600;

    quint8 signs = 0;         ///< one direction at most, and any buttons
    bool isReleased = false;  ///< `signs` is let go; it is a direction or a button then
    int held = 0;             ///< the ticks that it was held before; only of what is let go

    quint8 direction() const { return signs & Directions; }
    quint8 buttons() const { return signs & Buttons; }
    bool operator==(const MotionStep& other) const
    {
        return signs == other.signs && isReleased == other.isReleased && held == other.held;
    }
};

/// The steps of a motion in their order.
using Motion = QVector<MotionStep>;

/// The most steps of a motion.
constexpr int MostMotionSteps = 16;

/// Reads the text of a motion, as in "D, DF, F, L". False for one that means nothing, with the part
/// that does not in `fault`; `motion` may be null and is not touched then.
bool readMotion(const QString& text, Motion* motion, QString* fault);

/// The signs that are held, as a motion has them: "DF + L"; "-" for none.
QString signText(quint8 signs);

/// Reads what `signText()` gives, also without blanks. False for anything else.
bool readSigns(const QString& text, quint8* signs);

}  // namespace Family
