#include "core/enginemodel.h"
#include "core/run/temporarycopies.h"
#include "support/planneddialogs.h"
#include "support/testengines.h"
#include "support/testinterface.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QProcess>
#include <QTextCursor>
#include <QtTest>

#include <signal.h>

using namespace Zorv;

namespace {

class RunTree : public TestParent
{
public:
    using TestParent::TestParent;

    QString parameters = "%0";
    QString folder = "copies/%1/";  ///< "%1" stands for the name of the copy
    bool isWhole = true;
    QString copiesFolder;  ///< empty for that of the engine; else all is told of the copies
    std::function<bool(const QString&)> mayStartIt;  ///< a host's say; anything may without it

    bool mayStart(const QString& executable) override
    {
        return !mayStartIt || mayStartIt(executable);
    }
    QString runFolder(const QString& executable) const override
    {
        return copiesFolder.isEmpty() ? ParentProject::runFolder(executable) : copiesFolder;
    }
    QStringList runArguments(const QString& executable, const QStringList& arguments,
                             const QVector<RunCopy>& copies) const override
    {
        QStringList all = ParentProject::runArguments(executable, arguments, copies);
        for (const RunCopy& copy : copies.mid(0, copiesFolder.isEmpty() ? 0 : copies.size())) {
            all += {copy.copy, copy.original, QString::number(copy.kind)};
        }
        return all;
    }
    QString runParameters(int) const override { return parameters; }
    QString runPath(int, const QString& name, bool* wholeFolder) const override
    {
        *wholeFolder = isWhole;
        return QString(folder).replace("%1", name);
    }
};

/// All below a folder, with the content of files.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> all;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        all[path] = walk.fileInfo().isDir() ? QByteArray("/") : readFile(path);
    }
    return all;
}

/// A game folder, and an engine that writes down how it was started.
struct World
{
    QTemporaryDir dir;
    QString root = QFileInfo(dir.path()).canonicalFilePath() + '/';
    QString exe = root + "engine/play it";
    TestInterface host;
    TestEngines engines;
    std::unique_ptr<RunTree> tree;

    explicit World(const QByteArray& then = "exit 0", const QString& parameters = "%0")
    {
        // For each argument a line, and for each that is a file its text.
        writeScript(exe, "for a; do echo \"$a\"; done >\"$R/arguments\"; pwd >\"$R/folder\"\n"
                         "find . -type f | sort >\"$R/files\"\n"
                         "for a; do [ -f \"$a\" ] && cat \"$a\"; done >\"$R/texts\"\n"
                         "echo $$ >\"$R/pid\"; echo >\"$R/started\"\n" +
                             then + '\n');
        engines.executable = "game.exe";
        engines.list = {{"one", exe, parameters, {}}};
        host.engines = &engines;
        tree = std::make_unique<RunTree>(root + "game");
        tree->engines = &engines;
    }

    void writeScript(const QString& path, const QByteArray& commands) const
    {
        QDir().mkpath(root + "record");
        writeFile(path, "#!/bin/sh\nR='" + root.toUtf8() + "record'\n" + commands);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    TestProject* open(const QString& path, const QByteArray& saved, const QString& text = {})
    {
        writeFile(root + "game/" + path, saved);
        auto* project = tree->open(path, text.isNull() ? QString::fromUtf8(saved) : text);
        host.projects.append(project);
        host.frontProject = host.projects.first();
        return project;
    }

    QString record(const char* name) const
    {
        return QString::fromUtf8(readFile(root + "record/" + name));
    }
    QStringList arguments() const
    {
        return record("arguments").split('\n').mid(0, argumentCount());
    }
    int argumentCount() const { return record("arguments").count('\n'); }
    RunResult run()
    {
        tree->run();
        return tree->runResult();
    }
    QMap<QString, QByteArray> engineFiles() const { return snapshot(root + "engine"); }
};

QString recordFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/runs/";
}

const QString warning = "warning", error = "error";

