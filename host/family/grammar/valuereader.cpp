#include "family/grammar/valuereader.h"

#include "family/grammar/grammar.h"
#include "family/grammar/motion.h"
#include "family/grammar/numbers.h"

#include <QDate>
#include <QPoint>
#include <QPointF>

#include <algorithm>
#include <limits>

namespace Family {

using Syntax = Zorv::CodeParserSyntax;

namespace {

constexpr double mostWhole = std::numeric_limits<qint32>::max();
constexpr double mostCount = std::numeric_limits<quint32>::max();

ProblemId expectationOf(Form form)
{
    switch (form) {
    case Form::Count:
        return ProblemId::CountExpected;
    case Form::Percent:
        return ProblemId::PercentExpected;
    case Form::Colour:
    case Form::Colours:
        return ProblemId::ColourExpected;
    case Form::Real:
    case Form::RealPoint:
    case Form::RealPair:
    case Form::RealTriple:
    case Form::Reals:
        return ProblemId::RealExpected;
    default:
        return ProblemId::WholeExpected;
    }
}

QVariant single(Form form, qint64 number)
{
    return form == Form::Int ? QVariant(int(number)) : QVariant(uint(number));
}

QVariant single(Form, double number)
{
    return number;
}

QVariant tuple(Form form, const qint64* n)
{
    if (form == Form::Point) {
        return QPoint(int(n[0]), int(n[1]));
    }
    QVariantList list;
    for (int i = 0; i < elementCount(form); ++i) {
        list.append(int(n[i]));
    }
    return list;
}

QVariant tuple(Form form, const double* n)
{
    if (form == Form::RealPoint) {
        return QPointF(n[0], n[1]);
    }
    QVariantList list;
    for (int i = 0; i < elementCount(form); ++i) {
        list.append(n[i]);
    }
    return list;
}

}  // namespace

bool ValueReader::fail(ProblemId id, const QStringRef& found)
{
    if (m_report.wantsProblems()) {
        // Something missing is marked at the token before it.
        const int start = m_scanner.position() - std::max(found.size(), 1);
        m_report.problem(id, {quoted(found)}, start, m_scanner.position());
    }
    return false;
}

template <>
bool ValueReader::readNumber(Form, double* number)
{
    return toReal(m_scanner.chunk(), number);
}

template <>
bool ValueReader::readNumber(Form form, qint64* number)
{
    QStringRef text = m_scanner.chunk();
    if (form == Form::Colour || form == Form::Colours) {
        quint32 colour = 0;
        const bool fine = toHex(text, &colour);
        *number = colour;
        return fine;
    }
    if (form == Form::Percent) {
        if (!text.endsWith(QLatin1Char('%'))) {
            return false;
        }
        text.chop(1);
    }
    const bool unsignedForm = form == Form::Percent || form == Form::Count;
    const bool hasSign =
        !text.isEmpty() && (text.at(0) == QLatin1Char('-') || text.at(0) == QLatin1Char('+'));
    return toWhole(text, number) && !(unsignedForm && hasSign);
}

template <class Number>
bool ValueReader::readElement(Form form, int index, double minimum, double maximum, Number* number)
{
    const int start = m_scanner.position();
    const bool fine = readNumber(form, number);
    const int end = m_scanner.position();
    if (!fine) {
        return fail(expectationOf(form), m_scanner.part(start, end));
    }
    if (std::is_same<Number, qint64>::value && !(minimum < maximum)) {
        const bool isSigned = expectationOf(form) == ProblemId::WholeExpected;
        minimum = isSigned ? -mostWhole - 1 : 0;
        maximum = isSigned ? mostWhole : mostCount;
    }
    const bool outside = double(*number) < minimum || double(*number) > maximum;
    if (outside && minimum < maximum) {
        if (m_report.wantsProblems()) {
            m_report.problem(
                ProblemId::OutOfRange,
                {realText(minimum), realText(maximum), m_scanner.part(start, end).toString()},
                start, end, Syntax::Number);
        }
        return false;
    }
    m_report.part(LinePart::Element, index, start, end);
    return true;
}

bool ValueReader::read(const KeyInfo& key, QVariant* value)
{
    const int behindSign = m_scanner.position();
    m_scanner.skipBlanks();
    const int start = m_scanner.position();
    if (m_scanner.atCodeEnd()) {
        m_report.part(LinePart::Value, LinePart::Unread, behindSign, behindSign);
        if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::ValueMissing, {key.expectation()}, behindSign - 1,
                             behindSign);
        }
        return false;
    }
    const int parts = elementCount(key.form);
    bool fine = false;
    if (parts == 1) {
        fine = readSingle(key, value);
    } else if (parts == 0) {
        fine =
            key.form == Form::Reals ? readList<double>(key, value) : readList<qint64>(key, value);
    } else {
        const bool real = key.form == Form::RealPoint || key.form == Form::RealPair ||
                          key.form == Form::RealTriple;
        fine = real ? readTuple<double>(key, value) : readTuple<qint64>(key, value);
    }
    if (fine) {
        m_report.part(LinePart::Value, 0, start, m_scanner.position());
    } else {
        m_scanner.setPosition(start);
        m_report.part(LinePart::Value, LinePart::Unread, start, m_scanner.codeEnd());
        *value = QVariant();
    }
    return fine;
}

