#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "operations/hostinterface.h"
#include "operations/rename/renameplan.h"
#include "support/faultrows.h"
#include "support/folders.h"

#include <zorv/core/filesystemarchive.h>

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/wait.h>
#include <unistd.h>

using Family::NameKind;
using Operations::ChangeSet;
using Operations::ReferenceIndex;
using Operations::RenamePlan;
using Operations::Subject;

namespace {

using Files = QMap<QString, QByteArray>;

/// All that lies in a folder, hidden files too.
Files filesOf(const QString& folder)
{
    Files files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        files.insert(QDir(folder).relativeFilePath(path), readFile(path));
    }
    return files;
}

/// A game as plain lines: what a person would find with a search.
struct PlainGame
{
    explicit PlainGame(const QString& folder) : files(filesOf(folder)) {}

    /// The code files of a main file.
    QStringList codeOf(const QString& mainFile) const
    {
        QStringList code{mainFile};
        static const QRegularExpression named("^(?:code|animations) = \"([^\"]*)\"",
                                              QRegularExpression::MultilineOption);
        auto found = named.globalMatch(files.value(mainFile));
        while (found.hasNext()) {
            code.append(
                QDir::cleanPath(QFileInfo(mainFile).path() + '/' + found.next().captured(1)));
        }
        return code;
    }

    /// Which lines mean which others: "use -> definition", for each project.
    QStringList bindings() const
    {
        QStringList result;
        for (auto it = files.begin(); it != files.end(); ++it) {
            if (it.key().endsWith(".character")) {
                for (const char* kind : {"animation", "move"}) {
                    addBindings(it.key(), kind, &result);
                }
            }
        }
        return result;
    }

    void addBindings(const QString& mainFile, const QString& kind, QStringList* result) const
    {
        const bool isMove = kind == "move";
        const QRegularExpression definition(isMove ? "^\\[move (\\w+)\\]" : "^animation (\\w+)");
        const QRegularExpression use(isMove ? "^cancels = (\\w+)" : "^animation = (\\w+)");
        const auto lines = [&](const QRegularExpression& form) {
            QVector<QPair<QString, QString>> found;  // name, place
            for (const QString& file : codeOf(mainFile)) {
                const QStringList text = QString(files.value(file)).split('\n');
                for (int i = 0; i < text.size(); ++i) {
                    const auto match = form.match(text[i]);
                    if (match.hasMatch()) {
                        found.append({match.captured(1), QString("%1:%2").arg(file).arg(i)});
                    }
                }
            }
            return found;
        };
        const auto definitions = lines(definition);
        for (const auto& from : lines(use)) {
            for (const auto& to : definitions) {
                if (from.first == to.first) {
                    result->append(mainFile + ' ' + from.second + " -> " + to.second);
                }
            }
        }
    }

    Files files;
};

QByteArray randomName(QRandomGenerator* random)
{
    return QByteArray(1, char('a' + random->bounded(5)));
}

QByteArray randomCode(QRandomGenerator* random)
{
    QByteArray text;
    for (int i = random->bounded(6); i >= 0; --i) {
        const bool isMove = random->bounded(2);
        text += isMove ? "[move " + randomName(random) + "]\r\nanimation = " + randomName(random) +
                             " # a b\r\ncancels = " + randomName(random) + "\r\n"
                       : "animation " + randomName(random) + " \"a\"\nframe 1,1 loop\n";
    }
    return text;
}

void makeRandomGame(const QString& folder, QRandomGenerator* random)
{
    for (const char* shared : {"s0.code", "s1.code"}) {
        writeFile(folder + "/shared/" + shared, randomCode(random));
    }
    for (int i = 0; i < 3; ++i) {
        QByteArray main = "[files]\ncode = \"own.code\"\n";
        for (int s = 0; s < 2; ++s) {
            if (random->bounded(2)) {
                main += "code = \"../../shared/s" + QByteArray::number(s) + ".code\"\n";
            }
        }
        const QString place = QString("%1/characters/c%2/").arg(folder).arg(i);
        writeFile(place + "c.character", main);
        writeFile(place + "own.code", randomCode(random));
    }
}

const QByteArray hero = "[files]\r\nsprites = \"h.sprites\"\ncode = \"h.code\"\n"
                        "animations = \"h.anim\"\n[.x]\n";

}  // namespace

