#include "support/codetext.h"

namespace CodeText {

namespace {

void appendGroup(QString& text, int number, int& line)
{
    text += QStringLiteral("# Numbers of part %1, found by play\n").arg(number);
    text += QLatin1String("[constants]\n");
    text +=
        QStringLiteral("life = %1\npower = %2  # most power\n").arg(900 + number % 100).arg(3000);
    text += QStringLiteral("gravity = 0.%1\n").arg(number % 90 + 10);
    text += QLatin1String("stance = orthodox\nscale = 1, 1.25\n[.walk]\n");
    text += QStringLiteral("forward = %1.5\nback = -%2\n\n").arg(number % 7).arg(number % 5);
    line += 11;
}

void appendAnimation(QString& text, int number, int& line)
{
    text += QStringLiteral("animation %1 \"Move %1\"\n").arg(number);
    for (int frame = 0; frame < 4; ++frame) {
        text += QStringLiteral("attack 10,-%1, 40,-%2\n").arg(80 + frame).arg(60 + frame);
        text += QStringLiteral("body -16,-88, 16,0\n");
        text += QStringLiteral("frame %1,%2  offset %2,0  delay 4\n").arg(number).arg(frame);
    }
    text += QLatin1Char('\n');
    line += 14;
}

}  // namespace

QString make(Form form, int lines)
{
    QString text;
    text.reserve(lines * 28);
    if (form == Form::OneHead) {
        text += QLatin1String("[constants]\n");
    }
    for (int line = form == Form::OneHead ? 1 : 0; line < lines;) {
        switch (form) {
        case Form::Mixed:
            appendGroup(text, line, line);
            appendAnimation(text, line, line);
            text += QLatin1String("this line has a fault\n");
            ++line;
            break;
        case Form::Comments:
            text += QStringLiteral("# comment number %1\n").arg(line++);
            break;
        case Form::OneHead:
            text += QStringLiteral("life = %1\n").arg(100 + line++ % 900);
            break;
        case Form::Bad:
            text += QStringLiteral("fault %1 =\n").arg(line++);
            break;
        }
    }
    text.chop(1);
    return text;
}

QString makeIni(int lines)
{
    QString text;
    text.reserve(lines * 28);
    for (int line = 0; line < lines; ++line) {
        switch (line % 10) {
        case 0:
            text += QLatin1String("[constants]\n");
            break;
        case 4:
            text += QStringLiteral("# line %1 of the table\n").arg(line);
            break;
        default:
            text += QStringLiteral("life = %1  # points\n").arg(100 + line % 900);
            break;
        }
    }
    text.chop(1);
    return text;
}

}  // namespace CodeText
