#include "operations/media/selection.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace Operations {

namespace {

const int MaxPart = 65535;

quint32 keyOf(int group, int number)
{
    return quint32(group) << 16 | quint32(number);
}

}  // namespace

bool Selection::add(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,5})(?:-(\\d{1,5})|,(\\d{1,5}))?$"));
    QVector<Range> ranges;
    QVector<quint32> ids;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        const QRegularExpressionMatch match = form.match(word);
        if (!match.hasMatch()) {
            return false;
        }
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        const int number = match.captured(3).isEmpty() ? -1 : match.captured(3).toInt();
        if (qMax(last, number) > MaxPart || first > last) {
            return false;
        }
        if (number < 0) {
            ranges.append({first, last});
        } else {
            ids.append(keyOf(first, number));
        }
    }
    m_ranges += ranges;
    for (quint32 id : qAsConst(ids)) {
        m_ids.insert(id);
    }
    return !words.isEmpty();
}

bool Selection::contains(int group, int number) const
{
    return isAll() || m_ids.contains(keyOf(group, number)) ||
           std::any_of(m_ranges.begin(), m_ranges.end(), [=](const Range& range) {
               return group >= range.first && group <= range.last;
           });
}

bool parseIdentifier(const QString& text, int* group, int* number)
{
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,5})\\s*,\\s*(\\d{1,5})\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    *group = match.captured(1).toInt();
    *number = match.captured(2).toInt();
    return match.hasMatch() && qMax(*group, *number) <= MaxPart;
}

}  // namespace Operations
