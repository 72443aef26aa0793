#include "editors/code/codeeditor.h"

#include "showneditor.h"
#include "support/randomtext.h"
#include "support/testtable.h"

#include <QRandomGenerator>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261121;

const RandomText Random({"[1]", "[1*]", "!x", "!y*", "a=1", "b=2", "-f", "# note", "", "?e"},
                        QStringLiteral("[]!-=#*1a\n"));

// Levels 0 1 1 2 2 0 1 0 1.
const QString Nested = QStringLiteral("[1*]\n#\n[2]\na=1\nb=2\n[3*]\nc=3\n[4*]\nd=4\n# end");

/// A document whose lines lose their levels.
class FlatDocument : public GrammarDocument
{
public:
    using GrammarDocument::GrammarDocument;
    int blockFolding(const QString& line) const override
    {
        return isFlat ? 0 : GrammarDocument::blockFolding(line);
    }
    bool isFlat = false;
};

void toggleVisible(ShownEditor& shown, int line)
{
    if (shown.line(line).isVisible()) {
        shown.toggle({line});
    }
}

}  // namespace

/// Folds by the editor, by keys and by the mouse; what edits make of them.
class TestCodeFolding : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void toggles_data();
    void toggles();
    void foldsAndUnfoldsAll();
    void revealsNoMoreThanItTakes_data();
    void revealsNoMoreThanItTakes();
    void cursorLeavesUpwards();
    void foldsAtTheCursor_data();
    void foldsAtTheCursor();
    void keysGoAround_data();
    void keysGoAround();
    void editsShow_data();
    void editsShow();
    void editsShowFurtherAbove();
    void joinedLinesComeOut();
    void randomEditsHideNothingForGood();
    void levelsThatGoWithoutAnEdit();
    void boxOpens();
    void boxIsPainted();
    void previewComesAndGoes();
    void previewLeavesTheScrollBarsAlone();
};

void TestCodeFolding::toggles_data()
{
    columns<QString, QVector<int>, QString>("text", "lines", "expected");
    row("a head", Nested, QVector<int>{5}, "......h...");
    row("a head with another in it", Nested, QVector<int>{0}, ".hhhh.....");
    row("twice", Nested, QVector<int>{0, 0}, "..........");
    row("no head", Nested, QVector<int>{3}, "..........");
    row("the last line", Nested, QVector<int>{9}, "..........");
    row("the end stays", "[1]\na=1\nb=2\nc=3", QVector<int>{0}, ".hh.");
    row("the only line below stays", "[1]\na=1", QVector<int>{0}, "..");
    row("inner, then outer", Nested, QVector<int>{2, 0}, ".hhhh.....");
    row("around a fold, to the end", Nested, QVector<int>{2, 5, 7, 0, 0}, "..........");
    row("around an opened fold", Nested, QVector<int>{2, 2, 5, 0, 0}, "......h...");
}

void TestCodeFolding::toggles()
{
    const auto [text, lines] = fetched<QString, QVector<int>>();
    ShownEditor shown(text);
    for (const int line : lines) {
        shown.toggle({line});
        QCOMPARE(faultOfFolds(&shown.document), QString());
    }
    QTEST(shown.visibility(), "expected");
    QCOMPARE(shown.document.text(), text);
}

void TestCodeFolding::foldsAndUnfoldsAll()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 150; ++round) {
        const QString text = Random.lines(random, 60);
        ShownEditor shown(text);
        const QString allVisible = shown.visibility();
        for (int i = random.bounded(4); i > 0; --i) {
            toggleVisible(shown, random.bounded(shown.document.blockCount()));
        }
        shown.editor.foldAll();
        QCOMPARE(faultOfFolds(&shown.document), QString());
        for (QTextBlock b = shown.document.begin(); b.next().isValid(); b = b.next()) {
            const int level = CodeBlockData::testBlockData(b)->foldingIndent();
            const QTextBlock next = b.next();
            QVERIFY2(!b.isVisible() || !next.isVisible() || !next.next().isValid() ||
                         CodeBlockData::testBlockData(next)->foldingIndent() <= std::max(level, 0),
                     qPrintable(text));
        }
        shown.editor.unfoldAll();
        QCOMPARE(shown.visibility(), allVisible);
        QCOMPARE(shown.document.text(), text);
        QVERIFY(!shown.document.isUndoAvailable());
    }
}

