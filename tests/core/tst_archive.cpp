#include "core/extensionmanager.h"
#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/safefile.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Zorv;

namespace {

FileSystemArchive& archive()
{
    return *FileSystemArchive::instance();
}

QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status;
}

class KnownExtension : public Extension
{
public:
    explicit KnownExtension(int type) : m_type(Type(type)) {}
    Type type() const override { return m_type; }

private:
    Type m_type;
};

}  // namespace

class TestArchive : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        path = at("file.def");
    }

    void missingFileIsNotOpened_data()
    {
        QTest::addColumn<int>("mode");
        row("read", int(QIODevice::ReadOnly));
        row("append alone", int(QIODevice::Append));
        row("change an existing one", int(QIODevice::ReadWrite | QIODevice::ExistingOnly));
    }

    void missingFileIsNotOpened()
    {
        QFETCH(int, mode);
        const QString missing = at("no/such/file");
        QString error;
        QVERIFY(!archive().openFile(missing, QIODevice::OpenMode(mode), &error));
        QVERIFY2(error.contains(missing), qPrintable(error));
        QVERIFY(!QFile::exists(missing));
        QCOMPARE(QDir(at("no")).exists(), bool(mode & QIODevice::WriteOnly));
    }

    void openForWritingMakesFoldersEvenIfItFails()
    {
        QVERIFY(QDir().mkpath(at("a/b")));
        QVERIFY(!archive().openFile(at("a/b/c/"), QIODevice::WriteOnly));
        QVERIFY(QDir(at("a/b/c")).exists());
    }

    void oldFileIsWholeUntilTheDeviceIsBack()
    {
        writeFile(path, "old");
        QIODevice* device = archive().openFile(path, QIODevice::WriteOnly);
        device->write("new text");
        device->close();
        QCOMPARE(readFile(path), QByteArray("old"));
        QVERIFY(archive().closeFile(device));
        QCOMPARE(readFile(path), QByteArray("new text"));
        QCOMPARE(everythingIn(folder->path()), QStringList{QStringLiteral("file.def")});
    }

    void deviceThatDiesLeavesTheOldFile()
    {
        writeFile(path, "old");
        std::unique_ptr<QIODevice> device(archive().openFile(path, QIODevice::WriteOnly));
        device->write("new text");
        device.reset();
        QCOMPARE(readFile(path), QByteArray("old"));
        QCOMPARE(everythingIn(folder->path()).size(), 1);
    }

    void nothingWritten_data()
    {
        columns<int, QByteArray>("mode", "result");
        row("write", int(QIODevice::WriteOnly), QByteArray());
        row("read and write", int(QIODevice::ReadWrite), QByteArray("old"));
        row("append", int(QIODevice::WriteOnly | QIODevice::Append), QByteArray("old"));
        row("truncate", int(QIODevice::ReadWrite | QIODevice::Truncate), QByteArray());
    }

    void nothingWritten()
    {
        QFETCH(int, mode);
        writeFile(path, "old");
        const auto inode = statusOf(path).st_ino;
        QIODevice* device = archive().openFile(path, QIODevice::OpenMode(mode));
        QVERIFY(archive().closeFile(device));
        QTEST(readFile(path), "result");
        if (!readFile(path).isEmpty()) {
            QCOMPARE(statusOf(path).st_ino, inode);
        }
    }

    // The same random work on a buffer in memory gives the same bytes and answers.
    void randomAccessAsInMemory_data()
    {
        QTest::addColumn<int>("mode");
        row("read and write", int(QIODevice::ReadWrite));
        row("append", int(QIODevice::ReadWrite | QIODevice::Append));
    }

    void randomAccessAsInMemory()
    {
        QFETCH(int, mode);
        const quint32 seed = 77;
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        QByteArray content(600000, 'o');
        writeFile(path, content);
        QBuffer model(&content);
        QVERIFY(model.open(QIODevice::OpenMode(mode)));
        QIODevice* device = archive().openFile(path, QIODevice::OpenMode(mode));
        QVERIFY(device);
        for (int step = 0; step < 600; ++step) {
            const int size = random.bounded(step % 50 ? 3000 : 400000);
            switch (random.bounded(4)) {
            case 0: {
                const qint64 place = random.bounded(int(model.size()));
                QCOMPARE(device->seek(place), model.seek(place));
                break;
            }
            case 1:
                QCOMPARE(device->read(size), model.read(size));
                break;
            case 2:
                QCOMPARE(device->peek(size), model.peek(size));
                break;
            default: {
                const QByteArray text(size, char('a' + step % 26));
                // A buffer in memory does not move to its end by itself.
                if (model.openMode() & QIODevice::Append) {
                    model.seek(model.size());
                }
                QCOMPARE(device->write(text), model.write(text));
                if (model.openMode() & QIODevice::Append) {
                    device->seek(model.size());
                }
            }
            }
            QCOMPARE(device->pos(), model.pos());
            QCOMPARE(device->size(), model.size());
        }
        QVERIFY(archive().closeFile(device));
        QVERIFY(readFile(path) == content);
    }

    void permissionsAreKept_data()
    {
        QTest::addColumn<uint>("mode");
        for (const uint mode : {0600u, 0644u, 0755u, 0660u, 0666u}) {
            row(qPrintable(QString::number(mode, 8)), mode);
        }
    }

    void permissionsAreKept()
    {
        QFETCH(uint, mode);
        writeFile(path, "old");
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
        QIODevice* device = archive().openFile(path, QIODevice::WriteOnly);
        device->write("new");
        QVERIFY(archive().closeFile(device));
        QCOMPARE(statusOf(path).st_mode & 07777u, mode);
    }

    void ownOptions_data()
    {
        columns<int, bool, uint>("options", "isWritten", "mode");
        row("none", int(SafeFile::NoOptions), true, 0644u);
        row("nobody else's", int(SafeFile::OwnerOnly), true, 0600u);
        row("what is there stays", int(SafeFile::KeepsExisting), false, 0644u);
    }

    // What stands there by the end counts, not what did at the beginning.
    void ownOptions()
    {
        const auto [options, isWritten, mode] = fetched<int, bool, uint>();
        for (const bool isEarly : {true, false}) {
            QFile::remove(path);
            SafeFile file(path, SafeFile::Options(options));
            const auto putOld = [this] {
                writeFile(path, "old");
                QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0644), 0);
            };
            if (isEarly) {
                putOld();
            }
            const bool isOpen = file.open(QIODevice::WriteOnly) && file.write("new") == 3;
            QVERIFY(isOpen || isEarly);
            if (!isEarly) {
                putOld();
            }
            QCOMPARE(isOpen && file.commit(), isWritten);
            QCOMPARE(file.failure().isEmpty(), isWritten);
            QCOMPARE(readFile(path), QByteArray(isWritten ? "new" : "old"));
            QCOMPARE(statusOf(path).st_mode & 07777u, mode);
        }
    }

    void ownerIsKept()
    {
        if (::geteuid() != 0) {
            QSKIP("only root can give files away");
        }
        writeFile(path, "old");
        QCOMPARE(::chown(QFile::encodeName(path).constData(), 1234, 2345), 0);
        QIODevice* device = archive().openFile(path, QIODevice::WriteOnly);
        device->write("new");
        QVERIFY(archive().closeFile(device));
        QCOMPARE(statusOf(path).st_uid, uid_t(1234));
        QCOMPARE(statusOf(path).st_gid, gid_t(2345));
    }

    void linksAreFollowed_data()
    {
        columns<QString, bool>("target", "isThere");
        row("beside", "target.def", true);
        row("elsewhere", "sub/../sub/target.def", true);
        row("dangling", "sub/new.def", false);
    }

    void linksAreFollowed()
    {
        const auto [target, isThere] = fetched<QString, bool>();
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
        const QString real = folder->filePath(target);
        if (isThere) {
            writeFile(real, "old");
        }
        // A relative link, reached through another one.
        QVERIFY(QFile::link(target, at("first")));
        QVERIFY(QFile::link(at("first"), path));
        QIODevice* device = archive().openFile(path, QIODevice::WriteOnly);
        QVERIFY(device);
        device->write("new");
        QVERIFY(archive().closeFile(device));
        QVERIFY(QFileInfo(path).isSymLink());
        QVERIFY(QFileInfo(at("first")).isSymLink());
        QVERIFY(!QFileInfo(real).isSymLink());
        QCOMPARE(readFile(real), QByteArray("new"));
    }

    void badTargetsAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        row("folder", "sub");
        row("pipe", "pipe");
        row("link to a pipe", "link");
        row("circle of links", "circle");
    }

    void badTargetsAreRefused()
    {
        QFETCH(QString, name);
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
        QCOMPARE(::mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        QVERIFY(QFile::link(at("pipe"), at("link")));
        QVERIFY(QFile::link(at("circle"), at("circle2")));
        QVERIFY(QFile::link(at("circle2"), at("circle")));
        const QStringList before = everythingIn(folder->path());
        const QString target = folder->filePath(name);
        const auto inode = statusOf(target).st_ino;
        QString error;
        QVERIFY(!archive().openFile(target, QIODevice::WriteOnly, &error));
        QVERIFY2(error.contains(target), qPrintable(error));
        // Nor is anything read from there: a pipe would wait for a writer.
        QVERIFY(!archive().openFile(target, QIODevice::ReadOnly, &error));
        QVERIFY2(error.contains(target), qPrintable(error));
        QCOMPARE(statusOf(target).st_ino, inode);
        QCOMPARE(everythingIn(folder->path()), before);
    }

    void leftoversOfDeadProcessesAreSwept()
    {
        const QString name = QString(60, QChar(0x4e2d)) + QStringLiteral("[1].def");
        QTemporaryDir other;
        QIODevice* device = archive().openFile(other.filePath(name), QIODevice::WriteOnly);
        const QString own = everythingIn(other.path()).value(0);
        QVERIFY(own.startsWith('.') && own.endsWith(".zorv-save"));
        QVERIFY(archive().closeFile(device));

        QString alive = own, former = own;
        const QString foreign = own.chopped(12) + "x.zorv-save";
        writeFile(at(own), "part");
        writeFile(at(alive.replace(".0.", ".3.")), "at work");
        writeFile(at(former.replace(".0.", ".123-0.")), "part, of a former version");
        writeFile(at(".of another file.0.zorv-save"), "part");
        writeFile(at(foreign), "not ours");
        QFile writing(at(alive));
        QVERIFY(writing.open(QIODevice::ReadWrite));
        QCOMPARE(::flock(writing.handle(), LOCK_EX), 0);
        QVERIFY(archive().closeFile(archive().openFile(at(name), QIODevice::WriteOnly)));

        QStringList expected{name, alive, foreign}, found = everythingIn(folder->path());
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
    }

    void namesOfAnyLengthAreWritten()
    {
        for (int length = 1; length <= 255; length += 2) {
            const QString name = at(QString(length, 'n'));
            QString error;
            QVERIFY2(SafeFile::save(name, "new", &error), qPrintable(error));
            QVERIFY2(SafeFile::save(name, "over", &error), qPrintable(error));
            QVERIFY(!SafeFile::save(name, "again", &error, SafeFile::KeepsExisting));
            QCOMPARE(readFile(name), QByteArray("over"));
        }
        QCOMPARE(everythingIn(folder->path()).size(), 128);
    }

    void savesOfOneFileAtOnce()
    {
        QIODevice* first = archive().openFile(path, QIODevice::WriteOnly);
        QIODevice* second = archive().openFile(path, QIODevice::WriteOnly);
        first->write("first");
        second->write("second");
        QVERIFY(archive().closeFile(second));
        QVERIFY(archive().closeFile(first));
        QCOMPARE(readFile(path), QByteArray("first"));
        QCOMPARE(everythingIn(folder->path()).size(), 1);
    }

    void largeSave()
    {
        const QByteArray content(100 * 1000 * 1000, 'x');
        QIODevice* device = archive().openFile(path, QIODevice::WriteOnly);
        QCOMPARE(device->write(content), qint64(content.size()));
        QVERIFY(archive().closeFile(device));
        QVERIFY(readFile(path) == content);
    }

    void entriesNeverListLinksAndDots()
    {
        writeFile(path, "text");
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
        QVERIFY(QFile::link(path, at("link")));
        const QDir::Filters all = QDir::AllEntries | QDir::System | QDir::Hidden;
        const QStringList expected{QStringLiteral("file.def"), QStringLiteral("sub")};
        QCOMPARE(archive().entries(folder->path(), all, QDir::Name), expected);
        QStringList names;
        for (const QFileInfo& info : archive().infoEntries(folder->path(), all, QDir::Name)) {
            names.append(info.fileName());
        }
        QCOMPARE(names, expected);
    }

    void extensionOfName_data()
    {
        columns<QString, QByteArray>("name", "extension");
        row("one", "a.pcx", QByteArray("PCX"));
        row("last", "a.tar.gz", QByteArray("GZ"));
        row("none", "a", QByteArray());
        row("of the folder", "a.b/c", QByteArray());
        row("not Latin-1", QString::fromUtf8("a.\u0142"), QByteArray("?"));
    }

    void extensionOfName()
    {
        QFETCH(QString, name);
        QTEST(fileExtension(name), "extension");
    }

    void skippedBytes_data()
    {
        columns<unsigned, qint64>("count", "position");
        row("none", 0u, qint64(0));
        row("less than a piece", 255u, qint64(255));
        row("several pieces", 700u, qint64(700));
        row("behind the end", 0xffffffffu, qint64(1000));
    }

    void skippedBytes()
    {
        QFETCH(unsigned, count);
        QByteArray bytes(1000, 'x');
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        skipRead(&buffer, count);
        QTEST(buffer.pos(), "position");
    }

    void copies()
    {
        QByteArray content;
        for (int i = 0; i < 300001; ++i) {
            content.append(char(i % 251));
        }
        writeFile(path, content);
        const QString target = at("new/folder/copy.def");
        QString error = QStringLiteral("(unset)");
        QVERIFY(copyFile(archive(), path, archive(), target, &error));
        QCOMPARE(error, QString());
        QVERIFY(readFile(target) == content);
        QVERIFY(copyFile(archive(), path, archive(), path, &error));
        QVERIFY(readFile(path) == content);
    }

    void extensionsAreListedByType()
    {
        KnownExtension loader(Extension::ImageLoader), saver(Extension::ImageSaver),
            bad(Extension::User2 + 1);
        ExtensionManager::add(&saver);
        ExtensionManager::add(&loader);
        ExtensionManager::add(&bad);
        QCOMPARE(ExtensionManager::list(Extension::ImageLoader), QList<Extension*>{&loader});
        QCOMPARE(ExtensionManager::list(Extension::ImageSaver), QList<Extension*>{&saver});
        QVERIFY(ExtensionManager::list(bad.type()).isEmpty());
    }

private:
    QString at(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
