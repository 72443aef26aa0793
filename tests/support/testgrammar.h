#pragma once

#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/codeparser.h"
#include "code/codedoc/framecode.h"
#include "code/codedoc/groupcode.h"
#include "code/codedoc/valuecode.h"
#include "support/smalldocument.h"

#include <QStringList>

/// A small grammar for tests of the code model:
///
///     [7]         a group of number 7; [7*] one of the outermost folding level
///     key=text    a value, under a group
///     !name       an animation
///     -text       a frame, under an animation; -3,1 one that shows the sprite 3,1
///     # text      a comment
///     ?e ?w ?d    an error, a warning, a deprecation; anything unknown is an error
///     ( ) { }     brackets, wherever they stand
class TestParser : public Zorv::CodeParser
{
public:
    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override;

    QStringList parsed;  ///< the texts of the lines asked for, if `records`
    bool records = false;
};

class TestValue : public Zorv::ValueCode
{
public:
    TestValue(Zorv::CodeNode* previous, const QString& line);
    TestValue(Zorv::CodeNode* previous, Type type, const QVariant& value)
        : ValueCode(previous, type, value)
    {
    }
    void release() override { delete this; }
    QString name() const override { return m_name; }
    void setName(const QString& name) override;
    bool write(const QVariant& value) override;
    QString unsignedText(unsigned value) const override { return QString::number(value); }
    void take(const QString& line);

private:
    QString m_name;
};

class TestGroup : public Zorv::GroupCode
{
public:
    TestGroup(Zorv::CodeNode* previous, unsigned group, bool atRoot = true);
    void release() override { delete this; }
    QString name() const override { return QString::number(group()); }
    void setName(const QString&) override {}
};

class TestAnimation : public Zorv::AnimationCode
{
public:
    TestAnimation(Zorv::CodeNode* previous, const QString& name);
    void release() override { delete this; }
    QString name() const override { return m_name; }
    void setName(const QString& name) override { m_name = name; }
    QVariant property(const QString& key) const override;
    int duration() const override { return 0; }
    int loopFrame() const override { return -1; }
    QString frameTemplate(const Zorv::FrameCode*) const override { return QStringLiteral("-new"); }

private:
    QString m_name;
};

class TestFrame : public Zorv::FrameCode
{
public:
    TestFrame(Zorv::CodeNode* previous, const QString& text);
    void release() override { delete this; }
    QVariant property(const QString&) const override { return m_text; }
    void setProperty(const QString&, const QVariant&) override {}
    QVariant identifier() const override { return m_text; }
    void setIdentifier(const QVariant& identifier) override { m_text = identifier.toString(); }
    int spriteGroup() const override { return spritePart(0); }
    int spriteNumber() const override { return spritePart(1); }
    void setSprite(int group, int number) override;
    QPoint offset() const override { return {}; }
    void setOffset(const QPoint&) override {}
    int delay() const override { return 1; }
    void setDelay(int) override {}
    QPointF scale() const override { return {1, 1}; }
    void setScale(const QPointF&) override {}
    double angle() const override { return 0; }
    void setAngle(double) override {}
    Flip flip() const override { return NoFlip; }
    void setFlip(Flip) override {}
    bool isLoopPoint() const override { return false; }
    void setLoopPoint(bool) override {}
    void boxesChanged() override {}

private:
    int spritePart(int part) const;

    QString m_text;
};

class TestAnimations : public Zorv::Animations
{
    Q_OBJECT

public:
    using Animations::Animations;
    void release() override { delete this; }
    int optimize(bool, QStringList*) override { return 0; }
    QString animationTemplate() const override { return QStringLiteral("!%1\n-new\n"); }
};

/// A document in that grammar, parsed and coloured from the start.
class GrammarDocument : public SmallDocument
{
    Q_OBJECT

public:
    explicit GrammarDocument(const QString& text = {});
    ~GrammarDocument() override;
    int projectKind() const override { return 3; }
    int blockFolding(const QString& line) const override;

    /// Everything that follows from the text, as lines to compare: the chain,
    /// the tree, the messages, the folding levels.
    QStringList dump() const;

    TestParser grammar;
};
