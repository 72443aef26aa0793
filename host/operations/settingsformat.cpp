// A settings file has sections with lines "key=value". In keys, special characters are "%XX" or
// "%UXXXX", and a backslash means a slash. In values, escapes are as in C. A value with commas
// outside of quotes is a list. A value that starts with "@" is not a text: its bytes are in
// brackets after the type name. "@@" is a literal "@".

#include "operations/settingsformat.h"

#include <QDataStream>
#include <QFileDevice>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace Operations {

namespace {

using Settings = QSettings::SettingsMap;

const QByteArray General("General");
const QByteArray BytesMark("@ByteArray(");
const QByteArray TextMark("@String(");
const QByteArray VariantMark("@Variant(");
const QByteArray Nothing("@Invalid()");
constexpr char Letters[] = "abfnrtv";
constexpr char Codes[] = "\a\b\f\n\r\t\v";

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isHex(QChar c)
{
    return c.unicode() < 128 && std::isxdigit(c.unicode());
}

// Keys

QByteArray escapedKey(const QString& key)
{
    QByteArray text;
    for (const QChar c : key) {
        const bool isPlain =
            c.unicode() < 128 && (std::isalnum(c.unicode()) || c == '_' || c == '-' || c == '.');
        if (isPlain) {
            text += c.toLatin1();
        } else if (c == QLatin1Char('/')) {
            text += '\\';
        } else {
            const bool isWide = c.unicode() > 0xff;
            text += isWide ? "%U" : "%";
            text +=
                QByteArray::number(c.unicode(), 16).rightJustified(isWide ? 4 : 2, '0').toUpper();
        }
    }
    return text;
}

QString unescapedKey(const QByteArray& text)
{
    QString key;
    for (int i = 0; i < text.size(); ++i) {
        const bool isWide = text.mid(i, 2) == "%U";
        const int digits = isWide ? 4 : 2;
        const int start = i + digits / 2;
        bool isCode = false;
        const int code = text.mid(start, digits).toInt(&isCode, 16);
        if (text.at(i) == '%' && isCode && start + digits <= text.size()) {
            key += QChar(code);
            i = start + digits - 1;
        } else {
            key += text.at(i) == '\\' ? QLatin1Char('/') : QLatin1Char(text.at(i));
        }
    }
    return key;
}

// Values

QByteArray escapedText(const QString& value)
{
    QByteArray text;
    bool isOpen = false;  // after a \x escape: a hex digit would be read as part of it
    for (const QChar c : value) {
        const char* code =
            c.unicode() && c.unicode() < 128 ? std::strchr(Codes, c.unicode()) : nullptr;
        const bool isNumber = c.unicode() < 0x20 || c.unicode() > 0x7e || (isOpen && isHex(c));
        if (code) {
            text += '\\';
            text += Letters[code - Codes];
        } else if (isNumber) {
            text += "\\x" + QByteArray::number(c.unicode(), 16);
        } else {
            text += c == '"' || c == '\\' ? "\\" : "";
            text += c.toLatin1();
        }
        isOpen = !code && isNumber;
    }
    const bool isQuoted = text.isEmpty() || text.startsWith(' ') || text.endsWith(' ') ||
                          std::any_of(text.begin(), text.end(),
                                      [](char c) { return std::strchr(";,=", c) != nullptr; });
    return isQuoted ? '"' + text + '"' : text;
}

QByteArray escapedValue(const QVariant& value)
{
    const auto marked = [](const QByteArray& mark, const QByteArray& bytes) {
        const QByteArray text = mark + bytes + ')';
        return escapedText(QString::fromLatin1(text.constData(), text.size()));
    };
    switch (int(value.type())) {
    case QVariant::Invalid:
        return Nothing;
    case QVariant::ByteArray:
        return marked(BytesMark, value.toByteArray());
    case QVariant::String:
    case QVariant::Bool:
    case QVariant::Int:
    case QVariant::UInt:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::Double: {
        const QString text = value.toString();
        return escapedText(text.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + text : text);
    }
    case QVariant::StringList: {
        QByteArrayList texts;
        const QStringList list = value.toStringList();
        for (const QString& text : list) {
            texts.append(escapedValue(text));
        }
        return texts.isEmpty() ? Nothing : texts.join(", ");
    }
    default: {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        stream << value;
        return marked(VariantMark, bytes);
    }
    }
}

/// Parses a value, item by item between commas.
class ValueReader
{
public:
    explicit ValueReader(const QByteArray& text) : m_text(text) {}

