#include "windowfixture.h"

#include "app/assets/spritepanel.h"
#include "app/main/application.h"
#include "app/session/recentfolders.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/core/interface.h>
#include <zorv/core/messagelist.h>
#include <zorv/core/progressreporter.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QImage>
#include <QMenu>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>

using App::GameTree;
using App::MainWindow;
using Family::FamilyDocument;

namespace {

enum Choice { Save = 0, Discard = 1, GiveUp = -1 };

}  // namespace

/// Opening, saving and closing in the real window.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void refusesWhatIsNoGame_data();
    void refusesWhatIsNoGame();
    void opensAProjectByDoubleClick();
    void opensTheGameAround_data();
    void opensTheGameAround();
    void opensTheProjectOfAFile();
    void tellsOfAFileThatIsMissing();
    void showsAFileThatIsNamedNow();
    void savesByKey();
    void keepsTheTextWhenASaveFails();
    void savesAll();
    void savesOneOfTwoTextsOfAFile_data();
    void savesOneOfTwoTextsOfAFile();
    void asksBeforeTheWindowCloses_data();
    void asksBeforeTheWindowCloses();
    void asksBeforeATextCloses_data();
    void asksBeforeATextCloses();
    void closesProjectsWhileTheyAreShown();
    void closesTheGameWhileItIsShown();
    void keepsTheTreeOpen();
    void remembersFolders();
    void keepsItsState();
    void startsWithoutTheLastGame();
    void offersOnlyWhatIsOfUse();
    void isReachedByKeys();
    void servesTheLibrary();
    void drawsAPicture();

private:
    QString settingsFile() const { return m_settingsFolder->filePath(QStringLiteral("zorv.ini")); }
    MainWindow* window() const { return m->window.get(); }
    void restart();

    std::unique_ptr<QTemporaryDir> m_settingsFolder;
    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m;
};

void TestMainWindow::init()
{
    m_settingsFolder = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
    restart();
}

void TestMainWindow::cleanup()
{
    m.reset();
}

void TestMainWindow::restart()
{
    m.reset();
    m = std::make_unique<WindowFixture>(settingsFile());
}

void TestMainWindow::refusesWhatIsNoGame_data()
{
    columns<QString, QString>("path", "expected");
    row("missing", "nowhere", "There is no folder");
    row("empty", "empty", "There is no project in");
    row("without a project", "plain", "There is no project in");
    row("a file that is no project", "plain/notes.txt", "There is no project in");
}

void TestMainWindow::refusesWhatIsNoGame()
{
    const auto [path, expected] = fetched<QString, QString>();
    m->open(*m_game, m_game->ryn());
    m->type(QStringLiteral("# kept"));
    m->dialogs.choiceAnswers = {Discard};
    const QTemporaryDir other;
    QVERIFY(QDir(other.path()).mkpath(QStringLiteral("empty")));
    QVERIFY(QDir(other.path()).mkpath(QStringLiteral("plain/sub")));
    QVERIFY(writeFile(other.filePath(QStringLiteral("plain/notes.txt"))));

    QVERIFY(!window()->openPath(other.filePath(path)));
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
    const QString text = m->dialogs.texts(QStringLiteral("error")).first();
    QVERIFY2(text.contains(expected), qPrintable(text));
    // What was open is still there, with its unsaved text.
    QCOMPARE(window()->session()->folder(), m_game->root() + QLatin1Char('/'));
    QVERIFY(m->document()->text().startsWith(QLatin1String("# kept")));
}