using Prepare = std::function<void(World&)>;

}  // namespace

Q_DECLARE_METATYPE(Prepare)

class TestRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { QDir(recordFolder()).removeRecursively(); }
    void cleanup() { QCOMPARE(QDir(recordFolder()).entryList(QDir::Files), QStringList()); }
    void failures_data();
    void failures();
    void foreignExecutable();
    void arguments_data();
    void arguments();
    void choice();
    void gameHasItsEngine();
    void hostLooksBeforeTheStart();
    void copiesOfAnotherFolder();
    void paths_data();
    void paths();
    void unsavedText();
    void missingFileIsTold();
    void engineFilesStay();
    void engineOutput();
    void oneAtATime();
    void copiesForTheEngineThatRuns();
    void stop_data();
    void stop();
    void treeGoes();
    void childHoldsTheChannel();
    void editorIsKilled();
    void recordsThatAreNoCopies_data();
    void recordsThatAreNoCopies();
};

void TestRun::failures_data()
{
    columns<Prepare, int, QStringList>("prepare", "outcome", "dialog");
    const QString parameters =
        "Oops, wrong parameters on the engine configuration. Check it in Tools / Options.";
    const auto row = [](const char* name, Prepare prepare, int outcome, const QStringList& dialog) {
        ::row(name, prepare, outcome, dialog);
    };
    row("no engine", [](World& w) { w.engines.list.clear(); }, RunResult::NoEngine,
        {warning, "Warning!", "Oops, you need to add an engine first. Do it in Tools / Options."});
    row("executable is gone", [](World& w) { QFile::remove(w.exe); }, RunResult::NotFound,
        {error, "Error!", "Executable not found!"});
    row("no mark", [](World& w) { w.engines.list[0].parameters = "-p %x 50%"; }, RunResult::NoMarks,
        {warning, "Warning!", parameters});
    row("game without a project",
        [](World& w) {
            w.writeScript(w.root + "game/game.exe", {});
            w.tree = std::make_unique<RunTree>(w.root + "game");
            w.tree->engines = &w.engines;
        },
        RunResult::NoMarks, {warning, "Warning!", parameters});
    row("cannot start", [](World& w) { writeFile(w.exe, "#!/no/such/shell\n"); },
        RunResult::NotStarted, {error, "Error 0!", "Can't start the process '$EXE'!"});
    row("nothing runs it", [](World& w) { writeFile(w.exe, "MZ"); }, RunResult::NotStarted,
        {error, "Error 0!", "Can't start the process ''!"});
    row("crash", [](World& w) { w.writeScript(w.exe, "kill -SEGV $$"); }, RunResult::Crashed,
        {error, "Error 1!", "Can't start the process '$EXE'!"});
    row("status", [](World& w) { w.writeScript(w.exe, "exit 7"); }, RunResult::Ended, {});
}

void TestRun::failures()
{
    const auto [prepare, outcome, dialog] = fetched<Prepare, int, QStringList>();
    PlannedDialogs dialogs;
    World world;
    world.open("hero.code", "hero");
    prepare(world);
    const auto before = world.engineFiles();
    qputenv("PATH", "/nowhere");
    const RunResult result = world.run();
    qputenv("PATH", "/usr/bin:/bin");
    QCOMPARE(int(result.outcome), outcome);
    QStringList shown;
    for (const auto& d : dialogs.shown) {
        shown << d.kind << d.title << QString(d.text).replace(world.exe, "$EXE");
        QVERIFY(d.buttons == Dialogs::Ok);
    }
    QCOMPARE(shown, dialog);
    QCOMPARE(world.engineFiles(), before);
    QVERIFY(!world.tree->isRunning());
}

