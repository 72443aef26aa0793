#include "core/enginemodel.h"
#include "support/testengines.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

constexpr auto Fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

/// The row signals of a model, as "+parent 0-2" and "-parent 0-2".
class RowSpy : public QObject
{
public:
    explicit RowSpy(QAbstractItemModel* model)
    {
        connect(model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex& parent, int first, int last) {
                    add('-', parent, first, last);
                });
        connect(model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex& parent, int first, int last) {
                    add('+', parent, first, last);
                });
    }

    QStringList take()
    {
        QStringList result;
        result.swap(m_signals);
        return result;
    }

private:
    void add(char sign, const QModelIndex& parent, int first, int last)
    {
        m_signals << QStringLiteral("%1%2 %3-%4")
                         .arg(QLatin1Char(sign))
                         .arg(parent.data().toString())
                         .arg(first)
                         .arg(last);
    }

    QStringList m_signals;
};

void setText(TestProject* project, const QString& text)
{
    auto* main = static_cast<CodeDocument*>(project->file(FileID::MainCode));
    QTextCursor cursor(main);
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
}

}  // namespace

class TestPathTree : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void splitsPaths_data();
    void splitsPaths();
    void rootWithAndWithoutSlash();
    void listsFoldersAndFiles();

    void documentWithoutName();
    void showsFilesOfProject();
    void announcesWholeNode();
    void unchangedFilesTouchNothing();
    void rootKeepsWhatIsReferredTo();

    void newEntriesOnDisk();
    void openProjectOutlivesItsFolder();
    void removedFolders();
    void closedProjectIsListedAgain();
    void closedProjectLeavesOthersBelow();

    void firstProjectMakesBackup_data();
    void firstProjectMakesBackup();

    void randomFileLists_data();
    void randomFileLists();
    void randomWorld();

private:
    QString path(const QString& name) const { return m_dir->filePath(name); }
    void makeGame();
    void addListings(TestParent& parent) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestParent> m_parent;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestPathTree::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_parent = std::make_unique<TestParent>(m_dir->path());
    m_tester = std::make_unique<QAbstractItemModelTester>(m_parent.get(), Fatal);
}

void TestPathTree::cleanup()
{
    m_parent.reset();
    m_tester.reset();
}

/// Two characters and two stages on disk, and the folders listed.
void TestPathTree::makeGame()
{
    for (const char* name : {"chars/hero/hero.code", "chars/rival/rival.code", "stages/dojo.stage",
                             "stages/roof.stage", "stages/roof.spr"}) {
        QVERIFY(writeFile(path(name)));
    }
    addListings(*m_parent);
}

void TestPathTree::addListings(TestParent& parent) const
{
    parent.addPath("chars", ParentProject::ListFolders, {});
    parent.addPath("stages/", ParentProject::ListFiles, {"*.stage"});
}

void TestPathTree::splitsPaths_data()
{
    columns<QString, QStringList>("added", "tree");
    QTest::newRow("relative") << "a/b" << QStringList({"a/", " b/"});
    QTest::newRow("slashes at the ends") << "/a/b/" << QStringList({"a/", " b/"});
    QTest::newRow("below the root") << "%1/a/b" << QStringList({"a/", " b/"});
    QTest::newRow("doubled slash") << "a//b" << QStringList({"a/", " /", "  b/"});
    QTest::newRow("outside of the root") << "/else/a" << QStringList({"else/", " a/"});
    QTest::newRow("longer name than the root") << "%1x/a" << QStringList({"tmp/", " %2x/", "  a/"});
    QTest::newRow("the root") << "%1" << QStringList();
    QTest::newRow("the root with a slash") << "%1/" << QStringList();
    QTest::newRow("nothing") << "" << QStringList();
    QTest::newRow("a slash") << "/" << QStringList();
}

