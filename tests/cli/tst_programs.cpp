#include "support/folders.h"
#include "support/testtable.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>

// Several programs at once, and programs that are killed or asked to end.

namespace {

using Contents = QMap<QString, QByteArray>;

#ifdef __SANITIZE_ADDRESS__
constexpr int Rounds = 10;  // programs start several times slower
#else
constexpr int Rounds = 50;
#endif
constexpr int Kills = 20;
constexpr int EndMilliseconds = 10000;  // less than a command waits for another one

/// Everything below a folder, hidden files too.
Contents contentsOf(const QString& folder)
{
    Contents all;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        all[name.mid(folder.size() + 1)] = readFile(name);
    }
    return all;
}

void putContents(const QString& folder, const Contents& all)
{
    QDir(folder).removeRecursively();
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        QVERIFY(writeFile(folder + '/' + it.key(), it.value()));
    }
}

QStringList hidden(const Contents& all)
{
    return QStringList(all.keys()).filter(QRegularExpression("(^|/)\\."));
}

/// Numbers of 8 bits, one channel.
QByteArray wav(char first)
{
    const QByteArray samples(64, first);
    return QByteArray::fromHex("52494646640000005741564566 6d742010000000010001 0040 1f0000"
                               "401f00000100080064617461 40000000") +
           samples;
}

QImage picture(int width, int height, uint seed)
{
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable({0xff000000, 0xffff0000, 0xff00ff00, 0xff0000ff});
    QRandomGenerator random(seed);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, random.bounded(4));
        }
    }
    return image;
}

class Program
{
public:
    Program(const QString& folder, const QStringList& arguments)
    {
        m_process.setWorkingDirectory(folder);
        m_process.start(ZORV_PROGRAM, arguments);
    }
    ~Program() { kill(SIGKILL); }

    /// The status; -1 after a signal, -2 if it does not end.
    int end()
    {
        const bool isEnded = m_process.state() == QProcess::NotRunning ||
                             m_process.waitForFinished(3 * EndMilliseconds);
        return !isEnded                                        ? -2
               : m_process.exitStatus() == QProcess::CrashExit ? -1
                                                               : m_process.exitCode();
    }
    void kill(int number)
    {
        if (m_process.waitForStarted() && m_process.state() != QProcess::NotRunning) {
            ::kill(pid_t(m_process.processId()), number);
            m_process.waitForFinished(EndMilliseconds);
        }
    }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    QString output() { return QString::fromUtf8(m_process.readAllStandardOutput()); }
    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QProcess m_process;
};

}  // namespace

class TestPrograms : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void twoAtOnce_data();
    void twoAtOnce();
    void killed_data();
    void killed();
    void endsBySignal_data();
    void endsBySignal();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void killedRunLeavesNoCopies();

private:
    QString at(const QString& name) const { return m_dir.filePath("work/" + name); }
    int run(const QStringList& arguments) { return Program(at({}), arguments).end(); }

    // Thousands of small files are written: where there is a disk in memory, on that.
    QTemporaryDir m_dir{(QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) +
                        "/tst_programs-XXXXXX"};
    Contents m_start;
};

void TestPrograms::initTestCase()
{
    Contents game;
    for (const QString name : {"hero.anim", "hero.character", "moves.code"}) {
        game["game/hero/" + name] = readFile(QString(CLI_TESTS "/game/hero/") + name);
    }
    game["5-0.wav"] = wav(1);
    game["5-1.wav"] = wav(2);
    game["5-2.wav"] = wav(3);
    putContents(at({}), game);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(picture(12, 9, uint(i)).save(at(QString("200-%1.png").arg(i))));
    }
    QVERIFY(QDir().mkpath(at("folder")));
    QCOMPARE(run({"sprites", "import", "a.sprites", "200-0.png", "200-1.png"}), 0);
    QCOMPARE(run({"sprites", "import", "folder", "200-0.png"}), 0);
    QCOMPARE(run({"sound", "import", "a.sounds", "5-0.wav"}), 0);
    QCOMPARE(run({"palette", "convert", "200-0.png", "--out", "a.act"}), 0);
    QCOMPARE(run({"image", "quantize", "200-1.png", "--colours", "2", "--out", "few.png"}), 0);
    m_start = contentsOf(at({}).chopped(1));
    QCOMPARE(hidden(m_start), QStringList());
}