bool ValueReader::readSingle(const KeyInfo& key, QVariant* value)
{
    switch (key.form) {
    case Form::Text: {
        QString text;
        const bool fine = readText(&text);
        *value = text;
        return fine;
    }
    case Form::MotionText:
        return readMotionText(value);
    case Form::Path:
        return readPath(value);
    case Form::Name:
    case Form::AnimationName:
    case Form::CommandName:
    case Form::MoveName:
        return readWord(value);
    case Form::Choice:
        return readChoice(key, value);
    case Form::Date:
        return readDate(value);
    case Form::Any:
        return readAny(value);
    default:
        break;
    }
    return key.form == Form::Real ? readScalar<double>(key, value) : readScalar<qint64>(key, value);
}

template <class Number>
bool ValueReader::readScalar(const KeyInfo& key, QVariant* value)
{
    const int start = m_scanner.position();
    Number number = 0;
    if (!readElement(key.form, 0, key.minimum, key.maximum, &number)) {
        return false;
    }
    *value = single(key.form, number);
    m_report.token(Syntax::Number, start, m_scanner.position());
    return true;
}

bool ValueReader::readText(QString* text)
{
    const int start = m_scanner.position();
    if (m_scanner.current() != QLatin1Char('"')) {
        const QStringRef found = m_scanner.chunk();
        return fail(ProblemId::TextExpected, found);
    }
    const bool closed = m_scanner.text();
    const int end = m_scanner.position();
    if (!closed) {
        if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::TextNotClosed, {}, start, end, Syntax::String);
        }
        return false;
    }
    m_report.token(Syntax::String, start, end);
    m_report.part(LinePart::Element, 0, start, end);
    const QStringRef inner = m_scanner.part(start + 1, end - 1);
    if (inner.indexOf(QLatin1Char('\\')) < 0) {
        *text = inner.toString();
        return true;
    }
    text->reserve(inner.size());
    for (int i = 0; i < inner.size(); ++i) {
        QChar character = inner.at(i);
        if (character == QLatin1Char('\\') && i + 1 < inner.size()) {
            character = inner.at(++i);
            const bool known = character == QLatin1Char('"') || character == QLatin1Char('\\') ||
                               character == QLatin1Char('n');
            if (!known && m_report.wantsProblems()) {
                m_report.problem(ProblemId::EscapeUnknown, {character}, start + i, start + i + 2,
                                 Syntax::String);
            }
            if (character == QLatin1Char('n')) {
                character = QLatin1Char('\n');
            }
        }
        text->append(character);
    }
    return true;
}

bool ValueReader::readPath(QVariant* value)
{
    const int start = m_scanner.position();
    QString path;
    if (!readText(&path)) {
        return false;
    }
    if (path.contains(QLatin1Char('\\'))) {
        if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::PathBackslash, {}, start, m_scanner.position(),
                             Syntax::String);
        }
        path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    *value = path;
    return true;
}

// An invalid motion keeps its text as value: only the engine cannot use it.
bool ValueReader::readMotionText(QVariant* value)
{
    const int start = m_scanner.position();
    QString text;
    if (!readText(&text)) {
        return false;
    }
    *value = text;
    if (m_report.wantsProblems()) {
        QString fault;
        if (!readMotion(text, nullptr, &fault)) {
            m_report.problem(ProblemId::MotionUnknown, {quoted(QStringRef(&fault))}, start,
                             m_scanner.position(), Syntax::String);
        }
    }
    return true;
}

bool ValueReader::readWord(QVariant* value)
{
    const int start = m_scanner.position();
    const QStringRef word = m_scanner.word();
    if (word.isEmpty()) {
        const QStringRef found = m_scanner.chunk();
        return fail(ProblemId::NameExpected, found);
    }
    m_report.token(Syntax::Constant, start, m_scanner.position());
    m_report.part(LinePart::Element, 0, start, m_scanner.position());
    *value = word.toString();
    return true;
}

