#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "family/check/check.h"
#include "family/check/gamecheck.h"
#include "family/familydocument.h"
#include "operations/fixes/fixes.h"
#include "support/folders.h"
#include "support/randomtext.h"
#include "support/testtable.h"

#include <zorv/core/filesystemarchive.h>

#include <QTemporaryDir>
#include <QTextDocument>
#include <QtTest>

using namespace Operations;
using Family::Problem;
using Family::ProblemId;
using Family::Problems;

namespace {

constexpr quint32 Seed = 20261123;

/// A character with what the examples of the docs name, as it stands in the main file.
class SmallGame
{
public:
    explicit SmallGame(const QByteArray& text)
    {
        write("a.character", text);
        write("moves.code", "# nothing yet\n");
        Family::SpriteFile sprites;
        QImage image(4, 4, QImage::Format_Indexed8);
        image.setColorTable({0, qRgb(9, 8, 7)});
        image.fill(1);
        sprites.insertSprite(-1, {0, 0}, {}, image);
        sprites.toFile(*Zorv::FileSystemArchive::instance(), path("example.sprites"), false);
        Family::SoundFile().toFile(*Zorv::FileSystemArchive::instance(), path("example.sounds"),
                                   false);
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& text) const { writeFile(path(name), text); }
    QByteArray text() const { return readFile(path("a.character")); }

    Problems problems() const
    {
        QString error;
        return Family::checkGame(m_folder.path(), &error);
    }

    FixSource source() const
    {
        Family::GameCheck check(m_folder.path());
        check.look();
        while (!check.isDone()) {
            check.check();
        }
        return {check.folder(), check.takeNews().projects,
                [](const QString& path) { return QString::fromUtf8(readFile(path)); }};
    }

    /// Whether the problem is gone behind the fix.
    bool mends(const Problem& problem, const Fix& fix) const
    {
        QString error;
        switch (fix.kind) {
        case Fix::Text:
            writeFile(fix.path, changed(fix.before, fix.changes).toUtf8());
            break;
        case Fix::File:
            makeFile(fix, &error);
            break;
        case Fix::Sprite: {
            Family::SpriteFile sprites;
            sprites.fromFile(*Zorv::FileSystemArchive::instance(), fix.path, false);
            addPlaceholder(fix.id, &sprites);
            sprites.toFile(*Zorv::FileSystemArchive::instance(), fix.path, false);
            break;
        }
        case Fix::Sound: {
            Family::SoundFile sounds;
            sounds.fromFile(*Zorv::FileSystemArchive::instance(), fix.path, false);
            addSilence(fix.id, &sounds);
            sounds.toFile(*Zorv::FileSystemArchive::instance(), fix.path, false);
            break;
        }
        }
        const Problems left = problems();
        return std::none_of(left.begin(), left.end(), [&](const Problem& other) {
            return other.id == problem.id && other.text == problem.text;
        });
    }

private:
    QTemporaryDir m_folder;
};

const RandomText randomText({"[files]", "code = \"none.code\"", "[move jab]", "animation = 10",
                             "command = x", "cancels = y", "[commands]", "animation 10",
                             "frame 0,0 delay 2 delay 3", "[data]", "lifebar = 1",
                             "attack 9,9, 0,0", "frame 7,7 dely 3", "# nothing", ""},
                            "[]=\"0a\n# ");

}  // namespace

class TestFixes : public QObject
{
    Q_OBJECT

private slots:
    void everyFixMends_data();
    void everyFixMends();
    void lines_data();
    void lines();
    void created_data();
    void created();
    void nearFileIsOffered();
    void paletteIsACopy();
    void oneStepOfUndo();
    void oldKnowledgeIsHarmless();
    void brokenGameIsMended();
};

/// The examples of the grammar: how many ways there are to mend each.
void TestFixes::everyFixMends_data()
{
    columns<int, int>("id", "ways");
    for (const ProblemId id :
         {ProblemId::LineUnknown,      ProblemId::TextBehind,     ProblemId::GroupOld,
          ProblemId::HeadNotClosed,    ProblemId::ArgumentExtra,  ProblemId::SubGroupUnknown,
          ProblemId::KeyUnknown,       ProblemId::KeyOld,         ProblemId::EqualsMissing,
          ProblemId::TextExpected,     ProblemId::TextNotClosed,  ProblemId::EscapeUnknown,
          ProblemId::PathBackslash,    ProblemId::ChoiceOld,      ProblemId::PercentExpected,
          ProblemId::CommaMissing,     ProblemId::OptionUnknown,  ProblemId::OptionOld,
          ProblemId::OptionTwice,      ProblemId::DelayZero,      ProblemId::BoxReversed,
          ProblemId::KeyTwice,         ProblemId::LoopMissing,    ProblemId::LoopTwice,
          ProblemId::FileItself,       ProblemId::FileTwice,      ProblemId::FileMissing,
          ProblemId::AnimationMissing, ProblemId::CommandMissing, ProblemId::MoveMissing,
          ProblemId::AnimationsNeeded, ProblemId::SpriteMissing,  ProblemId::SoundMissing}) {
        row(Family::problemInfo(id).name, int(id), 1);
    }
    for (const ProblemId id :
         {ProblemId::FormatLate, ProblemId::GroupUnknown, ProblemId::WholeExpected,
          ProblemId::AnimationTwice, ProblemId::ChoiceUnknown}) {
        row(Family::problemInfo(id).name, int(id), 0);
    }
}

