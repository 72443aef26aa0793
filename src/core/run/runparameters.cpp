#include "core/run/runparameters_p.h"

#include <QRegularExpression>

namespace Zorv {

namespace {

QRegularExpressionMatchIterator marksOf(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%([0-9]{1,2})"));
    return mark.globalMatch(text);
}

QString withTexts(const QString& argument, const QMap<unsigned, QString>& texts)
{
    QString result;
    int end = 0;
    for (QRegularExpressionMatchIterator marks = marksOf(argument); marks.hasNext();) {
        const QRegularExpressionMatch match = marks.next();
        const auto text = texts.constFind(match.captured(1).toUInt());
        result += argument.mid(end, match.capturedStart() - end);
        result += text == texts.cend() ? match.captured() : *text;
        end = match.capturedEnd();
    }
    return result + argument.mid(end);
}

}  // namespace

QVector<unsigned> runMarks(const QString& parameters)
{
    QVector<unsigned> numbers;
    for (QRegularExpressionMatchIterator marks = marksOf(parameters); marks.hasNext();) {
        const unsigned number = marks.next().captured(1).toUInt();
        if (!numbers.contains(number)) {
            numbers.append(number);
        }
    }
    return numbers;
}

QStringList runArguments(const QString& parameters, const QMap<unsigned, QString>& texts)
{
    QStringList arguments = parameters.split(QLatin1Char(' '));
    for (QString& argument : arguments) {
        argument = withTexts(argument, texts);
    }
    return arguments;
}

}  // namespace Zorv