void TestCodeFolding::revealsNoMoreThanItTakes_data()
{
    columns<int, QString>("line", "expected");
    row("in the outer part", 1, "...hh.h.h.");
    row("the head of the inner fold", 2, "...hh.h.h.");
    row("in the inner fold", 4, "......h.h.");
    row("in another fold", 6, ".hhhh...h.");
    row("a visible one", 5, ".hhhh.h.h.");
}

void TestCodeFolding::revealsNoMoreThanItTakes()
{
    QFETCH(int, line);
    ShownEditor shown(Nested);
    shown.toggle({2, 5, 7, 0});
    QCOMPARE(shown.visibility(), QStringLiteral(".hhhh.h.h."));
    shown.putCursor(line, 0);
    QTEST(shown.visibility(), "expected");
    QCOMPARE(shown.editor.textCursor().blockNumber(), line);
    QCOMPARE(faultOfFolds(&shown.document), QString());
}

void TestCodeFolding::cursorLeavesUpwards()
{
    ShownEditor shown(Nested);
    shown.putCursor(4, 2);
    shown.editor.foldAll();
    QCOMPARE(shown.editor.textCursor().blockNumber(), 0);
    QCOMPARE(shown.visibility(), QStringLiteral(".hhhh.h.h."));
}

void TestCodeFolding::foldsAtTheCursor_data()
{
    columns<int, QString>("line", "expected");
    row("at a folded head", 7, "..........");
    row("at a head", 2, "...hh...h.");
    row("in the inner range", 4, "...hh...h.");
    row("in the outer one", 1, ".hhhh...h.");
    row("in none", 9, "........h.");
}

void TestCodeFolding::foldsAtTheCursor()
{
    QFETCH(int, line);
    ShownEditor shown(Nested);
    shown.toggle({7});
    shown.putCursor(line, 0);
    shown.editor.toggleFold();
    QTEST(shown.visibility(), "expected");
    QVERIFY(shown.editor.textCursor().block().isVisible());
}

void TestCodeFolding::keysGoAround_data()
{
    columns<int, int, int, int>("line", "column", "key", "expected");
    row("down from the head", 0, 0, int(Qt::Key_Down), 5);
    row("up to the head", 5, 0, int(Qt::Key_Up), 0);
    row("right from the end", 0, -1, int(Qt::Key_Right), 5);
    row("left to the end", 5, 0, int(Qt::Key_Left), 0);
    row("a page down", 0, 0, int(Qt::Key_PageDown), 9);
    row("a page up", 9, 0, int(Qt::Key_PageUp), 0);
}

void TestCodeFolding::keysGoAround()
{
    const auto [line, column, key] = fetched<int, int, int>();
    ShownEditor shown(Nested);
    shown.toggle({0, 5, 7});
    shown.putCursor(line, column);
    QTest::keyClick(&shown.editor, Qt::Key(key));
    QTEST(shown.editor.textCursor().blockNumber(), "expected");
    QCOMPARE(shown.visibility(), QStringLiteral(".hhhh.h.h."));
}

void TestCodeFolding::editsShow_data()
{
    // `keys`: /< "<" Backspace, ">" Delete, "~" undo
    columns<int, int, QString, QString, int>("line", "column", "keys", "expected", "cursorLine");
    const auto row = [](const char* name, int line, int column, const char* keys,
                        const char* expected,
                        int cursorLine) { ::row(name, line, column, keys, expected, cursorLine); };
    row("typing at the head", 5, -1, "x", ".hhhh.h.h.", 5);
    row("the head a comment", 5, 0, "#", ".hhhh...h.", 5);
    row("and a head again", 5, 0, "#~", ".hhhh...h.", 5);
    row("the head outermost", 7, 3, "<<*]", ".hhhh.h.h.", 7);
    row("a line end behind the head", 5, -1, "\n", ".hhhh....h.", 6);
    row("a line end in front of the head", 5, 0, "\n", ".hhhh..h.h.", 6);
    row("the line below joined to the head", 5, -1, ">", ".hhhh..h.", 5);
    row("the head joined to a fold above", 5, 0, "<", ".......h.", 4);
    row("a line joined to the last hidden one", 7, 0, "<", ".hhhh....", 6);
    row("the line behind the fold a part of it", 7, 0, ">>>>e=5", ".hhhh.h...", 7);
}

