#include "family/meaning/completions.h"
#include "family/meaning/linecontext.h"
#include "family/meaning/reference.h"
#include "family/meaning/wordmeaning.h"

#include "family/familydocument.h"
#include "family/grammar/grammar.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "support/folders.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Family;

namespace {

constexpr char mainText[] = "[info]\r\nname = \"Hero\"\r\n"
                            "[files]\r\n"
                            "animations = \"hero.anim\"\r\n"
                            "commands = \"hero.commands\"\r\n"
                            "code = \"moves.code\"\r\n";
constexpr char movesText[] = "[constants]\r\nlife = 5\r\n"
                             "[move jab]\r\nanimation = 200\r\n"
                             "[move \"Big fist\"]\r\nanimation = stand\r\n";
constexpr char animText[] = "animation 200 \"Light <punch>\"\r\n"
                            "frame 200,0 delay 3\r\nframe 200,1 loop\r\n"
                            "animation stand\r\nframe 0,0 delay -1\r\n";
constexpr char commandsText[] = "[commands]\r\nfireball = \"D, DF, F, x\"\r\n";

/// A text in which '|' marks the place that is asked about.
struct MarkedText
{
    explicit MarkedText(QString marked)
    {
        const QString front = marked.section(QLatin1Char('|'), 0, 0);
        line = front.count(QLatin1Char('\n'));
        column = front.size() - front.lastIndexOf(QLatin1Char('\n')) - 1;
        text = marked.remove(QLatin1Char('|'));
    }

    QString text;
    int line;
    int column;
};

}  // namespace

/// What a place of a text offers, means and refers to, in a project of four files.
class TestMeaning : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void completions_data();
    void completions();
    void everyOfferIsRead();
    void meanings_data();
    void meanings();
    void references_data();
    void references();
    void anyPlaceOfAnyText();
    void withoutProject();

private:
    void write(const char* name, const QByteArray& data) const;
    FamilyDocument* take(const MarkedText& marked);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FamilyParentProject> game;
    FamilyProject* project = nullptr;
    TestInterface host;
};

void TestMeaning::initTestCase()
{
    setGlobalInterface(&host);
}

void TestMeaning::write(const char* name, const QByteArray& data) const
{
    QVERIFY(
        writeFile(folder->filePath(QLatin1String("characters/hero/") + QLatin1String(name)), data));
}

void TestMeaning::init()
{
    folder = std::make_unique<QTemporaryDir>();
    write("hero.character", mainText);
    write("moves.code", movesText);
    write("hero.anim", animText);
    write("hero.commands", commandsText);
    write("hero.sprites", "sprites");
    write("palettes/red.act", "palette");
    write("backup/old/palettes/red.act", "palette");
    game = std::make_unique<FamilyParentProject>(folder->path());
    QString error;
    project = FamilyProject::open(
        game.get(), folder->filePath(QStringLiteral("characters/hero/hero.character")), &error);
    QVERIFY2(project, qPrintable(error));
    QCOMPARE(project->documents().size(), 4);
}

void TestMeaning::cleanup()
{
    project->release();
    project = nullptr;
    game.reset();
    folder.reset();
}

/// The text as that of the project's code file.
FamilyDocument* TestMeaning::take(const MarkedText& marked)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (FamilyDocument* document : documents) {
        if (document->fileName().endsWith(".code")) {
            document->setPlainText(marked.text);
            return document;
        }
    }
    return nullptr;
}

