#include "familydump.h"
#include "support/testtable.h"

#include <zorv/code/codedoc/codeblockdata.h>

#include <QDir>
#include <QTextCursor>
#include <QtTest>

using namespace Family;
using Zorv::ContactBoxCode;

namespace {

QStringList sampleFiles()
{
    QStringList files;
    for (const char* folder : {"/arena", "/broken"}) {
        QDirIterator it(QStringLiteral(ZORV_SAMPLES) + QLatin1String(folder),
                        {QStringLiteral("*.character"), QStringLiteral("*.stage"),
                         QStringLiteral("*.code"), QStringLiteral("*.anim"),
                         QStringLiteral("*.commands")},
                        QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            files.append(it.next());
        }
    }
    files.sort();
    return files;
}

FrameNode* frameAt(const FamilyDocument& document, int line)
{
    return dynamic_cast<FrameNode*>(document.nodeInBlock(document.findBlockByNumber(line)));
}

}  // namespace

class TestFamilyNodes : public QObject
{
    Q_OBJECT

private slots:
    void setValue_data();
    void setValue();
    void refusedValue_data();
    void refusedValue();
    void writeTakesValues();
    void clearErrorsOfPaths_data();
    void clearErrorsOfPaths();
    void everyPathLeadsBack_data();
    void everyPathLeadsBack();
    void pathsOfTwins();
    void frameProperties();
    void boxesOfFrame();
    void boxEditsReachTheFrame();
    void boxesInsideOfAChange();
    void namesOfGroups_data();
    void namesOfGroups();
    void subGroupsFollowHeads();
};

