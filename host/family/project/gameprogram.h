#pragma once

#include <QByteArray>
#include <QString>

namespace Family {

/// The engine program that a game folder contains.
///
/// Whoever made the folder also made the program, so it is not trusted. It becomes available (see
/// `FamilyEngineModel`) only after the user has agreed to exactly this path and content.
class GameProgram
{
public:
    /// None.
    GameProgram() = default;

    /// The program in a game folder as it is now.
    explicit GameProgram(const QString& gameFolder);

    /// "zorv-player", directly in the game folder.
    static QString name();

    /// True if a file with that name exists, whatever it is.
    static bool isIn(const QString& gameFolder);

    bool isThere() const { return !m_path.isEmpty(); }

    /// Absolute, in the canonical folder of the game; the file itself can be a link.
    QString path() const { return m_path; }

    /// SHA-256 in hexadecimal; empty if the file cannot be read or is larger than 2 GB.
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
