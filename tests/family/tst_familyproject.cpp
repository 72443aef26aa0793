#include "familydump.h"

#include "family/assets/familysprite.h"
#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/check/check.h"
#include "family/check/filefacts.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/release.h"
#include "support/testinterface.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/core/messagelist.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Family;
using Zorv::FileID;

namespace {

constexpr char mainText[] = "[info]\r\nname = \"Hero\"\r\n"
                            "[files]\r\n"
                            "sprites = \"hero.sprites\"\r\n"
                            "code = \"moves.code\"\r\n"
                            "code = \"../../shared/common.code\"\r\n"
                            "animations = \"hero.anim\"\r\n"
                            "commands = \"gone.commands\"\r\n"
                            "code = \"hero.character\"\r\n"
                            "code = \"../../../outside.code\"\r\n"
                            "code = \"./moves.code\"\r\n"
                            "[constants]\r\nlife = 1000 # full\r\n";

/// A game with one character and one stage.
class Game
{
public:
    Game()
    {
        writeFile(hero("hero.character"), mainText);
        writeFile(hero("moves.code"), "[move jab]\r\nanimation = 200\r\n"
                                      "[palette a]\r\nfile = \"a.act\"\r\n");
        writeFile(hero("hero.anim"), "animation 200\r\nframe 0,0 loop\r\n");
        writeFile(hero("hero.sprites"), "sprites");
        writeFile(hero("a.act"), "palette");
        writeFile(path("shared/common.code"), "[constants]\r\nlife = 5\r\n");
        writeFile(path("stages/harbour/harbour.stage"), "[info]\r\nname = \"Harbour\"\r\n");
        writeFile(path("backup/old/characters/hero/hero.character"), "[info]\r\n");
        writeFile(path("zorvs_0-1a2b/characters/hero/hero.character"), "[info]\r\n");
        writeFile(path("bin/zorvs_1-1a2b/hero.character"), "[info]\r\n");
    }

    /// Sprites at a path as the main file tells it, and sounds; one of each.
    void addAssets(const QString& sprites)
    {
        writeFile(hero("hero.character"),
                  QByteArray(mainText).replace("sprites = \"hero.sprites\"",
                                               "sprites = \"" + sprites.toUtf8() +
                                                   "\"\r\nsounds = \"hero.sounds\""));
        Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
        const QString place = QDir::cleanPath(hero("") + sprites);
        QFile::remove(place);
        if (sprites.endsWith(QLatin1Char('/'))) {
            QDir().mkpath(place);
        }
        QImage image(4, 3, QImage::Format_Indexed8);
        image.setColorTable({qRgb(0, 0, 0), qRgb(250, 9, 9)});
        image.fill(1);
        SpriteCollection* collection = newSprites(place);
        QVERIFY(collection->insertSprite(-1, {0, 0}, {1, 2}, image));
        QVERIFY(collection->toFile(disk, place, false));
        collection->release();
        SoundFile sounds;
        QVERIFY(sounds.add(0, "0,0", soundOf("some samples")));
        QVERIFY(sounds.toFile(disk, hero("hero.sounds"), false));
    }

    QString path(const char* name) const { return m_folder.path() + QLatin1Char('/') + name; }
    QString hero(const char* name) const { return path("characters/hero/") + QLatin1String(name); }

private:
    QTemporaryDir m_folder;
};

/// A file, or the files of a folder, by their names.
QMap<QString, QByteArray> contentOf(const QString& path)
{
    QMap<QString, QByteArray> result;
    const QStringList names = QDir(path).entryList(QDir::Files);
    for (const QString& name : names) {
        result.insert(name, readFile(path + QLatin1Char('/') + name));
    }
    if (QFileInfo(path).isFile()) {
        result.insert({}, readFile(path));
    }
    return result;
}

QStringList pathsOf(const QList<Zorv::Project::FileInfo>& infos)
{
    QStringList result;
    for (const Zorv::Project::FileInfo& info : infos) {
        result.append(QStringLiteral("%1:%2").arg(quint32(info.id)).arg(info.path));
    }
    result.sort();
    return result;
}

}  // namespace