void TestFamilyNodes::setValue_data()
{
    columns<QString, QString, QString, QString, QString>("head", "before", "path", "value",
                                                         "after");
    const auto row = [](const char* head, const char* before, const char* path, const char* value,
                        const char* after) {
        QTest::addRow("%s %s %s", before, path, value)
            << QString::fromUtf8(head) << QString::fromUtf8(before) << QString::fromUtf8(path)
            << QString::fromUtf8(value) << QString::fromUtf8(after);
    };
    const auto keeps = [&row](const char* head, const char* line, const char* path,
                              const char* value) { row(head, line, path, value, line); };

    const char* const constants = "[constants]";
    row(constants, "life = 1000", "constants.life", "900", "life = 900");
    row(constants, "\tlife=1000# full", "constants/life", "900", "\tlife=900# full");
    row(constants, "life  =  1000    # a # b", "constants.life", "900", "life  =  900    # a # b");
    keeps(constants, " life = 01000   # odd", "constants.life", "1000");
    row(constants, "lifebar = 5 # old name", "constants.life", "6", "lifebar = 6 # old name");
    row(constants, "power =# none yet", "constants.power", "5", "power = 5# none yet");
    row(constants, "power =   ", "constants.power", "5", "power = 5   ");
    row(constants, "power = lots # faulty", "constants.power", "5", "power = 5 # faulty");
    row(constants, "attack = 80%", "constants.attack", "90%", "attack = 90%");
    row(constants, "shadow = 0xFF0000", "constants.shadow", "0x00ff00", "shadow = 0x00ff00");
    keeps(constants, "shadow = 0xFF0000", "constants.shadow", "0xff0000");
    row(constants, "turns = true # old", "constants.turns", "no", "turns = no # old");
    keeps(constants, "turns = true # old", "constants.turns", "yes");
    row(constants, "scale = 1 ,  0.5", "constants.scale", "1, 0.25", "scale = 1 ,  0.25");
    keeps(constants, "scale = 1.0 ,  .5", "constants.scale", "1, 0.5");
    row(constants, "combo = 100 ,80,60", "constants.combo", "100, 70, 60, 50",
        "combo = 100 ,70,60, 50");
    row(constants, "combo = 100 ,80,60 # c", "constants.combo", "100", "combo = 100 # c");
    row(constants, "combo = 1, x # faulty", "constants.combo", "0", "combo = 0 # faulty");
    row(constants, "sparks = 0x1, 0x2", "constants.sparks", "0x1,0x3", "sparks = 0x1, 0x000003");

    const char* const info = "[info]";
    row(info, "name = \"Hero #1\" # x", "info.name", "Hero #2", "name = \"Hero #2\" # x");
    row(info, "name = \"Hero #1\"", "info.name", "Plain", "name = \"Plain\"");
    row(info, "name = \"Plain\"   # x", "info.name", "a # b", "name = \"a # b\"   # x");
    row(info, "name = \"a\"", "info.name", "q\"b\\c\nd", R"(name = "q\"b\\c\nd")");
    keeps(info, R"(name = "q\"b\\c\nd" # x)", "info.name", "q\"b\\c\nd");
    row(info, "name = \"a\"", "info.name", "", "name = \"\"");
    row(info, "name = Ryn", "info.name", "Räy", "name = \"Räy\"");
    row(info, "created = 2024-01-02", "info.created", "2024-02-29", "created = 2024-02-29");
    row("[palette a]", "file = \"a\\\\b\"", "palette:a.file", "c/d", "file = \"c/d\"");
    keeps("[palette a]", "file = \"a\\\\b\"", "palette:a.file", "a/b");
    row("[move \"Fire ball\"]", "command = fire", "move:\"Fire ball\".command", "ice",
        "command = ice");
    row("[what]", "thing = 1, 2 # x", "what.thing", "\"#\" 3", "thing = \"#\" 3 # x");

    const char* const frame = "animation 5";
    const char* const f = "animation:5/frame:0/";
    const auto option = [&](const char* before, const char* name, const char* value,
                            const char* after) {
        row(frame, before, QByteArray(QByteArray(f) + name).constData(), value, after);
    };
    option("frame 1,2", "delay", "4", "frame 1,2  delay 4");
    option("frame 1,2 # c", "delay", "-1", "frame 1,2  delay -1 # c");
    option("frame 1,2 delay 4 # c", "delay", "1", "frame 1,2 # c");
    option("frame 1,2 delay 1 # c", "delay", "1", "frame 1,2 delay 1 # c");
    option("frame 1,2 delay 1", "delay", "7", "frame 1,2 delay 7");
    option("frame 1,2 time 4", "delay", "7", "frame 1,2 time 7");
    option("frame 1,2   delay 4 loop", "offset", "3,-4", "frame 1,2   offset 3,-4   delay 4 loop");
    option("frame 1,2 loop  delay 4", "flip", "hv", "frame 1,2 loop  delay 4 flip hv");
    option("frame 1,2 offset 3 , 4", "offset", "3, 5", "frame 1,2 offset 3 , 5");
    option("frame 1,2 offset 3,4 delay 2", "offset", "0,0", "frame 1,2 delay 2");
    option("frame 1,2 flip x # old", "flip", "h", "frame 1,2 flip x # old");
    option("frame 1,2 flip h", "flip", "no", "frame 1,2");
    option("frame 1,2", "scale", "0.5,1", "frame 1,2  scale 0.5,1");
    option("frame 1,2 angle 30", "angle", "-0.5", "frame 1,2 angle -0.5");
    option("frame 1,2", "loop", "yes", "frame 1,2  loop");
    option("frame 1,2 loop # l", "loop", "no", "frame 1,2 # l");
    option("frame 1 , 2 loop", "sprite", "1,3", "frame 1 , 3 loop");
    row("", "animation 5 \"A\" # c", "animation:5/name", "B # b", "animation 5 \"B # b\" # c");
    row("", "animation 5  # c", "animation:5/name", "B", "animation 5 \"B\"  # c");
    row("", "animation 5 \"A\" # c", "animation:5/name", "", "animation 5 # c");
    row("", "animation  5 \"A\"", "animation:5/identifier", "jab", "animation  jab \"A\"");
    row("", "[move a] # c", "move:a.name", "b", "[move b] # c");
    row("", "[move a]", "move:a.name", "b c", "[move \"b c\"]");
}

void TestFamilyNodes::setValue()
{
    const auto [head, before, path, value, after] =
        fetched<QString, QString, QString, QString, QString>();
    const QString top = head.isEmpty() ? QString() : head + QLatin1Char('\n');
    FamilyDocument document(FileKind::Character);
    document.fromString(top + before + QLatin1String("\n# below"));
    QString error;
    QVERIFY2(Family::setValue(&document, path, value, &error), qPrintable(error));
    QCOMPARE(document.text(), top + after + QLatin1String("\n# below"));
    QCOMPARE(document.isUndoAvailable(), before != after);
    if (path.endsWith(QLatin1String("identifier")) || path.endsWith(QLatin1String("a.name"))) {
        return;
    }
    // What was set is what is read, and setting what is read changes nothing.
    const QString read = getValue(&document, path, &error);
    QVERIFY2(Family::setValue(&document, path, read, &error), qPrintable(error));
    QCOMPARE(document.text(), top + after + QLatin1String("\n# below"));
    document.undo();
    QCOMPARE(document.text(), top + before + QLatin1String("\n# below"));
}

void TestFamilyNodes::refusedValue_data()
{
    columns<QString, QString>("path", "value");
    const auto row = [](const char* path, const char* value) {
        QTest::addRow("%s %s", path, value) << path << value;
    };
    row("constants.life", "0");
    row("constants.life", "many");
    row("constants.life", "");
    row("constants.life", "5 # five");
    row("constants.life", "5 6");
    row("constants.scale", "1");
    row("constants.stance", "left");
    row("info.name", "bell\a");
    row("info.created", "2023-02-29");
    row("animation:5/frame:0/delay", "-2");
    row("animation:5/frame:0/delay", "4 loop");
    row("animation:5/frame:0/delay", "99999");
    row("animation:5/frame:0/flip", "z");
    row("animation:5/frame:0/loop", "maybe");
    row("animation:5/frame:0/sprite", "1");
    row("animation:5/frame:0/attack:0", "1,2,3");
    row("animation:5/frame:0/attack:0", "1,2,3,40000");
    row("animation:5/identifier", "two words");
    row("animation:5", "x");
    row("constants", "x");
}

void TestFamilyNodes::refusedValue()
{
    const auto [path, value] = fetched<QString, QString>();
    FamilyDocument document(FileKind::Character);
    const QString text =
        QStringLiteral("[info]\nname = \"a\"\ncreated = 2024-01-01\n[constants]\nlife = 5\n"
                       "scale = 1,1\nstance = southpaw\nanimation 5\nattack 1,2,3,4\nframe 0,0");
    document.fromString(text);
    QString error;
    QVERIFY(!Family::setValue(&document, path, value, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY2(!error.contains(QRegularExpression(QStringLiteral("%\\d"))), qPrintable(error));
    QCOMPARE(document.text(), text);
}

void TestFamilyNodes::writeTakesValues()
{
    FamilyDocument document(FileKind::Character);
    document.fromString(QStringLiteral("[constants]\nscale = 1, 1\n[.body]\npush = 1, 2, 3, 4\n"
                                       "head = 1, 2\n[move a]\nvelocity = 1, 2\npriority = 1"));
    const auto write = [&document](const char* path, const QVariant& value) {
        return static_cast<ValueNode*>(nodeAt(&document, QLatin1String(path)))->write(value);
    };
    QVERIFY(write("constants.scale", QPointF(0.5, 1)));
    QVERIFY(write("constants.body.push", QRect(QPoint(-1, -2), QPoint(3, 4))));
    QVERIFY(write("constants.body.head", QVariantList({7, 8})));
    QVERIFY(write("move:a.velocity", QPointF(0.1, -2)));
    QVERIFY(write("move:a.priority", 7));
    QVERIFY(!write("move:a.priority", 8));
    QVERIFY(!write("constants.body.head", QPointF(0.5, 1)));
    QVERIFY(!write("constants.scale", QVariantList({1, 2, 3})));
    QVERIFY(!write("constants.scale", QStringLiteral("wide")));
    QCOMPARE(document.text(),
             QStringLiteral("[constants]\nscale = 0.5, 1\n[.body]\npush = -1, -2, 3, 4\n"
                            "head = 7, 8\n[move a]\nvelocity = 0.1, -2\npriority = 7"));
}

void TestFamilyNodes::clearErrorsOfPaths_data()
{
    columns<QString, QString>("path", "hint");
    row("near key", "constants.lief", "'life'");
    row("near group", "constant.life", "'constants'");
    row("near sub-group", "constants.wlak.back", "'walk'");
    row("near animation", "animation:20", "'animation:200'");
    row("frame too far", "animation:200/frame:9", "1 frame(s)");
    row("frame below zero", "animation:200/frame:-1", "character");
    row("box too far", "animation:200/frame:0/body:0", "0 of them");
    row("near option", "animation:200/frame:0/dely", "'delay'");
    row("second of one", "constants.life#2", "'life'");
    row("below a value", "constants.life.x", "'x'");
    row("below an option", "animation:200/frame:0/delay/x", "no parts");
    row("empty", "", "Expected names");
    row("two points", "constants..life", "character 11");
    row("no number", "constants#x.life", "character");
    row("open quote", "move:\"a.b", "character");
}

void TestFamilyNodes::clearErrorsOfPaths()
{
    const auto [path, hint] = fetched<QString, QString>();
    FamilyDocument document(FileKind::Character);
    document.fromString(QStringLiteral("[constants]\nlife = 5\n[.walk]\nback = 1\nanimation 200\n"
                                       "frame 0,0"));
    QString error;
    QVERIFY(!nodeAt(&document, path, nullptr, &error));
    QVERIFY2(error.contains(hint), qPrintable(error));
    QVERIFY(getValue(&document, path, &error).isNull());
}

void TestFamilyNodes::everyPathLeadsBack_data()
{
    QTest::addColumn<QString>("fileName");
    const QStringList files = sampleFiles();
    QVERIFY(files.size() > 10);
    for (const QString& file : files) {
        row(qPrintable(QDir(QStringLiteral(ZORV_SAMPLES)).relativeFilePath(file)), file);
    }
}

// On the samples: each node has one path, which leads to it; what is read there
// can be set without a change.
void TestFamilyNodes::everyPathLeadsBack()
{
    QFETCH(QString, fileName);
    QString error;
    const std::unique_ptr<FamilyDocument> document(FamilyDocument::open(fileName, &error));
    QVERIFY2(document, qPrintable(error));
    const QString text = document->text();
    const QHash<const Zorv::CodeNode*, QString> paths = nodePaths(document.get());
    QSet<QString> seen;
    int line = 0;
    for (const Zorv::CodeNode* node = document->next(); node; node = node->next(), ++line) {
        const QString path = paths.value(node);
        if (path.isEmpty()) {
            QVERIFY(!node->parentCode());
            continue;
        }
        QVERIFY2(!seen.contains(path), qPrintable(path));
        seen.insert(path);
        // Long files are sampled: finding one node walks along its brothers.
        if (line % 7 != 0 && document->blockCount() > 300) {
            continue;
        }
        QCOMPARE(nodePath(node), path);
        QCOMPARE(static_cast<const Zorv::CodeNode*>(nodeAt(document.get(), path)), node);
        const bool faulty =
            !Zorv::CodeBlockData::testBlockData(node->block())->syntaxMessages().isEmpty();
        if (node->type() == Zorv::CodeNode::Value && !faulty) {
            const QString value = getValue(document.get(), path, &error);
            QVERIFY2(Family::setValue(document.get(), path, value, &error), qPrintable(path));
        }
    }
    QCOMPARE(document->text(), text);
    QVERIFY(!document->isUndoAvailable());
}

void TestFamilyNodes::pathsOfTwins()
{
    FamilyDocument document(FileKind::Character);
    document.fromString(
        QStringLiteral("[files]\ncode = \"a\"\ncode = \"b\"\n[constants]\nlife = 1\n"
                       "[constants]\nlife = 2\nanimation 1\nanimation 1\nframe 3,0"));
    QCOMPARE(getValue(&document, QStringLiteral("files.code#2"), nullptr), QStringLiteral("b"));
    QCOMPARE(getValue(&document, QStringLiteral("constants#2.life"), nullptr), QStringLiteral("2"));
    QCOMPARE(getValue(&document, QStringLiteral("animation:1#2/frame:0/sprite"), nullptr),
             QStringLiteral("3,0"));
}

void TestFamilyNodes::frameProperties()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 1,2"));
    const QVector<QPair<QString, QVariant>> values = {
        {QStringLiteral("Identifier"), QStringLiteral("3,4")},
        {QStringLiteral("Offset"), QPoint(5, -6)},
        {QStringLiteral("Delay"), 7},
        {QStringLiteral("Scale"), QPointF(0.1, 2)},
        {QStringLiteral("Angle"), 12.25},
        {QStringLiteral("Flip"), 3},
        {QStringLiteral("LoopPoint"), true},
    };
    QStringList names;
    for (const auto& value : values) {
        frameAt(document, 1)->setProperty(value.first, value.second);
        QCOMPARE(frameAt(document, 1)->property(value.first), value.second);
        names.append(value.first);
    }
    QCOMPARE(frameAt(document, 1)->propertyNames(), names);
    QCOMPARE(document.lastBlock().text(),
             QStringLiteral("frame 3,4  offset 5,-6  delay 7  flip hv  scale 0.1,2  "
                            "angle 12.25  loop"));
    // A new one looks as the one in front of it.
    const auto* behind = document.animations()->at(0)->insertFrame(1);
    QCOMPARE(behind->block().text(), QStringLiteral("frame 3,4  offset 5,-6  delay 10  flip hv  "
                                                    "scale 0.1,2  angle 12.25"));
    const auto* first = document.animations()->at(0)->insertFrame(0);
    QCOMPARE(first->block().text(), QStringLiteral("frame 0,0  delay 10"));
}

void TestFamilyNodes::boxesOfFrame()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(
        QStringLiteral("animation 1\nbody 1,2,3,4\n\n# c\nattack -5,-6, 7,8\nframe 0,0\n"
                       "frame 1,1\nbody 9,9,9,9"));
    const FrameNode* frame = frameAt(document, 5);
    QCOMPARE(frame->contactBoxes(ContactBoxCode::Attack)->count(), 1);
    QCOMPARE(frame->contactBoxes(ContactBoxCode::Collision)->count(), 1);
    const ContactBoxCode* box = frame->contactBoxes(ContactBoxCode::Attack)->at(0);
    QCOMPARE(box->rect(), QRect(QPoint(-5, -6), QPoint(7, 8)));
    QCOMPARE(box->line(), 4);
    QCOMPARE(box->boxes()->frame(), static_cast<const Zorv::FrameCode*>(frame));
    QVERIFY(!frame->contactBoxes(ContactBoxCode::Attack)->at(1));
    QVERIFY(!frame->contactBoxes(ContactBoxCode::Attack)->at(-1));
    QCOMPARE(frameAt(document, 6)->contactBoxes(ContactBoxCode::Collision)->count(), 0);
    auto* loose = dynamic_cast<BoxNode*>(document.nodeInBlock(document.lastBlock()));
    QVERIFY(!loose->boxes());
    QVERIFY(nodePath(loose).isEmpty());
}

void TestFamilyNodes::boxEditsReachTheFrame()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\n  body 1,2,3,4 # torso\n  frame 0,0"));
    const auto bodies = [&document] {
        return frameAt(document, document.blockCount() - 1)
            ->contactBoxes(ContactBoxCode::Collision);
    };
    bodies()->at(0)->setRect(QRect(QPoint(1, 2), QPoint(30, 4)));
    QCOMPARE(bodies()->at(0)->rect(), QRect(QPoint(1, 2), QPoint(30, 4)));
    QCOMPARE(document.text(), QStringLiteral("animation 1\n  body 1,2,30,4 # torso\n  frame 0,0"));

    const ContactBoxCode* added = bodies()->add(QRect(QPoint(5, 6), QPoint(7, 8)));
    QVERIFY(added);
    QCOMPARE(added->rect(), QRect(QPoint(5, 6), QPoint(7, 8)));
    QCOMPARE(bodies()->count(), 2);
    QCOMPARE(static_cast<const ContactBoxCode*>(bodies()->at(1)), added);
    QCOMPARE(document.findBlockByNumber(2).text(), QStringLiteral("  body 5,6, 7,8"));
    QVERIFY(!bodies()->add(QRect(QPoint(0, 0), QPoint(99999, 0))));

    // A line typed by the person counts as well.
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.insertText(QStringLiteral("body 0,0, 1,1\nattack 0,0, 1,1\n"));
    QCOMPARE(bodies()->count(), 3);
    bodies()->remove(0);
    QCOMPARE(bodies()->count(), 2);
    QCOMPARE(bodies()->at(0)->rect(), QRect(QPoint(1, 2), QPoint(30, 4)));
    bodies()->remove(7);
    while (document.isUndoAvailable()) {
        document.undo();
    }
    QCOMPARE(bodies()->count(), 1);
    QCOMPARE(bodies()->at(0)->rect(), QRect(QPoint(1, 2), QPoint(3, 4)));
}

