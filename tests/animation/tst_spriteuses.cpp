#include "animation/thumbnails/spriteuses.h"

#include "support/randomtext.h"
#include "support/testgrammar.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Zorv;

namespace {

using Counts = QHash<SpriteNumber, int>;

/// By a walk over all frames.
Counts countOf(const Animations& animations)
{
    Counts counts;
    const QList<AnimationCode*> all = animations.animations();
    for (const AnimationCode* animation : all) {
        const QList<FrameCode*> frames = animation->frames();
        for (const FrameCode* frame : frames) {
            const SpriteNumber sprite{frame->spriteGroup(), frame->spriteNumber()};
            if (sprite.isValid()) {
                ++counts[sprite];
            }
        }
    }
    return counts;
}

Counts countOf(const SpriteUses& uses, const QSet<SpriteNumber>& sprites)
{
    Counts counts;
    for (const SpriteNumber& sprite : sprites) {
        if (const int count = uses.count(sprite)) {
            counts.insert(sprite, count);
        }
    }
    return counts;
}

QSet<SpriteNumber> shownIn(const Counts& counts)
{
    const QList<SpriteNumber> keys = counts.keys();
    return {keys.begin(), keys.end()};
}

/// A document with its list; the document owns both.
struct Game
{
    explicit Game(const QString& text) : document(text), animations(new TestAnimations(&document))
    {
        document.registerDocumentEditor(animations, CodeNode::Animation, 0);
        document.reparse();
    }

    GrammarDocument document;
    TestAnimations* animations;
};

}  // namespace

class TestSpriteUses : public QObject
{
    Q_OBJECT

private slots:
    void followsEveryEdit();
    void countsInSeveralTexts();
    void costsTheEditedLines();
};

/// Counts and signals against a walk over all frames, whatever is done to the text.
void TestSpriteUses::followsEveryEdit()
{
    const RandomText text({"!a", "!b", "[7]", "[8*]", "key=1", "-0,0", "-0,1", "-1,0", "-1,1",
                           "-2,10", "- ", "-3", "# -0,0", ""},
                          QStringLiteral("-!01,#[\n"));
    constexpr quint32 seed = 1611;
    QRandomGenerator random(seed);
    Game game(QStringLiteral("!a\n-0,0\n-1,1\n[7]\nkey=1\n!b\n-0,0\n"));
    SpriteUses uses;
    uses.setAnimations({game.animations});
    QSet<SpriteNumber> shown = shownIn(countOf(*game.animations));
    QSet<SpriteNumber> everShown = shown;
    QCOMPARE(uses.count({0, 0}), 2);
    QSignalSpy changed(&uses, &SpriteUses::changed);
    for (int step = 0; step < 3000; ++step) {
        // Some steps are made of several edits, by the text and by the tree.
        const bool isLong = random.bounded(4) == 0;
        if (isLong) {
            game.document.beginChange(QStringLiteral("several"));
        }
        for (int i = isLong ? random.bounded(4) : 1; i > 0; --i) {
            FrameCode* frame = nullptr;
            if (const AnimationCode* animation = game.animations->at(0)) {
                frame = animation->frames().value(0);
            }
            if (frame && random.bounded(3) == 0) {
                frame->setSprite(random.bounded(3), random.bounded(3));
            } else if (!isLong) {
                text.edit(random, game.document);
            } else {
                game.document.insert(text.lines(random, 3) + QLatin1Char('\n'));
            }
        }
        if (isLong) {
            game.document.endChange();
        }
        const Counts expected = countOf(*game.animations);
        const QSet<SpriteNumber> now = shownIn(expected);
        everShown += now;
        QVERIFY2(countOf(uses, everShown) == expected,
                 qPrintable(QStringLiteral("seed %1, step %2").arg(seed).arg(step)));
        QCOMPARE(!changed.isEmpty(), now != shown);
        changed.clear();
        shown = now;
    }
}

/// A project can have several texts with animations.
void TestSpriteUses::countsInSeveralTexts()
{
    SpriteUses uses;
    QCOMPARE(uses.count({0, 0}), 0);
    auto first = std::make_unique<Game>(QStringLiteral("!a\n-0,0\n-0,0\n"));
    Game second(QStringLiteral("!a\n-1,1\n-0,0\n"));
    uses.setAnimations({second.animations});
    QCOMPARE(uses.count({0, 0}), 1);
    uses.setAnimations({first->animations, second.animations, nullptr});
    QCOMPARE(uses.count({0, 0}), 3);
    first->document.insert(QStringLiteral("-1,1\n-2,2\n"));
    second.document.insert(QStringLiteral("-1,1\n"));
    QCOMPARE(countOf(uses, {{0, 0}, {1, 1}, {2, 2}}),
             (Counts{{{0, 0}, 3}, {{1, 1}, 3}, {{2, 2}, 1}}));
    QSignalSpy changed(&uses, &SpriteUses::changed);
    first.reset();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(countOf(uses, {{0, 0}, {1, 1}, {2, 2}}), (Counts{{{0, 0}, 1}, {{1, 1}, 2}}));
    uses.setAnimations({});
    second.document.insert(QStringLiteral("-1,1\n"));
    QVERIFY(!uses.hasAnimations());
    QCOMPARE(uses.count({1, 1}), 0);
}

/// The lines that an edit leaves alone are not looked at: one that was wrong would stay wrong.
void TestSpriteUses::costsTheEditedLines()
{
    Game game(QStringLiteral("!a\n-0,0\n-0,1\n"));
    SpriteUses uses;
    uses.setAnimations({game.animations});
    QCOMPARE(uses.count({0, 0}), 1);
    // In memory alone, so that no edit tells of it.
    game.animations->at(0)->frames().first()->setIdentifier(QStringLiteral("-5,5"));
    QTextCursor cursor(game.document.findBlockByNumber(2));
    cursor.insertText(QStringLiteral("-4,4\n"));
    QCOMPARE(countOf(uses, {{0, 0}, {0, 1}, {4, 4}, {5, 5}}),
             (Counts{{{0, 0}, 1}, {{0, 1}, 1}, {{4, 4}, 1}}));
}

QTEST_MAIN(TestSpriteUses)
#include "tst_spriteuses.moc"
