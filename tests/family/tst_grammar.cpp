#include "family/assets/familysprite.h"
#include "family/assets/palettelist.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "family/check/check.h"
#include "family/check/filefacts.h"
#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/grammar/linereader.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"
#include "support/folders.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/code/codedoc/codeblockdata.h>
#include <zorv/core/filesystemarchive.h>

#include <QDate>
#include <QDir>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QtTest>

using namespace Family;

Q_DECLARE_METATYPE(Family::ProblemId)

namespace {

constexpr quint32 Seed = 20260714;

// One sprite in one palette, and the files of the docs that have a fault.
void writeSprites(const QString& name, int colours, bool hasMore)
{
    QImage image(8, 8, QImage::Format_Indexed8);
    QVector<QRgb> table;
    for (int i = 0; i < colours; ++i) {
        table.append(qRgb(i + 1, 2 * i, 3));
    }
    image.setColorTable(table);
    image.fill(1);
    SpriteFile sprites;
    QVERIFY(sprites.insertSprite(-1, {0, 0}, {}, image));
    sprites.sprite(0)->setProperty("Codec", "LZ5");
    if (hasMore) {
        const Zorv::RGBA grey[256] = {};
        sprites.palettes()->addPalette(grey, "9,9", false);
    }
    QVERIFY(sprites.toFile(*Zorv::FileSystemArchive::instance(), name, false));
}

void writeSounds(const QString& name, bool isDamaged)
{
    SoundFile sounds;
    QVERIFY(sounds.add(0, "0,0", soundOf("some samples")));
    QVERIFY(sounds.toFile(*Zorv::FileSystemArchive::instance(), name, false));
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(!isDamaged || (file.seek(file.size() - 1) && file.write("x") == 1));
}

QString readDocs()
{
    return QString::fromUtf8(readFile(QStringLiteral(ZORV_DOCS "/grammar.md"))) + QLatin1Char('\n');
}

QString randomLine(QRandomGenerator& random)
{
    static const QStringList parts = {
        "[",     "]",     ".",    "info",   "constants", "walk",   "life",   "=",      "1000",
        "-5",    ",",     "\"",   "\\",     "#",         " ",      "\t",     "frame",  "0,0",
        "delay", "flip",  "h",    "attack", "body",      "offset", "scale",  "1e3",    "0xff",
        "80%",   "loop",  "é",    "move",   "animation", "200",    "zorv",   "1",      "name",
        "x",     "power", "tint", "0.5",    "stance",    "left",   "shadow", "created"};
    QString line;
    for (int n = random.bounded(14); n > 0; --n) {
        line += parts.at(random.bounded(parts.size()));
        if (random.bounded(2)) {
            line += QLatin1Char(' ');
        }
    }
    return line;
}

}  // namespace

class TestGrammar : public QObject
{
    Q_OBJECT

private slots:
    void problem_data();
    void problem();
    void unfaithfulEncodingIsTold();
    void everyProblemIsInTheDocs();
    void everyKeyIsInTheDocs();
    void storedValue_data();
    void storedValue();
    void messagesAreThoseOfTheCheck();
    void columnsLieInTheLine();
    void nearNames_data();
    void nearNames();
};

