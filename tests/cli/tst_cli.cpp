#include "support/folders.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Each file of transcripts/ is a session in a folder of its own that begins with
// a copy of game/: a line "$ COMMAND" goes to a shell, and what follows is what
// it prints, standard error behind standard output with "! " in front, and "? N"
// for a status that is not 0. With ZORV_RENEW set in the environment the files are written anew.

namespace {

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

/// The commands of the README in their order, without what it says about each. Those of scripts/
/// are left out: they install packages and open a window.
QStringList readmeCommands()
{
    QStringList commands;
    const QStringList lines = QString::fromUtf8(readFile(ZORV_README)).split('\n');
    for (const QString& line : lines) {
        if (line.startsWith("    ") && !line.startsWith("    scripts/")) {
            commands.append(line.trimmed().section(QRegularExpression(" {2,}"), 0, 0));
        }
    }
    return commands;
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
    void readmeInOrder();
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
    QVERIFY(copyFolder(CLI_TESTS "/game", folder));
    const QString expected = QString::fromUtf8(readFile(fileName));
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

/// One shell goes through all of them, as a person does. There is an engine where the README has
/// one.
void TestCli::readmeInOrder()
{
    const QTemporaryDir temporary;
    const QString folder = QFileInfo(temporary.path()).canonicalFilePath();
    QVERIFY(copyFolder(ZORV_SAMPLES, folder + "/samples"));
    const QString engine = folder + "/games/fight/fight.exe";
    QVERIFY(writeFile(engine, "#!/bin/sh\ntest \"$1\" = -p1 && ls -d \"$2\"*\n"));
    QVERIFY(QFile::setPermissions(engine, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
    const QStringList commands = readmeCommands();
    QVERIFY(commands.size() > 20);
    QString script;
    for (QString command : commands) {
        // Problems and differences are what these are asked for.
        const bool mayFind =
            command == "zorv check samples/broken" || command.startsWith("zorv diff");
        command.replace("FOLDER", "\"$(zorv backups mygame | head -1 | cut -f1)\"");
        script += command + "\ns=$?; [ $s = " + (mayFind ? "1" : "0") + " ] || echo \"BROKEN $s: " +
                  QString(command).replace('"', '\'').replace('$', "") + "\"\n";
    }
    const QStringList told = runCommand(script, folder);
    const QStringList broken = told.filter(QRegularExpression("^BROKEN|^[?]"));
    QVERIFY2(broken.isEmpty(), qPrintable(broken.join('\n') + '\n' + told.filter("! ").join('\n')));
    QVERIFY(QFileInfo::exists(folder + "/mygame/characters/maren/diff.png"));
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
