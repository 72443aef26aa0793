#include "family/import/jsonview.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

// JsonScan validates the whole text once, with the full grammar. After that, views only skip
// through text that is known to be valid JSON.

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::JsonView)
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

const char* skipBlanks(const char* at, const char* end)
{
    while (at < end && isBlank(*at)) {
        ++at;
    }
    return at;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHex(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Finds out whether a text is JSON, and where its first error is.
class JsonScan
{
public:
    JsonScan(const char* begin, const char* end) : m_at(begin), m_end(end) {}

    bool isWhole()
    {
        if (!value(0)) {
            return false;
        }
        m_at = skipBlanks(m_at, m_end);
        return m_at == m_end;
    }

    /// The position of the error.
    const char* at() const { return m_at; }
    bool isTooDeep() const { return m_isTooDeep; }

private:
    bool value(int depth)
    {
        m_at = skipBlanks(m_at, m_end);
        if (m_at == m_end) {
            return false;
        }
        switch (*m_at) {
        case '{':
        case '[':
            m_isTooDeep = depth == JsonView::MaxDepth;
            return !m_isTooDeep && list(depth, *m_at == '{');
        case '"':
            return text();
        case 't':
            return word("true");
        case 'f':
            return word("false");
        case 'n':
            return word("null");
        default:
            return number();
        }
    }

    bool list(int depth, bool hasKeys)
    {
        const char close = hasKeys ? '}' : ']';
        ++m_at;
        if (take(close)) {
            return true;
        }
        do {
            m_at = skipBlanks(m_at, m_end);
            if ((hasKeys && !(text() && take(':'))) || !value(depth + 1)) {
                return false;
            }
        } while (take(','));
        return take(close);
    }

    bool take(char c)
    {
        m_at = skipBlanks(m_at, m_end);
        const bool isThere = m_at < m_end && *m_at == c;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    bool word(const char* expected)
    {
        for (; *expected; ++expected, ++m_at) {
            if (m_at == m_end || *m_at != *expected) {
                return false;
            }
        }
        return true;
    }

    bool text()
    {
        if (m_at == m_end || *m_at != '"') {
            return false;
        }
        for (++m_at; m_at < m_end && *m_at != '"'; ++m_at) {
            if (uchar(*m_at) < 0x20 || (*m_at == '\\' && !escape())) {
                return false;
            }
        }
        const bool isClosed = m_at < m_end;
        m_at += isClosed ? 1 : 0;
        return isClosed;
    }

    /// On success stops at the last character of the escape.
    bool escape()
    {
        ++m_at;
        if (m_at == m_end || !strchr("\"\\/bfnrtu", *m_at) || *m_at == 0) {
            return false;
        }
        const int digits = *m_at == 'u' ? 4 : 0;
        for (int i = 0; i < digits; ++i) {
            if (++m_at == m_end || !isHex(*m_at)) {
                return false;
            }
        }
        return true;
    }

    bool digits()
    {
        const char* const first = m_at;
        while (m_at < m_end && isDigit(*m_at)) {
            ++m_at;
        }
        return m_at > first;
    }

    bool takeOne(const char* letters)
    {
        const bool isThere = m_at < m_end && *m_at != 0 && strchr(letters, *m_at);
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    bool number()
    {
        takeOne("-");
        if (!takeOne("0") && !digits()) {
            return false;
        }
        if (takeOne(".") && !digits()) {
            return false;
        }
        if (takeOne("eE")) {
            takeOne("+-");
            return digits();
        }
        return true;
    }

    const char* m_at;
    const char* const m_end;
    bool m_isTooDeep = false;
};

const char* textEnd(const char* at)
{
    for (++at; *at != '"'; ++at) {
        at += *at == '\\' ? 1 : 0;
    }
    return at + 1;
}

/// The position after the value that begins here.
const char* valueEnd(const char* at, const char* end)
{
    int depth = 0;
    do {
        if (*at == '"') {
            at = textEnd(at);
        } else if (*at == '{' || *at == '[') {
            ++depth;
            ++at;
        } else if (*at == '}' || *at == ']') {
            --depth;
            ++at;
        } else if (depth > 0) {
            ++at;
        } else {
            while (at < end && !isBlank(*at) && !strchr(",]}", *at)) {
                ++at;
            }
        }
    } while (depth > 0);
    return at;
}

QChar escaped(const char** at)
{
    static const char from[] = "bfnrt";
    static const char to[] = "\b\f\n\r\t";
    const char letter = **at;
    if (letter == 'u') {
        const QByteArray digits(*at + 1, 4);
        *at += 4;
        return QChar(digits.toUShort(nullptr, 16));
    }
    const char* const found = strchr(from, letter);
    return QLatin1Char(found ? to[found - from] : letter);
}

/// The text between two quotes, with escapes resolved.
QString unescaped(const char* at, const char* end)
{
    QString text;
    while (at < end) {
        const char* const slash = std::find(at, end, '\\');
        text += QString::fromUtf8(at, int(slash - at));
        at = slash;
        if (at < end) {
            ++at;
            text += escaped(&at);
            ++at;
        }
    }
    return text;
}

QString placeOf(const QByteArray& bytes, const char* at)
{
    const char* const begin = bytes.constData();
    const int line = int(std::count(begin, at, '\n')) + 1;
    const char* start = at;
    while (start > begin && start[-1] != '\n') {
        --start;
    }
    return Text::tr("line %1, column %2")
        .arg(QString::number(line), QString::number(int(at - start) + 1));
}

}  // namespace

JsonView JsonView::read(const QByteArray& bytes, QString* error)
{
    if (bytes.size() > MaxBytes) {
        *error = Text::tr("It is longer than 16 MiB.");
        return {};
    }
    const char* const end = bytes.constData() + bytes.size();
    const char* const begin = bytes.constData() + (bytes.startsWith("\xef\xbb\xbf") ? 3 : 0);
    JsonScan scan(begin, end);
    if (!scan.isWhole()) {
        *error = scan.isTooDeep() ? Text::tr("It has more than %1 lists in each other at %2.")
                                        .arg(QString::number(MaxDepth), placeOf(bytes, scan.at()))
                                  : Text::tr("It is no JSON at %1.").arg(placeOf(bytes, scan.at()));
        return {};
    }
    const char* const first = skipBlanks(begin, end);
    return {first, valueEnd(first, end)};
}

JsonView::Kind JsonView::kind() const
{
    if (m_begin == m_end) {
        return None;
    }
    switch (*m_begin) {
    case '{':
        return Object;
    case '[':
        return Array;
    case '"':
        return String;
    case 't':
    case 'f':
        return Bool;
    case 'n':
        return Null;
    default:
        return Number;
    }
}

bool JsonView::isTrue(bool other) const
{
    return kind() == Bool ? *m_begin == 't' : other;
}

bool JsonView::readNumber(double* number) const
{
    bool isNumber = false;
    const double read =
        kind() == Number ? QByteArray(m_begin, int(m_end - m_begin)).toDouble(&isNumber) : 0;
    *number = isNumber ? read : *number;
    return isNumber;
}

QString JsonView::text() const
{
    return kind() == String ? unescaped(m_begin + 1, m_end - 1) : QString();
}

JsonView JsonView::member(const char* key) const
{
    JsonView found;
    if (kind() == Object) {
        forEach([&](const QString& name, const JsonView& value) {
            const bool isIt = name == QLatin1String(key);
            found = isIt ? value : found;
            return !isIt;
        });
    }
    return found;
}

void JsonView::forEach(
    const std::function<bool(const QString& key, const JsonView& value)>& visit) const
{
    const bool hasKeys = kind() == Object;
    if (!hasKeys && kind() != Array) {
        return;
    }
    const char* at = skipBlanks(m_begin + 1, m_end);
    while (*at != '}' && *at != ']') {
        QString key;
        if (hasKeys) {
            const char* const behind = textEnd(at);
            key = unescaped(at + 1, behind - 1);
            at = skipBlanks(behind, m_end) + 1;
            at = skipBlanks(at, m_end);
        }
        const char* const end = valueEnd(at, m_end);
        if (!visit(key, {at, end})) {
            return;
        }
        at = skipBlanks(end, m_end);
        at = *at == ',' ? skipBlanks(at + 1, m_end) : at;
    }
}

}  // namespace Family
