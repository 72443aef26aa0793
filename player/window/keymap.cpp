#include "window/keymap.h"

#include "family/grammar/motion.h"
#include "rules/state.h"

#include <QKeySequence>
#include <QStandardPaths>

#include <algorithm>

namespace Player {

using Family::MotionStep;
using Rules::Inputs;

namespace {

constexpr Keymap::Sign table[] = {
    {"up", Inputs::Up},           {"down", Inputs::Down},       {"left", Inputs::Left},
    {"right", Inputs::Right},     {"light", MotionStep::Light}, {"medium", MotionStep::Medium},
    {"heavy", MotionStep::Heavy}, {"start", MotionStep::Start},
};

constexpr int usual[2][Keymap::SignCount] = {
    {Qt::Key_W, Qt::Key_S, Qt::Key_A, Qt::Key_D, Qt::Key_F, Qt::Key_G, Qt::Key_H, Qt::Key_T},
    {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_J, Qt::Key_K, Qt::Key_L,
     Qt::Key_O},
};

/// For each action, an index in `padNames()`.
constexpr int usualPad[Keymap::SignCount] = {12, 13, 15, 14, 0, 1, 2, 9};

const QLatin1String padMark("pad ");

int signCalled(const QString& name)
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [&name](const Keymap::Sign& each) {
            return name == QLatin1String(each.name);
        });
    return found == std::end(table) ? -1 : int(found - std::begin(table));
}

/// The key code of a name; 0 unless it is a single key.
int keyCalled(const QString& name)
{
    const QKeySequence keys = QKeySequence::fromString(name, QKeySequence::PortableText);
    const bool isOne = keys.count() == 1 && (keys[0] & int(Qt::KeyboardModifierMask)) == 0;
    return isOne && keys[0] != Qt::Key_unknown ? keys[0] : 0;
}

}  // namespace

const Keymap::Sign (&Keymap::signs())[SignCount]
{
    return table;
}

Keymap::Keymap()
{
    for (int player = 0; player < 2; ++player) {
        std::copy(std::begin(usual[player]), std::end(usual[player]), m_keys[player]);
        std::copy(std::begin(usualPad), std::end(usualPad), m_pads[player]);
    }
}

QString Keymap::fileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/zorv/player.keys");
}

void Keymap::read(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).section(QLatin1Char('#'), 0, 0).simplified();
        if (!line.isEmpty() && !readLine(line)) {
            m_notes.append(tr("Keys, line %1: expected a line such as '1 light = F'; found '%2'.")
                               .arg(QString::number(i + 1), line));
        }
    }
}

bool Keymap::readLine(const QString& line)
{
    const QStringList head = line.section(QLatin1Char('='), 0, 0).simplified().split(' ');
    const QString name = line.section(QLatin1Char('='), 1).trimmed();
    const bool isPad = name.startsWith(padMark);
    const int button = isPad ? padNames().indexOf(name.mid(padMark.size())) : -1;
    const int key = keyCalled(name);
    const int player = head.first().toInt() - 1;
    const int sign = signCalled(head.value(1));
    if (head.size() != 2 || player < 0 || player > 1 || sign < 0 ||
        (isPad ? button < 0 : key == 0)) {
        return false;
    }
    isPad ? setPad(player, sign, button) : set(player, sign, key);
    return true;
}

/// A key has only one action: it is removed from any other.
void Keymap::set(int player, int sign, int key)
{
    for (auto& keys : m_keys) {
        std::replace(std::begin(keys), std::end(keys), key, 0);
    }
    m_keys[player][sign] = key;
}

void Keymap::setPad(int player, int sign, int button)
{
    auto& pad = m_pads[player];
    std::replace(std::begin(pad), std::end(pad), button, -1);
    pad[sign] = button;
}

QStringList Keymap::padNames()
{
    return {"A",      "B",     "X",  "Y",  "L1", "R1",   "L2",    "R2",
            "Select", "Start", "L3", "R3", "Up", "Down", "Right", "Left"};
}

quint8 Keymap::padSigns(int player, quint32 buttons) const
{
    unsigned signs = 0;
    for (int sign = 0; sign < SignCount; ++sign) {
        const int button = m_pads[player][sign];
        signs |= button >= 0 && (buttons >> button & 1) != 0 ? table[sign].bit : 0U;
    }
    return quint8(signs);
}

QString Keymap::text() const
{
    QString text;
    for (int player = 0; player < 2; ++player) {
        for (int sign = 0; sign < SignCount; ++sign) {
            text += QStringLiteral("%1 %2 = %3\n")
                        .arg(QString::number(player + 1), QLatin1String(table[sign].name),
                             keyName(player, sign));
            const int button = m_pads[player][sign];
            if (button >= 0) {
                text += QStringLiteral("%1 %2 = %3%4\n")
                            .arg(QString::number(player + 1), QLatin1String(table[sign].name),
                                 padMark, padNames().at(button));
            }
        }
    }
    return text;
}

bool Keymap::find(int key, int* player, quint8* bit) const
{
    for (int i = 0; i < 2; ++i) {
        const auto found = std::find(std::begin(m_keys[i]), std::end(m_keys[i]), key);
        if (key != 0 && found != std::end(m_keys[i])) {
            *player = i;
            *bit = table[found - std::begin(m_keys[i])].bit;
            return true;
        }
    }
    return false;
}

QString Keymap::keyName(int player, int sign) const
{
    return QKeySequence(m_keys[player][sign]).toString(QKeySequence::PortableText);
}

}  // namespace Player
