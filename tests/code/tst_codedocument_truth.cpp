#include "support/randomtext.h"
#include "support/testgrammar.h"

#include "core/messages.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

namespace {

constexpr quint32 Seed = 20260711;

const RandomText Text({"[1]",   "[1]", "[2]", "[3*]", "[2*]", "a=1", "b=2",  "c=3",
                       "a=4",   "!x",  "!y",  "!z",   "-f",   "-g",  "-h",   "# note",
                       "# [1]", "",    "",    "?e",   "?w",   "?d",  "junk", "-i"},
                      QStringLiteral("[]!-=#?12ax\n"));

}  // namespace

/// Whatever is done to the text: what the document knows is what a fresh parse
/// of the same text gives.
class CodeDocumentTruth : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void randomEdits_data();
    void randomEdits();
    void stateOfNewLines();
};

void CodeDocumentTruth::randomEdits_data()
{
    QTest::addColumn<int>("run");
    for (int run = 0; run < 25; ++run) {
        QTest::addRow("run %d", run) << run;
    }
}

void CodeDocumentTruth::randomEdits()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + quint32(run));
    GrammarDocument document(Text.lines(random, 60));
    auto* animations = new TestAnimations(&document);
    document.registerDocumentEditor(animations, Zorv::CodeNode::Animation, 0);
    document.reparse();
    QAbstractItemModelTester listTester(animations,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
    QAbstractItemModelTester messageTester(document.messages(),
                                           QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int step = 0; step < 250; ++step) {
        const QString before = document.text();
        const bool inBlock = random.bounded(4) == 0;
        QTextCursor cursor(&document);
        if (inBlock) {
            cursor.beginEditBlock();
            Text.edit(random, document);
            Text.edit(random, document);
            cursor.endEditBlock();
        }
        Text.edit(random, document);
        const GrammarDocument fresh(document.text());
        const QStringList found = document.dump();
        const QStringList expected = fresh.dump();
        if (found != expected) {
            int line = 0;
            while (line < qMin(found.size(), expected.size()) && found[line] == expected[line]) {
                ++line;
            }
            qWarning("step %d: found \"%s\", expected \"%s\", text:\n%s\nbefore:\n%s", step,
                     qPrintable(found.value(line)), qPrintable(expected.value(line)),
                     qPrintable(document.text()), qPrintable(before));
        }
        QCOMPARE(found, expected);
        QCOMPARE(document.blockCount(), fresh.blockCount());
        QStringList names;
        for (const Zorv::CodeNode* node = document.next(); node; node = node->next()) {
            if (node->type() == Zorv::CodeNode::Animation) {
                names.append(static_cast<const TestAnimation*>(node)->name());
            }
        }
        QStringList listed;
        for (int row = 0; row < animations->count(); ++row) {
            listed.append(animations->index(row).data().toString());
        }
        QCOMPARE(listed, names);
    }
}

/// New lines whose state is the one that Qt gives to every new line hide from
/// Qt that the lines below stand under another head.
void CodeDocumentTruth::stateOfNewLines()
{
    GrammarDocument document(QStringLiteral("[2]\na=1\nb=2"));
    QTextCursor cursor(document.begin());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(QStringLiteral("# one\n# two"));
    QCOMPARE(document.messages()->count(Zorv::Message::Error), 2);
    QVERIFY(!document.next());
}

QTEST_MAIN(CodeDocumentTruth)
#include "tst_codedocument_truth.moc"
