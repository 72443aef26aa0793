#include "family/check/check.h"
#include "family/meaning/neededanimations.h"
#include "operations/create/create.h"
#include "operations/create/newname.h"
#include "operations/create/templates.h"
#include "rules/gamereader.h"
#include "rules/tick.h"
#include "script/script.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>

#include <csignal>

using namespace Operations;
using Family::FileKind;

namespace {

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        files.append(QDir(folder).relativeFilePath(entries.next()));
    }
    files.sort();
    return files;
}

QStringList problemsOf(const QString& path)
{
    QString error;
    QStringList lines;
    for (const Family::Problem& problem : Family::checkGame(path, &error)) {
        lines.append(Family::problemLine(problem));
    }
    return error.isEmpty() ? lines : lines << error;
}

/// Nothing longer than so many bytes can be written: a disk that is full in the middle.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t most)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = most;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallFiles() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before;
};

}  // namespace

class TestCreate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void whatIsMadeIsWhole_data();
    void whatIsMadeIsWhole();
    void newOnesFight_data();
    void newOnesFight();
    void namesThatCannotBe_data();
    void namesThatCannotBe();
    void nothingIsReplaced();
    void nothingHalfIsLeft_data();
    void nothingHalfIsLeft();
    void filesOfEachKind();
    void ownTemplatesComeFirst();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestCreate::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    qputenv("XDG_DATA_HOME", QFile::encodeName(path("data")));
}

void TestCreate::whatIsMadeIsWhole_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"ryn", "Rýn d'Ávila", "岩尾 鉄男", "ก็ได้", "a.b.c", "200", "{name} # 1", "🥊"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void TestCreate::whatIsMadeIsWhole()
{
    QFETCH(QString, name);
    NewGame game;
    game.folder = path(name);
    game.character = name;
    game.stage = name;
    const Created made = createGame(game);
    QCOMPARE(made.error, QString());
    QCOMPARE(made.path, path(name));
    QCOMPARE(createProject(made.path, FileKind::Character, name + "2").error, QString());
    QCOMPARE(createProject(made.path, FileKind::Stage, name + "2").error, QString());
    QCOMPARE(problemsOf(made.path), QStringList());
    // Nothing is left of how it was made.
    for (const QString& file : filesBelow(made.path)) {
        QVERIFY2(!file.contains("/."), qPrintable(file));
    }
    // All that an engine shows is there, of its own.
    const QString folder = newProjectFolder(made.path, FileKind::Character, name);
    const QByteArray text = readFile(folder + "/basics.anim");
    for (int i = 0; i < Family::AnimationRoleCount; ++i) {
        const char* id = Family::neededAnimation(Family::AnimationRole(i)).identifier;
        QVERIFY2(text.contains("\nanimation " + QByteArray(id) + " \""), id);
    }
}

void TestCreate::newOnesFight_data()
{
    columns<QString, QString>("script", "move");
    row<QString, QString>("light", "1 L -", "light-punch");
    row<QString, QString>("medium", "1 M -", "medium-kick");
    row<QString, QString>("heavy", "1 H -", "heavy-punch");
    row<QString, QString>("low", "1 D -\n1 D+L -", "low-punch");
    row<QString, QString>("sweep", "1 D -\n1 D+H -", "sweep");
    row<QString, QString>("throw", "1 F+L+M -", "throw");
    row<QString, QString>("special", "2 D -\n2 DF -\n1 F -\n1 F+L -", "palm-strike");
    row<QString, QString>("in the air", "20 UF -\n1 M -", "air-kick");
}

void TestCreate::newOnesFight()
{
    const auto [text, move] = fetched<QString, QString>();
    NewGame made;
    made.folder = path("game");
    QCOMPARE(createGame(made).error, QString());
    Rules::Game game;
    QString error;
    Rules::GameReader reader(made.folder);
    for (Rules::FighterData& fighter : game.fighters) {
        QVERIFY(reader.readFighter(Rules::findMainFile(made.folder, ".character", {}, 0, &error),
                                   &fighter, &error));
    }
    QVERIFY(reader.readStage(Rules::findMainFile(made.folder, ".stage", {}, 0, &error), &game.stage,
                             &error));
    QCOMPARE(reader.notes(), QStringList());
    Rules::completeGame(&game);
    game.hasIntro = false;
    Player::Script script;
    QVERIFY2(script.read("places -25 25\n" + text + "\n40 - -", &error), qPrintable(error));
    Rules::State state = Rules::firstState(game);
    QSet<QString> started;
    script.run(game, &state, [&](const Rules::State& now) {
        const int current = now.fighters[0].move;
        started.insert(current < 0 ? QString() : game.fighters[0].moves.at(current).name);
        return true;
    });
    QVERIFY2(started.contains(move), qPrintable(QStringList(started.values()).join(' ')));
    QVERIFY(state.fighters[1].life < game.fighters[1].life);
}

