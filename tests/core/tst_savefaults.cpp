#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/safefile.h"
#include "support/faultshim.h"
#include "support/folders.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QTemporaryDir>
#include <QTextCursor>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorv;

namespace {

const int BlockSize = 100000;
const int BlockCount = 20;
const int KillCount = 220;

QStringList leftovers(const QString& folder)
{
    QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(QStringLiteral("victim.def"));
    return names;
}

// A file of blocks of one letter; a part of it, or a mixture, shows.
bool save(const QString& path, char letter, QString* error = nullptr)
{
    FileSystemArchive* archive = FileSystemArchive::instance();
    QIODevice* device = archive->openFile(path, QIODevice::WriteOnly, error);
    if (!device) {
        return false;
    }
    for (int i = 0; i < BlockCount; ++i) {
        device->write(QByteArray(BlockSize, letter));
    }
    return archive->closeFile(device, error);
}

bool isWhole(const QByteArray& content)
{
    return content.size() == BlockSize * BlockCount &&
           content.count(content.at(0)) == content.size();
}

// Runs a piece of work in a process of its own; gives its exit status.
int inChild(const std::function<int()>& work)
{
    const pid_t pid = fork();
    if (pid == 0) {
        _exit(work());
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

class TestSaveFaults : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        path = folder->filePath(QStringLiteral("victim.def"));
        QVERIFY(save(path, 'o'));
    }

    void cleanup() { faultArm("", FaultOpen, 0, 0, 0); }

    void everyCallFails_data()
    {
        columns<int, int, bool>("call", "error", "isShort");
        QTest::newRow("open") << int(FaultOpen) << EACCES << false;
        QTest::newRow("open, too many files") << int(FaultOpen) << EMFILE << false;
        QTest::newRow("write, disk full") << int(FaultWrite) << ENOSPC << false;
        QTest::newRow("write, disk full in the middle") << int(FaultWrite) << ENOSPC << true;
        QTest::newRow("write, broken disk") << int(FaultWrite) << EIO << false;
        QTest::newRow("flush") << int(FaultSync) << EIO << false;
        QTest::newRow("close") << int(FaultClose) << EIO << false;
        QTest::newRow("rename") << int(FaultRename) << EACCES << false;
    }

    void everyCallFails()
    {
        const auto [call, error, isShort] = fetched<int, int, bool>();
        const auto kind = FaultCall(call);
        faultArm("victim", kind, 0, 0, 0);
        QVERIFY(save(path, 'o'));
        const int calls = faultCalls(kind);
        QVERIFY2(calls > 0, "the shim is not in the way of the calls");

        const QByteArray old = readFile(path);
        QVERIFY(isWhole(old));
        for (int nth = 1; nth <= calls; ++nth) {
            faultArm("victim", kind, nth, error, isShort);
            QString text;
            QVERIFY2(!save(path, 'n', &text), qPrintable(QString::number(nth)));
            faultArm("", FaultOpen, 0, 0, 0);
            QVERIFY2(text.contains(path), qPrintable(text));
            QVERIFY2(text.contains(qt_error_string(error)), qPrintable(text));
            QCOMPARE(readFile(path), old);
            QCOMPARE(leftovers(folder->path()), QStringList());
        }
    }

    // A change in the middle starts from a copy, which has to be read and written first.
    void everyCallFailsWhileChanging_data() { everyCallFails_data(); }

    void everyCallFailsWhileChanging()
    {
        QFETCH(int, call);
        QFETCH(int, error);
        QFETCH(bool, isShort);
        const auto kind = FaultCall(call);
        const auto change = [this] {
            FileSystemArchive* archive = FileSystemArchive::instance();
            QIODevice* device = archive->openFile(path, QIODevice::ReadWrite);
            if (!device) {
                return false;
            }
            device->seek(BlockSize);
            device->write("new");
            return archive->closeFile(device);
        };
        faultArm("victim", kind, 0, 0, 0);
        QVERIFY(change());
        const int calls = faultCalls(kind);
        QVERIFY(save(path, 'o'));
        const QByteArray old = readFile(path);
        for (int nth = 1; nth <= calls; ++nth) {
            // The file that is only read has nothing to lose when it is closed.
            if (kind == FaultClose && nth == 1) {
                continue;
            }
            faultArm("victim", kind, nth, error, isShort);
            QVERIFY2(!change(), qPrintable(QString::number(nth)));
            faultArm("", FaultOpen, 0, 0, 0);
            QCOMPARE(readFile(path), old);
            QCOMPARE(leftovers(folder->path()), QStringList());
        }
    }

    void writesAreRefusedAfterTheFirstFailure()
    {
        faultArm("victim", FaultWrite, 1, ENOSPC, 0);
        FileSystemArchive* archive = FileSystemArchive::instance();
        QIODevice* device = archive->openFile(path, QIODevice::WriteOnly);
        const QByteArray large(10 * BlockSize, 'n');
        QCOMPARE(device->write(large), qint64(-1));
        QCOMPARE(device->write("x"), qint64(-1));
        QVERIFY(!archive->closeFile(device));
        QVERIFY(isWhole(readFile(path)));
    }

    // What is told is why, also of a result that a disk took half of.
    void shortWriteOfAResult()
    {
        faultArm("result", FaultWrite, 1, ENOSPC, 1);
        QString error;
        const QString result = folder->filePath(QStringLiteral("result.bin"));
        QVERIFY(!SafeFile::save(result, QByteArray(BlockSize, 'n'), &error, SafeFile::IsCopy));
        QVERIFY2(error.contains(qt_error_string(ENOSPC)), qPrintable(error));
        QCOMPARE(leftovers(folder->path()), QStringList());
    }

    void fullDisk()
    {
        const QByteArray old = readFile(path);
        const int status = inChild([this] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{BlockSize * 3 + 7, BlockSize * 3 + 7};
            setrlimit(RLIMIT_FSIZE, &limit);
            QString error;
            if (save(path, 'n', &error)) {
                return 1;
            }
            return error.contains(qt_error_string(EFBIG)) ? 0 : 2;
        });
        QCOMPARE(status, 0);
        QCOMPARE(readFile(path), old);
        QCOMPARE(leftovers(folder->path()), QStringList());
    }

