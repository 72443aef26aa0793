#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

#include <functional>

using namespace Zorv;

using Change = std::function<void(GrammarDocument&)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QString Text = QStringLiteral("[1]\na=1\nb=2\n!x\n-f\n-g\n!y\n-h\n!z\n-i\n");

CodeNode* nodeOfLine(const CodeDocument& document, int line)
{
    return document.nodeInBlock(document.findBlockByNumber(line));
}

QTextCursor cursorIn(GrammarDocument& document, int line)
{
    return QTextCursor(document.findBlockByNumber(line));
}

}  // namespace

/// Undo in a view brings its cursor to what a change has edited, not to where the
/// document was edited last.
class TestUndoPosition : public QObject
{
    Q_OBJECT

private slots:
    void cursorGoesToTheEdit_data();
    void cursorGoesToTheEdit();
    void emptyChangeLeavesNothing();
};

void TestUndoPosition::cursorGoesToTheEdit_data()
{
    columns<Change, int>("change", "line");
    QTest::newRow("a value") << Change([](GrammarDocument& d) {
        static_cast<TestValue*>(nodeOfLine(d, 1))->write(QStringLiteral("5"));
    }) << 1;
    QTest::newRow("all lines of an animation")
        << Change([](GrammarDocument& d) { nodeOfLine(d, 3)->remove(true); }) << 3;
    QTest::newRow("one line") << Change([](GrammarDocument& d) { nodeOfLine(d, 4)->remove(false); })
                              << 4;
    QTest::newRow("a line end") << Change([](GrammarDocument& d) {
        QTextCursor cursor = cursorIn(d, 2);
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        d.replaceSelection(QString(), cursor);
    }) << 3;
    QTest::newRow("the first of two, in nested frames") << Change([](GrammarDocument& d) {
        d.beginChange(QString());
        d.endChange();
        d.beginChange(QString());
        nodeOfLine(d, 6)->remove(false);
        d.endChange();
        d.insertBefore(nullptr, QStringLiteral("[9]"), false);
    }) << 6;
    QTest::newRow("a cursor of its own") << Change([](GrammarDocument& d) {
        QTextCursor cursor = cursorIn(d, 2);
        d.insertOnCursor(QStringLiteral("c=3\n"), cursor);
        d.insert(QStringLiteral("!w\n"));
    }) << 2;
    QTest::newRow("a bare cursor that was told") << Change([](GrammarDocument& d) {
        QTextCursor cursor = cursorIn(d, 2);
        d.placeChange(cursor);
        cursor.insertText(QStringLiteral("c=3\nd=4\n"));
        d.placeChange(cursorIn(d, 0));
        cursor.deleteChar();
    }) << 2;
    QTest::newRow("a copy") << Change([](GrammarDocument& d) {
        static_cast<TestAnimations*>(d.documentEditor(CodeNode::Animation, 0))
            ->duplicate(0, QStringLiteral("w"));
    }) << 6;
    QTest::newRow("sorting") << Change([](GrammarDocument& d) {
        static_cast<TestAnimations*>(d.documentEditor(CodeNode::Animation, 0))->move(1, 0);
    }) << 6;
}

void TestUndoPosition::cursorGoesToTheEdit()
{
    const auto [change, line] = fetched<Change, int>();
    for (const int viewLine : {0, 9}) {
        GrammarDocument document(Text);
        document.registerDocumentEditor(new TestAnimations(&document), CodeNode::Animation, 0);
        document.reparse();
        QPlainTextEdit view;
        view.setDocument(&document);
        // The last edit was far away, at the end; the person looks elsewhere.
        document.insert(QStringLiteral("# end"));
        const QString before = document.text();
        const QStringList dump = document.dump();
        view.setTextCursor(cursorIn(document, viewLine));

        document.beginChange(QString());
        change(document);
        document.endChange();
        QVERIFY(document.text() != before);
        view.undo();
        QCOMPARE(document.text(), before);
        QCOMPARE(document.dump(), dump);
        QCOMPARE(view.textCursor().blockNumber(), line);
        view.redo();
        view.undo();
        QCOMPARE(document.text(), before);
    }
}

/// No step, no signal of an edit, and the next change has its own place.
void TestUndoPosition::emptyChangeLeavesNothing()
{
    GrammarDocument document(Text);
    QPlainTextEdit view;
    view.setDocument(&document);
    QSignalSpy edits(&document, &QTextDocument::contentsChange);
    document.beginChange(QString());
    document.placeChange(cursorIn(document, 4));
    QVERIFY(document.isCodeBeingChanged());
    document.endChange();
    document.endChange();
    QVERIFY(!document.isCodeBeingChanged());
    QVERIFY(!document.isUndoAvailable());
    QCOMPARE(edits.count(), 0);

    // Without a history there is no place to keep, and the edits stay together.
    document.setUndoRedoEnabled(false);
    document.beginChange(QString());
    nodeOfLine(document, 1)->remove(false);
    nodeOfLine(document, 2)->remove(false);
    QCOMPARE(edits.count(), 0);
    document.endChange();
    QCOMPARE(edits.count(), 1);
}

QTEST_MAIN(TestUndoPosition)
#include "tst_undoposition.moc"
