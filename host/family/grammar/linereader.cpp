#include "family/grammar/linereader.h"

#include "family/grammar/framereader.h"
#include "family/grammar/grammar.h"
#include "family/grammar/linescanner.h"
#include "family/grammar/valuereader.h"

// A hand-written parser for one line. A line is a head in brackets, a statement that begins with a
// keyword, or "key = value". Each `read...()` function consumes its tokens from the scanner,
// reports their colours and parts, and reports a problem at the first thing that does not fit.
// After a problem the rest of the line is not reported too (`m_faulty`): it is only a consequence.
// A comment at the end is always read.

namespace Family {

using Syntax = Zorv::CodeParserSyntax;

namespace {

/// Reads one line in a single pass.
class Reader
{
public:
    Reader(const QString& text, const LineHead& head, FileKind file, LineReport& report)
        : m_scanner(text), m_head(head), m_file(file), m_report(report)
    {
    }

    ParsedLine read();

private:
    void readHead();
    bool readHeadName(bool sub);
    bool readArgument();
    void lookUpGroup(const QStringRef& name, int start, bool sub);
    void unknownGroup(const QString& name, int start, bool sub, unsigned parent);
    void tellGroup(const QStringRef& name, int start);
    void readWordLine();
    void readKeyLine(const QStringRef& word, int start);
    const KeyInfo* keyRow(const QStringRef& word, int start);
    bool readStatement(const QStringRef& word, int start);
    void readFormat(int start);
    void readAnimation(int start);
    void readFrame(int start);
    void readBox(int start, bool attack);
    void problem(ProblemId id, const QStringList& arguments, int start, int end)
    {
        m_report.problem(id, arguments, start, end);
    }
    void keyword(int start)
    {
        m_report.token(Syntax::Keyword, start, m_scanner.position());
        m_report.part(LinePart::Keyword, 0, start, m_scanner.position());
    }
    bool wanted() const { return m_report.wantsProblems(); }
    QStringList groupNames(unsigned parent) const;
    void readEnd(bool tellRest);

