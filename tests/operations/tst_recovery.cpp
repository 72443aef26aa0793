#include "family/familydocument.h"
#include "operations/hostinterface.h"
#include "operations/recovery/abandonedwork.h"
#include "operations/recovery/recoverykeeper.h"
#include "operations/recovery/sessionfolder.h"
#include "support/folders.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QtTest>

#include <memory>

#include <signal.h>
#include <sys/resource.h>

using namespace Family;
using namespace Operations;

namespace {

const char* const fileContent = "[info]\r\nname = \"J\xc3\xb6rn\"\r\n[constants]\r\nlife = 1\r\n";

RecoveryCopy someCopy()
{
    RecoveryCopy copy;
    copy.fileName = QStringLiteral("/games/a b/h%1.character");
    copy.mainFile = copy.fileName;
    copy.gameFolder = QStringLiteral("/games/a b/");
    copy.kind = FileKind::Character;
    copy.codec = QStringLiteral("UTF-8");
    copy.time = QDateTime::fromMSecsSinceEpoch(1700000000000);
    copy.stamp = {true, 12, QDateTime::fromMSecsSinceEpoch(1600000000000), QByteArray(32, 'h')};
    copy.text = QStringLiteral("one\n\u00e4 \u2028 ") + QChar(0xD83D) + QStringLiteral("\n");
    return copy;
}

QByteArray bytesOf(const RecoveryCopy& copy)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    copy.write(&buffer, [&copy](QIODevice* device) {
        return device->write(copy.assets) == copy.assets.size();
    });
    return buffer.data();
}

}  // namespace

/// A process that is killed is played by one that has left its folder: this
/// program, started as `tst_recovery leave ROOT` or `... hold ROOT`.
class TestRecovery : public QObject
{
    Q_OBJECT

public:
    /// What the program does when it is started as another process.
    static int runAsOther(const QString& task, const QString& root);

private slots:
    void init();
    void cleanup();
    void copyComesBackWhole();
    void damagedCopyIsNeverRead_data();
    void damagedCopyIsNeverRead();
    void unsavedTextSurvives();
    void copyGoesWithTheChanges();
    void fileThatChangedIsNotOverwritten_data();
    void fileThatChangedIsNotOverwritten();
    void textWithoutFileSurvives();
    void otherProcessKeepsItsCopies();
    void failureIsToldOnce();
    void fullDiskKeepsTheLastCopy();
    void applyingIsOneStep_data();
    void applyingIsOneStep();

private:
    QString root() const { return m_folder->filePath("recovery"); }
    std::unique_ptr<FamilyDocument> openFile();
    QString leaveCopy();

