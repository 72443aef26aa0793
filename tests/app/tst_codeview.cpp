#include "windowfixture.h"

#include <zorv/core/messagelist.h>
#include <zorv/core/messages.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBlock>
#include <QToolButton>

/// Texts in the code workspace of the real window: tabs, places, tree, marks, fields.
class TestCodeView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void keepsThePlaceOfEachText();
    void tabsFollowWhatIsDoneToThem();
    void closesWhatTheMiddleButtonIsPressedOn();
    void asksBeforeAModifiedTabCloses();
    void tellsPlaceAndProblems();
    void marksLeadToMessages();
    void messagesFollowTheCursor();
    void hiddenTreeComesBackInLine();
    void keysLeadThroughTheBars();
    void editorComesForwardOnDemand();

private:
    App::MainWindow* window() const { return m->window.get(); }
    QTabBar* bar() const { return window()->tabs()->bar(); }
    QPoint tab(int index) const { return bar()->tabRect(index).center(); }
    void pressMark(int line) const;
    QStringList titles() const;

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestCodeView::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>();
}

QStringList TestCodeView::titles() const
{
    QStringList all;
    for (int i = 0; i < bar()->count(); ++i) {
        all.append(bar()->tabText(i));
    }
    return all;
}

/// In the left column of the gutter.
void TestCodeView::pressMark(int line) const
{
    for (QWidget* child : m->edit()->findChildren<QWidget*>()) {
        if (qstrcmp(child->metaObject()->className(), "Zorv::CodeEditorExtraArea") == 0) {
            const QTextCursor cursor(m->document()->findBlockByNumber(line));
            QTest::mouseClick(child, Qt::LeftButton, {},
                              {3, m->edit()->cursorRect(cursor).center().y()});
        }
    }
}

void TestCodeView::keepsThePlaceOfEachText()
{
    QByteArray text = m_game->read("characters/ryn/basic.anim");
    for (int i = 0; i < 300; ++i) {
        text += "# line " + QByteArray::number(i) + "\r\n";
    }
    m_game->write("characters/ryn/basic.anim", text);
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->goTo(200, 2);
    m->press(Qt::Key_Down, Qt::ShiftModifier);
    m->press(Qt::Key_Right, Qt::ShiftModifier);
    QScrollBar* down = m->edit()->verticalScrollBar();
    down->setValue(down->value() - 3);
    const int scroll = down->value();
    const QString selected = m->edit()->textCursor().selectedText();
    QVERIFY(selected.size() > 5);

    m->press(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(m->document()->fileName(), m_game->ryn());
    QCOMPARE(m->place().line, 0);
    m->goTo(4, 1);
    m->press(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(m->document()->fileName(), m_game->animations());
    QCOMPARE(m->edit()->textCursor().selectedText(), selected);
    QVERIFY(m->edit()->textCursor().position() > m->edit()->textCursor().anchor());
    QCOMPARE(down->value(), scroll);
    QVERIFY(m->edit()->hasFocus());
    // Undo is that of the text in front.
    m->type(QStringLiteral("x"));
    m->press(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(!m->edit()->document()->isUndoAvailable());
    QCOMPARE(m->place().line, 4);
    // A text that was closed and comes again is where it was.
    m->action("close_text")->trigger();
    QVERIFY(window()->openFile(m_game->ryn()));
    QCOMPARE(m->place().line, 4);
    QCOMPARE(m->place().column, 1);
}

void TestCodeView::tabsFollowWhatIsDoneToThem()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QVERIFY(window()->openFile(m_game->path("characters/ryn/moves.code")));
    bar()->moveTab(2, 0);
    QCOMPARE(titles(), QStringList({"moves.code", "ryn.character", "basic.anim"}));
    QCOMPARE(m->document()->fileName(), m_game->path("characters/ryn/moves.code"));
    QTest::mouseClick(bar(), Qt::LeftButton, {}, tab(2));
    QCOMPARE(m->document()->fileName(), m_game->animations());
    QCOMPARE(m->edit()->codeDocument(), m->document());
    m->type(QStringLiteral("#"));
    QCOMPARE(bar()->tabText(2), QStringLiteral("basic.anim*"));
    // One that goes in front of it changes nothing.
    window()->tabs()->closeDocument(window()->tabs()->documentAt(0));
    QCOMPARE(titles(), QStringList({"ryn.character", "basic.anim*"}));
    QCOMPARE(m->document()->fileName(), m_game->animations());
    m->action("undo")->trigger();
    QCOMPARE(titles(), QStringList({"ryn.character", "basic.anim"}));
}

void TestCodeView::closesWhatTheMiddleButtonIsPressedOn()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QTest::mousePress(bar(), Qt::MiddleButton, {}, tab(0));
    QTest::mouseRelease(bar(), Qt::MiddleButton, {}, tab(1));
    QCOMPARE(bar()->count(), 2);
    QTest::mouseClick(bar(), Qt::MiddleButton, {}, tab(0));
    QCOMPARE(titles(), QStringList("basic.anim"));
    QTest::mouseClick(bar(), Qt::MiddleButton, {}, tab(0));
    QCOMPARE(bar()->count(), 0);
    QVERIFY(!m->edit() && !m->document());
    QVERIFY(!window()->textEditor()->isActive());
}

void TestCodeView::asksBeforeAModifiedTabCloses()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->type(QStringLiteral("# mine"));
    window()->tabs()->setCurrentIndex(0);
    m->dialogs.choiceAnswers = {-1};
    QTest::mouseClick(bar(), Qt::MiddleButton, {}, tab(1));
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    QCOMPARE(bar()->count(), 2);
    QCOMPARE(m->document()->fileName(), m_game->ryn());
}