// clang-format off
void TestMeaning::completions_data()
{
    columns<QString, QStringList, QStringList, QString>("text", "some", "none", "replaced");
    using S = QStringList;
    const S nothing{"*"};
    QTest::newRow("group") << "[co|" << S{"constants", "move", "layer"} << S{"walk", "data", "arena"} << "co";
    QTest::newRow("group, whole") << "[ con|stants]" << S{"constants"} << S{} << "constants";
    QTest::newRow("sub-group") << "[constants]\n[.|" << S{"walk", "run", "jump", "body"} << S{"hit", "constants"} << "";
    QTest::newRow("sub-group below a sub-group") << "[move a]\n[.cost]\npower = 1\n[.|]" << S{"hit", "sound"} << S{"walk"} << "";
    QTest::newRow("sub-group without a group") << "animation 1\n[.|" << S{} << nothing << "";
    QTest::newRow("argument") << "[move |" << S{} << nothing << "";
    QTest::newRow("key") << "[constants]\n  li|" << S{"life", "animation"} << S{"lifebar", "frame", "forward"} << "li";
    QTest::newRow("key of a sub-group") << "[constants]\n[.walk]\n|\n" << S{"forward", "back"} << S{"life"} << "";
    QTest::newRow("behind a word") << "[constants]\nlife |" << S{} << nothing << "";
    QTest::newRow("line start") << "|" << S{"animation"} << S{"frame", "life"} << "";
    QTest::newRow("in an animation") << "animation 1\nfr|" << S{"frame", "attack", "body", "animation"} << S{"life"} << "fr";
    QTest::newRow("choice") << "[constants]\nturns = y|es # x" << S{"yes", "no"} << S{"true"} << "yes";
    QTest::newRow("choice, none yet") << "[constants]\nturns =|" << S{"yes", "no"} << S{} << "";
    QTest::newRow("behind a choice") << "[constants]\nturns = yes |" << S{} << nothing << "";
    QTest::newRow("a number") << "[constants]\nlife = |" << S{} << nothing << "";
    QTest::newRow("unknown key") << "[constants]\nlief = |" << S{} << nothing << "";
    QTest::newRow("comment") << "[constants]\nturns = # y|" << S{} << nothing << "";
    QTest::newRow("animation") << "[move a]\nanimation = 2|00" << S{"200", "stand"} << S{} << "200";
    QTest::newRow("command") << "[move a]\ncommand = |" << S{"fireball"} << S{"200"} << "";
    QTest::newRow("move") << "[move a]\ncancels = |\n[move b]" << S{"a", "b"} << S{"200"} << "";
    QTest::newRow("file") << "[palette a]\nfile = |" << S{"\"palettes/red.act\"", "\"hero.sprites\""} << S{"\"moves.code\"", "\"backup/old/palettes/red.act\""} << "";
    QTest::newRow("file in quotes") << "[palette a]\nfile = \"pal|ettes/r\"  # x" << S{"palettes/red.act"} << S{} << "palettes/r";
    QTest::newRow("file in an open quote") << "[palette a]\nfile = \"p|" << S{"palettes/red.act"} << S{} << "p";
    QTest::newRow("in a text") << "[info]\nname = \"y|\"" << S{} << nothing << "y";
    QTest::newRow("option") << "animation 1\nframe 1,0 de|" << S{"delay", "flip", "loop"} << S{"h", "frame"} << "de";
    QTest::newRow("option behind others") << "animation 1\nframe 1,0  delay 3 loop |" << S{"offset"} << S{"delay", "loop"} << "";
    QTest::newRow("number of an option") << "animation 1\nframe 1,0 delay |" << S{} << nothing << "";
    QTest::newRow("flip") << "animation 1\nframe 1,0 flip |" << S{"h", "v", "hv"} << S{"x", "delay"} << "";
    QTest::newRow("no sprite yet") << "animation 1\nframe |" << S{} << nothing << "";
    QTest::newRow("frame without an animation") << "frame 1,0 |" << S{} << nothing << "";
}
// clang-format on

void TestMeaning::completions()
{
    const auto [text, some, none] = fetched<QString, QStringList, QStringList>();
    const MarkedText marked(text);
    const Completions found = completionsAt(take(marked), project, marked.line, marked.column);
    QStringList words;
    for (const WordOffer& offer : found.words) {
        words.append(offer.word);
    }
    for (const QString& word : qAsConst(some)) {
        QVERIFY2(words.contains(word), qPrintable(word + " of " + words.join(' ')));
    }
    for (const QString& word : qAsConst(none)) {
        QVERIFY2(word == "*" ? words.isEmpty() : !words.contains(word),
                 qPrintable(word + " of " + words.join(' ')));
    }
    const QString line = marked.text.section('\n', marked.line, marked.line);
    QTEST(line.mid(found.start, found.end - found.start), "replaced");
}

