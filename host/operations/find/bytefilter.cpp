#include "operations/find/bytefilter.h"

#include "operations/find/findpattern.h"

#include <algorithm>
#include <cstring>
#include <functional>

// Uses Horspool's search. The file byte under the last byte of the part determines how far the part
// can be moved on, so that most bytes are never read.

namespace Operations {

namespace {

constexpr quint64 HighBits = 0x8080808080808080;

/// The position of the first non-ASCII byte, or the size.
int asciiEnd(const char* data, int from, int size)
{
    int at = from;
    for (; at + 8 <= size; at += 8) {
        quint64 word;
        std::memcpy(&word, data + at, sizeof word);
        if (word & HighBits) {
            break;
        }
    }
    while (at < size && !(uchar(data[at]) & 0x80)) {
        ++at;
    }
    return at;
}

/// The length of the character that starts with a non-ASCII byte; 0 if it is not valid UTF-8.
int characterLength(const char* data, int left)
{
    const auto first = uchar(data[0]);
    const int length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || left < length) {
        return 0;
    }
    for (int i = 1; i < length; ++i) {
        if ((uchar(data[i]) & 0xc0) != 0x80) {
            return 0;
        }
    }
    const auto second = uchar(data[1]);
    const bool isWrong = (first == 0xe0 && second < 0xa0) || (first == 0xed && second > 0x9f) ||
                         (first == 0xf0 && second < 0x90) || (first == 0xf4 && second > 0x8f);
    return isWrong ? 0 : length;
}

/// Seven-bit encodings and UTF-16 or UTF-32 look like ASCII, except for these bytes.
bool hasShifts(const char* data, int size)
{
    const auto has = [&](char byte) { return std::memchr(data, byte, size_t(size)) != nullptr; };
    return has('\0') || has('\x1b') || (has('~') && memmem(data, size_t(size), "~{", 2));
}

QByteArray longestRun(const QString& text, const std::function<bool(QChar)>& belongs)
{
    QString longest;
    for (int start = 0; start < text.size();) {
        int end = start;
        while (end < text.size() && belongs(text.at(end))) {
            ++end;
        }
        if (end - start > longest.size()) {
            longest = text.mid(start, end - start);
        }
        start = end + 1;
    }
    return longest.toUtf8();
}

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

bool isAscii(QChar c)
{
    return c.unicode() < 0x80 && !isLineEnd(c);
}

/// Without case, k and s also match a non-ASCII character: Kelvin sign and long s.
bool hasCaseBeyondAscii(QChar c)
{
    return QByteArrayLiteral("kKsS").contains(c.toLatin1());
}

}  // namespace

ByteKind kindOfBytes(const char* data, int size)
{
    int at = asciiEnd(data, 0, size);
    if (at == size) {
        return hasShifts(data, size) ? ByteKind::Other : ByteKind::Ascii;
    }
    while (at < size) {
        const int length = characterLength(data + at, size - at);
        if (length == 0) {
            return ByteKind::Other;
        }
        at = asciiEnd(data, at + length, size);
    }
    return ByteKind::Utf8;
}

ByteFilter::ByteFilter(const FindPattern& pattern)
{
    const bool matchesCase = pattern.options() & FindPattern::MatchCase;
    const QString text = pattern.options() & FindPattern::Expression ? QString() : pattern.text();
    if (matchesCase) {
        const QByteArray part = longestRun(text, [](QChar c) { return !isLineEnd(c); });
        m_inAscii.set(part, true);
        m_inUtf8.set(part, true);
        return;
    }
    m_inAscii.set(longestRun(text, isAscii), false);
    m_inUtf8.set(longestRun(text, [](QChar c) { return isAscii(c) && !hasCaseBeyondAscii(c); }),
                 false);
}

bool ByteFilter::mayMatch(const char* data, int size, ByteKind kind) const
{
    switch (kind) {
    case ByteKind::Ascii:
        return m_inAscii.isIn(data, size);
    case ByteKind::Utf8:
        return m_inUtf8.isIn(data, size);
    case ByteKind::Other:
        break;
    }
    return true;
}

void ByteFilter::Part::set(const QByteArray& part, bool matchesCase)
{
    for (int i = 0; i < 256; ++i) {
        const bool isCapital = !matchesCase && i >= 'A' && i <= 'Z';
        folded[size_t(i)] = uchar(isCapital ? i + ('a' - 'A') : i);
    }
    bytes = part;
    for (char& byte : bytes) {
        byte = char(folded[uchar(byte)]);
    }
    const int last = bytes.size() - 1;
    steps.fill(uchar(std::min(std::max(last + 1, 1), 255)));
    for (int i = 0; i < 256; ++i) {
        const int at = last > 0 ? bytes.lastIndexOf(char(folded[size_t(i)]), last - 1) : -1;
        if (at >= 0) {
            steps[size_t(i)] = uchar(std::min(last - at, 255));
        }
    }
}

bool ByteFilter::Part::isIn(const char* data, int size) const
{
    const int last = bytes.size() - 1;
    if (last < 0) {
        return true;
    }
    const auto end = uchar(bytes.at(last));
    for (int at = last; at < size; at += steps[uchar(data[at])]) {
        if (folded[uchar(data[at])] != end) {
            continue;
        }
        int i = 0;
        while (i < last && folded[uchar(data[at - last + i])] == uchar(bytes.at(i))) {
            ++i;
        }
        if (i == last) {
            return true;
        }
    }
    return false;
}

}  // namespace Operations
