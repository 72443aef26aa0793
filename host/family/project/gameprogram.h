#pragma once

#include <QByteArray>
#include <QString>

namespace Family {

/// The program that a game folder brings along as its engine.
///
/// Whoever made the folder made the program too. So it is only named (see `FamilyEngineModel`) when
/// the person has agreed to it as it is: at this path, with this content.
class GameProgram
{
public:
    /// None.
    GameProgram() = default;

    /// That of a game folder, as it is now.
    explicit GameProgram(const QString& gameFolder);

    /// "zorv-player", in the game folder itself.
    static QString name();

    /// True if there is a file of that name, whatever it is.
    static bool isIn(const QString& gameFolder);

    bool isThere() const { return !m_path.isEmpty(); }

    /// Absolute, in the real folder of the game; the file itself can be a link.
    QString path() const { return m_path; }

    /// SHA-256 in hexadecimal; empty if the file cannot be read, or has more than 2 GB.
    QByteArray checksum() const { return m_checksum; }

    bool operator==(const GameProgram& other) const
    {
        return m_path == other.m_path && m_checksum == other.m_checksum;
    }

private:
    QString m_path;
    QByteArray m_checksum;
};

}  // namespace Family