    QStringList values()
    {
        QStringList found;
        do {
            found.append(next());
        } while (m_at < m_text.size() && m_text.at(m_at++) == ',');
        return found;
    }

private:
    QString next()
    {
        QString value;
        bool isInQuotes = false;
        int kept = 0;  // trailing blanks after this position are dropped
        for (; m_at < m_text.size(); ++m_at) {
            const char c = m_text.at(m_at);
            if (!isInQuotes && (c == ',' || c == ';')) {
                break;
            }
            if (c == '"') {
                isInQuotes = !isInQuotes;
            } else if (c == '\\' && m_at + 1 < m_text.size()) {
                value += escape();
            } else if (isInQuotes || !isBlank(c) || !value.isEmpty()) {
                value += QLatin1Char(c);
            }
            kept = isInQuotes || !isBlank(c) ? value.size() : kept;
        }
        return value.left(kept);
    }

    QChar escape()
    {
        const char letter = m_text.at(++m_at);
        const bool isHexCode = letter == 'x';
        const int base = isHexCode ? 16 : 8;
        const int start = isHexCode ? m_at + 1 : m_at;
        int end = start;
        while (end < m_text.size() && std::isxdigit(uchar(m_text.at(end))) &&
               (isHexCode || (m_text.at(end) >= '0' && m_text.at(end) < '8'))) {
            ++end;
        }
        if (end > start) {
            m_at = end - 1;
            return QChar(m_text.mid(start, end - start).toUInt(nullptr, base) & 0xffff);
        }
        const char* const known = std::strchr(Letters, letter);
        return QLatin1Char(known ? Codes[known - Letters] : letter);
    }

    const QByteArray m_text;
    int m_at = 0;
};

QVariant typedValue(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    const auto inside = [&bytes](const QByteArray& mark) {
        return bytes.mid(mark.size(), bytes.size() - mark.size() - 1);
    };
    if (bytes.startsWith(BytesMark) && bytes.endsWith(')')) {
        return inside(BytesMark);
    }
    if (bytes.startsWith(VariantMark) && bytes.endsWith(')')) {
        QDataStream stream(inside(VariantMark));
        stream.setVersion(QDataStream::Qt_4_0);
        QVariant value;
        stream >> value;
        return value;
    }
    if (bytes.startsWith(TextMark) && bytes.endsWith(')')) {
        return text.mid(TextMark.size(), text.size() - TextMark.size() - 1);
    }
    if (bytes == Nothing) {
        return {};
    }
    return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
}

QVariant unescapedValue(const QByteArray& text)
{
    const QStringList texts = ValueReader(text).values();
    if (texts.size() == 1) {
        return typedValue(texts.first());
    }
    QStringList list;
    for (const QString& value : texts) {
        list.append(typedValue(value).toString());
    }
    return list;
}

// Files

QString sectionOf(const QByteArray& name)
{
    if (name.compare(General, Qt::CaseInsensitive) == 0) {
        return {};
    }
    const bool isNamedSo = name.compare('%' + General, Qt::CaseInsensitive) == 0;
    return (isNamedSo ? QString::fromLatin1(General) : unescapedKey(name)) + QLatin1Char('/');
}

/// Skips invalid lines. If it returned false, QSettings would discard all settings, and the next
/// change would write a file without them.
bool readSettings(QIODevice& device, Settings& settings)
{
    QString section;
    const QList<QByteArray> lines = device.readAll().split('\n');
    for (const QByteArray& whole : lines) {
        const QByteArray line = whole.trimmed();
        const int sign = line.indexOf('=');
        if (line.startsWith('[')) {
            section = sectionOf(line.mid(1).split(']').first().trimmed());
        } else if (sign >= 0 && !line.startsWith(';')) {
            const QString key = section + unescapedKey(line.left(sign).trimmed());
            settings.insert(key, unescapedValue(line.mid(sign + 1)));
        }
    }
    return true;
}

// The device is a QSaveFile. It does not check whether its buffer could be written, hence the
// flush.
bool writeSettings(QIODevice& device, const Settings& settings)
{
    QMap<QString, QByteArray> sections;
    for (auto entry = settings.cbegin(); entry != settings.cend(); ++entry) {
        const int slash = entry.key().indexOf(QLatin1Char('/'));
        const QString section = entry.key().left(std::max(slash, 0));
        sections[section] +=
            escapedKey(entry.key().mid(slash + 1)) + '=' + escapedValue(entry.value()) + '\n';
    }
    QByteArray text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        const QByteArray name = escapedKey(section.key());
        const bool isNamedSo = name.compare(General, Qt::CaseInsensitive) == 0;
        text += text.isEmpty() ? "[" : "\n[";
        text += name.isEmpty() ? General : isNamedSo ? '%' + General : name;
        text += "]\n" + *section;
    }
    auto* file = qobject_cast<QFileDevice*>(&device);
    return device.write(text) == text.size() && (!file || file->flush());
}

}  // namespace

QSettings::Format settingsFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("conf"), readSettings, writeSettings);
    return format;
}

}  // namespace Operations
