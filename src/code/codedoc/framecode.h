#pragma once

#include "code/codedoc/contactboxcode.h"
#include "code/codedoc/parentcode.h"
#include "code/codedoc/propertyitem.h"

#include <QPoint>
#include <QPointF>
#include <QVariant>

namespace Zorv {

class ContactBoxesCode;

/// One frame of an animation.
///
/// The lines between the frame before and this one belong to it: there its
/// contact boxes stand. Every setter edits the text, through `change()`; the
/// node may be another one afterwards.
class ZORV_EXPORT FrameCode : public ParentCode, public PropertyItem
{
public:
    /// How a frame is mirrored.
    enum FlipFlag { NoFlip = 0, FlipHorizontally = 1, FlipVertically = 2 };
    Q_DECLARE_FLAGS(Flip, FlipFlag)

    /// Joins the animation above, behind its frames that stand before; without
    /// one, or behind a group, it has no parent. The lists of boxes belong to
    /// the grammar and must live as long as the frame.
    FrameCode(CodeNode* previous, ContactBoxesCode* first, ContactBoxesCode* second);

    /// "Identifier", "Offset", "Delay", "Scale", "Angle", "Flip", "LoopPoint".
    QStringList propertyNames() const override;

    /// The place among the frames of the animation, -1 without one.
    int index() const;

    /// The line behind that of the parent or of the frame before.
    int firstLine() const override;

    /// The picture: the group and the number of a sprite.
    virtual QVariant identifier() const = 0;
    virtual void setIdentifier(const QVariant& identifier) = 0;
    virtual int spriteGroup() const = 0;
    virtual int spriteNumber() const = 0;
    virtual void setSprite(int group, int number) = 0;

    /// Where the picture is moved to, in pixels of the game.
    virtual QPoint offset() const = 0;
    virtual void setOffset(const QPoint& offset) = 0;

    /// How long the frame stands, in ticks of 1/60 second; negative for ever.
    virtual int delay() const = 0;
    virtual void setDelay(int ticks) = 0;

    /// The factors by which the picture is stretched; 1 leaves it as it is.
    virtual QPointF scale() const = 0;
    virtual void setScale(const QPointF& scale) = 0;

    /// The turn of the picture in degrees, counterclockwise.
    virtual double angle() const = 0;
    virtual void setAngle(double degrees) = 0;

    virtual Flip flip() const = 0;
    virtual void setFlip(Flip flip) = 0;

    /// True if the animation starts again here.
    virtual bool isLoopPoint() const = 0;
    virtual void setLoopPoint(bool loopPoint) = 0;

    /// The boxes of a kind: the first list of the constructor if bit 0 of
    /// `type` is set, else the second.
    virtual ContactBoxesCode* contactBoxes(ContactBoxCode::BoxType type) const;

    /// The lines of the frame have changed: read the boxes anew when they are
    /// asked for next.
    virtual void boxesChanged() = 0;

    int childCount() const override;
    int childIndex(CodeNode* child) const override;
    CodeNode* childAt(unsigned index) const override;

private:
    ContactBoxesCode* m_first;
    ContactBoxesCode* m_second;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FrameCode::Flip)

}  // namespace Zorv
