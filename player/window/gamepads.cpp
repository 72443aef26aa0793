#include "window/gamepads.h"

#include <algorithm>

#ifdef ZORV_GAMEPAD
#include <QGamepadManager>
#endif

namespace Player {

namespace {

constexpr int ButtonCount = Gamepads::Left + 1;
constexpr double StickWay = 0.5;

}  // namespace

Gamepads::Gamepads(QObject* parent) : QObject(parent)
{
#ifdef ZORV_GAMEPAD
    using Manager = QGamepadManager;
    static_assert(int(Manager::ButtonStart) == Start && int(Manager::ButtonLeft) == Left,
                  "the buttons have the order of Qt");
    Manager* const manager = Manager::instance();
    const QList<int> devices = manager->connectedGamepads();
    std::for_each(devices.cbegin(), devices.cend(), [this](int device) { plugIn(device); });
    connect(manager, &Manager::gamepadConnected, this, &Gamepads::plugIn);
    connect(manager, &Manager::gamepadDisconnected, this, &Gamepads::pullOut);
    connect(manager, &Manager::gamepadButtonPressEvent, this,
            [this](int device, Manager::GamepadButton button) { setButton(device, button, true); });
    connect(
        manager, &Manager::gamepadButtonReleaseEvent, this,
        [this](int device, Manager::GamepadButton button) { setButton(device, button, false); });
    connect(manager, &Manager::gamepadAxisEvent, this,
            [this](int device, Manager::GamepadAxis axis, double value) {
                if (axis == Manager::AxisLeftX || axis == Manager::AxisLeftY) {
                    setStick(device, axis == Manager::AxisLeftX ? Axis::Horizontal : Axis::Vertical,
                             value);
                }
            });
#endif
}

Gamepads::Pad* Gamepads::find(int device)
{
    auto* const found = std::find_if(std::begin(m_pads), std::end(m_pads),
                                     [device](const Pad& pad) { return pad.device == device; });
    return found == std::end(m_pads) ? nullptr : found;
}

void Gamepads::tell(const Pad& pad)
{
    emit heldChanged(int(&pad - m_pads), pad.buttons | pad.stick);
}

void Gamepads::plugIn(int device)
{
    Pad* const free = find(device) ? nullptr : find(-1);
    if (free) {
        free->device = device;
    }
}

void Gamepads::pullOut(int device)
{
    if (Pad* pad = find(device)) {
        *pad = {};
        tell(*pad);
    }
}

void Gamepads::setButton(int device, int button, bool isDown)
{
    Pad* const pad = find(device);
    if (!pad || button < 0 || button >= ButtonCount) {
        return;
    }
    const quint32 bit = 1U << button;
    pad->buttons = isDown ? pad->buttons | bit : pad->buttons & ~bit;
    tell(*pad);
}

void Gamepads::setStick(int device, Axis axis, double value)
{
    Pad* const pad = find(device);
    if (!pad) {
        return;
    }
    const quint32 less = 1U << (axis == Axis::Horizontal ? Left : Up);
    const quint32 more = 1U << (axis == Axis::Horizontal ? Right : Down);
    const quint32 held = (value <= -StickWay ? less : 0) | (value >= StickWay ? more : 0);
    const quint32 stick = (pad->stick & ~(less | more)) | held;
    if (stick != pad->stick) {
        pad->stick = stick;
        tell(*pad);
    }
}

}  // namespace Player
