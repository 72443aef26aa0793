#include "editors/code/codeeditor.h"

#include "core/filesystemarchive.h"
#include "showneditor.h"
#include "support/testtable.h"

#include <QClipboard>
#include <QTemporaryDir>
#include <QToolTip>

#include <memory>

using namespace Zorv;

namespace {

/// Groups of 100 lines, a head and 99 values each.
QString groups(int count)
{
    QString text;
    for (int i = 0; i < count; ++i) {
        text += QStringLiteral("[%1*]\n").arg(i % 9 + 1);
        for (int j = 1; j < 100; ++j) {
            text += QStringLiteral("v%1=%2\n").arg(i).arg(j);
        }
    }
    return text;
}

QHelpEvent tipEvent(const ShownEditor& shown, int line, int column)
{
    QTextCursor cursor(shown.line(line));
    cursor.setPosition(cursor.position() + column);
    const QPoint place = shown.editor.cursorRect(cursor).center();
    return QHelpEvent(QEvent::ToolTip, place, shown.viewport()->mapToGlobal(place));
}

/// A file on disk, and its document in the editor.
class OpenFile
{
public:
    explicit OpenFile(const QString& text)
    {
        write(text);
        shown.document.fromFile(archive, name(), -1, false);
    }
    void write(const QString& text)
    {
        QFile file(name());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
    QString name() const { return folder.filePath(QStringLiteral("a.txt")); }

    QTemporaryDir folder;
    FileSystemArchive& archive = *FileSystemArchive::instance();
    ShownEditor shown;
};

}  // namespace

/// Places, pointer, tips and documents of the code editor; its parts have tests of their own.
class TestCodeEditor : public QObject
{
    Q_OBJECT

private slots:
    void putsLinesIntoTheView_data();
    void putsLinesIntoTheView();
    void goesToAPlace();
    void firstMessageIsTheTip();
    void controlSwallowsTheTip();
    void menuTakesTheCursorAlong_data();
    void menuTakesTheCursorAlong();
    void typingHidesThePointer();
    void insertTogglesOverwriting();
    void lineEndsAreLineEnds();
    void readingAgainKeepsThePlace_data();
    void readingAgainKeepsThePlace();
    void documentsGoUnderTheHands_data();
    void documentsGoUnderTheHands();
    void outlivedByItsDocuments();
    void copiesTheTextAsItIs();
    void clickOnHalfALine_data();
    void clickOnHalfALine();
};

void TestCodeEditor::putsLinesIntoTheView_data()
{
    // `height`: /< of the line in the view, from 0 to 1
    columns<bool, int, int, double>("folded", "line", "type", "height");
    row("first page", false, 3, int(CodeEditor::TopLine), -1.0);
    row("top", false, 555, int(CodeEditor::TopLine), 0.0);
    row("middle", false, 555, int(CodeEditor::CenterLine), 0.5);
    row("nearest", false, 555, int(CodeEditor::NearestLine), 1.0);
    row("end", false, 2000, int(CodeEditor::TopLine), 1.0);
    row("behind the end", false, 99999, int(CodeEditor::CenterLine), 1.0);
    row("top, of a head that folds", true, 500, int(CodeEditor::TopLine), 0.0);
    row("middle, in a fold", true, 555, int(CodeEditor::CenterLine), 0.5);
}

void TestCodeEditor::putsLinesIntoTheView()
{
    const auto [folded, line, type, height] = fetched<bool, int, int, double>();
    ShownEditor shown(groups(folded ? 60 : 20));
    const int last = shown.editor.blockCount() - 1;
    if (folded) {
        shown.editor.foldAll();
    }
    shown.editor.setCurrentLine(unsigned(line), CodeEditor::LineType(type));
    QCOMPARE(shown.editor.textCursor().blockNumber(), std::min(line, last));
    QVERIFY(shown.editor.textCursor().block().isVisible());
    const QRect cursor = shown.editor.cursorRect();
    QVERIFY(shown.viewport()->rect().contains(cursor));
    if (height >= 0) {
        const double wanted = height * (shown.viewport()->height() - cursor.height());
        QVERIFY(std::abs(cursor.top() - wanted) <= 2.5 * cursor.height());
    }
    if (folded) {
        QCOMPARE(shown.visibility().count(QLatin1Char('.')), line % 100 ? 160 : 61);
    }
}

void TestCodeEditor::goesToAPlace()
{
    ShownEditor shown(groups(5));
    QSignalSpy spy(&shown.editor, &CodeEditor::cursorChanged);
    shown.editor.setCurrentLine(CodeEditor::LinePos{310, 2, 305});
    QCOMPARE(spy.last().first().toPoint(), QPoint(310, 2));
    const CodeEditor::LinePos place = shown.editor.currentPlace();
    QCOMPARE(place.line, 310);
    QCOMPARE(place.column, 2);
    QCOMPARE(place.scroll, 305);
    shown.toggle({300});
    shown.editor.setCurrentLine(CodeEditor::LinePos{310, 2, 305});
    QVERIFY(shown.editor.textCursor().block().isVisible());
    shown.editor.setCurrentLine(CodeEditor::LinePos{-4, 99, -7});
    QCOMPARE(shown.editor.textCursor().position(), 4);
    shown.editor.setCurrentLine(CodeEditor::LinePos{9999, 99, 9999});
    QVERIFY(shown.editor.textCursor().atEnd());
}

void TestCodeEditor::firstMessageIsTheTip()
{
    ShownEditor shown(QStringLiteral("#\n?e <b>x</b>\n?w"));
    const auto tip = [&](int line, int column) {
        QToolTip::hideText();
        QHelpEvent event = tipEvent(shown, line, column);
        QCoreApplication::sendEvent(shown.viewport(), &event);
        return QToolTip::text();
    };
    QCOMPARE(tip(2, 1), QStringLiteral("warned"));
    QCOMPARE(tip(1, 0), QStringLiteral("<qt>unknown: ?e &lt;b&gt;x&lt;/b&gt;</qt>"));
    QTRY_VERIFY((tip(0, 0), !QToolTip::isVisible()));
}

void TestCodeEditor::controlSwallowsTheTip()
{
    ShownEditor shown(QStringLiteral("?w"));
    QTest::keyPress(&shown.editor, Qt::Key_Control, Qt::ControlModifier);
    QHelpEvent event = tipEvent(shown, 0, 1);
    QVERIFY(QCoreApplication::sendEvent(shown.viewport(), &event));
}

void TestCodeEditor::menuTakesTheCursorAlong_data()
{
    columns<int, bool, int>("reason", "selected", "expected");
    row("mouse", int(QContextMenuEvent::Mouse), false, 2);
    row("mouse, with a selection", int(QContextMenuEvent::Mouse), true, 0);
    row("keyboard", int(QContextMenuEvent::Keyboard), false, 0);
}

void TestCodeEditor::menuTakesTheCursorAlong()
{
    const auto [reason, selected] = fetched<int, bool>();
    ShownEditor shown(QStringLiteral("#\n#\n#"));
    if (selected) {
        QTest::keyClick(&shown.editor, Qt::Key_End, Qt::ShiftModifier);
    }
    // Nobody is there to close a menu.
    shown.editor.setContextMenuPolicy(Qt::CustomContextMenu);
    const QPoint place = shown.editor.cursorRect(QTextCursor(shown.line(2))).center();
    QContextMenuEvent event(QContextMenuEvent::Reason(reason), place,
                            shown.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(shown.viewport(), &event);
    QTEST(shown.editor.textCursor().blockNumber(), "expected");
}

void TestCodeEditor::typingHidesThePointer()
{
    ShownEditor shown(QStringLiteral("[1]\na=1"));
    const auto pointer = [&] { return shown.viewport()->cursor().shape(); };
    QTest::keyClick(&shown.editor, Qt::Key_A);
    QCOMPARE(pointer(), Qt::BlankCursor);
    QTest::mouseMove(shown.viewport(), {150, 150});
    QCOMPARE(pointer(), Qt::IBeamCursor);
    QTest::keyClick(&shown.editor, Qt::Key_A);
    const QPoint place(160, 150);
    QMouseEvent drag(QEvent::MouseMove, place, shown.viewport()->mapToGlobal(place), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(shown.viewport(), &drag);
    QCOMPARE(pointer(), Qt::IBeamCursor);
}

void TestCodeEditor::insertTogglesOverwriting()
{
    ShownEditor shown(QStringLiteral("#bcd"));
    QTest::keyClick(&shown.editor, Qt::Key_Insert);
    QTest::keyClicks(&shown.editor, QStringLiteral("xy"));
    QCOMPARE(shown.document.text(), QStringLiteral("xycd"));
    QTest::keyClick(&shown.editor, Qt::Key_Insert);
    QTest::keyClicks(&shown.editor, QStringLiteral("z"));
    QCOMPARE(shown.document.text(), QStringLiteral("xyzcd"));
    QGuiApplication::clipboard()->setText(QStringLiteral("p"));
    QTest::keyClick(&shown.editor, Qt::Key_Insert, Qt::ShiftModifier);
    QVERIFY(!shown.editor.overwriteMode());
    QCOMPARE(shown.document.text(), QStringLiteral("xyzpcd"));
}

void TestCodeEditor::lineEndsAreLineEnds()
{
    ShownEditor shown(QStringLiteral("ab"));
    shown.putCursor(0, 1);
    QTest::keyClick(&shown.editor, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(shown.document.blockCount(), 2);
    QCOMPARE(shown.document.toRawText(), QStringLiteral("a\u2029b"));
    shown.editor.setReadOnly(true);
    QTest::keyClick(&shown.editor, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(shown.document.blockCount(), 2);
}

void TestCodeEditor::readingAgainKeepsThePlace_data()
{
    columns<QString, int, int>("newText", "line", "folds");
    row("the same", groups(6), 420, 2);
    row("lines more at the end", groups(9), 420, 2);
    row("a line more at the start", QStringLiteral("#\n") + groups(6), 420, 2);
    row("another head", groups(6).replace(QLatin1String("[2*]"), QLatin1String("[9*]")), 420, 1);
    row("few lines", QStringLiteral("[1*]\na=1\nb=2"), 2, 1);
    row("nothing", QString(), 0, 0);
}

void TestCodeEditor::readingAgainKeepsThePlace()
{
    const auto [newText, line, folds] = fetched<QString, int, int>();
    OpenFile open(groups(6));
    ShownEditor& shown = open.shown;
    shown.toggle({0, 100});
    shown.putCursor(420, 3);
    const int scroll = shown.editor.verticalScrollBar()->value() + 4;
    shown.editor.verticalScrollBar()->setValue(scroll);
    QSignalSpy lines(&shown.editor, &CodeEditor::currentLineChanged);
    open.write(newText);
    QVERIFY(shown.document.reload());
    QCOMPARE(shown.document.text(), newText);
    QCOMPARE(shown.editor.textCursor().blockNumber(), line);
    QCOMPARE(shown.visibility().count(QStringLiteral(".h")), folds);
    QCOMPARE(faultOfFolds(&shown.document), QString());
    if (line == 420) {
        QCOMPARE(shown.editor.textCursor().positionInBlock(), 3);
        QCOMPARE(lines.count(), 0);
        QVERIFY(shown.viewport()->rect().contains(shown.editor.cursorRect()));
    }
    if (folds == 2) {
        QVERIFY(std::abs(shown.editor.verticalScrollBar()->value() - scroll) <= 1);
    }
}

void TestCodeEditor::documentsGoUnderTheHands_data()
{
    QTest::addColumn<QString>("how");
    row("swapped", "swap");
    row("taken off", "none");
    row("deleted", "delete");
    row("emptied", "clear");
    row("read again", "reload");
}

/// With a preview, one that waits, a drag in the gutter, and all timers running.
void TestCodeEditor::documentsGoUnderTheHands()
{
    QFETCH(QString, how);
    OpenFile open(groups(3));
    ShownEditor& shown = open.shown;
    auto document = std::make_unique<GrammarDocument>();
    document->fromFile(open.archive, open.name(), -1, false);
    CodeEditor::SyntaxFormatting formatting;
    formatting.highlightBlocks = true;
    shown.editor.setSyntaxFormatting(formatting);
    shown.editor.setDocument(document.get());
    shown.toggle({100, 200});
    shown.putCursor(150, 0);
    shown.toggle({100});
    shown.editor.verticalScrollBar()->setValue(3);
    QTest::mouseMove(shown.viewport(), shown.box(100));
    QTest::qWait(60);
    QTest::mouseMove(shown.viewport(), shown.box(200));
    QTest::mousePress(shown.gutter(), Qt::LeftButton, {}, {5, 50});
    shown.putCursor(50, 1);
    if (how == QLatin1String("swap")) {
        shown.editor.setDocument(&shown.document);
    } else if (how == QLatin1String("none")) {
        shown.editor.setDocument(nullptr);
    } else if (how == QLatin1String("delete")) {
        document.reset();
        QCOMPARE(shown.editor.codeDocument(), nullptr);
    } else if (how == QLatin1String("clear")) {
        document->reset();
    } else {
        open.write(QStringLiteral("#"));
        QVERIFY(document->reload());
    }
    (void)shown.editor.grab();
    QTest::qWait(150);
    (void)shown.editor.grab();
    for (const QTextEdit::ExtraSelection& selection : shown.editor.extraSelections()) {
        QCOMPARE(selection.cursor.document(), shown.editor.document());
    }
    QTest::keyClick(&shown.editor, Qt::Key_A);
    QVERIFY(shown.editor.toPlainText().contains(QLatin1Char('a')));
    shown.editor.setDocument(nullptr);
}

void TestCodeEditor::outlivedByItsDocuments()
{
    GrammarDocument first(groups(2));
    GrammarDocument second(groups(1));
    {
        ShownEditor shown;
        shown.editor.setDocument(&first);
        shown.editor.foldAll();
        shown.editor.setDocument(&second);
    }
    QTextCursor(&first).insertText(QStringLiteral("x\ny"));
    QTextCursor(&second).insertText(QStringLiteral("x\ny"));
    ShownEditor again;
    again.editor.setDocument(&first);
    QCOMPARE(faultOfFolds(&first), QString());
    QVERIFY(!first.findBlockByNumber(110).isVisible());
    again.editor.setDocument(nullptr);
}

void TestCodeEditor::copiesTheTextAsItIs()
{
    const QString text = QStringLiteral("a\u00a0b\nc\u2003d");
    ShownEditor shown(text);
    shown.editor.selectAll();
    shown.editor.copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

void TestCodeEditor::clickOnHalfALine_data()
{
    columns<bool, QString>("isInGutter", "selected");
    row("text", false, "v0");
    row("gutter", true, "v0=%1\u2029");
}

/// The view must not scroll between the two presses of a double click, nor when a click trembles.
void TestCodeEditor::clickOnHalfALine()
{
    QFETCH(bool, isInGutter);
    ShownEditor shown(groups(2));
    const int lineHeight = shown.editor.cursorRect().height();
    shown.editor.resize(500, lineHeight * 10 + lineHeight / 2);
    QTRY_COMPARE(shown.viewport()->height() % lineHeight, lineHeight / 2);
    shown.editor.verticalScrollBar()->setValue(20);
    QWidget* target = isInGutter ? shown.gutter() : shown.viewport();
    const QPoint place(12, lineHeight * 10 + lineHeight / 4);
    const int line = shown.editor.cursorForPosition({12, place.y()}).blockNumber();
    QTest::mousePress(target, Qt::LeftButton, {}, place);
    QTest::mouseMove(target, place + QPoint(1, 0));
    QTest::mouseRelease(target, Qt::LeftButton, {}, place + QPoint(1, 0));
    QCOMPARE(shown.editor.verticalScrollBar()->value(), 20);
    QCOMPARE(shown.editor.textCursor().blockNumber(), line + (isInGutter ? 1 : 0));
    QTest::mouseDClick(target, Qt::LeftButton, {}, place);
    QFETCH(QString, selected);
    QCOMPARE(shown.editor.textCursor().selectedText(), isInGutter ? selected.arg(line) : selected);
    QCOMPARE(shown.editor.verticalScrollBar()->value(), 20);
    QTest::keyClick(shown.viewport(), Qt::Key_Right);
    QVERIFY(shown.editor.verticalScrollBar()->value() > 20);
}

QTEST_MAIN(TestCodeEditor)
#include "tst_codeeditor.moc"
