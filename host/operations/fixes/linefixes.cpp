#include "operations/fixes/linefixes.h"

#include "family/grammar/grammar.h"

#include <QCoreApplication>
#include <QRegularExpression>

// One small function for each kind of problem, and a table of them. A fix is plain if the message
// can only mean one thing, and nothing that works today is lost.

namespace Operations {

using Family::Grammar;
using Family::LineHead;
using Family::LinePart;
using Family::ParsedLine;
using Family::ProblemId;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Fixes)
};

void put(const FaultyLine& line, int column, int length, const QString& text, const QString& title,
         Fix* fix)
{
    fix->changes = {{line.at(column), length, text}};
    fix->title = title;
}

/// Replaces the faulty word; does nothing if `text` is empty.
void write(const FaultyLine& line, const QString& text, Fix* fix)
{
    if (!text.isEmpty()) {
        put(line, line.column, line.length, text, Text::tr("Write '%1'").arg(text), fix);
    }
}

void removeLine(const FaultyLine& line, Fix* fix)
{
    const bool isLast = line.index + 1 == line.lines.count();
    const int start = line.lines.start(line.index);
    // Removing the last line also removes the line end before it.
    const int begin = isLast && start > 0 ? start - 1 : start;
    fix->changes = {{begin, line.line.size() + (isLast && start == 0 ? 0 : 1), {}}};
    fix->title = Text::tr("Remove the line");
}

unsigned mainGroupAbove(const FaultyLine& line)
{
    return line.head.kind == LineHead::Group ? Grammar::mainGroup(line.head.group->number) : 0;
}

void oldGroup(const FaultyLine& line, Fix* fix)
{
    const QString name = line.word();
    const Family::GroupInfo* row = Grammar::find(QStringRef(&name), 0);
    write(line, row ? QString(row->replacement) : QString(), fix);
}

void nearGroup(const FaultyLine& line, unsigned parent, Fix* fix)
{
    QStringList names;
    for (const Family::GroupInfo* row : Grammar::groups()) {
        if (row->parent == parent && !row->isDeprecated() &&
            (parent != 0 || row->belongsIn(line.kind))) {
            names.append(row->name);
        }
    }
    write(line, Family::nearName(line.word(), names), fix);
}

void unknownGroup(const FaultyLine& line, Fix* fix)
{
    nearGroup(line, 0, fix);
}

void unknownSubGroup(const FaultyLine& line, Fix* fix)
{
    nearGroup(line, mainGroupAbove(line), fix);
}

void oldKey(const FaultyLine& line, Fix* fix)
{
    const QString name = line.word();
    const Family::KeyInfo* row =
        line.head.group ? line.head.group->key(QStringRef(&name)) : nullptr;
    write(line, row ? QString(row->replacement) : QString(), fix);
}

/// The keys that the group of a line already has: none of them can be the intended one.
QStringList keysAround(const FaultyLine& line)
{
    QStringList keys;
    const auto isHead = [&line](int i) {
        return line.lines.line(i).trimmed().startsWith(QLatin1Char('[')) || line.lines.isHead(i);
    };
    const auto take = [&](int i) {
        keys.append(line.lines.line(i).section(QLatin1Char('='), 0, 0).trimmed());
    };
    for (int i = line.index - 1; i >= 0 && !isHead(i); --i) {
        take(i);
    }
    for (int i = line.index + 1; i < line.lines.count() && !isHead(i); ++i) {
        take(i);
    }
    return keys;
}

void unknownKey(const FaultyLine& line, Fix* fix)
{
    if (!line.head.group) {
        return;
    }
    const QStringList there = keysAround(line);
    QStringList names;
    for (const Family::KeyInfo& key : *line.head.group) {
        if (!key.isDeprecated() && (key.isRepeatable() || !there.contains(key.name))) {
            names.append(key.name);
        }
    }
    write(line, Family::nearName(line.word(), names), fix);
}

void oldChoice(const FaultyLine& line, Fix* fix)
{
    if (line.parsed.kind == ParsedLine::Frame) {
        write(line, Family::flipText(line.parsed.frame.flip), fix);
    } else if (line.parsed.key) {
        const QString word = line.word();
        write(line, line.parsed.key->choice(QStringRef(&word)), fix);
    }
}