void TestPathTree::splitsPaths()
{
    auto [added, tree] = fetched<QString, QStringList>();
    if (added.contains("%1")) {
        added = added.arg(m_dir->path());
    }
    if (QDir::tempPath() != "/tmp" && tree.value(0) == "tmp/") {
        QSKIP("needs the temporary folder in its usual place");
    }
    for (QString& line : tree) {
        line.replace("%2", QFileInfo(m_dir->path()).fileName());
    }
    const ParentProject::Path* last = m_parent->addPath(added, ParentProject::ListNothing, {});
    QCOMPARE(m_parent->dump(), tree);
    QCOMPARE(last == nullptr, tree.isEmpty());
    if (last) {
        QCOMPARE(m_parent->itemPath(m_parent->indexOf(added)), last);
    }
    m_parent->addPath(added, ParentProject::ListNothing, {});
    QCOMPARE(m_parent->dump(), tree);
    m_parent->removePath(added);
    m_parent->removePath("unknown");
    QVERIFY(!m_parent->indexOf(added).isValid());
}

void TestPathTree::rootWithAndWithoutSlash()
{
    for (const QString& root : {path("game"), path("game/"), path("x/../game//")}) {
        TestParent parent(root);
        QCOMPARE(parent.absolutePath(), path("game/"));
        parent.open("hero.code", "2 a.spr");
        QCOMPARE(parent.dump(), QStringList({"a.spr 2", "hero.code 1"}));
        QCOMPARE(parent.itemPath(parent.index(0, 0))->absolutePath(), path("game/a.spr"));
    }
}

void TestPathTree::listsFoldersAndFiles()
{
    makeGame();
    QCOMPARE(m_parent->dump(),
             QStringList({"chars/", " hero/", " rival/", "stages/", " dojo.stage", " roof.stage"}));
    const ParentProject::Path* chars = m_parent->itemPath(m_parent->indexOf("chars"));
    QVERIFY(!chars->isProject());
    const ParentProject::Path* hero = m_parent->itemPath(m_parent->indexOf("chars/hero"));
    QVERIFY(hero->isProject());
    QVERIFY(hero->isDirectory());
    QCOMPARE(hero->absolutePath(), path("chars/hero/"));
    const ParentProject::Path* dojo = m_parent->itemPath(m_parent->indexOf("stages/dojo.stage"));
    QVERIFY(dojo->isProject());
    QVERIFY(!dojo->isFile());
    QCOMPARE(dojo->absolutePath(), path("stages/"));
    QCOMPARE(m_parent->data({}), QVariant());
    QCOMPARE(m_parent->indexOf("chars/hero").data(Qt::ToolTipRole), QVariant("hero"));
}

void TestPathTree::documentWithoutName()
{
    TestProject* project = m_parent->open({}, "2 a.spr");
    QCOMPARE(m_parent->dump(), QStringList("a.spr 2"));
    QCOMPARE(m_parent->openedProjects(), QList<Project*>{project});
}

void TestPathTree::showsFilesOfProject()
{
    m_parent->open("chars/hero/hero.code", "4 z.snd\n2 sub/a.spr\n2 a.spr\n4 sub/deep/b.snd");
    QCOMPARE(m_parent->dump(),
             QStringList({"chars/", " hero/", "  a.spr 2", "  hero.code 1", "  sub/", "   a.spr 2",
                          "   deep/", "    b.snd 4", "  z.snd 4"}));
    const ParentProject::Path* sub = m_parent->itemPath(m_parent->indexOf("chars/hero/sub/a.spr"));
    QCOMPARE(sub->absolutePath(), path("chars/hero/sub/a.spr"));
    QVERIFY(sub->isFile());
    QVERIFY(!sub->isProject());
}

void TestPathTree::announcesWholeNode()
{
    TestProject* project = m_parent->open("hero/hero.code", "2 a.spr\n2 b.spr");
    RowSpy spy(m_parent.get());
    setText(project, "2 a.spr");
    QCOMPARE(spy.take(), QStringList({"-hero 0-2", "+hero 0-1"}));
    m_parent->addPath("rival", ParentProject::ListNothing, {});
    QCOMPARE(spy.take(), QStringList("+ 1-1"));
    m_parent->close(project);
    QCOMPARE(spy.take(), QStringList({"- 0-1", "+ 0-0"}));
    QCOMPARE(m_parent->dump(), QStringList("rival/"));
    QCOMPARE(m_parent->goneCount, 1);
}

