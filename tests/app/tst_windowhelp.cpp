#include "windowfixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>

using Family::FamilyDocument;

/// Words, jumps and the way back by the keys of the window's actions.
class TestWindowHelp : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void completesAWord();
    void jumpsBetweenFiles();
    void tellsWhatThereIsNot();

private:
    QString place() const
    {
        const App::TextPlace at = m->place();
        return QStringLiteral("%1:%2:%3")
            .arg(QFileInfo(m->document()->fileName()).fileName())
            .arg(at.line + 1)
            .arg(at.column + 1);
    }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestWindowHelp::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>();
    m->open(*m_game, m_game->ryn(), m_game->path(QStringLiteral("characters/ryn/moves.code")));
}

void TestWindowHelp::cleanup()
{
    m.reset();
    m_game.reset();
}

void TestWindowHelp::completesAWord()
{
    m->goTo(1, 12);
    m->press(Qt::Key_Space, Qt::ControlModifier);
    QAbstractItemView* popup = m->edit()->completer()->popup();
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->currentIndex().data().toString(), QStringLiteral("1"));
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    QCOMPARE(m->document()->findBlockByNumber(1).text(), QStringLiteral("animation = 2"));
    m->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m->document()->findBlockByNumber(1).text(), QStringLiteral("animation = 1"));
}

void TestWindowHelp::jumpsBetweenFiles()
{
    m->goTo(1, 13);
    m->press(Qt::Key_F12);
    QCOMPARE(place(), QStringLiteral("basic.anim:1:11"));
    QVERIFY(m->edit()->hasFocus());
    m->press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(place(), QStringLiteral("moves.code:2:14"));

    QVERIFY(m->window->openFile(m_game->ryn()));
    m->goTo(3, 12);
    m->press(Qt::Key_F12);
    QCOMPARE(place().section(':', 0, 0), QStringLiteral("moves.code"));
    m->window->tabs()->closeDocument(m->document());
    m->press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(place(), QStringLiteral("ryn.character:4:13"));
}

/// In the field of the status bar; a name that leads nowhere moves nothing.
void TestWindowHelp::tellsWhatThereIsNot()
{
    m->goTo(0, 1);
    const QString before = place();
    for (const char* name : {"code_definition", "code_back"}) {
        m->action(name)->trigger();
        QCOMPARE(place(), before);
    }
    m->goTo(2, 12);
    m->action("code_complete")->trigger();
    QVERIFY(!m->edit()->completer()->popup()->isVisible());
}

QTEST_MAIN(TestWindowHelp)
#include "tst_windowhelp.moc"