void TestMainWindow::opensAProjectByDoubleClick()
{
    QVERIFY(window()->openPath(m_game->root()));
    GameTree* tree = window()->gameTree();
    const QAbstractItemModelTester tester(tree->model());
    doubleClickRow(tree, tree->indexOf(m_game->path("characters/ryn/")));
    QTRY_VERIFY(m->document());
    QCOMPARE(m->document()->fileName(), m_game->ryn());
    QCOMPARE(window()->currentProject()->title(), QStringLiteral("Ryn"));
    // The files of the project are there now; one of them opens likewise.
    QTRY_VERIFY(tree->indexOf(m_game->animations()).isValid());
    QTRY_VERIFY(tree->isExpanded(tree->indexOf(m_game->path("characters/ryn/"))));
    doubleClickRow(tree, tree->indexOf(m_game->animations()));
    QCOMPARE(m->document()->fileName(), m_game->animations());
    QCOMPARE(window()->tabs()->count(), 2);
    QCOMPARE(window()->tabs()->bar()->tabToolTip(1),
             QDir::toNativeSeparators(m_game->animations()));
    // The return key does the same, and brings back what is open already.
    tree->setCurrentIndex(tree->indexOf(m_game->ryn()));
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(m->document()->fileName(), m_game->ryn());
    QCOMPARE(window()->tabs()->count(), 2);
    QTRY_VERIFY(window()->windowTitle().contains(QLatin1String("ryn.character")));
    QCOMPARE(m->dialogs.count(), 0);
}

void TestMainWindow::opensTheGameAround_data()
{
    columns<QString, bool>("path", "isProject");
    row("main file", "oda.character", true);
    row("folder of a project", ".", true);
    row("folder of projects", "..", false);
    row("game", "../..", false);
}

void TestMainWindow::opensTheGameAround()
{
    const auto [path, isProject] = fetched<QString, bool>();
    const QDir folder = QFileInfo(m_game->oda()).dir();
    QVERIFY(window()->openPath(QDir::cleanPath(folder.filePath(path))));
    QCOMPARE(window()->session()->folder(), m_game->root() + QLatin1Char('/'));
    QCOMPARE(window()->session()->projects().size(), isProject ? 1 : 0);
    QVERIFY(!isProject || m->document()->fileName() == m_game->oda());
}

/// A file opens the closed project that names it, the one around it first.
void TestMainWindow::opensTheProjectOfAFile()
{
    m_game->write(QStringLiteral("shared/all.code"), "[palette one]\r\n");
    m_game->write(QStringLiteral("characters/aki/aki.character"),
                  "[files]\r\ncode = \"../../shared/all.code\"\r\n"
                  "code = \"../ryn/moves.code\"\r\n");
    const QString shared = m_game->path(QStringLiteral("shared/all.code"));
    const QString moves = m_game->path(QStringLiteral("characters/ryn/moves.code"));
    QVERIFY(window()->openPath(moves));
    QCOMPARE(m->document()->fileName(), moves);
    QCOMPARE(window()->currentProject()->fileName(), m_game->ryn());
    QVERIFY(window()->openPath(shared));
    QCOMPARE(m->document()->fileName(), shared);
    QCOMPARE(window()->session()->projects().size(), 1);
    QCOMPARE(m->dialogs.count(), 0);
}

void TestMainWindow::tellsOfAFileThatIsMissing()
{
    m->open(*m_game, m_game->ryn());
    QVERIFY(!window()->openFile(m_game->path("characters/ryn/none.code")));
    QCOMPARE(m->dialogs.texts(QStringLiteral("warning")).size(), 1);
    QVERIFY(m->dialogs.shown.last().text.contains(QLatin1String("characters/ryn/none.code")));
    QVERIFY(QFile::remove(m_game->oda()));
    QVERIFY(!window()->openFile(m_game->oda()));
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
    QCOMPARE(m->document()->fileName(), m_game->ryn());
}

void TestMainWindow::showsAFileThatIsNamedNow()
{
    m->open(*m_game, m_game->ryn());
    m_game->write("characters/ryn/more.code", "[move kick]\r\nanimation = 2\r\n");
    m->goTo(3, 0);
    m->type(QStringLiteral("code = \"more.code\""));
    m->press(Qt::Key_Return);
    GameTree* tree = window()->gameTree();
    QTRY_VERIFY(tree->indexOf(m_game->path("characters/ryn/more.code")).isValid());
    doubleClickRow(tree, tree->indexOf(m_game->path("characters/ryn/more.code")));
    QCOMPARE(m->document()->fileName(), m_game->path("characters/ryn/more.code"));
}