void TestGrammar::problem_data()
{
    columns<ProblemId, int, int, int>("id", "line", "column", "length");
    // clang-format off
    const struct
    {
        ProblemId id;
        int line, column, length;
    } rows[] = {
        {ProblemId::LineUnknown, 1, 1, 12},
        {ProblemId::TextBehind, 2, 14, 1},
        {ProblemId::FormatLate, 3, 1, 6},
        {ProblemId::FormatVersion, 1, 6, 1},
        {ProblemId::HeadName, 1, 1, 1},
        {ProblemId::HeadNotClosed, 1, 1, 10},
        {ProblemId::GroupUnknown, 1, 2, 5},
        {ProblemId::GroupOld, 1, 2, 4},
        {ProblemId::GroupMisplaced, 1, 2, 5},
        {ProblemId::ArgumentMissing, 1, 5, 1},
        {ProblemId::ArgumentExtra, 1, 7, 4},
        {ProblemId::SubGroupAlone, 1, 2, 5},
        {ProblemId::SubGroupUnknown, 3, 3, 4},
        {ProblemId::ValueOutside, 1, 1, 11},
        {ProblemId::KeyUnknown, 3, 1, 4},
        {ProblemId::KeyOld, 2, 1, 7},
        {ProblemId::EqualsMissing, 3, 1, 5},
        {ProblemId::ValueMissing, 3, 7, 1},
        {ProblemId::TextExpected, 2, 8, 3},
        {ProblemId::TextNotClosed, 2, 8, 4},
        {ProblemId::EscapeUnknown, 2, 10, 2},
        {ProblemId::PathBackslash, 2, 8, 20},
        {ProblemId::NameExpected, 3, 11, 1},
        {ProblemId::ChoiceUnknown, 3, 10, 4},
        {ProblemId::ChoiceOld, 3, 9, 4},
        {ProblemId::DateExpected, 3, 11, 10},
        {ProblemId::WholeExpected, 2, 8, 4},
        {ProblemId::RealExpected, 3, 11, 3},
        {ProblemId::CountExpected, 3, 12, 2},
        {ProblemId::PercentExpected, 3, 10, 3},
        {ProblemId::ColourExpected, 3, 10, 3},
        {ProblemId::CommaMissing, 4, 11, 1},
        {ProblemId::CountOfNumbers, 4, 8, 2},
        {ProblemId::OutOfRange, 2, 8, 1},
        {ProblemId::MotionUnknown, 2, 8, 9},
        {ProblemId::AnimationIdentifier, 1, 11, 5},
        {ProblemId::FrameOutside, 1, 1, 9},
        {ProblemId::FrameSprite, 2, 7, 4},
        {ProblemId::OptionUnknown, 2, 11, 4},
        {ProblemId::OptionOld, 2, 11, 4},
        {ProblemId::OptionTwice, 2, 19, 5},
        {ProblemId::DelayZero, 2, 17, 1},
        {ProblemId::BoxOutside, 1, 1, 17},
        {ProblemId::BoxReversed, 2, 8, 10},
        {ProblemId::GroupTwice, 3, 2, 9},
        {ProblemId::KeyTwice, 3, 1, 4},
        {ProblemId::KeyRequired, 1, 2, 9},
        {ProblemId::AnimationTwice, 3, 11, 1},
        {ProblemId::AnimationEmpty, 1, 11, 1},
        {ProblemId::BoxesWithoutFrame, 3, 1, 6},
        {ProblemId::LoopMissing, 1, 11, 1},
        {ProblemId::LoopTwice, 3, 1, 5},
        {ProblemId::FrameNeverShown, 3, 1, 5},
        {ProblemId::FileMissing, 2, 8, 13},
        {ProblemId::FileUnreadable, 2, 8, 8},
        {ProblemId::FileOutside, 2, 8, 24},
        {ProblemId::FileItself, 2, 8, 19},
        {ProblemId::FileTwice, 3, 8, 12},
        {ProblemId::AnimationMissing, 2, 13, 1},
        {ProblemId::CommandMissing, 2, 11, 5},
        {ProblemId::MoveMissing, 3, 11, 8},
        {ProblemId::AnimationsNeeded, 3, 11, 2},
        {ProblemId::FileBroken, 2, 11, 12},
        {ProblemId::RecordBroken, 2, 10, 16},
        {ProblemId::SpriteMissing, 5, 7, 3},
        {ProblemId::SoundMissing, 7, 9, 3},
        {ProblemId::SpritesUnused, 2, 11, 17},
        {ProblemId::PalettesUnused, 2, 11, 18},
        {ProblemId::SoundsUnused, 2, 10, 16},
        {ProblemId::ColoursLost, 2, 11, 17},
    };
    // clang-format on
    QCOMPARE(int(std::size(rows)), ProblemCount - 1);
    for (const auto& row : rows) {
        ::row(problemInfo(row.id).name, row.id, row.line, row.column, row.length);
    }
}

// The examples of the table each show their one fault, in a whole game, and no other.
void TestGrammar::problem()
{
    const auto [id, line, column, length] = fetched<ProblemId, int, int, int>();
    QTemporaryDir game;
    const QString folder = game.path() + QStringLiteral("/characters/example/");
    const ProblemInfo& info = problemInfo(id);
    writeFile(folder + QStringLiteral("example.character"), info.example);
    writeFile(folder + QStringLiteral("moves.code"), "# nothing yet\n");
    writeFile(folder + QStringLiteral("palettes/blue.act"), "x");
    QVERIFY(QDir(folder).mkpath(QStringLiteral("folder")));
    writeSprites(folder + QStringLiteral("example.sprites"), 16, false);
    writeSprites(folder + QStringLiteral("palettes.sprites"), 16, true);
    writeSprites(folder + QStringLiteral("colours.sprites"), 64, false);
    writeSounds(folder + QStringLiteral("example.sounds"), false);
    writeSounds(folder + QStringLiteral("damaged.sounds"), true);

    QString error;
    const Problems problems = checkGame(game.path(), &error);
    QCOMPARE(error, QString());
    QStringList lines;
    for (const Problem& problem : problems) {
        lines.append(problemLine(problem));
    }
    QVERIFY2(problems.size() == 1, qPrintable(lines.join(QLatin1Char('\n'))));
    const Problem& problem = problems.first();
    QCOMPARE(QString(problemInfo(problem.id).name), QString(info.name));
    QCOMPARE(problem.level, info.level);
    QCOMPARE(problem.file, QStringLiteral("characters/example/example.character"));
    QCOMPARE(problem.line, line);
    QCOMPARE(problem.column, column);
    QCOMPARE(problem.length, length);
    QVERIFY2(!problem.text.contains(QRegularExpression(QStringLiteral("%\\d"))),
             qPrintable(problem.text));
}

