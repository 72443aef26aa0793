#include "code/codedoc/codenode.h"

#include "code/codedoc/codeblockdata_p.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/enginemodelof_p.h"
#include "code/codedoc/nodechain_p.h"
#include "core/enginemodel.h"
#include "core/interface.h"
#include "core/parentproject.h"
#include "core/project.h"

namespace Zorv {

CodeNode::CodeNode(Type type, CodeNode* previous) : m_type(type)
{
    if (previous && previous->m_endBlock != 0) {
        // Only the root has no line, so the document must be found through the root object.
        QTextDocumentPrivate* handle = previous->m_block.docHandle();
        m_block =
            QTextBlock(handle ? handle : previous->document()->docHandle(), previous->m_endBlock);
    }
    NodeChain::link(this, previous);
}

CodeNode::~CodeNode()
{
    // The line must not keep a pointer to a deleted node.
    if (CodeBlockData* data = CodeBlockData::testBlockData(m_block)) {
        CodeBlockDataPrivate::forgetNode(data, this);
    }
    unlink();
}

void CodeNode::unlink()
{
    if (m_isTracked) {
        CodeDocumentPrivate::untrack(this);
    }
    if (m_parent) {
        m_parent->removeChild(this);
    }
    NodeChain::unlink(this);
}

void CodeNode::handOver() {}

bool CodeNode::isInPlace() const
{
    return m_type == Animation;
}

CodeNode* CodeNode::parent(Type type, unsigned short stopMask) const
{
    for (CodeNode* node = m_parent; node; node = node->m_parent) {
        if (node->m_type == type) {
            return node;
        }
        if (node->m_type & stopMask) {
            return nullptr;
        }
    }
    return nullptr;
}

CodeNode* CodeNode::previous(Type type, unsigned short stopMask) const
{
    CodeNode* node = NodeChain::backward(this, type | stopMask);
    return node && node->m_type == type ? node : nullptr;
}

CodeNode* CodeNode::next(Type type, unsigned short stopMask) const
{
    CodeNode* node = NodeChain::forward(this, type | stopMask);
    return node && node->m_type == type ? node : nullptr;
}

bool CodeNode::precedes(const CodeNode* other) const
{
    return NodeChain::precedes(this, other);
}

CodeNode* lineHead(const CodeNode* previous)
{
    constexpr unsigned heads = CodeNode::Group | CodeNode::Animation;
    return previous->type() & heads ? const_cast<CodeNode*>(previous)
                                    : NodeChain::backward(previous, heads);
}

int CodeNode::firstLine() const
{
    return m_block.blockNumber();
}

int CodeNode::lastLine() const
{
    return m_block.blockNumber();
}

CodeDocument* CodeNode::document() const
{
    return qobject_cast<CodeDocument*>(const_cast<QTextDocument*>(m_block.document()));
}

QTextCursor CodeNode::select() const
{
    if (!document()) {
        return QTextCursor();
    }
    QTextCursor cursor(m_block);
    if (m_block.next().isValid()) {
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    } else {
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    }
    return cursor;
}

QTextCursor CodeNode::selectAll() const
{
    CodeDocument* document = this->document();
    if (!document) {
        return QTextCursor();
    }
    const QTextBlock behind = document->findBlockByNumber(lastLine() + 1);
    QTextCursor cursor(document->findBlockByNumber(firstLine()));
    cursor.setPosition(behind.isValid() ? behind.position() : document->characterCount() - 1,
                       QTextCursor::KeepAnchor);
    return cursor;
}

void CodeNode::remove(bool all)
{
    if (CodeDocument* document = this->document()) {
        QTextCursor cursor = all ? selectAll() : select();
        document->replaceSelection(QString(), cursor);
    }
}

void CodeNode::valueChanged(const QVariant&)
{
    if (m_parent) {
        m_parent->childChanged(this);
    }
}

EngineModel* engineModelOf(const CodeDocument* document)
{
    if (const Project* project = document->project()) {
        return project->parent()->engineModel();
    }
    return Interface::instance() ? Interface::instance()->engineModel() : nullptr;
}

void CodeNode::change(const QString& text)
{
    CodeDocument* document = this->document();
    if (!document) {
        return;
    }
    QString line = text;
    const QString present = m_block.text();
    const EngineModel* model = engineModelOf(document);
    const int comment = model ? present.indexOf(QLatin1Char(model->commentChar())) : -1;
    if (comment >= 0) {
        line += QLatin1Char(' ') + present.midRef(comment);
    }
    QTextCursor cursor(m_block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    document->replaceSelection(line, cursor);
}

}  // namespace Zorv