void unknownChoice(const FaultyLine& line, Fix* fix)
{
    if (line.parsed.kind == ParsedLine::Value && line.parsed.key) {
        write(line, Family::nearName(line.word(), line.parsed.key->choiceList()), fix);
    }
}

void oldOption(const FaultyLine& line, Fix* fix)
{
    for (int i = 0; i < Family::FrameOptionCount; ++i) {
        if (line.word() == Family::frameOption(i).oldName) {
            write(line, Family::frameOption(i).name, fix);
        }
    }
}

void unknownOption(const FaultyLine& line, Fix* fix)
{
    QStringList names = Grammar::frameOptions();
    for (int i = Family::FrameOptionCount - 1; i >= 0; --i) {
        if (line.details.part(LinePart::Option, i)) {
            names.removeAt(i);
        }
    }
    write(line, Family::nearName(line.word(), names), fix);
}

/// Removes an option and the blanks before it, up to the next option.
void removeOption(const FaultyLine& line, int start, Fix* fix)
{
    static const QRegularExpression content(
        QStringLiteral("\\s+(h|v|hv|x|y)(?=\\s|#|$)|(\\s*,?\\s*[-+.0-9][-+.0-9eE]*)+"));
    const QString name =
        line.line.mid(start).section(QRegularExpression(QStringLiteral("[^\\w]")), 0, 0);
    int end = start + name.size();
    const QRegularExpressionMatch match = content.match(
        line.line, end, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    if (match.hasMatch() && name != Family::frameOption(Family::LoopOption).name) {
        end = match.capturedEnd();
    }
    while (start > 0 && line.line.at(start - 1).isSpace()) {
        --start;
    }
    put(line, start, end - start, {}, Text::tr("Remove the second '%1'").arg(name), fix);
}

void doubledOption(const FaultyLine& line, Fix* fix)
{
    removeOption(line, line.column, fix);
}

void doubledLoop(const FaultyLine& line, Fix* fix)
{
    if (const LinePart* loop = line.details.part(LinePart::Option, Family::LoopOption)) {
        removeOption(line, loop->start, fix);
    }
}

/// Swaps numbers but keeps how each is written.
void reversedBox(const FaultyLine& line, Fix* fix)
{
    static const QRegularExpression number(QStringLiteral("[-+]?\\d+"));
    QVector<QRegularExpressionMatch> found;
    for (auto each = number.globalMatch(line.word()); each.hasNext();) {
        found.append(each.next());
    }
    if (found.size() != 4) {
        return;
    }
    QStringList texts;
    for (const QRegularExpressionMatch& match : qAsConst(found)) {
        texts.append(match.captured());
    }
    for (const int i : {0, 1}) {
        if (texts.at(i).toInt() > texts.at(i + 2).toInt()) {
            texts.swapItemsAt(i, i + 2);
        }
    }
    for (int i = 0; i < 4; ++i) {
        fix->changes.append({line.at(line.column + found.at(i).capturedStart()),
                             found.at(i).capturedLength(), texts.at(i)});
    }
    fix->title = Text::tr("Swap the corners");
}

void missingEquals(const FaultyLine& line, Fix* fix)
{
    const QString name = line.word();
    if (line.head.group && line.head.group->key(QStringRef(&name))) {
        put(line, line.column + line.length, 0, QStringLiteral(" ="), Text::tr("Add '='"), fix);
    }
}

void openHead(const FaultyLine& line, Fix* fix)
{
    put(line, line.codeEnd(), 0, QStringLiteral("]"), Text::tr("Add ']'"), fix);
}

void bareText(const FaultyLine& line, Fix* fix)
{
    const QString text = line.line.mid(line.column, line.codeEnd() - line.column);
    if (!text.isEmpty() && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\\'))) {
        put(line, line.column, text.size(), QLatin1Char('"') + text + QLatin1Char('"'),
            Text::tr("Put it in double quotes"), fix);
    }
}

void openText(const FaultyLine& line, Fix* fix)
{
    put(line, line.line.size(), 0, QStringLiteral("\""), Text::tr("Add the double quote"), fix);
}

void barePercent(const FaultyLine& line, Fix* fix)
{
    bool isNumber = false;
    line.word().toUInt(&isNumber);
    write(line, isNumber ? line.word() + QLatin1Char('%') : QString(), fix);
}

void missingComma(const FaultyLine& line, Fix* fix)
{
    int end = line.column;
    while (end > 0 && line.line.at(end - 1).isSpace()) {
        --end;
    }
    put(line, end, 0, QStringLiteral(","), Text::tr("Add ','"), fix);
}

void oldPath(const FaultyLine& line, Fix* fix)
{
    QString path = line.word();
    path.replace(QLatin1String("\\\\"), QLatin1String("/")).replace(QLatin1Char('\\'), '/');
    put(line, line.column, line.length, path, Text::tr("Write '/'"), fix);
}

void wrongEscape(const FaultyLine& line, Fix* fix)
{
    put(line, line.column, 0, QStringLiteral("\\"), Text::tr("Write '\\\\'"), fix);
}

void unseenFrame(const FaultyLine& line, Fix* fix)
{
    write(line, QStringLiteral("1"), fix);
}

void uselessArgument(const FaultyLine& line, Fix* fix)
{
    int start = line.column;
    while (start > 0 && line.line.at(start - 1).isSpace()) {
        --start;
    }
    put(line, start, line.column + line.length - start, {},
        Text::tr("Remove '%1'").arg(line.word()), fix);
}

void comment(const FaultyLine& line, Fix* fix)
{
    put(line, line.column, 0, QStringLiteral("# "), Text::tr("Make it a comment"), fix);
}

void missingLoop(const FaultyLine& line, Fix* fix)
{
    for (int i = line.index + 1; i < line.lines.count() && !line.lines.isHead(i); ++i) {
        const QString frame = line.lines.line(i);
        if (frame.trimmed().startsWith(QLatin1String("frame"))) {
            int end = frame.indexOf(QLatin1Char('#'));
            end = end < 0 ? frame.size() : end;
            while (frame.at(end - 1).isSpace()) {
                --end;
            }
            fix->changes = {{line.lines.start(i) + end, 0, QStringLiteral(" loop")}};
            fix->title = Text::tr("Put 'loop' at the first frame");
            return;
        }
    }
}

struct Row
{
    ProblemId id;
    bool isPlain;
    void (*mend)(const FaultyLine& line, Fix* fix);
};

constexpr Row rows[] = {
    {ProblemId::LineUnknown, false, comment},
    {ProblemId::TextBehind, false, comment},
    {ProblemId::HeadNotClosed, true, openHead},
    {ProblemId::GroupUnknown, true, unknownGroup},
    {ProblemId::GroupOld, true, oldGroup},
    {ProblemId::ArgumentExtra, false, uselessArgument},
    {ProblemId::SubGroupUnknown, true, unknownSubGroup},
    {ProblemId::KeyUnknown, true, unknownKey},
    {ProblemId::KeyOld, true, oldKey},
    {ProblemId::EqualsMissing, true, missingEquals},
    {ProblemId::TextExpected, false, bareText},
    {ProblemId::TextNotClosed, false, openText},
    {ProblemId::EscapeUnknown, false, wrongEscape},
    {ProblemId::PathBackslash, true, oldPath},
    {ProblemId::ChoiceUnknown, true, unknownChoice},
    {ProblemId::ChoiceOld, true, oldChoice},
    {ProblemId::PercentExpected, false, barePercent},
    {ProblemId::CommaMissing, true, missingComma},
    {ProblemId::OptionUnknown, true, unknownOption},
    {ProblemId::OptionOld, true, oldOption},
    {ProblemId::OptionTwice, true, doubledOption},
    {ProblemId::DelayZero, false, unseenFrame},
    {ProblemId::BoxReversed, true, reversedBox},
    {ProblemId::KeyTwice, false, removeLine},
    {ProblemId::LoopMissing, false, missingLoop},
    {ProblemId::LoopTwice, false, doubledLoop},
    {ProblemId::FileItself, false, removeLine},
    {ProblemId::FileTwice, false, removeLine},
};

}  // namespace

Fix lineFix(const Family::Problem& problem, const FaultyLine& line)
{
    Fix fix;
    for (const Row& row : rows) {
        if (row.id == problem.id) {
            fix.isPlain = row.isPlain;
            row.mend(line, &fix);
        }
    }
    return fix;
}

}  // namespace Operations