void TestCodeView::tellsPlaceAndProblems()
{
    m->open(*m_game, m_game->oda(), m_game->ryn());
    const auto* problems = window()->findChild<QToolButton*>(QStringLiteral("problems_field"));
    QVERIFY(!problems->toolTip().contains(QLatin1String("count: 2")));
    QVERIFY(window()->openFile(m_game->oda()));
    m->goTo(3, 4);
    QCOMPARE(window()->status()->placeText(), QStringLiteral("Line: 4, Column: 5, Line count: 9"));
    QCOMPARE(m->problemsShown(), QStringLiteral("2 errors, 0 warnings"));
    QVERIFY(problems->toolTip().contains(QLatin1String("Syntax error count: 2")));
    m->host.showStatus(7, QStringLiteral("passing"));
    QCOMPARE(window()->status()->placeText(), QStringLiteral("Line: 4, Column: 5, Line count: 9"));
    m->action("close_text")->trigger();
    m->action("close_text")->trigger();
    QCOMPARE(window()->status()->placeText(), QString());
}

void TestCodeView::marksLeadToMessages()
{
    m->open(*m_game, m_game->oda());
    auto* dock = window()->findChild<QDockWidget*>(QStringLiteral("messages"));
    dock->close();
    pressMark(2);
    QVERIFY(!dock->isVisible());
    pressMark(4);
    QTRY_VERIFY(dock->isVisible());
    QCOMPARE(window()->messagePanel()->currentIndex().row(), 1);
    QCOMPARE(window()->focusWidget(), window()->messagePanel());
    pressMark(3);
    QCOMPARE(window()->messagePanel()->currentIndex().row(), 0);
    // And after a change of settings too.
    window()->reconfig();
    pressMark(4);
    QCOMPARE(window()->messagePanel()->currentIndex().row(), 1);
}