void TestMainWindow::savesByKey()
{
    m->open(*m_game, m_game->ryn());
    m->goTo(6, 0);
    m->press(Qt::Key_End);
    m->type(QStringLiteral("0"));
    QCOMPARE(window()->tabs()->bar()->tabText(0), QStringLiteral("ryn.character*"));
    QCOMPARE(window()->status()->stateText(), QStringLiteral("Modified"));
    QTRY_VERIFY(window()->isWindowModified());
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(m_game->read("characters/ryn/ryn.character").contains("\r\nlife = 10000\r\n"));
    QCOMPARE(window()->tabs()->bar()->tabText(0), QStringLiteral("ryn.character"));
    QCOMPARE(window()->status()->stateText(), QStringLiteral("Saved"));
    QTRY_VERIFY(!window()->isWindowModified());
    // Undo goes back behind the save.
    m->press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(m->document()->isModified());
    QCOMPARE(m->dialogs.count(), 0);
}

void TestMainWindow::keepsTheTextWhenASaveFails()
{
    m->open(*m_game, m_game->ryn());
    m->type(QStringLiteral("# mine"));
    // A folder in the place of the file cannot be replaced, not even by root.
    QVERIFY(QFile::remove(m_game->ryn()));
    QVERIFY(QDir().mkpath(m_game->ryn() + QStringLiteral("/inner")));
    m->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 1);
    QVERIFY(m->document()->isModified());
    QVERIFY(m->document()->text().startsWith(QLatin1String("# mine")));
}

void TestMainWindow::savesAll()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->type(QStringLiteral("# b"));
    window()->openFile(m_game->ryn());
    m->type(QStringLiteral("# a"));
    QTRY_VERIFY(m->action("save_all")->isEnabled());
    m->press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(m_game->read("characters/ryn/ryn.character").startsWith("# a"));
    QVERIFY(m_game->read("characters/ryn/basic.anim").startsWith("# b"));
    QTRY_VERIFY(!m->action("save_all")->isEnabled());
}

void TestMainWindow::savesOneOfTwoTextsOfAFile_data()
{
    columns<int, QByteArray>("answer", "file");
    row("the first", 0, QByteArray("# of ryn\r\n"));
    row("the second", 1, QByteArray("# of oda\r\n"));
    row("none", -1, QByteArray("\r\n"));
}

/// A file that two projects share has a text in each of them.
void TestMainWindow::savesOneOfTwoTextsOfAFile()
{
    const auto [answer, file] = fetched<int, QByteArray>();
    m_game->write("shared.code", "\r\n");
    for (const char* name : {"ryn", "oda"}) {
        const QString main = QStringLiteral("characters/%1/%1.character").arg(name);
        m_game->write(main, "[info]\r\nname = \"" + QByteArray(name) +
                                "\"\r\n[files]\r\ncode = \"../../shared.code\"\r\n");
        QVERIFY(window()->session()->game() || window()->openPath(m_game->root()));
        QVERIFY(window()->openFile(m_game->path(main)));
        QVERIFY(window()->openFile(m_game->path("shared.code")));
        QCOMPARE(m->document()->project()->fileName(), m_game->path(main));
        m->type(QStringLiteral("# of ") + QLatin1String(name));
    }
    m->dialogs.choiceAnswers = {answer};
    m->action("save_all")->trigger();
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    QCOMPARE(m_game->read("shared.code"), file);
    QCOMPARE(window()->session()->modifiedDocuments().size(), answer < 0 ? 2 : 0);
    QTest::qWait(400);
    QCOMPARE(m->dialogs.count(), 1);
    if (answer >= 0) {
        for (const Family::FamilyProject* project : window()->session()->projects()) {
            const auto* shared =
                window()->session()->document(m_game->path("shared.code"), project);
            QCOMPARE(shared->toData(), file);
        }
    }
}

void TestMainWindow::asksBeforeTheWindowCloses_data()
{
    columns<int, bool, bool>("answer", "closes", "isSaved");
    row("cancel", int(GiveUp), false, false);
    row("save", int(Save), true, true);
    row("discard", int(Discard), true, false);
}

