#pragma once

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodepath.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"

#include <zorv/code/codedoc/codeblockdata.h>
#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/messages.h>

#include <QTextBlock>

/// Everything that a document knows of its text, line by line, for comparison
/// with another document of the same text.
namespace FamilyDump {

inline QString nodeText(const Zorv::CodeNode* node)
{
    return QStringLiteral("%1 %2 @%3")
        .arg(Family::nodeKind(node), Family::nodeLabel(node))
        .arg(node->block().blockNumber());
}

inline void addTree(const Zorv::CodeNode* node, const QString& indent, QStringList* lines)
{
    lines->append(indent + nodeText(node));
    const auto* parent = dynamic_cast<const Zorv::ParentCode*>(node);
    QVector<Zorv::CodeNode*> children;
    for (int i = 0; parent && i < parent->childCount(); ++i) {
        children.append(parent->childAt(unsigned(i)));
        if (parent->childIndex(children.last()) != i || children.last()->parentCode() != parent) {
            lines->append(indent + QStringLiteral("child %1 is not in its place").arg(i));
        }
    }
    if (node->type() == Zorv::CodeNode::Group) {
        // The values of a deleted head go to the group above in reverse order.
        const auto firstSub = std::stable_partition(
            children.begin(), children.end(),
            [](const Zorv::CodeNode* child) { return child->type() == Zorv::CodeNode::Value; });
        std::sort(children.begin(), firstSub,
                  [](const auto* a, const auto* b) { return a->precedes(b); });
    }
    for (const Zorv::CodeNode* child : qAsConst(children)) {
        addTree(child, indent + QLatin1String("  "), lines);
    }
}

inline void addBoxes(const Family::FrameNode* frame, QStringList* lines)
{
    for (const auto type : {Zorv::ContactBoxCode::Attack, Zorv::ContactBoxCode::Collision}) {
        const Zorv::ContactBoxesCode* boxes = frame->contactBoxes(type);
        for (int i = 0; i < boxes->count(); ++i) {
            const Zorv::ContactBoxCode* box = boxes->at(i);
            const QRect rect = box->rect();
            lines->append(QStringLiteral("box %1 of %2: %3 %4 %5 %6 @%7%8")
                              .arg(type)
                              .arg(frame->block().blockNumber())
                              .arg(rect.left())
                              .arg(rect.top())
                              .arg(rect.right())
                              .arg(rect.bottom())
                              .arg(box->line())
                              .arg(box->boxes() == boxes ? "" : " of another frame"));
        }
    }
}

inline void addChain(const Family::FamilyDocument* document, QStringList* lines)
{
    const QHash<const Zorv::CodeNode*, QString> paths = Family::nodePaths(document);
    const Zorv::CodeNode* previous = document;
    for (const Zorv::CodeNode* node = document->next(); node; node = node->next()) {
        lines->append(QStringLiteral("chain ") + nodeText(node) + QLatin1Char(' ') +
                      paths.value(node));
        if (node->previous() != previous || document->nodeInBlock(node->block()) != node) {
            lines->append(QStringLiteral("a broken link"));
        }
        if (const auto* frame = dynamic_cast<const Family::FrameNode*>(node)) {
            addBoxes(frame, lines);
        }
        previous = node;
    }
}

inline void addLines(const Family::FamilyDocument* document, QStringList* lines)
{
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const Zorv::CodeBlockData* data = Zorv::CodeBlockData::testBlockData(block);
        lines->append(QStringLiteral("line %1 indent %2 parsed %3")
                          .arg(block.text())
                          .arg(data ? data->foldingIndent() : -1)
                          .arg(data && data->isParsed()));
    }
    const Zorv::Messages* messages = document->messages();
    for (int i = 0; i < messages->rowCount(); ++i) {
        const Zorv::Message message = messages->at(i);
        lines->append(QStringLiteral("message %1 %2:%3 %4")
                          .arg(message.type)
                          .arg(message.line)
                          .arg(message.column)
                          .arg(message.text));
    }
}

inline void addAnimations(const Family::FamilyDocument* document, QStringList* lines)
{
    const Family::FamilyAnimations* list = document->animations();
    for (int i = 0; i < list->count(); ++i) {
        lines->append(QStringLiteral("animation %1 %2 ticks %3 loop %4")
                          .arg(list->index(i).data().toString(), nodeText(list->animation(i)))
                          .arg(list->animation(i)->duration())
                          .arg(list->animation(i)->loopFrame()));
    }
}

inline QStringList of(const Family::FamilyDocument* document)
{
    QStringList lines;
    addTree(document, {}, &lines);
    addChain(document, &lines);
    addAnimations(document, &lines);
    addLines(document, &lines);
    return lines;
}

/// What a fresh document knows of the same text.
inline QStringList fresh(const Family::FamilyDocument* document)
{
    Family::FamilyDocument other(document->kind());
    other.fromString(document->text());
    return of(&other);
}

/// The first line in which the two differ, with its neighbours; empty if they do not.
inline QString difference(const QStringList& found, const QStringList& expected)
{
    for (int i = 0; i < qMax(found.size(), expected.size()); ++i) {
        if (found.value(i) != expected.value(i)) {
            return QStringLiteral("found    \"%1\"\nexpected \"%2\"")
                .arg(found.value(i), expected.value(i));
        }
    }
    return {};
}

}  // namespace FamilyDump
