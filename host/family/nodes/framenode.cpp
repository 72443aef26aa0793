#include "family/nodes/framenode.h"

#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"
#include "family/grammar/linereader.h"
#include "family/nodes/boxnode.h"
#include "family/nodes/frameboxes.h"
#include "family/nodes/frameedit.h"
#include "family/project/familyproject.h"

#include <zorv/code/codedoc/codedocument.h>

namespace Family {

using Zorv::ContactBoxCode;

FrameNode::FrameNode(Zorv::CodeNode* previous, const FrameData& data)
    : FrameCode(previous, nullptr, nullptr), m_data(data)
{
    BoxNode::raiseRevision();
}

FrameNode::~FrameNode()
{
    BoxNode::raiseRevision();
}

QVariant FrameNode::identifier() const
{
    return QStringLiteral("%1,%2").arg(QString::number(m_data.group),
                                       QString::number(m_data.number));
}

void FrameNode::setIdentifier(const QVariant& identifier)
{
    QPoint sprite = identifier.toPoint();
    if (identifier.userType() != QMetaType::QPoint) {
        const QStringList parts = identifier.userType() == QMetaType::QVariantList
                                      ? identifier.toStringList()
                                      : identifier.toString().split(QLatin1Char(','));
        bool ok = parts.size() == 2;
        bool ok2 = ok;
        sprite.setX(ok ? parts.at(0).trimmed().toInt(&ok) : -1);
        sprite.setY(ok ? parts.at(1).trimmed().toInt(&ok2) : -1);
        if (!ok || !ok2) {
            return;
        }
    }
    setSprite(sprite.x(), sprite.y());
}

int FrameNode::spriteGroup() const
{
    return m_data.group;
}

int FrameNode::spriteNumber() const
{
    return m_data.number;
}

void FrameNode::setSprite(int group, int number)
{
    writeSprite(this, group, number);
}

Zorv::Sprite* FrameNode::sprite() const
{
    const Zorv::CodeDocument* text = document();
    const auto* project = text ? dynamic_cast<const FamilyProject*>(text->project()) : nullptr;
    const SpriteCollection* sprites = project ? project->sprites() : nullptr;
    return sprites ? sprites->byId({quint16(m_data.group), quint16(m_data.number)}) : nullptr;
}

QPoint FrameNode::offset() const
{
    return m_data.offset;
}

void FrameNode::setOffset(const QPoint& offset)
{
    FrameData wanted = m_data;
    wanted.offset = offset;
    writeOption(this, OffsetOption, wanted);
}

int FrameNode::delay() const
{
    return m_data.delay;
}

void FrameNode::setDelay(int ticks)
{
    FrameData wanted = m_data;
    wanted.delay = ticks < 0 ? -1 : ticks;
    writeOption(this, DelayOption, wanted);
}

QPointF FrameNode::scale() const
{
    return QPointF(m_data.scaleX, m_data.scaleY);
}

void FrameNode::setScale(const QPointF& scale)
{
    FrameData wanted = m_data;
    wanted.scaleX = scale.x();
    wanted.scaleY = scale.y();
    writeOption(this, ScaleOption, wanted);
}

double FrameNode::angle() const
{
    return m_data.angle;
}

void FrameNode::setAngle(double degrees)
{
    FrameData wanted = m_data;
    wanted.angle = degrees;
    writeOption(this, AngleOption, wanted);
}

FrameNode::Flip FrameNode::flip() const
{
    return Flip(m_data.flip);
}

void FrameNode::setFlip(Flip flip)
{
    FrameData wanted = m_data;
    wanted.flip = static_cast<unsigned char>(int(flip));
    writeOption(this, FlipOption, wanted);
}

bool FrameNode::isLoopPoint() const
{
    return m_data.loop;
}

void FrameNode::setLoopPoint(bool loopPoint)
{
    FrameData wanted = m_data;
    wanted.loop = loopPoint;
    writeOption(this, LoopOption, wanted);
}

namespace {

struct PropertyRow
{
    const char* name;
    QVariant (*read)(const FrameNode&);
    void (*write)(FrameNode&, const QVariant&);
};

using F = FrameNode;
using V = QVariant;

// clang-format off
const PropertyRow properties[] = {
    {"Identifier", [](const F& f) { return f.identifier(); }, [](F& f, const V& v) { f.setIdentifier(v); }},
    {"Offset", [](const F& f) { return V(f.offset()); }, [](F& f, const V& v) { f.setOffset(v.toPoint()); }},
    {"Delay", [](const F& f) { return V(f.delay()); }, [](F& f, const V& v) { f.setDelay(v.toInt()); }},
    {"Scale", [](const F& f) { return V(f.scale()); }, [](F& f, const V& v) { f.setScale(v.toPointF()); }},
    {"Angle", [](const F& f) { return V(f.angle()); }, [](F& f, const V& v) { f.setAngle(v.toDouble()); }},
    {"Flip", [](const F& f) { return V(int(f.flip())); }, [](F& f, const V& v) { f.setFlip(F::Flip(v.toInt() & 3)); }},
    {"LoopPoint", [](const F& f) { return V(f.isLoopPoint()); }, [](F& f, const V& v) { f.setLoopPoint(v.toBool()); }},
};
// clang-format on

const PropertyRow* propertyRow(const QString& name)
{
    for (const PropertyRow& row : properties) {
        if (name == QLatin1String(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

QVariant FrameNode::property(const QString& name) const
{
    const PropertyRow* row = propertyRow(name);
    return row ? row->read(*this) : QVariant();
}

void FrameNode::setProperty(const QString& name, const QVariant& value)
{
    if (const PropertyRow* row = propertyRow(name)) {
        row->write(*this, value);
    }
}

FrameBoxes* FrameNode::boxes(bool attack) const
{
    std::unique_ptr<FrameBoxes>& list = attack ? m_attack : m_body;
    if (!list) {
        list = std::make_unique<FrameBoxes>(const_cast<FrameNode*>(this), attack);
    }
    return list.get();
}

Zorv::ContactBoxesCode* FrameNode::contactBoxes(ContactBoxCode::BoxType type) const
{
    return boxes(type & 1);
}

void FrameNode::boxesChanged()
{
    for (FrameBoxes* list : {m_attack.get(), m_body.get()}) {
        if (list) {
            list->forget();
        }
    }
}

void FrameNode::update(const FrameData& data)
{
    if (data != m_data) {
        m_data = data;
        valueChanged(identifier());
    }
}

void FrameNode::release()
{
    delete this;
}

}  // namespace Family