    HostInterface m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void TestRecovery::init()
{
    startHost(&m_host);
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("hero.character");
    QVERIFY(writeFile(m_file, fileContent));
}

void TestRecovery::cleanup()
{
    QFile::setPermissions(root(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

std::unique_ptr<FamilyDocument> TestRecovery::openFile()
{
    return std::unique_ptr<FamilyDocument>(FamilyDocument::open(m_file, nullptr));
}

/// Leaves a session as a killed process does: a lock of nobody, and one copy.
QString TestRecovery::leaveCopy()
{
    const QString folder = root() + "/dead/";
    QDir().mkpath(folder);
    RecoveryKeeper keeper(root());
    const auto document = openFile();
    keeper.watch(document.get());
    QTextCursor(document.get()).insertText("; typed\n");
    const bool isCopied = keeper.flush();
    const QString copy = folder + "1.zorvcopy";
    return isCopied && QFile::copy(keeper.folder() + "1.zorvcopy", copy) ? copy : QString();
}

void TestRecovery::copyComesBackWhole()
{
    const RecoveryCopy copy = someCopy();
    RecoveryCopy read;
    QString error;
    QVERIFY2(read.fromBytes(bytesOf(copy), &error), qPrintable(error));
    QCOMPARE(bytesOf(read), bytesOf(copy));
    QCOMPARE(read.text, copy.text);
    QCOMPARE(read.stamp.hash, copy.stamp.hash);
    QCOMPARE(read.time, copy.time);
}

void TestRecovery::damagedCopyIsNeverRead_data()
{
    QTest::addColumn<QString>("damage");
    for (const char* damage : {"cut", "flipped", "longer"}) {
        row(damage, QString(damage));
    }
}

void TestRecovery::damagedCopyIsNeverRead()
{
    QFETCH(QString, damage);
    const QByteArray whole = bytesOf(someCopy());
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        if (damage == "cut") {
            bytes.truncate(at);
        } else if (damage == "flipped") {
            bytes[at] = char(bytes.at(at) ^ (1 << at % 8));
        } else {
            bytes.append(QByteArray(at + 1, '\0'));
        }
        RecoveryCopy read;
        QString error;
        QVERIFY2(!read.fromBytes(bytes, &error), qPrintable(QString::number(at)));
        QVERIFY(!error.isEmpty());
        QVERIFY(read.text.isEmpty() && read.fileName.isEmpty());
    }
}

void TestRecovery::unsavedTextSurvives()
{
    const QString copy = leaveCopy();
    const QString other = root() + "/dead/2.zorvcopy";
    QVERIFY(writeFile(other, readFile(copy).chopped(1)));
    QVERIFY(writeFile(root() + "/dead/notes.txt", "not ours"));
    const AbandonedWorks found(root());
    QCOMPARE(found.all().size(), 2);
    const AbandonedWork text = found.all().first();
    QCOMPARE(text.state, AbandonedWork::Applicable);
    QCOMPARE(text.copy.fileName, m_file);
    QCOMPARE(found.all().last().state, AbandonedWork::Damaged);
    QVERIFY(found.all().last().copy.text.isEmpty());

    const auto document = openFile();
    applyText(document.get(), text.copy.text, text.copy.codec);
    QVERIFY(document->text().startsWith("; typed\n[info]"));
    QVERIFY(document->isModified());
    QCOMPARE(readFile(m_file), QByteArray(fileContent));
    QVERIFY(text.discard());
    QVERIFY(!QFile::exists(copy));
    QVERIFY(QFile::exists(root() + "/dead/notes.txt"));
}

void TestRecovery::copyGoesWithTheChanges()
{
    RecoveryKeeper keeper(root());
    keeper.setInterval(10);
    QSignalSpy copied(&keeper, &RecoveryKeeper::copied);
    auto document = openFile();
    keeper.watch(document.get());
    const auto copies = [&keeper] {
        return keeper.flush() ? QDir(keeper.folder()).entryList({"*.zorvcopy"}).size() : -1;
    };
    QTextCursor(document.get()).insertText("x");
    QTRY_COMPARE(copied.size(), 1);
    QCOMPARE(copies(), 1);

    document->undo();
    QCOMPARE(copies(), 0);
    QTextCursor(document.get()).insertText("y");
    QCOMPARE(copies(), 1);
    QVERIFY(document->toFile(*document->archive(), m_file, false));
    QCOMPARE(copies(), 0);
    QTextCursor(document.get()).insertText("z");
    QCOMPARE(copies(), 1);
    document->reload();
    QCOMPARE(copies(), 0);
    QTextCursor(document.get()).insertText("w");
    QCOMPARE(copies(), 1);
    document.reset();
    QCOMPARE(copies(), 0);
}

void TestRecovery::fileThatChangedIsNotOverwritten_data()
{
    columns<QByteArray, int>("now", "state");
    row("as it was", QByteArray(fileContent), int(AbandonedWork::Applicable));
    row("other size", QByteArray("[info]\r\n"), int(AbandonedWork::FileChanged));
    row("same size", QByteArray(fileContent).replace('1', '2'), int(AbandonedWork::FileChanged));
    row("gone", QByteArray(), int(AbandonedWork::FileGone));
    row("what the copy says", QByteArray("; typed\r\n") + fileContent, -1);
}

void TestRecovery::fileThatChangedIsNotOverwritten()
{
    const auto [now, state] = fetched<QByteArray, int>();
    const QString copy = leaveCopy();
    QVERIFY(now.isEmpty() ? QFile::remove(m_file) : writeFile(m_file, now));
    const AbandonedWorks found(root());
    QCOMPARE(found.all().size(), state < 0 ? 0 : 1);
    QCOMPARE(QFile::exists(copy), state >= 0);
    if (state < 0) {
        return;
    }
    QCOMPARE(int(found.all().first().state), state);
    QString error;
    const QString rescued = m_folder->filePath("rescued.character");
    QVERIFY(found.all().first().saveElsewhere(rescued, &error));
    QCOMPARE(readFile(rescued), "; typed\r\n" + QByteArray(fileContent));
}

void TestRecovery::textWithoutFileSurvives()
{
    RecoveryKeeper keeper(root());
    FamilyDocument document(FileKind::Animations);
    keeper.watch(&document);
    document.setPlainText(QStringLiteral("animation 7\n"));
    document.setModified(true);
    QVERIFY(keeper.flush());
    QDir().mkpath(root() + "/dead");
    QVERIFY(QFile::copy(keeper.folder() + "1.zorvcopy", root() + "/dead/1.zorvcopy"));
    const AbandonedWorks found(root());
    QCOMPARE(found.all().size(), 1);
    QCOMPARE(found.all().first().state, AbandonedWork::Applicable);
    QCOMPARE(found.all().first().copy.kind, FileKind::Animations);
    QCOMPARE(found.all().first().copy.text, QStringLiteral("animation 7\n"));
}

int TestRecovery::runAsOther(const QString& task, const QString& root)
{
    HostInterface host;
    startHost(&host);
    RecoveryKeeper keeper(root);
    FamilyDocument document(FileKind::Code);
    keeper.watch(&document);
    QTextCursor(&document).insertText(task);
    printf("%d\n", keeper.flush());
    fflush(stdout);
    if (task == QLatin1String("hold")) {
        getchar();
        return 0;
    }
    _Exit(1);
}

void TestRecovery::otherProcessKeepsItsCopies()
{
    QProcess holder;
    holder.start(QCoreApplication::applicationFilePath(), {"hold", root()});
    QVERIFY(holder.waitForReadyRead());
    QProcess killed;
    killed.start(QCoreApplication::applicationFilePath(), {"leave", root()});
    QVERIFY(killed.waitForFinished());
    {
        const AbandonedWorks found(root());
        QCOMPARE(found.all().size(), 1);
        QCOMPARE(found.all().first().copy.text, QStringLiteral("leave"));
        // Who has found them has them alone.
        QVERIFY(AbandonedWorks(root()).all().isEmpty());
        QVERIFY(found.all().first().discard());
    }
    QCOMPARE(QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    holder.kill();
    QVERIFY(holder.waitForFinished());
    QCOMPARE(AbandonedWorks(root()).all().size(), 1);
}

void TestRecovery::failureIsToldOnce()
{
    QVERIFY(writeFile(root(), "a file is in the way"));
    RecoveryKeeper keeper(root());
    keeper.setInterval(1);
    QSignalSpy failed(&keeper, &RecoveryKeeper::failed);
    const auto document = openFile();
    keeper.watch(document.get());
    for (int i = 0; i < 5; ++i) {
        QTextCursor(document.get()).insertText("x");
        QVERIFY(!keeper.flush());
    }
    QCOMPARE(failed.size(), 1);
    QVERIFY(QFile::remove(root()));
    QTRY_VERIFY(!keeper.folder().isEmpty());
    QVERIFY(keeper.flush());
}

/// A file that may not grow stands for a disk that is full.
void TestRecovery::fullDiskKeepsTheLastCopy()
{
    signal(SIGXFSZ, SIG_IGN);
    RecoveryKeeper keeper(root());
    QSignalSpy failed(&keeper, &RecoveryKeeper::failed);
    const auto document = openFile();
    keeper.watch(document.get());
    QTextCursor(document.get()).insertText("x");
    QVERIFY(keeper.flush());
    const QString copy = keeper.folder() + "1.zorvcopy";
    const QByteArray before = readFile(copy);
    rlimit old;
    getrlimit(RLIMIT_FSIZE, &old);
    for (const rlim_t size : {rlim_t(0), rlim_t(before.size() / 2)}) {
        const rlimit small{size, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        QTextCursor(document.get()).insertText("some more text");
        const bool isCopied = keeper.flush();
        setrlimit(RLIMIT_FSIZE, &old);
        QVERIFY(!isCopied);
        QCOMPARE(readFile(copy), before);
    }
    QCOMPARE(failed.size(), 1);
    QVERIFY(keeper.flush());
    QVERIFY(readFile(copy) != before);
    QCOMPARE(QDir(keeper.folder()).entryList(QDir::Files).size(), 2);
}

void TestRecovery::applyingIsOneStep_data()
{
    QTest::addColumn<QString>("text");
    row("in the middle", QStringLiteral("a\nX\nc\n"));
    row("repeated", QStringLiteral("a\na\nb\nc\n"));
    row("shorter", QStringLiteral("a\n"));
    row("nothing", QString());
    row("all else", QStringLiteral("1\n2\n"));
    row("the same", QStringLiteral("a\nb\nc\n"));
}

void TestRecovery::applyingIsOneStep()
{
    QFETCH(QString, text);
    FamilyDocument document(FileKind::Code);
    document.fromString(QStringLiteral("a\nb\nc\n"));
    applyText(&document, text, QStringLiteral("ISO-8859-1"));
    QCOMPARE(document.text(), text);
    QCOMPARE(document.codecName(), QStringLiteral("ISO-8859-1"));
    QVERIFY(document.isModified());
    document.undo();
    QCOMPARE(document.text(), QStringLiteral("a\nb\nc\n"));
}

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && QStringList{"hold", "leave"}.contains(arguments[1])) {
        return TestRecovery::runAsOther(arguments[1], arguments[2]);
    }
    TestRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recovery.moc"