/// What is offered for a value, a frame or a group is free of problems when it stands there.
void TestMeaning::everyOfferIsRead()
{
    QStringList texts{"[|]", "animation 1\nframe 1,0 flip |"};
    for (const GroupInfo* group : Grammar::groups()) {
        const GroupInfo* main = Grammar::group(Grammar::mainGroup(group->number));
        QString head = QString("[%1%2]\n").arg(main->name, main->takesArgument() ? " a" : "");
        texts.append(head + "[.|]");
        head += group->isSubGroup() ? QString("[.%1]\n").arg(group->name) : QString();
        for (const KeyInfo& key : *group) {
            texts += key.isDeprecated() ? QStringList() : QStringList(head + key.name + " = |");
        }
    }
    int count = 0;
    for (const QString& text : qAsConst(texts)) {
        const MarkedText marked(text);
        FamilyDocument* document = take(marked);
        const Completions found = completionsAt(document, project, marked.line, marked.column);
        for (const WordOffer& offer : found.words) {
            QString whole = marked.text.section('\n', marked.line, marked.line);
            whole.replace(found.start, found.end - found.start, offer.word);
            const LineHead head = headOfLine(document, marked.line);
            bool isRead = false;
            for (const QString& line : {whole, QString(whole).replace("]", " a]")}) {
                LineDetails details;
                LineReport report(nullptr, &details);
                readLine(line, head, document->kind(), report);
                isRead = isRead || details.problems.isEmpty();
            }
            QVERIFY2(isRead, qPrintable(whole));
            ++count;
        }
    }
    QVERIFY(count > 60);
}

// clang-format off
void TestMeaning::meanings_data()
{
    columns<QString, QString, QString>("text", "title", "part");
    QTest::newRow("group") << "[const|ants]" << "[constants]" << "The fixed numbers";
    QTest::newRow("sub-group") << "[constants]\n[.wa|lk]" << "[.walk]" << "Belongs to [constants]";
    QTest::newRow("unknown group") << "[mus|ik]" << "" << "";
    QTest::newRow("key") << "[constants]\nli|fe = 1000" << "life" << "Takes a whole number from 1 to 9999";
    QTest::newRow("old key") << "[constants]\nlife|bar = 1000" << "life" << "Required";
    QTest::newRow("free key") << "[commands]\nfire|ball = \"x\"" << "fireball" << "The motion of a command";
    QTest::newRow("unknown key") << "[constants]\nlie|f = 1000" << "" << "";
    QTest::newRow("number") << "[constants]\nlife = 10|00" << "1000" << "life: Life at the start";
    QTest::newRow("choice") << "[constants]\nturns = y|es" << "yes" << "Takes one of yes, no";
    QTest::newRow("animation as value") << "[move a]\nanimation = 20|0" << "animation 200" << "Light <punch>";
    QTest::newRow("its frames") << "[move a]\nanimation = 20|0" << "animation 200" << "Frames: 2; ticks: 4";
    QTest::newRow("missing animation") << "[move a]\nanimation = 2|01" << "201" << "Shown during the move";
    QTest::newRow("command") << "[move a]\ncommand = fire|ball" << "fireball" << "D, DF, F, x";
    QTest::newRow("file") << "[palette a]\nfile = \"pal|ettes/blue.act\"" << "palettes/blue.act" << "There is no such file";
    QTest::newRow("animation") << "anim|ation 1" << "animation" << "An animation";
    QTest::newRow("identifier") << "animation 20|1 \"Kick\"" << "animation 201" << "Kick";
    QTest::newRow("sprite") << "animation 1\nframe 200,|1 loop" << "sprite 200,1" << "Group and number";
    QTest::newRow("option") << "animation 1\nframe 200,1 del|ay 3" << "delay" << "from -1 to 32767";
    QTest::newRow("its number") << "animation 1\nframe 200,1 offset 3,|4" << "offset" << "Place of the sprite";
    QTest::newRow("box") << "animation 1\nattack 1,2, 3|3,4" << "right edge: 33" << "that hits";
    QTest::newRow("comment") << "# the li|fe" << "" << "";
    QTest::newRow("behind the line") << "[constants]|" << "" << "";
}
// clang-format on

void TestMeaning::meanings()
{
    const auto [text, title, part] = fetched<QString, QString, QString>();
    const MarkedText marked(text);
    const WordMeaning found = meaningAt(take(marked), project, marked.line, marked.column);
    QCOMPARE(found.title, title);
    QVERIFY2(found.lines.join('\n').contains(part), qPrintable(found.lines.join('\n')));
    QVERIFY(title.isEmpty() || (found.start <= marked.column && marked.column < found.end));
}