void TestMainWindow::asksBeforeTheWindowCloses()
{
    const auto [answer, closes, isSaved] = fetched<int, bool, bool>();
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->type(QStringLiteral("# mine"));
    m->dialogs.choiceAnswers = {answer};
    QCOMPARE(window()->close(), closes);
    QCOMPARE(m->dialogs.count(QStringLiteral("choose")), 1);
    QVERIFY(m->dialogs.shown.last().text.contains(QLatin1String("basic.anim")));
    QCOMPARE(window()->isVisible(), !closes);
    QCOMPARE(m_game->read("characters/ryn/basic.anim").startsWith("# mine"), isSaved);
}

void TestMainWindow::asksBeforeATextCloses_data()
{
    columns<int, int, QString>("answer", "tabs", "start");
    row("cancel", int(GiveUp), 2, "# mine");
    row("save", int(Save), 1, "# mine");
    row("discard", int(Discard), 1, "animation 1");
}

void TestMainWindow::asksBeforeATextCloses()
{
    const auto [answer, tabs, start] = fetched<int, int, QString>();
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->type(QStringLiteral("# mine"));
    m->dialogs.choiceAnswers = {answer};
    m->press(Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(m->dialogs.count(), 1);
    QCOMPARE(window()->tabs()->count(), tabs);
    // The text is what the person chose when it is shown again.
    QVERIFY(window()->openFile(m_game->animations()));
    QVERIFY(m->document()->text().startsWith(start));
    QCOMPARE(m->document()->isModified(), answer == GiveUp);
    QCOMPARE(m->dialogs.count(), 1);
}

void TestMainWindow::closesProjectsWhileTheyAreShown()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QVERIFY(window()->openFile(m_game->oda()));
    QVERIFY(window()->openFile(m_game->animations()));
    // The one of the tree's row, while that has the keyboard.
    window()->gameTree()->reveal(m_game->oda());
    window()->gameTree()->setFocus();
    m->action("close_project")->trigger();
    QCOMPARE(window()->tabs()->count(), 2);
    QCOMPARE(m->document()->fileName(), m_game->animations());
    QTRY_VERIFY(!m->action("close_project")->isEnabled());
    m->edit()->setFocus();
    m->type(QStringLiteral("x"));
    QTRY_VERIFY(window()->isWindowModified());
    m->dialogs.choiceAnswers = {GiveUp, Discard};
    m->action("close_project")->trigger();
    QCOMPARE(window()->tabs()->count(), 2);
    m->action("close_project")->trigger();
    QCOMPARE(window()->tabs()->count(), 0);
    QCOMPARE(window()->session()->projects().size(), 0);
    QVERIFY(!window()->animations()->organizer()->object());
    QTRY_VERIFY(!m->action("close_project")->isEnabled());
    // The game is still there to open the project again.
    QVERIFY(window()->openFile(m_game->ryn()));
    QVERIFY(m->document()->text().startsWith(QLatin1String("[info]")));
}

void TestMainWindow::closesTheGameWhileItIsShown()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    m->action("close_folder")->trigger();
    QVERIFY(!window()->session()->game());
    QVERIFY(!window()->gameTree()->model());
    QCOMPARE(window()->tabs()->count(), 0);
    QTRY_COMPARE(window()->windowTitle(), QStringLiteral("Zorv"));
    QTest::qWait(300);
}

void TestMainWindow::keepsTheTreeOpen()
{
    QVERIFY(window()->openPath(m_game->root()));
    GameTree* tree = window()->gameTree();
    const auto isOpen = [&](const char* folder) {
        return tree->isExpanded(tree->indexOf(m_game->path(folder)));
    };
    tree->collapse(tree->indexOf(m_game->path("characters/oda/")));
    QVERIFY(window()->openFile(m_game->ryn()));
    tree->setCurrentIndex(tree->indexOf(m_game->animations()));
    QVERIFY(isOpen("characters/ryn/"));
    // Another folder announces all rows beside it anew, and a file those of its project.
    m_game->write("characters/new/new.character", "[info]\r\nname = \"New\"\r\n");
    QTRY_VERIFY(tree->indexOf(m_game->path("characters/new/")).isValid());
    m->goTo(3, 0);
    m->type(QStringLiteral("code = \"more.code\""));
    m->press(Qt::Key_Return);
    QTRY_VERIFY(tree->indexOf(m_game->path("characters/ryn/more.code")).isValid());
    QTRY_VERIFY(isOpen("characters/ryn/"));
    QVERIFY(isOpen("characters/"));
    QVERIFY(!isOpen("characters/oda/"));
    QTRY_COMPARE(tree->pathOf(tree->currentIndex()), m_game->animations());
}

