#include "operations/nodetree.h"

#include "family/familydocument.h"
#include "family/nodepath.h"
#include "operations/documentfile.h"
#include "operations/hostinterface.h"

#include <zorv/code/codedoc/parentcode.h>

#include <QDirIterator>
#include <QtTest>
#include <memory>

using namespace Family;
using namespace Operations;

// Every code file of the samples, the sound ones and the broken ones.
class TestNodeTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void everyNodeOnceUnderItsOwner_data() { addSamples(); }
    void everyNodeOnceUnderItsOwner();
    void everyPathIsRead_data() { addSamples(); }
    void everyPathIsRead();

private:
    void addSamples();
    std::unique_ptr<FamilyDocument> open(const QString& fileName);

    HostInterface m_host;
};

void TestNodeTree::addSamples()
{
    QTest::addColumn<QString>("fileName");
    const QStringList filters{"*.character", "*.stage", "*.code", "*.anim", "*.commands"};
    QDirIterator files(ZORV_SAMPLES, filters, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString fileName = files.next();
        QTest::newRow(qPrintable(fileName.mid(int(strlen(ZORV_SAMPLES)) + 1))) << fileName;
    }
}

std::unique_ptr<FamilyDocument> TestNodeTree::open(const QString& fileName)
{
    QString error;
    return std::unique_ptr<FamilyDocument>(openDocument(fileName, -1, &error));
}

void TestNodeTree::everyNodeOnceUnderItsOwner()
{
    QFETCH(QString, fileName);
    const auto document = open(fileName);
    QVERIFY(document);
    QSet<const Zorv::CodeNode*> waiting;
    const auto* root = static_cast<const Zorv::CodeNode*>(document.get());
    for (const Zorv::CodeNode* node = root->next(); node; node = node->next()) {
        waiting.insert(node);
    }
    QVector<const Zorv::CodeNode*> owners;
    int lastTopLine = -1;
    const QVector<TreeEntry> tree = nodeTree(document.get());
    for (const TreeEntry& entry : tree) {
        QVERIFY(waiting.remove(entry.node));
        QVERIFY(entry.depth <= owners.size());
        owners.resize(entry.depth);
        owners.append(entry.node);
        const Zorv::ParentCode* parent = entry.node->parentCode();
        if (parent && parent->type() != Zorv::CodeNode::Root) {
            QVERIFY(entry.depth > 0);
            QCOMPARE(owners[entry.depth - 1], parent);
        }
        if (entry.depth == 0) {
            QVERIFY(entry.node->block().blockNumber() > lastTopLine);
            lastTopLine = entry.node->block().blockNumber();
        }
        QCOMPARE(nodeKind(entry.node) == "box" && entry.depth > 0,
                 entry.depth > 0 && nodeKind(owners[entry.depth - 1]) == "frame");
    }
    QVERIFY(waiting.isEmpty());
}

// Each path leads back to its node and gives a text; a value that is written as it
// was read leaves the text alone.
void TestNodeTree::everyPathIsRead()
{
    QFETCH(QString, fileName);
    const auto document = open(fileName);
    QVERIFY(document);
    const QString text = document->text();
    const bool isSound = !fileName.contains("/broken/");
    const auto paths = nodePaths(document.get());
    const QVector<TreeEntry> tree = nodeTree(document.get());
    for (const TreeEntry& entry : tree) {
        const QString path = paths.value(entry.node);
        QString error;
        if (path.isEmpty()) {
            continue;
        }
        QCOMPARE(nodeAt(document.get(), path), entry.node);
        QVERIFY2(!textAt(document.get(), path, &error).isNull(), qPrintable(path + error));
        const QString value = getValue(document.get(), path, &error);
        if (isSound && !value.isNull()) {
            QVERIFY2(setValue(document.get(), path, value, &error), qPrintable(path + error));
        }
    }
    QVERIFY(document->text() == text);
    QVERIFY(!document->isModified());
}

QTEST_MAIN(TestNodeTree)
#include "tst_nodetree.moc"
