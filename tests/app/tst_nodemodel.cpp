#include "app/code/nodemodel.h"

#include "family/familydocument.h"
#include "family/nodepath.h"
#include "operations/hostinterface.h"
#include "support/testtable.h"

#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/code/codedoc/framecode.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTest>
#include <QTextBlock>
#include <QTreeView>
#include <algorithm>

using App::NodeModel;
using Family::FamilyDocument;
using Zorv::CodeNode;

namespace {

constexpr quint32 Seed = 20240531;

/// What the model has to show, read from the document alone.
void appendExpected(const CodeNode* node, int depth, QStringList* lines)
{
    if (node->type() != CodeNode::Root) {
        const QString label = Family::nodeLabel(node);
        lines->append(QString(depth - 1, QLatin1Char(' ')) +
                      (label.isEmpty() ? node->block().text().trimmed() : label));
    }
    if (node->type() == CodeNode::Frame) {
        QMap<int, QString> boxes;
        const auto* frame = static_cast<const Zorv::FrameCode*>(node);
        for (const auto type : {Zorv::ContactBoxCode::Attack, Zorv::ContactBoxCode::Collision}) {
            const Zorv::ContactBoxesCode* list = frame->contactBoxes(type);
            for (int i = 0; i < list->count(); ++i) {
                const int line = list->at(i)->line();
                boxes[line] = Family::nodeLabel(
                    node->document()->nodeInBlock(node->document()->findBlockByNumber(line)));
            }
        }
        for (const QString& box : qAsConst(boxes)) {
            lines->append(QString(depth, QLatin1Char(' ')) + box);
        }
    } else if (node->type() != CodeNode::Value) {
        const auto* parent = static_cast<const Zorv::ParentCode*>(node);
        for (int i = 0; i < parent->childCount(); ++i) {
            appendExpected(parent->childAt(unsigned(i)), depth + 1, lines);
        }
    }
}

QStringList expected(const FamilyDocument* document)
{
    QStringList lines;
    appendExpected(document, 0, &lines);
    return lines;
}

void appendShown(const NodeModel& model, const QModelIndex& parent, int depth, QStringList* lines)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        lines->append(QString(depth, QLatin1Char(' ')) + index.data().toString());
        appendShown(model, index, depth + 1, lines);
    }
}

QStringList shown(const NodeModel& model)
{
    QStringList lines;
    appendShown(model, {}, 0, &lines);
    return lines;
}

const char* const SomeText = "[info]\n"
                             "name = \"Ryn\"\n"
                             "[constants]\n"
                             "life = 1000\n"
                             "[.walk]\n"
                             "forward = 2.5\n"
                             "animation 1 \"One\"\n"
                             "body 0,0, 9,9\n"
                             "attack 1,1, 2,2\n"
                             "frame 0,0\n"
                             "frame 0,1 loop\n"
                             "animation 2\n"
                             "frame 0,2\n";

}  // namespace

class TestNodeModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Operations::startHost(&m_host); }

    void showsTheTree();
    void findsLines_data();
    void findsLines();
    void equalsTheDocumentAfterRandomEdits_data();
    void equalsTheDocumentAfterRandomEdits();

private:
    Operations::HostInterface m_host;
};

void TestNodeModel::showsTheTree()
{
    FamilyDocument document(Family::FileKind::Character);
    document.fromString(SomeText);
    NodeModel model;
    const QAbstractItemModelTester tester(&model);
    model.setDocument(&document);
    QCOMPARE(shown(model), expected(&document));
    QCOMPARE(shown(model).size(), document.blockCount() - 1);
    model.setDocument(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void TestNodeModel::findsLines_data()
{
    columns<int, QVector<int>>("line", "path");
    QTest::newRow("group") << 0 << QVector<int>{0};
    QTest::newRow("value") << 1 << QVector<int>{0, 0};
    QTest::newRow("sub-group") << 4 << QVector<int>{1, 1};
    QTest::newRow("value of a sub-group") << 5 << QVector<int>{1, 1, 0};
    QTest::newRow("animation") << 6 << QVector<int>{2};
    QTest::newRow("first box") << 7 << QVector<int>{2, 0, 0};
    QTest::newRow("second box") << 8 << QVector<int>{2, 0, 1};
    QTest::newRow("frame") << 10 << QVector<int>{2, 1};
    QTest::newRow("empty line at the end") << 13 << QVector<int>{3, 0};
    QTest::newRow("behind the end") << 99 << QVector<int>{};
}

void TestNodeModel::findsLines()
{
    auto [line, path] = fetched<int, QVector<int>>();
    FamilyDocument document(Family::FileKind::Character);
    document.fromString(SomeText);
    NodeModel model;
    model.setDocument(&document);
    QModelIndex index = model.indexInLine(line);
    QCOMPARE(index.isValid(), !path.isEmpty());
    if (index.isValid()) {
        QCOMPARE(model.lineNo(index), std::min(line, 12));
    }
    while (!path.isEmpty()) {
        QCOMPARE(index.row(), path.takeLast());
        index = index.parent();
    }
    QVERIFY(!index.isValid());
}

void TestNodeModel::equalsTheDocumentAfterRandomEdits_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 i = 0; i < 6; ++i) {
        QTest::addRow("seed %u", Seed + i) << Seed + i;
    }
}

/// Edits of all kinds; the model is asked while it is stale, with a view on it
/// whose branches open and close, and compared when it is not.
void TestNodeModel::equalsTheDocumentAfterRandomEdits()
{
    QFETCH(quint32, seed);
    static const QStringList pool{"[info]",
                                  "[constants]",
                                  "[.walk]",
                                  "[move jab]",
                                  "life = 1000",
                                  "name = \"x\"",
                                  "forward = 1",
                                  "animation 7",
                                  "animation 8 \"Eight\"",
                                  "frame 0,0",
                                  "frame 3,4 loop",
                                  "body 0,0, 1,1",
                                  "attack 2,2, 3,3",
                                  "# nothing",
                                  "",
                                  "animation \"No number\"",
                                  "unknown line"};
    QRandomGenerator random(seed);
    FamilyDocument document(Family::FileKind::Character);
    document.fromString(SomeText);
    NodeModel model;
    const QAbstractItemModelTester tester(&model);
    QTreeView view;
    view.setModel(&model);
    model.setDocument(&document);
    for (int step = 0; step < 150; ++step) {
        QTextCursor cursor(document.findBlockByNumber(random.bounded(document.blockCount())));
        switch (random.bounded(7)) {
        case 0:
        case 1:
            cursor.insertText(pool[random.bounded(pool.size())] + QLatin1Char('\n'));
            break;
        case 2:
            cursor.select(QTextCursor::LineUnderCursor);
            cursor.insertText(pool[random.bounded(pool.size())]);
            break;
        case 3:
            cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, random.bounded(4));
            cursor.removeSelectedText();
            break;
        case 4:
            document.undo();
            break;
        case 5:
            document.redo();
            break;
        default:
            random.bounded(2) ? view.expandAll() : view.collapseAll();
        }
        shown(model);
        if (random.bounded(3) == 0) {
            model.refresh();
            QCOMPARE(shown(model), expected(&document));
        }
    }
}

QTEST_MAIN(TestNodeModel)
#include "tst_nodemodel.moc"
