#include "support/documentdump.h"
#include "support/laddergrammar.h"
#include "support/randomtext.h"
#include "support/testgrammar.h"

#include "core/messages.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20260711;

using Document = std::unique_ptr<CodeDocument>;

template <LadderGrammar::Reuse reuse>
Document ladder(const QString& text)
{
    return std::make_unique<LadderDocument>(reuse, text);
}

/// A grammar, and texts in it.
struct Language
{
    const char* name;
    Document (*make)(const QString& text);
    Animations* (*list)(CodeDocument* document);
    RandomText text;
};

const QVector<Language>& languages()
{
    static const RandomText ladders(LadderGrammar::lines(), QStringLiteral("!.@+:; 12ab\n"));
    static const QVector<Language> all{
        {"values in place, heads anew",
         [](const QString& text) { return Document(new GrammarDocument(text)); },
         [](CodeDocument* document) -> Animations* { return new TestAnimations(document); },
         RandomText({"[1]",   "[1]", "[2]", "[3*]", "[2*]", "a=1", "b=2",  "c=3",
                     "a=4",   "!x",  "!y",  "!z",   "-f",   "-g",  "-h",   "# note",
                     "# [1]", "",    "",    "?e",   "?w",   "?d",  "junk", "-i"},
                    QStringLiteral("[]!-=#?12ax\n"))},
        {"sub-groups, all in place", ladder<LadderGrammar::Reuse::All>,
         [](CodeDocument* document) -> Animations* { return new LadderAnimations(document); },
         ladders},
        {"sub-groups, all anew", ladder<LadderGrammar::Reuse::None>,
         [](CodeDocument* document) -> Animations* { return new LadderAnimations(document); },
         ladders},
    };
    return all;
}

void addRuns()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("run");
    // More of them look for rarer faults: ZORV_TEST_RUNS=500.
    const int runs = qMax(12, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    for (int i = 0; i < languages().size(); ++i) {
        for (int run = 0; run < runs; ++run) {
            QTest::addRow("%s %d", languages().at(i).name, run) << i << run;
        }
    }
}

QString nodesAsText(const CodeDocument& document)
{
    return nodesOf(document).join(QLatin1Char('\n'));
}

/// Some edit of the text that a node, or the document for it, makes.
void editByTree(QRandomGenerator& random, const Language& language, CodeDocument& document)
{
    QVector<CodeNode*> nodes;
    for (CodeNode* node = document.next(); node; node = node->next()) {
        nodes.append(node);
    }
    CodeNode* node = nodes.isEmpty() ? nullptr : nodes.at(random.bounded(nodes.size()));
    const bool ownLine = random.bounded(3) != 0;
    switch (node ? random.bounded(5) : 4) {
    case 0:
        node->remove(!ownLine);
        break;
    case 1:
        node->change(language.text.line(random));
        break;
    case 2:
        document.insertBefore(node, language.text.lines(random, 3), ownLine);
        break;
    case 3:
        document.insertAfter(node, language.text.lines(random, 3), ownLine);
        break;
    default:
        document.insert(QLatin1Char('\n') + language.text.line(random));
        break;
    }
}

}  // namespace

/// Whatever is done to the text, in whatever grammar: what the document knows is what a fresh
/// parse of the same text gives.
class TestCodeDocumentTruth : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void randomEdits_data() { addRuns(); }
    void randomEdits();
    void editsByTree_data() { addRuns(); }
    void editsByTree();
    void stateOfNewLines();
    void framesAmongValues();
};

void TestCodeDocumentTruth::randomEdits()
{
    QFETCH(int, language);
    QFETCH(int, run);
    const Language& with = languages().at(language);
    QRandomGenerator random(Seed + quint32(run));
    const Document document = with.make(with.text.lines(random, 60));
    Animations* animations = with.list(document.get());
    document->registerDocumentEditor(animations, CodeNode::Animation, 0);
    document->reparse();
    const auto failure = QAbstractItemModelTester::FailureReportingMode::QtTest;
    QAbstractItemModelTester listTester(animations, failure);
    QAbstractItemModelTester messageTester(document->messages(), failure);
    for (int step = 0; step < 250; ++step) {
        const QString before = document->text();
        if (random.bounded(4) == 0) {
            QTextCursor cursor(document.get());
            cursor.beginEditBlock();
            with.text.edit(random, *document);
            with.text.edit(random, *document);
            cursor.endEditBlock();
        }
        with.text.edit(random, *document);
        const QString after = document->text();
        const QString difference = firstDifference(dumpOf(*document), dumpOf(*with.make(after)));
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("step %1: %2\nbefore:\n%3\nnow:\n%4")
                                .arg(step)
                                .arg(difference, before, after)));
        QStringList names;
        for (const CodeNode* node = document->next(); node; node = node->next()) {
            if (node->type() == CodeNode::Animation) {
                names.append(static_cast<const AnimationCode*>(node)->name());
            }
        }
        QStringList listed;
        for (int row = 0; row < animations->count(); ++row) {
            listed.append(animations->index(row).data().toString());
        }
        QCOMPARE(listed, names);
    }
}

/// Inside of a change too the nodes are those of the text, after every edit by the tree.
void TestCodeDocumentTruth::editsByTree()
{
    QFETCH(int, language);
    QFETCH(int, run);
    const Language& with = languages().at(language);
    QRandomGenerator random(Seed + quint32(run));
    const Document document = with.make(with.text.lines(random, 40));
    for (int step = 0; step < 60; ++step) {
        document->beginChange(QString());
        for (int edit = random.bounded(5); edit >= 0; --edit) {
            const QString before = nodesAsText(*document);
            editByTree(random, with, *document);
            const QString text = document->text();
            const QString difference =
                firstDifference(nodesOf(*document), nodesOf(*with.make(text)));
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("step %1: %2\nbefore:\n%3\nnow:\n%4")
                                    .arg(step)
                                    .arg(difference, before, text)));
        }
        document->endChange();
        QCOMPARE(firstDifference(dumpOf(*document), dumpOf(*with.make(document->text()))),
                 QString());
        if (random.bounded(3) == 0) {
            document->undo();
            QCOMPARE(firstDifference(dumpOf(*document), dumpOf(*with.make(document->text()))),
                     QString());
        }
    }
}

/// New lines whose state is the one that Qt gives to every new line hide from
/// Qt that the lines below stand under another head.
void TestCodeDocumentTruth::stateOfNewLines()
{
    GrammarDocument document(QStringLiteral("[2]\na=1\nb=2"));
    QTextCursor cursor(document.begin());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(QStringLiteral("# one\n# two"));
    QCOMPARE(document.messages()->count(Message::Error), 2);
    QVERIFY(!document.next());
}

/// Children that a grammar adds to an animation do not count as frames.
void TestCodeDocumentTruth::framesAmongValues()
{
    LadderDocument document(LadderGrammar::Reuse::All, QStringLiteral("@a\nm: 1\n+ p\nm: 2\n+ q"));
    const auto* animation = static_cast<const AnimationCode*>(document.next());
    QCOMPARE(animation->childCount(), 4);
    for (int i = 0; i < 2; ++i) {
        const FrameCode* frame = animation->frames().value(i);
        QVERIFY(frame);
        QCOMPARE(frame->index(), i);
        QCOMPARE(frame->firstLine(), 1 + 2 * i);
        QCOMPARE(frame->lastLine(), 2 + 2 * i);
    }
}

QTEST_MAIN(TestCodeDocumentTruth)
#include "tst_codedocument_truth.moc"
