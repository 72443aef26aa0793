#include "family/check/check.h"
#include "family/check/gamecheck.h"
#include "family/familydocument.h"
#include "support/folders.h"
#include "support/randomtext.h"
#include "support/testtable.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QtTest>

#include <zorv/code/codecs/textcodecs.h>

using namespace Family;

namespace {

constexpr quint32 Seed = 20261122;

const RandomText randomText({"[files]",
                             "code = \"moves.code\"",
                             "animations = \"basics.anim\"",
                             "sprites = \"iwao.sprites\"",
                             "code = \"../../shared/common.code\"",
                             "[move jab]",
                             "animation = 10",
                             "animation = nowhere",
                             "command = light",
                             "cancels = jab",
                             "[commands]",
                             "light = \"L\"",
                             "[constants]",
                             "life = 1000",
                             "life = full",
                             "animation 10",
                             "animation new",
                             "frame 0,0 loop",
                             "frame 7,7",
                             "[.sound]",
                             "hit = 1,0",
                             "attack 0,0, 9,9",
                             "# nothing",
                             ""},
                            "[]=\"0a\n# ");

QString lines(const Problems& problems)
{
    QStringList result;
    for (const Problem& problem : problems) {
        result.append(problemLine(problem));
    }
    return result.join('\n');
}

QString result(GameCheck& check)
{
    while (!check.isDone()) {
        check.check();
    }
    return lines(check.problems());
}

std::shared_ptr<const SourceText> source(const QString& path, const QString& text)
{
    SourceText source;
    source.text = text;
    source.kind = fileKindOf(path);
    return std::make_shared<const SourceText>(source);
}

}  // namespace

class TestGameCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void afterEachChangeAsAnew();
    void doesOnlyWhatIsDue_data();
    void doesOnlyWhatIsDue();
    void unsavedProjectsCount();
    void namesAcrossFiles_data();
    void namesAcrossFiles();

private:
    QString path(const QString& name) const { return m_root + QLatin1Char('/') + name; }
    QString anyFile(QRandomGenerator& random, const QString& filter) const;
    void changeSomething(QRandomGenerator& random, GameCheck& check);
    QString edited(QRandomGenerator& random, const QString& file) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
    QHash<QString, QString> m_texts;  // that stand in the place of files
    QHash<QString, QByteArray> m_removed;
};

void TestGameCheck::init()
{
    Zorv::TextCodecs::setDefaultCodec(Zorv::TextCodecs::index("UTF-8"));
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = QFileInfo(m_folder->path()).canonicalFilePath();
    m_texts.clear();
    m_removed.clear();
    QVERIFY(copyFolder(ZORV_SAMPLES "/broken", m_root));
}

QString TestGameCheck::anyFile(QRandomGenerator& random, const QString& filter) const
{
    QDirIterator each(m_root, {filter}, QDir::Files, QDirIterator::Subdirectories);
    QStringList files;
    while (each.hasNext()) {
        files.append(each.next());
    }
    files.sort();
    return files.isEmpty() ? QString() : files.at(random.bounded(files.size()));
}

QString TestGameCheck::edited(QRandomGenerator& random, const QString& file) const
{
    QTextDocument document;
    document.setPlainText(m_texts.value(file, QString::fromUtf8(readFile(file))));
    for (int i = random.bounded(4); i >= 0; --i) {
        randomText.edit(random, document);
    }
    return document.toPlainText();
}

void TestGameCheck::changeSomething(QRandomGenerator& random, GameCheck& check)
{
    const QString file = anyFile(random, random.bounded(3) ? "*.c*" : "*");
    // Where nothing is left, what was removed comes back.
    switch (file.isEmpty() ? 4 : random.bounded(8)) {
    case 0:
    case 1:
        m_texts.insert(file, edited(random, file));
        check.setText(file, source(file, m_texts.value(file)));
        break;
    case 2:
        for (const QString& each : m_texts.keys()) {
            m_texts.remove(each);
            check.setText(each, nullptr);
        }
        break;
    case 3:
        m_removed.insert(file, readFile(file));
        QVERIFY(QFile::remove(file));
        break;
    case 4:
        for (auto it = m_removed.cbegin(); it != m_removed.cend(); ++it) {
            QVERIFY(writeFile(it.key(), it.value()));
        }
        m_removed.clear();
        break;
    case 5:
        QVERIFY(writeFile(path("characters/new/new.character"), edited(random, file).toUtf8()));
        break;
    default:
        QVERIFY(writeFile(file, edited(random, file).toUtf8()));
    }
}

