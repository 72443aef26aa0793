#pragma once

#include "cache/sprite.h"
#include "cache/spritenumber.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/contactboxescode.h"
#include "support/smalldocument.h"

#include <QHash>

#include <array>
#include <memory>
#include <vector>

/// A grammar for tests of what edits animations, in which a frame is one line with all it has:
///
///     @name                             an animation
///     > 1,2 5,-3 10 0 1,1 0 L a0,0,3,3  a frame: sprite, offset, time, flip, scale, angle, "L" for
///                                       the loop point, boxes "a" and "c"
///
/// Anything else is a comment. Every edit of a line makes a new node. Times are at most 1000.
class PoseGrammar : public Zorv::CodeParser
{
public:
    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override;
};

struct PoseData
{
    int group = 0;
    int number = 0;
    QPoint offset;
    int delay = 1;
    int flip = 0;
    QPointF scale{1, 1};
    double angle = 0;
    bool loop = false;
    std::array<QVector<QRect>, 2> boxes;  // attack and collision

    static PoseData of(const QString& line);
    QString line() const;
};

class PoseFrame;

/// One kind of boxes of a frame.
class PoseBoxes : public Zorv::ContactBoxesCode
{
public:
    PoseBoxes(PoseFrame* frame, int kind);
    ~PoseBoxes() override;
    int count() const override;
    Zorv::ContactBoxCode* at(int index) const override;
    Zorv::ContactBoxCode* add(const QRect& rect) override;
    void remove(int index) override;
    Zorv::ContactBoxCode::BoxType type() const override;
    Zorv::FrameCode* frame() const override;
    Zorv::CodeDocument* document() const override;

private:
    PoseFrame* m_frame;
    int m_kind;
    std::vector<std::unique_ptr<Zorv::ContactBoxCode>> m_boxes;
};

class PoseFrame : public Zorv::FrameCode
{
public:
    PoseFrame(Zorv::CodeNode* previous, const QString& line);
    void release() override { delete this; }
    void write(const PoseData& wanted);

    QVariant property(const QString& name) const override;
    void setProperty(const QString&, const QVariant&) override {}
    QVariant identifier() const override;
    int spriteGroup() const override { return data.group; }
    int spriteNumber() const override { return data.number; }
    void setSprite(int group, int number) override;

    /// Of the document.
    Zorv::Sprite* sprite() const override;
    QPoint offset() const override { return data.offset; }
    void setOffset(const QPoint& offset) override { write(&PoseData::offset, offset); }
    int delay() const override { return data.delay; }
    void setDelay(int ticks) override;
    QPointF scale() const override { return data.scale; }
    void setScale(const QPointF& scale) override { write(&PoseData::scale, scale); }
    double angle() const override { return data.angle; }
    void setAngle(double degrees) override { write(&PoseData::angle, degrees); }
    Flip flip() const override { return Flip(data.flip); }
    void setFlip(Flip flip) override { write(&PoseData::flip, int(flip)); }
    bool isLoopPoint() const override { return data.loop; }
    void setLoopPoint(bool loopPoint) override { write(&PoseData::loop, loopPoint); }
    Zorv::ContactBoxesCode* contactBoxes(Zorv::ContactBoxCode::BoxType type) const override;

    const PoseData data;

private:
    template <class Value>
    void write(Value PoseData::*part, const Value& value)
    {
        PoseData wanted = data;
        wanted.*part = value;
        write(wanted);
    }

    mutable std::array<std::unique_ptr<PoseBoxes>, 2> m_boxes;
};

class PoseAnimation : public SmallAnimation
{
public:
    using SmallAnimation::SmallAnimation;
    QString frameTemplate(const Zorv::FrameCode* before) const override;
};

class PoseAnimations : public Zorv::Animations
{
    Q_OBJECT

public:
    using Animations::Animations;
    void release() override { delete this; }
    int optimize(bool, QStringList*) override { return 0; }
    QString animationTemplate() const override
    {
        return QStringLiteral("@%1\n> 0,0 0,0 5 0 1,1 0\n");
    }

    /// Names have no blanks.
    bool canName(const QString& identifier) const override;
    QString codeFor(unsigned index, const QString& identifier,
                    const QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>& sprites) const override;
};

class PoseDocument : public SmallDocument
{
    Q_OBJECT

public:
    explicit PoseDocument(const QString& text);
    ~PoseDocument() override { setParser(nullptr); }
    PoseAnimations* animations() const { return m_animations; }

    QHash<int, Zorv::Sprite*> sprites;  ///< by number, not owned

private:
    PoseGrammar m_grammar;
    PoseAnimations* m_animations;
};
