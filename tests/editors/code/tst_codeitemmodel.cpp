#include "editors/code/codeitemmodel.h"

#include "editors/code/codetreemodel.h"
#include "support/randomtext.h"
#include "support/testgrammar.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20260802;
const QString Some = QStringLiteral("[1]\na=1\n[2]\nb=2\n!x\n-f\n!z\n-h");

const RandomText Text({"[1]", "[2]", "[3*]", "a=1", "b=2", "c=3", "d=4", "!x", "!y", "-f", "-g",
                       "-h", "# note", "", "?e", "junk"},
                      QStringLiteral("[]!-=#12ax\n"));

QStringList rowsOf(const QAbstractItemModel& model, const QModelIndex& parent = {}, int depth = 0)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        rows += QString(depth, QLatin1Char(' ')) + index.data().toString();
        rows += rowsOf(model, index, depth + 1);
    }
    return rows;
}

QString nameOf(const CodeNode* node)
{
    const auto* named = dynamic_cast<const NamedCode*>(node);
    return named ? named->displayName() : QStringLiteral("Frame");
}

QStringList treeOf(const ParentCode* parent, int depth = 0)
{
    QStringList rows;
    for (int i = 0; i < parent->childCount(); ++i) {
        const CodeNode* child = parent->childAt(unsigned(i));
        rows += QString(depth, QLatin1Char(' ')) + nameOf(child);
        if (child->type() != CodeNode::Value) {
            rows += treeOf(static_cast<const ParentCode*>(child), depth + 1);
        }
    }
    return rows;
}

/// The node for a line, by going through all children from behind.
const CodeNode* walkToLine(const ParentCode* parent, int line)
{
    for (int i = parent->childCount() - 1; i >= 0; --i) {
        const CodeNode* child = parent->childAt(unsigned(i));
        if (child->firstLine() == line) {
            return child;
        }
        if (child->firstLine() < line &&
            (child->type() & (CodeNode::Group | CodeNode::Animation))) {
            return walkToLine(static_cast<const ParentCode*>(child), line);
        }
    }
    return parent;
}

}  // namespace

class TestCodeItemModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void randomEdits_data();
    void randomEdits();
    void rowsThatStay_data() { randomEdits_data(); }
    void rowsThatStay();
    void staleRowsAreThoseOfBefore();
    void branchesStayOpen();
    void waitsWhileNobodyLooks();
    void waitsForTheEndOfAChange();
    void updateAnnouncesAllRows();
    void indexesOutliveTheirNodes();
    void documentDies();
};

void TestCodeItemModel::randomEdits_data()
{
    QTest::addColumn<int>("run");
    for (int run = 0; run < 8; ++run) {
        QTest::addRow("run %d", run) << run;
    }
}

/// Rows and lines are those of the tree, and an index that was made at any time before can be
/// asked for anything.
void TestCodeItemModel::randomEdits()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + quint32(run));
    GrammarDocument document(Text.lines(random, 40));
    CodeItemModel model;
    model.setDocument(&document);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    connect(&document, &QTextDocument::contentsChanged, &model, &CodeItemModel::update);
    QVector<QModelIndex> old;
    for (int step = 0; step < 120; ++step) {
        Text.edit(random, document);
        QCOMPARE(rowsOf(model), treeOf(&document));
        for (int line = 0; line <= document.blockCount(); ++line) {
            const CodeNode* expected = walkToLine(&document, line);
            const QModelIndex found = model.indexInLine(unsigned(line));
            QCOMPARE(found, model.nodeIndex(expected));
            QCOMPARE(model.lineNo(found), found.isValid() ? expected->firstLine() : -1);
            old.append(found);
        }
        for (const QModelIndex& index : qAsConst(old)) {
            model.parent(index);
            model.rowCount(index);
            model.data(index, Qt::DisplayRole);
            model.lineNo(index);
        }
    }
}

/// Stale rows can be asked for anything; in line, they are those of the tree. A row above all
/// edits, its branch and its place are the same ones for ever.
void TestCodeItemModel::rowsThatStay()
{
    QFETCH(int, run);
    QRandomGenerator random(Seed + quint32(run));
    GrammarDocument document(QStringLiteral("[1]\na=1\n[2]\n") + Text.lines(random, 40));
    CodeTreeModel model;
    model.setDocument(&document);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QPersistentModelIndex group = model.index(0, 0);
    const QPersistentModelIndex value = model.index(0, 0, group);
    for (int step = 0; step < 120; ++step) {
        // One group is put in front of the other, or its head is typed anew.
        QTextCursor head(document.findBlockByNumber(0));
        head.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        head.insertText(random.bounded(2) ? QStringLiteral("[1]") : QStringLiteral("[4]"));
        QTextCursor edit(document.findBlockByNumber(3 + random.bounded(document.blockCount() - 3)));
        edit.insertText(Text.lines(random, 1) + QLatin1Char('\n'));
        edit.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, random.bounded(3));
        edit.removeSelectedText();
        rowsOf(model);
        QVERIFY(model.isStale() && !model.indexInLine(0).isValid());
        if (random.bounded(2)) {
            model.refresh();
            QCOMPARE(rowsOf(model), treeOf(&document));
            QCOMPARE(model.indexInLine(1), QModelIndex(value));
            QCOMPARE(model.lineNo(group), 0);
        }
        QVERIFY(group.isValid() && value.parent() == group);
    }
}