/// The slow model is a check that knows nothing yet.
void TestGameCheck::afterEachChangeAsAnew()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    GameCheck check(m_root);
    for (int round = 0; round < 150; ++round) {
        changeSomething(random, check);
        GameCheck anew(m_root);
        for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
            anew.setText(it.key(), source(it.key(), it.value()));
        }
        QCOMPARE(check.look(), anew.look());
        QVERIFY2(result(check) == result(anew), qPrintable(QString::number(round)));
    }
    // What stands in the place of a file is judged as the file would be.
    QString error;
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        QVERIFY(writeFile(it.key(), it.value().toUtf8()));
    }
    QCOMPARE(result(check), lines(checkGame(m_root, &error)));
}

void TestGameCheck::doesOnlyWhatIsDue_data()
{
    columns<QString, int>("file", "work");

    // The file and those projects that name it.
    QTest::newRow("of one project") << "characters/maren/basics.anim" << 2;
    QTest::newRow("of two projects") << "shared/common.code" << 3;
    QTest::newRow("of no project") << "stages/pier/pier.txt.bak" << 0;
}

void TestGameCheck::doesOnlyWhatIsDue()
{
    const auto [file, work] = fetched<QString, int>();
    QVERIFY(
        writeFile(path("stages/two/two.stage"), "[files]\ncode = \"../../shared/common.code\"\n"));
    GameCheck check(m_root);
    check.look();
    const QString before = result(check);
    const int whole = check.workCount();
    check.look();
    result(check);
    QCOMPARE(check.workCount(), whole);
    check.setText(path(file), source(path(file), "nonsense"));
    QCOMPARE(result(check) == before, work == 0);
    QCOMPARE(check.workCount(), whole + work);
    QVERIFY(work < whole / 2);
}

/// A project that was never saved has problems too, and they go with it.
void TestGameCheck::unsavedProjectsCount()
{
    GameCheck check(m_root);
    check.look();
    const QString before = result(check);
    SourceText text;
    text.kind = FileKind::Stage;
    text.text = "nonsense";
    check.setText(path("new file"), std::make_shared<const SourceText>(text));
    QVERIFY(result(check).contains("new file:1:1: error"));
    check.setText(path("new file"), nullptr);
    QCOMPARE(result(check), before);
    // It came and went before anybody looked.
    check.setText(path("new file"), std::make_shared<const SourceText>(text));
    check.setText(path("new file"), nullptr);
    QCOMPARE(result(check), before);
}

void TestGameCheck::namesAcrossFiles_data()
{
    columns<QString, QString, QString>("main", "shared", "told");
    const auto row = [](const char* name, const char* main, const char* shared, const char* told) {
        ::row(name, QString(main), QString(shared), QString(told));
    };
    const char moves[] = "[move jab]\ncommand = light\nanimation = 1\ncancels = kick\n";
    row("named elsewhere",
        "animation 1\nframe 0,0 loop\n[commands]\nlight = \"L\"\n[move kick]\nanimation = 1", moves,
        "");
    row("both missing", "animation 1\nframe 0,0 loop", moves,
        "shared.code:2 light, shared.code:4 kick");
    row("a file missing", "code = \"none.code\"\n[move a]\ncommand = b\nanimation = c", "",
        "a.character:4 none.code");
    row("run without its command",
        "[commands]\nlight = \"L\"\n[constants]\nlife = 1\n[.run]\nback = -1, 0\nforward = 1, 0",
        "", "a.character:9 hop-back, a.character:10 run");
    row("run with it", "[commands]\nrun = \"F, F\"\n[constants]\nlife = 1\n[.run]\nforward = 1, 0",
        "", "");
    row("no command yet", "[constants]\nlife = 1\n[.run]\nforward = 1, 0", "", "");
}

// Each problem as its file, its line, and the first name in its text.
void TestGameCheck::namesAcrossFiles()
{
    const auto [main, shared, told] = fetched<QString, QString, QString>();
    const QTemporaryDir game;
    writeFile(game.filePath("a.character"), "[files]\ncode = \"shared.code\"\n\n" + main.toUtf8());
    // A stage that shares the file has no commands of its own to name.
    writeFile(game.filePath("b.stage"),
              "[files]\ncode = \"shared.code\"\n[arena]\nleft = 0\nright = 1\nfloor = 0\n"
              "animation 1\nframe 0,0 loop");
    writeFile(game.filePath("shared.code"), shared.toUtf8());
    QString error;
    QStringList found;
    for (const Problem& problem : checkGame(game.path(), &error)) {
        const QString name = problem.text.section('\'', 1, 1);
        found.append(QString("%1:%2 %3").arg(problem.file, QString::number(problem.line), name));
    }
    QCOMPARE(found.join(", "), told);
}

QTEST_GUILESS_MAIN(TestGameCheck)
#include "tst_gamecheck.moc"
