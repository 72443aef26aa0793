#include "app/code/codetexteditor.h"
#include "app/dialogs/progressdialog.h"
#include "app/game/backupnamedialog.h"
#include "app/game/gamecommands.h"
#include "app/game/restoredialog.h"
#include "app/session/recentfolders.h"
#include "family/project/familyparentproject.h"
#include "support/folders.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>

using Zorv::Dialogs;

namespace {

/// Does something with a dialog of that class once it is open.
template <class T>
void whenOpen(const std::function<void(T*)>& answer)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, answer] {
        if (auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            answer(dialog);
        }
    });
    timer->start(5);
}

}  // namespace

class TestGameCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void backupGoesThereAndBack();
    void faultyNameIsTold();
    void restoreAsksAboutUnsavedWork();
    void replacedFilesAreKeptWithoutDiscardedChanges();
    void restoreBringsNewFiles();
    void looseProjectIsSavedAsFile();
    void gameIsSavedAsFolder_data();
    void gameIsSavedAsFolder();
    void placesThatAreRefused_data();
    void placesThatAreRefused();
    void failedSaveAsStays();
    void newFileIsAskedForItsName_data();
    void newFileIsAskedForItsName();
    void editorWorksOnTheTextInFront();
    void palettesAreChosen();
    void progressCanBeGivenUp();

private:
    void makeBackup(const QString& name);
    void restoreFirst(const std::function<void(App::RestoreDialog*)>& look = {});
    WindowFixture& w() { return *m_fixture; }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestGameCommands::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_game = std::make_unique<TemporaryGame>();
    m_fixture = std::make_unique<WindowFixture>(m_dir->filePath("settings.ini"));
    m_fixture->open(*m_game, m_game->ryn(), m_game->animations());
}

void TestGameCommands::cleanup()
{
    m_fixture.reset();
}

void TestGameCommands::makeBackup(const QString& name)
{
    whenOpen<App::BackupNameDialog>([name](App::BackupNameDialog* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), name);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    w().action("backup")->trigger();
}

/// Chooses the youngest backup.
void TestGameCommands::restoreFirst(const std::function<void(App::RestoreDialog*)>& look)
{
    whenOpen<App::RestoreDialog>([look](App::RestoreDialog* dialog) {
        if (look) {
            look(dialog);
        }
        QTest::mouseClick(dialog->findChild<QPushButton*>("restore"), Qt::LeftButton);
    });
    w().action("restore_backup")->trigger();
}

void TestGameCommands::backupGoesThereAndBack()
{
    const QByteArray oda = m_game->read("characters/oda/oda.character");
    w().type("; one ");
    const QString unsaved = w().document()->text();
    makeBackup("first try");
    QVERIFY(w().document()->isModified());
    const QStringList folders = w().window->session()->game()->backups();
    QCOMPARE(folders.size(), 1);
    QVERIFY(folders.first().endsWith("_first try"));

    App::GameTree* projects = w().window->gameTree();
    projects->expand(projects->indexOf(m_game->path("characters/ryn/")));
    w().type("; two ");
    w().action("save")->trigger();
    m_game->write("characters/oda/oda.character", "[info]\r\n");
    restoreFirst([](App::RestoreDialog* dialog) {
        auto* backups = dialog->findChild<QTreeWidget*>("backups");
        QCOMPARE(backups->topLevelItemCount(), 1);
        QCOMPARE(backups->topLevelItem(0)->text(0), QString("first try"));
        QStringList changed;
        auto* files = dialog->findChild<QTreeWidget*>("files");
        for (int i = 0; i < files->topLevelItemCount(); ++i) {
            changed.append(files->topLevelItem(i)->text(0));
        }
        QCOMPARE(changed,
                 QStringList({"characters/oda/oda.character", "characters/ryn/basic.anim"}));
    });
    QVERIFY(projects->isExpanded(projects->indexOf(m_game->path("characters/ryn/"))));
    QCOMPARE(w().document()->text(), unsaved);
    QVERIFY(!w().document()->isModified());
    QCOMPARE(m_game->read("characters/oda/oda.character"), oda);
    QCOMPARE(w().dialogs.count(), 0);
    // What was there before can be brought back too.
    QCOMPARE(w().window->session()->game()->backups().size(), 2);
}