void TestCodeView::messagesFollowTheCursor()
{
    m_game->write("characters/oda/oda.character", "[constants]\r\n"
                                                  "life = full\r\n"
                                                  "[.walk]\r\n"
                                                  "forward = 2 2 x\r\n"
                                                  "unknown\r\n"
                                                  "back = -2\r\n");
    m->open(*m_game, m_game->ryn());
    QVERIFY(window()->openFile(m_game->oda()));
    App::MessagePanel* panel = window()->messagePanel();
    const auto line = [panel] {
        const Family::Problem* problem = panel->problems()->problemAt(panel->currentIndex().row());
        return problem ? problem->line - 1 : -1;
    };
    m->goTo(1);
    QCOMPARE(line(), 1);
    m->press(Qt::Key_Down);
    // A line without one leaves it as it is.
    QCOMPARE(line(), 1);
    m->press(Qt::Key_Down);
    m->press(Qt::Key_Down);
    QCOMPARE(line(), 4);
    QVERIFY(m->edit()->hasFocus());
    // Whichever message of a line is chosen, the list stays there.
    for (int row = 0; row < panel->model()->rowCount(); ++row) {
        doubleClickRow(panel, panel->model()->index(row, 0));
        QCOMPARE(panel->currentIndex().row(), row);
        QCOMPARE(m->place().line, line());
    }
}

void TestCodeView::hiddenTreeComesBackInLine()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    App::NodeModel* nodes = window()->textEditor()->nodes();
    auto* dock = window()->findChild<QDockWidget*>(QStringLiteral("nodes"));
    QVERIFY(dock->isVisible() && dock->isAncestorOf(m->tree()));
    dock->close();
    m->goTo(0);
    m->press(Qt::Key_Return);
    m->goTo(9);
    QTest::qWait(300);
    QVERIFY(nodes->isStale());
    m->action("show_nodes")->trigger();
    QTRY_VERIFY(dock->isVisible());
    QTRY_COMPARE(nodes->lineNo(m->tree()->currentIndex()), 9);
    // Who closes the branch of the cursor's line has it closed.
    m->tree()->collapse(m->tree()->currentIndex().parent());
    m->press(Qt::Key_End);
    m->type(QStringLiteral(" "));
    QTRY_VERIFY(!nodes->isStale());
    QTest::qWait(100);
    QVERIFY(!m->tree()->isExpanded(m->tree()->currentIndex().parent()));
    // A line in front of all nodes has none.
    const QItemSelectionModel* selection = m->tree()->selectionModel();
    m->goTo(0);
    QTRY_VERIFY(!selection->hasSelection());
    m->goTo(9);
    QTRY_VERIFY(selection->hasSelection());
    QCOMPARE(nodes->lineNo(m->tree()->currentIndex()), 9);
}

/// F6 leads on from inside of a bar too.
void TestCodeView::keysLeadThroughTheBars()
{
    m->open(*m_game, m_game->ryn());
    m->press(Qt::Key_F, Qt::ControlModifier);
    QWidget* field = QApplication::focusWidget();
    QVERIFY(field && field != m->edit());
    QTest::keyClick(field, Qt::Key_F6);
    QCOMPARE(QApplication::focusWidget(), m->tree());
    QTest::keyClick(m->tree(), Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), field);
    QTest::keyClick(field, Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), m->edit());
}

/// The library's commands on files bring the text to the front first.
void TestCodeView::editorComesForwardOnDemand()
{
    auto* editor = window()->textEditor();
    m->host.activateEditor(editor);
    QVERIFY(!editor->isActive());
    m->open(*m_game, m_game->ryn());
    QVERIFY(editor->isActive());
    window()->gameTree()->setFocus();
    editor->action()->trigger();
    QCOMPARE(window()->focusWidget(), m->edit());
    editor->deactivate();
    QVERIFY(!m->edit());
    m->host.activateEditor(editor);
    QVERIFY(editor->isActive());
    QCOMPARE(m->edit()->codeDocument(), m->document());
}

QTEST_MAIN(TestCodeView)
#include "tst_codeview.moc"
