#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/nodepath.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/frameedit.h"
#include "family/nodes/framenode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"
#include "family/nodes/valuetext.h"

#include <QCoreApplication>

namespace Family {

using Zorv::CodeNode;

namespace {

constexpr KeyInfo boxKey{QLatin1String(), Form::Quad,      0,
                         -32768,          32767,           QLatin1String(),
                         QLatin1String(), QLatin1String(), QLatin1String()};
constexpr KeyInfo spriteKey{
    QLatin1String(), Form::Pair,     0, 0, 65535, QLatin1String(), QLatin1String(),
    QLatin1String(), QLatin1String()};

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

/// A node, or one part of it, that has a value to read and write.
struct Target
{
    CodeNode* node;
    QString part;
};

int optionIndex(const QString& part)
{
    return Grammar::frameOptions().indexOf(part);
}

bool isSprite(const Target& target)
{
    return target.part == QLatin1String("sprite");
}

QString read(const Target& target)
{
    if (const auto* value = dynamic_cast<ValueNode*>(target.node)) {
        return value->text();
    }
    if (const auto* box = dynamic_cast<BoxNode*>(target.node)) {
        return textFromValue(boxKey, box->value());
    }
    if (const auto* frame = dynamic_cast<FrameNode*>(target.node)) {
        return isSprite(target) ? frame->identifier().toString()
                                : optionText(optionIndex(target.part), frame->data());
    }
    if (const auto* animation = dynamic_cast<AnimationNode*>(target.node)) {
        return target.part == QLatin1String("name") ? animation->name() : animation->identifier();
    }
    return static_cast<GroupNode*>(target.node)->name();
}

bool writeValue(ValueNode* node, const QString& text, QString* error)
{
    const QVariant value = valueFromText(*node->key(), text, error);
    return value.isValid() && node->write(value);
}

bool writeBox(BoxNode* node, const QString& text, QString* error)
{
    const QVariant value = valueFromText(boxKey, text, error);
    return value.isValid() && node->write(value);
}

bool writeFrame(FrameNode* frame, const Target& target, const QString& text, QString* error)
{
    if (isSprite(target)) {
        const QVariant value = valueFromText(spriteKey, text, error);
        const QVariantList numbers = value.toList();
        return value.isValid() && writeSprite(frame, numbers.at(0).toInt(), numbers.at(1).toInt());
    }
    FrameData data = frame->data();
    const int option = optionIndex(target.part);
    if (!optionFromText(option, text, &data, error)) {
        return false;
    }
    *error = Text::tr("The line of the frame cannot be read. Correct it first.");
    return writeOption(frame, option, data);
}

bool writeName(const Target& target, const QString& text, QString* error)
{
    auto* animation = dynamic_cast<AnimationNode*>(target.node);
    const bool identifier = target.part == QLatin1String("identifier");
    if (identifier ? !isAnimationIdentifier(text) : !canQuote(text)) {
        *error = identifier ? Text::tr("Expected a number or a word; found '%1'.").arg(text)
                            : Text::tr("Expected a text without control characters.");
        return false;
    }
    if (!animation) {
        static_cast<GroupNode*>(target.node)->setName(text);
    } else if (identifier) {
        animation->setIdentifier(text);
    } else if (animation->identifier().isEmpty()) {
        *error = Text::tr("The animation has no number or name. Give it one first.");
        return false;
    } else {
        animation->setName(text);
    }
    return true;
}

/// The target of a path; fails if it has no value.
bool findTarget(const FamilyDocument* document, const QString& path, Target* target, QString* error)
{
    target->node = nodeAt(document, path, &target->part, error);
    if (!target->node) {
        return false;
    }
    if (!target->part.isEmpty() || target->node->type() == CodeNode::Value) {
        return true;
    }
    *error = Text::tr("'%1' is a %2, not a value. Name a part of it, as in '%1%3'.")
                 .arg(path, nodeKind(target->node));
    switch (target->node->type()) {
    case CodeNode::Frame:
        *error = error->arg(QLatin1String("/delay"));
        break;
    case CodeNode::Animation:
        *error = error->arg(QLatin1String("/name"));
        break;
    default: {
        const auto* group = static_cast<GroupNode*>(target->node);
        const auto* first =
            group->childCount() > 0 ? dynamic_cast<ValueNode*>(group->childAt(0)) : nullptr;
        *error = error->arg(QLatin1Char('.') + (first ? first->name() : QStringLiteral("key")));
    }
    }
    return false;
}

}  // namespace

QString getValue(const FamilyDocument* document, const QString& path, QString* error)
{
    QString ignored;
    Target target{};
    if (!findTarget(document, path, &target, error ? error : &ignored)) {
        return {};
    }
    const QString text = read(target);
    return text.isNull() ? QStringLiteral("") : text;
}

bool setValue(FamilyDocument* document, const QString& path, const QString& text, QString* error)
{
    QString ignored;
    QString* const reason = error ? error : &ignored;
    Target target{};
    if (!findTarget(document, path, &target, reason)) {
        return false;
    }
    if (auto* value = dynamic_cast<ValueNode*>(target.node)) {
        return writeValue(value, text, reason);
    }
    if (auto* box = dynamic_cast<BoxNode*>(target.node)) {
        return writeBox(box, text, reason);
    }
    if (auto* frame = dynamic_cast<FrameNode*>(target.node)) {
        return writeFrame(frame, target, text, reason);
    }
    return writeName(target, text, reason);
}

}  // namespace Family
