#include "family/nodes/animationnode.h"

#include "family/grammar/linescanner.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/frameedit.h"
#include "family/nodes/framenode.h"
#include "family/nodes/headcomments.h"
#include "family/nodes/lineedit.h"
#include "family/nodes/valuetext.h"

#include <zorv/animation/frameticks.h>

namespace Family {

namespace {

constexpr int NewFrameDelay = 10;  // ticks

}  // namespace

AnimationNode::AnimationNode(Zorv::CodeNode* previous, const QString& identifier,
                             const QString& name)
    : AnimationCode(previous), m_identifier(identifier), m_name(name)
{
    BoxNode::raiseRevision();
}

AnimationNode::~AnimationNode()
{
    BoxNode::raiseRevision();
}

void AnimationNode::setIdentifier(const QString& identifier)
{
    const NodeLine line(this);
    const LinePart* old = line.details.part(LinePart::Argument);
    const LinePart* keyword = line.details.part(LinePart::Keyword);
    if (!old || !keyword || !isWord(identifier) || identifier == m_identifier) {
        return;
    }
    const bool missing = old->start == old->end;
    const int place = missing ? keyword->end : old->start;
    replaceColumns(this, {{place, missing ? place : old->end,
                           missing ? QLatin1Char(' ') + identifier : identifier}});
}

QString AnimationNode::name() const
{
    return m_name;
}

QString AnimationNode::displayName() const
{
    return m_name.isEmpty() ? m_identifier : m_identifier + QLatin1Char(' ') + m_name;
}

void AnimationNode::setName(const QString& name)
{
    const NodeLine line(this);
    const LinePart* text = line.details.part(LinePart::Text);
    const LinePart* identifier = line.details.part(LinePart::Argument);
    if (!identifier || m_identifier.isEmpty() || name == m_name || !canQuote(name)) {
        return;
    }
    const int start = identifier->end;
    const int end = text ? text->end : start;
    if (name.isEmpty()) {
        replaceColumns(this, {{start, end, QString()}});
    } else if (text) {
        replaceColumns(this, {{text->start, text->end, quotedText(name)}});
    } else {
        replaceColumns(this, {{start, start, QLatin1Char(' ') + quotedText(name)}});
    }
}

int AnimationNode::firstLine() const
{
    return firstLineOfHead(this);
}

int AnimationNode::duration() const
{
    return Zorv::FrameTicks(this).total();
}

int AnimationNode::loopFrame() const
{
    int index = 0;
    for (Zorv::CodeNode* node = childAt(0); node; node = Zorv::CodeNodeList::next(node)) {
        if (static_cast<FrameNode*>(node)->isLoopPoint()) {
            return index;
        }
        ++index;
    }
    return -1;
}

QString AnimationNode::frameTemplate(const Zorv::FrameCode* before) const
{
    FrameData data = before ? static_cast<const FrameNode*>(before)->data() : FrameData();
    data.delay = NewFrameDelay;
    data.loop = false;
    return frameText(data);
}

QVariant AnimationNode::property(const QString& name) const
{
    return name == QLatin1String("Identifier") ? QVariant(m_identifier)
                                               : AnimationCode::property(name);
}

void AnimationNode::setProperty(const QString& name, const QVariant& value)
{
    if (name == QLatin1String("Identifier")) {
        setIdentifier(value.toString());
    } else {
        AnimationCode::setProperty(name, value);
    }
}

void AnimationNode::update(const QString& identifier, const QString& name)
{
    if (identifier != m_identifier || name != m_name) {
        m_identifier = identifier;
        m_name = name;
        valueChanged(displayName());
    }
}

void AnimationNode::childChanged(Zorv::CodeNode*)
{
    valueChanged(QVariant());
}

void AnimationNode::release()
{
    delete this;
}

}  // namespace Family
