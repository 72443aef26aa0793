#include "support/laddergrammar.h"
#include "support/testgrammar.h"
#include "support/testtable.h"

#include "core/messages.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QtTest>

#include <functional>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 31337;

/// A document with its list; the document owns both.
struct Fixture
{
    explicit Fixture(const QString& text) : document(text)
    {
        list = new TestAnimations(&document);
        document.registerDocumentEditor(list, CodeNode::Animation, 0);
        document.reparse();
    }

    QStringList names() const
    {
        QStringList result;
        for (const AnimationCode* animation : list->animations()) {
            result.append(animation->name());
        }
        return result;
    }

    GrammarDocument document;
    TestAnimations* list;
};

QString withNames(const QStringList& names)
{
    QString text;
    for (const QString& name : names) {
        text += QStringLiteral("!%1\n-f%1\n# box\n-g\n").arg(name);
    }
    return text;
}

}  // namespace

class TestAnimationList : public QObject
{
    Q_OBJECT

private slots:
    void organize_data();
    void organize();
    void moves_data();
    void moves();
    void duplicates();
    void insertAndFind();
    void extents();
    void insertsFrames_data();
    void insertsFrames();
    void framesOfGrammarWithNewNodes_data();
    void framesOfGrammarWithNewNodes();
    void currentGoesAlong_data();
    void currentGoesAlong();
    void drop();
    void randomOperations();
};

void TestAnimationList::organize_data()
{
    columns<QStringList, QStringList>("names", "sorted");
    row("numbers by value", QStringList{"10", "9", "100"}, QStringList{"9", "10", "100"});
    row("texts without case", QStringList{"b", "A", "c", "B"}, QStringList{"A", "b", "B", "c"});
    row("a text and a number stay", QStringList{"a", "9"}, QStringList{"a", "9"});
    row("one", QStringList{"5"}, QStringList{"5"});
    row("a number passes a text to reach a greater one", QStringList{"9", "a", "3"},
        QStringList{"3", "9", "a"});
}

void TestAnimationList::organize()
{
    const auto [names, sorted] = fetched<QStringList, QStringList>();
    Fixture fixture(withNames(names));
    fixture.list->autoOrganize();
    QCOMPARE(fixture.names(), sorted);
    QCOMPARE(fixture.document.text(), withNames(sorted));
    if (names != sorted) {
        fixture.document.undo();
        QCOMPARE(fixture.document.text(), withNames(names));
        QCOMPARE(fixture.names(), names);
        QVERIFY(!fixture.document.isUndoAvailable());
    }
}

void TestAnimationList::moves_data()
{
    columns<int, int, QStringList>("from", "to", "result");
    row("up", 2, 0, QStringList{"c", "a", "b", "d"});
    row("down", 0, 2, QStringList{"b", "c", "a", "d"});
    row("to the last place: lands at the head", 0, 3, QStringList{"a", "b", "c", "d"});
    row("the second to the last place", 1, 3, QStringList{"b", "a", "c", "d"});
    row("outside", 4, 0, QStringList{"a", "b", "c", "d"});
}

void TestAnimationList::moves()
{
    const auto [from, to, result] = fetched<int, int, QStringList>();
    Fixture fixture(withNames({"a", "b", "c", "d"}));
    fixture.list->move(unsigned(from), unsigned(to));
    QCOMPARE(fixture.names(), result);
    QCOMPARE(fixture.document.text(), withNames(result));
}

void TestAnimationList::duplicates()
{
    Fixture fixture(QStringLiteral("!a\n-new\n# A\n!b\n-g\n"));
    fixture.list->duplicate(0, QStringLiteral("c"));
    QCOMPARE(fixture.document.text(), QStringLiteral("!a\n-new\n# A\n!a\n-new\n# A\n!b\n-g\n"));
    fixture.document.undo();
    fixture.list->duplicate(9, QString());
    QCOMPARE(fixture.names(), QStringList({"a", "b"}));
    fixture.list->duplicate(1, QString());
    QCOMPARE(fixture.names(), QStringList({"a", "b", "b"}));
    fixture.document.beginChange(QString());
    QVERIFY(!fixture.list->index(0).data().isValid());
    fixture.list->duplicate(0, QString());
    QCOMPARE(fixture.list->count(), 3);
    fixture.document.endChange();
    QCOMPARE(fixture.names(), QStringList({"a", "a", "b", "b"}));
    QCOMPARE(fixture.list->index(0).data().toString(), QStringLiteral("a"));
}

