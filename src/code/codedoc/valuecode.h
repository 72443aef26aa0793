#pragma once

#include "code/codedoc/codenode.h"
#include "code/codedoc/namedcode.h"

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QVariantList>
#include <QVector>

namespace Zorv {

/// A value in the code: a line like "name = value".
///
/// Its parent is the group above it. A value below an animation head has no
/// parent.
class ZORV_EXPORT ValueCode : public CodeNode, public NamedCode
{
public:
    /// The type of a value. The parser chooses how to use them. Numbers without
    /// a name here store a value unchanged.
    enum Type {
        Text = 3,
        Choice = 4,    ///< one text of several
        Date = 5,      ///< stored unchanged; written in ISO form
        Unsigned = 6,  ///< written by `unsignedText()`
        UnsignedVector = 7,
        Real = 8,       ///< stored unchanged
        RealPoint = 9,  ///< a list gives integer coordinates
        RealVector = 10,
        RealPair = 11,
        RealTriple = 12,
        Int = 13,
        Point = 14,
        IntVector = 15,
        IntPair = 16,
        IntQuad = 17
    };

    /// Joins the nearest group above, behind its earlier values.
    ValueCode(CodeNode* previous, Type type, const QVariant& value);

    Type valueType() const { return m_valueType; }

    virtual QVariant value() const;

    /// Stores a value, converted to `valueType()`. Does not notify the parent
    /// and does not edit the text.
    virtual void setValue(const QVariant& value);

    /// Same as `setValue()`.
    void valueChanged(const QVariant& value) override;

    /// Edits the text so that the line contains `value`. Implemented by the
    /// parser with `change()`. Returns false, without any change, if the value
    /// does not fit.
    virtual bool write(const QVariant& value) = 0;

    virtual int asInt() const;
    virtual QVector<int> asIntVector() const;
    virtual double asReal() const;
    virtual QVector<double> asRealVector() const;
    virtual QVariantList asVector() const;
    virtual QPoint asPoint() const;
    virtual QPointF asPointF() const;
    virtual QSize asSize() const;

    /// How this language writes an unsigned number.
    virtual QString unsignedText(unsigned value) const = 0;

    /// Converts `value` to `type`. A list converted to `RealPoint` gives a
    /// `QPoint` with truncated coordinates. `Date` and `Real` are not changed.
    virtual QVariant convertFrom(Type type, const QVariant& value) const;

    /// `value` as written in the code. The parts of a list or point are
    /// separated by `separator` (nothing for the null character) and one blank.
    /// If the node itself stores a text, the result is always that text.
    QString asString(Type type, const QVariant& value, const QChar& separator) const;

private:
    Type m_valueType;
    QVariant m_value;
};

}  // namespace Zorv