void TestFamilyNodes::boxesInsideOfAChange()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 0,0\nframe 1,1"));
    document.beginChange(QStringLiteral("boxes"));
    for (int i = 0; i < 3; ++i) {
        Zorv::ContactBoxesCode* boxes =
            frameAt(document, 1 + i)->contactBoxes(ContactBoxCode::Attack);
        QVERIFY(boxes->add(QRect(i, i, 5, 5)));
        QCOMPARE(frameAt(document, 2 + i)->contactBoxes(ContactBoxCode::Attack)->count(), i + 1);
    }
    frameAt(document, 4)->contactBoxes(ContactBoxCode::Attack)->at(1)->setRect(QRect(9, 9, 9, 9));
    frameAt(document, 4)->contactBoxes(ContactBoxCode::Attack)->remove(0);
    QCOMPARE(frameAt(document, 3)->contactBoxes(ContactBoxCode::Attack)->count(), 2);
    document.endChange();
    QCOMPARE(document.text(), QStringLiteral("animation 1\nattack 9,9, 17,17\nattack 2,2, 6,6\n"
                                             "frame 0,0\nframe 1,1"));
    document.undo();
    QVERIFY(!document.isUndoAvailable());
    QCOMPARE(frameAt(document, 1)->contactBoxes(ContactBoxCode::Attack)->count(), 0);
}

