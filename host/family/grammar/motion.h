#pragma once

#include <QString>
#include <QVector>

namespace Family {

/// One step of a motion: everything that happens at one moment.
struct MotionStep
{
    /// Forward is the direction the fighter faces.
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

    quint8 signs = 0;         ///< at most one direction, and any buttons
    bool isReleased = false;  ///< `signs` is released, and is then one direction or one button
    int held = 0;             ///< how many ticks it was held before a release; only if released

    quint8 direction() const { return signs & Directions; }
    quint8 buttons() const { return signs & Buttons; }
    bool operator==(const MotionStep& other) const
    {
        return signs == other.signs && isReleased == other.isReleased && held == other.held;
    }
};

/// The steps of a motion in their order.
using Motion = QVector<MotionStep>;

/// The maximum number of steps.
constexpr int MostMotionSteps = 16;

/// Reads the text of a motion, for example "D, DF, F, L". False if invalid, with the invalid part
/// in `fault`. `motion` may be null and is not changed on failure.
bool readMotion(const QString& text, Motion* motion, QString* fault);

/// The held signs as written in a motion: "DF + L"; "-" for none.
QString signText(quint8 signs);

/// Reads the output of `signText()`, with or without blanks. False for anything else.
bool readSigns(const QString& text, quint8* signs);

}  // namespace Family
