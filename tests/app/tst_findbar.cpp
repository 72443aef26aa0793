#include "app/find/findbar.h"

#include "app/find/matchcounter.h"
#include "operations/english.h"
#include "support/testgrammar.h"
#include "support/testinterface.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <zorv/editors/code/codeeditor.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>
#include <memory>

using namespace App;

/// A text with the bar below it, used by keys.
class TestFindBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void findsWhileTyping();
    void returnGoesOn();
    void endOfTheTextIsTold();
    void options_data();
    void options();
    void wrongExpressionIsTold();
    void emptyMatchesComeToAnEnd_data();
    void emptyMatchesComeToAnEnd();
    void selectionIsTakenOver();
    void nextOfSelection();
    void replaceOneByOne();
    void replaceAllTellsTheNumber();
    void countFollowsEdits();
    void countsLikeASearch();
    void historyIsKept();
    void escapeClosesTheBar();
    void documentsComeAndGo();
    void worksInTheWindow();

private:
    QString state() const { return bar->findChild<QLabel*>(QStringLiteral("find_state"))->text(); }
    QComboBox* field(const char* name = "find_text") const
    {
        return bar->findChild<QComboBox*>(QLatin1String(name));
    }
    void type(const QString& text)
    {
        field()->lineEdit()->clear();
        QTest::keyClicks(field(), text);
    }
    QString selected() const { return editor->textCursor().selectedText(); }
    int place() const { return editor->textCursor().selectionStart(); }
    void put(int position) const
    {
        QTextCursor cursor(editor->document());
        cursor.setPosition(position);
        editor->setTextCursor(cursor);
    }

    std::unique_ptr<TestInterface> host;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<GrammarDocument> document;
    Zorv::CodeEditor* editor = nullptr;
    FindBar* bar = nullptr;
};

