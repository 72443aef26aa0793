#include "operations/agreements.h"

#include "family/project/familyenginemodel.h"
#include "family/project/familyparentproject.h"
#include "operations/backups.h"
#include "operations/settingsformat.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testtable.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using namespace Family;
using namespace Operations;

namespace {

using Change = std::function<bool(const QString& game)>;

}  // namespace

Q_DECLARE_METATYPE(Agreement)
Q_DECLARE_METATYPE(Change)

class TestAgreements : public QObject
{
    Q_OBJECT

private slots:
    void holdsForOneFileAsItIs_data();
    void holdsForOneFileAsItIs();
    void nothingIsWrittenThroughLinks();
};

void TestAgreements::holdsForOneFileAsItIs_data()
{
    columns<Change, Agreement, bool>("change", "then", "mayStart");
    const auto player = [](const QString& game) { return game + "/zorv-player"; };
    QTest::newRow("nothing") << Change([](const QString&) { return true; }) << Agreement::Given
                             << true;
    QTest::newRow("written again")
        << Change([=](const QString& game) { return writeFile(player(game), "one"); })
        << Agreement::Given << true;
    QTest::newRow("another content")
        << Change([=](const QString& game) { return writeFile(player(game), "two"); })
        << Agreement::Outdated << false;
    QTest::newRow("a link to another content") << Change([=](const QString& game) {
        return writeFile(game + "/other", "two") && QFile::remove(player(game)) &&
               QFile::link(game + "/other", player(game));
    }) << Agreement::Outdated << false;
    QTest::newRow("a link to the same content") << Change([=](const QString& game) {
        return QFile::rename(player(game), game + "/other") &&
               QFile::link(game + "/other", player(game));
    }) << Agreement::Given << true;
    QTest::newRow("another folder") << Change([=](const QString& game) {
        return QFile::rename(game, game + "2") && QFile::link(game + "2", game);
    }) << Agreement::None << false;
    QTest::newRow("too large") << Change([=](const QString& game) {
        return QFile::resize(player(game), qint64(3) << 30);
    }) << Agreement::None << false;
}

void TestAgreements::holdsForOneFileAsItIs()
{
    QFETCH(Change, change);
    QTemporaryDir folder;
    PlannedDialogs dialogs;
    QSettings settings(folder.filePath("settings.ini"), settingsFormat());
    const QString game = folder.filePath("game");
    QVERIFY(writeFile(game + "/zorv-player", "one"));
    QVERIFY(writeFile(game + "/hero.character", "[info]\r\n"));
    const GameProgram program(game);
    QCOMPARE(int(agreementTo(program, settings)), int(Agreement::None));
    QVERIFY(agreeTo(program, settings));
    FamilyParentProject tree(game);
    QVERIFY(!tree.isGame());
    const NamedProgram named(program);
    QVERIFY(tree.isGame());
    QVERIFY(change(game));
    const bool mayStart = tree.mayStart(game + "/zorv-player");
    QTEST(mayStart, "mayStart");
    QCOMPARE(dialogs.count(), mayStart ? 0 : 1);
    QVERIFY(tree.mayStart("/bin/true"));
    QSettings again(folder.filePath("settings.ini"), settingsFormat());
    QFETCH(Agreement, then);
    QCOMPARE(int(agreementTo(GameProgram(game), again)), int(then));
}

void TestAgreements::nothingIsWrittenThroughLinks()
{
    for (const bool isThere : {true, false}) {
        for (const char* link :
             {"characters", "characters/hero", "characters/hero/hero.character"}) {
            QTemporaryDir folder;
            const QString game = folder.filePath("game/");
            QVERIFY(writeFile(game + "backup/1/characters/hero/hero.character", "[info]\r\n"));
            const QString outside = folder.filePath("outside");
            QVERIFY(!isThere || QDir().mkpath(outside));
            QVERIFY(QDir().mkpath(QFileInfo(game + link).path()));
            QVERIFY(QFile::link(outside, game + link));
            FamilyParentProject tree(game);
            const BackupResult result = restoreBackup(&tree, "1", false);
            QVERIFY2(result.error.contains("hero.character"), qPrintable(result.error));
            QVERIFY(!QFileInfo::exists(outside) || QDir(outside).isEmpty());
        }
    }
}

QTEST_GUILESS_MAIN(TestAgreements)
#include "tst_agreements.moc"
