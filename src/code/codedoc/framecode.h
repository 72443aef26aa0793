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
/// The lines between the frame before and this one belong to it: there its
/// contact boxes stand. Every setter edits the text, through `change()`; the
/// node may be another one afterwards.
///
/// The stage and the time line use the accessors. A host without them gives
/// `property()`, `setProperty()` and `release()`: as they stand here, the others
/// tell of no sprite, unmoved and unturned, that stands for one tick, and edit
/// nothing.
class ZORV_EXPORT FrameCode : public ParentCode, public PropertyItem
{
public:
    /// How a frame is mirrored.
    enum FlipFlag { NoFlip = 0, FlipHorizontally = 1, FlipVertically = 2 };
    Q_DECLARE_FLAGS(Flip, FlipFlag)

    /// Joins the animation above, behind its frames that stand before; without
    /// one, or behind a group, it has no parent. The lists of boxes belong to
    /// the grammar and must live as long as the frame; null for a grammar without
    /// boxes.
    FrameCode(CodeNode* previous, ContactBoxesCode* first, ContactBoxesCode* second);

    /// "Identifier", "Offset", "Delay", "Scale", "Angle", "Flip", "LoopPoint".
    QStringList propertyNames() const override;

    /// The place among the frames of the animation, -1 without one.
    int index() const;

    /// The line behind that of the parent or of the frame before.
    int firstLine() const override;

    /// The picture: the group and the number of a sprite, -1 for none.
    virtual QVariant identifier() const;
    virtual void setIdentifier(const QVariant& identifier);
    virtual int spriteGroup() const;
    virtual int spriteNumber() const;
    virtual void setSprite(int group, int number);

    /// That sprite of the document's project, to be drawn and not kept: it goes when the
    /// collection changes. Null if the project has none, or the document no project.
    virtual Sprite* sprite() const;

    /// Where the picture is moved to, in pixels of the game.
    virtual QPoint offset() const;
    virtual void setOffset(const QPoint& offset);

    /// How long the frame stands, in ticks of 1/60 second; negative for ever.
    virtual int delay() const;
    virtual void setDelay(int ticks);

    /// The factors by which the picture is stretched; 1 leaves it as it is.
    virtual QPointF scale() const;
    virtual void setScale(const QPointF& scale);

    /// The turn of the picture in degrees, counterclockwise.
    virtual double angle() const;
    virtual void setAngle(double degrees);

    virtual Flip flip() const;
    virtual void setFlip(Flip flip);

    /// True if the animation starts again here.
    virtual bool isLoopPoint() const;
    virtual void setLoopPoint(bool loopPoint);

    /// The boxes of a kind: the first list of the constructor if bit 0 of
    /// `type` is set, else the second.
    virtual ContactBoxesCode* contactBoxes(ContactBoxCode::BoxType type) const;

    /// The lines of the frame have changed: read the boxes anew when they are
    /// asked for next.
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