void TestFamilyNodes::namesOfGroups_data()
{
    columns<QString, QString, QString, QString, QString>("line", "name", "displayName", "newName",
                                                         "after");
    row("plain", "[info] # c", "info", "info", "files", "[files] # c");
    row("old name", "[data]", "constants", "constants", "files", "[files]");
    row("argument", "[ move  a ]", "a", "move a", "b", "[ move  b ]");
    row("no argument", "[move]", "", "move ", "b", "[move b]");
    row("quotes", "[move \"a b\"] # #", "a b", "move a b", "c\"d", "[move \"c\\\"d\"] # #");
    row("unknown", "[what]", "what", "what", "info", "[info]");
    row("alone", "[.walk]", "walk", ".walk", "run", "[.run]");
    row("not a word", "[info]", "info", "info", "a b", "[info]");
}

void TestFamilyNodes::namesOfGroups()
{
    const auto [line, name, displayName, newName, after] =
        fetched<QString, QString, QString, QString, QString>();
    FamilyDocument document(FileKind::Character);
    document.fromString(line);
    auto* group = dynamic_cast<GroupNode*>(document.childAt(0));
    QVERIFY(group);
    QCOMPARE(group->name(), name);
    QCOMPARE(group->displayName(), displayName);
    group->setName(newName);
    QCOMPARE(document.text(), after);
}

void TestFamilyNodes::subGroupsFollowHeads()
{
    FamilyDocument document(FileKind::Character);
    document.fromString(QStringLiteral("[constants]\nlife = 1\n[.walk]\nback = 1\n[.run]\n"
                                       "back = 1,1"));
    auto* constants = static_cast<GroupNode*>(document.childAt(0));
    QCOMPARE(constants->childCount(), 3);
    QCOMPARE(constants->subGroups().size(), 2);
    QCOMPARE(constants->subGroup(QStringLiteral("run"))->lastLine(), document.blockCount());
    QCOMPARE(constants->subGroup(QStringLiteral("walk"))->lastLine(), 3);
    QCOMPARE(constants->lastLine(), document.blockCount());
    // A second head of the same kind takes what stands below it.
    QTextCursor cursor(document.findBlockByNumber(4));
    cursor.insertText(QStringLiteral("[constants]\n"));
    QCOMPARE(document.childCount(), 2);
    QCOMPARE(static_cast<GroupNode*>(document.childAt(0))->childCount(), 2);
    QCOMPARE(static_cast<GroupNode*>(document.childAt(1))->childCount(), 1);
}

QTEST_MAIN(TestFamilyNodes)
#include "tst_familynodes.moc"
