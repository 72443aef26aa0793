#include "core/parentproject.h"

#include "core/enginemodel.h"
#include "editors/framework/fileeditor.h"
#include "randomgame.h"
#include "support/blobeditor.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"

#include <QtTest>

using namespace Zorv;

namespace {

// What the model shows, from its root down, with the place of each node.
QStringList places(const TestParent& parent, const QModelIndex& index = {})
{
    QStringList result;
    for (int row = 0; row < parent.rowCount(index); ++row) {
        const QModelIndex child = parent.index(row, 0, index);
        result << parent.itemPath(child)->absolutePath() << places(parent, child);
    }
    return result;
}

}  // namespace

class TestSaveAs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void movesEverything_data();
    void movesEverything();
    void treeShowsNewPlace();
    void looseProject();
    void staysIfAFileIsNotWritten();
    void staysIfGivenUp();
    void missingFilesHoldNothingBack();
    void newProjectWaits();
    void savesModifiedFiles();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;
    std::unique_ptr<TestParent> m_parent;
};

void TestSaveAs::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_root = m_dir->filePath("game/");
    QDir().mkpath(m_root);
    m_parent = std::make_unique<TestParent>(m_root);
}

void TestSaveAs::movesEverything_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 12; ++seed) {
        QTest::newRow(qPrintable(QString("seed %1").arg(seed))) << seed;
    }
}

// The new place has all that was saved or not, the old one is as it was, and the
// work goes on: later changes are found, saved and backed up there.
void TestSaveAs::movesEverything()
{
    QFETCH(uint, seed);
    TestInterface host;
    RandomGame game(seed);
    QVERIFY(writeFile(game.root + "stages/closed.stage", "stage"));
    QVERIFY(writeFile(game.root + "stages/music/closed.wav", "music"));
    game.parent->addPath("stages", ParentProject::ListFiles, {"*.stage"});
    game.parent->closedFiles = {
        {"stages/closed.stage", {"stages/closed.stage", "stages/music/closed.wav"}}};
    game.edit();
    const Contents before = contentsOf(game.root);
    const Contents wanted = game.wanted();
    QStringList bases;
    for (TestProject* project : game.projects) {
        bases << project->basePath();
    }
    const QString newRoot = game.dir.path() + "/new place/";
    game.parent->saveAs(newRoot);
    QCOMPARE(game.parent->failedFiles(), QStringList());
    QCOMPARE(contentsOf(newRoot), wanted);
    QCOMPARE(contentsOf(game.root), before);
    QCOMPARE(game.parent->absolutePath(), newRoot);
    QCOMPARE(host.progresses.last().title, QString("Saving..."));
    const int steps = 2 + game.projects.size();
    QCOMPARE(host.progresses.last().updates.first(), qMakePair(0, steps));
    QCOMPARE(host.progresses.last().updates.last(), qMakePair(steps, 0));
    for (int i = 0; i < bases.size(); ++i) {
        QCOMPARE(game.projects.at(i)->basePath(), bases.at(i));
        QVERIFY(game.projects.at(i)->fileName().startsWith(newRoot));
        QVERIFY(!RandomGame::document(game.projects.at(i))->isModified());
    }

    game.root = newRoot;
    game.edit();
    const Contents edited = game.wanted();
    game.parent->backup("later");
    QCOMPARE(contentsOf(newRoot), wanted);
    const QString backup = newRoot + "backup/" + game.parent->backups().value(0);
    Contents opened = edited;
    opened.remove("stages/closed.stage");
    opened.remove("stages/music/closed.wav");
    QCOMPARE(contentsOf(backup), opened);
    game.parent->save();
    QCOMPARE(contentsOf(newRoot), edited);
}

void TestSaveAs::treeShowsNewPlace()
{
    QVERIFY(writeFile(m_root + "stages/dojo.stage"));
    QVERIFY(writeFile(m_root + "stages/old.stage"));
    QVERIFY(QDir().mkpath(m_root + "chars/rival"));
    m_parent->addPath("stages", ParentProject::ListFiles, {"*.stage"});
    m_parent->addPath("chars", ParentProject::ListFolders, {});
    m_parent->closedFiles = {{"stages/dojo.stage", {"stages/dojo.stage"}}};
    m_parent->open("chars/hero/hero.code", "2 sub/a.spr");
    m_parent->open("chars/hero/alt.code", "2 b.spr");
    const QAbstractItemModelTester tester(m_parent.get());
    const QString newRoot = m_dir->filePath("new/");
    for (const QString name : {"hero/sub/a.spr", "hero/b.spr"}) {
        QVERIFY(writeFile(m_root + "chars/" + name));
    }
    m_parent->saveAs(newRoot);
    QCOMPARE(m_parent->failedFiles(), QStringList());
    QStringList shown = places(*m_parent);
    shown.sort();
    QStringList expected = {"chars/",
                            "chars/hero/",
                            "chars/hero/alt.code",
                            "chars/hero/b.spr",
                            "chars/hero/hero.code",
                            "chars/hero/sub/",
                            "chars/hero/sub/a.spr",
                            "stages/",
                            "stages/"};
    QCOMPARE(shown, expected.replaceInStrings(QRegularExpression("^"), newRoot));
    QVERIFY(m_parent->indexOf(newRoot + "chars/hero/sub/a.spr").isValid());
    QVERIFY(!m_parent->indexOf(m_root + "chars/hero/sub/a.spr").isValid());

    QVERIFY(writeFile(newRoot + "stages/new.stage"));
    QTRY_VERIFY(m_parent->indexOf("stages/new.stage").isValid());
    QVERIFY(QFile::remove(m_root + "stages/dojo.stage"));
    QTest::qWait(100);
    QVERIFY(m_parent->indexOf("stages/dojo.stage").isValid());
}

