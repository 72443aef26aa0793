#include "familydump.h"

#include "support/folders.h"
#include "support/randomtext.h"

#include <zorv/core/filesystemarchive.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QtTest>
#include <memory>

using namespace Family;

namespace {

constexpr quint32 Seed = 20260712;

const RandomText Text({"[info]",
                       "[constants]",
                       "[constants]",
                       "[constants]",
                       "[data]",
                       "[move jab]",
                       "[move kick]",
                       "[.walk]",
                       "[.walk]",
                       "[.run]",
                       "[.hit]",
                       "[.nothing]",
                       "[what]",
                       "[commands]",
                       "[music",
                       "life = 1000",
                       "lifebar = 5",
                       "power = 3",
                       "forward = 2.5",
                       "back = -1",
                       "name = \"Ryn\"",
                       "animation = 5",
                       "fire = \"D\"",
                       "x = 1",
                       "file = \"a\"",
                       "animation 5",
                       "animation 6 \"b\"",
                       "animation",
                       "frame 0,0",
                       "frame 1,2 delay 4",
                       "frame 1,2 loop",
                       "frame",
                       "attack 1,2,3,4",
                       "attack 5,6,7,8",
                       "body 1,2,3,4",
                       "body 9,9,1,1",
                       "attack 1,2",
                       "# note",
                       "# [info]",
                       "",
                       "",
                       "zorv 1",
                       "what is it",
                       "damage = 1,2",
                       "[]"},
                      QStringLiteral("[].=#1,ax \"\n"));

QString randomAnimations(QRandomGenerator& random, int most)
{
    QStringList lines;
    for (int n = 1 + random.bounded(most); n > 0; --n) {
        lines.append(QStringLiteral("animation %1").arg(random.bounded(30)));
        for (int frames = random.bounded(4); frames > 0; --frames) {
            lines.append(random.bounded(2) ? QStringLiteral("attack 1,2, 3,4")
                                           : QStringLiteral("# a frame"));
            lines.append(QStringLiteral("frame %1,0").arg(random.bounded(100)));
        }
        if (random.bounded(4) == 0) {
            lines.append(QStringLiteral("[move m%1]\npriority = 1").arg(n));
        }
    }
    return lines.join(QLatin1Char('\n')) + (random.bounded(2) ? QStringLiteral("\n") : QString());
}

Zorv::CodeNode* randomNode(QRandomGenerator& random, const FamilyDocument& document)
{
    const QTextBlock block = document.findBlockByNumber(random.bounded(document.blockCount()));
    Zorv::CodeNode* node = document.nodeInBlock(block);
    return node ? node : document.next();
}

void editFrame(QRandomGenerator& random, FrameNode* frame)
{
    Zorv::ContactBoxesCode* boxes = frame->contactBoxes(
        random.bounded(2) ? Zorv::ContactBoxCode::Attack : Zorv::ContactBoxCode::Collision);
    switch (random.bounded(5)) {
    case 0:
        boxes->add(QRect(random.bounded(9), 1, 5, 5));
        break;
    case 1:
        boxes->remove(random.bounded(2));
        break;
    case 2:
        if (Zorv::ContactBoxCode* box = boxes->at(0)) {
            box->setRect(QRect(1, 1, 1 + random.bounded(20), 9));
        }
        break;
    case 3:
        frame->setDelay(random.bounded(9) - 1);
        break;
    default:
        frame->setSprite(random.bounded(9), random.bounded(9));
        break;
    }
}

/// One edit by way of a node: what the program does for the person.
void treeEdit(QRandomGenerator& random, FamilyDocument& document)
{
    Zorv::CodeNode* node = randomNode(random, document);
    const QString line = Text.line(random);
    if (!node) {
        document.insert(line + QLatin1Char('\n'));
        return;
    }
    switch (random.bounded(9)) {
    case 0:
        node->change(line);
        break;
    case 1:
        node->remove(random.bounded(2));
        break;
    case 2:
        document.insertAfter(random.bounded(5) ? node : nullptr, line, random.bounded(2));
        break;
    case 3:
        document.insertBefore(random.bounded(5) ? node : nullptr, line, random.bounded(2));
        break;
    case 4:
        if (auto* named = dynamic_cast<Zorv::NamedCode*>(node)) {
            named->setName(QStringLiteral("n%1").arg(random.bounded(5)));
        }
        break;
    default:
        if (auto* value = dynamic_cast<ValueNode*>(node)) {
            value->write(random.bounded(50));
        } else if (auto* frame = dynamic_cast<FrameNode*>(node)) {
            editFrame(random, frame);
        }
        break;
    }
}

void listEdit(QRandomGenerator& random, FamilyAnimations* list)
{
    const int count = list->count();
    const int place = count ? random.bounded(count) : 0;
    const QString identifier = QString::number(random.bounded(40));
    switch (random.bounded(6)) {
    case 0:
        list->insert(unsigned(random.bounded(count + 2)), identifier);
        break;
    case 1:
        list->duplicateAnimation(place, random.bounded(2) ? identifier : QString());
        break;
    case 2:
        list->remove(unsigned(place));
        break;
    case 3:
        list->autoOrganize();
        break;
    default:
        moveAnimation(list, place, count ? random.bounded(count) : 0);
        break;
    }
}

/// Compares with a fresh parse; prints the step if they differ.
bool isTrue(const FamilyDocument& document, const QString& before, int step)
{
    const QString difference =
        FamilyDump::difference(FamilyDump::of(&document), FamilyDump::fresh(&document));
    if (!difference.isEmpty()) {
        qWarning("step %d\n%s\nbefore:\n%s\nnow:\n%s", step, qPrintable(difference),
                 qPrintable(before), qPrintable(document.text()));
    }
    return difference.isEmpty();
}

}  // namespace

