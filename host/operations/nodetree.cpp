#include "operations/nodetree.h"

#include "family/familydocument.h"
#include "family/nodepath.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"

#include <QHash>
#include <QPair>

#include <memory>

namespace Operations {

using Family::BoxNode;
using Family::FamilyDocument;

namespace {

const Zorv::CodeNode* owner(const Zorv::CodeNode* node)
{
    if (const auto* box = dynamic_cast<const BoxNode*>(node)) {
        return box->frame();
    }
    const Zorv::ParentCode* parent = node->parentCode();
    return parent && parent->type() != Zorv::CodeNode::Root ? parent : nullptr;
}

QString linesOf(const FamilyDocument* document, const Zorv::CodeNode* node)
{
    QString text;
    QTextBlock block = document->findBlockByNumber(node->firstLine());
    for (int line = node->firstLine(); line <= node->lastLine() && block.isValid(); ++line) {
        text += block.text() + QLatin1Char('\n');
        block = block.next();
    }
    while (text.endsWith(QLatin1Char('\n'))) {
        text.chop(1);
    }
    return text;
}

}  // namespace

QVector<TreeEntry> nodeTree(const FamilyDocument* document)
{
    // The node chain is in text order, but there a contact box precedes its frame.
    QHash<const Zorv::CodeNode*, QVector<const Zorv::CodeNode*>> children;
    const auto* root = static_cast<const Zorv::CodeNode*>(document);
    for (const Zorv::CodeNode* node = root->next(); node; node = node->next()) {
        children[owner(node)].append(node);
    }
    QVector<TreeEntry> result;
    QVector<TreeEntry> open;
    const auto push = [&](const Zorv::CodeNode* parent, int depth) {
        const QVector<const Zorv::CodeNode*> nodes = children.value(parent);
        for (int i = nodes.size() - 1; i >= 0; --i) {
            open.append({nodes[i], depth});
        }
    };
    push(nullptr, 0);
    while (!open.isEmpty()) {
        const TreeEntry entry = open.takeLast();
        result.append(entry);
        push(entry.node, entry.depth + 1);
    }
    return result;
}

QString textAt(const FamilyDocument* document, const QString& path, QString* error)
{
    const QString value = Family::getValue(document, path, error);
    if (!value.isNull()) {
        return value;
    }
    QString part;
    const Zorv::CodeNode* node = Family::nodeAt(document, path, &part);
    if (!node || !part.isEmpty()) {
        return {};
    }
    error->clear();
    return linesOf(document, node);
}

}  // namespace Operations
