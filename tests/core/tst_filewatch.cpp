#include "core/filesystemarchive.h"
#include "core/filewatchhandler.h"
#include "core/filewatchobject.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

/// A document of plain bytes.
class Watched : public FileWatchObject
{
public:
    explicit Watched(const QString& path) { load(path); }

    QString fileName() const override { return name; }

    bool reload() override
    {
        ++reloads;
        delete other;
        other = nullptr;
        return true;
    }

    void load(const QString& path, bool asCopy = false)
    {
        QVERIFY(fromFile(*FileSystemArchive::instance(), path, asCopy));
        if (!asCopy) {
            name = path;
        }
    }

    // The archive puts a new file in the old one's place.
    void save(const QString& path, bool asCopy = false, bool isWatchMovedFirst = true)
    {
        FileSystemArchive& archive = *FileSystemArchive::instance();
        if (isWatchMovedFirst) {
            QVERIFY(toFile(archive, path, asCopy));
        }
        QIODevice* device = archive.openFile(path, QIODevice::WriteOnly);
        QVERIFY(device);
        device->write("saved");
        QVERIFY(archive.closeFile(device));
        if (!isWatchMovedFirst) {
            QVERIFY(toFile(archive, path, asCopy));
        }
        if (!asCopy) {
            name = path;
            renewWatch(path);
        }
    }

    QString name;
    int reloads = 0;
    const Watched* other = nullptr;
};

/// Sees to one object, and leaves the others to the library.
class Handler : public FileWatchHandler
{
public:
    Handler() { setInstance(this); }

    QList<FileWatchObject*> fileChanged(const QString&,
                                        const QList<FileWatchObject*>& objects) override
    {
        QList<FileWatchObject*> others = objects;
        seenTo += others.removeAll(own);
        return others;
    }

    void fileGone(const QString& path) override { gone.append(path); }

    FileWatchObject* own = nullptr;
    int seenTo = 0;
    QStringList gone;
};

// A change from outside, in place.
void change(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append));
    file.write("more");
}

// As many programs save: a new file is renamed over the old one.
void replace(const QString& path)
{
    const QString fresh = path + QStringLiteral("~");
    change(fresh);
    QCOMPARE(::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(path).constData()),
             0);
}

// The watchers of this process that the kernel has open.
int watcherCount()
{
    int count = 0;
    const QFileInfoList files =
        QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System);
    for (const QFileInfo& file : files) {
        count += file.symLinkTarget().endsWith(QLatin1String("inotify"));
    }
    return count;
}

// Long enough for signals that come to have come, and for pauses to have ended.
void settle()
{
    QTest::qWait(400);
}

}  // namespace