class TestFamilyProject : public QObject
{
    Q_OBJECT

private slots:
    void openLoadsWhatIsNamed();
    void fileInfosFollowTheText();
    void commentSurvivesChange();
    void newProjectIsFine_data();
    void newProjectIsFine();
    void mainFilesAndTree();
    void projectFiles();
    void pathFaults_data();
    void pathFaults();
    void linksThatLeaveTheGame();
    void saveAllAsCopy();
    void assetsAreLoaded();
    void assetsTravel_data();
    void assetsTravel();
    void assetsMoveWithTheProject();
    void assetsThatOthersChange();
    void runBesideTheGame();
    void checkOfProject();
    void checkOfWhatIsNotThere_data();
    void checkOfWhatIsNotThere();
    void screenOfTheGame();
};

void TestFamilyProject::openLoadsWhatIsNamed()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    QSignalSpy unused(&parent, &FamilyParentProject::unused);
    QString error;
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), &error);
    QVERIFY2(project, qPrintable(error));
    QCOMPARE(project->title(), QStringLiteral("Hero"));
    QCOMPARE(project->filesByType(FileID::Code).size(), 2);
    QCOMPARE(project->filesByType(FileID::Animations).size(), 1);
    QCOMPARE(project->documents().size(), 4);
    QCOMPARE(project->documents().first(), project->mainDocument());
    QCOMPARE(project->loadErrors().size(), 2);
    QVERIFY(project->loadErrors().first().contains(QLatin1String("hero.sprites")));
    QVERIFY(project->loadErrors().last().contains(QLatin1String("gone.commands")));
    QVERIFY(!project->sprites() && !project->sounds());
    QCOMPARE(project->fileTitle(FileID::Code, 0), QStringLiteral("moves.code"));
    QCOMPARE(project->fileTitle(FileID::Code, 1), QStringLiteral("../../shared/common.code"));
    QCOMPARE(project->fileTitle(FileID::Code, -1), QStringLiteral("new file"));
    // Loading again takes no file twice.
    project->loadFiles();
    QCOMPARE(project->documents().size(), 4);
    QVERIFY(project->newFile(FileID::Commands));
    QVERIFY(project->newFile(FileID::Sprites) && project->newFile(FileID::Sounds));
    QVERIFY(!project->newFile(FileID::MainCode));
    project->release();
    delete project;
    QCOMPARE(unused.count(), 1);
}

void TestFamilyProject::screenOfTheGame()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::create(&parent, FileKind::Character);
    FamilyDocument* document = project->mainDocument();
    document->fromString(QStringLiteral("[info]\nname = \"A\"\n"));
    QVERIFY(project->gameSize().isEmpty() && project->scale().isNull());
    document->fromString(QStringLiteral("[info]\nresolution = 640, 360\n"));
    QCOMPARE(project->gameSize(), QSize(640, 360));
    QCOMPARE(project->scale(), QPointF(1, 1));
    document->insert(QStringLiteral("[constants]\nscale = 2, 0.5\n"));
    QCOMPARE(project->scale(), QPointF(2, 0.5));
    project->release();
    delete project;
}

void TestFamilyProject::fileInfosFollowTheText()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    QList<Zorv::Project::FileInfo> infos;
    project->fileInfos(infos);
    const QStringList expected = {QStringLiteral("16:gone.commands"),
                                  QStringLiteral("2:hero.sprites"), QStringLiteral("32:moves.code"),
                                  QStringLiteral("64:a.act"), QStringLiteral("8:hero.anim")};
    QCOMPARE(pathsOf(infos), expected);
    QVERIFY(setValue(project->mainDocument(), QStringLiteral("files.sprites"),
                     QStringLiteral("other.sprites"), nullptr));
    infos.clear();
    project->fileInfos(infos);
    QVERIFY(pathsOf(infos).contains(QStringLiteral("2:other.sprites")));
    project->mainDocument()->undo();
    infos.clear();
    project->fileInfos(infos);
    QCOMPARE(pathsOf(infos), expected);
    project->release();
    delete project;
}

