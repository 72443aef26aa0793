// The sample games against the checks: one without a problem, one with every problem there is.

#include "family/check/check.h"
#include "samplefiles.h"
#include "support/testtable.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;
using Zorv::TextCodecs;

namespace {

/// "file:line: kind" of each problem.
QStringList places(const Problems& problems)
{
    QStringList result;
    for (const Problem& problem : problems) {
        result += QStringLiteral("%1:%2: %3")
                      .arg(problem.file)
                      .arg(problem.line)
                      .arg(QLatin1String(problemInfo(problem.id).name));
    }
    return result;
}

QString without(QStringList lines, const QStringList& taken)
{
    for (const QString& line : taken) {
        lines.removeOne(line);
    }
    return lines.join('\n');
}

QStringList lines(const Problems& problems)
{
    QStringList result;
    for (const Problem& problem : problems) {
        result += problemLine(problem);
    }
    return result;
}

bool isKind(const QString& name)
{
    for (int i = 0; i < ProblemCount; ++i) {
        if (name == QLatin1String(problemInfo(ProblemId(i)).name)) {
            return true;
        }
    }
    return false;
}

/// The places that the comments of a file announce: "# kind: why" stands above the line of the
/// problem, and in line 1 where the file as a whole has it.
QStringList announced(const QString& folder, const QString& name)
{
    static const QRegularExpression mark("^\\s*# ([a-z-]+): ");
    const QStringList text =
        QString::fromUtf8(bytesOf(folder + '/' + name)).remove(QChar(0xfeff)).split("\r\n");
    QStringList result, waiting;
    for (int line = 0; line < text.size(); ++line) {
        const QString kind = mark.match(text.at(line)).captured(1);
        if (isKind(kind)) {
            const bool whole = kind == QLatin1String("encoding-unfaithful");
            (whole ? result : waiting) += whole ? QStringLiteral("%1:1: %2").arg(name, kind) : kind;
        } else if (!text.at(line).isEmpty() && !text.at(line).startsWith('#')) {
            for (const QString& each : qAsConst(waiting)) {
                result += QStringLiteral("%1:%2: %3").arg(name).arg(line + 1).arg(each);
            }
            waiting.clear();
        }
    }
    return result;
}

}  // namespace

class TestSamples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void goodGameHasNoProblem();
    void brokenGameHasWhatItsCommentsTell();
    void brokenGameHasEveryKind();
    void brokenGameAsBefore();
    void filesComeBack_data();
    void filesComeBack();
    void scriptMakesTheFiles_data();
    void scriptMakesTheFiles();
};

void TestSamples::initTestCase()
{
    TextCodecs::setDefaultCodec(TextCodecs::index("UTF-8"));
}

void TestSamples::goodGameHasNoProblem()
{
    QString error;
    const QString found = lines(checkGame(gameFolder("arena"), &error)).join("\n");
    QVERIFY2(found.isEmpty(), qPrintable(found));
    QCOMPARE(error, QString());
}

void TestSamples::brokenGameHasWhatItsCommentsTell()
{
    const QString folder = gameFolder("broken");
    QStringList expected;
    for (const QString& name : codeFiles(folder)) {
        expected += announced(folder, name);
    }
    QString error;
    const QStringList found = places(checkGame(folder, &error));
    QCOMPARE(without(found, expected), QString());
    QCOMPARE(without(expected, found), QString());
}

void TestSamples::brokenGameHasEveryKind()
{
    QString error;
    QVector<int> found(ProblemCount);
    for (const Problem& problem : checkGame(gameFolder("broken"), &error)) {
        ++found[int(problem.id)];
    }
    for (int i = 0; i < ProblemCount; ++i) {
        QVERIFY2(found.at(i) == 1, qPrintable(QStringLiteral("'%1' stands %2 times in the sample")
                                                  .arg(problemInfo(ProblemId(i)).name)
                                                  .arg(found.at(i))));
    }
}

/// The words that people see. With ZORV_RENEW_GOLDEN in the environment the file is written anew.
void TestSamples::brokenGameAsBefore()
{
    QString error;
    const QByteArray text =
        lines(checkGame(gameFolder("broken"), &error)).join('\n').toUtf8() + '\n';
    QFile golden(QStringLiteral(HERE "/broken.expected"));
    if (qEnvironmentVariableIsSet("ZORV_RENEW_GOLDEN")) {
        QVERIFY(golden.open(QIODevice::WriteOnly) && golden.write(text) == text.size());
        return;
    }
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(text), QString::fromUtf8(golden.readAll()));
}

void TestSamples::filesComeBack_data()
{
    columns<QString, QString, bool>("fileName", "codec", "faithful");

    for (const QString& game : {QStringLiteral("arena"), QStringLiteral("broken")}) {
        for (const QString& name : codeFiles(gameFolder(game))) {
            const QString path = game + '/' + name;
            const bool legacy = path == QLatin1String("arena/characters/iwao/iwao.commands");
            const bool mixed = path == QLatin1String("broken/shared/common.code");
            row(qPrintable(path), gameFolder(path), (legacy ? "Shift_JIS" : "UTF-8"), !mixed);
        }
    }
}

void TestSamples::filesComeBack()
{
    const auto [fileName, codec, faithful] = fetched<QString, QString, bool>();

    const auto document = openSample(fileName);
    QVERIFY(document);
    QCOMPARE(document->codecName(), codec);
    QCOMPARE(document->isFaithful(), faithful);
    QVERIFY(!document->hasForeignLineEnds());
    if (faithful) {
        QCOMPARE(document->toData(), bytesOf(fileName));
    }
}

/// Each file that the script writes has the bytes of the one that is kept.
void TestSamples::scriptMakesTheFiles_data()
{
    columns<QString, QString, int>("script", "folder", "files");
    row<QString, QString, int>("game", "make_samples.py", "arena/", 23);
    row<QString, QString, int>("drawings", "make_drawings.py", "drawings/", 30);
}

void TestSamples::scriptMakesTheFiles()
{
    const auto [script, made, files] = fetched<QString, QString, int>();
    const QString python = QStandardPaths::findExecutable("python3");
    if (python.isEmpty()) {
        QSKIP("no python3 here");
    }
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    QCOMPARE(QProcess::execute(python, {gameFolder(script), folder.path()}), 0);
    int count = 0;
    QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder.path()).relativeFilePath(path);
        QVERIFY2(bytesOf(path) == bytesOf(gameFolder(made) + name), qPrintable(name));
        ++count;
    }
    QCOMPARE(count, files);
}

QTEST_MAIN(TestSamples)
#include "tst_samples.moc"
