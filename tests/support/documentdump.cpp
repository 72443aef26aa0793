#include "support/documentdump.h"

#include "code/codedoc/codeblockdata.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"
#include "code/codedoc/valuecode.h"
#include "core/messages.h"

#include <QTextBlock>

using namespace Zorv;

namespace {

QString label(const CodeNode* node)
{
    QString text;
    if (const auto* value = dynamic_cast<const ValueCode*>(node)) {
        text = value->name() + QLatin1Char('=') + value->value().toString();
    } else if (const auto* frame = dynamic_cast<const FrameCode*>(node)) {
        text = QStringLiteral("%1. %2").arg(frame->index()).arg(frame->identifier().toString());
    } else if (const auto* named = dynamic_cast<const NamedCode*>(node)) {
        text = named->name();
    }
    return QStringLiteral("%1 %2 at %3 (%4-%5)")
        .arg(node->type())
        .arg(text)
        .arg(node->block().blockNumber())
        .arg(node->firstLine())
        .arg(node->lastLine());
}

QStringList treeOf(const ParentCode* parent, const QString& indent)
{
    QStringList lines;
    for (int i = 0; i < parent->childCount(); ++i) {
        CodeNode* child = parent->childAt(unsigned(i));
        const bool isWhole = parent->childIndex(child) == i && child->parentCode() == parent;
        lines.append(indent + label(child) + QLatin1String(isWhole ? "" : " BROKEN"));
        if (const auto* next = dynamic_cast<const ParentCode*>(child)) {
            lines += treeOf(next, indent + QLatin1String("  "));
        }
    }
    return lines;
}

}  // namespace

QStringList nodesOf(const CodeDocument& document)
{
    QStringList lines = treeOf(&document, QStringLiteral("tree "));
    for (const CodeNode* node = document.next(); node; node = node->next()) {
        lines.append(QStringLiteral("chain ") + label(node) +
                     QLatin1String(node->parentCode() ? "" : " alone"));
    }
    return lines;
}

QStringList dumpOf(const CodeDocument& document)
{
    QStringList lines = nodesOf(document);
    for (int i = 0; i < document.messages()->count(Message::AllTypes); ++i) {
        const Message message = document.messages()->at(i);
        lines.append(QStringLiteral("message %1 %2:%3 %4")
                         .arg(message.type)
                         .arg(message.line)
                         .arg(message.column)
                         .arg(message.text));
    }
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const CodeBlockData* data = CodeBlockData::testBlockData(block);
        lines.append(QStringLiteral("line %1 folding %2")
                         .arg(block.blockNumber())
                         .arg(data ? data->foldingIndent() : -9));
    }
    return lines;
}

QString firstDifference(const QStringList& found, const QStringList& expected)
{
    int line = 0;
    while (line < qMin(found.size(), expected.size()) && found[line] == expected[line]) {
        ++line;
    }
    return found == expected ? QString()
                             : QStringLiteral("found \"%1\", expected \"%2\"")
                                   .arg(found.value(line), expected.value(line));
}
