#include "family/grammar/linescanner.h"

namespace Family {

void LineScanner::skipBlanks()
{
    while (m_position < m_end && isBlank(m_data[m_position])) {
        ++m_position;
    }
}

bool LineScanner::accept(char character)
{
    if (m_position < m_end && m_data[m_position] == QLatin1Char(character)) {
        ++m_position;
        return true;
    }
    return false;
}

QStringRef LineScanner::word()
{
    const int start = m_position;
    while (m_position < m_end && isWordCharacter(m_data[m_position], m_position == start)) {
        ++m_position;
    }
    return part(start, m_position);
}

QStringRef LineScanner::chunk()
{
    const int start = m_position;
    while (!atCodeEnd() && !isBlank(m_data[m_position]) && m_data[m_position] != QLatin1Char(',') &&
           m_data[m_position] != QLatin1Char(']')) {
        ++m_position;
    }
    return part(start, m_position);
}

bool LineScanner::text()
{
    ++m_position;
    while (m_position < m_end) {
        const QChar character = m_data[m_position++];
        if (character == QLatin1Char('"')) {
            return true;
        }
        if (character == QLatin1Char('\\') && m_position < m_end) {
            ++m_position;
        }
    }
    return false;
}

int LineScanner::commentStart() const
{
    LineScanner ahead(*this);
    while (!ahead.atCodeEnd()) {
        if (ahead.current() == QLatin1Char('"')) {
            ahead.text();
        } else {
            ahead.advance();
        }
    }
    return ahead.position();
}

int LineScanner::codeEnd() const
{
    int end = commentStart();
    while (end > m_position && isBlank(m_data[end - 1])) {
        --end;
    }
    return end;
}

bool isWord(const QString& text)
{
    LineScanner scanner(text);
    return !text.isEmpty() && scanner.word().size() == text.size();
}

}  // namespace Family
