#include "family/grammar/framereader.h"

#include "family/grammar/grammar.h"

#include <QCoreApplication>

namespace Family {

using Syntax = Zorv::CodeParserSyntax;

namespace {

using L = QLatin1String;

constexpr int mostTicks = 32767;

const FrameOption options[] = {
    {L("offset"), L(), 2, true, LeastPlace, MostPlace,
     L(QT_TRANSLATE_NOOP("Grammar", "Place of the sprite beside the axis: x and y"))},
    {L("delay"), L("time"), 1, true, -1, mostTicks,
     L(QT_TRANSLATE_NOOP("Grammar", "Ticks for which it is shown; -1 never ends"))},
    {L("flip"), L(), 0, false, 0, 0, L(QT_TRANSLATE_NOOP("Grammar", "How the sprite is mirrored"))},
    {L("scale"), L(), 2, false, -64, 64,
     L(QT_TRANSLATE_NOOP("Grammar", "Stretch across and down; below 0 mirrors"))},
    {L("angle"), L(), 1, false, -3600, 3600,
     L(QT_TRANSLATE_NOOP("Grammar", "Degrees, counterclockwise"))},
    {L("loop"), L(), 0, false, 0, 0,
     L(QT_TRANSLATE_NOOP("Grammar", "The animation starts again here"))},
};

int optionIndex(const QStringRef& name)
{
    for (int i = 0; i < FrameOptionCount; ++i) {
        if (name == options[i].name || (options[i].oldName.size() && name == options[i].oldName)) {
            return i;
        }
    }
    return -1;
}

constexpr int horizontally = Zorv::FrameCode::FlipHorizontally;
constexpr int vertically = Zorv::FrameCode::FlipVertically;

struct FlipWord
{
    L word;
    int flip;
    bool old;
    L description;
};

const FlipWord flipWords[] = {
    {L("h"), horizontally, false, L(QT_TRANSLATE_NOOP("Grammar", "Mirrored, left and right"))},
    {L("v"), vertically, false, L(QT_TRANSLATE_NOOP("Grammar", "Mirrored, top and bottom"))},
    {L("hv"), horizontally | vertically, false,
     L(QT_TRANSLATE_NOOP("Grammar", "Mirrored both ways"))},
    {L("x"), horizontally, true, L()},
    {L("y"), vertically, true, L()},
};

}  // namespace

const FrameOption& frameOption(int index)
{
    return options[index];
}

QString flipText(int flip)
{
    for (const FlipWord& word : flipWords) {
        if (word.flip == flip) {
            return word.word;
        }
    }
    return {};
}

QVector<FlipChoice> flipChoices()
{
    QVector<FlipChoice> choices;
    for (const FlipWord& word : flipWords) {
        if (!word.old) {
            choices.append({word.word, word.description});
        }
    }
    return choices;
}

/// Uses the same words as values of a similar form.
QString FrameOption::expectation() const
{
    if (numbers == 0) {
        QStringList words;
        for (const FlipWord& word : flipWords) {
            if (this == &options[FlipOption] && !word.old) {
                words.append(word.word);
            }
        }
        return words.join(QLatin1String(", "));
    }
    const Form form =
        numbers == 2 ? (whole ? Form::Point : Form::RealPoint) : (whole ? Form::Int : Form::Real);
    return KeyInfo{name, form, KeyInfo::NoFlags, minimum, maximum, {}, {}, {}, {}}.expectation();
}

bool FrameReader::read(FrameData* frame)
{
    if (!readSprite(frame)) {
        return false;
    }
    m_scanner.skipBlanks();
    while (!m_scanner.atCodeEnd()) {
        if (!readOption(frame)) {
            return false;
        }
        m_scanner.skipBlanks();
    }
    return true;
}

bool FrameReader::readSprite(FrameData* frame)
{
    m_scanner.skipBlanks();
    const int start = m_scanner.position();
    const QChar next = m_scanner.current();
    if (m_scanner.atCodeEnd() || !(next.isDigit() || next == QLatin1Char('-'))) {
        if (m_report.wantsProblems()) {
            const int begin = m_scanner.atCodeEnd() ? start - 1 : start;
            m_scanner.chunk();
            m_report.problem(ProblemId::FrameSprite, {}, begin, m_scanner.position());
        }
        return false;
    }
    qint64 numbers[2];
    if (!m_values.readWholes(2, 0, MostSprite, numbers)) {
        return false;
    }
    m_report.part(LinePart::Sprite, 0, start, m_scanner.position());
    frame->group = int(numbers[0]);
    frame->number = int(numbers[1]);
    return true;
}

bool FrameReader::optionUnknown(int start)
{
    if (m_report.wantsProblems()) {
        m_scanner.chunk();
        const QStringRef found = m_scanner.part(start, m_scanner.position());
        m_report.problem(ProblemId::OptionUnknown,
                         {found.toString(), nameHint(found.toString(), Grammar::frameOptions())},
                         start, m_scanner.position());
    }
    return false;
}

bool FrameReader::readOption(FrameData* frame)
{
    const int start = m_scanner.position();
    const QStringRef word = m_scanner.word();
    const int index = optionIndex(word);
    const int end = m_scanner.position();
    if (index < 0) {
        return optionUnknown(start);
    }
    const FrameOption& option = options[index];
    if (m_seen & (1u << index)) {
        if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::OptionTwice, {option.name}, start, end);
        }
        return false;
    }
    m_seen |= 1u << index;
    if (word == option.name) {
        m_report.token(Syntax::Identifier, start, end);
    } else if (m_report.wantsProblems()) {
        m_report.problem(ProblemId::OptionOld, {word.toString(), option.name}, start, end,
                         Syntax::Identifier);
    }
    m_scanner.skipBlanks();
    if (index == LoopOption) {
        m_scanner.setPosition(end);
    }
    const bool fine = readContent(index, frame);
    if (fine) {
        m_report.part(LinePart::Option, index, start, m_scanner.position());
    }
    return fine;
}