void TestPathTree::unchangedFilesTouchNothing()
{
    TestProject* project = m_parent->open("hero/hero.code", "2 a.spr\n4 b.snd");
    const ParentProject::Path* file = m_parent->itemPath(m_parent->indexOf("hero/a.spr"));
    RowSpy spy(m_parent.get());
    setText(project, "4 b.snd\n2 a.spr\ncomment");
    QCOMPARE(spy.take(), QStringList());
    QCOMPARE(m_parent->itemPath(m_parent->indexOf("hero/a.spr")), file);
    setText(project, "4 b.snd\n8 a.spr");
    QCOMPARE(m_parent->dump(), QStringList({"hero/", " a.spr 8", " b.snd 4", " hero.code 1"}));
}

void TestPathTree::rootKeepsWhatIsReferredTo()
{
    makeGame();
    m_parent->open("chars/hero/hero.code", "2 a.spr");
    TestProject* project = m_parent->open("system.code", "2 a.spr\n2 data/b.spr");
    const QStringList game = {"chars/", " hero/", "  a.spr 2", "  hero.code 1", " rival/"};
    const QStringList stages = {"stages/", " dojo.stage", " roof.stage"};
    QCOMPARE(m_parent->dump(), QStringList{"a.spr 2"} + game + stages +
                                   QStringList({"data/", " b.spr 2", "system.code 1"}));
    const ParentProject::Path* kept = m_parent->itemPath(m_parent->indexOf("data/b.spr"));
    setText(project, "2 c.spr\n2 data/b.spr\n4 a.spr");
    QCOMPARE(m_parent->itemPath(m_parent->indexOf("data/b.spr")), kept);
    QCOMPARE(m_parent->dump(), QStringList({"a.spr 4", "c.spr 2"}) + game + stages +
                                   QStringList({"data/", " b.spr 2", "system.code 1"}));
    m_parent->close(project);
    QCOMPARE(m_parent->dump(), game + stages);
}

void TestPathTree::newEntriesOnDisk()
{
    makeGame();
    m_parent->open("chars/rival/rival.code", "2 a.spr");
    const ParentProject::Path* rival = m_parent->itemPath(m_parent->indexOf("chars/rival"));
    QVERIFY(QDir().mkpath(path("chars/newcomer")));
    QVERIFY(writeFile(path("stages/new.stage")));
    QVERIFY(writeFile(path("stages/new.txt")));
    QTRY_COMPARE(m_parent->dump(), QStringList({"chars/", " hero/", " newcomer/", " rival/",
                                                "  a.spr 2", "  rival.code 1", "stages/",
                                                " dojo.stage", " new.stage", " roof.stage"}));
    QCOMPARE(m_parent->itemPath(m_parent->indexOf("chars/rival")), rival);

    // A change that the listing does not show leaves the tree alone.
    RowSpy spy(m_parent.get());
    QVERIFY(writeFile(path("stages/more.txt")));
    QVERIFY(QFile::remove(path("stages/new.stage")));
    QTRY_VERIFY(!m_parent->indexOf("stages/new.stage").isValid());
    QCOMPARE(spy.take(), QStringList({"-stages 0-2", "+stages 0-1"}));
    QVERIFY(QFile::remove(path("stages/more.txt")));
    QVERIFY(QDir().rmdir(path("chars/newcomer")));
    QTRY_VERIFY(!m_parent->indexOf("chars/newcomer").isValid());
    QCOMPARE(spy.take(), QStringList({"-chars 0-2", "+chars 0-1"}));
}