// What is no program of this system is given to Wine.
void TestRun::foreignExecutable()
{
    World world;
    world.open("hero.code", "hero");
    world.writeScript(world.root + "bin/wine", readFile(world.exe).mid(10));
    writeFile(world.exe, "MZ");
    qputenv("PATH", QFile::encodeName(world.root) + "bin:/usr/bin:/bin");
    const RunResult result = world.run();
    qputenv("PATH", "/usr/bin:/bin");
    QCOMPARE(result.program, world.root + "bin/wine");
    QCOMPARE(world.arguments(), QStringList({world.exe, "copies/zorvs_0/zorvs_0"}));
}

void TestRun::arguments_data()
{
    columns<QString, QStringList, QString>("parameters", "arguments", "texts");
    const QString c0 = "copies/zorvs_0/zorvs_0", c1 = "copies/zorvs_1/zorvs_1";
    row("front", "%0", QStringList{c0}, "A");
    row("in order of the marks", "%2 %1", QStringList{c0, c1}, "BA");
    row("one copy for one mark", "%2 -x %2", QStringList{c0, "-x", c0}, "BB");
    row("several in an argument", "a%1b%2c", QStringList{"a" + c0 + "b" + c1 + "c"}, "");
    row("two blanks", "-a  %1 ", QStringList{"-a", "", c0, ""}, "A");
    row("above the count", "%3 %1 %12", QStringList{"%3", c1, "%12"}, "A");
    row("two digits of three", "%021", QStringList{c0 + "1"}, "");
}

void TestRun::arguments()
{
    const auto [parameters, arguments, texts] = fetched<QString, QStringList, QString>();
    PlannedDialogs dialogs;
    World world("exit 0", parameters);
    world.open("a.code", "A");
    world.open("b.code", "B");
    const auto before = world.engineFiles();
    const RunResult result = world.run();
    QCOMPARE(world.arguments(), arguments);
    QCOMPARE(result.arguments, arguments);
    QCOMPARE(world.record("texts"), texts);
    QCOMPARE(world.record("folder"), world.root + "engine\n");
    QCOMPARE(world.engineFiles(), before);
    QCOMPARE(dialogs.count(), 0);
}

void TestRun::choice()
{
    PlannedDialogs dialogs;
    World world;
    world.open("hero.code", "hero");
    world.host.options["last_family"] = 5;
    world.run();
    QCOMPARE(dialogs.count(), 0);
    QCOMPARE(world.host.options["last_family"], QVariant(0));

    world.engines.list.append({"two", world.exe, "--two %0", {}});
    dialogs.targetGeometry = QRect(1, 2, 300, 400);
    world.host.options["last_family"] = 1;
    QFile::remove(world.root + "record/arguments");
    QCOMPARE(world.run().outcome, RunResult::GivenUp);
    QCOMPARE(dialogs.texts("runTarget"), QStringList("1"));
    QCOMPARE(dialogs.shown.last().choices, QStringList({"one", "two"}));
    QCOMPARE(world.host.options["project_run_geometry"], QVariant(dialogs.targetGeometry));
    QCOMPARE(world.arguments(), QStringList());

    world.host.options["last_family"] = 0;
    dialogs.targetAnswers = {1};
    QCOMPARE(world.run().outcome, RunResult::Ended);
    QCOMPARE(world.arguments().value(0), QString("--two"));
    QCOMPARE(world.host.options["last_family"], QVariant(1));
}

void TestRun::gameHasItsEngine()
{
    PlannedDialogs dialogs;
    World world;
    QVERIFY(QDir().mkpath(world.root + "game"));
    QVERIFY(QFile::rename(world.exe, world.root + "game/game.exe"));
    world.open("chars/hero.code", "hero");
    world.tree->parameters = "--fight %1";
    const auto before = snapshot(world.root + "game");
    world.run();
    QCOMPARE(world.arguments(), QStringList({"--fight", "copies/zorvs_0/chars/zorvs_0"}));
    QCOMPARE(world.record("texts"), QString("hero"));
    QCOMPARE(snapshot(world.root + "game"), before);
    QCOMPARE(dialogs.count(), 0);
}

