#include "support/tool.h"

#include <QProcess>
#include <QtTest>

static void fail(const QString& reason)
{
    QTest::qFail(qPrintable(reason), __FILE__, __LINE__);
}

QByteArray runTool(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(QStringLiteral(ZORV_TEST_PROGRAMS "/") + program, arguments);
    if (!process.waitForStarted()) {
        fail(program + QStringLiteral(" is not among those of tests/programs.txt"));
        return {};
    }
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        fail(program + QStringLiteral(" failed: ") +
             QString::fromUtf8(process.readAllStandardError()));
        return {};
    }
    return process.readAllStandardOutput();
}