void TestPathTree::openProjectOutlivesItsFolder()
{
    makeGame();
    TestProject* hero = m_parent->open("chars/hero/hero.code", "2 x/a.spr");
    QVERIFY(QDir(path("chars/hero")).removeRecursively());
    QVERIFY(QDir(path("chars/rival")).removeRecursively());
    QTRY_VERIFY(!m_parent->indexOf("chars/rival").isValid());
    QCOMPARE(m_parent->dump(m_parent->indexOf("chars")),
             QStringList({"hero/", " hero.code 1", " x/", "  a.spr 2"}));
    setText(hero, {});
    m_parent->close(hero);
    QCOMPARE(m_parent->dump(m_parent->indexOf("chars")), QStringList());
}

void TestPathTree::removedFolders()
{
    makeGame();
    m_parent->removePath("stages");
    TestProject* hero = m_parent->open("chars/hero/hero.code", "2 x/a.spr");
    m_parent->removePath("chars");
    QCOMPARE(m_parent->dump(),
             QStringList({"chars/", " hero/", "  hero.code 1", "  x/", "   a.spr 2"}));
    setText(hero, "2 b.spr");
    m_parent->close(hero);
    QCOMPARE(m_parent->dump(), QStringList("chars/"));
    m_parent->removePath("chars");
    QCOMPARE(m_parent->dump(), QStringList());
    // Nothing listens to the disk any more.
    QVERIFY(writeFile(path("stages/new.stage")));
    QTest::qWait(50);
    QCOMPARE(m_parent->dump(), QStringList());
}

void TestPathTree::closedProjectIsListedAgain()
{
    makeGame();
    const QStringList closed = m_parent->dump();
    TestProject* hero = m_parent->open("chars/hero/hero.code", "2 a.spr");
    m_parent->close(hero);
    QCOMPARE(m_parent->dump(), closed);
    TestProject* dojo = m_parent->open("stages/dojo.stage", "8 roof.stage");
    QCOMPARE(m_parent->dump(m_parent->indexOf("stages")),
             QStringList({"dojo.stage 1", "roof.stage 8"}));
    setText(dojo, {});
    QCOMPARE(m_parent->dump(m_parent->indexOf("stages")),
             QStringList({"dojo.stage 1", "roof.stage"}));
    m_parent->close(dojo);
    QCOMPARE(m_parent->dump(), closed);
    // Folders that no listing shows, or at another place than where they came in.
    for (const QString& folder : {QStringLiteral("chars/.hidden"), QStringLiteral("chars/Alto")}) {
        QVERIFY(writeFile(path(folder + "/a.spr")));
        m_parent->close(m_parent->open(folder + "/main.code", "2 a.spr"));
        TestParent fresh(m_dir->path());
        addListings(fresh);
        QCOMPARE(m_parent->dump(), fresh.dump());
    }
}

void TestPathTree::closedProjectLeavesOthersBelow()
{
    TestProject* outer = m_parent->open("chars/hero/hero.code", "2 a.spr");
    TestProject* inner = m_parent->open("chars/hero/alt/alt.code", "2 b.spr");
    const QStringList below = {"chars/", " hero/", "  alt/", "   alt.code 1", "   b.spr 2"};
    m_parent->close(outer);
    QCOMPARE(m_parent->dump(), below);
    m_parent->close(inner);
    QCOMPARE(m_parent->goneCount, 1);
}

void TestPathTree::firstProjectMakesBackup_data()
{
    columns<bool, QString, int>("wanted", "fileName", "backups");
    QTest::newRow("wanted") << true << "hero.code" << 1;
    QTest::newRow("not wanted") << false << "hero.code" << 0;
    QTest::newRow("no name") << true << "" << 0;
}

