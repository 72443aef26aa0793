#include "code/codedoc/codedocument_p.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/folding_p.h"
#include "code/codedoc/groupcode.h"
#include "core/messages.h"

#include <algorithm>
#include <utility>

namespace Zorv {

namespace {

bool isHead(const CodeNode* node)
{
    return (node->type() & (CodeNode::Group | CodeNode::Animation)) != 0;
}

/// A replaced animation head keeps its current frame, because the user still looks at it.
void handOnFrame(const CodeNode* old, CodeNode* node)
{
    if (old->type() == CodeNode::Animation && node->type() == CodeNode::Animation) {
        const int frame = static_cast<const AnimationCode*>(old)->currentFrame();
        static_cast<AnimationCode*>(node)->setCurrentFrame(frame);
    }
}

}  // namespace

void CodeDocumentPrivate::beginPass()
{
    if (passDepth++ == 0) {
        q->messages()->beginChange();
        reports = q->hasSyntaxHighlight();
        firstParsed = QTextBlock();
        lastParsed = QTextBlock();
    }
}

void CodeDocumentPrivate::endPass()
{
    if (--passDepth > 0) {
        return;
    }
    if (CodeBlockData* last = CodeBlockData::testBlockData(lastParsed)) {
        tellLevels(Folding::updateBelow(last));
    }
    releaseUnlinked();
    q->messages()->endChange();
    if (parser) {
        emit q->codeChanged();
    }
}

void CodeDocumentPrivate::tellLevels(const CodeBlockData* last)
{
    const CodeBlockData* first = CodeBlockData::testBlockData(firstParsed);
    if (!first) {
        return;
    }
    const CodeBlockData* above = LineIndex::backward(first, CodeBlockDataPrivate::HasClass);
    emit q->levelsChanged(firstParsed.blockNumber(), last->d->block().blockNumber(),
                          above ? above->d->block().blockNumber() : -1);
}

void CodeDocumentPrivate::aboutToParse(int from, int, int added)
{
    stepsBeforeChange = Begun;
    const int first = q->findBlock(from).blockNumber();
    const QTextBlock lastBlock = q->findBlock(from + added);
    const int last = lastBlock.isValid() ? lastBlock.blockNumber() : q->blockCount() - 1;
    const int linesNow = last - first + 1;
    // Qt only reports characters. The number of replaced lines follows from the block counts.
    const int linesBefore = linesNow - (q->blockCount() - knownBlocks);
    knownBlocks = q->blockCount();
    unlinkDeadNodes();
    if (!inEditPass) {
        inEditPass = true;
        beginPass();
        if (parser && first >= 0) {
            q->messages()->moveLines(first, std::max(linesBefore, 0), linesNow);
        }
    }
}

void CodeDocumentPrivate::parsed()
{
    if (inEditPass) {
        parseDependents();
        inEditPass = false;
        endPass();
    }
}

/// Continues with lines that Qt skipped: those parsed under an outdated head, or so far only parsed
/// for their nodes.
void CodeDocumentPrivate::parseDependents()
{
    while (const CodeBlockData* last = CodeBlockData::testBlockData(lastParsed)) {
        const QTextBlock below = lastParsed.next();
        const CodeBlockData* data = CodeBlockData::testBlockData(below);
        if (!parser || !data ||
            (data->d->contextAbove == last->d->context && !data->d->isUnreported)) {
            return;
        }
        rehighlightBlock(below);
    }
}

/// Inside an edit block, messages still have the line numbers from before it. They are cleared,
/// because Qt will report all edits of the block at its end.
void CodeDocumentPrivate::rehighlightAll()
{
    stepsBeforeChange = Begun;
    unlinkDeadNodes();
    beginPass();
    if (parser && (changeDepth > 0 || q->blockCount() != knownBlocks)) {
        q->messages()->clear();
        knownBlocks = q->blockCount();
    }
    rehighlight();
    endPass();
}

CodeBlockData* CodeDocumentPrivate::enter(const QTextBlock& block)
{
    CodeBlockData* data = CodeBlockData::blockData(block);
    if (!data->d->owner) {
        CodeBlockData* above = nullptr;
        for (QTextBlock b = block.previous(); b.isValid(); b = b.previous()) {
            above = CodeBlockData::testBlockData(b);
            if (above && above->d->owner) {
                break;
            }
            above = nullptr;
        }
        data->d->owner = this;
        data->d->fragment = block.fragmentIndex();
        lines.insert(above, data);
    }
    return data;
}

CodeNode* CodeDocumentPrivate::nodeAbove(const CodeBlockData* data) const
{
    const CodeBlockData* line = LineIndex::above(data);
    if (line && !line->d->node) {
        line = LineIndex::backward(line, CodeBlockDataPrivate::HasNode);
    }
    return line ? line->d->node : q;
}

/// The old node is passed to the parser only if it may stay: it is directly behind `previous`, and
/// its place in the tree is right or can be corrected here.
CodeNode* CodeDocumentPrivate::parseLine(const QTextBlock& block, CodeBlockData* data,
                                         const QString& text, CodeParserSyntax* syntax)
{
    CodeNode* previous = nodeAbove(data);
    // Skip nodes of deleted lines that are still in the chain.
    while (previous->m_next && !previous->m_next->m_block.isValid()) {
        previous = previous->m_next;
    }
    previous->m_endBlock = block.fragmentIndex();
    ++parsedLines;
    const CodeBlockData* above = LineIndex::above(data);
    const quint32 contextAbove = above ? above->d->context : 0;
    CodeNode* old = data->d->node;
    const bool isUnderOther = contextAbove != data->d->contextAbove;
    const bool mayStay = old && old->m_previous == previous && (!isUnderOther || knowsPlace(old));
    isParsing = true;
    CodeNode* node = parser->parse(text, mayStay ? old : nullptr, previous, q, syntax);
    if (node && (node != old || isUnderOther)) {
        place(node, node == old);
    }
    isParsing = false;
    if (!newcomers.isEmpty()) {
        const QVector<CodeNode*> children = std::exchange(newcomers, {});
        std::for_each(children.begin(), children.end(), [this](CodeNode* n) { announce(n); });
    }
    data->d->contextAbove = contextAbove;
    data->d->context = contextOf(node, old, data, text);
    data->d->node = node;
    if (node && old && old != node) {
        handOnFrame(old, node);
    }
    return old == node ? nullptr : old;
}

int CodeDocumentPrivate::stateOf(const CodeNode* node)
{
    if (!node) {
        return 0;
    }
    if (node->type() == CodeNode::Animation) {
        return AnimationState;
    }
    const CodeNode* group = node->type() == CodeNode::Group
                                ? node
                                : node->previous(CodeNode::Group, CodeNode::StopAtCode);
    if (group) {
        return int(static_cast<const GroupCode*>(group)->group());
    }
    return node->previous(CodeNode::Animation, CodeNode::StopAtCode) ? AnimationState : 0;
}

/// Computes the context for the lines below. A head that was updated keeps its number. So does a
/// head that was created again from the same words in the same place, and it takes over the
/// children of the old one. Any other head gets a new number.
quint32 CodeDocumentPrivate::contextOf(CodeNode* node, CodeNode* old, const CodeBlockData* data,
                                       const QString& text)
{
    if (!node || !isHead(node)) {
        return data->d->contextAbove;
    }
    const ParentCode* parent = node->m_parent;
    const bool isSub = parent && isHead(parent);
    const CodeBlockData* line = isSub ? CodeBlockData::testBlockData(parent->m_block) : nullptr;
    auto* head = static_cast<ParentCode*>(node);
    head->m_signature = qHash(text, line ? line->d->context : 0);
    if (node == old) {
        return data->d->context;
    }
    if (!old || old->m_type != node->m_type ||
        static_cast<ParentCode*>(old)->m_signature != head->m_signature) {
        return ++contexts;
    }
    const bool isGroup = node->m_type == CodeNode::Group;
    if (isGroup &&
        static_cast<GroupCode*>(old)->group() != static_cast<GroupCode*>(node)->group()) {
        return ++contexts;
    }
    auto* former = static_cast<ParentCode*>(old);
    for (int count = former->childCount(); count > 0; --count) {
        head->insertChild(former->childAt(0), unsigned(-1));
    }
    return data->d->context;
}

void CodeDocumentPrivate::highlightBlock(const QString& text)
{
    if (!parser) {
        return;
    }
    const QTextBlock block = currentBlock();
    CodeBlockData* data = enter(block);
    currentData = data;
    const bool hadMessages = !data->syntaxMessages().isEmpty();
    if (data->d->details) {
        data->d->details->syntaxMessages.resize(0);
        data->d->details->parenthesis.resize(0);
    }
    data->d->isParsed = false;
    data->d->isUnreported = false;
    CodeNode* old = parseLine(block, data, text, reports ? this : nullptr);
    const int state = stateOf(data->d->node);
    // If the state changes, Qt continues with the next line.
    setCurrentBlockState(state ? state : previousBlockState());
    storeMessages(data, hadMessages);
    if (old) {
        retire(old);
    }
    updateTraits(data, text);
    if (lastParsed.next() != block &&
        (!firstParsed.isValid() || block.position() < firstParsed.position())) {
        firstParsed = block;
    }
    lastParsed = block;
}

quint16
CodeDocumentPrivate::traitsOfParentheses(const QVector<CodeBlockData::Parenthesis>& parentheses)
{
    quint16 traits = 0;
    int open = 0;
    for (const CodeBlockData::Parenthesis& parenthesis : parentheses) {
        if (parenthesis.type == CodeBlockData::Parenthesis::Opening) {
            ++open;
        } else if (open > 0) {
            --open;
        } else {
            traits = CodeBlockDataPrivate::LacksOpening;
        }
    }
    return open > 0 ? traits | CodeBlockDataPrivate::LacksClosing : traits;
}

void CodeDocumentPrivate::updateTraits(CodeBlockData* data, const QString& text)
{
    static constexpr quint16 messageTraits[] = {CodeBlockDataPrivate::HasError,
                                                CodeBlockDataPrivate::HasWarning,
                                                CodeBlockDataPrivate::HasDeprecation};
    const int folding = q->blockFolding(text);
    quint16 traits = Folding::traitsOfClass(folding);
    data->d->isOutermost = (folding & 4) != 0;
    if (data->d->node) {
        traits |= CodeBlockDataPrivate::HasNode;
    }
    for (const CodeBlockData::SyntaxMessage& message : data->syntaxMessages()) {
        traits |= messageTraits[message.type];
    }
    traits |= traitsOfParentheses(data->parenthesis());
    LineIndex::setTraits(data, traits);
    if (traits & CodeBlockDataPrivate::HasClass) {
        Folding::updateLine(data);
    }
}

bool CodeDocumentPrivate::mustParseNow() const
{
    static const QString parseCode = QStringLiteral("parseCode");
    return changeDepth > 0 && parser && q->ProjectFile::option(parseCode).toBool();
}

void CodeDocumentPrivate::parseNow(QTextBlock block, const QTextBlock& behind)
{
    unlinkDeadNodes();
    const CodeBlockData* last = nullptr;
    bool isBehind = false;
    for (; block.isValid(); block = block.next()) {
        isBehind = isBehind || block == behind;
        const CodeBlockData* present = CodeBlockData::testBlockData(block);
        if (isBehind && last && (!present || present->d->contextAbove == last->d->context)) {
            break;
        }
        CodeBlockData* data = enter(block);
        last = data;
        CodeNode* old = parseLine(block, data, block.text(), nullptr);
        data->d->isUnreported = true;
        quint16 traits = data->d->traits & ~CodeBlockDataPrivate::HasNode;
        traits |= data->d->node ? CodeBlockDataPrivate::HasNode : 0;
        LineIndex::setTraits(data, traits);
        if (old) {
            retire(old);
        }
    }
    releaseUnlinked();
}

}  // namespace Zorv
