#pragma once

#include "code/codedoc/codenode.h"
#include "code/codedoc/namedcode.h"

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QVariantList>
#include <QVector>

namespace Zorv {

/// A value of the code: the line "name = value" of a grammar.
///
/// Its parent is the group above it; a value behind an animation head has none.
class ZORV_EXPORT ValueCode : public CodeNode, public NamedCode
{
public:
    /// The form of a value. A grammar chooses what it uses for what; numbers
    /// without a name here keep a value as it comes.
    enum Type {
        Text = 3,
        Choice = 4,    ///< a text out of several
        Date = 5,      ///< kept as it comes; written in the ISO form
        Unsigned = 6,  ///< written by `unsignedText()`
        UnsignedVector = 7,
        Real = 8,       ///< kept as it comes
        RealPoint = 9,  ///< a list gives whole coordinates
        RealVector = 10,
        RealPair = 11,
        RealTriple = 12,
        Int = 13,
        Point = 14,
        IntVector = 15,
        IntPair = 16,
        IntQuad = 17
    };

    /// Joins the nearest group above, behind its values that stand before.
    ValueCode(CodeNode* previous, Type type, const QVariant& value);

    Type valueType() const { return m_valueType; }

    virtual QVariant value() const;

    /// Stores a value, in the form of `valueType()`. Neither tells the parent
    /// nor edits the text.
    virtual void setValue(const QVariant& value);

    /// Does the same.
    void valueChanged(const QVariant& value) override;

    /// Edits the text so that the line holds `value`: the write-back of a
    /// grammar, through `change()`. False if the value does not fit, and then
    /// nothing has changed.
    virtual bool write(const QVariant& value) = 0;

    virtual int asInt() const;
    virtual QVector<int> asIntVector() const;
    virtual double asReal() const;
    virtual QVector<double> asRealVector() const;
    virtual QVariantList asVector() const;
    virtual QPoint asPoint() const;
    virtual QPointF asPointF() const;
    virtual QSize asSize() const;

    /// How the grammar writes a number without sign.
    virtual QString unsignedText(unsigned value) const = 0;

    /// `value` in the form of `type`. A list under `RealPoint` gives a `QPoint`
    /// with its coordinates cut to whole numbers; `Date` and `Real` stay as
    /// they come.
    virtual QVariant convertFrom(Type type, const QVariant& value) const;

    /// `value` as the code writes it, the parts of a list or point divided by
    /// `separator` (none for the null character) and one blank. While the node
    /// itself stores a text, the result is that text, whatever is asked.
    QString asString(Type type, const QVariant& value, const QChar& separator) const;

private:
    Type m_valueType;
    QVariant m_value;
};

}  // namespace Zorv
