#include "family/grammar/keyinfo.h"

#include <QCoreApplication>

namespace Family {

namespace {

using Type = Zorv::ValueCode::Type;
using Zorv::ValueCode;

struct FormRow
{
    Form form;
    Type type;
    int elements;
    const char* text;
};

constexpr FormRow formRows[] = {
    {Form::Text, ValueCode::Text, 1, QT_TRANSLATE_NOOP("Family", "a text in double quotes")},
    {Form::MotionText, ValueCode::Text, 1,
     QT_TRANSLATE_NOOP("Family", "a motion in double quotes, such as \"D, DF, F, L\"")},
    {Form::Path, ValueCode::Text, 1,
     QT_TRANSLATE_NOOP("Family", "the path of a file in double quotes")},
    {Form::Name, ValueCode::Text, 1, QT_TRANSLATE_NOOP("Family", "a name")},
    {Form::AnimationName, ValueCode::Text, 1,
     QT_TRANSLATE_NOOP("Family", "the number or name of an animation")},
    {Form::CommandName, ValueCode::Text, 1, QT_TRANSLATE_NOOP("Family", "the name of a command")},
    {Form::MoveName, ValueCode::Text, 1, QT_TRANSLATE_NOOP("Family", "the name of a move")},
    {Form::Choice, ValueCode::Choice, 1, QT_TRANSLATE_NOOP("Family", "one of %1")},
    {Form::Date, ValueCode::Date, 1, QT_TRANSLATE_NOOP("Family", "a day such as 2024-05-31")},
    {Form::Count, ValueCode::Unsigned, 1,
     QT_TRANSLATE_NOOP("Family", "a whole number without sign")},
    {Form::Percent, ValueCode::Unsigned, 1,
     QT_TRANSLATE_NOOP("Family", "a percentage such as 80%")},
    {Form::Colour, ValueCode::Unsigned, 1,
     QT_TRANSLATE_NOOP("Family", "a colour such as 0xff8040")},
    {Form::Colours, ValueCode::UnsignedVector, 0,
     QT_TRANSLATE_NOOP("Family", "colours such as 0xff8040 with commas between")},
    {Form::Real, ValueCode::Real, 1, QT_TRANSLATE_NOOP("Family", "a number")},
    {Form::RealPoint, ValueCode::RealPoint, 2, QT_TRANSLATE_NOOP("Family", "two numbers, x and y")},
    {Form::RealPair, ValueCode::RealPair, 2, QT_TRANSLATE_NOOP("Family", "two numbers")},
    {Form::RealTriple, ValueCode::RealTriple, 3, QT_TRANSLATE_NOOP("Family", "three numbers")},
    {Form::Reals, ValueCode::RealVector, 0,
     QT_TRANSLATE_NOOP("Family", "numbers with commas between")},
    {Form::Int, ValueCode::Int, 1, QT_TRANSLATE_NOOP("Family", "a whole number")},
    {Form::Point, ValueCode::Point, 2, QT_TRANSLATE_NOOP("Family", "two whole numbers, x and y")},
    {Form::Pair, ValueCode::IntPair, 2, QT_TRANSLATE_NOOP("Family", "two whole numbers")},
    {Form::Quad, ValueCode::IntQuad, 4,
     QT_TRANSLATE_NOOP("Family", "four whole numbers: left, top, right and bottom")},
    {Form::Ints, ValueCode::IntVector, 0,
     QT_TRANSLATE_NOOP("Family", "whole numbers with commas between")},
    {Form::Any, ValueCode::Text, 1, QT_TRANSLATE_NOOP("Family", "a value")},
};

const FormRow& rowOf(Form form)
{
    return formRows[int(form)];
}

/// Finds `word` in `list`, whose parts are separated by '|'. If `mark` is not null, the word ends
/// before it, and `rest` receives the part after it.
bool findPart(QLatin1String list, const QStringRef& word, char mark, QLatin1String* rest)
{
    const char* const end = list.data() + list.size();
    for (const char* part = list.data(); part < end;) {
        const char* stop = part;
        const char* wordEnd = nullptr;
        while (stop < end && *stop != '|') {
            if (mark && *stop == mark) {
                wordEnd = stop;
            }
            ++stop;
        }
        const char* const behind = wordEnd ? wordEnd : stop;
        if (word == QLatin1String(part, int(behind - part))) {
            *rest = wordEnd ? QLatin1String(wordEnd + 1, int(stop - wordEnd - 1))
                            : QLatin1String(part, int(stop - part));
            return true;
        }
        part = stop + 1;
    }
    return false;
}

}  // namespace

QStringList KeyInfo::choiceList() const
{
    return QString(choices).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

QLatin1String KeyInfo::choice(const QStringRef& word) const
{
    QLatin1String result;
    if (!word.isEmpty() && !findPart(choices, word, 0, &result)) {
        findPart(oldChoices, word, '=', &result);
    }
    return result;
}

QString KeyInfo::expectation() const
{
    QString text = QCoreApplication::translate("Family", rowOf(form).text);
    if (form == Form::Choice) {
        text.replace(QLatin1String("%1"), choiceList().join(QLatin1String(", ")));
    }
    if (hasRange()) {
        text += QCoreApplication::translate("Family", " from %1 to %2")
                    .arg(QString::number(minimum), QString::number(maximum, 'g', 10));
    }
    return text;
}

QString KeyInfo::meaning() const
{
    return translatedDescription(description);
}

Zorv::ValueCode::Type KeyInfo::valueType() const
{
    return rowOf(form).type;
}

QString translatedDescription(QLatin1String description)
{
    return QCoreApplication::translate("Grammar", description.data());
}

int elementCount(Form form)
{
    return rowOf(form).elements;
}

}  // namespace Family
