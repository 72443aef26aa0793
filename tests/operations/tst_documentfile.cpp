#include "operations/documentfile.h"

#include "family/familydocument.h"
#include "family/nodepath.h"
#include "operations/hostinterface.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testtable.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Family;
using namespace Operations;
using Zorv::TextCodecs;

namespace {

const char* const unfaithfulText = "[info]\r\nname = \"caf\xe9\"\r\nauthor = \"\xc3\xbc\"\r\n";

}  // namespace

class TestDocumentFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void encodingIsOffered_data();
    void encodingIsOffered();
    void missingCharacter_data();
    void missingCharacter();
    void failedSaveKeepsEverything();
    void settingsAreTypedAndFallBack();

private:
    QString write(const QByteArray& data);
    QByteArray content() const { return readFile(m_file); }
    std::unique_ptr<FamilyDocument> open(const char* codec);

    HostInterface m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void TestDocumentFile::init()
{
    startHost(&m_host);
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("hero.character");
}

QString TestDocumentFile::write(const QByteArray& data)
{
    return writeFile(m_file, data) ? m_file : QString();
}

std::unique_ptr<FamilyDocument> TestDocumentFile::open(const char* codec)
{
    QString error;
    return std::unique_ptr<FamilyDocument>(
        openDocument(m_file, codec ? TextCodecs::index(codec) : -1, &error));
}

void TestDocumentFile::encodingIsOffered_data()
{
    columns<QByteArray, int, bool>("data", "answer", "faithful");
    QTest::newRow("accepted") << QByteArray(unfaithfulText) << 0 << true;
    QTest::newRow("refused") << QByteArray(unfaithfulText) << 1 << false;
    QTest::newRow("given up") << QByteArray(unfaithfulText) << -1 << false;
    // The codec gives this back, but a document makes a line end of it.
    QTest::newRow("paragraph separator") << QByteArray("# \xe2\x80\xa9\r\n") << 0 << true;
}

void TestDocumentFile::encodingIsOffered()
{
    const auto [data, answer, faithful] = fetched<QByteArray, int, bool>();
    write(data);
    const auto document = open("UTF-8");
    PlannedDialogs dialogs;
    dialogs.choiceAnswers = {answer};

    QCOMPARE(ensureFaithful(document.get()), faithful);
    QCOMPARE(dialogs.count("choose"), 1);
    QCOMPARE(document->toData() == data, faithful);
    QCOMPARE(ensureFaithful(document.get()), faithful);
    QCOMPARE(dialogs.count(), faithful ? 1 : 2);
}

void TestDocumentFile::missingCharacter_data()
{
    columns<int, int, QString>("answer", "outcome", "codec");
    QTest::newRow("as UTF-8") << 0 << int(Saved::Done) << "UTF-8";
    QTest::newRow("do not save") << 1 << int(Saved::GivenUp) << "windows-1252";
    QTest::newRow("given up") << -1 << int(Saved::GivenUp) << "windows-1252";
}

void TestDocumentFile::missingCharacter()
{
    QFETCH(int, answer);
    QFETCH(int, outcome);
    QFETCH(QString, codec);
    const QByteArray old = "[info]\r\n\r\nname = \"caf\xe9\"\r\n";
    write(old);
    const auto document = open("windows-1252");
    QString error;
    QVERIFY(setValue(document.get(), "info.name", QString::fromUtf8("é あ"), &error));
    PlannedDialogs dialogs;
    dialogs.choiceAnswers = {answer};
    dialogs.whileOpen = [&](const PlannedDialogs::Shown& shown) {
        QCOMPARE(content(), old);
        QVERIFY2(shown.text.contains("line 3") && shown.text.contains("U+3042"),
                 qPrintable(shown.text));
    };

    QCOMPARE(int(saveDocument(document.get(), m_file, &error)), outcome);
    QCOMPARE(dialogs.count("choose"), 1);
    QCOMPARE(document->codecName(), codec);
    QCOMPARE(document->isModified(), outcome != int(Saved::Done));
    QCOMPARE(content(),
             outcome == int(Saved::Done) ? QByteArray("[info]\r\n\r\nname = \"é あ\"\r\n") : old);
}

// The encoding that was chosen for a save that failed is not that of the file.
void TestDocumentFile::failedSaveKeepsEverything()
{
    write("[info]\r\nname = \"caf\xe9\"\r\n");
    const auto document = open("windows-1252");
    QString error;
    QVERIFY(setValue(document.get(), "info.name", QString::fromUtf8("あ"), &error));
    PlannedDialogs dialogs;
    dialogs.choiceAnswers = {0};
    QVERIFY(QDir().mkpath(m_folder->filePath("folder")));

    QCOMPARE(saveDocument(document.get(), m_folder->filePath("folder"), &error), Saved::Failed);
    QVERIFY2(error.contains("folder"), qPrintable(error));
    QVERIFY(document->isModified());
    QVERIFY(!document->isWatchPaused());
    QCOMPARE(document->codecName(), "windows-1252");
    QCOMPARE(document->fileName(), QFileInfo(m_file).absoluteFilePath());
}

void TestDocumentFile::settingsAreTypedAndFallBack()
{
    QSettings settings(m_folder->filePath("settings.ini"), QSettings::IniFormat);
    settings.setValue("highlightCode", "false");
    settings.setValue("back_start", "no colour at all");
    HostInterface host(&settings);
    QCOMPARE(host.option("highlightCode"), QVariant(false));
    QCOMPARE(host.option("parseCode"), QVariant(true));
    QVERIFY(host.colorOption("back_start").isValid());
    QVERIFY(!host.option("nobody knows").isValid());
    host.setOption("highlightCode", QVariant());
    QCOMPARE(host.option("highlightCode"), QVariant(true));
}

QTEST_MAIN(TestDocumentFile)
#include "tst_documentfile.moc"