void TestCreate::namesThatCannotBe_data()
{
    columns<QString>("name");
    row<QString>("empty", "");
    row<QString>("blank", " ");
    row<QString>("slash", "a/b");
    row<QString>("up", "..");
    row<QString>("hidden", ".a");
    row<QString>("dot at the end", "a.");
    row<QString>("blank in front", " a");
    row<QString>("quote", "a\"b");
    row<QString>("backslash", "a\\b");
    row<QString>("line end", "a\nb");
    row<QString>("paragraph", QString("a") + QChar(0x2029));
    row<QString>("block mark", QString(QChar(0xfdd0)));
    row<QString>("half a character", QString(QChar(0xd83e)));
    row<QString>("201 bytes", QString(201, 'a'));
    row<QString>("202 bytes", QString(101, QChar(0xe4)));
}

void TestCreate::namesThatCannotBe()
{
    QFETCH(QString, name);
    QVERIFY(!newNameFault(name).isEmpty());
    QVERIFY(QDir().mkpath(path("game")));
    QVERIFY(!createProject(path("game"), FileKind::Character, name).error.isEmpty());
    QCOMPARE(filesBelow(path("")), QStringList{"game"});
    QCOMPARE(newNameFault(QString(100, QChar(0xe4))), QString());
}

void TestCreate::nothingIsReplaced()
{
    NewGame game;
    game.folder = path("game");
    QVERIFY(QDir().mkdir(path("game")));
    QCOMPARE(createGame(game).error, QString());
    QVERIFY(createGame(game).error.contains("is there already"));
    const QString main = path("game/characters/fighter/fighter.character");
    QVERIFY(writeFile(main, "mine"));
    QVERIFY(createProject(path("game"), FileKind::Character, "fighter").error.contains("already"));
    QVERIFY(createFile(main).error.contains("already"));
    QCOMPARE(readFile(main), QByteArray("mine"));
    QVERIFY(createProject(path("nowhere"), FileKind::Stage, "a").error.contains("no folder"));
    game.folder = path("nowhere/game");
    QVERIFY(createGame(game).error.contains("no folder"));
    QVERIFY(!QFileInfo::exists(path("nowhere")));
}

void TestCreate::nothingHalfIsLeft_data()
{
    QTest::addColumn<int>("most");
    for (const int bytes : {0, 100, 700, 5000, 9000, 20000}) {
        QTest::addRow("%d bytes", bytes) << bytes;
    }
}

void TestCreate::nothingHalfIsLeft()
{
    QFETCH(int, most);
    QVERIFY(QDir().mkdir(path("game")));
    NewGame game;
    game.folder = path("other");
    {
        const SmallFiles limit(most);
        const Created made = createProject(path("game"), FileKind::Character, "ryn");
        QVERIFY(!made.error.isEmpty());
        QVERIFY2(!made.error.contains(".zorv-new"), qPrintable(made.error));
        QVERIFY(!createGame(game).error.isEmpty());
    }
    QCOMPARE(filesBelow(path("")), QStringList{"game"});
    // What a killed program has left goes with the next one.
    QVERIFY(writeFile(path("game/characters/.zorv-new-abcdef/content/ryn.character")));
    QCOMPARE(createProject(path("game"), FileKind::Character, "ryn").error, QString());
    QCOMPARE(QDir(path("game/characters"))
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{"ryn"});
}

void TestCreate::filesOfEachKind()
{
    for (const QString& suffix : newFileSuffixes()) {
        const QString file = path("sub/ä b" + suffix);
        QCOMPARE(createFile(file).error, QString());
        QCOMPARE(createFile(file).path, QString());
        if (suffix != ".act") {
            QCOMPARE(problemsOf(file), QStringList());
        }
    }
    QVERIFY(createFile(path("a.png")).error.contains(".code"));
    QVERIFY(createFile(path("a")).error.contains(".code"));
    QVERIFY(createFile(path("a.code"), "../file/plain").error.contains("plain"));
}

void TestCreate::ownTemplatesComeFirst()
{
    const QString own = ownTemplates();
    QVERIFY(own.startsWith(path("")));
    QVERIFY(writeFile(own + "/file/plain.code", "# mine, {name}\n"));
    QVERIFY(writeFile(own + "/character/mine/{name}.character",
                      "[info]\nname = \"{name}\"\n[constants]\nlife = 1\n[.walk]\nforward = 1\n"
                      "back = -1\n"));
    QVERIFY(writeFile(own + "/character/mine/sub/{name}.png", "\x89{name}"));
    QVERIFY(writeFile(own + "/character/empty/a.txt"));
    QCOMPARE(templateNames(NewKind::Character), QStringList({"empty", "fighter", "mine"}));
    QCOMPARE(createFile(path("a.code")).error, QString());
    QCOMPARE(readFile(path("a.code")), QByteArray("# mine, a\r\n"));
    QVERIFY(QDir().mkdir(path("game")));
    QCOMPARE(createProject(path("game"), FileKind::Character, "ryn", "mine").error, QString());
    QCOMPARE(readFile(path("game/characters/ryn/sub/ryn.png")), QByteArray("\x89{name}"));
    QCOMPARE(problemsOf(path("game")), QStringList());
    QVERIFY(
        createProject(path("game"), FileKind::Character, "b", "empty").error.contains("{name}"));
    QVERIFY(!QFileInfo::exists(path("game/characters/b")));
}

QTEST_GUILESS_MAIN(TestCreate)
#include "tst_create.moc"