void TestPrograms::twoAtOnce_data()
{
    columns<QStringList, QStringList>("first", "second");
    const auto row = [](const char* name, const QStringList& first, const QStringList& second) {
        ::row(name, first, second);
    };
    const QString character = "game/hero/hero.character", anim = "game/hero/hero.anim";
    row("set", {"set", character, "constants.life", "5"}, {"set", character, "info.name", "six"});
    row("anim duplicate, anim move", {"anim", "duplicate", anim, "#0", "901"},
        {"anim", "move", anim, "#1", "0"});
    row("anim remove, anim sort", {"anim", "remove", anim, "200"}, {"anim", "sort", anim});
    const QStringList import{"sprites", "import", "a.sprites", "200-2.png"};
    row("sprites import", import, {"sprites", "import", "a.sprites", "200-3.png"});
    row("sprites import, new", {"sprites", "import", "new/a.sprites", "200-2.png"},
        {"sprites", "import", "new/a.sprites", "200-3.png"});
    row("sprites import, folder", {"sprites", "import", "folder", "200-2.png"},
        {"sprites", "import", "folder", "200-3.png"});
    row("palette apply, sprites", {"palette", "apply", "few.png", "a.sprites", "--force"}, import);
    row("palette convert", {"palette", "convert", "few.png", "--out", "a.act", "--force"},
        {"palette", "convert", "200-1.png", "--out", "a.act", "--force"});
    row("sound import", {"sound", "import", "a.sounds", "5-1.wav"},
        {"sound", "import", "a.sounds", "5-2.wav"});
    const auto edit = [](const QStringList& what) {
        return what.mid(0, 2) + QStringList{"200-0.png", "--force"} + what.mid(2);
    };
    row("image rotate, image crop", edit({"image", "rotate", "--angle", "90"}),
        edit({"image", "crop"}));
    row("image resize, image quantize", edit({"image", "resize", "--size", "20x9"}),
        edit({"image", "quantize", "--colours", "2"}));
    row("image convert, palette apply", edit({"image", "convert"}),
        {"palette", "apply", "few.png", "200-0.png", "--force"});
}

// What comes out is what comes out of one after the other.
void TestPrograms::twoAtOnce()
{
    const auto [first, second] = fetched<QStringList, QStringList>();
    Contents wanted[2];
    for (int i = 0; i < 2; ++i) {
        putContents(at({}), m_start);
        QCOMPARE(run(i == 0 ? first : second), 0);
        QCOMPARE(run(i == 0 ? second : first), 0);
        wanted[i] = contentsOf(at({}).chopped(1));
    }
    for (int round = 0; round < Rounds; ++round) {
        putContents(at({}), m_start);
        Program one(at({}), first);
        Program other(at({}), second);
        QVERIFY2(one.end() == 0, qPrintable(one.errors()));
        QVERIFY2(other.end() == 0, qPrintable(other.errors()));
        const Contents found = contentsOf(at({}).chopped(1));
        QVERIFY2(found == wanted[0] || found == wanted[1], qPrintable(QString::number(round)));
    }
}

void TestPrograms::killed_data()
{
    columns<QStringList, QString>("command", "made");
    row("set", QStringList{"set", "game/hero/hero.character", "constants.life", "5"}, QString());
    row("import", QStringList{"sprites", "import", "a.sprites", "200-2.png"}, QString());
    row("export", QStringList{"sprites", "export", "a.sprites", "out/", "--force"},
        QString("out/200-0.png"));
    row("convert",
        QStringList{"image", "convert", "200-0.png", "200-1.png", "--format", "bmp", "--out",
                    "out/", "--force"},
        QString("out/200-0.bmp"));
    row("backup", QStringList{"backup", "game"}, QString());
}

// A file is what it was or what it becomes, and the next command clears up.
void TestPrograms::killed()
{
    QFETCH(QStringList, command);
    const bool isBackup = command.first() == "backup";
    putContents(at({}), m_start);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(run(command), 0);
    const int time = int(clock.elapsed()) + 2;
    const Contents whole = contentsOf(at({}).chopped(1));
    QRandomGenerator random(5);
    for (int i = 0; i < Kills; ++i) {
        putContents(at({}), m_start);
        Program program(at({}), command);
        QTest::qSleep(random.bounded(1, time + 1));
        program.kill(SIGKILL);
        const Contents found = contentsOf(at({}).chopped(1));
        const QStringList litter = hidden(found);
        for (auto it = found.cbegin(); it != found.cend(); ++it) {
            const bool isCopy = isBackup && it.key().startsWith("game/backup/");
            QVERIFY2(litter.contains(it.key()) || isCopy || it.value() == m_start.value(it.key()) ||
                         it.value() == whole.value(it.key()),
                     qPrintable(it.key()));
        }
        const QStringList backups =
            QDir(at("game/backup")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& backup : backups) {
            QCOMPARE(contentsOf(at("game/backup/" + backup)).size(), 3);
        }
        run(command);
        QCOMPARE(hidden(contentsOf(at({}).chopped(1))), QStringList());
        QVERIFY(isBackup || contentsOf(at({}).chopped(1)) == whole);
    }
}