void TestSaveAs::looseProject()
{
    TestInterface host;
    TestProject* project = m_parent->open("hero.code", "2 sub/a.spr\n4 b.snd");
    CodeDocument* main = RandomGame::document(project);
    QVERIFY(writeFile(m_root + "hero.code", "old"));
    QVERIFY(writeFile(m_root + "sub/a.spr", "sprites"));
    auto* file = new TestFile(m_root + "b.snd", "sounds");
    project->addFile(file, FileID::Sounds);
    const QString newRoot = m_dir->filePath("other/");
    m_parent->saveAs(newRoot + "villain.code");
    QVERIFY(host.progresses.isEmpty());
    QCOMPARE(contentsOf(newRoot),
             (Contents{
                 {"villain.code", main->toData()}, {"sub/a.spr", "sprites"}, {"b.snd", "sounds"}}));
    QCOMPARE(readFile(m_root + "hero.code"), QByteArray("old"));
    QCOMPARE(m_parent->absolutePath(), newRoot);
    QCOMPARE(project->basePath(), QString());
    QCOMPARE(main->fileName(), newRoot + "villain.code");
    QCOMPARE(m_parent->dump(), QStringList({"b.snd 4", "sub/", " a.spr 2", "villain.code 1"}));
}

// What was written already comes back to its old files, with the changes that
// these lack.
void TestSaveAs::staysIfAFileIsNotWritten()
{
    RandomGame game(3);
    game.edit();
    for (TestProject* project : game.projects) {
        QTextCursor(RandomGame::document(project)).insertText("#more\n");
    }
    const Contents before = contentsOf(game.root);
    const Contents wanted = game.wanted();
    const QString newRoot = game.dir.path() + "/new/";
    const QString last = game.parent->openedProjects().last()->basePath() + "main.code";
    QVERIFY(QDir().mkpath(newRoot + last));
    const QStringList shown = game.parent->dump();
    game.parent->saveAs(newRoot);
    QCOMPARE(game.parent->failedFiles(), QStringList(last));
    QCOMPARE(game.parent->absolutePath(), game.root);
    QCOMPARE(game.parent->dump(), shown);
    QCOMPARE(contentsOf(game.root), before);
    for (TestProject* project : game.projects) {
        QVERIFY(project->fileName().startsWith(game.root));
        QVERIFY(RandomGame::document(project)->isModified());
    }
    QCOMPARE(game.wanted(), wanted);
    game.parent->save();
    QCOMPARE(contentsOf(game.root), wanted);
}

void TestSaveAs::staysIfGivenUp()
{
    TestInterface host;
    RandomGame game(4);
    host.cancelAfter = 2;
    game.parent->saveAs(game.dir.path() + "/new/");
    QVERIFY(game.parent->wasCanceled());
    QCOMPARE(host.progresses.last().updates.size(), 3);
    QCOMPARE(game.parent->absolutePath(), game.root);
    for (TestProject* project : game.projects) {
        QVERIFY(project->fileName().startsWith(game.root));
    }
}

void TestSaveAs::missingFilesHoldNothingBack()
{
    m_parent->open("hero/hero.code", "2 not_there.spr");
    m_parent->open("rival/rival.code", {});
    m_parent->saveAs(m_dir->filePath("new/"));
    QCOMPARE(m_parent->failedFiles(), QStringList("hero/not_there.spr"));
    QCOMPARE(m_parent->absolutePath(), m_dir->filePath("new/"));
}

// A project without a file is told, and follows to the new root.
void TestSaveAs::newProjectWaits()
{
    TestProject* fresh = m_parent->open({}, "unsaved");
    m_parent->open("hero/hero.code", {});
    RandomGame::document(fresh)->setModified(true);
    m_parent->saveAs(m_dir->filePath("new/"));
    QCOMPARE(m_parent->failedFiles(), QStringList(fresh->title()));
    QCOMPARE(m_parent->absolutePath(), m_dir->filePath("new/"));
    QVERIFY(RandomGame::document(fresh)->isModified());
    QCOMPARE(contentsOf(m_parent->absolutePath()).keys(), QStringList("hero/hero.code"));
}

void TestSaveAs::savesModifiedFiles()
{
    TestInterface host;
    PlannedDialogs dialogs;
    BlobEditor editor;
    TestProject* project = m_parent->open("hero.code", {});
    QVERIFY(writeFile(m_root + "a.blob", "old") && writeFile(m_root + "same.blob", "old"));
    const auto add = [project](const QString& name, bool isModified) {
        auto* file = new TestFile(name, "new");
        file->modified = isModified;
        project->addFile(file, FileID::Sprites);
        return file;
    };
    add(m_root + "a.blob", true);
    add(m_root + "same.blob", false);
    TestFile* vanished = add(m_root + "vanished.blob", true);
    add({}, true);  // without an editor
    host.fileEditors[vanished] = &editor;
    dialogs.fileAnswers = {{m_root + "b.blob"}};
    dialogs.buttonAnswers = {Dialogs::No};
    m_parent->save();
    QCOMPARE(contentsOf(m_root),
             (Contents{{"a.blob", "new"}, {"same.blob", "old"}, {"b.blob", "new"}}));
    QCOMPARE(vanished->name, m_root + "b.blob");
    QCOMPARE(m_parent->failedFiles().size(), 1);
    QCOMPARE(host.progresses.last().title, QString("Saving..."));
    QCOMPARE(host.progresses.last().updates, (QList<QPair<int, int>>{{0, 1}, {1, 0}}));
}

QTEST_MAIN(TestSaveAs)
#include "tst_saveas.moc"