// Within a project the edit goes through the library's change of a line, which
// knows the comment character.
void TestFamilyProject::commentSurvivesChange()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    FamilyDocument* document = project->mainDocument();
    const auto lastValue = [document] { return document->lastBlock().previous().text(); };
    QVERIFY(setValue(document, QStringLiteral("constants.life"), QStringLiteral("7"), nullptr));
    QCOMPARE(lastValue(), QStringLiteral("life = 7 # full"));
    document->nodeInBlock(document->lastBlock().previous())->change(QStringLiteral("life=8    "));
    QVERIFY(setValue(document, QStringLiteral("constants.life"), QStringLiteral("9"), nullptr));
    QCOMPARE(lastValue(), QStringLiteral("life=9     # full"));
    QVERIFY(setValue(document, QStringLiteral("info.name"), QStringLiteral("#1"), nullptr));
    QVERIFY(setValue(document, QStringLiteral("info.name"), QStringLiteral("x"), nullptr));
    QCOMPARE(document->findBlockByNumber(1).text(), QStringLiteral("name = \"x\""));
    project->release();
    delete project;
}

void TestFamilyProject::newProjectIsFine_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("character") << int(FileKind::Character);
    QTest::newRow("stage") << int(FileKind::Stage);
}

void TestFamilyProject::newProjectIsFine()
{
    QFETCH(int, kind);
    QTemporaryDir folder;
    FamilyParentProject parent(folder.path());
    FamilyProject* project = FamilyProject::create(&parent, FileKind(kind));
    QVERIFY(project->mainDocument()->isModified());
    QCOMPARE(project->kind(), kind);
    const Problems problems = checkText(SourceText(project->mainDocument()), QString());
    QVERIFY2(problems.isEmpty(), qPrintable(problems.value(0).text));
    project->release();
    delete project;
}

void TestFamilyProject::mainFilesAndTree()
{
    const Game game;
    QCOMPARE(FamilyParentProject::mainFiles(game.path("")),
             QStringList({game.hero("hero.character"), game.path("stages/harbour/harbour.stage")}));
    FamilyParentProject parent(game.path(""));
    QAbstractItemModelTester tester(&parent,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList projects;
    parent.listProjects(projects);
    projects.sort();
    QCOMPARE(projects,
             QStringList({QStringLiteral("characters/hero/"), QStringLiteral("stages/harbour/")}));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    const QModelIndex index = parent.indexOf(game.hero("moves.code"));
    QVERIFY(index.isValid());
    QVERIFY(parent.itemPath(index)->isFile());
    project->release();
    delete project;
    QVERIFY(!parent.indexOf(game.hero("moves.code")).isValid());
}

void TestFamilyProject::projectFiles()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    QStringList files;
    parent.projectFiles(QStringLiteral("characters/hero/"), files);
    files.sort();
    const QString folder = QStringLiteral("characters/hero/");
    QCOMPARE(
        files,
        QStringList({folder + QLatin1String("a.act"), folder + QLatin1String("gone.commands"),
                     folder + QLatin1String("hero.anim"), folder + QLatin1String("hero.character"),
                     folder + QLatin1String("hero.sprites"), folder + QLatin1String("moves.code"),
                     QStringLiteral("shared/common.code")}));
}

void TestFamilyProject::pathFaults_data()
{
    columns<QString, int>("path", "fault");
    const auto row = [](const char* path, PathFault fault) {
        QTest::newRow(path) << QString::fromUtf8(path) << int(fault);
    };
    row("moves.code", PathFault::Fine);
    row("not/there/yet.code", PathFault::Fine);
    row("../../shared/common.code", PathFault::Fine);
    row("x/../../../shared/../shared/y", PathFault::Fine);
    row("../../../x", PathFault::LeavesGame);
    row("../../../../../../../../../../etc/passwd", PathFault::LeavesGame);
    row("/etc/passwd", PathFault::LeavesGame);
    row("hero.character", PathFault::NamesItself);
    row("../hero/./hero.character", PathFault::NamesItself);
    row(" ", PathFault::Empty);
    QTest::newRow("zero character") << QString(QChar(0)) << int(PathFault::LeavesGame);
}

void TestFamilyProject::pathFaults()
{
    const auto [path, fault] = fetched<QString, int>();
    const Game game;
    QCOMPARE(int(pathFault(game.path(""), game.hero("hero.character"), path)), fault);
    // The root can come without its slash.
    QCOMPARE(int(pathFault(game.path("").chopped(1), game.hero("hero.character"), path)), fault);
}