void TestFindBar::init()
{
    Operations::speakEnglish();
    host = std::make_unique<TestInterface>();
    window = std::make_unique<QWidget>();
    document = std::make_unique<GrammarDocument>(QStringLiteral("[1]\nab=1\nAb=2\n!ab cab\n-f"));
    editor = new Zorv::CodeEditor;
    editor->setDocument(document.get());
    bar = new FindBar(editor);
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(editor);
    layout->addWidget(bar);
    window->resize(700, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    editor->setFocus();
    bar->openFind();
    QVERIFY(bar->isVisible());
    QTRY_VERIFY(field()->hasFocus());
}

void TestFindBar::cleanup()
{
    window.reset();
    document.reset();
    host.reset();
}

void TestFindBar::findsWhileTyping()
{
    put(9);
    type(QStringLiteral("ab=2"));
    QCOMPARE(selected(), QStringLiteral("Ab=2"));
    QTest::keyClick(field(), Qt::Key_Backspace);
    QTest::keyClick(field(), Qt::Key_Backspace);
    QCOMPARE(place(), 9);
    QTRY_COMPARE(state(), QStringLiteral("2 of 4"));
    QTest::keyClicks(field(), QStringLiteral("x"));
    QVERIFY(!editor->textCursor().hasSelection());
    QCOMPARE(place(), 9);
    QTRY_COMPARE(state(), QStringLiteral("No matches"));
}

void TestFindBar::returnGoesOn()
{
    type(QStringLiteral("ab"));
    QCOMPARE(place(), 4);
    QTest::keyClick(field(), Qt::Key_Return);
    QCOMPARE(place(), 9);
    QTest::keyClick(field(), Qt::Key_Return);
    QCOMPARE(place(), 15);
    QTest::keyClick(field(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(place(), 9);
    QTRY_COMPARE(state(), QStringLiteral("2 of 4"));
    QVERIFY(field()->hasFocus());
}

void TestFindBar::endOfTheTextIsTold()
{
    type(QStringLiteral("ab"));
    QTest::keyClick(field(), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(place(), 19);
    QTRY_COMPARE(state(), QStringLiteral("4 of 4, from the end"));
    QTest::keyClick(field(), Qt::Key_Return);
    QCOMPARE(place(), 4);
    QTRY_COMPARE(state(), QStringLiteral("1 of 4, from the start"));
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(state(), QStringLiteral("2 of 4"));
}

void TestFindBar::options_data()
{
    columns<QString, QString, QString>("keys", "text", "state");
    row("case", "C", "Ab", "1 of 1");
    row("word", "W", "ab", "1 of 3");
    row("word that ends in a sign", "W", "ab=", "1 of 2");
    row("expression", "R", "a.", "1 of 4");
    row("no expression", "", "a.", "No matches");
    row("lines have ends", "R", "^.*\\d$", "1 of 2");
    row("line ends are found", "R", "\\n", "1 of 4");
    row("whole expression", "WR", "ab|f", "1 of 4");
    row("all", "CWR", "[ab]+", "1 of 2");
}

void TestFindBar::options()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    for (const QChar key : keys) {
        QTest::keyClick(field(), Qt::Key(key.unicode()), Qt::AltModifier);
    }
    type(text);
    QFETCH(QString, state);
    QTRY_COMPARE(this->state(), state);
    // As they were left, in the next bar.
    const FindBar next(editor);
    QCOMPARE(next.findChild<QToolButton*>(QStringLiteral("find_word"))->isChecked(),
             keys.contains(QLatin1Char('W')));
}

void TestFindBar::wrongExpressionIsTold()
{
    QTest::keyClick(field(), Qt::Key_R, Qt::AltModifier);
    QTest::keyClick(field(), Qt::Key_W, Qt::AltModifier);
    put(6);
    const QString before = document->text();
    type(QStringLiteral("a)(b"));
    QVERIFY2(state().startsWith(QLatin1String("Character 2: ")), qPrintable(state()));
    QTest::keyClick(field(), Qt::Key_Return);
    bar->replaceAll();
    QCOMPARE(place(), 6);
    QCOMPARE(document->text(), before);
    QVERIFY(!bar->findChild<QToolButton*>(QStringLiteral("replace_all"))->isEnabled());
}

void TestFindBar::emptyMatchesComeToAnEnd_data()
{
    columns<QString, QString>("pattern", "replaced");
    row("starts of lines", "^", "> [1]\n> ab=1\n> Ab=2\n> !ab cab\n> -f");
    row("ends of lines", "$", "[1]> \nab=1> \nAb=2> \n!ab cab> \n-f> ");
    row("in front of a digit", "(?=\\d)", "[> 1]\nab=> 1\nAb=> 2\n!ab cab\n-f");
}

void TestFindBar::emptyMatchesComeToAnEnd()
{
    const auto [pattern, replaced] = fetched<QString, QString>();
    document->clearUndoRedoStacks();
    const QString before = document->text();
    QTest::keyClick(field(), Qt::Key_R, Qt::AltModifier);
    type(pattern);
    const int first = place();
    int steps = 0;
    do {
        QTest::keyClick(field(), Qt::Key_Return);
    } while (++steps < 20 && place() != first);
    QCOMPARE(steps, replaced.count(QLatin1Char('>')));
    QTest::keyClick(field(), Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(place() > first);
    field("replace_text")->setEditText(QStringLiteral("> "));
    bar->replaceAll();
    QCOMPARE(document->text(), replaced);
    document->undo();
    QCOMPARE(document->text(), before);
    put(0);
    type(pattern);
    for (int i = 0; i < steps; ++i) {
        bar->replaceOne();
    }
    QCOMPARE(document->text(), replaced);
}

void TestFindBar::selectionIsTakenOver()
{
    bar->closeBar();
    QTextCursor cursor(document->findBlockByNumber(3));
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
    bar->openFind();
    QCOMPARE(field()->currentText(), QStringLiteral("!ab cab"));
    QCOMPARE(selected(), QStringLiteral("!ab cab"));
    QTRY_COMPARE(state(), QStringLiteral("1 of 1"));
    bar->closeBar();
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
    bar->openFind();
    QCOMPARE(field()->currentText(), QStringLiteral("!ab cab"));
    // What an expression has found does not take its place.
    QTest::keyClick(field(), Qt::Key_R, Qt::AltModifier);
    type(QStringLiteral("a."));
    QTest::keyClick(field(), Qt::Key_Return);
    editor->setFocus();
    bar->openFind();
    QCOMPARE(field()->currentText(), QStringLiteral("a."));
}

void TestFindBar::nextOfSelection()
{
    bar->closeBar();
    put(5);
    bar->findSelection();
    QCOMPARE(place(), 9);
    QCOMPARE(selected(), QStringLiteral("Ab"));
    QVERIFY(bar->isVisible());
    QVERIFY(editor->hasFocus());
    bar->findSelection();
    QCOMPARE(place(), 15);
}

void TestFindBar::replaceOneByOne()
{
    bar->openReplace();
    type(QStringLiteral("ab"));
    put(0);
    field("replace_text")->setFocus();
    QTest::keyClicks(field("replace_text"), QStringLiteral("\\1ab"));
    QTest::keyClick(field("replace_text"), Qt::Key_Return);
    QCOMPARE(place(), 4);
    QTest::keyClick(field("replace_text"), Qt::Key_Return);
    QTest::keyClick(field("replace_text"), Qt::Key_Return);
    QCOMPARE(document->text(), QStringLiteral("[1]\n\\1ab=1\n\\1ab=2\n!ab cab\n-f"));
    QCOMPARE(selected(), QStringLiteral("ab"));
    QCOMPARE(place(), 19);
}

void TestFindBar::replaceAllTellsTheNumber()
{
    QTest::keyClick(field(), Qt::Key_R, Qt::AltModifier);
    type(QStringLiteral("(a)b"));
    put(12);
    field("replace_text")->setEditText(QStringLiteral("\\1\\t\\n"));
    bar->replaceAll();
    QCOMPARE(document->text(), QStringLiteral("[1]\na\t\n=1\nA\t\n=2\n!a\t\n ca\t\n\n-f"));
    QCOMPARE(editor->textCursor().block().text(), QStringLiteral("=2"));
    QTRY_COMPARE(state(), QStringLiteral("No matches, 4 replaced"));
    document->undo();
    QTRY_COMPARE(state().section(QLatin1Char(','), 0, 0), QStringLiteral("4 matches"));
}

void TestFindBar::countFollowsEdits()
{
    type(QStringLiteral("ab"));
    QTRY_COMPARE(state(), QStringLiteral("1 of 4"));
    put(0);
    QTest::keyClicks(editor, QStringLiteral("abab"));
    QTRY_COMPARE(state(), QStringLiteral("6 matches"));
}

void TestFindBar::countsLikeASearch()
{
    QRandomGenerator random(20260804);
    QString text;
    for (int i = 0; i < 20000; ++i) {
        text += QStringLiteral("aab\n").at(random.bounded(4));
    }
    const Zorv::CodeFind find(QStringLiteral("a*b?"), Zorv::FindRegularExpression);
    MatchCounter counter;
    counter.start(find, text);
    const MatchCounter::Place* half = counter.lastBefore(text.size() / 2);
    QVERIFY(half && half->start < text.size() / 2 && !counter.isDone());
    const int index = counter.indexOf(*half);
    QTRY_VERIFY(counter.isDone());
    int count = 0;
    int before = -1;
    QRegularExpressionMatchIterator matches = find.matches(text);
    for (; matches.hasNext(); ++count) {
        const QRegularExpressionMatch match = matches.next();
        before += match.capturedStart() < text.size() / 2 ? 1 : 0;
        QCOMPARE(counter.indexOf({match.capturedStart(), match.capturedLength()}), count);
    }
    QCOMPARE(counter.count(), count);
    QCOMPARE(index, before);
}

void TestFindBar::historyIsKept()
{
    for (const char* text : {"ab", "f", "ab", "nowhere"}) {
        type(QLatin1String(text));
        QTest::keyClick(field(), Qt::Key_Return);
    }
    QCOMPARE(host->options.value(QStringLiteral("find_history")).toStringList(),
             QStringList({"nowhere", "ab", "f"}));
    QTest::keyClick(field(), Qt::Key_Down);
    QTest::keyClick(field(), Qt::Key_Down);
    QCOMPARE(field()->currentText(), QStringLiteral("ab"));
    QCOMPARE(selected().toLower(), QStringLiteral("ab"));
}

void TestFindBar::escapeClosesTheBar()
{
    type(QStringLiteral("cab"));
    QTest::keyClick(field(), Qt::Key_Escape);
    QVERIFY(!bar->isVisible());
    QVERIFY(editor->hasFocus());
    QCOMPARE(selected(), QStringLiteral("cab"));
    bar->openFind();
    editor->setFocus();
    QTest::keyClick(editor, Qt::Key_Escape);
    QVERIFY(!bar->isVisible());
}

void TestFindBar::documentsComeAndGo()
{
    type(QStringLiteral("ab"));
    GrammarDocument other(QStringLiteral("[2]\nab=1"));
    editor->setDocument(&other);
    bar->follow();
    QTRY_COMPARE(state(), QStringLiteral("1 match"));
    bar->findNext();
    QCOMPARE(place(), 4);
    document.reset();
    bar->findPrevious();
    QCOMPARE(place(), 4);
    editor->setDocument(nullptr);
    bar->follow();
    QVERIFY(!bar->isVisible());
    bar->openFind();
    bar->findNext();
    bar->findSelection();
    bar->replaceAll();
    QVERIFY(!bar->isVisible());
}

/// Keys of the window reach the bar, and its own keys are no mnemonics of menus.
void TestFindBar::worksInTheWindow()
{
    cleanup();
    const TemporaryGame game;
    WindowFixture m;
    m.open(game, game.ryn(), game.animations());
    bar = m.window->code()->findBar();
    m.edit()->setFocus();
    QTest::keyClick(m.edit(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field()->hasFocus());
    QTest::keyClicks(field(), QStringLiteral("animation \\d"));
    QTRY_COMPARE(state(), QStringLiteral("No matches"));
    QTest::keyClick(field(), Qt::Key_R, Qt::AltModifier);
    QVERIFY(field()->hasFocus());
    QTRY_COMPARE(state(), QStringLiteral("1 of 3"));
    QTest::keyClick(field(), Qt::Key_F3);
    QTest::keyClick(m.edit(), Qt::Key_F3);
    QTest::keyClick(field(), Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(m.place().line, 4);
    QTest::keyClick(field(), Qt::Key_H, Qt::ControlModifier);
    field("replace_text")->setEditText(QStringLiteral("animation 7"));
    QTest::mouseClick(bar->findChild<QToolButton*>(QStringLiteral("replace_all")), Qt::LeftButton);
    QCOMPARE(m.document()->text().count(QLatin1String("animation 7")), 3);
    QCOMPARE(m.place().line, 4);
    pressIn(m.edit(), QKeySequence::Undo);
    QVERIFY(!m.document()->isModified());
    QVERIFY(m.window->openFile(game.oda()));
    QTRY_COMPARE(state(), QStringLiteral("No matches"));
    QTest::keyClick(field(), Qt::Key_Escape);
    QVERIFY(m.edit()->hasFocus());
    QCOMPARE(m.dialogs.count(), 0);
}

QTEST_MAIN(TestFindBar)
#include "tst_findbar.moc"