void TestCodeItemModel::staleRowsAreThoseOfBefore()
{
    GrammarDocument document(Some);
    CodeTreeModel model;
    model.setDocument(&document);
    const QStringList before = rowsOf(model);
    QSignalSpy rows(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("\n[4]\n"));
    // Nearly all nodes die here; what the views hold stays as it was.
    cursor.setPosition(document.findBlockByNumber(1).position(), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QVERIFY(model.isStale());
    QCOMPARE(rows.size() + changes.size(), 0);
    QCOMPARE(rowsOf(model), before);
    QTRY_VERIFY(!model.isStale());
    QCOMPARE(rowsOf(model), treeOf(&document));
}

void TestCodeItemModel::branchesStayOpen()
{
    GrammarDocument document(Some);
    CodeTreeModel model;
    const QAbstractItemModelTester tester(&model);
    QTreeView view;
    model.setDocument(&document);
    view.setModel(&model);
    view.expand(model.index(2, 0));
    QTextCursor cursor(document.findBlockByNumber(4));
    cursor.select(QTextCursor::LineUnderCursor);
    cursor.insertText(QStringLiteral("!y\n-g"));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.refresh();
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(removed.size(), 0);
    QVERIFY(view.isExpanded(model.index(2, 0)) && !view.isExpanded(model.index(1, 0)));
    QCOMPARE(rowsOf(model), treeOf(&document));
}

void TestCodeItemModel::waitsWhileNobodyLooks()
{
    auto document = std::make_unique<GrammarDocument>(Some);
    CodeTreeModel model;
    const QAbstractItemModelTester tester(&model);
    model.setActive(false);
    model.setDocument(document.get());
    QCOMPARE(model.rowCount(), 0);
    QTextCursor(document.get()).insertText(QStringLiteral("[4]\n"));
    QTest::qWait(300);  // nothing may happen
    QVERIFY(model.isStale());
    model.setActive(true);
    QCOMPARE(rowsOf(model), treeOf(document.get()));
    document.reset();
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.document());
}

void TestCodeItemModel::waitsForTheEndOfAChange()
{
    GrammarDocument document(Some);
    CodeTreeModel model;
    model.setDocument(&document);
    const QStringList before = rowsOf(model);
    document.beginChange(QStringLiteral("several"));
    document.insertAfter(nullptr, QStringLiteral("[4]"), true);
    model.refresh();
    QCOMPARE(rowsOf(model), before);
    QCOMPARE(model.lineNo(model.index(0, 0)), -1);
    document.endChange();
    model.refresh();
    QCOMPARE(rowsOf(model), treeOf(&document));
}

void TestCodeItemModel::updateAnnouncesAllRows()
{
    GrammarDocument document(QStringLiteral("[1]\na=1\n[2]\n!x\n-f"));
    CodeItemModel model;
    model.setDocument(&document);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("[3]\n"));
    QCOMPARE(model.rowCount(), 3);  // until it is announced
    model.update();
    QCOMPARE(removed.takeFirst(), (QVariantList{QModelIndex(), 0, 2}));
    QCOMPARE(inserted.takeFirst(), (QVariantList{QModelIndex(), 0, 3}));
}

void TestCodeItemModel::indexesOutliveTheirNodes()
{
    GrammarDocument document(QStringLiteral("[1]\na=1\n[2]\nb=2"));
    CodeItemModel model;
    model.setDocument(&document);
    const QModelIndex group = model.index(1, 0);
    const QModelIndex value = model.index(0, 0, group);
    QCOMPARE(value.data().toString(), QStringLiteral("b"));
    QCOMPARE(model.parent(value), group);
    document.nodeInBlock(document.findBlockByNumber(2))->remove(false);
    QCOMPARE(model.rowCount(group), 0);
    QVERIFY(!model.parent(group).isValid());
    QVERIFY(!group.data().isValid());
    QCOMPARE(model.lineNo(group), -1);
    QCOMPARE(model.parent(value), model.index(0, 0));
    document.reparse();
    QVERIFY(!model.parent(value).isValid());
    QCOMPARE(model.lineNo(value), -1);
}

void TestCodeItemModel::documentDies()
{
    auto document = std::make_unique<GrammarDocument>(QStringLiteral("[1]\na=1"));
    CodeItemModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setDocument(document.get());
    const QModelIndex group = model.index(0, 0);
    document.reset();
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.rowCount(group), 0);
    QVERIFY(!model.document());
}

QTEST_MAIN(TestCodeItemModel)
#include "tst_codeitemmodel.moc"
