#include "operations/engines.h"

#include "family/project/familyenginemodel.h"
#include "operations/settingsformat.h"
#include "support/testtable.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;
using namespace Operations;
using Zorv::EngineInfo;

namespace {

QStringList texts(const QVector<EngineInfo>& engines)
{
    QStringList list;
    for (const EngineInfo& engine : engines) {
        list << engine.name << engine.executable << engine.parameters << engine.icon;
    }
    return list;
}

}  // namespace

class TestEngines : public QObject
{
    Q_OBJECT

private slots:
    void listsComeBack();
    void settingsOfAnyKind_data();
    void settingsOfAnyKind();
    void problems_data();
    void problems();

private:
    QTemporaryDir m_dir;
};

void TestEngines::listsComeBack()
{
    const QString fileName = m_dir.filePath("engines.conf");
    const QVector<EngineInfo> engines = {
        {"Fight", "/games/a b/fight.exe", "-p1 %1  -s \"%2\", x=1;\\", "/games/fight.png"},
        {"Übung %0", "relative", "", ""},
        {"", "", "@Invalid()", ""}};
    QSettings settings(fileName, settingsFormat());
    for (const auto& list : {engines, engines.mid(1, 1), QVector<EngineInfo>(), engines}) {
        QVERIFY(saveEngines(settings, list));
        QSettings again(fileName, settingsFormat());
        QCOMPARE(texts(loadEngines(again)), texts(list));
        // Nothing of a longer list is left.
        QCOMPARE(again.allKeys().size(), list.size() * 4 + 1);
    }
    useEngines(settings);
    QCOMPARE(texts(FamilyEngineModel::instance()->engines()), texts(engines));
    QCOMPARE(FamilyEngineModel::instance()->engine(1).executable,
             QDir::home().filePath("relative"));
    useEngines(*std::make_unique<QSettings>(m_dir.filePath("none"), settingsFormat()));
    QCOMPARE(FamilyEngineModel::instance()->engineCount(), 0);
}

void TestEngines::settingsOfAnyKind_data()
{
    columns<QByteArray, int>("text", "count");
    row("none", QByteArray(), 0);
    row("negative", QByteArray("[engines]\nsize=-5\n1\\name=a\n"), 0);
    row("no number", QByteArray("[engines]\nsize=many\n1\\name=a\n"), 0);
    row("too many", QByteArray("[engines]\nsize=2000000000\n1\\name=a\n"), MaxEngines);
    row("damaged", QByteArray("nothing\n[engines\nsize=2\n1\\name=a\n"), 2);
    row("gaps", QByteArray("[engines]\nsize=3\n3\\name=a\n"), 3);
}

void TestEngines::settingsOfAnyKind()
{
    const auto [text, count] = fetched<QByteArray, int>();
    QFile file(m_dir.filePath("any.conf"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    QSettings settings(file.fileName(), settingsFormat());
    settings.sync();
    QCOMPARE(loadEngines(settings).size(), count);
}

void TestEngines::problems_data()
{
    columns<QString, QString, QString, QString>("name", "executable", "parameters", "part");
    const QString program = QCoreApplication::applicationFilePath();
    row("fine", "a", program, "-x %12", "");
    row("default", "a", program, defaultEngineParameters(), "");
    row("no name", " ", program, "%0", "no name");
    row("no program", "a", "", "%0", "'a'");
    row("missing", "a", "/no/such", "%0", "'/no/such'");
    row("not whole", "a", "fight", "%0", "'fight' is another program in each folder");
    row("folder", "a", "/", "%0", "'/'");
    row("no mark", "%2", program, "50% %x", "'%2' ask for no project");
}

void TestEngines::problems()
{
    const auto [name, executable, parameters, part] = fetched<QString, QString, QString, QString>();
    const QString problem = engineProblem({name, executable, parameters, {}});
    QCOMPARE(problem.isEmpty(), part.isEmpty());
    QVERIFY2(problem.contains(part), qPrintable(problem));
}

QTEST_GUILESS_MAIN(TestEngines)
#include "tst_engines.moc"