class TestRename : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void whatNamesItBeforeNamesItAfterwards();
    void linesAreWritten_data();
    void linesAreWritten();
    void conflictsAreTold_data();
    void conflictsAreTold();
    void aPlaceThatHasGoneIsTold();
    void allFilesOrNone_data() { columns<int, int>("call", "error"), faultRows(); }
    void allFilesOrNone();
    void killedAtAnyStep();
    void strangeJournalsAreLeft_data();
    void strangeJournalsAreLeft();

private:
    QString path(const char* name) const { return m_game->path() + '/' + name; }
    QString mainFile() const { return path("characters/h/h.character"); }
    RenamePlan plan(NameKind kind, const QString& name, const QString& to, const QString& main = {},
                    const QSet<QString>& unsaved = {}) const
    {
        QString error;
        ReferenceIndex index(m_game->path());
        index.update();
        const QString file = main.isEmpty() ? mainFile() : main;
        return planRename(index, Subject::fromText(file, kind, name, &error), to, unsaved);
    }
    bool write(const ChangeSet& changes)
    {
        return Operations::writeChanges(changes, m_game->path(), &m_error);
    }
    Files files() const { return filesOf(m_game->path()); }
    ChangeSet manyChanges() const;

    Operations::HostInterface m_host;
    std::unique_ptr<QTemporaryDir> m_game;
    QString m_error;
};

void TestRename::init()
{
    faultArm("", FaultOpen, 0, 0, 0);
    Operations::startHost(&m_host);
    m_game = std::make_unique<QTemporaryDir>();
    writeFile(mainFile(), hero);
    writeFile(path("characters/h/h.code"), "[move jab]\r\nanimation = 200 # 200\r\n"
                                           "[move \"big jab\"]\ncancels  =  jab\n");
    writeFile(path("characters/h/h.anim"), "\xef\xbb\xbf"
                                           "animation 200\nframe 200 , 0 loop\n");
    Family::SpriteCollection* sprites = Family::newSprites(path("characters/h/h.sprites"));
    QImage image(4, 4, QImage::Format_Indexed8);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 0, 0)});
    image.fill(1);
    sprites->insertSprite(-1, {200, 0}, {0, 0}, image);
    QVERIFY(sprites->toFile(*Zorv::FileSystemArchive::instance(), path("characters/h/h.sprites"),
                            true));
    sprites->release();
}

void TestRename::whatNamesItBeforeNamesItAfterwards()
{
    QRandomGenerator random(21);
    int written = 0;
    for (int round = 0; round < 60; ++round) {
        m_game = std::make_unique<QTemporaryDir>();
        makeRandomGame(m_game->path(), &random);
        const PlainGame before(m_game->path());
        const QString main = path("characters/c0/c.character");
        const NameKind kind = random.bounded(2) ? NameKind::Move : NameKind::Animation;
        const QString name = randomName(&random);
        const QString to = random.bounded(4) ? QString("new") : QString(randomName(&random));
        const RenamePlan plan = this->plan(kind, name, to, main);
        if (!plan.isPossible()) {
            QVERIFY2(!plan.conflicts.isEmpty(), qPrintable(name));
            QVERIFY(to != "new" || plan.conflicts.first().contains("nothing names it"));
            continue;
        }
        ++written;
        QVERIFY2(write(plan.changes), qPrintable(m_error));
        QCOMPARE(PlainGame(m_game->path()).bindings(), before.bindings());
        QVERIFY(this->plan(kind, name, "other", main).conflicts.first().contains("nothing names"));
        QVERIFY2(write(plan.changes.reversed()), qPrintable(m_error));
        QCOMPARE(files(), before.files);
    }
    QVERIFY(written > 20);
}

void TestRename::linesAreWritten_data()
{
    columns<int, QString, QString, QStringList>("kind", "name", "to", "lines");
    row("an animation", int(NameKind::Animation), QString("200"), QString("210"),
        QStringList{"h.anim:1 animation 210", "h.code:2 animation = 210 # 200"});
    row("a move keeps its quotes", int(NameKind::Move), QString("big jab"), QString("jab2"),
        QStringList{"h.code:3 [move \"jab2\"]"});
    row("a move that is named", int(NameKind::Move), QString("jab"), QString("hook"),
        QStringList{"h.code:1 [move hook]", "h.code:4 cancels  =  hook"});
    row("a sprite", int(NameKind::Sprite), QString("200,0"), QString("7,65535"),
        QStringList{"h.anim:2 frame 7 , 65535 loop", "h.sprites:0 7,65535"});
    row("a file", int(NameKind::File), QString("h.anim"), QString("../x \"y\".anim"),
        QStringList{"h.anim:0 characters/x \"y\".anim",
                    "h.character:4 animations = \"../x \\\"y\\\".anim\""});
}

