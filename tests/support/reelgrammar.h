#pragma once

#include "code/codedoc/animations.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/contactboxescode.h"
#include "support/smalldocument.h"
#include "support/stagedata.h"

#include <memory>
#include <vector>

/// A grammar for the stage, as unlike that of the reference family as can be:
///
///     <name>                              an animation
///     + group number x y ticks flip       a frame, with " *" behind it the loop point
///     a left top width height             an attack box of the frame below
///     b left top width height             a body box
///     anything else                       a comment
///
/// Every line that is parsed gets a new node, boxes have none, and there is neither scale nor
/// angle. Reading takes any number; writing takes offsets and edges from -9999 to 9999, sizes from
/// 1 to 9999 and up to a thousand million ticks.
class ReelGrammar : public Zorv::CodeParser
{
public:
    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override;

    static constexpr int MostPlace = 9999;
    static constexpr int MostTicks = 1000000000;

    /// Lines of every kind, for random texts.
    static QStringList lines();
};

class ReelFrame;

class ReelBoxes : public Zorv::ContactBoxesCode
{
public:
    ReelBoxes(ReelFrame* frame, Zorv::ContactBoxCode::BoxType type);
    ~ReelBoxes() override;
    int count() const override;
    Zorv::ContactBoxCode* at(int index) const override;
    Zorv::ContactBoxCode* add(const QRect& rect) override;
    void remove(int index) override;
    Zorv::ContactBoxCode::BoxType type() const override { return m_type; }
    Zorv::FrameCode* frame() const override;
    Zorv::CodeDocument* document() const override;

private:
    class Box;
    void read() const;

    ReelFrame* m_frame;
    Zorv::ContactBoxCode::BoxType m_type;
    mutable std::vector<std::unique_ptr<Box>> m_boxes;
};

class ReelFrame : public Zorv::FrameCode
{
public:
    struct Data
    {
        int group = 0, number = 0;
        int x = 0, y = 0;
        int ticks = 10;
        int flip = 0;
        bool loop = false;
    };

    ReelFrame(Zorv::CodeNode* previous, const Data& data);
    void release() override { delete this; }
    const Data& data() const { return m_data; }
    QVariant identifier() const override;
    int spriteGroup() const override { return m_data.group; }
    int spriteNumber() const override { return m_data.number; }
    void setSprite(int group, int number) override;
    Zorv::Sprite* sprite() const override;
    QPoint offset() const override { return {m_data.x, m_data.y}; }
    void setOffset(const QPoint& offset) override;
    int delay() const override { return m_data.ticks; }
    void setDelay(int ticks) override { write(&Data::ticks, qMax(ticks, -1)); }
    Flip flip() const override { return Flip(m_data.flip); }
    void setFlip(Flip flip) override { write(&Data::flip, int(flip) & 3); }
    bool isLoopPoint() const override { return m_data.loop; }
    void setLoopPoint(bool loopPoint) override { write(&Data::loop, loopPoint); }
    QVariant property(const QString& name) const override;
    void setProperty(const QString& name, const QVariant& value) override;

private:
    void write(const Data& data);
    template <class Value>
    void write(Value Data::*part, Value value)
    {
        Data data = m_data;
        data.*part = value;
        write(data);
    }

    Data m_data;
    ReelBoxes m_attack;
    ReelBoxes m_body;
};

class ReelAnimation : public SmallAnimation
{
public:
    using SmallAnimation::SmallAnimation;
    void setName(const QString& name) override { change(QStringLiteral("<%1>").arg(name)); }
    QString frameTemplate(const Zorv::FrameCode* before) const override;
};

/// Its optimization takes out empty lines.
class ReelAnimations : public Zorv::Animations
{
    Q_OBJECT

public:
    using Animations::Animations;
    void release() override { delete this; }
    int optimize(bool dryRun, QStringList* lines) override;
    QString animationTemplate() const override { return QStringLiteral("<%1>\n+ 0 0 0 0 -1 0\n"); }
    QString codeFor(unsigned index, const QString& identifier,
                    const QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>& sprites) const override;
};

/// A document in that grammar with its list of animations. It has sprites of its own: 0,0 and 0,1
/// of 32 by 24 and 16 by 16 pixels, and 0,2 that is broken.
class ReelDocument : public SmallDocument
{
    Q_OBJECT

public:
    explicit ReelDocument(const QString& text = {}, const QString& fileName = {});
    ~ReelDocument() override { setParser(nullptr); }
    int projectKind() const override { return 5; }
    int blockFolding(const QString& line) const override;

    ReelAnimations* animations() const;
    Zorv::Sprite* sprite(int group, int number);

private:
    StageData::Sprite m_sprites[3];
    ReelGrammar m_grammar;
};
