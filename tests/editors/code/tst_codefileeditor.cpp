#include "editors/code/codefileeditor.h"

#include "support/planneddialogs.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include "editors/code/codeeditor.h"
#include "editors/code/codeitemmodel.h"
#include "editors/code/codeworkspace.h"
#include "editors/framework/findflag.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

constexpr unsigned Expression = FindRegularExpression;

/// A host that brings an editor forward by activating it, in place of the one before.
class Host : public TestInterface
{
public:
    Host() { texts = {{8, QStringLiteral("Search")}}; }

    void activateEditor(Editor* newEditor) override
    {
        Editor* const before = editor;
        TestInterface::activateEditor(newEditor);
        if (before && before != newEditor) {
            before->deactivate();
        }
        for (int i = 0; i < activations; ++i) {
            newEditor->activate();
        }
    }

    int activations = 1;  ///< in answer to one call; none for a host that leaves it to the editor
};

class TextEditor : public CodeFileEditor
{
public:
    explicit TextEditor(CodeWorkspace* workspace, const char* tree = "code_tree")
        : CodeFileEditor(workspace, new CodeItemModel, tree)
    {
    }
    QAction* action() const override { return nullptr; }
    QString name() const override { return QStringLiteral("code"); }
    int canEditFileType() const override { return 1; }
    QStringList areas() const override { return {}; }
    void retranslate() override {}

    QStringList joined;  ///< the text at each attach(), nothing at each detach()

protected:
    void attach() override
    {
        CodeFileEditor::attach();
        joined.append(document() ? document()->text() : QStringLiteral("none"));
    }
    void detach() override
    {
        joined.append(QString());
        CodeFileEditor::detach();
    }
};

}  // namespace

class TestCodeFileEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void find_data();
    void find();
    void nothingFound();
    void findUnfolds();
    void findComesToTheMiddle();
    void replaceOne_data();
    void replaceOne();
    void replaceAllIsOneStep();
    void statusFollowsTheCursor();
    void treeFollowsTheCursor();
    void chosenNodeIsShown();
    void modifiedIsTold();
    void inactiveTouchesNothing();
    void documentDiesWhileActive();
    void documentsTakeTurns();
    void editorsTakeTurns();
    void treeIsShared();
    void anotherDocumentWhileActive();
    void joinsOnce_data();
    void joinsOnce();

private:
    void setText(const QString& text);
    void select(int from, int to);
    QPair<int, int> selection() const;

    std::unique_ptr<Host> host;
    std::unique_ptr<PlannedDialogs> dialogs;
    std::unique_ptr<CodeWorkspace> workspace;
    std::unique_ptr<TextEditor> text;
    std::unique_ptr<GrammarDocument> document;
    CodeEditor* editor = nullptr;
};

void TestCodeFileEditor::init()
{
    host = std::make_unique<Host>();
    dialogs = std::make_unique<PlannedDialogs>();
    workspace = std::make_unique<CodeWorkspace>();
    text = std::make_unique<TextEditor>(workspace.get());
    editor = workspace->editor();
    workspace->widget()->resize(500, 400);
    workspace->widget()->show();
    QVERIFY(QTest::qWaitForWindowExposed(workspace->widget()));
    setText(QStringLiteral("[1]\na=1\nb=2\n!x\n-f\n[2]\na=3"));
}

void TestCodeFileEditor::cleanup()
{
    text.reset();
    workspace.reset();
    document.reset();
    dialogs.reset();
    host.reset();
}

void TestCodeFileEditor::setText(const QString& content)
{
    text->deactivate();
    document = std::make_unique<GrammarDocument>(content);
    document->clearUndoRedoStacks();
    document->setModified(false);
    text->setDocument(document.get());
    text->activate();
}

void TestCodeFileEditor::select(int from, int to)
{
    QTextCursor cursor(document.get());
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
}

QPair<int, int> TestCodeFileEditor::selection() const
{
    return {editor->textCursor().selectionStart(), editor->textCursor().selectionEnd()};
}