void TestRename::linesAreWritten()
{
    const auto [kind, name, to, lines] = fetched<int, QString, QString, QStringList>();
    const Files before = files();
    const RenamePlan plan = this->plan(NameKind(kind), name, to);
    QCOMPARE(plan.conflicts, QStringList());
    QStringList shown;
    for (const auto& line : plan.lines) {
        shown.append(QString("%1:%2 %3")
                         .arg(QFileInfo(line.path).fileName())
                         .arg(line.line)
                         .arg(line.after));
    }
    shown.sort();
    QCOMPARE(shown, lines);
    QVERIFY2(write(plan.changes), qPrintable(m_error));
    QVERIFY(files() != before);
    // Under the new name it is found, and goes back to the first bytes.
    const RenamePlan back = this->plan(NameKind(kind), to, name);
    QCOMPARE(back.lines.size(), plan.lines.size());
    QVERIFY2(write(back.changes), qPrintable(m_error));
    QCOMPARE(files().keys(), before.keys());
    QCOMPARE(files().value("characters/h/h.anim"), before.value("characters/h/h.anim"));
    QCOMPARE(files().value("characters/h/h.code"), before.value("characters/h/h.code"));
}

void TestRename::conflictsAreTold_data()
{
    columns<int, QString, QString, QByteArray, QString>("kind", "name", "to", "anim", "text");
    const auto animation = int(NameKind::Animation);
    const auto file = int(NameKind::File);
    const QByteArray plain = "animation 200\nframe 200,0 loop\n";
    row("no name", animation, QString("200"), QString("a b"), plain, "Expected a word");
    row("nothing", animation, QString("200"), QString(), plain, "Expected a word");
    row("its own", animation, QString("200"), QString("200"), plain, "is called '200' already");
    row("not there", animation, QString("9"), QString("10"), plain, "nothing names it");
    row("a name that is taken", animation, QString("200"), QString("5"), plain + "animation 5\n",
        "names '5' already");
    row("a sprite that is there", int(NameKind::Sprite), QString("1,1"), QString("200,0"),
        plain + "animation 5\nframe 1,1 loop\n", "h.sprites has a '200,0' already");
    row("no number", int(NameKind::Sprite), QString("200,0"), QString("200,65536"), plain,
        "Expected a group");
    row("an encoding that cannot hold it", animation, QString("200"), QString::fromUtf8("\u540d"),
        QByteArray("# caf\xe9 gar\xe7on d\xe9j\xe0 vu\n") + plain, "cannot hold the name");
    row("no word where only a word can stand", int(NameKind::Move), QString("jab"), QString("a b"),
        plain, "Only a word");
    row("a file that is there", file, QString("h.anim"), QString("h.code"), plain,
        "There is a file");
    row("another kind of file", file, QString("h.anim"), QString("g.code"), plain, "has to end");
    row("out of the game", file, QString("h.anim"), QString("../../../g.anim"), plain, "leads out");
    row("no folder", file, QString("h.anim"), QString("new/g.anim"), plain, "no folder");
    row("unsaved", animation, QString("200"), QString("210"), plain + "# unsaved\n", "not saved");
}

void TestRename::conflictsAreTold()
{
    const auto [kind, name, to, anim, text] = fetched<int, QString, QString, QByteArray, QString>();
    const QString file = path("characters/h/h.anim");
    writeFile(file, anim);
    const auto unsaved = anim.contains("unsaved") ? QSet<QString>{file} : QSet<QString>();
    const RenamePlan plan = this->plan(NameKind(kind), name, to, {}, unsaved);
    QVERIFY(!plan.isPossible());
    QVERIFY2(plan.conflicts.join('\n').contains(text), qPrintable(plan.conflicts.join('\n')));
}

