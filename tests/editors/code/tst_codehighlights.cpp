#include "editors/code/codeeditor.h"

#include "showneditor.h"
#include "support/randomtext.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QSignalSpy>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261121;

const RandomText Random({"[1]", "[1*]", "!x", "!y*", "a=1", "  b=2", "-f", "# note", "", "?e"},
                        QStringLiteral("[]!-=#*1a\n"));

struct Ranges
{
    QList<int> open, close;
};

/// The ranges of a line, by walks from line to line.
Ranges walk(const QTextDocument& document, int line)
{
    const auto level = [](const QTextBlock& block) {
        const CodeBlockData* data = CodeBlockData::testBlockData(block);
        return data ? data->foldingIndent() : 0;
    };
    Ranges ranges;
    QTextBlock block = document.findBlockByNumber(line);
    if (block.next().isValid() && level(block.next()) > level(block)) {
        block = block.next();
    }
    QTextBlock end = block;
    while (true) {
        const int own = level(block);
        while (block.previous().isValid() && level(block) >= own) {
            block = block.previous();
        }
        if (level(block) == own) {
            return ranges;
        }
        while (end.next().isValid() && level(end.next()) >= own) {
            end = end.next();
        }
        ranges.open.prepend(block.blockNumber());
        ranges.close.append(end.blockNumber());
    }
}

/// The texts of all selections but that of the current line.
QStringList selected(const CodeEditor& editor)
{
    QStringList texts;
    for (const QTextEdit::ExtraSelection& selection : editor.extraSelections()) {
        if (selection.cursor.hasSelection()) {
            texts.append(selection.cursor.selectedText().replace(QChar(0x2029), QLatin1Char('/')));
        }
    }
    return texts;
}

}  // namespace

/// What is marked around the cursor.
class TestCodeHighlights : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void brackets_data();
    void brackets();
    void bracketsFollowEdits();
    void rangesAreThoseOfAWalk();
    void rangesAreSwitchedOff();
    void tellsOfLines();
};

void TestCodeHighlights::brackets_data()
{
    // `text`: with the cursor at |
    columns<QString, QStringList>("text", "expected");
    using L = QStringList;
    row("before", "|(a)", L{"(a)", "(", ")"});
    row("behind", "(a)|", L{"(a)", "(", ")"});
    row("between", "(|a)", L{});
    row("both sides", "(a)|(b)", L{"(a)", "(", ")", "(b)", "(", ")"});
    row("inner first", "|(a(b)c)d)", L{"(a(b)c)", "(", ")"});
    row("any character", "|(a}", L{"(a}", "(", "}"});
    row("unmatched", "|(a", L{});
    row("unmatched closing", "a)|", L{});
    row("over lines", "|(\n# ()\n#\n{}\n# )", L{"(/# ()/#/{}/# )", "(", ")"});
    row("over lines, back", "# ( (\n# ) {\n# }\n# )|", L{"( (/# ) {/# }/# )", "(", ")"});
    row("surplus on the way", "|( (\n) ( (\n)\n) ) )", L{"( (/) ( (/)/) )", "(", ")"});
    row("none is left", "|(\n(\n)\n()", L{});
}

void TestCodeHighlights::brackets()
{
    auto [text, expected] = fetched<QString, QStringList>();
    const int place = text.indexOf(QLatin1Char('|'));
    ShownEditor shown(text.remove(place, 1));
    QTextCursor cursor = shown.editor.textCursor();
    cursor.movePosition(QTextCursor::End);
    shown.editor.setTextCursor(cursor);
    cursor.setPosition(place);
    shown.editor.setTextCursor(cursor);
    QTest::qWait(80);
    QCOMPARE(selected(shown.editor), expected);
}

void TestCodeHighlights::bracketsFollowEdits()
{
    ShownEditor shown(QStringLiteral("# (\n# b"));
    shown.putCursor(1, -1);
    QTest::keyClicks(&shown.editor, QStringLiteral(")"));
    QTRY_COMPARE(selected(shown.editor), (QStringList{"(/# b)", "(", ")"}));
    QTest::keyClicks(&shown.editor, QStringLiteral("x"));
    QTRY_COMPARE(selected(shown.editor), QStringList());
    shown.putCursor(1, -2);
    QTRY_COMPARE(selected(shown.editor).size(), 3);
    CodeEditor::SyntaxFormatting formatting;
    formatting.parenMatching = false;
    shown.editor.setSyntaxFormatting(formatting);
    QCOMPARE(selected(shown.editor), QStringList());
}

/// The pointer in the folding column shows the ranges of its line.
void TestCodeHighlights::rangesAreThoseOfAWalk()
{
    QRandomGenerator random(Seed);
    for (int run = 0; run < 12; ++run) {
        ShownEditor shown(QStringLiteral("z=1\n[1]\n[1*]\n") + Random.lines(random, 20));
        shown.editor.resize(300, 700);
        CodeEditor::SyntaxFormatting formatting;
        formatting.highlightBlocks = true;
        shown.editor.setSyntaxFormatting(formatting);
        for (int step = 0; step < 12; ++step) {
            Random.edit(random, shown.document);
            const int line = random.bounded(shown.document.blockCount());
            const QPoint place = shown.inGutter(line, -3);
            const int away = line > 0 ? 0 : shown.document.blockCount() - 1;
            for (const QPoint& p : {shown.inGutter(away, -3), place}) {
                QMouseEvent move(QEvent::MouseMove, p, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
                QCoreApplication::sendEvent(shown.gutter(), &move);
            }
            QCoreApplication::processEvents();
            const Ranges expected = walk(shown.document, line);
            const auto text = [&] { return qPrintable(shown.document.text()); };
            QTRY_VERIFY2(shown.editor.rangeStarts() == expected.open, text());
            QVERIFY2(shown.editor.rangeEnds() == expected.close, text());
        }
    }
}

void TestCodeHighlights::rangesAreSwitchedOff()
{
    ShownEditor shown(QStringLiteral("[1]\na=1\n[2]\nb=2"));
    CodeEditor::SyntaxFormatting formatting;
    formatting.highlightBlocks = true;
    shown.editor.setSyntaxFormatting(formatting);
    QTRY_COMPARE(shown.editor.rangeEnds(), QList<int>{1});
    shown.putCursor(2, 0);
    formatting.highlightBlocks = false;
    shown.editor.setSyntaxFormatting(formatting);
    QTest::qWait(150);
    QCOMPARE(shown.editor.rangeStarts(), QList<int>());
}

void TestCodeHighlights::tellsOfLines()
{
    ShownEditor shown(QStringLiteral("[1]\na=1"));
    QSignalSpy lines(&shown.editor, &CodeEditor::currentLineChanged);
    QSignalSpy places(&shown.editor, &CodeEditor::cursorChanged);
    QTest::keyClick(&shown.editor, Qt::Key_Right);
    QCOMPARE(lines.size(), 0);
    QTest::keyClick(&shown.editor, Qt::Key_Down);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().first().toInt(), 1);
    QCOMPARE(places.size(), 2);
    QCOMPARE(places.last().first().toPoint(), QPoint(1, 1));
}

QTEST_MAIN(TestCodeHighlights)
#include "tst_codehighlights.moc"
