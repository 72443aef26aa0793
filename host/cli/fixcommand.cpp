#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/familydocument.h"
#include "operations/fixes/fixes.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextCursor>

namespace Cli {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

/// Writes a fixed text, unless its file has changed since.
int writeMended(const Operations::MendedText& mended, Invocation invocation, Output& output)
{
    const bool isRelative = QDir::isRelativePath(invocation.operands.first());
    const QString file = isRelative ? QDir::current().relativeFilePath(mended.path) : mended.path;
    invocation.operands = QStringList(file);
    return editFile(invocation, output, [&](Family::FamilyDocument* document, QString* error) {
        if (document->text() != mended.before) {
            *error = Text::tr("%1 was changed meanwhile. Check the game again.").arg(file);
            return false;
        }
        QTextCursor all(document);
        all.select(QTextCursor::Document);
        document->replaceSelection(mended.after, all);
        return true;
    });
}

}  // namespace

int fixProblems(const Invocation& invocation, Output& output)
{
    if (!invocation.mends) {
        return notDone(Text::tr("'--dry-run' tells what '--fix' would change. Name both."));
    }
    QString error;
    const auto texts = Operations::mendPlain(invocation.operands.first(), &error);
    int status = error.isEmpty() ? int(Fine) : notDone(error);
    for (const Operations::MendedText& text : texts) {
        const int written = writeMended(text, invocation, output);
        status = written == Fine ? status : written;
    }
    return status;
}

}  // namespace Cli