void TestRun::hostLooksBeforeTheStart()
{
    PlannedDialogs dialogs;
    World world;
    world.open("hero.code", "hero");
    const auto before = world.engineFiles();
    int copies = 0;
    world.tree->mayStartIt = [&](const QString& executable) {
        copies += world.engineFiles().size() > before.size() && executable == world.exe;
        return false;
    };
    QCOMPARE(world.run().outcome, RunResult::GivenUp);
    QCOMPARE(copies, 1);
    QCOMPARE(world.record("started"), QString("(not there)"));
    QCOMPARE(world.engineFiles(), before);
    QVERIFY(!world.tree->isRunning());
    QCOMPARE(dialogs.count(), 0);
}

/// Nothing lies beside the engine, and it is told whole paths and what was copied.
void TestRun::copiesOfAnotherFolder()
{
    World world;
    TestProject* const project = world.open("hero.code", "saved");
    QTextCursor(static_cast<CodeDocument*>(project->file(FileID::MainCode))).insertText("un");
    world.tree->copiesFolder = world.root + "elsewhere";
    QVERIFY(QDir().mkpath(world.tree->copiesFolder));
    const auto before = world.engineFiles();
    QCOMPARE(world.run().outcome, RunResult::Ended);
    const QString copy = world.root + "elsewhere/copies/zorvs_0/zorvs_0";
    QCOMPARE(world.arguments().mid(0, 3), (QStringList{copy, copy, world.root + "game/hero.code"}));
    QCOMPARE(world.record("texts"), QString("unsavedunsavedsaved"));
    QCOMPARE(world.record("files"), QString("./play it\n"));
    QCOMPARE(world.engineFiles(), before);
    QCOMPARE(snapshot(world.tree->copiesFolder).size(), 0);
}

void TestRun::paths_data()
{
    columns<QString, QString, bool>("main", "folder", "isWhole");
    const QString names[] = {"hero.code", "chars/hero/hero.code", "-träume %1 x/50%0 ü.code",
                             "zorvs_0", "a\nb/$(x).code"};
    for (const QString& main : names) {
        for (const char* folder : {"%1-unique/", "data/", "deep/er/%1/"}) {
            for (bool isWhole : {true, false}) {
                QTest::addRow("%s, %s, %d", qPrintable(main.simplified()), folder, isWhole)
                    << main << folder << isWhole;
            }
        }
    }
}

// Wherever a project lies, its copy is where the argument says, with its other files.
void TestRun::paths()
{
    const auto [main, folder, isWhole] = fetched<QString, QString, bool>();
    World world("", "--file %0");
    world.writeScript(world.exe, "printf %s \"$2\" >\"$R/path\"; cat \"$2\" >\"$R/texts\"\n"
                                 "cat \"${2%/*}/sub/a b\" >\"$R/other\"; echo $# >\"$R/count\"");
    world.tree->folder = folder;
    world.tree->isWhole = isWhole;
    const QString place = main.left(main.lastIndexOf('/') + 1);
    writeFile(world.root + "game/" + place + "sub/a b", "other");
    world.open(main, "2 sub/a b");
    const auto before = world.engineFiles();
    const RunResult result = world.run();
    QCOMPARE(result.outcome, RunResult::Ended);
    QCOMPARE(result.failedFiles + result.leftCopies, QStringList());
    QCOMPARE(world.record("count"), QString("2\n"));
    QCOMPARE(world.record("path"), QString(folder).replace("%1", "zorvs_0") + place + "zorvs_0");
    QCOMPARE(world.record("texts"), QString("2 sub/a b"));
    QCOMPARE(world.record("other"), QString("other"));
    QCOMPARE(world.engineFiles(), before);
}