void TestCodeFolding::editsShow()
{
    const auto [line, column, keys] = fetched<int, int, QString>();
    ShownEditor shown(Nested);
    shown.toggle({0, 5, 7});
    QCOMPARE(shown.visibility(), QStringLiteral(".hhhh.h.h."));
    shown.putCursor(line, column);
    for (const QChar key : keys) {
        if (key == QLatin1Char('~')) {
            QTest::keySequence(&shown.editor, QKeySequence::Undo);
        } else if (key == QLatin1Char('<')) {
            QTest::keyClick(&shown.editor, Qt::Key_Backspace);
        } else if (key == QLatin1Char('>')) {
            QTest::keyClick(&shown.editor, Qt::Key_Delete);
        } else if (key == QLatin1Char('\n')) {
            QTest::keyClick(&shown.editor, Qt::Key_Return);
        } else {
            QTest::keyClick(&shown.editor, key.toLatin1());
        }
        QCOMPARE(faultOfFolds(&shown.document), QString());
    }
    QTEST(shown.visibility(), "expected");
    QTEST(shown.editor.textCursor().blockNumber(), "cursorLine");
}

/// The level of a comment depends on the next line that is none.
void TestCodeFolding::editsShowFurtherAbove()
{
    ShownEditor shown(QStringLiteral("[1*]\n# one\n[2]"));
    shown.toggle({0});
    shown.putCursor(2, 0);
    QTest::keyClick(&shown.editor, Qt::Key_Return);
    QCOMPARE(shown.visibility(), QStringLiteral(".h.."));
    shown.putCursor(3, 2);
    QTest::keyClicks(&shown.editor, QStringLiteral("*"));
    QCOMPARE(shown.visibility(), QStringLiteral("...."));
}

void TestCodeFolding::joinedLinesComeOut()
{
    ShownEditor shown(QStringLiteral("#\n[1]\na=1\nb=2\nc=3\n[2*]"));
    shown.toggle({1});
    shown.putCursor(1, 0);
    QTest::keyClick(&shown.editor, Qt::Key_Up);
    QTest::keySequence(&shown.editor, QKeySequence(Qt::SHIFT | Qt::Key_Down));
    QTest::keyClick(&shown.editor, Qt::Key_Delete);
    QCOMPARE(shown.visibility(), QStringLiteral(".hhh."));
    QTest::keyClick(&shown.editor, Qt::Key_End);
    QTest::keyClick(&shown.editor, Qt::Key_Delete);
    QCOMPARE(shown.document.text(), QStringLiteral("[1]a=1\nb=2\nc=3\n[2*]"));
    QCOMPARE(shown.visibility(), QStringLiteral("...."));
}

/// Edits by another hand too: no view's cursor is there to open the fold.
void TestCodeFolding::randomEditsHideNothingForGood()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 60; ++round) {
        ShownEditor shown(Random.lines(random, 40));
        for (int step = 0; step < 40; ++step) {
            if (random.bounded(3) == 0) {
                shown.editor.foldAll();
            } else if (random.bounded(2) == 0) {
                toggleVisible(shown, random.bounded(shown.document.blockCount()));
            }
            const QString before = shown.document.text();
            Random.edit(random, shown.document);
            const QString fault = faultOfFolds(&shown.document);
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("%1:%2 %3\n%4\n--\n%5\n--\n%6")
                                                     .arg(round)
                                                     .arg(step)
                                                     .arg(fault, before, shown.document.text(),
                                                          shown.visibility())));
            QVERIFY(shown.editor.textCursor().block().isVisible());
        }
    }
}

void TestCodeFolding::levelsThatGoWithoutAnEdit()
{
    ShownEditor shown;
    FlatDocument document(Nested);
    shown.editor.setDocument(&document);
    shown.toggle({0, 5, 7});
    document.isFlat = true;
    document.rehighlight();
    QTRY_COMPARE(shown.visibility(), QStringLiteral(".........."));
}

