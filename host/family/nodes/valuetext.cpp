#include "family/nodes/valuetext.h"

#include "family/grammar/numbers.h"
#include "family/grammar/valuereader.h"

#include <QCoreApplication>
#include <QDate>
#include <QPoint>
#include <QPointF>
#include <QRect>

namespace Family {

namespace {

bool isQuoted(Form form)
{
    return form == Form::Text || form == Form::MotionText || form == Form::Path;
}

QString numberText(Form form, const QVariant& number)
{
    switch (form) {
    case Form::Colour:
    case Form::Colours:
        return hexText(number.toUInt());
    case Form::Percent:
        return QString::number(number.toUInt()) + QLatin1Char('%');
    case Form::Real:
    case Form::RealPoint:
    case Form::RealPair:
    case Form::RealTriple:
    case Form::Reals:
        return realText(number.toDouble());
    case Form::Count:
        return QString::number(number.toLongLong());
    default:
        return number.userType() == QMetaType::Double ? realText(number.toDouble())
                                                      : QString::number(number.toLongLong());
    }
}

/// Reads code that must contain the value and nothing else.
QVariant readWhole(const KeyInfo& key, const QString& code, QString* error)
{
    LineDetails details;
    LineReport report(nullptr, &details);
    LineScanner scanner(code);
    QVariant value;
    const bool fine = ValueReader(scanner, report).read(key, &value);
    scanner.skipBlanks();
    if (fine && scanner.position() < scanner.size()) {
        const QStringRef rest = scanner.part(scanner.position(), scanner.size());
        *error = QCoreApplication::translate("Family", "Expected %1 and nothing else; found '%2'.")
                     .arg(key.expectation(), rest.toString());
        return {};
    }
    if (fine) {
        return value;
    }
    *error = QCoreApplication::translate("Family", "Expected %1; found '%2'.")
                 .arg(key.expectation(), code);
    return {};
}

}  // namespace

QVariantList numbersOf(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QPoint:
        return {value.toPoint().x(), value.toPoint().y()};
    case QMetaType::QPointF:
        return {value.toPointF().x(), value.toPointF().y()};
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        return {rect.left(), rect.top(), rect.right(), rect.bottom()};
    }
    case QMetaType::QVariantList:
        return value.toList();
    default:
        return {value};
    }
}

bool canQuote(const QString& text)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool separator = code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
        if (separator || code == 0xfdd0 || code == 0xfdd1 ||
            (code < 32 && code != '\n' && code != '\t')) {
            return false;
        }
    }
    return true;
}

QString quotedText(const QString& text)
{
    QString result(QLatin1Char('"'));
    for (const QChar character : text) {
        if (character == QLatin1Char('\n')) {
            result += QLatin1String("\\n");
            continue;
        }
        if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            result += QLatin1Char('\\');
        }
        result += character;
    }
    return result + QLatin1Char('"');
}

QStringList elementTexts(const KeyInfo& key, const QVariant& value)
{
    switch (key.form) {
    case Form::Text:
    case Form::MotionText:
    case Form::Path:
        return {quotedText(value.toString())};
    case Form::Name:
    case Form::AnimationName:
    case Form::CommandName:
    case Form::MoveName:
    case Form::Choice:
    case Form::Any:
        return {value.toString()};
    case Form::Date:
        return {value.toDate().toString(Qt::ISODate)};
    default:
        break;
    }
    QStringList result;
    const QVariantList numbers = numbersOf(value);
    for (const QVariant& number : numbers) {
        result += numberText(key.form, number);
    }
    return result;
}

QVariant normalized(const KeyInfo& key, const QVariant& value)
{
    if (isQuoted(key.form)) {
        return canQuote(value.toString()) ? QVariant(value.toString()) : QVariant();
    }
    QString error;
    return readWhole(key, elementTexts(key, value).join(QLatin1String(", ")), &error);
}

QVariant valueFromText(const KeyInfo& key, const QString& text, QString* error)
{
    if (!isQuoted(key.form)) {
        return readWhole(key, text, error);
    }
    if (!canQuote(text)) {
        *error =
            QCoreApplication::translate("Family", "Expected a text without control characters.");
        return {};
    }
    return text;
}

QString textFromValue(const KeyInfo& key, const QVariant& value)
{
    return isQuoted(key.form) ? value.toString()
                              : elementTexts(key, value).join(QLatin1String(", "));
}

}  // namespace Family
