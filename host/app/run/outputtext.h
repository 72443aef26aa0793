#pragma once

#include <QByteArray>
#include <QString>

namespace App {

/// Converts a program's output to displayable text, piece by piece.
///
/// The bytes are decoded as UTF-8; invalid bytes appear as "\xE4". Line feeds, also after a
/// carriage return, and tabs keep their meaning. Any other control character appears as a sign,
/// "^[" or "<U+202E>", because a program may print anything. Lines are broken at `MaxLine`
/// characters.
class OutputText
{
public:
    static constexpr int MaxLine = 2000;

    /// Decodes more bytes. An incomplete last character is kept back until its rest arrives.
    QString decode(const QByteArray& bytes);

    /// Returns what was kept back; the next text starts a new line.
    QString finish();

private:
    void addCharacter(uint code, QString* text);
    void addBytes(const QByteArray& bytes, QString* text);
    void append(const QString& piece, QString* text);

    QByteArray m_rest;  ///< an incomplete character
    bool m_hasReturn = false;
    int m_column = 0;
};

}  // namespace App
