#pragma once

#include <QStringRef>

namespace Family {

/// A position in a line that advances token by token. Allocates nothing.
class LineScanner
{
public:
    explicit LineScanner(const QString& line)
        : m_line(line), m_data(line.constData()), m_end(line.size())
    {
    }

    int position() const { return m_position; }
    void setPosition(int position) { m_position = position; }
    int size() const { return m_end; }

    /// The null character at the end.
    QChar current() const { return m_position < m_end ? m_data[m_position] : QChar(); }

    /// True at the end of the line and before a comment.
    bool atCodeEnd() const { return m_position >= m_end || m_data[m_position] == QLatin1Char('#'); }
    void advance() { ++m_position; }
    void skipBlanks();

    /// Advances if the next character is `character`.
    bool accept(char character);

    /// Skips a word of letters, digits, '_' and '-', which must not start with '-'; empty if there
    /// is none.
    QStringRef word();

    /// Skips everything up to a blank, comma, ']' or comment.
    QStringRef chunk();

    /// Skips a quoted text; the position must be at the first quote. False if the closing quote is
    /// missing; the position is then at the end.
    bool text();

    QStringRef part(int start, int end) const { return m_line.midRef(start, end - start); }

    /// The start of the next comment, ignoring '#' in quoted texts; the size of the line if there
    /// is none.
    int commentStart() const;

    /// The end of the code before a comment or the line end, without trailing blanks.
    int codeEnd() const;

private:
    const QString& m_line;
    const QChar* m_data;
    int m_position = 0;
    int m_end;
};

/// True for any kind of blank.
inline bool isBlank(QChar character)
{
    const ushort code = character.unicode();
    return code == ' ' || code == '\t' || (code > 127 && character.isSpace()) ||
           (code >= 10 && code <= 13);
}

/// True for a character of a word; `first` if it is the first one.
inline bool isWordCharacter(QChar character, bool first)
{
    const ushort code = character.unicode();
    if (code < 128) {
        return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
               (code >= '0' && code <= '9') || code == '_' || (code == '-' && !first);
    }
    return character.isLetterOrNumber() || (!first && character.isMark());
}

/// True if the whole text is one word.
bool isWord(const QString& text);

}  // namespace Family
