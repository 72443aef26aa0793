#pragma once

#include <QObject>

namespace Player {

/// The game pads of both people: the one that is plugged in first is the first one's. One that is
/// pulled out leaves its place to the next.
///
/// Built without the option `ZORV_GAMEPAD` it hears of none by itself.
class Gamepads : public QObject
{
    Q_OBJECT

public:
    /// In the order of `Keymap::padNames()`.
    enum Button { A, B, X, Y, L1, R1, L2, R2, Select, Start, L3, R3, Up, Down, Right, Left };

    enum class Axis { Horizontal, Vertical };

    explicit Gamepads(QObject* parent = nullptr);

    /// @name What happens to the device of a number
    /// @{
    void plugIn(int device);
    void pullOut(int device);
    void setButton(int device, int button, bool isDown);

    /// The left stick, which counts as the directions from half of its way on; from -1 to 1, right
    /// and downward.
    void setStick(int device, Axis axis, double value);
    /// @}

signals:
    /// The buttons that a player, 0 or 1, holds now, a bit each.
    void heldChanged(int player, quint32 buttons);

private:
    struct Pad
    {
        int device = -1;  // -1 for none
        quint32 buttons = 0;
        quint32 stick = 0;
    };

    Pad* find(int device);
    void tell(const Pad& pad);

    Pad m_pads[2];
};

}  // namespace Player