class TestFamilyDocument : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void truthAfterEdits_data();
    void truthAfterEdits();
    void truthAfterTreeEdits_data();
    void truthAfterTreeEdits();
    void truthAfterListEdits_data();
    void truthAfterListEdits();
    void movesEndWhereTheyShould();
    void noCharacterIsLostAtTheEnd();
    void duplicateKeepsTheRest();
    void parsingSwitchedOff();
    void release_data();
    void release();
    void strangeFiles_data();
    void strangeFiles();

private:
    void runs();
};

void TestFamilyDocument::runs()
{
    QTest::addColumn<int>("run");
    // More of them look for rarer faults: ZORV_TEST_RUNS=500.
    const int count = qMax(8, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    for (int run = 0; run < count; ++run) {
        QTest::addRow("run %d", run) << run;
    }
}

void TestFamilyDocument::truthAfterEdits_data()
{
    runs();
}

void TestFamilyDocument::truthAfterEdits()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + quint32(run));
    FamilyDocument document(FileKind(run % 3));
    document.fromString(Text.lines(random, 70));
    const auto mode = QAbstractItemModelTester::FailureReportingMode::QtTest;
    QAbstractItemModelTester listTester(document.animations(), mode);
    QAbstractItemModelTester messageTester(document.messages(), mode);
    for (int step = 0; step < 100; ++step) {
        const QString before = document.text();
        const bool block = random.bounded(4) == 0;
        QTextCursor cursor(&document);
        if (block) {
            cursor.beginEditBlock();
            Text.edit(random, document);
        }
        Text.edit(random, document);
        if (block) {
            cursor.endEditBlock();
        }
        QVERIFY(isTrue(document, before, step));
    }
}

void TestFamilyDocument::truthAfterTreeEdits_data()
{
    runs();
}

// Each edit of the tree is one step of undo, which gives the old text and an equal tree.
void TestFamilyDocument::truthAfterTreeEdits()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + 100 + quint32(run));
    FamilyDocument document(FileKind::Character);
    document.fromString(Text.lines(random, 70));
    for (int step = 0; step < 80; ++step) {
        const QString before = document.text();
        const QStringList dumpBefore = FamilyDump::of(&document);
        const int stepsBefore = document.availableUndoSteps();
        const bool framed = random.bounded(2);
        if (framed) {
            document.beginChange(QStringLiteral("several"));
            for (int n = random.bounded(4); n > 0; --n) {
                treeEdit(random, document);
            }
        }
        treeEdit(random, document);
        if (framed) {
            document.endChange();
        }
        const QString after = document.text();
        QVERIFY(isTrue(document, before, step));
        if (document.availableUndoSteps() == stepsBefore) {
            continue;
        }
        document.undo();
        QCOMPARE(document.text(), before);
        const QString difference = FamilyDump::difference(FamilyDump::of(&document), dumpBefore);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        document.redo();
        QCOMPARE(document.text(), after);
    }
}

void TestFamilyDocument::truthAfterListEdits_data()
{
    runs();
}

void TestFamilyDocument::truthAfterListEdits()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + 200 + quint32(run));
    FamilyDocument document(FileKind::Animations);
    document.fromString(randomAnimations(random, 8));
    QAbstractItemModelTester tester(document.animations(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int step = 0; step < 40; ++step) {
        const QString before = document.text();
        const QStringList dumpBefore = FamilyDump::of(&document);
        const int stepsBefore = document.availableUndoSteps();
        listEdit(random, document.animations());
        const QString after = document.text();
        QVERIFY(isTrue(document, before, step));
        if (document.availableUndoSteps() != stepsBefore) {
            document.undo();
            QCOMPARE(document.text(), before);
            const QString difference =
                FamilyDump::difference(FamilyDump::of(&document), dumpBefore);
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
            document.redo();
        }
        QCOMPARE(document.text(), after);
    }
}

