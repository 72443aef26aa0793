#include "app/references/placemarks.h"
#include "app/references/referencecommands.h"
#include "app/references/referencepanel.h"
#include "windowfixture.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

/// References in the list and in the text, and another name for an animation, by the actions.
class TestRenaming : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void placesAreListedAndMarked();
    void aNameChangesEverywhere();
    void whatOthersWroteStays();
    void unsavedChangesAreInTheWay();
    void whatWasCutOffIsFinished();

private:
    /// Writes a name into the dialog; gives whether it can be accepted, and accepts or rejects it.
    bool rename(const QString& name);
    QByteArray moves() const { return m_game->read("characters/ryn/moves.code"); }
    QByteArray animations() const { return m_game->read("characters/ryn/basic.anim"); }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestRenaming::init()
{
    m_game = std::make_unique<TemporaryGame>();
    m = std::make_unique<WindowFixture>();
    m->open(*m_game, m_game->ryn(), m_game->path(QStringLiteral("characters/ryn/moves.code")));
    m->goTo(1, 12);
}

void TestRenaming::cleanup()
{
    m.reset();
    m_game.reset();
}

bool TestRenaming::rename(const QString& name)
{
    bool isPossible = false;
    QTimer waiting;
    connect(&waiting, &QTimer::timeout, this, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QLineEdit* field = dialog ? dialog->findChild<QLineEdit*>() : nullptr;
        if (!field) {
            return;  // it comes when the names are read
        }
        waiting.stop();
        field->setText(name);
        auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QVERIFY(!ok->isEnabled());
        QTRY_VERIFY(ok->isEnabled() || !dialog->findChild<QTimer*>()->isActive());
        isPossible = ok->isEnabled();
        isPossible ? ok->click() : dialog->reject();
    });
    waiting.start(5);
    m->action("code_rename")->trigger();
    return isPossible;
}

void TestRenaming::placesAreListedAndMarked()
{
    m->press(Qt::Key_F12, Qt::ShiftModifier);
    App::ReferenceCommands* references = m->window->references();
    QCOMPARE(references->panel()->uses().size(), 2);
    QVERIFY(references->panel()->isVisible());
    QCOMPARE(references->marks()->places().size(), 1);
    QCOMPARE(references->marks()->places().first().selectedText(), QStringLiteral("1"));
    // An edit in front of the mark takes it along; a text that is not saved counts.
    m->goTo(0, 0);
    m->type(QStringLiteral("# new"));
    m->press(Qt::Key_Return);
    QCOMPARE(references->marks()->places().first().blockNumber(), 2);
    m->goTo(2, 12);
    m->action("code_references")->trigger();
    QCOMPARE(references->panel()->uses().last().line, 3);
    // The other place is opened by Return.
    QTreeWidget* list = references->panel();
    list->setCurrentItem(list->topLevelItem(0)->child(0));
    pressIn(list, QKeySequence(Qt::Key_Return));
    QVERIFY(m->document()->fileName().endsWith(QLatin1String("basic.anim")));
    QCOMPARE(m->place().line, 0);
    QCOMPARE(references->marks()->places().first().selectedText(), QStringLiteral("1"));
    m->window->openFile(m_game->oda());
    QCOMPARE(references->marks()->places().size(), 0);
}

void TestRenaming::aNameChangesEverywhere()
{
    const QByteArray before = animations() + moves();
    QVERIFY(!rename(QStringLiteral("2")));
    QCOMPARE(animations() + moves(), before);
    QVERIFY(rename(QStringLiteral("walk")));
    QVERIFY(animations().startsWith("animation walk \"One\"\r\n"));
    QVERIFY(moves().contains("animation = walk\r\n"));
    QVERIFY(!m->document()->isModified());
    QCOMPARE(m->document()->findBlockByNumber(1).text(), QStringLiteral("animation = walk"));
    // One step in each open text; then the file is ahead of it, and the whole cannot go back.
    m->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m->document()->findBlockByNumber(1).text(), QStringLiteral("animation = 1"));
    QVERIFY(m->document()->isModified());
    m->action("code_rename_undo")->trigger();
    QCOMPARE(m->dialogs.count(QStringLiteral("warning")), 1);
    QVERIFY(moves().contains("walk"));
    m->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!m->document()->isModified());
    m->action("code_rename_undo")->trigger();
    QCOMPARE(animations() + moves(), before);
    QCOMPARE(m->document()->findBlockByNumber(1).text(), QStringLiteral("animation = 1"));
}

/// A text that is open may be older than its file, as one that a person did not want read again.
void TestRenaming::whatOthersWroteStays()
{
    m->document()->pauseWatch(true);
    m_game->write("characters/ryn/moves.code", moves() + "# by another program\r\n");
    QVERIFY(rename(QStringLiteral("walk")));
    QVERIFY(moves().contains("animation = walk\r\n"));
    QVERIFY(moves().endsWith("# by another program\r\n"));
    QVERIFY(m->document()->text().contains(QLatin1String("by another program")));
    QCOMPARE(m->dialogs.count(QStringLiteral("question")), 0);
}

void TestRenaming::unsavedChangesAreInTheWay()
{
    m->goTo(0, 0);
    m->type(QStringLiteral("# new"));
    m->press(Qt::Key_Return);
    m->goTo(2, 12);
    const QByteArray before = animations() + moves();
    QVERIFY(!rename(QStringLiteral("walk")));
    QCOMPARE(animations() + moves(), before);
}

void TestRenaming::whatWasCutOffIsFinished()
{
    m_game->write(".zorv-changes.json", R"({"zorv-changes": 1, "moves": [{"from": "a", "to": "b"},
                                            {"from": "c", "to": "d"}]})");
    m_game->write("b", "");
    m_game->write("c", "");
    m = std::make_unique<WindowFixture>();
    m->open(*m_game, m_game->ryn());
    QCOMPARE(m->dialogs.count(QStringLiteral("warning")), 1);
    QVERIFY(QFile::exists(m_game->path("d")));
    QVERIFY(!QFile::exists(m_game->path(".zorv-changes.json")));
}

QTEST_MAIN(TestRenaming)
#include "tst_renaming.moc"
