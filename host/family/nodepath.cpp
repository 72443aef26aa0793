#include "family/nodepath.h"

#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodepathparts.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"

#include <zorv/code/codedoc/contactboxescode.h>

#include <QCoreApplication>
#include <algorithm>

// A path names children by name and argument; the n-th of equal children gets "#n". `nodeAt()`
// walks down part by part. A part that is not a child can only be the last one: it names a property
// of the node, such as "offset". `nodePath()` walks up and counts the siblings; `nodePaths()` does
// the same for all nodes in one pass, by counting equal children per parent. Boxes precede their
// frame in the chain and are no children, so the pass collects them until their frame appears.

namespace Family {

using Zorv::CodeNode;
using Zorv::ContactBoxCode;

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

/// The last part of a node's path, without its number.
QString partText(const CodeNode* node)
{
    if (const auto* group = dynamic_cast<const GroupNode*>(node)) {
        const bool named = group->info()->takesArgument();
        return named ? group->info()->name + QLatin1Char(':') + pathName(group->argument())
                     : pathName(group->name());
    }
    if (const auto* value = dynamic_cast<const ValueNode*>(node)) {
        return pathName(value->name());
    }
    if (const auto* animation = dynamic_cast<const AnimationNode*>(node)) {
        return QStringLiteral("animation:") + pathName(animation->identifier());
    }
    if (const auto* frame = dynamic_cast<const FrameNode*>(node)) {
        return QStringLiteral("frame:%1").arg(frame->index());
    }
    return {};
}

QString numbered(const QString& part, int number)
{
    return number > 1 ? part + QLatin1Char('#') + QString::number(number) : part;
}

QChar separatorBefore(const CodeNode* node)
{
    return QLatin1Char(node->type() == CodeNode::Frame ? '/' : '.');
}

QString boxPart(const BoxNode* box, int index)
{
    return QStringLiteral("/%1:%2").arg(box->name(), QString::number(index));
}

/// The children of a node that match a part of a path, in text order.
QVector<CodeNode*> matches(const Zorv::ParentCode* parent, const QString& text)
{
    QVector<CodeNode*> found;
    for (int i = 0; i < parent->childCount(); ++i) {
        CodeNode* child = parent->childAt(unsigned(i));
        if (child->type() != CodeNode::Frame && partText(child) == text) {
            found.append(child);
        }
    }
    std::sort(found.begin(), found.end(),
              [](const CodeNode* a, const CodeNode* b) { return a->precedes(b); });
    return found;
}

QStringList childTexts(const Zorv::ParentCode* parent)
{
    constexpr int mostLooked = 5000;
    QStringList texts;
    for (int i = 0; i < std::min(parent->childCount(), mostLooked); ++i) {
        texts.append(partText(parent->childAt(unsigned(i))));
    }
    return texts;
}

/// Follows a path part by part.
class Walk
{
public:
    explicit Walk(const FamilyDocument* document) : m_node(const_cast<FamilyDocument*>(document)) {}

    bool follow(const QVector<PathPart>& parts);
    CodeNode* node() const { return m_node; }
    QString part() const { return m_part; }
    QString error() const { return m_error; }

private:
    bool step(const PathPart& part);
    bool stepIntoFrame(const FrameNode* frame, const PathPart& part);
    bool stepToFrame(const AnimationNode* animation, const PathPart& part);
    bool endAt(const PathPart& part, const QStringList& names);
    bool missing(const PathPart& part, const QStringList& names);

    CodeNode* m_node;
    QString m_part;
    QString m_walked;
    QString m_error;
};

bool Walk::follow(const QVector<PathPart>& parts)
{
    const bool isInAnimation = parts.first().name == QLatin1String("animation");
    const QString separator = isInAnimation ? QStringLiteral("/") : QStringLiteral(".");
    for (const PathPart& part : parts) {
        if (!m_part.isEmpty()) {
            m_error = Text::tr("'%1' has no parts.").arg(m_walked);
            return false;
        }
        if (!step(part)) {
            return false;
        }
        m_walked +=
            (m_walked.isEmpty() ? QString() : separator) + numbered(part.text(), part.number);
    }
    return true;
}

bool Walk::missing(const PathPart& part, const QStringList& names)
{
    const QString text = numbered(part.text(), part.number);
    const QString hint = nameHint(part.text(), names);
    m_error = m_walked.isEmpty()
                  ? Text::tr("There is no '%1' in the file. %2").arg(text, hint)
                  : Text::tr("There is no '%1' in '%2'. %3").arg(text, m_walked, hint);
    return false;
}

bool Walk::endAt(const PathPart& part, const QStringList& names)
{
    if (part.hasArgument || part.number != 1 || !names.contains(part.name)) {
        return missing(part, names);
    }
    m_part = part.name;
    return true;
}

bool Walk::step(const PathPart& part)
{
    if (const auto* frame = dynamic_cast<FrameNode*>(m_node)) {
        return stepIntoFrame(frame, part);
    }
    if (const auto* animation = dynamic_cast<AnimationNode*>(m_node)) {
        return stepToFrame(animation, part);
    }
    const auto* parent = dynamic_cast<Zorv::ParentCode*>(m_node);
    if (!parent) {
        return missing(part, {});
    }
    const QVector<CodeNode*> found = matches(parent, part.text());
    if (part.number <= found.size()) {
        m_node = found.at(part.number - 1);
        return true;
    }
    const auto* group = dynamic_cast<GroupNode*>(m_node);
    if (group && group->info()->takesArgument()) {
        return endAt(part, childTexts(parent) << QStringLiteral("name"));
    }
    return missing(part, childTexts(parent));
}

bool Walk::stepToFrame(const AnimationNode* animation, const PathPart& part)
{
    if (part.name == QLatin1String("frame") && part.hasArgument) {
        bool ok = false;
        const int index = part.argument.toInt(&ok);
        if (ok && index >= 0 && index < animation->childCount()) {
            m_node = animation->childAt(unsigned(index));
            return true;
        }
        m_error = Text::tr("There is no '%1' in '%2': it has %n frame(s), counted from 0.", nullptr,
                           animation->childCount())
                      .arg(part.text(), m_walked);
        return false;
    }
    return endAt(part,
                 {QStringLiteral("name"), QStringLiteral("identifier"), QStringLiteral("frame:0")});
}

bool Walk::stepIntoFrame(const FrameNode* frame, const PathPart& part)
{
    const bool attack = part.name == QLatin1String("attack");
    if (part.hasArgument && (attack || part.name == QLatin1String("body"))) {
        const Zorv::ContactBoxesCode* boxes =
            frame->contactBoxes(attack ? ContactBoxCode::Attack : ContactBoxCode::Collision);
        bool ok = false;
        const int index = part.argument.toInt(&ok);
        if (ContactBoxCode* box = ok ? boxes->at(index) : nullptr) {
            m_node = static_cast<BoxNode*>(box);
            return true;
        }
        m_error = Text::tr("There is no '%1' in '%2': it has %3 of them, counted from 0.")
                      .arg(part.text(), m_walked, QString::number(boxes->count()));
        return false;
    }
    return endAt(part, Grammar::frameOptions() << QStringLiteral("sprite"));
}

}  // namespace

