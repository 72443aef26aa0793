#include "family/grammar/motion.h"

#include <QStringList>

namespace Family {

namespace {

struct SignRow
{
    const char* text;
    quint8 sign;
};

// clang-format off
constexpr SignRow signRows[] = {
    {"D", MotionStep::Down},
    {"DF", MotionStep::Down | MotionStep::Forward},
    {"F", MotionStep::Forward},
    {"UF", MotionStep::Up | MotionStep::Forward},
    {"U", MotionStep::Up},
    {"UB", MotionStep::Up | MotionStep::Back},
    {"B", MotionStep::Back},
    {"DB", MotionStep::Down | MotionStep::Back},
    {"L", MotionStep::Light},
    {"M", MotionStep::Medium},
    {"H", MotionStep::Heavy},
    {"S", MotionStep::Start},
};
// clang-format on

quint8 signOf(const QString& text)
{
    for (const SignRow& row : signRows) {
        if (text == QLatin1String(row.text)) {
            return row.sign;
        }
    }
    return 0;
}

/// Reads the text after '~'.
bool readReleased(const QString& text, MotionStep* step)
{
    int digits = 0;
    while (digits < text.size() && text.at(digits) >= QLatin1Char('0') &&
           text.at(digits) <= QLatin1Char('9')) {
        ++digits;
    }
    bool isNumber = true;
    step->isReleased = true;
    step->held = digits > 0 ? text.left(digits).toInt(&isNumber) : 0;
    step->signs = signOf(text.mid(digits).trimmed());
    return step->signs != 0 && isNumber && step->held <= MotionStep::MostHeld;
}

bool readStep(const QString& text, MotionStep* step)
{
    if (text.startsWith(QLatin1Char('~'))) {
        return readReleased(text.mid(1).trimmed(), step);
    }
    return readSigns(text, &step->signs) && step->signs != 0;
}

}  // namespace

bool readMotion(const QString& text, Motion* motion, QString* fault)
{
    Motion steps;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        MotionStep step;
        if (!readStep(part.trimmed(), &step) || steps.size() == MostMotionSteps) {
            *fault = part.trimmed().isEmpty() ? text : part.trimmed();
            return false;
        }
        steps.append(step);
    }
    if (motion) {
        *motion = steps;
    }
    return true;
}

QString signText(quint8 signs)
{
    QStringList parts;
    for (const SignRow& row : signRows) {
        const bool isDirection = (row.sign & MotionStep::Directions) != 0;
        if (isDirection ? row.sign == (signs & MotionStep::Directions) : (row.sign & signs) != 0) {
            parts.append(QLatin1String(row.text));
        }
    }
    return parts.isEmpty() ? QStringLiteral("-") : parts.join(QLatin1String(" + "));
}

bool readSigns(const QString& text, quint8* signs)
{
    *signs = 0;
    if (text == QLatin1String("-")) {
        return true;
    }
    const QStringList parts = text.split(QLatin1Char('+'));
    for (const QString& part : parts) {
        const quint8 sign = signOf(part.trimmed());
        const bool isSecondDirection =
            (sign & MotionStep::Directions) != 0 && (*signs & MotionStep::Directions) != 0;
        if (sign == 0 || isSecondDirection || (*signs & sign) != 0) {
            return false;
        }
        *signs |= sign;
    }
    return true;
}

}  // namespace Family