void TestCodeFolding::boxOpens()
{
    ShownEditor shown(Nested);
    shown.toggle({5});
    QTest::mouseClick(shown.viewport(), Qt::RightButton, {}, shown.box(5));
    QCOMPARE(shown.visibility(), QStringLiteral("......h..."));
    QTest::mouseClick(shown.viewport(), Qt::LeftButton, {}, shown.box(5));
    QCOMPARE(shown.visibility(), QStringLiteral(".........."));
    QCOMPARE(shown.editor.textCursor().blockNumber(), 5);
    QVERIFY(shown.editor.textCursor().atBlockEnd());
}

void TestCodeFolding::boxIsPainted()
{
    ShownEditor shown(Nested);
    const QPoint place = shown.box(5);
    const int width = shown.editor.fontMetrics().horizontalAdvance(QStringLiteral(" ... "));
    const auto colour = [&](int x, int y) {
        return shown.viewport()->grab().toImage().pixelColor(place + QPoint(x, y));
    };
    const QColor paper = shown.editor.palette().color(QPalette::Base);
    QCOMPARE(colour(-width / 2 - 1, 0), paper);
    shown.toggle({5});
    QVERIFY(colour(-width / 2 - 1, 0).lightness() < 190);
    QCOMPARE(colour(-width / 2 + 3, -3), paper);
    shown.editor.selectAll();
    QCOMPARE(colour(-width / 2 + 3, -3), shown.editor.palette().color(QPalette::Highlight));
}

void TestCodeFolding::previewComesAndGoes()
{
    ShownEditor shown(Nested);
    shown.toggle({0});
    const QPoint box = shown.box(0);
    const QImage without = shown.viewport()->grab().toImage();
    // The hidden lines stand where visible ones were.
    const QRect below(0, box.y() + 12, 100, 60);
    const auto isShown = [&] {
        return shown.viewport()->grab().toImage().copy(below) != without.copy(below);
    };
    const auto pointer = [&] { return shown.viewport()->cursor().shape(); };
    QTest::mouseMove(shown.viewport(), box);
    QCOMPARE(pointer(), Qt::PointingHandCursor);
    QTRY_VERIFY(isShown());
    QTest::keyClick(&shown.editor, Qt::Key_Shift);
    QVERIFY(!isShown());
    QCOMPARE(pointer(), Qt::BlankCursor);
    QTest::mouseMove(shown.viewport(), box + QPoint(1, 0));
    QTRY_VERIFY(isShown());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(shown.viewport(), &leave);
    QVERIFY(!isShown());
    QTest::mouseMove(shown.viewport(), box);
    QTRY_VERIFY(isShown());
    QTest::mouseMove(shown.viewport(), {200, 250});
    QVERIFY(!isShown());
    QCOMPARE(pointer(), Qt::IBeamCursor);
    QTest::mouseMove(shown.viewport(), box);
    QTRY_VERIFY(isShown());
    QTextCursor(shown.line(9)).insertText(QStringLiteral("x"));
    QVERIFY(!isShown());
    QTest::mouseMove(shown.viewport(), box + QPoint(1, 0));
    shown.editor.setDocument(nullptr);
    QTest::qWait(60);
    QCOMPARE(shown.viewport()->grab().toImage().copy(below).allGray(), true);
}

void TestCodeFolding::previewLeavesTheScrollBarsAlone()
{
    // Nothing of the fold has ever been on the screen.
    const QString lines = QStringLiteral("a=1\n").repeated(100);
    ShownEditor shown(lines + QStringLiteral("[1*]\n") + lines + QStringLiteral("[2*]\n") + lines);
    shown.toggle({100});
    shown.editor.setCurrentLine(100U, CodeEditor::TopLine);
    QCoreApplication::processEvents();
    const int maximum = shown.editor.verticalScrollBar()->maximum();
    const QImage without = shown.viewport()->grab().toImage();
    QTest::mouseMove(shown.viewport(), shown.box(100));
    QTRY_VERIFY(shown.viewport()->grab().toImage() != without);
    QCOMPARE(shown.editor.verticalScrollBar()->maximum(), maximum);
    QCOMPARE(faultOfFolds(&shown.document), QString());
}

QTEST_MAIN(TestCodeFolding)
#include "tst_codefolding.moc"