    LineScanner m_scanner;
    const LineHead& m_head;
    FileKind m_file;
    LineReport& m_report;
    ParsedLine m_line;
    bool m_faulty = false;
};

ParsedLine Reader::read()
{
    m_scanner.skipBlanks();
    if (!m_scanner.atCodeEnd()) {
        if (m_scanner.current() == QLatin1Char('[')) {
            readHead();
        } else {
            readWordLine();
        }
    }
    readEnd(!m_faulty);
    return std::move(m_line);
}

/// Reads what follows the statement: a comment, or unexpected text.
void Reader::readEnd(bool tellRest)
{
    m_scanner.skipBlanks();
    if (!m_scanner.atCodeEnd()) {
        const int start = m_scanner.position();
        const int end = m_scanner.codeEnd();
        if (tellRest && wanted()) {
            problem(ProblemId::TextBehind, {quoted(m_scanner.part(start, end))}, start, end);
        }
        m_scanner.setPosition(m_scanner.commentStart());
    }
    if (m_scanner.position() < m_scanner.size()) {
        m_report.token(Syntax::Comment, m_scanner.position(), m_scanner.size());
        m_report.part(LinePart::Comment, 0, m_scanner.position(), m_scanner.size());
    }
}

void Reader::readHead()
{
    m_line.kind = ParsedLine::Group;
    const int open = m_scanner.position();
    m_scanner.advance();
    m_report.parenthesis(true, QLatin1Char('['), open);
    m_scanner.skipBlanks();
    const bool sub = m_scanner.accept('.');
    bool fine = readHeadName(sub);
    m_scanner.skipBlanks();
    const int close = m_scanner.position();
    if (m_scanner.accept(']')) {
        m_report.parenthesis(false, QLatin1Char(']'), close);
    } else if (fine && wanted()) {
        problem(ProblemId::HeadNotClosed, {}, open, m_scanner.codeEnd());
        fine = false;
    }
    m_faulty = !fine;
}

bool Reader::readHeadName(bool sub)
{
    const int start = m_scanner.position();
    const QStringRef name = m_scanner.word();
    m_report.part(LinePart::Name, 0, start, m_scanner.position());
    if (name.isEmpty()) {
        if (wanted()) {
            problem(ProblemId::HeadName, {}, start - 1, start);
        }
        const unsigned parent =
            m_head.kind == LineHead::Group ? Grammar::mainGroup(m_head.group->number) : 0;
        m_line.group =
            Grammar::group(sub ? Grammar::unknownSubGroup(parent) : Grammar::UnknownGroup);
        return false;
    }
    lookUpGroup(name, start, sub);
    return readArgument();
}

void Reader::lookUpGroup(const QStringRef& name, int start, bool sub)
{
    unsigned parent = 0;
    if (sub) {
        parent = m_head.kind == LineHead::Group ? Grammar::mainGroup(m_head.group->number) : 0;
        if (parent == 0) {
            m_line.group = Grammar::group(Grammar::unknownSubGroup(0));
            if (wanted() && m_head.kind != LineHead::Anything) {
                problem(ProblemId::SubGroupAlone, {}, start - 1, m_scanner.position());
            }
            return;
        }
    }
    const GroupInfo* found =
        parent == Grammar::UnknownGroup ? nullptr : Grammar::find(name, parent);
    if (!found) {
        unknownGroup(name.toString(), start, sub, parent);
        return;
    }
    m_line.group = found->isDeprecated() ? Grammar::group(found->number) : found;
    tellGroup(name, start);
}

void Reader::unknownGroup(const QString& name, int start, bool sub, unsigned parent)
{
    m_line.group = Grammar::group(sub ? Grammar::unknownSubGroup(parent) : Grammar::UnknownGroup);
    if (!wanted()) {
        return;
    }
    const QString hint = nameHint(name, groupNames(parent));
    if (!sub) {
        problem(ProblemId::GroupUnknown, {name, hint}, start, m_scanner.position());
    } else if (parent != Grammar::UnknownGroup) {
        problem(ProblemId::SubGroupUnknown, {Grammar::group(parent)->name, name, hint}, start,
                m_scanner.position());
    } else {
        m_report.token(Syntax::Header, start, m_scanner.position());
    }
}

QStringList Reader::groupNames(unsigned parent) const
{
    QStringList names;
    for (const GroupInfo* row : Grammar::groups()) {
        if (row->parent == parent && !row->isDeprecated() &&
            (parent != 0 || row->belongsIn(m_file))) {
            names += row->name;
        }
    }
    return names;
}

void Reader::tellGroup(const QStringRef& name, int start)
{
    const GroupInfo* group = m_line.group;
    const int end = m_scanner.position();
    if (wanted() && name != group->name) {
        m_report.problem(ProblemId::GroupOld, {name.toString(), group->name}, start, end,
                         Syntax::Header);
    } else if (wanted() && !group->belongsIn(m_file)) {
        QStringList kinds;
        for (int kind = 0; kind <= int(FileKind::Commands); ++kind) {
            if (group->belongsIn(FileKind(kind))) {
                kinds += fileKindName(FileKind(kind));
            }
        }
        m_report.problem(ProblemId::GroupMisplaced,
                         {group->name, fileKindName(m_file), kinds.join(QLatin1String(" or "))},
                         start, end, Syntax::Header);
    } else {
        m_report.token(Syntax::Header, start, end);
    }
}

bool Reader::readArgument()
{
    const int nameEnd = m_scanner.position();
    m_scanner.skipBlanks();
    const int start = m_scanner.position();
    const bool none = m_scanner.atCodeEnd() || m_scanner.current() == QLatin1Char(']');
    const GroupInfo* group = m_line.group;
    if (none) {
        m_report.part(LinePart::Argument, 0, nameEnd, nameEnd);
        if (group->takesArgument() && wanted()) {
            problem(ProblemId::ArgumentMissing, {group->name}, nameEnd - 1, nameEnd);
        }
        return true;
    }
    if (m_scanner.current() == QLatin1Char('"')) {
        if (!ValueReader(m_scanner, m_report).readText(&m_line.argument)) {
            return false;
        }
    } else {
        const QStringRef word = m_scanner.word();
        if (word.isEmpty() && wanted()) {
            const QStringRef found = m_scanner.chunk();
            problem(ProblemId::NameExpected, {quoted(found)}, start, m_scanner.position());
            return false;
        }
        m_line.argument = word.toString();
        m_report.token(Syntax::Constant, start, m_scanner.position());
    }
    const int end = m_scanner.position();
    m_report.part(LinePart::Argument, 0, start, end);
    if (!group->takesArgument() && !group->isUnknown()) {
        m_line.argument.clear();
        if (wanted()) {
            problem(ProblemId::ArgumentExtra, {group->name, m_scanner.part(start, end).toString()},
                    start, end);
        }
    }
    return true;
}

void Reader::readWordLine()
{
    const int start = m_scanner.position();
    const QStringRef word = m_scanner.word();
    const int end = m_scanner.position();
    m_scanner.skipBlanks();
    const bool isValue = !word.isEmpty() && m_scanner.current() == QLatin1Char('=');
    if (isValue) {
        readKeyLine(word, start);
        return;
    }
    m_scanner.setPosition(end);
    if (readStatement(word, start)) {
        return;
    }
    m_faulty = true;
    if (!wanted()) {
        return;
    }
    const bool key = m_head.kind == LineHead::Group && !word.isEmpty();
    const int behind = key ? end : m_scanner.codeEnd();
    if (key) {
        problem(ProblemId::EqualsMissing, {word.toString()}, start, end);
    } else {
        problem(ProblemId::LineUnknown, {quoted(m_scanner.part(start, behind))}, start, behind);
    }
}

bool Reader::readStatement(const QStringRef& word, int start)
{
    if (word == QLatin1String("frame")) {
        readFrame(start);
    } else if (word == QLatin1String("attack")) {
        readBox(start, true);
    } else if (word == QLatin1String("body")) {
        readBox(start, false);
    } else if (word == QLatin1String("animation")) {
        readAnimation(start);
    } else if (word == QLatin1String("zorv")) {
        readFormat(start);
    } else {
        return false;
    }
    return true;
}

const KeyInfo* Reader::keyRow(const QStringRef& word, int start)
{
    const int end = start + word.size();
    const KeyInfo* row = m_head.group->key(word);
    if (!row) {
        if (wanted()) {
            QStringList names;
            for (const KeyInfo& key : *m_head.group) {
                if (!key.isDeprecated()) {
                    names += key.name;
                }
            }
            const QString name = word.toString();
            problem(ProblemId::KeyUnknown, {m_head.group->name, name, nameHint(name, names)}, start,
                    end);
        }
        return Grammar::unknownKey();
    }
    if (!row->isDeprecated()) {
        m_report.token(Syntax::Identifier, start, end);
        return row;
    }
    if (wanted()) {
        m_report.problem(ProblemId::KeyOld, {word.toString(), row->replacement}, start, end,
                         Syntax::Identifier);
    }
    const QString name = row->replacement;
    return m_head.group->key(QStringRef(&name));
}

void Reader::readKeyLine(const QStringRef& word, int start)
{
    m_report.part(LinePart::Key, 0, start, start + word.size());
    m_scanner.advance();
    if (m_head.kind == LineHead::Group) {
        m_line.kind = ParsedLine::Value;
        m_line.key = keyRow(word, start);
        m_faulty = !ValueReader(m_scanner, m_report).read(*m_line.key, &m_line.value);
        return;
    }
    if (m_head.kind == LineHead::Anything) {
        QVariant value;
        m_report.token(Syntax::Identifier, start, start + word.size());
        ValueReader(m_scanner, m_report).read(*Grammar::unknownKey(), &value);
    } else if (wanted()) {
        problem(ProblemId::ValueOutside, {}, start, m_scanner.codeEnd());
    }
    m_faulty = true;
}

void Reader::readFormat(int start)
{
    m_line.kind = ParsedLine::Format;
    keyword(start);
    if (m_head.kind == LineHead::Group || m_head.kind == LineHead::Animation) {
        m_faulty = true;
        if (wanted()) {
            problem(ProblemId::FormatLate, {}, start, m_scanner.codeEnd());
        }
        return;
    }
    m_scanner.skipBlanks();
    const int number = m_scanner.position();
    const QStringRef version = m_scanner.chunk();
    if (version == QLatin1String("1")) {
        m_report.token(Syntax::Number, number, m_scanner.position());
    } else {
        m_faulty = true;
        if (wanted()) {
            problem(ProblemId::FormatVersion, {quoted(version)}, number, m_scanner.position());
        }
    }
}

void Reader::readAnimation(int start)
{
    m_line.kind = ParsedLine::Animation;
    keyword(start);
    m_scanner.skipBlanks();
    const int place = m_scanner.position();
    const QStringRef identifier = m_scanner.word();
    m_report.part(LinePart::Argument, 0, place, m_scanner.position());
    if (identifier.isEmpty()) {
        m_faulty = true;
        if (wanted()) {
            problem(ProblemId::AnimationIdentifier, {}, m_scanner.atCodeEnd() ? start : place,
                    m_scanner.codeEnd());
        }
        return;
    }
    m_line.argument = identifier.toString();
    m_report.token(Syntax::Header, place, m_scanner.position());
    m_scanner.skipBlanks();
    if (m_scanner.atCodeEnd()) {
        return;
    }
    const int text = m_scanner.position();
    m_faulty = !ValueReader(m_scanner, m_report).readText(&m_line.name);
    m_report.part(LinePart::Text, 0, text, m_faulty ? m_scanner.codeEnd() : m_scanner.position());
}

void Reader::readFrame(int start)
{
    keyword(start);
    if (m_head.kind == LineHead::None || m_head.kind == LineHead::Group) {
        m_faulty = true;
        if (wanted()) {
            problem(ProblemId::FrameOutside, {}, start, m_scanner.codeEnd());
        }
        return;
    }
    m_line.kind = ParsedLine::Frame;
    m_faulty = !FrameReader(m_scanner, m_report).read(&m_line.frame);
}

void Reader::readBox(int start, bool attack)
{
    keyword(start);
    if (m_head.kind == LineHead::None || m_head.kind == LineHead::Group) {
        m_faulty = true;
        if (wanted()) {
            problem(ProblemId::BoxOutside, {}, start, m_scanner.codeEnd());
        }
        return;
    }
    m_scanner.skipBlanks();
    const int place = m_scanner.position();
    qint64 n[4];
    m_faulty = !ValueReader(m_scanner, m_report).readWholes(4, LeastPlace, MostPlace, n);
    if (m_faulty) {
        return;
    }
    m_line.kind = ParsedLine::Box;
    m_line.attack = attack;
    m_line.box.setCoords(int(n[0]), int(n[1]), int(n[2]), int(n[3]));
    if (wanted() && (n[0] > n[2] || n[1] > n[3])) {
        m_report.problem(ProblemId::BoxReversed, {}, place, m_scanner.position(), Syntax::Number);
    }
}

}  // namespace

ParsedLine readLine(const QString& text, const LineHead& head, FileKind file, LineReport& report)
{
    return Reader(text, head, file, report).read();
}

}  // namespace Family