class TestFileWatch : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        host = std::make_unique<TestInterface>();
        dialogs = std::make_unique<PlannedDialogs>();
        path = folder->filePath(QStringLiteral("watched.def"));
        change(path);
    }

    void cleanup()
    {
        dialogs.reset();
        host.reset();
    }

    void changeFromOutside_data()
    {
        columns<QVariant, bool>("option", "asks");
        QTest::newRow("host without an opinion") << QVariant() << true;
        QTest::newRow("on") << QVariant(true) << true;
        QTest::newRow("off") << QVariant(false) << false;
    }

    void changeFromOutside()
    {
        const auto [option, asks] = fetched<QVariant, bool>();
        host->options[QStringLiteral("enable_file_watcher")] = option;
        Watched document(path);
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        if (!asks) {
            settle();
            QCOMPARE(dialogs->count(), 0);
            return;
        }
        QTRY_COMPARE(document.reloads, 1);
        const PlannedDialogs::Shown shown = dialogs->shown.value(0);
        QCOMPARE(shown.title, QStringLiteral("File modified"));
        QCOMPARE(shown.text,
                 QStringLiteral("The file '%1' has been modified. Do you want to reload all other "
                                "instances of this file now?")
                     .arg(path));
        QCOMPARE(shown.buttons, Dialogs::Yes | Dialogs::No);
        QCOMPARE(shown.defaultButton, Dialogs::No);
    }

    void refusedReload()
    {
        Watched document(path);
        change(path);
        QTRY_VERIFY(dialogs->count() > 0);
        QCOMPARE(document.reloads, 0);
    }

    // However a file is replaced, each further change is noticed as well.
    void watchOutlivesTheFile_data()
    {
        QTest::addColumn<bool>("isRemoved");
        QTest::newRow("renamed over") << false;
        QTest::newRow("removed and made anew") << true;
    }

    void watchOutlivesTheFile()
    {
        QFETCH(bool, isRemoved);
        Watched document(path);
        for (int round = 0; round < 3; ++round) {
            const int before = dialogs->count();
            if (isRemoved) {
                QVERIFY(QFile::remove(path));
                settle();
                QCOMPARE(dialogs->count(), before);
                change(path);
            } else {
                replace(path);
            }
            QTRY_VERIFY(dialogs->count() > before);
            settle();
        }
    }

    void folderThatVanishes()
    {
        const QString inner = folder->filePath(QStringLiteral("a/b/inner.def"));
        QVERIFY(QDir().mkpath(QFileInfo(inner).absolutePath()));
        change(inner);
        Watched document(inner);
        QVERIFY(QDir(folder->filePath(QStringLiteral("a"))).removeRecursively());
        settle();
        QCOMPARE(dialogs->count(), 0);
        QVERIFY(QDir().mkpath(QFileInfo(inner).absolutePath()));
        settle();
        change(inner);
        QTRY_VERIFY(dialogs->count() > 0);
        settle();
        const int before = dialogs->count();
        replace(inner);
        QTRY_VERIFY(dialogs->count() > before);
    }

    void ownSave_data()
    {
        columns<QString, bool, bool>("name", "isWatchMovedFirst", "isBusy");
        QTest::newRow("in place") << "watched.def" << true << false;
        QTest::newRow("in place, watch last") << "watched.def" << false << false;
        QTest::newRow("under a new name") << "new.def" << true << false;
        QTest::newRow("under a new name, watch last") << "new.def" << false << false;
        QTest::newRow("with much to do behind it") << "watched.def" << true << true;
    }

    void ownSave()
    {
        const auto [name, isWatchMovedFirst, isBusy] = fetched<QString, bool, bool>();
        const QString target = folder->filePath(name);
        Watched document(path);
        for (int round = 0; round < 2; ++round) {
            const int before = dialogs->count();
            document.save(target, false, isWatchMovedFirst);
            QVERIFY(document.isWatchPaused());
            if (isBusy) {
                QTest::qSleep(600);
            }
            QTRY_VERIFY(!document.isWatchPaused());
            settle();
            QCOMPARE(dialogs->count(), before);
            change(target);
            QTRY_VERIFY(dialogs->count() > before);
            settle();
        }
    }

    // The other instance of a file that one saves is asked for, the saved one not.
    void twoDocumentsOnOneFile()
    {
        Watched first(path), second(path);
        dialogs->buttonAnswers = {Dialogs::Yes};
        first.save(path);
        QTRY_COMPARE(second.reloads, 1);
        settle();
        QCOMPARE(first.reloads, 0);

        const QString other = folder->filePath(QStringLiteral("other.def"));
        change(other);
        first.load(other);
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_COMPARE(second.reloads, 2);
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(other);
        QTRY_COMPARE(first.reloads, 1);
    }

    void oneQuestionForAllInstances()
    {
        Watched first(path), second(path);
        // While the person thinks, the file changes again.
        dialogs->whileOpen = [this](const PlannedDialogs::Shown&) {
            change(path);
            settle();
        };
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_COMPARE(second.reloads, 1);
        QCOMPARE(first.reloads, 1);
        QCOMPARE(dialogs->count(), 1);
    }

    void renamedDocumentLeavesTheOldFile()
    {
        Watched document(path);
        const QString other = folder->filePath(QStringLiteral("other.def"));
        change(other);
        document.load(other);
        change(path);
        settle();
        QCOMPARE(dialogs->count(), 0);
    }

    void copiesChangeNoWatch()
    {
        Watched document(path);
        const QString other = folder->filePath(QStringLiteral("other.def"));
        change(other);
        document.load(other, true);
        document.save(folder->filePath(QStringLiteral("copy.def")), true);
        QVERIFY(!document.isWatchPaused());
        change(other);
        settle();
        QCOMPARE(dialogs->count(), 0);
        change(path);
        QTRY_VERIFY(dialogs->count() > 0);
    }

    void pausedByHand()
    {
        Watched document(path);
        document.pauseWatch(true);
        change(path);
        settle();
        QCOMPARE(dialogs->count(), 0);
        QVERIFY(!document.isWatchPaused());

        host->options[QStringLiteral("enable_file_watcher")] = false;
        document.pauseWatch(true);
        change(path);
        settle();
        QVERIFY(document.isWatchPaused());
        document.pauseWatch(false);
        QVERIFY(!document.isWatchPaused());
    }

    void documentsThatDieDuringTheQuestion()
    {
        auto first = std::make_unique<Watched>(path);
        Watched second(path);
        dialogs->whileOpen = [&first](const PlannedDialogs::Shown&) { first.reset(); };
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_COMPARE(second.reloads, 1);
    }

    void documentSavedElsewhereDuringTheQuestion()
    {
        Watched document(path);
        dialogs->whileOpen = [&document](const PlannedDialogs::Shown& shown) {
            document.save(shown.text.section(QLatin1Char('\''), 1, 1) + QStringLiteral(".new"));
        };
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_VERIFY(document.name != path);
        settle();
        QCOMPARE(document.reloads, 0);
    }

    void lastDocumentDiesDuringTheQuestion()
    {
        auto document = std::make_unique<Watched>(path);
        dialogs->whileOpen = [&document](const PlannedDialogs::Shown&) { document.reset(); };
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_VERIFY(!document);
        settle();
    }

    void reloadThatClosesTheOther()
    {
        auto* first = new Watched(path);
        auto* second = new Watched(path);
        first->other = second;
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_COMPARE(first->reloads, 1);
        settle();
        delete first;
    }

    // Closing a watcher takes longer than all the rest that a small project needs.
    void watchersAreNotClosedOneByOne()
    {
        {
            const Watched first(path);
        }
        const int open = watcherCount();
        QCOMPARE(open, 1);
        const QString other = path + QStringLiteral("2");
        change(other);
        for (int i = 0; i < 3; ++i) {
            const Watched document(path);
            const TestParent game(folder->path());
        }
        QVERIFY(watcherCount() <= open + 1);  // one for each of the two
        const Watched document(other);
        change(path);
        settle();
        QCOMPARE(dialogs->count(), 0);
        change(other);
        QTRY_COMPARE(dialogs->count(), 1);
        QCOMPARE(dialogs->texts(QStringLiteral("question")).size(), 1);
    }

    void hostThatDoesNotWatch()
    {
        host->watches = false;
        const int open = watcherCount();
        Watched document(path);
        TestParent game(folder->path());
        game.addPath(QStringLiteral("stages"), ParentProject::ListFiles, {QStringLiteral("*.x")});
        document.save(path);
        QVERIFY(writeFile(folder->filePath(QStringLiteral("stages/new.x"))));
        change(path);
        settle();
        QCOMPARE(dialogs->count(), 0);
        QVERIFY(!document.isWatchPaused());
        QCOMPARE(game.dump(), QStringList(QStringLiteral("stages/")));
        QCOMPARE(watcherCount(), open);
        document.save(folder->filePath(QStringLiteral("elsewhere")));
        QVERIFY(document.reload());
    }

    void handlerTakesWhatItSeesTo()
    {
        Watched own(path);
        Watched other(path);
        {
            Handler handler;
            handler.own = &own;
            dialogs->buttonAnswers = {Dialogs::Yes};
            change(path);
            QTRY_COMPARE(other.reloads, 1);
            QCOMPARE(handler.seenTo, 1);
            QCOMPARE(own.reloads, 0);
            settle();
            QVERIFY(QFile::remove(path));
            QTRY_COMPARE(handler.gone, QStringList(path));
            QCOMPARE(dialogs->count(), 1);
        }
        QVERIFY(!FileWatchHandler::instance());
        dialogs->buttonAnswers = {Dialogs::Yes};
        change(path);
        QTRY_COMPARE(own.reloads, 1);
    }

private:
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<TestInterface> host;
    std::unique_ptr<PlannedDialogs> dialogs;
    QString path;
};

QTEST_GUILESS_MAIN(TestFileWatch)
#include "tst_filewatch.moc"
