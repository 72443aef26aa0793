#pragma once

#include <QObject>

namespace Player {

/// The game pads of both players. The first one plugged in belongs to the first player. When one is
/// unplugged, its place is free for the next.
///
/// Without the build option `ZORV_GAMEPAD`, it receives no events on its own.
class Gamepads : public QObject
{
    Q_OBJECT

public:
    /// In the order of `Keymap::padNames()`.
    enum Button { A, B, X, Y, L1, R1, L2, R2, Select, Start, L3, R3, Up, Down, Right, Left };

    enum class Axis { Horizontal, Vertical };

    explicit Gamepads(QObject* parent = nullptr);

    /// @name Events of a device
    /// @{
    void plugIn(int device);
    void pullOut(int device);
    void setButton(int device, int button, bool isDown);

    /// The left stick, from -1 to 1, right and down positive. It counts as a direction from half of
    /// its way on.
    void setStick(int device, Axis axis, double value);
    /// @}

signals:
    /// The buttons that a player (0 or 1) holds now, one bit each.
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
