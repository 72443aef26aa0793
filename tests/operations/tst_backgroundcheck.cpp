#include "family/check/check.h"
#include "operations/check/backgroundcheck.h"
#include "operations/check/uses.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <zorv/code/codecs/textcodecs.h>

using namespace Family;
using Operations::BackgroundCheck;
using Operations::Removal;

namespace {

constexpr int Patience = 60000;  // milliseconds, under sanitizers too

QStringList lines(const Problems& problems)
{
    QStringList result;
    for (const Problem& problem : problems) {
        result.append(problemLine(problem));
    }
    return result;
}

QStringList lines(const BackgroundCheck& check)
{
    QStringList result;
    for (const Problems& problems : check.problems()) {
        result += lines(problems);
    }
    return result;
}

std::shared_ptr<const SourceText> textOf(const QByteArray& text, FileKind kind)
{
    SourceText source;
    source.text = QString::fromUtf8(text);
    source.kind = kind;
    return std::make_shared<const SourceText>(source);
}

}  // namespace

class TestBackgroundCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void findsWhatTheCheckFinds();
    void followsTheDisk();
    void tellsOnlyOfItsGame();
    void usesAreFound_data();
    void usesAreFound();

private:
    QString path(const QString& name) const { return m_root + QLatin1Char('/') + name; }
    QStringList expected() const
    {
        QString error;
        return lines(checkGame(m_root, &error));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

void TestBackgroundCheck::init()
{
    Zorv::TextCodecs::setDefaultCodec(Zorv::TextCodecs::index("UTF-8"));
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = QFileInfo(m_folder->path()).canonicalFilePath();
    QVERIFY(copyFolder(ZORV_SAMPLES "/broken", m_root));
}

void TestBackgroundCheck::findsWhatTheCheckFinds()
{
    BackgroundCheck check;
    const QSignalSpy changes(&check, &BackgroundCheck::changed);
    check.setGame(m_root);
    QVERIFY(!check.isDone());
    QVERIFY(check.waitForDone(Patience));
    QCOMPARE(lines(check), expected());
    const int before = changes.size();
    const QString file = path("characters/maren/basics.anim");
    check.setText(file, textOf("animation 10\nframe 0,0 delay 0 loop\n", FileKind::Animations));
    QVERIFY(!check.isDone());
    QVERIFY(check.waitForDone(Patience));
    QVERIFY(changes.size() > before);
    QVERIFY(changes.last().first().toStringList().contains("characters/maren/basics.anim"));
    QVERIFY(lines(check) != expected());
    QVERIFY(writeFile(file, "animation 10\nframe 0,0 delay 0 loop\n"));
    QCOMPARE(lines(check), expected());
    check.setText(file, nullptr);
    QVERIFY(check.waitForDone(Patience));
    QCOMPARE(lines(check), expected());
}

/// Nobody has told: neither of a file that is written in its place, nor of a new project.
void TestBackgroundCheck::followsTheDisk()
{
    BackgroundCheck check;
    check.setGame(m_root);
    QVERIFY(check.waitForDone(Patience));
    const QStringList before = lines(check);
    QVERIFY(writeFile(path("shared/common.code"), "nonsense\n"));
    QTRY_VERIFY_WITH_TIMEOUT(lines(check) != before, Patience);
    QVERIFY(writeFile(path("stages/new/new.stage"), "nonsense\n"));
    QTRY_VERIFY_WITH_TIMEOUT(check.problems().contains("stages/new/new.stage"), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(lines(check), expected(), Patience);
}

void TestBackgroundCheck::tellsOnlyOfItsGame()
{
    BackgroundCheck check;
    check.setGame(m_root);
    QVERIFY(check.waitForDone(Patience));
    QVERIFY(!check.problems().isEmpty());
    check.setGame(ZORV_SAMPLES "/arena");
    QVERIFY(check.problems().isEmpty());
    check.setGame({});
    QVERIFY(check.isDone());
    QTest::qWait(1);
    QVERIFY(check.projects().isEmpty());
}

void TestBackgroundCheck::usesAreFound_data()
{
    columns<int, QString, QStringList, QStringList, QStringList>("kind", "file", "names", "staying",
                                                                 "expected");

    const QString character = "characters/a/a.character";
    const QStringList inBoth{"characters/a/a.anim, line 2: 1,0",
                             "characters/b/b.character, line 4: 1,0"};
    row("sprite of two projects", int(Removal::Sprites), "shared/all.sprites", QStringList{"1,0"},
        QStringList(), inBoth);
    row("its namesake stays", int(Removal::Sprites), "shared/all.sprites", QStringList{"1,0"},
        QStringList{"1,0"}, QStringList());
    row("sprite that nobody shows", int(Removal::Sprites), "shared/all.sprites", QStringList{"7,7"},
        QStringList(), QStringList());
    row("sprite of another file", int(Removal::Sprites), "other.sprites", QStringList{"1,0"},
        QStringList(), QStringList());
    row("sound", int(Removal::Sounds), "characters/a/a.sounds", QStringList{"2,0"}, QStringList(),
        QStringList{character + ", line 8: 2,0"});
    row("animation", int(Removal::Animations), "characters/a/a.anim", QStringList{"10", "11"},
        QStringList(), QStringList{character + ", line 6: 10"});
    row("animation that stands elsewhere, too", int(Removal::Animations), character,
        QStringList{"10"}, QStringList(), QStringList());
}

void TestBackgroundCheck::usesAreFound()
{
    const auto [kind, file, names, staying, expected] =
        fetched<int, QString, QStringList, QStringList, QStringList>();
    QVERIFY(
        writeFile(path("characters/a/a.character"),
                  "[files]\nsprites = \"../../shared/all.sprites\"\nsounds = \"a.sounds\"\n"
                  "animations = \"a.anim\"\n[move jab]\nanimation = 10\n[.sound]\nhit = 2,0\n"));
    QVERIFY(writeFile(path("characters/a/a.anim"),
                      "animation 10\nframe 1,0\nframe 1,1\nanimation 11\nframe 1,1\n"));
    QVERIFY(writeFile(path("characters/b/b.character"),
                      "[files]\nsprites = \"../../shared/all.sprites\"\nanimation 1\nframe 1,0\n"));
    QVERIFY(writeFile(path("shared/all.sprites"), {}));
    QVERIFY(writeFile(path("characters/a/a.sounds"), {}));
    const Removal removal{Removal::Kind(kind), path(file), names, staying};
    QCOMPARE(
        Operations::inWords(Operations::usesOf(removal, Operations::projectsNaming(removal.path))),
        expected);
    BackgroundCheck check;
    check.setGame(m_root);
    QVERIFY(check.waitForDone(Patience));
    QCOMPARE(Operations::inWords(Operations::usesOf(removal, check.projects())), expected);
}

QTEST_GUILESS_MAIN(TestBackgroundCheck)
#include "tst_backgroundcheck.moc"