void TestRun::unsavedText()
{
    World world("exit 0", "%1 %2");
    TestProject* saved = world.open("hero.code", "as saved");
    auto* document = static_cast<CodeDocument*>(saved->file(FileID::MainCode));
    QTextCursor(document).insertText("unsaved, ");
    TestProject* fresh = world.tree->open({}, "never saved");
    world.host.projects.append(fresh);
    world.run();
    QCOMPARE(world.record("texts"), QString("unsaved, as savednever saved"));
    QCOMPARE(readFile(world.root + "game/hero.code"), QByteArray("as saved"));
    QVERIFY(document->isModified());
    QCOMPARE(document->fileName(), world.root + "game/hero.code");
    QCOMPARE(fresh->fileName(), QString());
}

void TestRun::missingFileIsTold()
{
    World world;
    world.open("chars/hero.code", "2 gone.spr");
    const RunResult result = world.run();
    QCOMPARE(result.failedFiles, QStringList("chars/gone.spr"));
    QCOMPARE(result.outcome, RunResult::Ended);
}

// Files of the engine are neither replaced nor removed, and what it writes stays.
void TestRun::engineFilesStay()
{
    World world("cat data/a.spr data/b.spr >\"$R/sprites\"; echo score >data/made/score");
    world.tree->folder = "data/";
    world.tree->isWhole = false;
    const QString data = world.root + "engine/data/";
    writeFile(data + "a.spr", "the engine's");
    writeFile(data + "same.spr", "same");
    writeFile(world.root + "game/same.spr", "same");
    writeFile(world.root + "game/a.spr", "a");
    writeFile(world.root + "game/b.spr", "b");
    writeFile(world.root + "game/made/c.spr", "c");
    world.open("hero.code", "2 a.spr\n2 b.spr\n2 made/c.spr\n2 same.spr");
    auto before = world.engineFiles();
    const RunResult result = world.run();
    QCOMPARE(world.arguments(), QStringList("data/zorvs_0"));
    QCOMPARE(world.record("sprites"), QString("the engine'sb"));
    QCOMPARE(result.failedFiles, QStringList("a.spr"));
    before[data + "made"] = "/";
    before[data + "made/score"] = "score\n";
    QCOMPARE(world.engineFiles(), before);

    // A folder that is there is not temporary, whatever the family says.
    world.tree->isWhole = true;
    world.run();
    QCOMPARE(world.record("texts").left(7), QString("2 a.spr"));
    QCOMPARE(world.engineFiles(), before);
}

void TestRun::engineOutput()
{
    World world("echo err >&2; head -c 100000000 /dev/zero; printf end");
    world.open("hero.code", "hero");
    qint64 size = 0;
    int largest = 0;
    QByteArray first, last;
    connect(world.tree.get(), &ParentProject::engineOutput, this, [&](const QByteArray& bytes) {
        first = size == 0 ? bytes : first;
        last = (last + bytes).right(3);
        size += bytes.size();
        largest = qMax(largest, bytes.size());
    });
    QSignalSpy started(world.tree.get(), &ParentProject::engineStarted);
    QSignalSpy finished(world.tree.get(), &ParentProject::engineFinished);
    world.run();
    QCOMPARE(size, qint64(100000000 + 7));
    QVERIFY(largest <= 64 * 1024);
    QVERIFY(first.startsWith("err\n"));
    QCOMPARE(last, QByteArray("end"));
    QCOMPARE(started.value(0).value(0), QVariant(world.exe));
    QCOMPARE(finished.size(), 1);
}

void TestRun::oneAtATime()
{
    PlannedDialogs dialogs;
    World world("echo x");
    world.open("hero.code", "hero");
    connect(world.tree.get(), &ParentProject::engineOutput, this, [&] {
        QVERIFY(world.tree->isRunning());
        QCOMPARE(world.run().outcome, RunResult::AlreadyRunning);
    });
    QCOMPARE(world.run().outcome, RunResult::Ended);
    QCOMPARE(dialogs.texts(warning),
             QStringList("Oops, you can run only one instance of yhe engine at the same time."));
}