void TestPrograms::endsBySignal_data()
{
    columns<QStringList, QString, int>("command", "waitsIn", "number");
    const QStringList convert{"image", "convert", "200-0.png", "--format", "bmp", "--out", "out/"};
    row("set", QStringList{"set", "game/hero/hero.character", "constants.life", "5"}, "game/hero",
        SIGTERM);
    row("import", QStringList{"sprites", "import", "folder", "200-2.png"}, "folder", SIGHUP);
    row("while it writes", convert, "out", SIGTERM);
    row("while it writes, hangup", convert, "out", SIGHUP);
    row("while it writes, Ctrl+C", convert, "out", SIGINT);
}

void TestPrograms::endsBySignal()
{
    const auto [command, waitsIn, number] = fetched<QStringList, QString, int>();
    putContents(at({}), m_start);
    QVERIFY(QDir().mkpath(at("out")));
    QFile folder;
    QVERIFY(folder.open(::open(qPrintable(at(waitsIn)), O_RDONLY | O_DIRECTORY | O_CLOEXEC),
                        QIODevice::ReadOnly, QFile::AutoCloseHandle));
    QCOMPARE(::flock(folder.handle(), LOCK_EX), 0);
    Program program(at({}), command);
    if (waitsIn == "out") {
        QTRY_VERIFY(
            !QDir(at("out")).entryList({".*.zorv-save"}, QDir::Files | QDir::Hidden).isEmpty());
    } else {
        QTest::qWait(100);
    }
    QVERIFY(program.isRunning());
    program.kill(number);
    QVERIFY(!program.isRunning());
    QCOMPARE(program.end(), -1);
    QCOMPARE(contentsOf(at({}).chopped(1)), m_start);
}

void TestPrograms::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QStringList>("command");
    const QString pipe = "pipe";
    row("list", QStringList{"palette", "list", pipe});
    row("list, device", QStringList{"palette", "list", "/dev/zero"});
    row("apply", QStringList{"palette", "apply", pipe, "200-0.png", "--force"});
    row("convert", QStringList{"palette", "convert", pipe});
    row("quantize", QStringList{"image", "quantize", "200-0.png", "--palette", pipe, "--force"});
    row("import", QStringList{"sprites", "import", "a.sprites", "200-2.png", "--palette", pipe});
    row("export", QStringList{"sprites", "export", "a.sprites", "out/", "--palette", pipe});
    row("main file", QStringList{"check", "pipe.character"});
    row("sound list", QStringList{"sound", "list", pipe});
}

void TestPrograms::refusesWhatIsNoFile()
{
    QFETCH(QStringList, command);
    putContents(at({}), m_start);
    const bool isCheck = command.first() == "check";
    const QString pipe = isCheck ? command.last() : "pipe";
    QCOMPARE(::mkfifo(qPrintable(at(pipe)), 0600), 0);
    Program program(at({}), command);
    QCOMPARE(program.end(), isCheck ? 1 : 3);
    const QString told = isCheck ? program.output() : program.errors();
    const QString wanted = isCheck ? "it is not a file" : "plain file. Name a file on a disk.";
    QVERIFY2(told.contains(wanted), qPrintable(told));
    QVERIFY(QFile::remove(at(pipe)));
    QCOMPARE(contentsOf(at({}).chopped(1)), m_start);
}

void TestPrograms::killedRunLeavesNoCopies()
{
    putContents(at({}), m_start);
    writeFile(at("engine"), "#!/bin/sh\nsleep 1\n");
    QVERIFY(QFile::setPermissions(at("engine"), QFile::ReadOwner | QFile::ExeOwner));
    const QStringList command{"run", "game/hero/hero.character", "--engine", "./engine"};
    const auto copies = [this] { return QDir(at({})).entryList({"zorvs_*"}).size(); };
    {
        Program program(at({}), command);
        QTRY_COMPARE(copies(), 1);
        program.kill(SIGKILL);
    }
    QCOMPARE(copies(), 1);
    QCOMPARE(run(command), 0);
    QCOMPARE(copies(), 0);
}

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
