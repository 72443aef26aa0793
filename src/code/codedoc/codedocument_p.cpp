#include "code/codedoc/codedocument_p.h"

#include "code/codedoc/codedocumenteditor.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/folding_p.h"
#include "code/codedoc/groupcode.h"
#include "code/codedoc/nodechain_p.h"
#include "core/messages.h"

#include <algorithm>
#include <utility>

namespace Zorv {

std::array<QTextCharFormat, CodeParserSyntax::TokenTypeCount> CodeDocumentPrivate::m_syntaxFmts = {
    makeFormat(false, false, Qt::black),
    makeFormat(false, true, Qt::gray),
    makeFormat(false, false, Qt::red),
    makeFormat(false, false, Qt::blue),
    makeFormat(true, false, Qt::black),
    makeFormat(true, false, QColor(0, 128, 0)),
    makeFormat(true, false, QColor(255, 128, 0)),
    makeFormat(true, false, QColor(0, 128, 128)),
    makeFormat(false, false, QColor(128, 0, 255)),
    makeFormat(false, false, QColor(255, 0, 255)),
};

QTextCharFormat CodeDocumentPrivate::makeFormat(bool bold, bool italic, const QColor& color)
{
    QTextCharFormat format;
    format.setFontFamily(QStringLiteral("Courier"));
    format.setFontPointSize(10);
    format.setFontFixedPitch(true);
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(italic);
    format.setForeground(QBrush(color, Qt::SolidPattern));
    return format;
}

CodeDocumentPrivate::CodeDocumentPrivate(CodeDocument* document)
    : QSyntaxHighlighter(static_cast<QObject*>(nullptr)), q(document)
{
    // The order of the connections is that of the work: before, Qt's, after.
    connect(q, &QTextDocument::contentsChange, this, &CodeDocumentPrivate::aboutToParse);
    setDocument(q);
    connect(q, &QTextDocument::contentsChange, this, &CodeDocumentPrivate::parsed);
    cursor = QTextCursor(q);
}

CodeDocumentPrivate::~CodeDocumentPrivate()
{
    // The highlighter's destructor takes all formats off, which is a change of the document.
    disconnect(q, nullptr, this, nullptr);
}

void CodeDocumentPrivate::beginPass()
{
    if (passDepth++ == 0) {
        q->messages()->beginChange();
        reports = q->hasSyntaxHighlight();
        lastParsed = QTextBlock();
    }
}

void CodeDocumentPrivate::endPass()
{
    if (--passDepth > 0) {
        return;
    }
    if (CodeBlockData* last = CodeBlockData::testBlockData(lastParsed)) {
        mendBelow(last);
        Folding::updateBelow(last);
    }
    releaseUnlinked();
    q->messages()->endChange();
    if (parser) {
        emit q->codeChanged();
    }
}

void CodeDocumentPrivate::aboutToParse(int from, int, int added)
{
    const int first = q->findBlock(from).blockNumber();
    const QTextBlock lastBlock = q->findBlock(from + added);
    const int last = lastBlock.isValid() ? lastBlock.blockNumber() : q->blockCount() - 1;
    const int linesNow = last - first + 1;
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

/// Goes on to the lines that were parsed under a head which is no longer theirs,
/// though Qt saw no reason to.
void CodeDocumentPrivate::parseDependents()
{
    while (const CodeBlockData* last = CodeBlockData::testBlockData(lastParsed)) {
        const QTextBlock below = lastParsed.next();
        const CodeBlockData* data = CodeBlockData::testBlockData(below);
        if (!parser || !data || data->d->contextAbove == last->d->context) {
            return;
        }
        rehighlightBlock(below);
    }
}

/// Inside an edit block the messages still have the lines from before it, and
/// Qt will tell of the whole block's edits when it ends.
void CodeDocumentPrivate::rehighlightAll()
{
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

CodeNode* CodeDocumentPrivate::parseLine(const QTextBlock& block, CodeBlockData* data,
                                         const QString& text, CodeParserSyntax* syntax)
{
    CodeNode* previous = nodeAbove(data);
    while (previous->m_next && !previous->m_next->m_block.isValid()) {
        previous = previous->m_next;
    }
    previous->m_endBlock = block.fragmentIndex();
    ++parsedLines;
    isParsing = true;
    CodeNode* node = parser->parse(text, data->d->node, previous, q, syntax);
    isParsing = false;
    if (!newcomers.isEmpty()) {
        const QVector<CodeNode*> children = std::exchange(newcomers, {});
        std::for_each(children.begin(), children.end(), [this](CodeNode* n) { announce(n); });
    }
    return node;
}

void CodeDocumentPrivate::announce(CodeNode* child)
{
    CodeDocumentEditor* editor = editors.value(editorKey(child));
    if (editor && isParsing) {
        newcomers.append(child);
    } else if (editor) {
        editor->insertChild(child, placeAmongKind(child));
    }
}

void CodeDocumentPrivate::forget(CodeNode* child)
{
    counted = nullptr;
    newcomers.removeAll(child);
    if (CodeDocumentEditor* editor = editors.value(editorKey(child))) {
        editor->removeChild(child);
    }
}

void CodeDocumentPrivate::retire(CodeNode* node)
{
    node->handOver();
    node->unlink();
    node->release();
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

/// What the lines below a node depend on: the kind of their head, and for a
/// sub-group that of its parent.
int CodeDocumentPrivate::contextOf(const CodeNode* node, int contextAbove)
{
    if (!node || !(node->type() & (CodeNode::Group | CodeNode::Animation))) {
        return contextAbove;
    }
    if (node->type() == CodeNode::Animation) {
        return AnimationState;
    }
    const auto* group = static_cast<const GroupCode*>(node);
    unsigned context = group->group();
    if (isSubGroup(group)) {
        context |= (static_cast<const GroupCode*>(group->m_parent)->group() + 1) << 16;
    }
    return int(context);
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
    CodeNode* old = data->d->node;
    CodeNode* node = parseLine(block, data, text, reports ? this : nullptr);
    data->d->node = node;
    const int state = stateOf(node);
    setCurrentBlockState(state ? state : previousBlockState());
    const CodeBlockData* above = LineIndex::above(data);
    data->d->contextAbove = above ? above->d->context : 0;
    data->d->context = contextOf(node, data->d->contextAbove);
    storeMessages(data, hadMessages);
    if (old && old != node) {
        retire(old);
    }
    updateTraits(data, text);
    lastParsed = block;
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
    LineIndex::setTraits(data, traits);
    if (traits & CodeBlockDataPrivate::HasClass) {
        Folding::updateLine(data);
    }
}

/// Sees to it that the nodes below the parsed lines have the right parent. Where
/// one head takes the place of another of its kind they are not parsed again,
/// and while both were there they can have lost their parent.
void CodeDocumentPrivate::mendBelow(const CodeBlockData* line)
{
    constexpr unsigned heads = CodeNode::Group | CodeNode::Animation;
    CodeNode* above = line->d->node ? line->d->node : nodeAbove(line);
    CodeNode* head = above->type() & heads ? above : NodeChain::backward(above, heads);
    if (!head) {
        return;
    }
    const bool isGroup = head->type() == CodeNode::Group;
    const CodeNode::Type leaf = isGroup ? CodeNode::Value : CodeNode::Frame;
    const CodeNode* below = NodeChain::forward(above, heads | leaf);
    if (below && below->type() == leaf && below->parentCode() != head) {
        head->adopt();
    }
    below = NodeChain::forward(above, heads);
    if (!isGroup || !below || below->type() != CodeNode::Group) {
        return;
    }
    CodeNode* top = isSubGroup(static_cast<GroupCode*>(head)) ? head->m_parent : head;
    const CodeNode* parent = below->m_parent;
    if (!parent || (parent->type() == CodeNode::Group && parent != top)) {
        top->adopt();
    }
}

void CodeDocumentPrivate::storeMessages(CodeBlockData* data, bool hadMessages)
{
    if (!hadMessages && lineMessages.isEmpty()) {
        return;
    }
    const int line = data->d->block().blockNumber();
    for (Message& message : lineMessages) {
        message.line = line;
    }
    std::stable_sort(lineMessages.begin(), lineMessages.end(),
                     [](const Message& a, const Message& b) { return a.column < b.column; });
    q->messages()->replaceLine(line, lineMessages);
    lineMessages.resize(0);
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
    for (; block.isValid() && block != behind; block = block.next()) {
        CodeBlockData* data = enter(block);
        last = data;
        CodeNode* old = data->d->node;
        CodeNode* node = parseLine(block, data, block.text(), nullptr);
        data->d->node = node;
        quint16 traits = data->d->traits & ~CodeBlockDataPrivate::HasNode;
        traits |= node ? CodeBlockDataPrivate::HasNode : 0;
        LineIndex::setTraits(data, traits);
        if (old && old != node) {
            retire(old);
        }
    }
    if (last) {
        mendBelow(last);
    }
    releaseUnlinked();
}

void CodeDocumentPrivate::lineGone(CodeBlockData* line)
{
    CodeBlockDataPrivate& d = *line->d;
    lines.remove(line);
    d.owner = nullptr;
    if (d.node) {
        d.node->m_block = QTextBlock();
        dead.append(d.node);
    }
}

void CodeDocumentPrivate::dropDeadNodes()
{
    unlinkDeadNodes();
    releaseUnlinked();
}

/// Leaves go first, so that a dying head only hands on what lives.
void CodeDocumentPrivate::unlinkDeadNodes()
{
    QVector<CodeNode*> nodes;
    nodes.swap(dead);
    const auto isHead = [](const CodeNode* node) {
        return node->type() == CodeNode::Group || node->type() == CodeNode::Animation;
    };
    const auto heads = std::stable_partition(nodes.begin(), nodes.end(),
                                             [&](CodeNode* node) { return !isHead(node); });
    std::for_each(nodes.begin(), heads, [](CodeNode* node) { node->unlink(); });
    std::sort(heads, nodes.end(), [](CodeNode* a, CodeNode* b) { return a->precedes(b); });
    std::for_each(heads, nodes.end(), [](CodeNode* node) {
        node->handOver();
        node->unlink();
    });
    unlinked += nodes;
}

void CodeDocumentPrivate::releaseUnlinked()
{
    QVector<CodeNode*> nodes;
    nodes.swap(unlinked);
    for (CodeNode* node : nodes) {
        node->release();
    }
}

void CodeDocumentPrivate::ok(TokenType type, unsigned start, unsigned end)
{
    currentData->d->isParsed = currentData->d->isParsed || type != Comment;
    setFormat(int(start), int(end - start), m_syntaxFmts[type]);
}

void CodeDocumentPrivate::report(Message::Type type, CodeBlockData::SyntaxMessage::Type syntaxType,
                                 TokenType token, const QColor& underline, const QString& text,
                                 unsigned start, unsigned end)
{
    currentData->d->isParsed = true;
    QTextCharFormat format = m_syntaxFmts[token];
    format.setUnderlineColor(underline);
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    currentData->d->makeDetails().syntaxMessages.append({syntaxType, int(start), int(end), text});
    setFormat(int(start), int(end - start), format);
    lineMessages.append({type, 0, int(start), text});
}

void CodeDocumentPrivate::error(TokenType type, const QString& text, unsigned start, unsigned end)
{
    report(Message::Error, CodeBlockData::SyntaxMessage::Error, type, Qt::red, text, start, end);
}

void CodeDocumentPrivate::warning(TokenType type, const QString& text, unsigned start, unsigned end)
{
    report(Message::Warning, CodeBlockData::SyntaxMessage::Warning, type, QColor(255, 127, 0), text,
           start, end);
}

void CodeDocumentPrivate::deprecated(TokenType type, const QString& text, unsigned start,
                                     unsigned end)
{
    report(Message::Warning, CodeBlockData::SyntaxMessage::Deprecated, type, QColor(255, 255, 0),
           text, start, end);
}

void CodeDocumentPrivate::parenthesis(bool opening, QChar character, int position)
{
    using Parenthesis = CodeBlockData::Parenthesis;
    currentData->d->makeDetails().parenthesis.append(
        {opening ? Parenthesis::Opening : Parenthesis::Closing, character, position});
}

unsigned CodeDocumentPrivate::editorKey(CodeNode::Type type, unsigned group)
{
    return (group << 16) | type;
}

unsigned CodeDocumentPrivate::editorKey(const CodeNode* node)
{
    const bool isGroup = node->type() == CodeNode::Group;
    return editorKey(node->type(), isGroup ? static_cast<const GroupCode*>(node)->group() : 0);
}

unsigned CodeDocumentPrivate::placeAmongKind(const CodeNode* child)
{
    if (child->type() == CodeNode::Animation) {
        return NodeChain::before(child).animations;
    }
    // A file that is loaded asks for one node after the other: the place of
    // the last one asked for is remembered.
    const unsigned key = editorKey(child);
    unsigned count = 0;
    for (const CodeNode* node = NodeChain::backward(child, child->type()); node;
         node = NodeChain::backward(node, child->type())) {
        if (node == counted && key == countedKey) {
            count += countedPlace + 1;
            break;
        }
        count += editorKey(node) == key ? 1 : 0;
    }
    counted = child;
    countedKey = key;
    countedPlace = count;
    return count;
}

}  // namespace Zorv