void TestCodeFileEditor::find_data()
{
    columns<QString, unsigned, int, int, int, int>("pattern", "flags", "from", "to", "start",
                                                   "end");
    // "ab.Ab.ab", with a line end for each point.
    row("behind the selection", "ab", 0u, 0, 1, 3, 5);
    row("case", "ab", unsigned(FindCaseSensitive), 0, 1, 6, 8);
    row("at the cursor", "ab", 0u, 3, 3, 3, 5);
    row("around", "ab", 0u, 6, 8, 0, 2);
    row("around, as asked for", "ab", unsigned(FindWrap), 6, 8, 0, 2);
    row("backward", "ab", unsigned(FindBackward), 6, 8, 3, 5);
    row("backward around", "Ab", (FindBackward | FindCaseSensitive), 2, 4, 3, 5);
    row("backward at the start", "ab", unsigned(FindBackward), 0, 0, 0, 2);
    row("over a line end", "b.a", Expression, 2, 2, 4, 7);
    row("literally", "b.a", 0u, 2, 2, 0, 0);
    row("the end is that of the text", "b$", Expression, 0, 0, 7, 8);
    row("empty match", "x*", Expression, 2, 4, 4, 4);
    row("no expression", "(", Expression, 2, 4, 0, 0);
    row("nothing to look for", "", 0u, 2, 4, 2, 4);
}

void TestCodeFileEditor::find()
{
    const auto [pattern, flags, from, to, start, end] =
        fetched<QString, unsigned, int, int, int, int>();
    setText(QStringLiteral("ab\nAb\nab"));
    select(from, to);
    text->find(pattern, flags);
    QCOMPARE(selection(), qMakePair(start, end));
}

void TestCodeFileEditor::nothingFound()
{
    select(3, 5);
    text->find(QStringLiteral("nowhere"), 0);
    QCOMPARE(dialogs->count(), 1);
    QCOMPARE(dialogs->shown.first().kind, QStringLiteral("information"));
    QCOMPARE(dialogs->shown.first().title, QStringLiteral("Search"));
    QCOMPARE(dialogs->shown.first().text, QStringLiteral("No text found!"));
    QCOMPARE(selection(), qMakePair(0, 0));
}

void TestCodeFileEditor::findUnfolds()
{
    editor->toggleBlockVisible(document->firstBlock());
    QVERIFY(!document->findBlockByNumber(2).isVisible());
    text->find(QStringLiteral("b=2"), 0);
    QVERIFY(document->findBlockByNumber(2).isVisible());
    QCOMPARE(editor->textCursor().blockNumber(), 2);
}

void TestCodeFileEditor::findComesToTheMiddle()
{
    setText(QStringLiteral("# n\n").repeated(200) + QStringLiteral("[7]\n") +
            QStringLiteral("# n\n").repeated(200));
    const auto place = [this] {
        return editor->cursorRect().center().y() * 10 / editor->viewport()->height();
    };
    text->find(QStringLiteral("[7]"), 0);
    QVERIFY2(place() >= 3 && place() <= 6, qPrintable(QString::number(place())));
    select(document->characterCount() - 1, document->characterCount() - 1);
    text->find(QStringLiteral("[7]"), FindBackward);
    QVERIFY2(place() >= 3 && place() <= 6, qPrintable(QString::number(place())));
}

void TestCodeFileEditor::replaceOne_data()
{
    columns<QString, QString, unsigned, int, int, QString, int>("pattern", "with", "flags", "from",
                                                                "to", "result", "start");
    row("goes on to the next", "ab", "x", 0u, 0, 2, "x\nAb\nab", 2);
    row("no match yet", "ab", "x", 0u, 0, 1, "ab\nAb\nab", 3);
    row("groups", "(a)(b)", "\\2\\1", Expression, 0, 2, "ba\nAb\nab", 3);
    row("text with groups", "ab", "\\1", 0u, 0, 2, "\\1\nAb\nab", 3);
    row("what stands behind counts", "ab(?=\\nab)", "x", Expression, 3, 5, "ab\nx\nab", 0);
}

void TestCodeFileEditor::replaceOne()
{
    const auto [pattern, with, flags, from, to, result, start] =
        fetched<QString, QString, unsigned, int, int, QString, int>();
    setText(QStringLiteral("ab\nAb\nab"));
    select(from, to);
    text->replace(pattern, with, flags, false);
    QCOMPARE(document->text(), result);
    QCOMPARE(selection().first, start);
}

void TestCodeFileEditor::replaceAllIsOneStep()
{
    const QString before = document->text();
    const QTextBlockUserData* line = document->findBlockByNumber(3).userData();
    text->replace(QStringLiteral("a="), QStringLiteral("long="), 0, true);
    QCOMPARE(document->text(),
             QString(before).replace(QLatin1String("a="), QLatin1String("long=")));
    QCOMPARE(document->findBlockByNumber(3).userData(), line);
    text->undo();
    QCOMPARE(document->text(), before);
    QVERIFY(!document->isUndoAvailable());
    QCOMPARE(editor->textCursor().blockNumber(), 1);
    QCOMPARE(dialogs->count(), 0);
}