void TestFamilyProject::linksThatLeaveTheGame()
{
    const Game game;
    QTemporaryDir outside;
    writeFile(outside.path() + QStringLiteral("/secret.code"), "x");
    QVERIFY(QFile::link(outside.path(), game.hero("linked")));
    QCOMPARE(int(pathFault(game.path(""), game.hero("hero.character"),
                           QStringLiteral("linked/secret.code"))),
             int(PathFault::LeavesGame));
    QCOMPARE(int(pathFault(game.path(""), game.hero("hero.character"),
                           QStringLiteral("linked/not-there.code"))),
             int(PathFault::LeavesGame));
}

void TestFamilyProject::saveAllAsCopy()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    auto* moves = static_cast<FamilyDocument*>(project->filesByType(FileID::Code).first());
    QVERIFY(setValue(moves, QStringLiteral("move:jab.animation"), QStringLiteral("201"), nullptr));
    QTemporaryDir target;
    project->saveAll(target.path() + QLatin1Char('/'), true, nullptr);
    const QString copy = target.path() + QStringLiteral("/characters/hero/");
    QCOMPARE(readFile(copy + QStringLiteral("hero.character")), QByteArray(mainText));
    QCOMPARE(readFile(copy + QStringLiteral("moves.code")),
             readFile(game.hero("moves.code")).replace("200", "201"));
    QCOMPARE(readFile(copy + QStringLiteral("a.act")), QByteArray("palette"));
    QCOMPARE(QDir(copy).entryList(QDir::Files).size(), 5);
    QVERIFY(moves->isModified());

    // What lies outside of the project and in the game goes along, with unsaved changes.
    const QString shared = target.path() + QStringLiteral("/shared/common.code");
    const QByteArray saved = readFile(game.path("shared/common.code"));
    QCOMPARE(readFile(shared), saved);
    auto* common = static_cast<FamilyDocument*>(project->filesByType(FileID::Code).last());
    QVERIFY(setValue(common, QStringLiteral("constants.life"), QStringLiteral("7"), nullptr));
    project->saveAll(target.path() + QLatin1Char('/'), true, nullptr);
    QCOMPARE(readFile(shared), QByteArray(saved).replace("5", "7"));
    QCOMPARE(project->failedFiles(), QStringList(QStringLiteral("gone.commands")));
    common->setModified(false);
    QVERIFY(QFile::remove(shared) && QFile::remove(game.path("shared/common.code")));
    project->saveAll(target.path() + QLatin1Char('/'), true, nullptr);
    QVERIFY(project->failedFiles().contains(QStringLiteral("../../shared/common.code")));
    QVERIFY(!QFile::exists(target.path() + QStringLiteral("/../outside.code")));
    project->release();
    delete project;
}

void TestFamilyProject::assetsAreLoaded()
{
    Game game;
    game.addAssets(QStringLiteral("hero.sprites"));
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    QVERIFY(project->sprites() && project->sounds());
    QCOMPARE(project->sprites()->count(), 1U);
    QCOMPARE(project->sounds()->count(), 1U);
    QVERIFY(!project->sprites()->isModified());
    QCOMPARE(project->loadErrors().size(), 1);
    // Frames show them.
    project->mainDocument()->insert(QStringLiteral("\nanimation 9\nframe %1\nframe 65535,65535\n")
                                        .arg(project->sprites()->sprite(0)->id().text()));
    const auto frames = project->mainDocument()->animations()->animations().last()->frames();
    QCOMPARE(frames.at(0)->sprite(), static_cast<Zorv::Sprite*>(project->sprites()->sprite(0)));
    QVERIFY(!frames.at(1)->sprite());
    // The same files are not loaded again; others that the text names then are the ones that count.
    SoundFile* sounds = project->sounds();
    project->loadFiles();
    QCOMPARE(project->filesByType(FileID::Sounds).size(), 1);
    QVERIFY(sounds->toFile(*Zorv::FileSystemArchive::instance(), game.hero("b.sounds"), true));
    QVERIFY(setValue(project->mainDocument(), QStringLiteral("files.sounds"),
                     QStringLiteral("b.sounds"), nullptr));
    project->loadFiles();
    QVERIFY(project->sounds() != sounds);
    QCOMPARE(project->sounds()->fileName(), game.hero("b.sounds"));
    project->release();
    delete project;
}