QString nodePath(const CodeNode* node)
{
    if (const auto* box = dynamic_cast<const BoxNode*>(node)) {
        const FrameNode* frame = box->frame();
        const Zorv::ContactBoxesCode* boxes = box->boxes();
        for (int i = 0; boxes && i < boxes->count(); ++i) {
            if (boxes->at(i) == box) {
                return nodePath(frame) + boxPart(box, i);
            }
        }
        return {};
    }
    const Zorv::ParentCode* parent = node ? node->parentCode() : nullptr;
    if (!parent) {
        return {};
    }
    const QString own = partText(node);
    const int number = node->type() == CodeNode::Frame
                           ? 1
                           : matches(parent, own).indexOf(const_cast<CodeNode*>(node)) + 1;
    if (parent->type() == CodeNode::Root) {
        return numbered(own, number);
    }
    return nodePath(parent) + separatorBefore(node) + numbered(own, number);
}

QHash<const CodeNode*, QString> nodePaths(const FamilyDocument* document)
{
    QHash<const CodeNode*, QString> paths;
    QHash<QPair<const CodeNode*, QString>, int> counts;
    QVector<const BoxNode*> boxes;
    for (const CodeNode* node = document->next(); node; node = node->next()) {
        if (const auto* box = dynamic_cast<const BoxNode*>(node)) {
            boxes.append(box);
            continue;
        }
        const CodeNode* parent = node->parentCode();
        if (parent) {
            const QString own = partText(node);
            const int number =
                node->type() == CodeNode::Frame ? 1 : ++counts[qMakePair(parent, own)];
            const QString above = parent->type() == CodeNode::Root
                                      ? QString()
                                      : paths.value(parent) + separatorBefore(node);
            paths.insert(node, above + numbered(own, number));
        }
        int indexes[2] = {0, 0};
        for (const BoxNode* box : qAsConst(boxes)) {
            if (parent && node->type() == CodeNode::Frame) {
                paths.insert(box, paths.value(node) + boxPart(box, indexes[box->isAttack()]++));
            }
        }
        boxes.clear();
    }
    return paths;
}

CodeNode* nodeAt(const FamilyDocument* document, const QString& path, QString* part, QString* error)
{
    const QVector<PathPart> parts = splitPath(path, error);
    if (parts.isEmpty()) {
        return nullptr;
    }
    Walk walk(document);
    const bool found = walk.follow(parts);
    if (!found && error) {
        *error = walk.error();
    }
    if (part) {
        *part = walk.part();
    }
    return found ? walk.node() : nullptr;
}

QString nodeKind(const CodeNode* node)
{
    switch (node->type()) {
    case CodeNode::Root:
        return QStringLiteral("file");
    case CodeNode::Group:
        return static_cast<const GroupNode*>(node)->info()->isSubGroup()
                   ? QStringLiteral("subgroup")
                   : QStringLiteral("group");
    case CodeNode::Animation:
        return QStringLiteral("animation");
    case CodeNode::Frame:
        return QStringLiteral("frame");
    default:
        return dynamic_cast<const BoxNode*>(node) ? QStringLiteral("box") : QStringLiteral("value");
    }
}

QString nodeLabel(const CodeNode* node)
{
    if (const auto* group = dynamic_cast<const GroupNode*>(node)) {
        return group->displayName();
    }
    if (const auto* value = dynamic_cast<const ValueNode*>(node)) {
        return value->name() + QLatin1String(" = ") + value->text();
    }
    if (const auto* animation = dynamic_cast<const AnimationNode*>(node)) {
        return animation->displayName();
    }
    if (const auto* frame = dynamic_cast<const FrameNode*>(node)) {
        return frame->identifier().toString();
    }
    if (const auto* box = dynamic_cast<const BoxNode*>(node)) {
        const QRect rect = box->rect();
        return QStringLiteral("%1 %2,%3, %4,%5")
            .arg(box->name(), QString::number(rect.left()), QString::number(rect.top()),
                 QString::number(rect.right()), QString::number(rect.bottom()));
    }
    return {};
}

}  // namespace Family