void TestCodeFileEditor::statusFollowsTheCursor()
{
    setText(QStringLiteral("[1]\n?e\na=1\n?e"));
    editor->toggleBlockVisible(document->firstBlock());
    text->navigateTo({}, 0, 2, 1);
    QCOMPARE(host->status(0), QStringLiteral("Line: 3, Column: 2, Line count: 4"));
    QCOMPARE(host->status(1), QStringLiteral("Syntax error count: 2"));
}

void TestCodeFileEditor::treeFollowsTheCursor()
{
    const auto current = [this] {
        const QModelIndexList rows = text->tree()->selectionModel()->selectedIndexes();
        return rows.size() == 1 ? rows.first().data().toString() : QString::number(rows.size());
    };
    text->navigateTo({}, 0, 2, 0);
    QCOMPARE(current(), QStringLiteral("b"));
    const QModelIndex group = text->model()->index(0, 0);
    QVERIFY(text->tree()->isExpanded(group));
    text->navigateTo({}, 0, 4, 0);
    QCOMPARE(current(), QStringLiteral("Frame"));
    QVERIFY(text->tree()->isExpanded(group));
    host->options[QStringLiteral("auto_expand_tree")] = true;
    text->navigateTo({}, 0, 5, 0);
    QCOMPARE(current(), QStringLiteral("2"));
    QVERIFY(!text->tree()->isExpanded(group));
    // The tree is there again after an edit.
    QTest::keyClick(editor, Qt::Key_End);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClicks(editor, QStringLiteral("!new"));
    text->navigateTo({}, 0, 0, 0);
    text->navigateTo({}, 0, 6, 0);
    QCOMPARE(current(), QStringLiteral("new"));
}

void TestCodeFileEditor::chosenNodeIsShown()
{
    QTreeView* tree = text->tree();
    const QModelIndex group = text->model()->index(2, 0);
    host->controlsWindow()->show();
    const QPoint place = tree->visualRect(group).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(editor->textCursor().blockNumber(), 5);
    text->selectedItem(QModelIndex());
    QCOMPARE(editor->textCursor().blockNumber(), 5);
}

void TestCodeFileEditor::modifiedIsTold()
{
    QSignalSpy modified(text.get(), &Editor::modified);
    QTest::keyClicks(editor, QStringLiteral("ab"));
    QCOMPARE(modified.count(), 1);
    text->undo();
    QCOMPARE(modified.count(), 2);
    QVERIFY(!text->isModified());
}

void TestCodeFileEditor::inactiveTouchesNothing()
{
    const QModelIndex group = text->model()->index(2, 0);
    text->deactivate();
    QVERIFY(!editor->codeDocument());
    QVERIFY(!text->tree()->model());
    text->selectedItem(group);
    text->find(QStringLiteral("a"), 0);
    text->replace(QStringLiteral("a"), QStringLiteral("b"), 0, true);
    QCOMPARE(document->availableUndoSteps(), 0);
    QCOMPARE(dialogs->count(), 0);
    QTextCursor(document.get()).insertText(QStringLiteral("# "));
    text->undo();
    QVERIFY(!document->isModified());
}

void TestCodeFileEditor::documentDiesWhileActive()
{
    document.reset();
    QVERIFY(!text->isActive());
    QVERIFY(!text->file());
    QCOMPARE(text->model()->rowCount(), 0);
    text->undo();
    text->find(QStringLiteral("a"), 0);
    setText(QStringLiteral("[1]\na=1"));
    text->find(QStringLiteral("a"), 0);
    QCOMPARE(selection(), qMakePair(4, 5));
    QCOMPARE(text->model()->rowCount(), 1);
}

/// What another editor has brought to the workspace stays when this one goes after it.
void TestCodeFileEditor::documentsTakeTurns()
{
    GrammarDocument other(QStringLiteral("[1]"));
    workspace->setDocument(&other);
    text->find(QStringLiteral("1"), 0);
    QVERIFY(!editor->textCursor().hasSelection());
    text->deactivate();
    QCOMPARE(editor->codeDocument(), &other);
    workspace->setDocument(nullptr);
    host->calls.clear();
    text->activate();
    text->activate();
    QCOMPARE(host->calls.filter(QStringLiteral("activateEditor")).size(), 1);
    QCOMPARE(editor->codeDocument(), document.get());
}