void TestPathTree::firstProjectMakesBackup()
{
    const auto [wanted, fileName, backups] = fetched<bool, QString, int>();
    TestInterface host;
    host.options["backup_onload"] = wanted;
    QVERIFY(writeFile(path("hero.code"), "2 a.spr"));
    QVERIFY(writeFile(path("a.spr"), "sprites"));
    m_parent->open(fileName, "2 a.spr");
    m_parent->open("rival.code", {});
    const QStringList folders = QDir(path("backup")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(folders.size(), backups);
    QCOMPARE(host.progresses.size(), backups);
    if (backups == 0) {
        return;
    }
    const QRegularExpression form("^\\d\\d\\.\\d\\d\\.\\d{4}_\\d+\\.\\d+\\.\\d+_[ap]m_Auto$");
    QVERIFY2(form.match(folders.first()).hasMatch(), qPrintable(folders.first()));
    QCOMPARE(readFile(path("backup/") + folders.first() + "/a.spr"), QByteArray("sprites"));
    QCOMPARE(host.progresses.first().updates, (QList<QPair<int, int>>{{0, 1}, {1, 0}}));
    QVERIFY(host.progresses.first().finished);
}

void TestPathTree::randomFileLists_data()
{
    columns<QString, bool>("main", "exact");
    QTest::newRow("in a folder") << "chars/hero/hero.code" << true;
    // At the root what stays keeps its place: the order tells of the past.
    QTest::newRow("at the root") << "hero.code" << false;
}

// After any sequence of lists the tree is the one that the last list gives at once.
void TestPathTree::randomFileLists()
{
    const auto [main, exact] = fetched<QString, bool>();
    const quint32 seed = 77;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    QStringList names = {"a",       "b",  "B",     "m.x",        "sub/a", "sub/z",
                         "sub/b/c", "x/", "/lead", "two//parts", "../up"};
    if (exact) {
        names << "sub"
              << "sub/b";  // both a file and a folder
    }
    TestProject* project = m_parent->open(main, {});
    for (int step = 0; step < 400; ++step) {
        QString text;
        const int count = random.bounded(6);
        for (int i = 0; i < count; ++i) {
            text += QStringLiteral("%1 %2\n")
                        .arg(1 << random.bounded(3))
                        .arg(names.at(random.bounded(names.size())));
        }
        setText(project, text);
        TestParent fresh(m_dir->path());
        fresh.open(main, text);
        QStringList tree = m_parent->dump();
        QStringList expected = fresh.dump();
        if (!exact) {
            tree.sort();
            expected.sort();
        }
        QCOMPARE(tree, expected);
    }
}

// Projects come, change and go while folders and files do on disk; the tree is
// always that of the same projects opened anew.
void TestPathTree::randomWorld()
{
    struct Opened
    {
        QString file, text;
        TestProject* project;
    };
    const quint32 seed = 4711;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QStringList files = {"chars/hero/hero.code", "chars/rival/rival.code",
                               "stages/dojo.stage", "stages/roof.stage"};
    const QStringList onDisk = {"chars/extra/x", "stages/dojo.stage", "stages/a.stage",
                                "chars/zed/x", "stages/note.txt"};
    const QStringList names = {"a", "sub/b", "roof.stage", "sub/c", "zz", "a.stage"};
    makeGame();
    QList<Opened> opened;
    for (int step = 0; step < 300; ++step) {
        QString text;
        for (int i = random.bounded(4); i > 0; --i) {
            text += QStringLiteral("2 %1\n").arg(names.at(random.bounded(names.size())));
        }
        const QString file = files.at(random.bounded(files.size()));
        const auto at = std::find_if(opened.begin(), opened.end(),
                                     [&file](const Opened& o) { return o.file == file; });
        const int action = random.bounded(4);
        if (action == 0) {
            const QString entry = path(onDisk.at(random.bounded(onDisk.size())));
            if (QFile::remove(entry)) {
                QDir().rmdir(QFileInfo(entry).path());
            } else {
                QVERIFY(writeFile(entry));
            }
        } else if (at == opened.end()) {
            opened.append({file, text, m_parent->open(file, text)});
        } else if (action == 1) {
            m_parent->close(at->project);
            opened.erase(at);
        } else {
            at->text = text;
            setText(at->project, text);
        }
        TestParent fresh(m_dir->path());
        addListings(fresh);
        for (const Opened& o : qAsConst(opened)) {
            fresh.open(o.file, o.text);
        }
        QTRY_COMPARE(m_parent->dump(), fresh.dump());
    }
}

QTEST_MAIN(TestPathTree)
#include "tst_pathtree.moc"
