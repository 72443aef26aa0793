#include "support/testgrammar.h"

#include "support/documentdump.h"

using namespace Zorv;

namespace {

bool keepsPlace(CodeNode* node, CodeNode* previous, CodeNode::Type type)
{
    return node && node->type() == type && node->previous() == previous &&
           node->parentCode() == static_cast<CodeNode*>(lineHead(previous));
}

void report(CodeParserSyntax* syntax, const QString& text)
{
    if (!syntax) {
        return;
    }
    const auto end = unsigned(text.size());
    const QChar kind = text.size() > 1 ? text.at(1) : QChar();
    if (kind == QLatin1Char('w')) {
        syntax->warning(CodeParserSyntax::Plain, QStringLiteral("warned"), 0, end);
    } else if (kind == QLatin1Char('d')) {
        syntax->deprecated(CodeParserSyntax::Plain, QStringLiteral("old"), 0, end);
    } else {
        syntax->error(CodeParserSyntax::Invalid, QStringLiteral("unknown: ") + text, 0, end);
    }
}

void reportBrackets(CodeParserSyntax* syntax, const QString& text)
{
    static const QString brackets = QStringLiteral("({)}");
    for (int i = 0; syntax && i < text.size(); ++i) {
        const int kind = brackets.indexOf(text.at(i));
        if (kind >= 0) {
            syntax->parenthesis(kind < 2, text.at(i), i);
        }
    }
}

}  // namespace

CodeNode* TestParser::parse(const QString& text, CodeNode* oldNode, CodeNode* previous, RootCode*,
                            CodeParserSyntax* syntax)
{
    if (records) {
        parsed.append(text);
    }
    reportBrackets(syntax, text);
    const QChar first = text.isEmpty() ? QChar() : text.at(0);
    const auto end = unsigned(text.size());
    const auto ok = [&](CodeParserSyntax::TokenType type) {
        if (syntax) {
            syntax->ok(type, 0, end);
        }
    };
    CodeNode* head = lineHead(previous);
    const auto headType = head ? head->type() : CodeNode::Root;
    if (first == QLatin1Char('[') && end >= 3 && text.at(1).isDigit() &&
        text.at(1) != QLatin1Char('0')) {
        ok(CodeParserSyntax::Header);
        return new TestGroup(previous, unsigned(text.at(1).digitValue()));
    }
    if (first == QLatin1Char('!') && end > 1) {
        ok(CodeParserSyntax::Header);
        return new TestAnimation(previous, text.mid(1));
    }
    if (text.indexOf(QLatin1Char('=')) > 0 && headType == CodeNode::Group) {
        ok(CodeParserSyntax::Keyword);
        if (keepsPlace(oldNode, previous, CodeNode::Value)) {
            static_cast<TestValue*>(oldNode)->take(text);
            return oldNode;
        }
        return new TestValue(previous, text);
    }
    if (first == QLatin1Char('-') && headType == CodeNode::Animation) {
        ok(CodeParserSyntax::Keyword);
        if (keepsPlace(oldNode, previous, CodeNode::Frame)) {
            static_cast<TestFrame*>(oldNode)->setIdentifier(text);
            return oldNode;
        }
        return new TestFrame(previous, text);
    }
    if (first == QLatin1Char('#') || text.isEmpty()) {
        ok(CodeParserSyntax::Comment);
    } else {
        report(syntax, text);
    }
    return nullptr;
}

TestValue::TestValue(CodeNode* previous, const QString& line) : ValueCode(previous, Text, {})
{
    take(line);
}

void TestValue::take(const QString& line)
{
    const int sign = line.indexOf(QLatin1Char('='));
    m_name = line.left(sign);
    setValue(line.mid(sign + 1));
}

void TestValue::setName(const QString& name)
{
    change(name + QLatin1Char('=') + value().toString());
}

bool TestValue::write(const QVariant& value)
{
    change(m_name + QLatin1Char('=') + value.toString());
    return true;
}

TestGroup::TestGroup(CodeNode* previous, unsigned group, bool atRoot) : GroupCode(previous, group)
{
    if (atRoot) {
        insertRootChild(this);
    }
}

TestAnimation::TestAnimation(CodeNode* previous, const QString& name)
    : AnimationCode(previous), m_name(name)
{
}

QVariant TestAnimation::property(const QString& key) const
{
    return key == QLatin1String("Identifier") ? QVariant(m_name) : NamedCode::property(key);
}

TestFrame::TestFrame(CodeNode* previous, const QString& text)
    : FrameCode(previous, nullptr, nullptr), m_text(text)
{
}

int TestFrame::spritePart(int part) const
{
    bool isNumber = false;
    const int value = m_text.mid(1).section(QLatin1Char(','), part, part).toInt(&isNumber);
    return isNumber ? value : -1;
}

void TestFrame::setSprite(int group, int number)
{
    change(QStringLiteral("-%1,%2").arg(QString::number(group), QString::number(number)));
}

GrammarDocument::GrammarDocument(const QString& text)
{
    setParser(&grammar);
    if (!text.isNull()) {
        setPlainText(text);
    }
}

GrammarDocument::~GrammarDocument()
{
    setParser(nullptr);
}

int GrammarDocument::blockFolding(const QString& line) const
{
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
        return 0;
    }
    if (line.startsWith(QLatin1Char('[')) || line.startsWith(QLatin1Char('!'))) {
        return 1 | (line.contains(QLatin1Char('*')) ? 4 : 0);
    }
    return 2;
}

QStringList GrammarDocument::dump() const
{
    return dumpOf(*this);
}