/// Two editors of one document in one workspace: the text stays as it is, and the one in front
/// works on it.
void TestCodeFileEditor::editorsTakeTurns()
{
    setText(QStringLiteral("[1]\na=1\n") + QString(200, QLatin1Char('\n')) +
            QStringLiteral("[2]\na=3\n") + QString(200, QLatin1Char('\n')));
    TextEditor other(workspace.get());
    other.setDocument(document.get());
    select(205, 208);
    QScrollBar* const bar = editor->verticalScrollBar();
    bar->setValue(190);
    for (TextEditor* next : {&other, text.get(), &other}) {
        next->activate();
        QCOMPARE(editor->codeDocument(), document.get());
        for (TextEditor* each : {&other, text.get()}) {
            QCOMPARE(each->isActive(), each == next);
            QCOMPARE(each->model()->document(), each == next ? document.get() : nullptr);
        }
        QCOMPARE(selection(), qMakePair(205, 208));
        QCOMPARE(bar->value(), 190);
    }
    // Whoever goes late takes nothing along.
    host->activations = 0;
    host->editor = nullptr;
    text->activate();
    other.deactivate();
    QCOMPARE(editor->codeDocument(), document.get());
    QCOMPARE(selection(), qMakePair(205, 208));
    text->find(QStringLiteral("a=3"), 0);
    QCOMPARE(editor->textCursor().selectedText(), QStringLiteral("a=3"));
}

/// What is open in the tree stays so, and a row leads to its line, whoever is in front.
void TestCodeFileEditor::treeIsShared()
{
    TextEditor other(workspace.get(), nullptr);
    other.setDocument(document.get());
    other.shareTree(text.get());
    QTreeView* const tree = text->tree();
    const QModelIndex group = text->model()->index(0, 0);
    tree->expand(group);
    for (TextEditor* next : {&other, text.get(), &other}) {
        next->activate();
        QVERIFY(tree->isExpanded(group));
        editor->setCurrentLine(5, CodeEditor::NearestLine);
        QCOMPARE(tree->currentIndex(), text->model()->index(2, 0));
        text->selectedItem(group);
        QCOMPARE(editor->textCursor().blockNumber(), 0);
    }
    QTextCursor(document.get()).insertText(QStringLiteral("[4]\n"));
    QCOMPARE(text->model()->rowCount(), 4);
    other.deactivate();
    QVERIFY(!tree->model() && !editor->codeDocument());
}

void TestCodeFileEditor::anotherDocumentWhileActive()
{
    GrammarDocument other(QStringLiteral("[3]\nc=9\nd=9"));
    other.setModified(false);
    text->setDocument(&other);
    QVERIFY(text->isActive());
    QCOMPARE(editor->codeDocument(), &other);
    QCOMPARE(text->model()->document(), &other);
    QCOMPARE(text->tree()->model(), text->model());
    text->find(QStringLiteral("9"), 0);
    QCOMPARE(editor->textCursor().blockNumber(), 1);
    const QSignalSpy told(text.get(), &Editor::modified);
    QTextCursor(document.get()).insertText(QStringLiteral("# "));
    QCOMPARE(told.size(), 0);
    text->replace(QStringLiteral("9"), QStringLiteral("7"), 0, true);
    QCOMPARE(told.size(), 1);
    QCOMPARE(other.text(), QStringLiteral("[3]\nc=7\nd=7"));

    text->setDocument(nullptr);
    QVERIFY(text->isActive());
    QVERIFY(!editor->codeDocument() && !text->file());
}

void TestCodeFileEditor::joinsOnce_data()
{
    QTest::addColumn<int>("activations");
    row("the host leaves it to the editor", 0);
    row("the host activates", 1);
    row("the host activates twice", 2);
}

/// What a derived editor joins is joined once, after the editor before has parted.
void TestCodeFileEditor::joinsOnce()
{
    QFETCH(int, activations);
    GrammarDocument second(QStringLiteral("# 2"));
    TextEditor other(workspace.get());
    host->activations = activations;
    host->workspace = nullptr;
    other.activate();
    QCOMPARE(host->editor, &other);
    QCOMPARE(host->workspace, workspace.get());
    QVERIFY(other.isActive() && !text->isActive());
    other.setDocument(&second);
    other.setDocument(&second);
    other.deactivate();
    other.deactivate();
    QCOMPARE(other.joined, QStringList({"none", "", "# 2", ""}));
    text->joined.clear();
    text->activate();
    QCOMPARE(text->joined, QStringList(document->text()));
}

QTEST_MAIN(TestCodeFileEditor)
#include "tst_codefileeditor.moc"
