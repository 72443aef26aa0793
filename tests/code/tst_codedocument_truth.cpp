#include "support/testgrammar.h"

#include "core/messages.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QtTest>

namespace {

constexpr quint32 Seed = 20260711;

const char* const Lines[] = {"[1]",   "[1]", "[2]", "[3*]", "[2*]", "a=1", "b=2",  "c=3",
                             "a=4",   "!x",  "!y",  "!z",   "-f",   "-g",  "-h",   "# note",
                             "# [1]", "",    "",    "?e",   "?w",   "?d",  "junk", "-i"};

QString randomLines(QRandomGenerator& random, int most)
{
    QStringList lines;
    for (int n = random.bounded(most + 1); n > 0; --n) {
        lines.append(QLatin1String(Lines[random.bounded(int(std::size(Lines)))]));
    }
    return lines.join(QLatin1Char('\n'));
}

int randomPosition(QRandomGenerator& random, const QTextDocument& document)
{
    const QTextBlock block = document.findBlockByNumber(random.bounded(document.blockCount()));
    switch (random.bounded(3)) {
    case 0:
        return block.position();
    case 1:
        return block.position() + block.length() - 1;
    default:
        return block.position() + random.bounded(block.length());
    }
}

void randomEdit(QRandomGenerator& random, QTextDocument& document)
{
    QTextCursor cursor(&document);
    cursor.setPosition(randomPosition(random, document));
    switch (random.bounded(10)) {
    case 0:
    case 1:
        cursor.insertText(QString(QLatin1Char("[]!-=#?12ax\n"[random.bounded(12)])));
        break;
    case 2:
        cursor.insertText(QStringLiteral("\n") + randomLines(random, 4));
        break;
    case 3:
        cursor.insertText(randomLines(random, 4) + QStringLiteral("\n"));
        break;
    case 4:
    case 5: {
        const QTextBlock last = document.findBlockByNumber(
            qMin(document.blockCount() - 1, cursor.blockNumber() + random.bounded(5)));
        cursor.movePosition(QTextCursor::StartOfBlock);
        cursor.setPosition(last.position(), QTextCursor::KeepAnchor);
        cursor.insertText(random.bounded(2) ? randomLines(random, 3) : QString());
        break;
    }
    case 6:
        cursor.setPosition(randomPosition(random, document), QTextCursor::KeepAnchor);
        if (qAbs(cursor.position() - cursor.anchor()) < 40) {
            cursor.removeSelectedText();
        }
        break;
    case 7:
        cursor.deletePreviousChar();
        break;
    case 8:
        document.undo();
        break;
    default:
        document.redo();
        break;
    }
}

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
    GrammarDocument document(randomLines(random, 60));
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
            randomEdit(random, document);
            randomEdit(random, document);
            cursor.endEditBlock();
        }
        randomEdit(random, document);
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
