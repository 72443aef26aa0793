#include "code/codedoc/valuecode.h"

#include "code/codedoc/groupcode.h"
#include "code/codedoc/nodechain_p.h"

#include <QDate>
#include <QStringList>

namespace Zorv {

namespace {

bool isSingle(ValueCode::Type type)
{
    return (type >= 3 && type <= 8) || type == ValueCode::Int;
}

double realAt(const QVariantList& list, int index)
{
    return index < list.size() ? double(list.at(index).toFloat()) : 0.0;
}

int intAt(const QVariantList& list, int index)
{
    return index < list.size() ? list.at(index).toInt() : 0;
}

QString join(const QStringList& parts, const QChar& separator)
{
    return parts.join(separator.isNull() ? QStringLiteral(" ") : separator + QLatin1Char(' '));
}

}  // namespace

ValueCode::ValueCode(CodeNode* previous, Type type, const QVariant& value)
    : CodeNode(CodeNode::Value, previous), m_valueType(type),
      m_value(ValueCode::convertFrom(type, value))
{
    CodeNode* head = NodeChain::backward(this, CodeNode::Group | CodeNode::Animation);
    if (!head || head->type() != CodeNode::Group) {
        return;
    }
    auto* group = static_cast<GroupCode*>(head);
    // The usual case while a file is loaded: append without counting.
    if (group->m_children.last() == previous) {
        group->insertChild(this, unsigned(-1));
    } else {
        const unsigned place = NodeChain::before(this).values - NodeChain::before(head).values;
        group->insertChild(this, place);
    }
}

QVariant ValueCode::value() const
{
    return m_value;
}

void ValueCode::setValue(const QVariant& value)
{
    m_value = convertFrom(m_valueType, value);
}

void ValueCode::valueChanged(const QVariant& value)
{
    m_value = convertFrom(m_valueType, value);
}

int ValueCode::asInt() const
{
    return m_value.toInt();
}

QVector<int> ValueCode::asIntVector() const
{
    if (isSingle(m_valueType)) {
        return {asInt()};
    }
    QVector<int> result;
    for (const QVariant& part : m_value.toList()) {
        result.append(part.toInt());
    }
    return result;
}

double ValueCode::asReal() const
{
    return m_value.toReal();
}

QVector<double> ValueCode::asRealVector() const
{
    QVector<double> result;
    if (isSingle(m_valueType)) {
        result.append(asReal());
    }
    for (const QVariant& part : m_value.toList()) {
        result.append(double(part.toFloat()));
    }
    return result;
}

QVariantList ValueCode::asVector() const
{
    QVariantList result;
    if (isSingle(m_valueType)) {
        result.append(m_value);
    }
    return result + m_value.toList();
}

QPoint ValueCode::asPoint() const
{
    if (m_value.userType() == QMetaType::QPoint || m_valueType == Point) {
        return m_value.toPoint();
    }
    if (isSingle(m_valueType)) {
        return QPoint(asInt(), 0);
    }
    const QVariantList list = m_value.toList();
    return QPoint(intAt(list, 0), intAt(list, 1));
}

QPointF ValueCode::asPointF() const
{
    if (m_value.userType() == QMetaType::QPointF || m_valueType == RealPoint) {
        return m_value.toPointF();
    }
    if (isSingle(m_valueType)) {
        return QPointF(asReal(), 0);
    }
    const QVariantList list = m_value.toList();
    return QPointF(realAt(list, 0), realAt(list, 1));
}

QSize ValueCode::asSize() const
{
    return m_value.toSize();
}

QVariant ValueCode::convertFrom(Type type, const QVariant& value) const
{
    const bool isList = value.userType() == QMetaType::QVariantList;
    switch (type) {
    case Text:
    case Choice:
        return value.toString();
    case Unsigned:
        return value.toUInt();
    case UnsignedVector:
        return isList ? value : QVariantList{value.toUInt()};
    case RealPoint:
        if (value.userType() == QMetaType::QPointF) {
            return value;
        }
        if (isList) {
            // Integer coordinates are intended: files have always been read this way.
            const QVariantList list = value.toList();
            return QPoint(int(list.value(0).toReal()), int(list.value(1).toReal()));
        }
        return value.toPointF();
    case RealVector:
    case RealPair:
    case RealTriple:
        return isList ? value : QVariantList{double(value.toReal())};
    case Int:
        return value.toInt();
    case Point:
        if (value.userType() == QMetaType::QPoint) {
            return value;
        }
        if (isList) {
            const QVariantList list = value.toList();
            return QPoint(intAt(list, 0), intAt(list, 1));
        }
        return value.toPoint();
    case IntVector:
    case IntPair:
    case IntQuad:
        return isList ? value : QVariantList{value.toInt()};
    default:
        return value;
    }
}

QString ValueCode::asString(Type type, const QVariant& value, const QChar& separator) const
{
    if (m_value.userType() == QMetaType::QString) {
        return m_value.toString();
    }
    switch (type) {
    case Date:
        return value.toDate().toString(Qt::ISODate);
    case Unsigned:
        return unsignedText(value.toUInt());
    case RealPoint: {
        const QPointF point = value.toPointF();
        return join({QString::number(point.x(), 'g', 6), QString::number(point.y(), 'g', 6)},
                    separator);
    }
    case Point: {
        const QPoint point = value.toPoint();
        return join({QString::number(point.x()), QString::number(point.y())}, separator);
    }
    case RealVector:
    case RealPair:
    case RealTriple:
    case IntVector:
    case IntPair:
    case IntQuad: {
        QStringList parts;
        for (const QVariant& part : value.toList()) {
            parts.append(part.toString());
        }
        return join(parts, separator);
    }
    default:
        return value.toString();
    }
}

}  // namespace Zorv
