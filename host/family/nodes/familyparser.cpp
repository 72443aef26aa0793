#include "family/nodes/familyparser.h"

#include "family/grammar/linescanner.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"

#include <zorv/code/codedoc/rootcode.h>

namespace Family {

using Zorv::CodeNode;

namespace {

LineHead headOf(const CodeNode* node)
{
    LineHead head;
    if (node && node->type() == CodeNode::Group) {
        head.kind = LineHead::Group;
        head.group = static_cast<const GroupNode*>(node)->info();
    } else if (node && node->type() == CodeNode::Animation) {
        head.kind = LineHead::Animation;
    }
    return head;
}

CodeNode* groupNode(const ParsedLine& line, CodeNode* oldNode, CodeNode* previous)
{
    auto* old = dynamic_cast<GroupNode*>(oldNode);
    if (old && old->info() == line.group) {
        old->update(line.argument);
        return old;
    }
    return new GroupNode(previous, line.group, line.argument);
}

CodeNode* valueNode(const ParsedLine& line, CodeNode* oldNode, CodeNode* previous)
{
    auto* old = dynamic_cast<ValueNode*>(oldNode);
    if (old && old->valueType() == line.key->valueType()) {
        old->update(line.key, line.value);
        return old;
    }
    return new ValueNode(previous, line.key, line.value);
}

CodeNode* animationNode(const ParsedLine& line, CodeNode* oldNode, CodeNode* previous)
{
    if (auto* old = dynamic_cast<AnimationNode*>(oldNode)) {
        old->update(line.argument, line.name);
        return old;
    }
    return new AnimationNode(previous, line.argument, line.name);
}

CodeNode* frameNode(const ParsedLine& line, CodeNode* oldNode, CodeNode* previous)
{
    if (auto* old = dynamic_cast<FrameNode*>(oldNode)) {
        old->update(line.frame);
        return old;
    }
    return new FrameNode(previous, line.frame);
}

CodeNode* boxNode(const ParsedLine& line, CodeNode* oldNode, CodeNode* previous)
{
    auto* old = dynamic_cast<BoxNode*>(oldNode);
    if (old && old->isAttack() == line.attack) {
        old->update(line.box);
        return old;
    }
    return new BoxNode(previous, line.attack, line.box);
}

/// True for a line without code, after colouring it.
bool isWithoutCode(const QString& text, Zorv::CodeParserSyntax* syntax)
{
    LineScanner scanner(text);
    scanner.skipBlanks();
    if (!scanner.atCodeEnd()) {
        return false;
    }
    if (syntax && scanner.position() < scanner.size()) {
        syntax->ok(Zorv::CodeParserSyntax::Comment, unsigned(scanner.position()),
                   unsigned(scanner.size()));
    }
    return true;
}

}  // namespace

LineHead headAbove(const CodeNode* previous)
{
    return headOf(previous ? Zorv::lineHead(previous) : nullptr);
}

FamilyParser* FamilyParser::instance()
{
    static FamilyParser parser;
    return &parser;
}

CodeNode* FamilyParser::parse(const QString& text, CodeNode* oldNode, CodeNode* previous,
                              Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax)
{
    if (isWithoutCode(text, syntax)) {
        return nullptr;
    }
    const CodeNode* above = Zorv::lineHead(previous);
    LineHead head = headOf(above);
    // While parsing is switched off, heads are rejected, so no line is below one.
    const bool enabled = above || root->groupEnabled(0);
    if (!enabled) {
        head.kind = LineHead::Anything;
    }
    LineReport report(syntax);
    const ParsedLine line = readLine(text, head, FileKind(root->tag()), report);
    if (!enabled) {
        return nullptr;
    }
    switch (line.kind) {
    case ParsedLine::Group:
        return groupNode(line, oldNode, previous);
    case ParsedLine::Value:
        return valueNode(line, oldNode, previous);
    case ParsedLine::Animation:
        return animationNode(line, oldNode, previous);
    case ParsedLine::Frame:
        return frameNode(line, oldNode, previous);
    case ParsedLine::Box:
        return boxNode(line, oldNode, previous);
    default:
        return nullptr;
    }
}

}  // namespace Family
