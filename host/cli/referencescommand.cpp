#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/namedsubject.h"
#include "cli/output.h"
#include "cli/results.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Operations::NameUse;
using Operations::ReferenceIndex;
using Operations::Subject;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Cli)
};

QString placeText(const QString& file, const NameUse& use)
{
    return use.line == 0 ? file
                         : QStringLiteral("%1:%2:%3")
                               .arg(file, QString::number(use.line), QString::number(use.column));
}

QJsonObject objectOf(const QString& file, const NameUse& use)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("line"), use.line},
            {QStringLiteral("column"), use.line == 0 ? 0 : use.column},
            {QStringLiteral("length"), use.length},
            {QStringLiteral("defines"), use.isDefinition},
            {QStringLiteral("text"), use.text}};
}

}  // namespace

int listReferences(const Invocation& invocation, Output& output)
{
    QString error;
    std::unique_ptr<ReferenceIndex> index;
    const Subject subject = namedSubject(invocation.operands, &index, &error);
    if (subject.isNone()) {
        return error.isEmpty() ? NotDone : notDone(error);
    }
    QVector<NameUse> uses = index->usesOf(subject);
    if (uses.isEmpty()) {
        return notDone(Operations::unknownSubject(subject));
    }
    index->addTexts(&uses);
    const QDir game(index->gameFolder());
    std::unique_ptr<JsonList> list;
    if (invocation.json) {
        list = std::make_unique<JsonList>(output);
    }
    for (const NameUse& use : qAsConst(uses)) {
        const QString file = game.relativeFilePath(use.path);
        if (list) {
            list->add(objectOf(file, use));
        } else {
            output.writeLine({placeText(file, use),
                              use.isDefinition ? Text::tr("defines") : Text::tr("uses"), use.text});
        }
    }
    return Fine;
}

}  // namespace Cli
