#include "core/parentproject.h"

#include "randomgame.h"
#include "support/faultshim.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QtTest>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorv;

namespace {

class ReadOnlyArchive : public FileSystemArchive
{
public:
    bool isReadOnly() const override { return true; }
};

class ReadOnlyParent : public ParentProject
{
public:
    ReadOnlyParent(const QString& root, Archive& archive) : ParentProject(root, archive) {}
    EngineModel* engineModel() const override { return nullptr; }
    void projectFiles(const QString&, QStringList&) override {}
    QString runParameters(int) const override { return {}; }
    QString runPath(int, const QString&, bool*) const override { return {}; }
    void lastReferenceGone() override {}
};

QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QList<QPair<int, int>> steps(int count)
{
    QList<QPair<int, int>> result{{0, count}};
    for (int i = 1; i <= count; ++i) {
        result.append({i, 0});
    }
    return result;
}

}  // namespace

class TestBackup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_root = m_dir->filePath("game/");
        m_parent = std::make_unique<TestParent>(m_root);
        QDir().mkpath(m_root);
    }
    void cleanup() { faultArm("", FaultOpen, 0, 0, 0); }
    void bringsEverythingBack_data();
    void bringsEverythingBack();
    void folderThatCannotBeMade_data();
    void folderThatCannotBeMade();
    void refusesNames_data();
    void refusesNames();
    void refusesReadOnlyArchive();
    void listsYoungestFirst();
    void passesOverStrangeEntries();
    void givenUp();
    void oneMomentAndNameIsOneBackup();
    void killedBackup();
    void asksNothingAboutItsOwnChanges();
    void fullDisk_data();
    void fullDisk();
    void killed();

private:
    QString makeBackup(const Contents& contents)
    {
        const QString name = "01.02.2020_3.04.05_pm_old";
        for (auto it = contents.cbegin(); it != contents.cend(); ++it) {
            writeFile(m_root + "backup/" + name + "/" + it.key(), it.value());
        }
        return name;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;
    std::unique_ptr<TestParent> m_parent;
};

void TestBackup::bringsEverythingBack_data()
{
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 12; ++seed) {
        QTest::newRow(qPrintable(QString("seed %1").arg(seed))) << seed;
    }
}

// Whatever happens to the files afterwards, a restore gives what was open,
// unsaved changes included, and touches nothing else.
void TestBackup::bringsEverythingBack()
{
    QFETCH(uint, seed);
    TestInterface host;
    RandomGame game(seed);
    game.edit();
    const Contents before = contentsOf(game.root);
    const Contents saved = game.wanted();
    QVERIFY(game.parent->backup("a b % \u00e9"));
    QCOMPARE(game.parent->failedFiles(), QStringList());
    QCOMPARE(contentsOf(game.root), before);
    QCOMPARE(host.progresses.last().title, QString("Backup in progress..."));
    QCOMPARE(host.progresses.last().updates, steps(game.projects.size()));
    for (const QString& file : before.keys()) {
        switch (game.random.bounded(3)) {
        case 0:
            QVERIFY(QFile::remove(game.root + file));
            break;
        case 1:
            QVERIFY(writeFile(game.root + file, game.bytes()));
            break;
        default:
            break;
        }
    }
    game.edit();
    Contents expected = saved;
    expected["new.bin"] = "new";
    QVERIFY(writeFile(game.root + "new.bin", "new"));

    const QStringList backups = game.parent->backups();
    QCOMPARE(backups.size(), 1);
    QVERIFY(backups.first().endsWith("_a b % \u00e9"));
    const int files = game.parent->backupFiles(backups.first()).size();
    QCOMPARE(files, saved.size());
    QVERIFY(game.parent->restoreBackup(backups.first()));
    QCOMPARE(game.parent->failedFiles(), QStringList());
    QCOMPARE(contentsOf(game.root), expected);
    QCOMPARE(game.wanted(), expected);
    QCOMPARE(host.progresses.last().title, QString("Restoring backup..."));
    QCOMPARE(host.progresses.last().updates, steps(files + game.projects.size()));
    QVERIFY(host.progresses.last().finished);
    QCOMPARE(host.refreshCount, 1);
}

