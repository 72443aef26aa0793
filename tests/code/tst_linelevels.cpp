#include "support/randomtext.h"
#include "support/testgrammar.h"

#include "code/codedoc/codeblockdata.h"

#include <QRandomGenerator>
#include <QTextBlock>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261121;

const RandomText Text({"[1]", "[1*]", "!x", "!y*", "a=1", "b=2", "-f", "# note", "# other", "",
                       "?e"},
                      QStringLiteral("[]!-=#*1a\n"));

int level(const QTextBlock& block)
{
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data ? data->foldingIndent() : 0;
}

int walkUp(QTextBlock block, int limit)
{
    while (block.isValid() && level(block) >= limit) {
        block = block.previous();
    }
    return block.blockNumber();
}

int walkDown(QTextBlock block, int limit)
{
    do {
        block = block.next();
    } while (block.isValid() && level(block) >= limit);
    return block.blockNumber();
}

}  // namespace

/// The searches for lines by level and by brackets, beside a plain walk.
class TestLineLevels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void lowerLines();
    void linesNeverParsed();
    void unpaired();
};

void TestLineLevels::lowerLines()
{
    QRandomGenerator random(Seed);
    for (int run = 0; run < 20; ++run) {
        GrammarDocument document(Text.lines(random, 60));
        for (int step = 0; step < 60; ++step) {
            for (int i = 0; i < 20; ++i) {
                const int line = random.bounded(document.blockCount());
                const QTextBlock block = document.findBlockByNumber(line);
                const int limit = random.bounded(-1, 5);
                const auto place = QStringLiteral("below %1 from %2 in:\n%3")
                                       .arg(limit)
                                       .arg(line)
                                       .arg(document.text());
                QVERIFY2(document.lowerBlockAtOrAbove(block, limit).blockNumber() ==
                             walkUp(block, limit),
                         qPrintable(QStringLiteral("at or above, ") + place));
                QVERIFY2(document.lowerBlockBelow(block, limit).blockNumber() ==
                             walkDown(block, limit),
                         qPrintable(place));
            }
            Text.edit(random, document);
        }
    }
}

void TestLineLevels::linesNeverParsed()
{
    GrammarDocument document;
    document.setParser(nullptr);
    document.setPlainText(QStringLiteral("[1]\na=1\nb=2"));
    const QTextBlock middle = document.findBlockByNumber(1);
    QCOMPARE(document.lowerBlockAtOrAbove(middle, 1), middle);
    QCOMPARE(document.lowerBlockBelow(middle, 1), middle.next());
    QVERIFY(!document.lowerBlockBelow(middle.next(), 1).isValid());
    QVERIFY(!document.lowerBlockAtOrAbove(middle, 0).isValid());
    QVERIFY(!document.lowerBlockBelow(middle, 0).isValid());
    QVERIFY(!document.nextUnpairedBlock(middle, CodeDocument::LacksClosing).isValid());
}

void TestLineLevels::unpaired()
{
    GrammarDocument document(QStringLiteral("()\n(\n# (())()\n) (\n)\n(a)"));
    constexpr int both = CodeDocument::LacksClosing | CodeDocument::LacksOpening;
    const auto next = [&](int line, int lacking) {
        return document.nextUnpairedBlock(document.findBlockByNumber(line), lacking).blockNumber();
    };
    const auto previous = [&](int line, int lacking) {
        return document.previousUnpairedBlock(document.findBlockByNumber(line), lacking)
            .blockNumber();
    };
    QCOMPARE(next(0, both), 1);
    QCOMPARE(next(0, CodeDocument::LacksOpening), 3);
    QCOMPARE(next(1, both), 3);
    QCOMPARE(next(3, CodeDocument::LacksClosing), -1);
    QCOMPARE(next(3, both), 4);
    QCOMPARE(previous(5, both), 4);
    QCOMPARE(previous(4, CodeDocument::LacksClosing), 3);
    QCOMPARE(previous(3, CodeDocument::LacksOpening), -1);
    QTextCursor(document.findBlockByNumber(2)).insertText(QStringLiteral(")"));
    QCOMPARE(next(1, CodeDocument::LacksOpening), 2);
}

QTEST_MAIN(TestLineLevels)
#include "tst_linelevels.moc"
