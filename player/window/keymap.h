#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

namespace Player {

/// Which key of the keyboard, and which button of a game pad, stands for what, for two people.
///
/// The text of a file has lines such as `1 light = F`: the player, what it does and the key as Qt
/// calls it; `1 light = pad A` is a button of its game pad. `#` begins a comment. What a file does
/// not say stays as it is without one.
class Keymap
{
    Q_DECLARE_TR_FUNCTIONS(Player::Keymap)

public:
    /// What a player can do, as bits of `Rules::Inputs::signs`.
    struct Sign
    {
        const char* name;
        quint8 bit;
    };
    static constexpr int SignCount = 8;
    static const Sign (&signs())[SignCount];

    /// The usual keys.
    Keymap();

    /// The file in the person's own folder of settings, which need not be there.
    static QString fileName();

    /// Takes over what a text says. Lines that mean nothing are left out, and told in `notes()`.
    void read(const QString& text);

    /// The whole of it as the text of a file.
    QString text() const;

    QStringList notes() const { return m_notes; }

    /// The player, 0 or 1, and the bit of a key; false for any other key.
    bool find(int key, int* player, quint8* bit) const;

    /// What a player does with these buttons of a game pad, bits in the order of `padNames()`.
    quint8 padSigns(int player, quint32 buttons) const;

    /// The buttons of game pads.
    static QStringList padNames();

    /// The name of the key for a sign of a player.
    QString keyName(int player, int sign) const;

private:
    bool readLine(const QString& line);
    void set(int player, int sign, int key);
    void setPad(int player, int sign, int button);

    int m_keys[2][SignCount];
    int m_pads[2][SignCount];  // -1 for no button
    QStringList m_notes;
};

}  // namespace Player