// Against a plain list of the animations' texts, with and without a last line end.
void TestFamilyDocument::movesEndWhereTheyShould()
{
    for (const QString& end : {QString(), QStringLiteral("\n"), QStringLiteral("\n\n# end")}) {
        for (int from = 0; from < 4; ++from) {
            for (int to = 0; to < 4; ++to) {
                QStringList parts;
                for (int i = 0; i < 4; ++i) {
                    parts.append(QStringLiteral("animation %1\n# of %1\nframe %1,0\n").arg(i));
                }
                FamilyDocument document(FileKind::Animations);
                document.fromString(QStringLiteral("# top\n\n") + parts.join(QString()).chopped(1) +
                                    end);
                QVERIFY(moveAnimation(document.animations(), from, to));
                parts.move(from, to);
                QStringList found;
                QStringList expected;
                for (int i = 0; i < 4; ++i) {
                    found.append(document.animations()->animation(i)->identifier());
                    expected.append(parts.at(i).section(QLatin1Char('\n'), 0, 0).mid(10));
                }
                QCOMPARE(found, expected);
                QStringList lines = document.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
                lines.removeAll(QStringLiteral("# end"));
                QCOMPARE(lines.mid(1).join(QLatin1Char('\n')), parts.join(QString()).chopped(1));
            }
        }
    }
}

void TestFamilyDocument::noCharacterIsLostAtTheEnd()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 1,1\nanimation 2\nframe 2,22"));
    document.animations()->move(1, 0);
    QCOMPARE(document.text(), QStringLiteral("animation 2\nframe 2,22\nanimation 1\nframe 1,1\n"));
    document.undo();
    QCOMPARE(document.text(), QStringLiteral("animation 1\nframe 1,1\nanimation 2\nframe 2,22"));
    QVERIFY(!document.isUndoAvailable());
}

void TestFamilyDocument::duplicateKeepsTheRest()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(
        QStringLiteral("animation   2 \"Two\" # animation 2\n# animation 20\nframe 2,2"));
    QVERIFY(document.animations()->duplicateAnimation(0, QStringLiteral("3")));
    QCOMPARE(document.text(),
             QStringLiteral("animation   2 \"Two\" # animation 2\n# animation 20\nframe 2,2\n"
                            "animation   3 \"Two\" # animation 2\n# animation 20\nframe 2,2\n"));
    QVERIFY(!document.animations()->duplicateAnimation(0, QStringLiteral("no word")));
    QVERIFY(!document.animations()->duplicateAnimation(7, QStringLiteral("3")));
}

void TestFamilyDocument::parsingSwitchedOff()
{
    FamilyDocument document(FileKind::Character);
    document.setOption(QStringLiteral("parseCode"), false, false, false);
    document.fromString(QStringLiteral("[constants]\nlife = 1\nanimation 1\nframe 0,0\n"));
    QVERIFY(!document.next());
    QCOMPARE(document.messages()->count(Zorv::Message::AllTypes), 0);
    document.setOption(QStringLiteral("parseCode"), true, false, false);
    document.reparse();
    const QString difference =
        FamilyDump::difference(FamilyDump::of(&document), FamilyDump::fresh(&document));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestFamilyDocument::release_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("groups and animations") << QStringLiteral(
        "[constants]\nlife = 1\n[.walk]\nback = 1\nanimation 1\nbody 1,2,3,4\nframe 0,0");
}

void TestFamilyDocument::release()
{
    QFETCH(QString, text);
    auto* document = new FamilyDocument(FileKind::Character);
    document->fromString(text);
    QSignalSpy spy(document, &QObject::destroyed);
    static_cast<Zorv::ProjectFile*>(document)->release();
    QCOMPARE(spy.count(), 1);
}

void TestFamilyDocument::strangeFiles_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray("[info]\nname = \"a\0b\"\n\0\0\0=\0", 25);
    QTest::newRow("mixed line ends") << QByteArray("[info]\rname = \"a\"\r\n\nframe 0,0\n\r");
    QTest::newRow("a long line") << QByteArray("life = ") + QByteArray(10 << 20, 'x');
    QTest::newRow("a long text") << QByteArray("[info]\nname = \"") + QByteArray(10 << 20, '\\');
    QTest::newRow("a long list") << QByteArray("[constants]\ncombo = ") +
                                        QByteArray("1,").repeated(200000);
    QTest::newRow("empty lines") << QByteArray(300000, '\n');
    QTest::newRow("only heads") << QByteArray("[.walk]\n").repeated(20000);
}

void TestFamilyDocument::strangeFiles()
{
    QFETCH(QByteArray, data);
    QTemporaryDir folder;
    const QString name = folder.path() + QStringLiteral("/a.character");
    QVERIFY(writeFile(name, data));
    QString error;
    const std::unique_ptr<FamilyDocument> document(FamilyDocument::open(name, &error));
    QVERIFY2(document, qPrintable(error));
    QTextCursor cursor(document.get());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("\n[move last]\npriority = 5"));
    QCOMPARE(getValue(document.get(), QStringLiteral("move:last.priority"), nullptr),
             QStringLiteral("5"));
}

QTEST_MAIN(TestFamilyDocument)
#include "tst_familydocument.moc"