/// The last two stay, and none when the engine has ended.
void TestRun::copiesForTheEngineThatRuns()
{
    World w("while [ ! -e \"$R/go\" ]; do sleep 0.05; done");
    TestProject* project = w.open("hero/hero.code", "saved", "unsaved");
    ParentProject::RunCopy copies[3];
    QStringList failed;
    QVERIFY(!w.tree->copyForEngine(project, &copies[0], &failed));
    QTimer::singleShot(300, w.tree.get(), [&] {
        for (int i = 0; i < 3; ++i) {
            w.tree->folder = QStringLiteral("again/%1-%2/").arg(i).arg("%1");
            QTextCursor(static_cast<CodeDocument*>(project->file(FileID::MainCode)))
                .insertText(QString::number(i));
            QVERIFY(w.tree->copyForEngine(project, &copies[i], &failed));
            QCOMPARE(failed, QStringList());
            QCOMPARE(readFile(copies[i].copy), QByteArray("210unsaved").mid(2 - i));
            QCOMPARE(copies[i].original, project->fileName());
        }
        QVERIFY(!QFile::exists(copies[0].copy));
        QVERIFY(QFile::exists(copies[1].copy));
        writeFile(w.root + "record/go");
    });
    w.tree->run();
    QCOMPARE(int(w.tree->runResult().outcome), int(RunResult::Ended));
    QVERIFY(!QFile::exists(copies[1].copy));
    QVERIFY(!QFile::exists(copies[2].copy));
    QVERIFY(!w.tree->copyForEngine(project, &copies[0], &failed));
}

void TestRun::stop_data()
{
    QTest::addColumn<QByteArray>("engine");
    row("goes when it is asked", QByteArray("echo x; exec sleep 1000"));
    row("does not listen", QByteArray("trap '' TERM; echo x; while :; do sleep 0.05; done"));
}

void TestRun::stop()
{
    QFETCH(QByteArray, engine);
    PlannedDialogs dialogs;
    World world(engine);
    world.open("hero.code", "hero");
    const auto before = world.engineFiles();
    connect(world.tree.get(), &ParentProject::engineOutput, world.tree.get(),
            &ParentProject::stopEngine);
    QCOMPARE(world.run().outcome, RunResult::Stopped);
    QCOMPARE(world.engineFiles(), before);
    QCOMPARE(dialogs.count(), 0);
}

void TestRun::treeGoes()
{
    PlannedDialogs dialogs;
    World world("echo x; exec sleep 1000");
    world.open("hero.code", "hero");
    const auto before = world.engineFiles();
    QMap<QString, QByteArray> during;
    connect(world.tree.get(), &ParentProject::engineOutput, this, [&] {
        during = world.engineFiles();
        QMetaObject::invokeMethod(
            this, [&] { world.tree.reset(); }, Qt::QueuedConnection);
    });
    world.tree->run();
    QVERIFY(!world.tree);
    QVERIFY(during.size() > before.size());
    QCOMPARE(world.engineFiles(), before);
    QCOMPARE(dialogs.count(), 0);
}

void TestRun::childHoldsTheChannel()
{
    World world("sleep 1000 & echo $! >\"$R/child\"");
    world.open("hero.code", "hero");
    QCOMPARE(world.run().outcome, RunResult::Ended);
    QCOMPARE(::kill(world.record("child").toInt(), SIGKILL), 0);
}

/// An editor of its own, which ends by a signal while its engine runs.
int runEditor()
{
    World world("exec sleep 1000", "%0");
    world.dir.setAutoRemove(false);
    world.tree->folder = "data/";
    world.tree->isWhole = false;
    world.open("chars/hero.code", "2 a.spr");
    printf("%s\n", qPrintable(world.root));
    fflush(stdout);
    world.run();
    return 0;
}