bool ValueReader::readChoice(const KeyInfo& key, QVariant* value)
{
    const int start = m_scanner.position();
    const QStringRef word = m_scanner.word();
    const QLatin1String meant = key.choice(word);
    if (meant.size() == 0) {
        m_scanner.chunk();
        const QStringRef found = m_scanner.part(start, m_scanner.position());
        if (m_report.wantsProblems()) {
            m_report.problem(ProblemId::ChoiceUnknown,
                             {key.choiceList().join(QLatin1String(", ")), quoted(found)}, start,
                             m_scanner.position());
        }
        return false;
    }
    m_report.part(LinePart::Element, 0, start, m_scanner.position());
    if (word == meant) {
        m_report.token(Syntax::Constant, start, m_scanner.position());
    } else if (m_report.wantsProblems()) {
        m_report.problem(ProblemId::ChoiceOld, {word.toString(), meant}, start,
                         m_scanner.position(), Syntax::Constant);
    }
    *value = QString(meant);
    return true;
}

bool ValueReader::readDate(QVariant* value)
{
    const int start = m_scanner.position();
    const QStringRef found = m_scanner.chunk();
    const QDate date =
        found.size() == 10 ? QDate::fromString(found.toString(), Qt::ISODate) : QDate();
    if (!date.isValid()) {
        return fail(ProblemId::DateExpected, found);
    }
    m_report.token(Syntax::Number, start, m_scanner.position());
    m_report.part(LinePart::Element, 0, start, m_scanner.position());
    *value = date;
    return true;
}

bool ValueReader::readAny(QVariant* value)
{
    const int start = m_scanner.position();
    const int end = m_scanner.codeEnd();
    m_scanner.setPosition(end);
    m_report.token(Syntax::Plain, start, end);
    m_report.part(LinePart::Element, 0, start, end);
    *value = m_scanner.part(start, end).toString();
    return true;
}

bool ValueReader::separate(bool* more)
{
    const int end = m_scanner.position();
    m_scanner.skipBlanks();
    *more = m_scanner.accept(',');
    if (*more) {
        m_scanner.skipBlanks();
    } else {
        m_scanner.setPosition(end);
    }
    return *more;
}

template <class Number>
bool ValueReader::readFixed(Form form, int count, double minimum, double maximum, Number* numbers)
{
    const int start = m_scanner.position();
    for (int i = 0; i < count; ++i) {
        if (!readElement(form, i, minimum, maximum, numbers + i)) {
            return false;
        }
        bool more = false;
        const int end = m_scanner.position();
        separate(&more);
        if (more == (i + 1 < count)) {
            continue;
        }
        if (!m_report.wantsProblems()) {
            return false;
        }
        m_scanner.skipBlanks();
        const QChar next = m_scanner.current();
        const bool number = next.isDigit() || next == QLatin1Char('-') ||
                            next == QLatin1Char('.') || next == QLatin1Char('+');
        if (!more && number) {
            m_report.problem(ProblemId::CommaMissing, {}, m_scanner.position(),
                             m_scanner.position() + 1);
            return false;
        }
        int found = i + 1;
        while (more) {
            ++found;
            m_scanner.chunk();
            separate(&more);
        }
        const int behind = found > count ? m_scanner.position() : end;
        m_report.problem(ProblemId::CountOfNumbers,
                         {QString::number(count), QString::number(found)}, start, behind,
                         Syntax::Number);
        return false;
    }
    m_report.token(Syntax::Number, start, m_scanner.position());
    return true;
}

template <class Number>
bool ValueReader::readTuple(const KeyInfo& key, QVariant* value)
{
    Number numbers[4] = {};
    if (!readFixed(key.form, elementCount(key.form), key.minimum, key.maximum, numbers)) {
        return false;
    }
    *value = tuple(key.form, numbers);
    return true;
}

template <class Number>
bool ValueReader::readList(const KeyInfo& key, QVariant* value)
{
    const Form elementForm = key.form == Form::Colours ? Form::Colour
                             : key.form == Form::Ints  ? Form::Int
                                                       : Form::Real;
    const int start = m_scanner.position();
    QVariantList list;
    bool more = true;
    while (more) {
        Number number = 0;
        if (!readElement(elementForm, list.size(), key.minimum, key.maximum, &number)) {
            return false;
        }
        list.append(single(elementForm, number));
        separate(&more);
    }
    m_report.token(Syntax::Number, start, m_scanner.position());
    *value = list;
    return true;
}

bool ValueReader::readWholes(int count, double minimum, double maximum, qint64* numbers)
{
    return readFixed(Form::Ints, count, minimum, maximum, numbers);
}

bool ValueReader::readReals(int count, double minimum, double maximum, double* numbers)
{
    return readFixed(Form::Reals, count, minimum, maximum, numbers);
}

}  // namespace Family