void TestGameCommands::faultyNameIsTold()
{
    whenOpen<App::BackupNameDialog>([](App::BackupNameDialog* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), "a/b");
        QTest::keyClick(dialog, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    w().action("backup")->trigger();
    QVERIFY(!QDir(m_game->path("backup")).exists());
}

void TestGameCommands::restoreAsksAboutUnsavedWork()
{
    makeBackup("b");
    w().type("x");
    w().dialogs.choiceAnswers = {-1};
    const QString text = w().document()->text();
    restoreFirst();
    QCOMPARE(w().dialogs.count("choose"), 1);
    QCOMPARE(w().document()->text(), text);
}

void TestGameCommands::replacedFilesAreKeptWithoutDiscardedChanges()
{
    makeBackup("b");
    w().type("; saved ");
    w().action("save")->trigger();
    const QByteArray saved = m_game->read("characters/ryn/basic.anim");
    w().type("; discarded ");
    w().dialogs.choiceAnswers = {1};
    restoreFirst();
    QVERIFY(!w().document()->text().contains("; saved "));
    const QString kept = w().window->session()->game()->backups().filter("Before restore").value(0);
    QCOMPARE(m_game->read("backup/" + kept + "/characters/ryn/basic.anim"), saved);
}

void TestGameCommands::restoreBringsNewFiles()
{
    makeBackup("b");
    m_game->write("characters/ryn/ryn.character", "[info]\r\nname = \"Ryn\"\r\n");
    QVERIFY(QFile::remove(m_game->path("characters/ryn/moves.code")));
    w().window->session()->closeProject(w().window->session()->projects().first());
    QVERIFY(w().window->openFile(m_game->ryn()));
    QVERIFY(!w().window->session()->document(m_game->path("characters/ryn/moves.code")));
    restoreFirst();
    QVERIFY(w().window->session()->document(m_game->path("characters/ryn/moves.code")));
    QCOMPARE(w().document()->text().left(6), QString("[info]"));
    QVERIFY(w().window->gameTree()->indexOf(m_game->path("characters/ryn/moves.code")).isValid());
}

void TestGameCommands::looseProjectIsSavedAsFile()
{
    const QString loose = m_dir->filePath("loose");
    w().action("close_folder")->trigger();
    QVERIFY(QFile::rename(m_game->path("characters/ryn"), loose));
    QVERIFY(w().window->openPath(loose));
    QVERIFY(w().window->openFile(loose + "/ryn.character"));
    w().type("; new ");
    const QString name = m_dir->filePath("else/where/hero");
    QVERIFY(QDir().mkpath(m_dir->filePath("else/where")));
    w().dialogs.fileAnswers = {{name}};
    w().action("save_all_as")->trigger();
    QCOMPARE(w().dialogs.count(), 1);
    App::GameSession* session = w().window->session();
    QCOMPARE(session->projects().first()->fileName(), name + ".character");
    QCOMPARE(session->folder(), m_dir->filePath("else/where/"));
    QVERIFY(QFile::exists(m_dir->filePath("else/where/moves.code")));
    QVERIFY(session->modifiedDocuments().isEmpty());
    QVERIFY(readFile(loose + "/ryn.character").startsWith("[info]"));
    QVERIFY(w().window->windowTitle().contains("where"));
    QCOMPARE(App::RecentFolders::list().first(), m_dir->filePath("else/where"));
    QVERIFY(w().window->tabs()->bar()->tabToolTip(0).startsWith(m_dir->path()));
    QVERIFY(w().window->gameTree()->indexOf(name + ".character").isValid());
    w().type("y");
    w().action("save")->trigger();
    QVERIFY(!w().document()->isModified());
}

void TestGameCommands::gameIsSavedAsFolder_data()
{
    QTest::addColumn<bool>("hasEngine");
    row("with its engine", true);
    row("one project in its place", false);
}

void TestGameCommands::gameIsSavedAsFolder()
{
    QFETCH(bool, hasEngine);
    if (hasEngine) {
        m_game->write("zorv-player", "");
    }
    w().type("; new ");
    w().dialogs.fileAnswers = {{m_dir->filePath("target")}};
    w().dialogs.buttonAnswers = {Dialogs::Yes};
    QVERIFY(QDir().mkpath(m_dir->filePath("target/old")));
    w().action("save_all_as")->trigger();
    QCOMPARE(w().dialogs.count("question"), 1);
    QCOMPARE(w().dialogs.count(), 2);
    QCOMPARE(w().window->session()->folder(), m_dir->filePath("target/"));
    QVERIFY(QFile::exists(m_dir->filePath("target/characters/ryn/moves.code")));
    QVERIFY(w().document()->isUndoAvailable());
    const QString moved = m_dir->filePath("target/characters/ryn/basic.anim");
    QCOMPARE(QDir::cleanPath(w().document()->fileName()), moved);
    QVERIFY(QFile::exists(m_dir->filePath("target/characters/oda/oda.character")));
    QVERIFY(m_game->read("characters/ryn/basic.anim").startsWith("animation 1"));
    QVERIFY(w().window->openFile(m_dir->filePath("target/characters/oda/oda.character")));
    QCOMPARE(w().window->session()->projects().size(), 2);
}

void TestGameCommands::placesThatAreRefused_data()
{
    columns<QString, QString>("place", "kind");
    row("the same", QString(), "warning");
    row("below it", "characters", "warning");
    row("a link into it", "link", "warning");
    row("full, and the person says no", "full", "question");
}

void TestGameCommands::placesThatAreRefused()
{
    const auto [place, kind] = fetched<QString, QString>();
    m_game->write("zorv-player", "");
    QVERIFY(QDir().mkpath(m_dir->filePath("full/x")));
    QVERIFY(QFile::link(m_game->path("characters"), m_dir->filePath("link")));
    const bool isOutside = place == "full" || place == "link";
    w().dialogs.fileAnswers = {{isOutside ? m_dir->filePath(place) : m_game->path(place)}};
    w().dialogs.buttonAnswers = {Dialogs::No};
    w().action("save_all_as")->trigger();
    QCOMPARE(w().dialogs.count(kind), 1);
    QCOMPARE(w().window->session()->folder(), m_game->root() + '/');
    QCOMPARE(QDir(m_dir->filePath("full")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList("x"));
}

void TestGameCommands::failedSaveAsStays()
{
    m_game->write("zorv-player", "");
    QVERIFY(QDir().mkpath(m_dir->filePath("target/characters/ryn/basic.anim")));
    w().type("; new ");
    w().dialogs.fileAnswers = {{m_dir->filePath("target")}};
    w().dialogs.buttonAnswers = {Dialogs::Yes};
    w().action("save_all_as")->trigger();
    QCOMPARE(w().dialogs.count("error"), 1);
    QVERIFY(w().dialogs.texts("error").first().contains("basic.anim"));
    QCOMPARE(w().window->session()->folder(), m_game->root() + '/');
    QCOMPARE(w().document()->fileName(), m_game->animations());
    QVERIFY(w().document()->isModified());
}

void TestGameCommands::newFileIsAskedForItsName_data()
{
    QTest::addColumn<bool>("byLibrary");
    row("by the person", false);
    row("by the library", true);
}

void TestGameCommands::newFileIsAskedForItsName()
{
    QFETCH(bool, byLibrary);
    auto* project = w().window->session()->projects().first();
    auto* file = dynamic_cast<Family::FamilyDocument*>(project->newFile(Zorv::FileID::Commands));
    w().window->showDocument(file);
    w().type("x");
    const QString name = m_game->path("characters/ryn/new.commands");
    w().dialogs.fileAnswers = {{QFileInfo(name).path() + "/new"}};
    w().dialogs.buttonAnswers = {Dialogs::No};
    if (byLibrary) {
        w().window->session()->game()->save();
    } else {
        w().action("save")->trigger();
        QCOMPARE(w().window->tabs()->bar()->tabText(w().window->tabs()->currentIndex()),
                 QString("new.commands"));
    }
    QCOMPARE(file->fileName(), name);
    QCOMPARE(m_game->read("characters/ryn/new.commands"), QByteArray("x"));
    QVERIFY(!file->isModified());
}

void TestGameCommands::palettesAreChosen()
{
    QStringList files, names{"old"};
    bool flag = true;
    w().dialogs.fileAnswers = {{"/a/red.act", "/a/dark.blue.pal"}};
    w().host.selectPaletteFiles(files, names, &flag);
    QCOMPARE(files, QStringList({"/a/red.act", "/a/dark.blue.pal"}));
    QCOMPARE(names, QStringList({"red", "dark.blue"}));
    QVERIFY(!flag);
    w().dialogs.fileAnswers = {{}};
    w().host.selectPaletteFiles(files, names, nullptr);
    QVERIFY(files.isEmpty() && names.isEmpty());
}

void TestGameCommands::editorWorksOnTheTextInFront()
{
    auto* editor = qobject_cast<Zorv::FileEditor*>(w().host.currentEditor());
    QCOMPARE(w().host.editorByName("anim"), editor);
    QCOMPARE(w().host.editorByName("code"), w().window->textEditor());
    const QString text = w().document()->text();
    editor->replace("animation", "a", 0, true);
    QCOMPARE(w().document()->text(), QString(text).replace("animation", "a"));
    w().press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(w().document()->text(), text);
    editor->replace("a", "aa", 0, true);
    QCOMPARE(w().document()->text(), QString(text).replace("a", "aa"));
    editor->undo();
    w().goTo(0);
    editor->find("FRAME", 0);
    QCOMPARE(w().edit()->textCursor().selectedText(), QString("frame"));
    editor->replace("frame", "x", 0, false);
    QCOMPARE(w().edit()->textCursor().selectedText(), QString("frame"));
    QCOMPARE(w().document()->text().count("frame"), 2);
    editor->find("nowhere", 0);
    QCOMPARE(w().dialogs.texts("information"), QStringList("No text found!"));
}

void TestGameCommands::progressCanBeGivenUp()
{
    auto* progress = new App::ProgressDialog(w().window.get(), "Work");
    int steps = 0;
    QTimer click;
    connect(&click, &QTimer::timeout, this, [] {
        if (auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget())) {
            QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
        }
    });
    click.start(1);
    progress->update(0, 1000);
    while (!progress->isCanceled() && ++steps < 1000) {
        QTest::qSleep(10);
        progress->update(steps, 0);
    }
    QVERIFY(steps < 1000);
    progress->finish();
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(TestGameCommands)
#include "tst_gamecommands.moc"