void TestAnimationList::insertAndFind()
{
    Fixture fixture(withNames({"a", "b"}));
    QCOMPARE(fixture.list->insert(1, QStringLiteral("n"))->name(), QStringLiteral("n"));
    QCOMPARE(fixture.list->insert(77, QStringLiteral("last"))->name(), QStringLiteral("last"));
    QCOMPARE(fixture.names(), QStringList({"a", "n", "b", "last"}));
    QCOMPARE(fixture.list->find(0, QStringLiteral("b")), 2);
    QCOMPARE(fixture.list->find(3, QStringLiteral("b")), -1);
    QCOMPARE(fixture.list->find(99, QStringLiteral("b")), -1);
    QCOMPARE(fixture.list->at(99), nullptr);
}

void TestAnimationList::extents()
{
    Fixture fixture(QStringLiteral("!a\n# box\n-f\n# one\n# two\n-g\n!b\n-h"));
    const AnimationCode* animation = fixture.list->at(0);
    QCOMPARE(animation->lastLine(), 5);
    QCOMPARE(animation->frames().at(0)->firstLine(), 1);
    QCOMPARE(animation->frames().at(1)->firstLine(), 3);
    QCOMPARE(animation->code(),
             QString("!a\n# box\n-f\n# one\n# two\n-g").replace('\n', QChar(0x2029)));
    QCOMPARE(fixture.list->at(1)->lastLine(), fixture.document.blockCount());
    fixture.list->at(0)->removeFrame(1);
    QCOMPARE(fixture.document.text(), QStringLiteral("!a\n# box\n-f\n!b\n-h"));
}

void TestAnimationList::insertsFrames_data()
{
    columns<QString, unsigned, QString, int>("text", "index", "result", "place");
    const QString two = QStringLiteral("!a\n# box\n-f\n# one\n-g\n# end\n!b\n");
    row("first", two, 0U, QStringLiteral("!a\n-new\n# box\n-f\n# one\n-g\n# end\n!b\n"), 0);
    row("between, in front of the lines of the next", two, 1U,
        QStringLiteral("!a\n# box\n-f\n-new\n# one\n-g\n# end\n!b\n"), 1);
    row("behind", two, 2U, QStringLiteral("!a\n# box\n-f\n# one\n-g\n-new\n# end\n!b\n"), 2);
    row("far behind", two, 99U, QStringLiteral("!a\n# box\n-f\n# one\n-g\n-new\n# end\n!b\n"), 2);
    row("empty", QStringLiteral("!a\n!b\n-h"), 3U, QStringLiteral("!a\n-new\n!b\n-h"), 0);
    row("empty, without a line end", QStringLiteral("!a"), 0U, QStringLiteral("!a\n-new"), 0);
}

void TestAnimationList::insertsFrames()
{
    const auto [text, index, result, place] = fetched<QString, unsigned, QString, int>();
    for (const bool isInChange : {false, true}) {
        Fixture fixture(text);
        fixture.document.clearUndoRedoStacks();
        if (isInChange) {
            fixture.document.beginChange(QString());
        }
        const FrameCode* frame = fixture.list->at(0)->insertFrame(index);
        QVERIFY(frame);
        QCOMPARE(frame->index(), place);
        QCOMPARE(frame->block().text(), QStringLiteral("-new"));
        if (isInChange) {
            fixture.document.endChange();
        }
        QCOMPARE(fixture.document.text(), result);
        QCOMPARE(fixture.document.dump(), GrammarDocument(result).dump());
        fixture.document.undo();
        QCOMPARE(fixture.document.text(), text);
        QVERIFY(!fixture.document.isUndoAvailable());
    }
}

void TestAnimationList::framesOfGrammarWithNewNodes_data()
{
    QTest::addColumn<bool>("isReusing");
    row("nodes are made anew", false);
    row("nodes are kept", true);
}

/// The line of the head is parsed again: with it the animation may become another node.
void TestAnimationList::framesOfGrammarWithNewNodes()
{
    QFETCH(bool, isReusing);
    const auto reuse = isReusing ? LadderGrammar::Reuse::All : LadderGrammar::Reuse::None;
    LadderDocument document(reuse, QStringLiteral("@a\n@b\n+ p"));
    auto* list = new LadderAnimations(&document);
    document.registerDocumentEditor(list, CodeNode::Animation, 0);
    document.reparse();
    list->at(1)->setCurrentFrame(7);
    for (unsigned animation : {0U, 1U}) {
        const FrameCode* frame = list->at(animation)->insertFrame(0);
        QVERIFY(frame);
        QCOMPARE(frame->identifier().toString(), QStringLiteral(" new"));
        QCOMPARE(list->at(animation)->frames().indexOf(const_cast<FrameCode*>(frame)), 0);
    }
    QCOMPARE(document.text(), QStringLiteral("@a\n; box\n+ new\n@b\n; box\n+ new\n+ p"));
    QCOMPARE(list->at(1)->currentFrame(), 7);
}

using Edit = std::function<void(Fixture&)>;
Q_DECLARE_METATYPE(Edit)

