#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "family/familydocument.h"
#include "family/nodepath.h"
#include "operations/checkpath.h"
#include "operations/nodetree.h"

#include <QJsonObject>

namespace Cli {

namespace {

using Family::FamilyDocument;

void writeProblems(const Family::Problems& problems, Output& output)
{
    for (const Family::Problem& problem : problems) {
        output.writeLine({Family::problemLine(problem)});
    }
}

void writeJsonProblems(const Family::Problems& problems, Output& output)
{
    JsonList list(output);
    for (const Family::Problem& problem : problems) {
        list.add({{QStringLiteral("file"), problem.file},
                  {QStringLiteral("line"), problem.line},
                  {QStringLiteral("column"), problem.column},
                  {QStringLiteral("length"), problem.length},
                  {QStringLiteral("level"), Family::levelName(problem.level)},
                  {QStringLiteral("id"), QLatin1String(Family::problemInfo(problem.id).name)},
                  {QStringLiteral("text"), problem.text}});
    }
}

int lineOf(const Operations::TreeEntry& entry)
{
    return entry.node->block().blockNumber() + 1;
}

QStringList treeColumns(const Operations::TreeEntry& entry, const QString& path)
{
    const QString indent(2 * entry.depth, QLatin1Char(' '));
    return {QString::number(lineOf(entry)),
            indent + Family::nodeKind(entry.node) + QLatin1Char(' ') +
                Family::nodeLabel(entry.node),
            path};
}

QString treeObject(const Operations::TreeEntry& entry, const QString& path)
{
    QJsonObject object{{QStringLiteral("kind"), Family::nodeKind(entry.node)},
                       {QStringLiteral("line"), lineOf(entry)},
                       {QStringLiteral("text"), Family::nodeLabel(entry.node)}};
    if (!path.isEmpty()) {
        object.insert(QStringLiteral("path"), path);
    }
    return jsonLine(object);
}

void writeTree(const FamilyDocument* document, Output& output)
{
    const auto paths = Family::nodePaths(document);
    const QVector<Operations::TreeEntry> tree = Operations::nodeTree(document);
    for (const Operations::TreeEntry& entry : tree) {
        output.writeLine(treeColumns(entry, paths.value(entry.node)));
    }
}

// One node per line; an object stays open until its child nodes are written.
void writeJsonTree(const FamilyDocument* document, Output& output)
{
    const auto paths = Family::nodePaths(document);
    const QVector<Operations::TreeEntry> tree = Operations::nodeTree(document);
    if (tree.isEmpty()) {
        output.write(QStringLiteral("[]\n"));
        return;
    }
    output.write(QStringLiteral("["));
    for (int i = 0; i < tree.size(); ++i) {
        const int depth = tree[i].depth;
        const int nextDepth = i + 1 < tree.size() ? tree[i + 1].depth : 0;
        QString text = treeObject(tree[i], paths.value(tree[i].node));
        if (nextDepth > depth) {
            text.chop(1);
            text += QLatin1String(",\"children\":[");
        }
        for (int level = depth; level > nextDepth; --level) {
            text += QLatin1String("]}");
        }
        const bool isLast = i + 1 == tree.size();
        output.write(QLatin1Char('\n') + QString(2 * depth, QLatin1Char(' ')) + text +
                     (nextDepth > depth || isLast ? QString() : QStringLiteral(",")));
    }
    output.write(QStringLiteral("\n]\n"));
}

}  // namespace

int checkCommand(const Invocation& invocation, Output& output)
{
    if (invocation.mends || invocation.dryRun) {
        const int status = fixProblems(invocation, output);
        if (status != Fine || invocation.dryRun) {
            return status;
        }
    }
    QString error;
    const Family::Problems problems = Operations::checkPath(invocation.operands.first(), &error);
    if (!error.isEmpty()) {
        complain(error);
        return NotDone;
    }
    invocation.json ? writeJsonProblems(problems, output) : writeProblems(problems, output);
    return problems.isEmpty() ? Fine : ProblemsFound;
}

int treeCommand(const Invocation& invocation, Output& output)
{
    return readFile(invocation, [&](FamilyDocument* document, QString*) {
        if (invocation.json) {
            writeJsonTree(document, output);
        } else {
            writeTree(document, output);
        }
        return true;
    });
}

int getCommand(const Invocation& invocation, Output& output)
{
    return readFile(invocation, [&](FamilyDocument* document, QString* error) {
        const QString text = Operations::textAt(document, invocation.operands.at(1), error);
        if (!text.isNull()) {
            output.write(text + QLatin1Char('\n'));
        }
        return !text.isNull();
    });
}

}  // namespace Cli