void TestFixes::everyFixMends()
{
    const auto [id, ways] = fetched<int, int>();
    QByteArray text = Family::problemInfo(ProblemId(id)).example;
    const SmallGame game(text.replace("example.character", "a.character"));
    const Problems problems = game.problems();
    const auto found = std::find_if(problems.begin(), problems.end(),
                                    [&](const Problem& each) { return int(each.id) == id; });
    QVERIFY(found != problems.end());
    const QVector<Fix> fixes = fixesOf(*found, game.source());
    QCOMPARE(fixes.size(), ways);
    for (const Fix& fix : fixes) {
        QVERIFY2(game.mends(*found, fix), qPrintable(fix.title + "\n" + game.text()));
    }
}

/// What comes out of a line by `check --fix`, and that the rest stays as it is.
void TestFixes::lines_data()
{
    columns<QString, QString>("before", "after");
    const auto row = [](const char* before, const char* after) {
        ::row(before, QString(before), QString(after));
    };
    row("animation 1\nframe 0,0  delay 4  delay 5 flip h loop # c",
        "animation 1\nframe 0,0  delay 4 flip h loop # c");
    row("animation 1\nframe 0,0 flip h flip v scale 1,1 loop",
        "animation 1\nframe 0,0 flip h scale 1,1 loop");
    row("animation 1\nframe 0,0 loop loop", "animation 1\nframe 0,0 loop");
    row("animation 1\nattack  9,-5,  +0, -9 # c\nframe 0,0 loop",
        "animation 1\nattack  +0,-9,  9, -5 # c\nframe 0,0 loop");
    row("[data]\nlifebar=5 # c\nturns = true", "[constants]\nlife=5 # c\nturns = yes");
    row("animation 1\nframe 0,0 time 4 flip x loop", "animation 1\nframe 0,0 delay 4 flip h loop");
    row("[constants]\nlief 5\nlife = 6", "[constants]\nlief 5\nlife = 6");
    row("[constants]\nlife = 6\nlief = 5", "[constants]\nlife = 6\nlief = 5");
    row("[constant]\nlife = 6", "[constants]\nlife = 6");
    row("[constants # c\nlife = 6", "[constants] # c\nlife = 6");
    row("[constants]\nlife = 6\nlife = 7", "[constants]\nlife = 6\nlife = 7");
}

void TestFixes::lines()
{
    const auto [before, after] = fetched<QString, QString>();
    const SmallGame game(before.toUtf8());
    QString error;
    const QVector<MendedText> mended = mendPlain(game.path({}), &error);
    QCOMPARE(error, QString());
    QCOMPARE(mended.isEmpty() ? before : mended.first().after, after);
    QCOMPARE(game.text(), before.toUtf8());
    const QVector<MendedText> alone = mendPlain(game.path("moves.code"), &error);
    QVERIFY(alone.isEmpty() && error.isEmpty());
}

/// Where what is created stands. `|` is the cursor, where that is told.
void TestFixes::created_data()
{
    columns<QString, QString>("before", "after");
    const auto row = [](const char* name, const char* before, const char* after) {
        ::row(name, QString(before), QString(after));
    };
    row("animation between",
        "[move a]\nanimation = 7\nanimation 5\nframe 3,1 loop # c\n\n# nine\n"
        "animation 9\nframe 0,0 loop\n",
        "[move a]\nanimation = 7\nanimation 5\nframe 3,1 loop # c\n\nanimation 7\n"
        "frame 3,1  delay 6  loop\n\n# nine\nanimation 9\nframe 0,0 loop\n");
    row("animation in front", "[move a]\nanimation = 7\n\n# nine\nanimation 9\nframe 4,0 loop",
        "[move a]\nanimation = 7\n\nanimation 7\nframe 4,0  delay 6  loop\n\n# nine\n"
        "animation 9\nframe 4,0 loop");
    row("animation of a word",
        "[move a]\nanimation = spin\n\nanimation 9\nframe 4,0 loop\n[info]\nname = \"a\"",
        "[move a]\nanimation = spin\n\nanimation 9\nframe 4,0 loop\n\nanimation spin\n"
        "frame 4,0  delay 6  loop\n[info]\nname = \"a\"");
    row("command behind the last",
        "[commands]\nlight = \"L\"\n[.defaults]\ntime = 9\n[move a]\ncommand = kick\nanimation = "
        "1\n"
        "animation 1\nframe 0,0 loop",
        "[commands]\nlight = \"L\"\nkick = \"|\"\n[.defaults]\ntime = 9\n[move a]\ncommand = kick\n"
        "animation = 1\nanimation 1\nframe 0,0 loop");
    row("run has its motion",
        "[constants]\nlife = 1\n[.run]\nforward = 1, 0\n[commands]\n\nlight = \"L\"",
        "[constants]\nlife = 1\n[.run]\nforward = 1, 0\n[commands]\n\nlight = \"L\"\nrun = \"F, "
        "F|\"");
    row("move behind its own",
        "[move a]\nanimation = 1\ncancels = kick\n[.hit]\ndamage = 1, 1\n\n# one\nanimation 1\n"
        "frame 0,0 loop",
        "[move a]\nanimation = 1\ncancels = kick\n[.hit]\ndamage = 1, 1\n\n[move kick]\nanimation "
        "= 1|"
        "\n\n# one\nanimation 1\nframe 0,0 loop");
}

