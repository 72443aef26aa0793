#include "family/meaning/linecontext.h"

#include "family/grammar/linescanner.h"
#include "family/nodes/familyparser.h"

#include <zorv/code/codedoc/codedocument.h>

#include <algorithm>

// Only the text before the position decides the context; the text after it only extends the word to
// replace. A position inside a comment has no context. In a frame line the part before the current
// word is read by the normal line reader: the options that it reports are not offered again.

namespace Family {

namespace {

/// Reads the line token by token up to the position, until the context is clear.
class ContextReader
{
public:
    ContextReader(const QString& line, int column, const LineHead& head)
        : m_line(line), m_front(line.left(column)), m_column(m_front.size()), m_scanner(m_front)
    {
        m_context.head = head;
        m_context.start = m_context.end = m_column;
    }

    LineContext read();

private:
    void readHead();
    void readValue(const QStringRef& key);
    void readFrame();
    void takeText(int quote);
    void takeWord(LineContext::Kind kind, int start);

    const QString& m_line;
    const QString m_front;
    const int m_column;
    LineScanner m_scanner;
    LineContext m_context;
};

LineContext ContextReader::read()
{
    m_scanner.skipBlanks();
    if (m_scanner.commentStart() < m_column) {
        return m_context;
    }
    if (m_scanner.current() == QLatin1Char('[')) {
        readHead();
        return m_context;
    }
    const int start = m_scanner.position();
    const QStringRef word = m_scanner.word();
    const bool endsHere = m_scanner.position() == m_column;
    m_scanner.skipBlanks();
    if (endsHere) {
        takeWord(LineContext::LineStart, start);
    } else if (!word.isEmpty() && m_scanner.accept('=')) {
        readValue(word);
    } else if (word == QLatin1String("frame") && m_context.head.kind == LineHead::Animation) {
        readFrame();
    }
    return m_context;
}

/// The word may continue after the position.
void ContextReader::takeWord(LineContext::Kind kind, int start)
{
    m_context.kind = kind;
    m_context.start = start;
    m_context.end = m_column;
    while (m_context.end < m_line.size() &&
           isWordCharacter(m_line.at(m_context.end), m_context.end == start)) {
        ++m_context.end;
    }
}

void ContextReader::readHead()
{
    m_scanner.advance();
    m_scanner.skipBlanks();
    const bool sub = m_scanner.accept('.');
    const int start = m_scanner.position();
    m_scanner.word();
    if (m_scanner.position() == m_column) {
        takeWord(sub ? LineContext::SubGroupName : LineContext::GroupName, start);
    }
}

void ContextReader::readValue(const QStringRef& key)
{
    if (m_context.head.kind != LineHead::Group) {
        return;
    }
    const GroupInfo* group = m_context.head.group;
    m_context.key = group->key(key);
    if (m_context.key && m_context.key->isDeprecated()) {
        const QString name = m_context.key->replacement;
        m_context.key = group->key(QStringRef(&name));
    }
    m_scanner.skipBlanks();
    const int start = m_scanner.position();
    if (!m_context.key) {
        return;
    }
    if (m_scanner.current() == QLatin1Char('"')) {
        takeText(start);
        return;
    }
    m_scanner.word();
    if (m_scanner.position() == m_column) {
        takeWord(LineContext::Value, start);
    }
}

/// Everything between the quotes is one word. Leaves the closing quote alone.
void ContextReader::takeText(int quote)
{
    if (m_scanner.text()) {
        return;
    }
    m_context.kind = LineContext::Value;
    m_context.isQuoted = true;
    m_context.start = quote + 1;
    LineScanner whole(m_line);
    whole.setPosition(quote);
    const bool isClosed = whole.text();
    m_context.end = isClosed ? whole.position() - 1 : std::max(m_column, whole.codeEnd());
}

void ContextReader::readFrame()
{
    int start = m_column;
    while (start > 0 && isWordCharacter(m_line.at(start - 1), false)) {
        --start;
    }
    const QString before = m_line.left(start);
    LineDetails details;
    LineReport report(nullptr, &details);
    readLine(before, m_context.head, FileKind::Animations, report);
    for (const LinePart& part : qAsConst(details.parts)) {
        if (part.role == LinePart::Option) {
            m_context.options |= 1u << part.index;
        }
    }
    const bool hasSprite =
        details.part(LinePart::Sprite) && start > 0 && isBlank(m_line.at(start - 1));
    const QLatin1String flip = frameOption(FlipOption).name;
    if (hasSprite && before.trimmed().endsWith(flip)) {
        takeWord(LineContext::Flip, start);
        return;
    }
    // In a line that already has an error, an option would not help.
    const bool isBroken = std::any_of(
        details.problems.begin(), details.problems.end(),
        [](const LineProblem& problem) { return problemInfo(problem.id).level == Level::Error; });
    if (hasSprite && !isBroken) {
        takeWord(LineContext::Option, start);
    }
}

}  // namespace

LineContext lineContext(const QString& line, int column, const LineHead& head)
{
    return ContextReader(line, std::max(column, 0), head).read();
}

LineHead headOfLine(const Zorv::CodeDocument* document, int line)
{
    return headAbove(document->nodeBefore(document->findBlockByNumber(line)));
}

}  // namespace Family
