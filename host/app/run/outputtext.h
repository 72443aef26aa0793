#pragma once

#include <QByteArray>
#include <QString>

namespace App {

/// Makes a text to look at of what a program prints, piece by piece.
///
/// The bytes are taken as UTF-8; those that are none are shown as "\xE4". Line
/// feeds, also behind a carriage return, and tabs are what they are; any other
/// character that would do something is shown as a sign, "^[" or "<U+202E>": a program
/// may print what it likes. Lines are broken at `MaxLine` characters.
class OutputText
{
public:
    static constexpr int MaxLine = 2000;

    /// The text of further bytes. The last few may be kept back until the rest of
    /// their character comes.
    QString decode(const QByteArray& bytes);

    /// What was kept back; the next text begins a new line.
    QString finish();

private:
    void addCharacter(uint code, QString* text);
    void addBytes(const QByteArray& bytes, QString* text);
    void append(const QString& piece, QString* text);

    QByteArray m_rest;  ///< the beginning of a character
    bool m_hasReturn = false;
    int m_column = 0;
};

}  // namespace App