void TestGrammar::unfaithfulEncodingIsTold()
{
    QTemporaryDir game;
    writeFile(game.path() + QStringLiteral("/a.character"),
              "\xef\xbb\xbf[info]\nname = \"\xff\xfe\x80 \xc3\"\n");
    QString error;
    const Problems problems = checkGame(game.path(), &error);
    QCOMPARE(problems.size(), 1);
    QCOMPARE(int(problems.first().id), int(ProblemId::EncodingUnfaithful));
}

void TestGrammar::everyProblemIsInTheDocs()
{
    QString docs = readDocs();
    QVERIFY(!docs.isEmpty());
    docs.replace(QRegularExpression(QStringLiteral("(?<=[^\n])\n(?=[^\n ])")),  // wrapped lines
                 QStringLiteral(" "));
    for (int i = 0; i < ProblemCount; ++i) {
        const ProblemInfo& info = problemInfo(ProblemId(i));
        QString entry =
            QStringLiteral("**`%1`** (%2): ").arg(QLatin1String(info.name), levelName(info.level));
        entry += QLatin1String(info.text) + QLatin1String("\n\n");
        const QStringList example =
            QString::fromUtf8(info.example).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : example) {
            entry += QLatin1String("    ") + line + QLatin1Char('\n');
        }
        QVERIFY2(docs.contains(entry), qPrintable(entry));
    }
}

void TestGrammar::everyKeyIsInTheDocs()
{
    const QString docs = readDocs();
    for (const GroupInfo* group : Grammar::groups()) {
        const QString head = group->isSubGroup()      ? QStringLiteral("`[.%1]`")
                             : group->takesArgument() ? QStringLiteral("`[%1 NAME]`")
                                                      : QStringLiteral("`[%1]`");
        QVERIFY2(docs.contains(head.arg(group->name)), group->name.data());
        for (const KeyInfo& key : *group) {
            const QString name = QStringLiteral("`%1`").arg(key.name);
            QVERIFY2(key.isFree() || docs.contains(name), key.name.data());
            for (const QString& choice : key.choiceList()) {
                QVERIFY2(docs.contains(QStringLiteral("`%1`").arg(choice)), qPrintable(choice));
            }
        }
    }
}

void TestGrammar::storedValue_data()
{
    columns<QString, QString, QVariant>("group", "line", "value");
    const auto row = [](const char* group, const char* line, const QVariant& value) {
        ::row(line, QString::fromUtf8(group), QString::fromUtf8(line), value);
    };
    row("[info]", "name=\"Räy #1\"#x", QString::fromUtf8("Räy #1"));
    row("[info]", R"(note = "a\"b\\c\nd")", QStringLiteral("a\"b\\c\nd"));
    row("[info]", "created = 2024-02-29 # leap", QDate(2024, 2, 29));
    row("[info]", "colour = 0xFF8040", 0xff8040u);
    row("[info]", "resolution=320,240", QVariantList({320, 240}));
    row("[palette a]", "file = \"a/b.act\"", QStringLiteral("a/b.act"));
    row("[constants]", "attack = 80%", 80u);
    row("[constants]", "gravity = .5", 0.5);
    row("[constants]", "gravity = 44e-2", 0.44);
    row("[constants]", "scale = 1 , 0.5", QVariantList({1.0, 0.5}));
    row("[constants]", "tint = 1,0,0.25", QVariantList({1.0, 0.0, 0.25}));
    row("[constants]", "stance = southpaw", QStringLiteral("southpaw"));
    row("[constants]", "turns = true", QStringLiteral("yes"));
    row("[constants]", "sparks = 0x1,0xffffff", QVariantList({0x1u, 0xffffffu}));
    row("[constants]", "combo = 100, 80, 60", QVariantList({100, 80, 60}));
    row("[constants]", "recovery = 0.25", QVariantList({0.25}));
    row("[constants]", "lifebar = 77", 77);
    row("[move a]", "priority = 7", 7u);
    row("[move a]", "velocity = -1.5, 2", QPointF(-1.5, 2));
    row("[move a]", "command = fire_ball", QStringLiteral("fire_ball"));
    row("[arena]", "camera = -10, -20, 30, +40", QVariantList({-10, -20, 30, 40}));
    row("[layer a]", "offset = -5, 9", QPoint(-5, 9));
    row("[commands]", "fireball = \"D, DF, F, x\"", QStringLiteral("D, DF, F, x"));
    row("[what]", "x = \"1\", 2 \t# c", QStringLiteral("\"1\", 2"));
}

