// The sample game in itself: that its moves fit together, that it shows the whole grammar, and
// that its files are those that the tables make.

#include "family/grammar/grammar.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"
#include "samplefiles.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

using namespace Family;
using Zorv::CodeNode;
using Zorv::TextCodecs;

namespace {

using Visit = std::function<void(const GroupNode*, const ValueNode*)>;

void visitValues(const Zorv::ParentCode* parent, const Visit& visit)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        CodeNode* child = parent->childAt(unsigned(i));
        if (auto* group = dynamic_cast<GroupNode*>(child)) {
            visit(group, nullptr);
            visitValues(group, visit);
        } else if (auto* value = dynamic_cast<ValueNode*>(child)) {
            visit(static_cast<const GroupNode*>(parent), value);
        }
    }
}

/// All values of the files below a folder, and of the shared ones.
void visitFighter(const QString& folder, const Visit& visit)
{
    QStringList files{gameFolder("arena/shared/common.code")};
    for (const QString& name : codeFiles(folder)) {
        files += folder + '/' + name;
    }
    for (const QString& fileName : qAsConst(files)) {
        const auto document = openSample(fileName);
        QVERIFY(document);
        visitValues(document.get(), visit);
    }
}

}  // namespace

class TestSampleMoves : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void movesFitTogether_data();
    void movesFitTogether();
    void everyKeyIsUsed();
    void everyWordOfFramesIsUsed();
    void scriptMakesTheFiles();
};

void TestSampleMoves::initTestCase()
{
    TextCodecs::setDefaultCodec(TextCodecs::index("UTF-8"));
}

void TestSampleMoves::movesFitTogether_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("maren") << gameFolder("arena/characters/maren");
    QTest::newRow("iwao") << gameFolder("arena/characters/iwao");
}

void TestSampleMoves::movesFitTogether()
{
    QFETCH(QString, folder);

    QSet<QString> commands, moves, usedCommands, usedMoves;
    visitFighter(folder, [&](const GroupNode* group, const ValueNode* value) {
        const QLatin1String kind = group->info()->name;
        if (!value) {
            if (kind == QLatin1String("move")) {
                moves += group->name();
            }
        } else if (kind == QLatin1String("commands")) {
            commands += value->name();
        } else if (value->name() == QLatin1String("command")) {
            usedCommands += value->text();
        } else if (value->name() == QLatin1String("cancels")) {
            usedMoves += value->text();
        }
    });
    QVERIFY(moves.size() > 20);
    QCOMPARE(usedMoves - moves, QSet<QString>());
    QCOMPARE(usedCommands - commands, QSet<QString>());
    // Two ways of moving that have no move of their own.
    QCOMPARE(commands - usedCommands, QSet<QString>({"run", "hop-back"}));
}

void TestSampleMoves::everyKeyIsUsed()
{
    QSet<QString> used;
    for (const QString& name : codeFiles(gameFolder("arena"))) {
        const auto document = openSample(gameFolder("arena/") + name);
        QVERIFY(document);
        visitValues(document.get(), [&](const GroupNode* group, const ValueNode* value) {
            used += value ? QStringLiteral("%1 %2").arg(group->info()->number).arg(value->name())
                          : QString::number(group->info()->number);
        });
    }
    QStringList missing;
    for (const GroupInfo* group : Grammar::groups()) {
        if (group->isDeprecated() || group->isUnknown()) {
            continue;
        }
        if (!used.contains(QString::number(group->number))) {
            missing += group->name;
        }
        for (const KeyInfo& key : *group) {
            const QString name = QStringLiteral("%1 %2").arg(group->number).arg(key.name);
            if (!key.isDeprecated() && key.name.size() > 0 && !used.contains(name)) {
                missing += QStringLiteral("%1.%2").arg(group->name, key.name);
            }
        }
    }
    QCOMPARE(missing, QStringList());
}

void TestSampleMoves::everyWordOfFramesIsUsed()
{
    QString all;
    for (const QString& name : codeFiles(gameFolder("arena"))) {
        const auto document = openSample(gameFolder("arena/") + name);
        QVERIFY(document);
        all += document->text();
    }
    QStringList patterns;
    for (const QString& word : Grammar::keywords()) {
        patterns += QStringLiteral("^\\s*%1 \\S").arg(word);
    }
    QStringList options = Grammar::frameOptions();
    options += {"flip h", "flip v", "flip hv", "delay -1"};
    for (const QString& option : qAsConst(options)) {
        patterns += QStringLiteral("^\\s*frame [^#\n]*  %1( |$)").arg(option);
    }
    for (const QString& pattern : qAsConst(patterns)) {
        const QRegularExpression found(pattern, QRegularExpression::MultilineOption);
        QVERIFY2(all.contains(found), qPrintable(pattern));
    }
}

/// Each file that the script writes has the bytes of the one that is kept.
void TestSampleMoves::scriptMakesTheFiles()
{
    const QString python = QStandardPaths::findExecutable("python3");
    if (python.isEmpty()) {
        QSKIP("no python3 here");
    }
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    QCOMPARE(QProcess::execute(python, {gameFolder("make_samples.py"), folder.path()}), 0);
    int count = 0;
    QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder.path()).relativeFilePath(path);
        QVERIFY2(bytesOf(path) == bytesOf(gameFolder("arena/") + name), qPrintable(name));
        ++count;
    }
    QCOMPARE(count, 23);
}

QTEST_MAIN(TestSampleMoves)
#include "tst_sample_moves.moc"
