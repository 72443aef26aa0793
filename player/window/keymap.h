#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

namespace Player {

/// Maps keys of the keyboard and buttons of game pads to the actions of both players.
///
/// A key file has lines such as `1 light = F`: player, action, and Qt's name of the key. `1 light =
/// pad A` is a button of the player's game pad. `#` starts a comment. Everything that the file does
/// not set keeps its default.
class Keymap
{
    Q_DECLARE_TR_FUNCTIONS(Player::Keymap)

public:
    /// An action of a player, as a bit of `Rules::Inputs::signs`.
    struct Sign
    {
        const char* name;
        quint8 bit;
    };
    static constexpr int SignCount = 8;
    static const Sign (&signs())[SignCount];

    /// Creates the default mapping.
    Keymap();

    /// The key file in the user's settings folder. It need not exist.
    static QString fileName();

    /// Applies a key file. Invalid lines are skipped and reported in `notes()`.
    void read(const QString& text);

    /// The complete mapping as the text of a key file.
    QString text() const;

    QStringList notes() const { return m_notes; }

    /// The player (0 or 1) and the action bit of a key; false for any other key.
    bool find(int key, int* player, quint8* bit) const;

    /// The action bits for pressed buttons of a game pad; bits are in the order of `padNames()`.
    quint8 padSigns(int player, quint32 buttons) const;

    /// The names of the buttons of game pads.
    static QStringList padNames();

    /// The name of the key for an action of a player.
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
