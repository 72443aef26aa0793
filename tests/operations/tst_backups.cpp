#include "operations/backups.h"

#include "family/check/check.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/hostinterface.h"
#include "operations/sharedfiles.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <zorv/core/progressreporter.h>

#include <QTemporaryDir>
#include <QTextCursor>
#include <QtTest>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>

using namespace Family;
using namespace Operations;

namespace {

/// Gives up after some steps, and otherwise shows nothing.
class ImpatientHost : public HostInterface
{
    class Reporter : public Zorv::ProgressReporter
    {
    public:
        explicit Reporter(int patience) : m_patience(patience) {}
        void update(int value, int) override { m_value = value; }
        bool isCanceled() const override { return m_patience >= 0 && m_value >= m_patience; }
        void finish() override { delete this; }

    private:
        int m_patience;
        int m_value = 0;
    };

public:
    Zorv::ProgressReporter* progress(const QString& title, int) override
    {
        if (meanwhile && title.startsWith("Restoring")) {
            meanwhile();
        }
        return new Reporter(patience);
    }

    int patience = -1;
    std::function<void()> meanwhile;  ///< happens while a restore begins to copy
};

}  // namespace

class TestBackups : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sharedFilesAreKept();
    void missingFilesAreNoFailures();
    void projectWithoutNameIsTold_data();
    void projectWithoutNameIsTold();
    void restoreLeavesWhatIsWrittenMeanwhile();
    void givenUpBackupGoes();
    void backupsOfOneMomentStayApart();
    void restoreKeepsWhatItReplaces();
    void refusesWhatIsNoBackup();
    void sharedFilesMoveAlong();

private:
    void write(const QString& file, const QByteArray& content)
    {
        QVERIFY(writeFile(m_root + file, content));
    }
    QString inBackup(const BackupResult& result, const QString& file) const
    {
        return m_root + "backup/" + result.folder + "/" + file;
    }
    FamilyDocument* edit(const QString& file, const QString& text)
    {
        FamilyDocument* document = openDocumentOf(*m_game, file);
        QTextCursor(document).insertText(text);
        return document;
    }

    ImpatientHost m_host;
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;
    std::unique_ptr<FamilyParentProject> m_game;
    QList<FamilyProject*> m_projects;
};

void TestBackups::init()
{
    m_host.patience = -1;
    m_host.meanwhile = {};
    startHost(&m_host);
    m_dir = std::make_unique<QTemporaryDir>();
    m_root = m_dir->filePath("game/");
    const QByteArray main = "zorv 1\r\n[files]\r\ncode = \"../../shared.code\"\r\n"
                            "sounds = \"own.wav\"\r\n";
    for (const QString name : {"hero", "rival"}) {
        write("characters/" + name + "/" + name + ".character", main);
        write("characters/" + name + "/own.wav", "wave");
    }
    write("shared.code", "zorv 1\r\n");
    m_game = std::make_unique<FamilyParentProject>(m_root);
    QStringList errors;
    m_projects = openAllProjects(m_game.get(), &errors);
    QCOMPARE(m_projects.size(), 2);
    QCOMPARE(errors, QStringList());
}

void TestBackups::cleanup()
{
    closeProjects(m_projects);
    m_game.reset();
}

// A file outside of all projects belongs to the backup, as it is on the screen.
void TestBackups::sharedFilesAreKept()
{
    edit("shared.code", "# unsaved\n");
    const BackupResult result = makeBackup(m_game.get(), "now");
    QCOMPARE(result.error, QString());
    QCOMPARE(readFile(inBackup(result, "shared.code")), QByteArray("# unsaved\r\nzorv 1\r\n"));
    QCOMPARE(readFile(m_root + "shared.code"), QByteArray("zorv 1\r\n"));
    QCOMPARE(listBackups(*m_game).first().fileCount, 5);
    QVERIFY(openDocumentOf(*m_game, "shared.code")->isModified());
}

void TestBackups::missingFilesAreNoFailures()
{
    QVERIFY(QFile::remove(m_root + "characters/hero/own.wav"));
    QVERIFY(QFile::remove(m_root + "characters/rival/own.wav"));
    QVERIFY(QDir().mkpath(m_root + "characters/rival/own.wav"));
    const BackupResult result = makeBackup(m_game.get(), "now");
    QCOMPARE(result.missing, QStringList("characters/hero/own.wav"));
    QCOMPARE(result.failed, QStringList("characters/rival/own.wav"));
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(result.folder, QString());
    QCOMPARE(m_game->backups(), QStringList());

    QVERIFY(QDir().rmdir(m_root + "characters/rival/own.wav"));
    QVERIFY(!makeBackup(m_game.get(), "now").folder.isEmpty());
}

// A name that Qt does not list must not be passed over.
void TestBackups::projectWithoutNameIsTold_data()
{
    columns<QByteArray, QString>("path", "told");
    row("folder", QByteArray("characters/h\xfcro/x.character"), "characters/h\\xfcro");
    row("deep in it", QByteArray("a\xff/b/c.stage"), "a\\xff");
    row("main file", QByteArray("stages/\xfe.stage"), "stages/\\xfe.stage");
    row("no project", QByteArray("a\xff/b/picture.png"), QString());
    row("a backup", QByteArray("backup/\xff/c.stage"), QString());
}

