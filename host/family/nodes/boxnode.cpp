#include "family/nodes/boxnode.h"

#include "family/grammar/linereader.h"
#include "family/nodes/framenode.h"
#include "family/nodes/lineedit.h"

namespace Family {

namespace {

quint64 revisionOfBoxes = 1;

}  // namespace

BoxNode::BoxNode(Zorv::CodeNode* previous, bool attack, const QRect& rect)
    : ValueCode(previous, IntQuad, QVariantList()), m_left(rect.left()), m_top(rect.top()),
      m_right(rect.right()), m_bottom(rect.bottom()), m_attack(attack)
{
    raiseRevision();
}

BoxNode::~BoxNode()
{
    raiseRevision();
}

QString BoxNode::name() const
{
    return m_attack ? QStringLiteral("attack") : QStringLiteral("body");
}

void BoxNode::setName(const QString& name)
{
    const NodeLine line(this);
    const LinePart* keyword = line.details.part(LinePart::Keyword);
    const bool known = name == QLatin1String("attack") || name == QLatin1String("body");
    if (keyword && known && name != this->name()) {
        replaceColumns(this, {{keyword->start, keyword->end, name}});
    }
}

QVariant BoxNode::value() const
{
    return QVariantList{m_left, m_top, m_right, m_bottom};
}

bool BoxNode::write(const QVariant& value)
{
    QRect rect = value.toRect();
    if (value.userType() != QMetaType::QRect) {
        const QVariantList list = value.toList();
        if (list.size() != 4) {
            return false;
        }
        rect.setCoords(list.at(0).toInt(), list.at(1).toInt(), list.at(2).toInt(),
                       list.at(3).toInt());
    }
    const int numbers[] = {rect.left(), rect.top(), rect.right(), rect.bottom()};
    const int present[] = {m_left, m_top, m_right, m_bottom};
    const NodeLine line(this);
    const QVector<LinePart> elements = line.details.elements();
    if (elements.size() != 4) {
        return false;
    }
    QVector<Replacement> replacements;
    for (int i = 0; i < 4; ++i) {
        if (numbers[i] < LeastPlace || numbers[i] > MostPlace) {
            return false;
        }
        if (numbers[i] != present[i]) {
            replacements.append(
                {elements.at(i).start, elements.at(i).end, QString::number(numbers[i])});
        }
    }
    replaceColumns(this, replacements);
    return true;
}

QString BoxNode::unsignedText(unsigned value) const
{
    return QString::number(value);
}

QRect BoxNode::rect() const
{
    QRect rect;
    rect.setCoords(m_left, m_top, m_right, m_bottom);
    return rect;
}

void BoxNode::setRect(const QRect& rect)
{
    write(rect);
}

Zorv::ContactBoxesCode* BoxNode::boxes() const
{
    const FrameNode* behind = frame();
    return behind ? behind->contactBoxes(m_attack ? Attack : Collision) : nullptr;
}

int BoxNode::line() const
{
    return firstLine();
}

FrameNode* BoxNode::frame() const
{
    const CodeNode* node = next();
    while (node && (dynamic_cast<const BoxNode*>(node) || !node->hasLine())) {
        node = node->next();
    }
    return dynamic_cast<FrameNode*>(const_cast<CodeNode*>(node));
}

void BoxNode::update(const QRect& rect)
{
    if (rect != this->rect()) {
        m_left = rect.left();
        m_top = rect.top();
        m_right = rect.right();
        m_bottom = rect.bottom();
        raiseRevision();
    }
}

void BoxNode::release()
{
    delete this;
}

quint64 BoxNode::revision()
{
    return revisionOfBoxes;
}

void BoxNode::raiseRevision()
{
    ++revisionOfBoxes;
}

}  // namespace Family
