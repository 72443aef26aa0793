#include "support/laddergrammar.h"

using namespace Zorv;

namespace {

int depthOf(const QString& line)
{
    int depth = 0;
    while (depth < line.size() && line.at(depth) == QLatin1Char('.')) {
        ++depth;
    }
    return depth;
}

/// The number of a group's line, 0 for another line.
unsigned numberOf(const QString& line, int depth)
{
    const int place = depth > 0 ? depth : 1;
    const bool isHead = depth > 0 || line.startsWith(QLatin1Char('!'));
    return isHead && place < line.size() ? line.midRef(place, 1).toUInt() : 0;
}

}  // namespace

QStringList LadderGrammar::lines()
{
    return {"!1 a", "!1 a",  "!1 b", "!2 a", "!2 ",    ".3 x", ".3 x", ".4 y",
            "..5 ", "..5 z", "@a",   "@a",   "@b",     "+ p",  "+ q",  "k: 1",
            "k: 1", "l: 2",  "m: 3", ";",    "; note", "",     "junk", "+ r"};
}

CodeNode* LadderGrammar::parse(const QString& text, CodeNode* oldNode, CodeNode* previous,
                               RootCode*, CodeParserSyntax* syntax)
{
    const CodeNode* head = lineHead(previous);
    const auto old = [&](auto* node) {
        return m_reuse == Reuse::All ? dynamic_cast<decltype(node)>(oldNode) : nullptr;
    };
    const int depth = depthOf(text);
    if (const unsigned number = numberOf(text, depth)) {
        const QString name = text.mid(depth > 0 ? depth + 1 : 2);
        auto* group = old(static_cast<LadderGroup*>(nullptr));
        const bool isSame = group && group->group() == number && group->depth() == depth;
        return isSame && group->name() == name ? group
                                               : new LadderGroup(previous, depth, number, name);
    }
    if (text.startsWith(QLatin1Char('@'))) {
        auto* animation = old(static_cast<LadderAnimation*>(nullptr));
        const QString name = text.mid(1);
        return animation && animation->name() == name ? animation
                                                      : new LadderAnimation(previous, name);
    }
    if (text.startsWith(QLatin1Char('+')) && head && head->type() == CodeNode::Animation) {
        auto* frame = old(static_cast<LadderFrame*>(nullptr));
        frame = frame ? frame : new LadderFrame(previous);
        frame->picture = text.mid(1);
        return frame;
    }
    if (text.indexOf(QLatin1Char(':')) > 0 && head) {
        auto* value = old(static_cast<LadderValue*>(nullptr));
        const bool joins = text.startsWith(QLatin1Char('m'));
        value = value && value->joins() == joins ? value : new LadderValue(previous, joins);
        value->take(text, dynamic_cast<const NamedCode*>(head)->name());
        return value;
    }
    if (syntax && !text.isEmpty() && !text.startsWith(QLatin1Char(';'))) {
        const QString above = head ? dynamic_cast<const NamedCode*>(head)->name() : QString();
        syntax->error(CodeParserSyntax::Invalid, QStringLiteral("unknown under ") + above, 0, 1);
    }
    return nullptr;
}

LadderGroup::LadderGroup(CodeNode* previous, int depth, unsigned number, const QString& name)
    : GroupCode(previous, number), m_depth(depth), m_name(name)
{
    auto* above = static_cast<LadderGroup*>(this->previous(Group, Animation));
    while (above && above->m_depth >= depth) {
        above = above->parentCode() && above->parentCode()->type() == Group
                    ? static_cast<LadderGroup*>(above->parentCode())
                    : nullptr;
    }
    if (above) {
        above->insertChild(this, unsigned(-1));
    } else {
        insertRootChild(this);
    }
}

LadderValue::LadderValue(CodeNode* previous, bool joins)
    : ValueCode(previous, Text, {}), m_joins(joins)
{
    CodeNode* head = lineHead(previous);
    if (joins && head->type() == Animation) {
        static_cast<AnimationCode*>(head)->insertChild(this, unsigned(-1));
    }
}

void LadderValue::take(const QString& line, const QString& head)
{
    m_key = line.section(QLatin1Char(':'), 0, 0);
    setValue(line.section(QLatin1Char(':'), 1) + QLatin1String(" in ") + head);
}

bool LadderValue::write(const QVariant& value)
{
    change(m_key + QLatin1String(": ") + value.toString());
    return true;
}

LadderDocument::LadderDocument(LadderGrammar::Reuse reuse, const QString& text) : m_grammar(reuse)
{
    setParser(&m_grammar);
    setPlainText(text);
}

int LadderDocument::blockFolding(const QString& line) const
{
    if (line.isEmpty() || line.startsWith(QLatin1Char(';'))) {
        return 0;
    }
    const bool isOuter = line.startsWith(QLatin1Char('!')) || line.startsWith(QLatin1Char('@'));
    return isOuter ? 5 : line.startsWith(QLatin1Char('.')) ? 1 : 2;
}