// clang-format off
void TestMeaning::references_data()
{
    columns<QString, QString, QString>("text", "word", "target");
    QTest::newRow("animation") << "[move a]\nanimation = 20|0" << "200" << "hero.anim:1:11";
    QTest::newRow("the document's own first") << "[move a]\nanimation = 200|\nanimation 200" << "200" << "moves.code:3:11";
    QTest::newRow("missing animation") << "[move a]\nanimation = |201" << "201" << "There is no animation '201'.";
    QTest::newRow("command") << "[move a]\ncommand = fire|ball" << "fireball" << "hero.commands:2:1";
    QTest::newRow("missing command") << "[move a]\ncommand = wa|ve" << "wave" << "There is no command 'wave'.";
    QTest::newRow("move") << "[move a]\ncancels = b|\n[move b]" << "b" << "moves.code:3:7";
    QTest::newRow("file") << "[palette a]\nfile = \"palettes/|red.act\"" << "\"palettes/red.act\"" << "palettes/red.act";
    QTest::newRow("missing file") << "[palette a]\nfile = \"b|lue.act\"" << "\"blue.act\"" << "There is no file 'blue.act'.";
    QTest::newRow("a folder") << "[palette a]\nfile = \"pal|ettes\"" << "\"palettes\"" << "There is no file 'palettes'.";
    QTest::newRow("sprite") << "animation 1\nframe 200,|1 loop" << "200,1" << "hero.anim:3:7";
    QTest::newRow("sprite of this file") << "animation 1\nframe 7,7\nframe |7,7 loop" << "7,7" << "moves.code:2:7";
    QTest::newRow("a sprite once") << "animation 1\nframe 7,|7" << "7,7" << "No other frame of the project shows the sprite 7,7.";
    QTest::newRow("sound") << "[move a]\n[.sound]\nhit = 1|, 0" << "1, 0" << "The project has no sounds.";
    QTest::newRow("a volume") << "[move a]\n[.sound]\nvolume = 9|0%" << "" << "Nothing here names something that stands elsewhere.";
    QTest::newRow("a key") << "[constants]\nli|fe = 1000" << "" << "Nothing here names something that stands elsewhere.";
    QTest::newRow("a text") << "[info]\nname = \"20|0\"" << "" << "Nothing here names something that stands elsewhere.";
}
// clang-format on

void TestMeaning::references()
{
    QFETCH(QString, text);
    const MarkedText marked(text);
    const FamilyDocument* document = take(marked);
    const Reference reference = referenceAt(document, marked.line, marked.column);
    const QString line = marked.text.section('\n', marked.line, marked.line);
    QTEST(line.mid(reference.start, reference.end - reference.start), "word");

    const Definition found = definitionOf(reference, document, project, marked.line);
    const QDir hero(folder->filePath(QStringLiteral("characters/hero")));
    QString target = found.message;
    if (!found.fileName.isEmpty()) {
        target = hero.relativeFilePath(found.fileName);
    } else if (found.place.document) {
        target = QString("%1:%2:%3")
                     .arg(hero.relativeFilePath(found.place.document->fileName()))
                     .arg(found.place.line + 1)
                     .arg(found.place.column + 1);
    }
    QTEST(target, "target");
    QCOMPARE(found.isEmpty(), !found.message.isEmpty());
}

/// Columns stay within the line, whatever stands in it and wherever one asks.
void TestMeaning::anyPlaceOfAnyText()
{
    const MarkedText marked(
        "|[move \"\\\n[.\nfile = \"\\\n= =\n[[]]\nanimation = \u05d0\u05d1 \U0001f600,\n"
        "animation 1 \"\nframe 1,,, flip flip\nframe 99999999999,1\nattack 1,2,3,4,5\n\t#");
    FamilyDocument* document = take(marked);
    const QStringList lines = marked.text.split('\n');
    for (int line = -1; line <= lines.size(); ++line) {
        const int size = lines.value(line).size();
        for (int column = -1; column <= size + 1; ++column) {
            const Completions offers = completionsAt(document, project, line, column);
            const WordMeaning meaning = meaningAt(document, project, line, column);
            const Reference reference = referenceAt(document, line, column);
            for (const auto& range :
                 {qMakePair(offers.start, offers.end), qMakePair(meaning.start, meaning.end),
                  qMakePair(reference.start, reference.end)}) {
                QVERIFY(0 <= range.first && range.first <= range.second && range.second <= size);
            }
            definitionOf(reference, document, project, line);
        }
    }
}

void TestMeaning::withoutProject()
{
    FamilyDocument document(FileKind::Code);
    document.setPlainText("[move a]\nanimation = 1\nfile = \nanimation 1\n");
    QCOMPARE(completionsAt(&document, nullptr, 1, 12).words.size(), 1);
    const Definition found = definitionOf(referenceAt(&document, 1, 12), &document, nullptr, 1);
    QCOMPARE(found.place.line, 3);
    QVERIFY(!meaningAt(&document, nullptr, 1, 12).isEmpty());
}

QTEST_MAIN(TestMeaning)
#include "tst_meaning.moc"