bool FrameReader::readContent(int index, FrameData* frame)
{
    const FrameOption& option = options[index];
    const int start = m_scanner.position();
    qint64 wholes[2] = {};
    double reals[2] = {};
    if (option.numbers > 0) {
        const bool fine =
            option.whole
                ? m_values.readWholes(option.numbers, option.minimum, option.maximum, wholes)
                : m_values.readReals(option.numbers, option.minimum, option.maximum, reals);
        if (!fine) {
            return false;
        }
    }
    switch (index) {
    case OffsetOption:
        frame->offset = QPoint(int(wholes[0]), int(wholes[1]));
        break;
    case DelayOption:
        frame->delay = int(wholes[0]);
        if (frame->delay == 0 && m_report.wantsProblems()) {
            m_report.problem(ProblemId::DelayZero, {}, start, m_scanner.position(), Syntax::Number);
        }
        break;
    case FlipOption:
        return readFlip(frame);
    case ScaleOption:
        frame->scaleX = reals[0];
        frame->scaleY = reals[1];
        break;
    case AngleOption:
        frame->angle = reals[0];
        break;
    default:
        frame->loop = true;
        break;
    }
    return true;
}

bool FrameReader::readFlip(FrameData* frame)
{
    const int start = m_scanner.position();
    const QStringRef found = m_scanner.chunk();
    const int end = m_scanner.position();
    for (const FlipWord& word : flipWords) {
        if (found != word.word) {
            continue;
        }
        frame->flip = static_cast<unsigned char>(word.flip);
        m_report.part(LinePart::Element, 0, start, end);
        if (!word.old) {
            m_report.token(Syntax::Constant, start, end);
        } else if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::ChoiceOld, {word.word, flipText(word.flip)}, start, end,
                             Syntax::Constant);
        }
        return true;
    }
    if (m_report.wantsProblems()) {
        m_report.problem(ProblemId::ChoiceUnknown, {QStringLiteral("h, v, hv"), quoted(found)},
                         start, end);
    }
    return false;
}

}  // namespace Family