void TestFamilyProject::assetsTravel_data()
{
    QTest::addColumn<QString>("sprites");
    QTest::newRow("file") << "hero.sprites";
    QTest::newRow("folder") << "pictures/";
    QTest::newRow("file outside of the project") << "../../shared/all.sprites";
    QTest::newRow("folder outside of the project") << "../../shared/pictures/";
}

// What is open and unchanged is copied as bytes, what has changed is written as it is now, and
// neither is touched at its own place.
void TestFamilyProject::assetsTravel()
{
    QFETCH(QString, sprites);
    Game game;
    game.addAssets(sprites);
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    QVERIFY2(project->sprites(), qPrintable(project->loadErrors().join('\n')));
    const QString place = QStringLiteral("characters/hero/");
    const QString own = QDir::cleanPath(game.hero("") + sprites);
    const QString below = own.mid(game.path("").size());
    const QMap<QString, QByteArray> before = contentOf(own);
    for (const bool isModified : {false, true}) {
        if (isModified) {
            project->sounds()->sound(0)->duplicate();
            project->sprites()->sprite(0)->duplicate();
        }
        QTemporaryDir target;
        project->saveAll(target.path() + QLatin1Char('/'), true, nullptr);
        QCOMPARE(project->failedFiles(), QStringList(QStringLiteral("gone.commands")));
        QCOMPARE(contentOf(own), before);
        const QString copy = target.path() + QLatin1Char('/') + below;
        if (!isModified) {
            QCOMPARE(contentOf(copy), before);
        }
        QString error;
        const std::unique_ptr<SpriteCollection, Release> copied(openSprites(copy, &error));
        QVERIFY(copied);
        QCOMPARE(copied->count(), isModified ? 2U : 1U);
        SoundFile sounds;
        QVERIFY(sounds.fromFile(*Zorv::FileSystemArchive::instance(),
                                target.path() + QLatin1Char('/') + place + "hero.sounds", false));
        QCOMPARE(sounds.count(), isModified ? 2U : 1U);
        QCOMPARE(project->sounds()->isModified(), isModified);
    }
    project->reload();
    QCOMPARE(project->sprites()->count(), 1U);
    QVERIFY(!project->sounds()->isModified());
    project->release();
    delete project;
}

void TestFamilyProject::assetsMoveWithTheProject()
{
    Game game;
    game.addAssets(QStringLiteral("hero.sprites"));
    writeFile(game.path("zorv-player"), {});
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    project->sounds()->sound(0)->duplicate();
    const QByteArray sprites = readFile(game.hero("hero.sprites"));
    QTemporaryDir target;
    TestInterface host;
    FamilyEngineModel::instance()->setGameProgram(GameProgram(game.path("")));
    parent.saveAs(target.path());
    FamilyEngineModel::instance()->setGameProgram({});
    const QString moved = target.path() + QStringLiteral("/characters/hero/");
    QCOMPARE(QDir::cleanPath(project->sprites()->fileName()),
             moved + QStringLiteral("hero.sprites"));
    QCOMPARE(readFile(moved + QStringLiteral("hero.sprites")), sprites);
    QVERIFY(!project->sounds()->isModified());
    SoundFile old;
    QVERIFY(old.fromFile(*Zorv::FileSystemArchive::instance(), game.hero("hero.sounds"), false));
    QCOMPARE(old.count(), 1U);
    project->sounds()->sound(0)->duplicate();
    parent.save();
    QVERIFY(old.fromFile(*Zorv::FileSystemArchive::instance(), moved + "hero.sounds", false));
    QCOMPARE(old.count(), 3U);
    project->release();
    delete project;
}