void TestGrammar::storedValue()
{
    const auto [group, line, value] = fetched<QString, QString, QVariant>();
    FamilyDocument document(FileKind::Character);
    document.fromString(group + QLatin1Char('\n') + line);
    const auto* node = dynamic_cast<ValueNode*>(document.nodeInBlock(document.lastBlock()));
    QVERIFY(node);
    QCOMPARE(node->value().userType(), value.userType());
    QCOMPARE(node->value(), value);
    QCOMPARE(node->parentCode(), document.childAt(0));
}

// The window shows the messages of the document, the command line those of the check.
void TestGrammar::messagesAreThoseOfTheCheck()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 60; ++round) {
        QStringList lines;
        for (int n = 0; n < 40; ++n) {
            lines.append(randomLine(random));
        }
        FamilyDocument document(FileKind(random.bounded(5)));
        document.fromString(lines.join(QLatin1Char('\n')));
        QStringList expected;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (const auto& message : Zorv::CodeBlockData::blockData(block)->syntaxMessages()) {
                expected.append(QStringLiteral("%1:%2+%3 %4 %5")
                                    .arg(block.blockNumber() + 1)
                                    .arg(message.start + 1)
                                    .arg(message.end - message.start)
                                    .arg(int(message.type))
                                    .arg(message.text));
            }
        }
        QStringList found;
        for (const Problem& problem : checkText(SourceText(&document), QStringLiteral("f"))) {
            if (problem.id < FirstFileProblem) {
                found.append(QStringLiteral("%1:%2+%3 %4 %5")
                                 .arg(problem.line)
                                 .arg(problem.column)
                                 .arg(problem.length)
                                 .arg(int(problem.level))
                                 .arg(problem.text));
            }
        }
        expected.sort();
        found.sort();
        QCOMPARE(found.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
    }
}

void TestGrammar::columnsLieInTheLine()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    const QVector<const GroupInfo*> groups = Grammar::groups();
    for (int round = 0; round < 40000; ++round) {
        QString line = randomLine(random);
        if (round % 4 == 0 && !line.isEmpty()) {
            line[random.bounded(line.size())] = QChar(random.bounded(0x10000));
        }
        LineHead head;
        head.kind = LineHead::Kind(random.bounded(4));
        head.group = groups.at(random.bounded(groups.size()));
        LineDetails details;
        LineReport report(nullptr, &details);
        readLine(line, head, FileKind(random.bounded(5)), report);
        for (const LineProblem& problem : qAsConst(details.problems)) {
            const bool inside = problem.start >= 0 && problem.start <= problem.end &&
                                problem.end <= line.size() && !problem.text.isEmpty();
            QVERIFY2(inside, qPrintable(line + QLatin1String(" | ") + problem.text));
        }
        for (const LinePart& part : qAsConst(details.parts)) {
            const bool inside =
                part.start >= 0 && part.start <= part.end && part.end <= line.size();
            QVERIFY2(inside, qPrintable(line));
        }
    }
}

void TestGrammar::nearNames_data()
{
    columns<QString, QString>("name", "near");
    row("swapped letters", "poewr", "power");
    row("letter too many", "lifes", "life");
    row("upper case", "Life", "life");
    row("nothing near", "zzzzzz", "");
    row("far too long", QString(5000, QLatin1Char('l')), "");
}

void TestGrammar::nearNames()
{
    const auto [name, near] = fetched<QString, QString>();
    const QStringList names = {QStringLiteral("life"), QStringLiteral("power"),
                               QStringLiteral("gravity")};
    QCOMPARE(nearName(name, names), near);
}

QTEST_MAIN(TestGrammar)
#include "tst_grammar.moc"
