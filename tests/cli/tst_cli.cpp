#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Each file of transcripts/ is a session in a folder of its own that begins with
// a copy of game/: a line "$ COMMAND" goes to a shell, and what follows is what
// it prints, standard error behind standard output with "! " in front, and "? N"
// for a status that is not 0. With ZORV_RENEW set in the environment the files are written anew.

namespace {

QString readFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList linesWith(const QString& mark, const QByteArray& output)
{
    QStringList lines = QString::fromUtf8(output).split('\n');
    const bool hasEnd = lines.last().isEmpty();
    if (hasEnd) {
        lines.removeLast();
    }
    for (QString& line : lines) {
        line.prepend(mark);
    }
    if (!hasEnd) {
        lines.append("% no line end");
    }
    return lines;
}

// Nothing of a desktop, and no language. What a person's home would hold lies in the folder.
QProcessEnvironment bareEnvironment(const QString& folder)
{
    const auto here = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment bare;
    bare.insert("SAMPLES", ZORV_SAMPLES);
    bare.insert("HOME", folder);
    bare.insert("PATH",
                QFileInfo(ZORV_PROGRAM).absolutePath() + ":" CLI_TESTS "/bin:" ZORV_TEST_PROGRAMS);
    for (const char* name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (here.contains(name)) {
            bare.insert(name, here.value(name));
        }
    }
    return bare;
}

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QVERIFY2(QFile::copy(source, target), qPrintable(target));
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther |
                                          QFile::ReadGroup);
    }
}

QStringList runCommand(const QString& command, const QString& folder)
{
    QProcess shell;
    shell.setProcessEnvironment(bareEnvironment(folder));
    shell.setWorkingDirectory(folder);
    shell.start("/bin/sh", {"-c", command});
    shell.closeWriteChannel();
    if (!shell.waitForFinished(-1)) {
        return {"? no answer"};
    }
    QStringList lines = linesWith({}, shell.readAllStandardOutput());
    lines += linesWith("! ", shell.readAllStandardError());
    const int status = shell.exitStatus() == QProcess::NormalExit ? shell.exitCode() : -1;
    if (status != 0) {
        lines.append("? " + QString::number(status));
    }
    return lines.replaceInStrings(folder, "$PWD");
}

}  // namespace

class TestCli : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QFileInfo::exists(ZORV_PROGRAM)); }
    void transcript_data();
    void transcript();
};

void TestCli::transcript_data()
{
    QTest::addColumn<QString>("fileName");
    const QDir folder(CLI_TESTS "/transcripts");
    const QStringList names = folder.entryList({"*.txt"}, QDir::Files, QDir::Name);
    QVERIFY(!names.isEmpty());
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
}

void TestCli::transcript()
{
    QFETCH(QString, fileName);
    QTemporaryDir temporary;
    const QString folder = QFileInfo(temporary.path()).canonicalFilePath();
    copyFolder(CLI_TESTS "/game", folder);
    const QString expected = readFile(fileName);
    QStringList session;
    for (const QString& line : expected.split('\n')) {
        if (line.startsWith("$ ")) {
            session << line << runCommand(line.mid(2), folder);
        } else if (line.startsWith("# ")) {
            session << line;
        }
    }
    const QString actual = session.join('\n') + '\n';
    if (qEnvironmentVariableIsSet("ZORV_RENEW")) {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(actual.toUtf8());
        return;
    }
    const QStringList wanted = expected.split('\n');
    for (int i = 0; i < qMax(session.size(), wanted.size() - 1); ++i) {
        QVERIFY2(session.value(i) == wanted.value(i),
                 qPrintable(QStringLiteral("line %1\n   is:     %2\n   wanted: %3")
                                .arg(i + 1)
                                .arg(session.value(i), wanted.value(i))));
    }
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
