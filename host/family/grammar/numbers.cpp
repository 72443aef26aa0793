#include "family/grammar/numbers.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace Family {

namespace {

constexpr int mostDigits = 18;
constexpr quint64 exactMantissa = quint64(1) << 53;

int digitOf(QChar character)
{
    const int digit = int(character.unicode()) - '0';
    return digit >= 0 && digit <= 9 ? digit : -1;
}

bool skipSign(const QStringRef& text, int* position)
{
    const QChar first = text.isEmpty() ? QChar() : text.at(0);
    const bool negative = first == QLatin1Char('-');
    *position = negative || first == QLatin1Char('+') ? 1 : 0;
    return negative;
}

/// Fast path: a number of few digits without exponent is exact with a single division, because the
/// digits and the power of ten both fit into a double exactly.
bool toShortReal(const QStringRef& text, double* value)
{
    static constexpr double powers[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    int position = 0;
    const bool negative = skipSign(text, &position);
    quint64 mantissa = 0;
    int digits = 0;
    int decimals = -1;
    for (; position < text.size(); ++position) {
        if (text.at(position) == QLatin1Char('.') && decimals < 0) {
            decimals = 0;
            continue;
        }
        const int digit = digitOf(text.at(position));
        if (digit < 0 || ++digits > 15) {
            return false;
        }
        mantissa = mantissa * 10 + unsigned(digit);
        decimals += decimals >= 0 ? 1 : 0;
    }
    if (digits == 0 || mantissa >= exactMantissa) {
        return false;
    }
    const double size = double(mantissa) / powers[decimals > 0 ? decimals : 0];
    *value = negative ? -size : size;
    return true;
}

}  // namespace

bool toWhole(const QStringRef& text, qint64* value)
{
    int position = 0;
    const bool negative = skipSign(text, &position);
    if (position >= text.size()) {
        return false;
    }
    qint64 size = 0;
    int digits = 0;
    for (; position < text.size(); ++position) {
        const int digit = digitOf(text.at(position));
        if (digit < 0) {
            return false;
        }
        digits += digits > 0 || digit > 0 ? 1 : 0;
        if (digits <= mostDigits) {
            size = size * 10 + digit;
        }
    }
    if (digits > mostDigits) {
        size = std::numeric_limits<qint64>::max();
    }
    *value = negative ? -size : size;
    return true;
}

bool toReal(const QStringRef& text, double* value)
{
    if (toShortReal(text, value)) {
        return true;
    }
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool known = (code >= '0' && code <= '9') || code == '.' || code == '-' ||
                           code == '+' || code == 'e' || code == 'E';
        if (!known) {
            return false;
        }
    }
    bool ok = false;
    *value = text.toDouble(&ok);
    return ok && std::isfinite(*value);
}

bool toHex(const QStringRef& text, quint32* value)
{
    if (text.size() < 3 || text.size() > 10 || text.at(0) != QLatin1Char('0') ||
        text.at(1).toLower() != QLatin1Char('x')) {
        return false;
    }
    quint32 result = 0;
    for (int i = 2; i < text.size(); ++i) {
        const ushort code = text.at(i).toLower().unicode();
        const bool letter = code >= 'a' && code <= 'f';
        if (!letter && (code < '0' || code > '9')) {
            return false;
        }
        result = result * 16 + (letter ? code - 'a' + 10u : code - '0');
    }
    *value = result;
    return true;
}

QString realText(double value)
{
    if (value == 0) {
        return QStringLiteral("0");
    }
    const QString shortest = QString::number(value, 'g', QLocale::FloatingPointShortest);
    if (!shortest.contains(QLatin1Char('e'))) {
        return shortest;
    }
    const QString plain = QString::number(value, 'f', QLocale::FloatingPointShortest);
    return plain.size() <= 20 ? plain : shortest;
}

QString hexText(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 6, 16, QLatin1Char('0'));
}

}  // namespace Family