void TestAnimationList::currentGoesAlong_data()
{
    // `name`: of the animation that is current then, empty for none
    // `frame`: that it remembers
    columns<Edit, QString, int>("edit", "name", "frame");
    const auto row = [](const char* title, const char* name, int frame, const Edit& edit) {
        ::row(title, edit, QString::fromLatin1(name), frame);
    };
    const auto typeInto = [](Fixture& f, int line, const QString& text) {
        QTextCursor cursor(f.document.findBlockByNumber(line));
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.insertText(text);
    };
    row("its head is edited", "cx", 1, [=](Fixture& f) { typeInto(f, 8, "x"); });
    row("the head above is edited", "c", 1, [=](Fixture& f) { typeInto(f, 4, "x"); });
    row("one comes above", "c", 1, [](Fixture& f) { f.list->insert(0, "n"); });
    row("one comes right above", "c", 1, [](Fixture& f) { f.list->insert(2, "n"); });
    row("one comes below", "c", 1, [](Fixture& f) { f.list->insert(3, "n"); });
    row("one above goes", "c", 1, [](Fixture& f) { f.list->remove(1); });
    row("it goes", "d", 0, [](Fixture& f) { f.list->remove(2); });
    row("it moves up", "c", 1, [](Fixture& f) { f.list->move(2, 0); });
    row("it moves to the last place", "c", 1, [](Fixture& f) { f.list->move(2, 3); });
    row("another one passes it", "c", 1, [](Fixture& f) { f.list->move(0, 2); });
    row("all are sorted", "c", 1, [=](Fixture& f) {
        typeInto(f, 0, "z");
        f.list->autoOrganize();
    });
    row("undo", "c", 1, [](Fixture& f) {
        f.list->move(3, 0);
        f.document.undo();
    });
    row("the text is parsed anew", "c", 0, [](Fixture& f) { f.document.reparse(); });
    row("the file is read again", "c", 0,
        [](Fixture& f) { f.document.setPlainText(f.document.text()); });
    row("everything goes", "", 0, [](Fixture& f) { f.document.setPlainText({}); });
}

/// A person comes back to the animation and to the frame that they left.
void TestAnimationList::currentGoesAlong()
{
    const auto [edit, name, frame] = fetched<Edit, QString, int>();
    Fixture fixture(withNames({"a", "b", "c", "d"}));
    QCOMPARE(fixture.list->currentIndex(), 0);
    fixture.list->setCurrent(2);
    fixture.list->at(2)->setCurrentFrame(1);
    edit(fixture);
    const AnimationCode* current = fixture.list->at(unsigned(fixture.list->currentIndex()));
    QCOMPARE(current ? current->name() : QString(), name);
    QCOMPARE(current ? current->currentFrame() : 0, frame);
}

void TestAnimationList::drop()
{
    Fixture fixture(withNames({"a", "b", "c", "d", "e"}));
    std::unique_ptr<QMimeData> data(
        fixture.list->mimeData({fixture.list->index(1), fixture.list->index(2)}));
    QVERIFY(!fixture.list->dropMimeData(data.get(), Qt::MoveAction, 4, 0, {}));
    QCOMPARE(fixture.names(), QStringList({"a", "d", "b", "c", "e"}));
    QVERIFY(!fixture.list->dropMimeData(data.get(), Qt::CopyAction, 0, 0, {}));
    QCOMPARE(fixture.names(), QStringList({"a", "d", "b", "c", "e"}));
}

/// Any operation is one step of undo, which brings text, tree and list back.
void TestAnimationList::randomOperations()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    Fixture fixture(withNames({"5", "c", "1", "b", "3", "a"}));
    QAbstractItemModelTester tester(fixture.list,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int step = 0; step < 300; ++step) {
        const QString text = fixture.document.text();
        const QStringList dump = fixture.document.dump();
        const QStringList names = fixture.names();
        const auto count = unsigned(fixture.list->count());
        const auto index = unsigned(random.bounded(int(count) + 1));
        switch (random.bounded(5)) {
        case 0:
            fixture.list->insert(index, QString::number(random.bounded(20)));
            break;
        case 1:
            fixture.list->duplicate(index, QStringLiteral("d%1").arg(step));
            break;
        case 2:
            if (count > 2) {
                fixture.list->move(index, unsigned(random.bounded(int(count) - 1)));
            }
            break;
        case 3:
            if (count > 3) {
                fixture.list->remove(index);
            }
            break;
        default:
            fixture.list->autoOrganize();
            break;
        }
        const GrammarDocument fresh(fixture.document.text());
        QCOMPARE(fixture.document.dump(), fresh.dump());
        if (fixture.document.text() == text) {
            continue;
        }
        fixture.document.undo();
        QCOMPARE(fixture.document.text(), text);
        QCOMPARE(fixture.document.dump(), dump);
        QCOMPARE(fixture.names(), names);
        fixture.document.redo();
    }
}

QTEST_MAIN(TestAnimationList)
#include "tst_animations.moc"
