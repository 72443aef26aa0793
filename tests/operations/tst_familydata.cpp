#include "family/completer/completerfile.h"
#include "family/project/familyenginemodel.h"
#include "operations/familydata.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <zorv/core/files.h>

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;
using namespace Operations;

namespace {

const QString snippet = QStringLiteral("snippets/Attack.xml");

}  // namespace

class TestFamilyData : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->path()));
    }

    void emptyFolderIsFilled()
    {
        prepare();
        QCOMPARE(QDir(path("snippets")).entryList(QDir::Files),
                 QDir(QStringLiteral(ZORV_SNIPPETS)).entryList(QDir::Files));
        QCOMPARE(read(snippet), read(QStringLiteral(ZORV_SNIPPETS "/Attack.xml")));
        QCOMPARE(read(completerFileName()), completerXml());
    }

    void personsSnippetsStayAsTheyAre()
    {
        write(snippet, "my own");
        prepare();
        QCOMPARE(read(snippet), QByteArray("my own"));
        const QString deleted = QStringLiteral("snippets/Throw.xml");
        const QString changed = QStringLiteral("snippets/Music.xml");
        QVERIFY(QFile::remove(path(deleted)));
        write(changed, "changed");
        write(QStringLiteral("snippets/Other.xml"), "new");
        prepare();
        QVERIFY(!QFile::exists(path(deleted)));
        QCOMPARE(read(changed), QByteArray("changed"));
        QCOMPARE(read(QStringLiteral("snippets/Other.xml")), QByteArray("new"));
    }

    // The record says that another version was put there before.
    void newVersionTakesThePlaceOfTheOldOne_data()
    {
        columns<QByteArray, bool>("found", "isReplaced");
        QTest::newRow("as it was put there") << QByteArray("old version") << true;
        QTest::newRow("changed") << QByteArray("old version, changed") << false;
        QTest::newRow("deleted") << QByteArray() << false;
    }

    void newVersionTakesThePlaceOfTheOldOne()
    {
        const auto [found, isReplaced] = fetched<QByteArray, bool>();
        const auto hash = QCryptographicHash::hash("old version", QCryptographicHash::Sha256);
        write(QStringLiteral("shipped"), hash.toHex() + ' ' + snippet.toUtf8() + '\n');
        if (!found.isEmpty()) {
            write(snippet, found);
        }
        const QByteArray expected =
            isReplaced ? read(QStringLiteral(ZORV_SNIPPETS "/Attack.xml")) : read(snippet);
        for (int start = 0; start < 2; ++start) {
            prepare();
            QCOMPARE(read(snippet), expected);
        }
    }

    void completerIsOursUntilThePersonEditsIt_data()
    {
        columns<QByteArray, bool>("found", "isReplaced");
        QTest::newRow("that of another version")
            << QByteArray("<completer version=\"1\" origin=\"zorv\"/>") << true;
        QTest::newRow("the person's") << QByteArray("<completer version=\"1\"/>") << false;
        QTest::newRow("broken") << QByteArray("<completer") << false;
    }

    void completerIsOursUntilThePersonEditsIt()
    {
        const auto [found, isReplaced] = fetched<QByteArray, bool>();
        write(completerFileName(), found);
        prepare();
        QCOMPARE(read(completerFileName()), isReplaced ? completerXml() : found);
    }

    void placeThatTakesNothingIsTold()
    {
        write(QStringLiteral("snippets"), "a file");
        QString error;
        QVERIFY(!prepareFamilyData(&error));
        QVERIFY2(error.contains(QLatin1String("snippets/")), qPrintable(error));
        QCOMPARE(read(completerFileName()), completerXml());
        // What failed is tried again.
        QVERIFY(QFile::remove(path("snippets")));
        prepare();
        QVERIFY(QFile::exists(path(snippet)));
    }

private:
    static QString path(const QString& name)
    {
        return QDir(FamilyEngineModel::instance()->dataPath()).filePath(name);
    }

    static void prepare()
    {
        QString error;
        QVERIFY2(prepareFamilyData(&error), qPrintable(error));
    }

    static QByteArray read(const QString& name) { return readFile(path(name)); }

    static void write(const QString& name, const QByteArray& bytes)
    {
        QVERIFY(writeFile(path(name), bytes));
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

QTEST_GUILESS_MAIN(TestFamilyData)
#include "tst_familydata.moc"
