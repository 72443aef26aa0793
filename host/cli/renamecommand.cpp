#include "cli/cli.h"
#include "cli/command.h"
#include "cli/jsonlist.h"
#include "cli/namedsubject.h"
#include "cli/output.h"
#include "cli/results.h"
#include "operations/rename/renameplan.h"

#include <QDir>
#include <QJsonObject>

#include <memory>

namespace Cli {

namespace {

using Operations::RenamedLine;
using Operations::RenamePlan;

QString placeText(const QString& file, const RenamedLine& line)
{
    return line.line == 0
               ? file
               : QStringLiteral("%1:%2:%3")
                     .arg(file, QString::number(line.line), QString::number(line.column));
}

void writeLines(const RenamePlan& plan, const QDir& game, bool asJson, Output& output)
{
    std::unique_ptr<JsonList> list;
    if (asJson) {
        list = std::make_unique<JsonList>(output);
    }
    for (const RenamedLine& line : plan.lines) {
        const QString file = game.relativeFilePath(line.path);
        if (list) {
            list->add({{QStringLiteral("file"), file},
                       {QStringLiteral("line"), line.line},
                       {QStringLiteral("column"), line.column},
                       {QStringLiteral("before"), line.before},
                       {QStringLiteral("after"), line.after}});
        } else {
            output.writeLine({placeText(file, line), line.before.trimmed(), line.after.trimmed()});
        }
    }
}

}  // namespace

int renameEverywhere(const Invocation& invocation, Output& output)
{
    QString error;
    std::unique_ptr<Operations::ReferenceIndex> index;
    const Operations::Subject subject = namedSubject(invocation.operands, &index, &error);
    if (subject.isNone()) {
        return error.isEmpty() ? NotDone : notDone(error);
    }
    const RenamePlan plan = planRename(*index, subject, invocation.operands.at(3));
    for (const QString& conflict : plan.conflicts) {
        complain(conflict);
    }
    if (!plan.isPossible()) {
        return NotDone;
    }
    for (const QString& note : plan.notes) {
        complain(note);
    }
    if (!invocation.dryRun && !writeChanges(plan.changes, index->gameFolder(), &error)) {
        return notDone(error);
    }
    writeLines(plan, QDir(index->gameFolder()), invocation.json, output);
    return Fine;
}

}  // namespace Cli