void TestBackups::projectWithoutNameIsTold()
{
    QFETCH(QByteArray, path);
    QFETCH(QString, told);
    const std::filesystem::path file = (QFile::encodeName(m_root) + path).toStdString();
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "zorv 1\r\n";
    QStringList errors;
    openAllProjects(m_game.get(), &errors);
    QCOMPARE(errors.size(), told.isEmpty() ? 0 : 1);
    QVERIFY(told.isEmpty() || errors.first().contains('\'' + told + '\''));
    QString error;
    const Problems problems = checkGame(m_root, &error);
    QCOMPARE(std::count_if(problems.begin(), problems.end(),
                           [&](const Problem& problem) { return problem.file == told; }),
             told.isEmpty() ? 0 : 1);
    QCOMPARE(makeBackup(m_game.get(), "now", errors).folder.isEmpty(), !told.isEmpty());
}

// Other programs may write while a restore is under way: that stays.
void TestBackups::restoreLeavesWhatIsWrittenMeanwhile()
{
    const BackupResult old = makeBackup(m_game.get(), "old");
    write("shared.code", "newer");
    m_host.meanwhile = [this] { write("shared.code", "newest"); };
    const BackupResult result = restoreBackup(m_game.get(), old.folder);
    QCOMPARE(result.failed, QStringList("shared.code"));
    QVERIFY(!result.error.isEmpty());
    QCOMPARE(readFile(m_root + "shared.code"), QByteArray("newest"));
    QCOMPARE(readFile(inBackup(result, "shared.code")), QByteArray("newer"));
}

void TestBackups::givenUpBackupGoes()
{
    m_host.patience = 1;
    const BackupResult result = makeBackup(m_game.get(), "now");
    QVERIFY(result.isCanceled);
    QCOMPARE(m_game->backups(), QStringList());

    // Nor does a restore go on without its safety.
    m_host.patience = -1;
    const BackupResult whole = makeBackup(m_game.get(), "now");
    write("shared.code", "changed");
    m_host.patience = 1;
    QVERIFY(restoreBackup(m_game.get(), whole.folder).isCanceled);
    QCOMPARE(readFile(m_root + "shared.code"), QByteArray("changed"));
    QCOMPARE(m_game->backups(), QStringList(whole.folder));
}

// Whatever a restore replaces can be restored in turn, also what belongs to no
// open project, and what was never saved.
void TestBackups::backupsOfOneMomentStayApart()
{
    QSet<QString> folders;
    for (int i = 0; i < 3; ++i) {
        write("characters/hero/own.wav", QByteArray::number(i));
        const BackupResult result = makeBackup(m_game.get(), "now");
        folders.insert(result.folder);
        QCOMPARE(readFile(inBackup(result, "characters/hero/own.wav")), QByteArray::number(i));
    }
    QCOMPARE(folders.size(), 3);
}

void TestBackups::restoreKeepsWhatItReplaces()
{
    write("notes.txt", "old");
    const BackupResult old = makeBackup(m_game.get(), "old");
    QVERIFY(QFile::copy(m_root + "notes.txt", inBackup(old, "notes.txt")));
    write("notes.txt", "new");
    write("characters/hero/own.wav", "new wave");
    closeProjects({m_projects.takeFirst()});
    edit("characters/rival/rival.character", "# unsaved\n");

    QString error;
    QStringList changes;
    for (const RestoredFile& file : filesToRestore(*m_game, old.folder, &error)) {
        changes += file.change == RestoredFile::Changed ? file.path : QString();
    }
    changes.removeAll({});
    QCOMPARE(changes, QStringList({"characters/hero/own.wav", "notes.txt"}));
    const BackupResult safety = restoreBackup(m_game.get(), old.folder);
    QCOMPARE(safety.error, QString());
    QCOMPARE(readFile(m_root + "notes.txt"), QByteArray("old"));
    QCOMPARE(readFile(m_root + "characters/hero/own.wav"), QByteArray("wave"));
    QVERIFY(!openDocumentOf(*m_game, "characters/rival/rival.character")->isModified());

    QVERIFY(restoreBackup(m_game.get(), safety.folder, false).folder.isEmpty());
    QCOMPARE(readFile(m_root + "notes.txt"), QByteArray("new"));
    QCOMPARE(readFile(m_root + "characters/hero/own.wav"), QByteArray("new wave"));
    QVERIFY(readFile(m_root + "characters/rival/rival.character").startsWith("# unsaved"));
}

void TestBackups::refusesWhatIsNoBackup()
{
    for (const QString folder : {"", ".", "..", "../characters", "nosuch"}) {
        QVERIFY(!restoreBackup(m_game.get(), folder).error.isEmpty());
    }
    QCOMPARE(m_game->backups(), QStringList());
}

void TestBackups::sharedFilesMoveAlong()
{
    FamilyDocument* shared = edit("shared.code", "# unsaved\n");
    const QString newRoot = m_dir->filePath("new/");
    m_game->saveAs(newRoot);
    QCOMPARE(moveSharedFiles(m_game.get(), m_root), QStringList());
    QCOMPARE(readFile(newRoot + "shared.code"), QByteArray("# unsaved\r\nzorv 1\r\n"));
    QCOMPARE(readFile(m_root + "shared.code"), QByteArray("zorv 1\r\n"));
    QCOMPARE(shared->fileName(), newRoot + "shared.code");
    QVERIFY(!shared->isModified());
    for (const FamilyProject* project : qAsConst(m_projects)) {
        for (const FamilyDocument* document : project->documents()) {
            QVERIFY(document->fileName().startsWith(newRoot));
        }
    }
}

QTEST_MAIN(TestBackups)
#include "tst_backups.moc"