void TestBackup::folderThatCannotBeMade_data()
{
    columns<QString, bool>("name", "isBlocked");
    QTest::newRow("slash") << "a/../../../b" << false;
    QTest::newRow("null") << QString("a") + QChar(0) + "b" << false;
    QTest::newRow("too long") << QString(300, 'x') << false;
    QTest::newRow("a file is in the way") << "a" << true;
}

void TestBackup::folderThatCannotBeMade()
{
    const auto [name, isBlocked] = fetched<QString, bool>();
    m_parent->open("hero/hero.code", "2 a.spr");
    QVERIFY(writeFile(m_root + "hero/a.spr", "sprites"));
    if (isBlocked) {
        QVERIFY(writeFile(m_root + "backup", "in the way"));
    }
    QVERIFY(m_parent->backup(name));
    QCOMPARE(m_parent->failedFiles().size(), 1);
    QVERIFY(m_parent->failedFiles().first().startsWith("backup/"));
    QCOMPARE(contentsOf(m_dir->path()).size(), isBlocked ? 2 : 1);
}

void TestBackup::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("the folder of backups") << ".";
    QTest::newRow("the game") << "..";
    QTest::newRow("slash") << "sub/folder";
    QTest::newRow("outside") << "../../other";
}

void TestBackup::refusesNames()
{
    QFETCH(QString, name);
    TestInterface host;
    for (const QString folder : {"", "sub/folder/", "../../other/"}) {
        QVERIFY(writeFile(m_root + "backup/" + folder + "a.spr", "not wanted"));
    }
    QVERIFY(!m_parent->restoreBackup(name));
    QVERIFY(!QFile::exists(m_root + "a.spr"));
    QCOMPARE(m_parent->backupFiles(name), QStringList());
    QVERIFY(host.progresses.isEmpty() && host.refreshCount == 0);
}

void TestBackup::refusesReadOnlyArchive()
{
    TestInterface host;
    const QString backup = makeBackup({{"a.spr", "not wanted"}});
    ReadOnlyArchive archive;
    ReadOnlyParent parent(m_root, archive);
    QVERIFY(!parent.restoreBackup(backup));
    QVERIFY(!QFile::exists(m_root + "a.spr"));
    QVERIFY(host.progresses.isEmpty() && host.refreshCount == 0);
}

void TestBackup::listsYoungestFirst()
{
    const QStringList names = {"02.01.2021_1.0.0_am_a",
                               "02.01.2021_12.59.59_am_b",
                               "01.12.2020_11.59.0_pm_c",
                               "01.12.2020_12.1.0_pm_d",
                               "31.01.2020_1.1.1_pm_e_f",
                               "99.99.2020_1.1.1_pm_g",
                               "by hand"};
    for (int i = names.size(); i > 0; --i) {
        QDir().mkpath(m_root + "backup/" + names.at(i - 1));
    }
    QVERIFY(QDir().mkpath(m_root + "backup/.hidden"));
    QVERIFY(writeFile(m_root + "backup/file"));
    QVERIFY(QFile::link(m_root, m_root + "backup/link"));
    QCOMPARE(m_parent->backups(), names);

    QString name;
    QCOMPARE(ParentProject::backupTime("31.01.2020_1.1.1_pm_e_f", &name),
             QDateTime({2020, 1, 31}, {13, 1, 1}));
    QCOMPARE(name, QString("e_f"));
    QVERIFY(!ParentProject::backupTime("99.99.2020_1.1.1_pm_g", &name).isValid());
    QCOMPARE(name, QString("99.99.2020_1.1.1_pm_g"));
}

void TestBackup::passesOverStrangeEntries()
{
    const QString outside = m_dir->filePath("outside");
    QVERIFY(writeFile(outside + "/secret", "secret"));
    const QString backup = makeBackup({{"a.spr", "a"},
                                       {"deep/er/b.spr", "b"},
                                       {".hidden", "h"},
                                       {"deep/.git/config", "h"},
                                       {"backup.txt", "c"}});
    const QString folder = m_root + "backup/" + backup + "/";
    QVERIFY(QFile::link(outside + "/secret", folder + "link"));
    QVERIFY(QFile::link(outside, folder + "linked"));
    QVERIFY(QFile::link(folder + "gone", folder + "dangling"));
    QVERIFY(QFile::link(folder, folder + "deep/circle"));
    QVERIFY(writeFile(folder + "closed", "x") && QFile::setPermissions(folder + "closed", {}));
    QStringList expected = {"a.spr", "backup.txt", "deep/er/b.spr"};
    if (QFileInfo(folder + "closed").isReadable()) {
        expected.insert(2, "closed");  // to the superuser
    }
    QStringList files = m_parent->backupFiles(backup);
    files.sort();
    QCOMPARE(files, expected);
    QVERIFY(m_parent->restoreBackup(backup));
    QCOMPARE(contentsOf(m_root).keys(), expected);
}