    void folderWithoutWritePermission()
    {
        const QByteArray old = readFile(path);
        QVERIFY(QFile::setPermissions(folder->path(), QFile::Permissions(0x5555)));
        const int status = savedAsNobody();
        QVERIFY(QFile::setPermissions(folder->path(), QFile::Permissions(0x7755)));
        QCOMPARE(status, 0);
        QCOMPARE(readFile(path), old);
        QCOMPARE(leftovers(folder->path()), QStringList());
    }

    // A file that may not be written is not replaced by way of its folder either.
    void writeProtectedFile()
    {
        const QByteArray old = readFile(path);
        QVERIFY(QFile::setPermissions(folder->path(), QFile::Permissions(0x7777)));
        QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x4444)));
        QCOMPARE(savedAsNobody(), 0);
        QCOMPARE(readFile(path), old);
        QCOMPARE(leftovers(folder->path()), QStringList());
    }

    void folderVanishesDuringTheSave()
    {
        const QString inner = folder->filePath(QStringLiteral("inner/victim.def"));
        FileSystemArchive* archive = FileSystemArchive::instance();
        QIODevice* device = archive->openFile(inner, QIODevice::WriteOnly);
        QVERIFY(device);
        device->write("text");
        QVERIFY(QDir(folder->filePath(QStringLiteral("inner"))).removeRecursively());
        QString error;
        QVERIFY(!archive->closeFile(device, &error));
        QVERIFY(error.contains(inner));
    }

    // What could not be read whole does not replace what is there.
    // Text that was never saved is nowhere else: it must be on the disk before it counts as saved.
    void newPlaceWaitsForUnsavedText()
    {
        TestParent parent(folder->filePath("game"));
        TestProject* project = parent.open("hero.code", "old");
        auto* document = static_cast<CodeDocument*>(project->file(FileID::MainCode));
        QVERIFY(document->toFile(*FileSystemArchive::instance(), document->fileName(), false));
        QTextCursor(document).insertText("new");
        faultArm("new place", FaultSync, 1, EIO, 0);
        parent.saveAs(folder->filePath("new place/hero.code"));
        QCOMPARE(parent.failedFiles(), QStringList("hero.code"));
        QVERIFY(document->isModified());
        QCOMPARE(document->fileName(), folder->filePath("game/hero.code"));
    }

    void copyOfABrokenSource()
    {
        FileSystemArchive& archive = *FileSystemArchive::instance();
        const QString target = folder->filePath(QStringLiteral("target.def"));
        QVERIFY(save(target, 't'));
        QString error;
        QVERIFY(!copyFile(archive, folder->filePath(QStringLiteral("missing")), archive, target,
                          &error));
        QVERIFY(error.contains(QStringLiteral("missing")));
        QVERIFY(isWhole(readFile(target)));

        faultArm("victim", FaultWrite, 2, ENOSPC, 0);
        QVERIFY(copyFile(archive, target, archive, path, &error));
        QVERIFY(error.contains(path));
        QCOMPARE(readFile(path).at(0), 'o');
    }

    // Each time the old or the new file is found, and the next save clears up.
    void killedWhileSaving()
    {
        const quint32 seed = 20240611;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        int withLeftover = 0;
        for (int i = 0; i < KillCount; ++i) {
            const pid_t pid = fork();
            if (pid == 0) {
                for (int n = 0;; ++n) {
                    save(path, char('a' + n % 26));
                }
            }
            usleep(useconds_t(random.bounded(12000)));
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
            QVERIFY(isWhole(readFile(path)));
            const int count = leftovers(folder->path()).size();
            QVERIFY(count <= 1);
            withLeftover += count;
        }
        QVERIFY2(withLeftover > KillCount / 10, "hardly any kill came during a save");
        QVERIFY(save(path, 'z'));
        QCOMPARE(leftovers(folder->path()), QStringList());
    }

private:
    /// 0 if it was refused, and told so with the path.
    int savedAsNobody()
    {
        return inChild([this] {
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) {
                return 3;
            }
            QString error;
            if (save(path, 'n', &error)) {
                return 1;
            }
            return error.contains(path) ? 0 : 2;
        });
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

QTEST_MAIN(TestSaveFaults)
#include "tst_savefaults.moc"