void TestMainWindow::remembersFolders()
{
    const TemporaryGame second;
    {
        const TemporaryGame third;
        QVERIFY(window()->openPath(third.root()));
        QVERIFY(window()->openPath(second.root()));
        QVERIFY(window()->openPath(m_game->root()));
        QVERIFY(window()->openPath(m_game->root() + QLatin1Char('/')));
        QCOMPARE(App::RecentFolders::list(),
                 (QStringList{m_game->root(), second.root(), third.root()}));
    }
    auto* menu = window()->findChild<QMenu*>(QStringLiteral("recent"));
    QVERIFY(menu);
    emit menu->aboutToShow();
    QCOMPARE(menu->actions().first()->text(), QDir::toNativeSeparators(m_game->root()));
    // The third is no more; a separator and the last entry follow.
    QCOMPARE(menu->actions().size(), 4);
    menu->actions().at(1)->trigger();
    QCOMPARE(window()->session()->folder(), second.root() + QLatin1Char('/'));
    emit menu->aboutToShow();
    menu->actions().last()->trigger();
    QVERIFY(App::RecentFolders::list().isEmpty());
}

void TestMainWindow::keepsItsState()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QVERIFY(window()->openFile(m_game->oda()));
    QVERIFY(window()->openFile(m_game->animations()));
    m->goTo(5, 3);
    window()->resize(900, 640);
    auto* nodes = window()->findChild<QDockWidget*>(QStringLiteral("nodes"));
    QVERIFY(nodes);
    nodes->close();
    QVERIFY(window()->close());
    restart();
    QCOMPARE(window()->size(), QSize(900, 640));
    QVERIFY(!m->tree()->isVisible());
    window()->restoreWork({});
    QCOMPARE(window()->session()->folder(), m_game->root() + QLatin1Char('/'));
    QCOMPARE(window()->tabs()->count(), 3);
    QCOMPARE(m->document()->fileName(), m_game->animations());
    QCOMPARE(m->place().line, 5);
    QCOMPARE(m->place().column, 3);
    QCOMPARE(window()->session()->projects().size(), 2);
    QCOMPARE(m->dialogs.count(), 0);
}

void TestMainWindow::startsWithoutTheLastGame()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    QVERIFY(window()->close());
    QVERIFY(QFile::remove(m_game->animations()));
    restart();
    window()->restoreWork({});
    // What is left of it opens; the project tells what it lacks in its messages.
    QCOMPARE(window()->tabs()->count(), 1);
    QVERIFY(window()->close());
    const TemporaryGame other;
    m_game.reset();
    restart();
    window()->restoreWork({});
    QVERIFY(!window()->session()->game());
    QCOMPARE(m->dialogs.count(QStringLiteral("error")), 0);
    window()->restoreWork(other.root());
    QCOMPARE(window()->session()->folder(), other.root() + QLatin1Char('/'));
    QCOMPARE(window()->tabs()->count(), 0);
}

void TestMainWindow::offersOnlyWhatIsOfUse()
{
    const auto isOn = [this](const char* name) { return m->action(name)->isEnabled(); };
    QTRY_VERIFY(isOn("open_folder") && !isOn("save") && !isOn("undo") && !isOn("code_fold_all"));
    m->open(*m_game, m_game->ryn());
    QTRY_VERIFY(isOn("save") && isOn("paste") && isOn("code_fold_all"));
    QVERIFY(!isOn("undo") && !isOn("copy") && !isOn("org_auto") && !isOn("save_all"));
    m->type(QStringLiteral("x"));
    QTRY_VERIFY(isOn("undo") && isOn("save_all"));
    m->press(Qt::Key_A, Qt::ControlModifier);
    QTRY_VERIFY(isOn("copy") && isOn("cut"));
    QVERIFY(window()->openFile(m_game->animations()));
    QTRY_VERIFY(isOn("org_auto") && !isOn("undo"));
}