void TestBackup::givenUp()
{
    TestInterface host;
    RandomGame game(7);
    host.cancelAfter = 1;
    QCOMPARE(game.parent->makeBackup("part"), QString());
    QVERIFY(game.parent->wasCanceled());
    QCOMPARE(host.progresses.last().updates.size(), 2);
    QCOMPARE(everythingIn(game.root + "backup"), QStringList());
    host.cancelAfter = -1;
    const QString backup = game.parent->makeBackup("whole");

    // Documents show what is on disk, also when only a part has come back.
    TestProject* first = game.projects.first();
    CodeDocument* main = RandomGame::document(first);
    QTextCursor(main).insertText("#unsaved\n");
    host.cancelAfter = 0;
    QVERIFY(game.parent->restoreBackup(backup));
    QVERIFY(game.parent->wasCanceled());
    QVERIFY(host.progresses.last().finished);
    QCOMPARE(host.refreshCount, 1);
    QCOMPARE(main->toData(), readFile(main->fileName()));
    QVERIFY(!main->isModified() && !main->isWatchPaused());
}

void TestBackup::asksNothingAboutItsOwnChanges()
{
    TestInterface host;
    PlannedDialogs dialogs;
    TestProject* project = m_parent->open("hero.code", {});
    CodeDocument* main = RandomGame::document(project);
    QVERIFY(writeFile(m_root + "hero.code", "present"));
    QVERIFY(main->fromFile(*FileSystemArchive::instance(), m_root + "hero.code", false));
    const QString backup = makeBackup({{"hero.code", "restored"}});
    QVERIFY(m_parent->restoreBackup(backup));
    QCOMPARE(main->text(), QString("restored"));
    QTest::qWait(400);
    QCOMPARE(dialogs.count(), 0);
    QVERIFY(writeFile(m_root + "hero.code", "from outside"));
    QTRY_COMPARE(dialogs.count("question"), 1);
}

void TestBackup::fullDisk_data()
{
    QTest::addColumn<bool>("isShort");
    QTest::newRow("at once") << false;
    QTest::newRow("in the middle of a file") << true;
}

// Wherever the disk runs full, what is told is what is missing, and no file of
// the game or of the backup is cut.
void TestBackup::fullDisk()
{
    QFETCH(bool, isShort);
    Contents present, old;
    QString names;
    for (int i = 0; i < 6; ++i) {
        const QString name = QString("part%1.spr").arg(i);
        present["hero/" + name] = QByteArray(150000, char('A' + i));
        old["hero/" + name] = QByteArray(250000, char('a' + i));
        names += "2 " + name + "\n";
    }
    TestProject* project = m_parent->open("hero/hero.code", names);
    present["hero/hero.code"] = RandomGame::document(project)->toData();
    for (auto it = present.cbegin(); it != present.cend(); ++it) {
        QVERIFY(writeFile(m_root + it.key(), it.value()));
    }
    const QString backup = makeBackup(old);
    for (int nth = 1; nth <= 7; ++nth) {
        faultArm("hero", FaultWrite, nth, ENOSPC, isShort);
        QVERIFY(m_parent->backup(QString("m_%1").arg(nth)));
        faultArm("", FaultOpen, 0, 0, 0);
        const QStringList failed = m_parent->failedFiles();
        QVERIFY(!failed.isEmpty());
        Contents expected = present;
        for (const QString& file : failed) {
            QCOMPARE(expected.remove(file), 1);
        }
        // What is not whole is no backup, and takes no room.
        QVERIFY(expected.size() < present.size());
        QCOMPARE(everythingIn(m_root + "backup"), QStringList(backup));
        QCOMPARE(contentsOf(m_root), present);
    }
    faultArm("hero", FaultWrite, 5, ENOSPC, isShort);
    QVERIFY(m_parent->restoreBackup(backup));
    faultArm("", FaultOpen, 0, 0, 0);
    QVERIFY(!m_parent->failedFiles().isEmpty());
    Contents expected = present;
    for (const QString& file : old.keys()) {
        if (!m_parent->failedFiles().contains(file)) {
            expected[file] = old[file];
        }
    }
    QCOMPARE(contentsOf(m_root), expected);
}