/// Files change while a person chooses a name.
void TestRename::aPlaceThatHasGoneIsTold()
{
    QString error;
    ReferenceIndex index(m_game->path());
    index.update();
    const Subject subject = Subject::fromText(mainFile(), NameKind::Animation, "200", &error);
    for (const char* text :
         {"", "# new\nanimation 200\nframe 200,0 loop\n", "animation 300\nframe 200,0 loop\n",
          "frame 200,0\n# animation 200\n"}) {
        writeFile(path("characters/h/h.anim"), text);
        const RenamePlan plan = planRename(index, subject, "210", {});
        QVERIFY2(plan.conflicts.join('\n').contains("changed meanwhile"), text);
    }
}

/// Texts, sprites and names of files.
ChangeSet TestRename::manyChanges() const
{
    ChangeSet changes = plan(NameKind::Sprite, "200,0", "7,7").changes;
    changes.texts += plan(NameKind::Move, "jab", "hook").changes.texts;
    changes.texts += plan(NameKind::File, "h.anim", "g.anim").changes.texts;
    changes.moves = plan(NameKind::File, "h.anim", "g.anim").changes.moves;
    return changes;
}

void TestRename::allFilesOrNone()
{
    const auto [call, error] = fetched<int, int>();
    const ChangeSet changes = manyChanges();
    QVERIFY2(write(changes) && write(changes.reversed()), qPrintable(m_error));
    const Files before = files();
    int failed = 0;
    bool isMet = true;
    for (int nth = 1; isMet && nth < 1000; ++nth) {
        // A full disk stays full.
        faultArm(qPrintable(m_game->path()), FaultCall(call), nth, error, error == ENOSPC);
        const bool isDone = write(changes);
        isMet = faultCalls(FaultCall(call)) >= nth;
        faultArm("", FaultOpen, 0, 0, 0);
        QVERIFY(isDone || (isMet && !m_error.isEmpty()));
        failed += !isDone;
        QVERIFY2(!isDone || write(changes.reversed()), qPrintable(m_error));
        QCOMPARE(files().keys(), before.keys());
        QVERIFY(files() == before);
    }
    QVERIFY(!isMet && failed > 2);
}

void TestRename::killedAtAnyStep()
{
    const ChangeSet changes = manyChanges();
    const Files before = files();
    QVERIFY2(write(changes), qPrintable(m_error));
    const Files after = files();
    QVERIFY2(write(changes.reversed()), qPrintable(m_error));
    const Files first = files();
    int finished = 0, takenBack = 0, status = FAULT_KILLED;
    for (int nth = 1; status == FAULT_KILLED && nth < 100; ++nth) {
        const pid_t child = fork();
        if (child == 0) {
            alarm(60);
            faultArm(qPrintable(m_game->path()), FaultRename, nth, -1, 0);
            _exit(write(changes) ? 0 : 1);
        }
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        status = WEXITSTATUS(status);
        Operations::settleChanges(m_game->path());
        QVERIFY(!QFile::exists(path(".zorv-changes.json")));
        const bool isDone = QFile::exists(path("characters/h/g.anim"));
        (isDone ? finished : takenBack) += 1;
        // The next write clears away what lay beside the files.
        QVERIFY(!isDone || write(changes.reversed()));
        QVERIFY2(write(changes), qPrintable(m_error));
        QVERIFY(files() == after);
        QVERIFY(write(changes.reversed()));
        QVERIFY(files() == first);
    }
    QCOMPARE(status, 0);
    QVERIFY(finished > 2 && takenBack > 1);
}

void TestRename::strangeJournalsAreLeft_data()
{
    columns<QByteArray>("journal");
    row("no journal", QByteArray("rubbish"));
    row("of a later version", QByteArray(R"({"zorv-changes": 2})"));
    row("outside of the game",
        QByteArray(R"({"zorv-changes":1,"moves":[{"from":"shared","to":"../../stolen"}]})"));
    row("no path", QByteArray(R"({"zorv-changes":1,"texts":[{"before":"","after":"eA=="}]})"));
}

void TestRename::strangeJournalsAreLeft()
{
    const auto [journal] = fetched<QByteArray>();
    writeFile(path(".zorv-changes.json"), journal);
    const Files before = files();
    QCOMPARE(Operations::settleChanges(m_game->path()).size(), 1);
    QVERIFY(!write(manyChanges()));
    QVERIFY(files() == before);
}

QTEST_GUILESS_MAIN(TestRename)
#include "tst_rename.moc"