void TestFixes::created()
{
    auto [before, after] = fetched<QString, QString>();
    const SmallGame game(before.toUtf8());
    const Problems problems = game.problems();
    const auto found = std::find_if(problems.begin(), problems.end(), [](const Problem& each) {
        return each.id == ProblemId::AnimationMissing || each.id == ProblemId::CommandMissing ||
               each.id == ProblemId::MoveMissing;
    });
    QVERIFY(found != problems.end());
    const QVector<Fix> fixes = fixesOf(*found, game.source());
    QVERIFY(!fixes.isEmpty());
    const Fix& fix = fixes.last();
    const int cursor = after.indexOf('|');
    if (cursor >= 0) {
        QCOMPARE(fix.cursor, cursor);
        after.remove(cursor, 1);
    }
    QCOMPARE(changed(fix.before, fix.changes), after);
}

void TestFixes::nearFileIsOffered()
{
    const SmallGame game("[files]\ncode = \"sub/../move.code\"");
    const QVector<Fix> fixes = fixesOf(game.problems().first(), game.source());
    QCOMPARE(fixes.size(), 2);
    QCOMPARE(changed(fixes.first().before, fixes.first().changes),
             QString("[files]\ncode = \"sub/../moves.code\""));
    QVERIFY(game.mends(game.problems().first(), fixes.last()));
}

void TestFixes::paletteIsACopy()
{
    const SmallGame game("[files]\nsprites = \"example.sprites\"\n[palette red]\n"
                         "file = \"new/red.act\"\nanimation 1\nframe 0,0 loop");
    const QVector<Fix> fixes = fixesOf(game.problems().first(), game.source());
    QCOMPARE(fixes.size(), 1);
    QVERIFY(game.mends(game.problems().first(), fixes.first()));
    const QByteArray palette = readFile(game.path("new/red.act"));
    QCOMPARE(palette.size(), 768);
    QCOMPARE(palette.mid(3, 3), QByteArray("\x09\x08\x07"));
    QString error;
    QVERIFY(!makeFile(fixes.first(), &error) && !error.isEmpty());
    QCOMPARE(readFile(game.path("new/red.act")), palette);
}

void TestFixes::oneStepOfUndo()
{
    const SmallGame game("[commands]\nlight = \"L\"\nanimation 10\nframe 0,0 loop\n");
    const Fix fix = fixesOf(game.problems().first(), game.source()).first();
    Family::FamilyDocument document(Family::FileKind::Character);
    document.fromString(fix.before);
    QVERIFY(applyText(fix, &document));
    QCOMPARE(document.text(), changed(fix.before, fix.changes));
    QVERIFY(!applyText(fix, &document));
    document.undo();
    QCOMPARE(document.text(), fix.before);
    QVERIFY(!document.canUndo());
}

/// Problems and projects of one text, the fixes for another.
void TestFixes::oldKnowledgeIsHarmless()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    QTextDocument text;
    for (int i = 0; i < 60; ++i) {
        for (int n = 0; n < 12; ++n) {
            randomText.edit(random, text);
        }
        const SmallGame game(text.toPlainText().toUtf8());
        const Problems problems = game.problems();
        FixSource source = game.source();
        randomText.edit(random, text);
        const QString other = random.bounded(4) ? text.toPlainText() : QString();
        source.textOf = [&](const QString&) { return other; };
        for (const Problem& problem : problems) {
            for (const Fix& fix : fixesOf(problem, source)) {
                int behind = 0;
                for (const TextChange& change : fix.changes) {
                    QVERIFY(change.position >= behind && change.length >= 0);
                    behind = change.position + change.length;
                }
                QVERIFY(behind <= fix.before.size());
            }
        }
        QString error;
        mendPlain(game.path({}), &error);
    }
}

void TestFixes::brokenGameIsMended()
{
    const QTemporaryDir folder;
    QVERIFY(copyFolder(ZORV_SAMPLES "/broken", folder.path()));
    QString error;
    const Problems before = Family::checkGame(folder.path(), &error);
    for (const MendedText& text : mendPlain(folder.path(), &error)) {
        writeFile(text.path, text.after.toUtf8());
    }
    const Problems after = Family::checkGame(folder.path(), &error);
    QVERIFY(after.size() + 10 < before.size());
    for (const Problem& problem : after) {
        QVERIFY2(problem.level != Family::Level::Deprecated, qPrintable(problemLine(problem)));
    }
    QVERIFY(mendPlain(folder.path(), &error).isEmpty());
}

QTEST_MAIN(TestFixes)
#include "tst_fixes.moc"