void TestRun::editorIsKilled()
{
    QProcess editor;
    editor.start(QCoreApplication::applicationFilePath(), {"--editor"});
    QVERIFY(editor.waitForReadyRead(-1));
    const QString root = QString::fromUtf8(editor.readLine().trimmed());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(root + "record/started"), 60000);
    QVERIFY(TemporaryCopies::leftovers().isEmpty());
    editor.kill();
    QVERIFY(editor.waitForFinished(-1));
    ::kill(readFile(root + "record/pid").toInt(), SIGKILL);

    const QString data = root + "engine/data/";
    writeFile(data + "chars/notes", "written later");
    auto leftovers = TemporaryCopies::leftovers();
    QCOMPARE(leftovers.size(), 1);
    QCOMPARE(leftovers[0].folder, root + "engine/");
    QCOMPARE(leftovers[0].paths, QStringList({data + "chars/zorvs_0", data + "chars/", data}));
    QCOMPARE(TemporaryCopies::removeLeftover(leftovers[0]), QStringList());
    QCOMPARE(snapshot(data).keys(), QStringList({data + "chars", data + "chars/notes"}));
    QVERIFY(TemporaryCopies::leftovers().isEmpty());
    QDir(root).removeRecursively();
}

void TestRun::recordsThatAreNoCopies_data()
{
    columns<QString, QString, QByteArray, bool>("folder", "file", "damage", "goes");
    row("sound", "zorvs_0-x", "mine", QByteArray(), true);
    row("another folder", "precious", "", QByteArray(), false);
    row("above", "zorvs_0-x/../precious", "", QByteArray(), false);
    row("outside", "../zorvs_9", "", QByteArray(), false);
    row("through a link", "link/zorvs_9", "", QByteArray(), false);
    row("a link", "zorvs_1", "", QByteArray(), false);
    row("the engine's folder", "", "", QByteArray(), false);
    row("file without a copy", "", "mine", QByteArray(), false);
    row("cut", "zorvs_0-x", "mine", QByteArray("cut"), false);
    row("changed", "zorvs_0-x", "mine", QByteArray("change"), false);
}

void TestRun::recordsThatAreNoCopies()
{
    const auto [folder, file, damage, goes] = fetched<QString, QString, QByteArray, bool>();
    const World world;
    const QString engine = world.root + "engine/";
    for (const char* name : {"engine/zorvs_0-x/a", "engine/precious/a", "zorvs_9/a", "engine/mine",
                             "elsewhere/zorvs_9/a", "engine/changed"}) {
        writeFile(world.root + name, "content");
    }
    QFile::link(world.root + "elsewhere", engine + "link");
    QFile::link(world.root + "elsewhere", engine + "zorvs_1");
    QJsonArray files;
    for (const QString& name : {file, QString("changed")}) {
        const QFileInfo info(engine + name);
        files.append(QJsonObject{{"path", name},
                                 {"size", info.size() + (name == "changed")},
                                 {"modified", info.lastModified().toMSecsSinceEpoch()}});
    }
    QByteArray text =
        QJsonDocument(
            QJsonObject{{"folder", engine}, {"wholeFolders", QJsonArray{folder}}, {"files", files}})
            .toJson(QJsonDocument::Compact);
    text.prepend("zorv-run 1\n" +
                 QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex() + '\n');
    if (damage == "cut") {
        text.chop(10);
    } else if (damage == "change") {
        text.replace("zorvs_0", "zorvs_1");
    }
    const auto before = snapshot(world.root);
    const QString record = recordFolder() + "a.run";
    writeFile(record, text);
    const auto leftovers = TemporaryCopies::leftovers();
    QCOMPARE(leftovers.size(), int(goes));
    TemporaryCopies::removeLeftover({record, engine, {engine + "precious/", engine + folder}});
    auto expected = before;
    if (goes) {
        for (const char* name : {"zorvs_0-x", "zorvs_0-x/a", "mine"}) {
            expected.remove(engine + name);
        }
    }
    QCOMPARE(snapshot(world.root), expected);
    QFile::remove(record);
}

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName("tst_run");
    if (application.arguments().contains("--editor")) {
        return runEditor();
    }
    TestRun test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_run.moc"
