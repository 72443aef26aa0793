#include "cli/editing.h"

#include "cli/changing.h"
#include "cli/cli.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/familydocument.h"
#include "operations/documentfile.h"
#include "operations/textdiff.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QCoreApplication>
#include <memory>

namespace Cli {

namespace {

using Family::FamilyDocument;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

struct Release
{
    void operator()(FamilyDocument* document) const { document->release(); }
};

using Document = std::unique_ptr<FamilyDocument, Release>;

// Advice for a file that would not survive its encoding.
QString encodingAdvice(const QString& fileName)
{
    const int codec = Operations::faithfulCodec(fileName);
    const QString unchanged = tr("Nothing is written.");
    return codec < 0 ? unchanged
                     : tr("%1 '--encoding %2' reads the file so.")
                           .arg(unchanged, Zorv::TextCodecs::name(codec));
}

QString conversionAdvice(const FamilyDocument& document)
{
    return tr("Nothing is written. For other characters convert the file first, as with 'iconv -f "
              "%1 -t UTF-8'.")
        .arg(document.codecName());
}

int printDifference(const FamilyDocument& document, const QString& before, const QString& fileName,
                    Output& output)
{
    const QString obstacle = Operations::encodingObstacle(&document);
    if (!obstacle.isEmpty()) {
        complain(obstacle);
        return notDone(conversionAdvice(document));
    }
    const QString note = Operations::lineEndNote(&document);
    if (!note.isEmpty()) {
        output.write(note + QLatin1Char('\n'));
    }
    output.write(Operations::unifiedDiff(before, document.text(), fileName, fileName));
    return Fine;
}

int save(FamilyDocument& document, const QString& fileName)
{
    QString error;
    switch (Operations::saveDocument(&document, fileName, &error)) {
    case Operations::Saved::Done:
        return Fine;
    case Operations::Saved::GivenUp:
        return notDone(conversionAdvice(document));
    case Operations::Saved::Failed:
        break;
    }
    return notDone(error);
}

int saveBoth(FamilyDocument& document, bool isChanged, const QString& fileName,
             const Companion& companion)
{
    const int status = companion.save ? companion.save() : int(Fine);
    if (status != Fine || !isChanged) {
        return status;
    }
    const int saved = save(document, fileName);
    if (saved != Fine && companion.takeBack) {
        companion.takeBack();
    }
    return saved;
}

int editOnce(const Invocation& invocation, Output& output, const Edit& edit,
             const Companion& companion)
{
    const QString fileName = invocation.operands.first();
    QString error;
    const Document document(Operations::openDocument(fileName, invocation.codec, &error));
    if (!document) {
        return notDone(error);
    }
    if (!Operations::ensureFaithful(document.get())) {
        return notDone(encodingAdvice(fileName));
    }
    const QString before = document->text();
    if (!edit(document.get(), &error)) {
        return notDone(error);
    }
    const bool isChanged = document->text() != before;
    if (!invocation.dryRun) {
        return saveBoth(*document, isChanged, fileName, companion);
    }
    return isChanged && !invocation.json ? printDifference(*document, before, fileName, output)
                                         : int(Fine);
}

}  // namespace

int editFile(const Invocation& invocation, Output& output, const Edit& edit,
             const Companion& companion)
{
    const auto change = [&] { return editOnce(invocation, output, edit, companion); };
    return invocation.dryRun ? change() : changeFile(invocation.operands.first(), change);
}

int arrangeFile(const Invocation& invocation, Output& output, const Edit& edit,
                const Companion& companion)
{
    const auto arrange = [&](FamilyDocument* document, QString* error) {
        document->setOption(QStringLiteral("code_comments_travel"), !invocation.leavesComments,
                            false, false);
        return edit(document, error);
    };
    return editFile(invocation, output, arrange, companion);
}

int readFile(const Invocation& invocation, const Edit& look)
{
    QString error;
    const Document document(
        Operations::openDocument(invocation.operands.first(), invocation.codec, &error));
    return document && look(document.get(), &error) ? int(Fine) : notDone(error);
}

}  // namespace Cli