void TestMainWindow::isReachedByKeys()
{
    m->open(*m_game, m_game->ryn(), m_game->animations());
    auto* toolBox = window()->code()->workspace()->toolBar()->findChild<QComboBox*>();
    const QList<QWidget*> panels{m->edit(),
                                 m->tree(),
                                 window()->animations()->list(),
                                 window()->messagePanel(),
                                 window()->gameTree(),
                                 window()->spritePanel()->list(),
                                 toolBox};
    for (QWidget* panel : panels) {
        QVERIFY(!panel->accessibleName().isEmpty());
        QCOMPARE(QApplication::focusWidget(), panel);
        QTest::keyClick(panel, Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), m->edit());
        panel->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    }
    QCOMPARE(QApplication::focusWidget(), m->edit());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), toolBox);
    QTimer::singleShot(0, this, [] {
        QTRY_VERIFY(QApplication::focusWidget()->window()->isModal());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("6"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(m->place().line, 5);
    QCOMPARE(window()->focusWidget(), m->edit());
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(m->edit(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(m->document()->fileName(), m_game->ryn());
}

void TestMainWindow::servesTheLibrary()
{
    auto* host = Zorv::Interface::instance();
    m->open(*m_game, m_game->ryn());
    QVERIFY(window()->openFile(m_game->oda()));
    QCOMPARE(host->projectCount(), 2u);
    QCOMPARE(host->currentProject(), window()->currentProject());

    QAction* action =
        host->createAction(nullptr, QStringLiteral("text_end"), nullptr, 0, "Ctrl+T", m->edit(),
                           SLOT(selectAll()), SIGNAL(copyAvailable(bool)), nullptr);
    QVERIFY(!action->isEnabled());
    m->press(Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(m->edit(), Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(m->edit()->textCursor().selectionEnd(), m->edit()->document()->characterCount() - 1);
    m->press(Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(!action->isEnabled());

    Zorv::ProgressReporter* progress = host->progress(QStringLiteral("Work"), 0);
    progress->update(0, 5);
    progress->update(3, 0);
    auto* dialog = window()->findChild<QProgressDialog*>();
    QVERIFY(dialog);
    QCOMPARE(dialog->maximum(), 5);
    QCOMPARE(dialog->value(), 3);
    progress->finish();
    QVERIFY(!window()->findChild<QProgressDialog*>());
}

void TestMainWindow::drawsAPicture()
{
    const QString picture = m_settingsFolder->filePath(QStringLiteral("window.png"));
    m.reset();
    QCOMPARE(App::runWindow(*qApp, {"--screenshot", picture, m_game->root()}), 0);
    const QImage image(picture);
    QCOMPARE(image.size(), QSize(1280, 800));
    QVector<QImage> scenes;
    for (const char* scene : {"code", "folding", "completion", "find"}) {
        QCOMPARE(App::runWindow(*qApp, {"--screenshot", picture, "--scene", scene, m_game->root()}),
                 0);
        scenes.append(QImage(picture));
        QCOMPARE(scenes.indexOf(scenes.last()), scenes.size() - 1);
        // A place in the text where nothing stands.
        QVERIFY(scenes.last().pixelColor(900, 200).lightness() > 200);
    }
    QCOMPARE(App::runWindow(*qApp, {"--screenshot", picture, "--scene", "none"}), 2);
    QCOMPARE(App::runWindow(*qApp, {"--screenshot", picture, m_game->root() + "/none"}), 3);
    QCOMPARE(App::runWindow(*qApp, {"--screenshot", "/nowhere/at/all.png", m_game->root()}), 3);
    QCOMPARE(App::runWindow(*qApp, {"--screenshot"}), 2);
    QCOMPARE(App::runWindow(*qApp, {"one", "two"}), 2);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