// The person is asked for files that another program has written, and not for own ones.
void TestFamilyProject::assetsThatOthersChange()
{
    Game game;
    game.addAssets(QStringLiteral("hero.sprites"));
    TestInterface host;
    PlannedDialogs dialogs;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
    for (Zorv::ProjectFile* file :
         QList<Zorv::ProjectFile*>{project->sprites(), project->sounds()}) {
        const QByteArray before = readFile(file->fileName());
        project->sprites()->sprite(0)->duplicate();
        project->sounds()->sound(0)->duplicate();
        QVERIFY(file->toFile(disk, file->fileName(), false));
        QTest::qWait(400);
        QCOMPARE(dialogs.count(), 0);
        dialogs.buttonAnswers = {Zorv::Dialogs::Yes};
        writeFile(file->fileName(), before);
        QTRY_COMPARE(dialogs.count(), 1);
        dialogs.shown.clear();
        QCOMPARE(dynamic_cast<QAbstractItemModel*>(file)->rowCount(), 1);
    }
    project->release();
    delete project;
}

// A game with its own engine: the copies are no projects of it, and go without a trace.
void TestFamilyProject::runBesideTheGame()
{
    const Game game;
    const QString player = game.path("zorv-player");
    writeFile(player, "#!/bin/sh\necho \"$@\"; cat \"${2%/*}/moves.code\" "
                      "\"${2%/*}/../../shared/common.code\"; exec sleep 1000\n");
    QFile::setPermissions(player, QFile::ReadOwner | QFile::ExeOwner);
    FamilyEngineModel::instance()->setGameProgram(GameProgram(game.path("")));
    TestInterface host;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    host.projects.append(project);
    host.frontProject = project;
    const auto world = [&game] {
        QStringList closed;
        FamilyParentProject(game.path("")).listProjects(closed);
        return FamilyParentProject::mainFiles(game.path("")) + closed;
    };
    const QStringList entries = QDir(game.path("")).entryList(QDir::AllEntries | QDir::Hidden);
    const QStringList before = world();
    QByteArray output;
    connect(&parent, &Zorv::ParentProject::engineOutput, this, [&](const QByteArray& bytes) {
        output += bytes;
        if (output.contains("life = 5")) {
            QCOMPARE(world(), before);
            parent.stopEngine();
        }
    });
    parent.run();
    FamilyEngineModel::instance()->setGameProgram({});
    QCOMPARE(int(parent.runResult().outcome), int(Zorv::RunResult::Stopped));
    QVERIFY(QRegularExpression("^--character zorvs_0-[-0-9a-f]{36}/characters/hero/zorvs_0\n")
                .match(QString::fromUtf8(output))
                .hasMatch());
    QVERIFY(output.contains("[move jab]"));
    QCOMPARE(QDir(game.path("")).entryList(QDir::AllEntries | QDir::Hidden), entries);
    project->release();
    delete project;
}

void TestFamilyProject::checkOfProject()
{
    const Game game;
    FamilyParentProject parent(game.path(""));
    FamilyProject* project = FamilyProject::open(&parent, game.hero("hero.character"), nullptr);
    QStringList names;
    QString error;
    for (const Problem& problem : checkGame(game.hero("hero.character"), &error)) {
        names.append(QStringLiteral("%1:%2 %3")
                         .arg(QFileInfo(problem.file).fileName())
                         .arg(problem.line)
                         .arg(QLatin1String(problemInfo(problem.id).name)));
    }
    QCOMPARE(names, QStringList({QStringLiteral("hero.character:4 file-broken"),
                                 QStringLiteral("hero.character:8 file-missing"),
                                 QStringLiteral("hero.character:9 file-itself"),
                                 QStringLiteral("hero.character:10 file-outside"),
                                 QStringLiteral("hero.character:11 file-twice")}));
    // The messages of all files stand in the list of the project.
    auto* moves = static_cast<FamilyDocument*>(project->filesByType(FileID::Code).first());
    QTextCursor cursor(moves);
    cursor.insertText(QStringLiteral("nonsense\n"));
    QCOMPARE(project->messages()->errorCount(), 1);
    project->release();
    delete project;
}

void TestFamilyProject::checkOfWhatIsNotThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such folder") << "nowhere";
    QTest::newRow("folder without projects") << "shared";
    QTest::newRow("no such main file") << "nobody.character";
}

void TestFamilyProject::checkOfWhatIsNotThere()
{
    QFETCH(QString, name);
    const Game game;
    QString error;
    QVERIFY(checkGame(game.path("") + name, &error).isEmpty());
    QVERIFY2(error.contains(name), qPrintable(error));
}

QTEST_MAIN(TestFamilyProject)
#include "tst_familyproject.moc"