void TestBackup::oneMomentAndNameIsOneBackup()
{
    m_parent->open("hero/hero.code", "2 a.spr");
    QString first, second;
    do {
        QVERIFY(writeFile(m_root + "hero/a.spr", "old"));
        first = m_parent->makeBackup("a");
        QVERIFY(QFile::remove(m_root + "backup/" + first + "/hero/hero.code"));
        QVERIFY(writeFile(m_root + "backup/" + first + "/other", "stays"));
        QVERIFY(writeFile(m_root + "hero/a.spr", "new"));
        second = m_parent->makeBackup("a");
    } while (first != second);
    const Contents made = contentsOf(m_root + "backup/" + second);
    QCOMPARE(made.keys(), QStringList({"hero/a.spr", "hero/hero.code", "other"}));
    QCOMPARE(made["hero/a.spr"], QByteArray("new"));
    QVERIFY(!everythingIn(m_root + "backup").first().startsWith('.'));
}

// What is listed is whole whenever the program is killed, and what it leaves goes with the next.
void TestBackup::killedBackup()
{
    Contents present;
    QString names;
    for (int i = 0; i < 12; ++i) {
        names += QString("2 part%1.spr\n").arg(i);
        present[QString("hero/part%1.spr").arg(i)] = QByteArray(600000, char('a' + i));
    }
    present["hero/hero.code"] =
        RandomGame::document(m_parent->open("hero/hero.code", names))->toData();
    for (auto it = present.cbegin(); it != present.cend(); ++it) {
        QVERIFY(writeFile(m_root + it.key(), it.value()));
    }
    QRandomGenerator random(12);
    int parts = 0;
    for (int round = 0; round < 40; ++round) {
        const pid_t pid = fork();
        if (pid == 0) {
            m_parent->backup(QString::number(round));
            _exit(0);
        }
        QTest::qSleep(1 + random.bounded(12));
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        const QStringList left = everythingIn(m_root + "backup").filter(".zorv-backup");
        QVERIFY(left.size() <= 1);
        parts += left.size();
        for (const QString& part : left) {
            QVERIFY(!m_parent->restoreBackup(part) && m_parent->backupFiles(part).isEmpty());
        }
        for (const QString& backup : m_parent->backups()) {
            QCOMPARE(contentsOf(m_root + "backup/" + backup), present);
            QVERIFY(QDir(m_root + "backup/" + backup).removeRecursively());
        }
    }
    QVERIFY2(parts > 0, "no backup was killed in its middle");
    QCOMPARE(everythingIn(m_root + "backup").size(), !m_parent->makeBackup("x").isEmpty());
}

// A restore that is killed leaves each file whole: the old one or the new one.
void TestBackup::killed()
{
    Contents present, old;
    for (int i = 0; i < 12; ++i) {
        present[QString("part%1.spr").arg(i)] = QByteArray(600000, 'N');
        old[QString("part%1.spr").arg(i)] = QByteArray(900000, 'o');
    }
    const QString backup = makeBackup(old);
    QRandomGenerator random(11);
    int parts = 0;
    for (int round = 0; round < 25; ++round) {
        for (auto it = present.cbegin(); it != present.cend(); ++it) {
            QVERIFY(writeFile(m_root + it.key(), it.value()));
        }
        const pid_t pid = fork();
        if (pid == 0) {
            m_parent->restoreBackup(backup);
            _exit(0);
        }
        QTest::qSleep(1 + random.bounded(25));
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        int restored = 0;
        for (const QString& file : present.keys()) {
            const QByteArray content = readFile(m_root + file);
            QVERIFY2(content == present[file] || content == old[file], qPrintable(file));
            restored += content == old[file];
        }
        parts += restored > 0 && restored < present.size();
    }
    QVERIFY(m_parent->restoreBackup(backup));
    QCOMPARE(contentsOf(m_root), old);  // and nothing that was begun is left behind
    QVERIFY2(parts > 0, "no restore was killed in its middle");
}

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
