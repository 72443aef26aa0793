#pragma once

#include "code/codedoc/contactboxcode.h"
#include "code/codedoc/parentcode.h"
#include "code/codedoc/propertyitem.h"

#include <QPoint>
#include <QPointF>
#include <QVariant>

namespace Zorv {

class ContactBoxesCode;
class Sprite;

/// One frame of an animation.
///
/// The lines between the previous frame and this one belong to it: they contain its contact boxes.
/// Every setter edits the text through `change()`. Afterwards the node may be another one.
///
/// The stage and the time line use the accessors. A host without them only implements `property()`,
/// `setProperty()` and `release()`. The defaults of all others describe a frame without a sprite,
/// not moved or rotated, that lasts one tick; the default setters do nothing.
class ZORV_EXPORT FrameCode : public ParentCode, public PropertyItem
{
public:
    /// How a frame is flipped.
    enum FlipFlag { NoFlip = 0, FlipHorizontally = 1, FlipVertically = 2 };
    Q_DECLARE_FLAGS(Flip, FlipFlag)

    /// Joins the animation above, behind its earlier frames. Without an animation, or below a
    /// group, it has no parent. The lists of boxes are owned by the parser and must live as long as
    /// the frame. They are null for a parser without boxes.
    FrameCode(CodeNode* previous, ContactBoxesCode* first, ContactBoxesCode* second);

    /// "Identifier", "Offset", "Delay", "Scale", "Angle", "Flip", "LoopPoint".
    QStringList propertyNames() const override;

    /// The index among the frames of the animation; -1 without an animation.
    int index() const;

    /// The line after the parent's or the previous frame's line.
    int firstLine() const override;

    /// The sprite: its group and number; -1 for none.
    virtual QVariant identifier() const;
    virtual void setIdentifier(const QVariant& identifier);
    virtual int spriteGroup() const;
    virtual int spriteNumber() const;
    virtual void setSprite(int group, int number);

    /// The sprite in the document's project. Use it for drawing only and do not store it: it
    /// becomes invalid when the collection changes. Null if the project has none, or the document
    /// no project.
    virtual Sprite* sprite() const;

    /// The offset of the sprite in pixels of the game.
    virtual QPoint offset() const;
    virtual void setOffset(const QPoint& offset);

    /// The duration of the frame in ticks of 1/60 second; negative means forever.
    virtual int delay() const;
    virtual void setDelay(int ticks);

    /// The scale factors of the sprite; 1 means original size.
    virtual QPointF scale() const;
    virtual void setScale(const QPointF& scale);

    /// The rotation of the sprite in degrees, counterclockwise.
    virtual double angle() const;
    virtual void setAngle(double degrees);

    virtual Flip flip() const;
    virtual void setFlip(Flip flip);

    /// True if the animation loops back to this frame.
    virtual bool isLoopPoint() const;
    virtual void setLoopPoint(bool loopPoint);

    /// The boxes of a kind: the constructor's first list if bit 0 of `type` is set, otherwise the
    /// second.
    virtual ContactBoxesCode* contactBoxes(ContactBoxCode::BoxType type) const;

    /// The lines of the frame have changed: the boxes must be read again when they are next used.
    virtual void boxesChanged();

    int childCount() const override;
    int childIndex(CodeNode* child) const override;
    CodeNode* childAt(unsigned index) const override;

private:
    ContactBoxesCode* m_first;
    ContactBoxesCode* m_second;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FrameCode::Flip)

}  // namespace Zorv
