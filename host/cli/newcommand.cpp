#include "cli/cli.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/results.h"
#include "operations/create/create.h"

#include <QDir>
#include <QFileInfo>

namespace Cli {

namespace {

/// Prints the path of the new thing, relative to the current folder if possible.
int finish(const Operations::Created& created, Output& output)
{
    if (!created.error.isEmpty()) {
        return notDone(created.error);
    }
    const QString relative = QDir::current().relativeFilePath(created.path);
    output.writeLine({relative.startsWith(QLatin1String("../")) ? created.path : relative});
    return Fine;
}

int newProject(const Invocation& invocation, Family::FileKind kind, Output& output)
{
    return finish(Operations::createProject(invocation.operands[0], kind, invocation.operands[1],
                                            invocation.templateName),
                  output);
}

}  // namespace

int newGame(const Invocation& invocation, Output& output)
{
    Operations::NewGame game;
    game.folder = invocation.operands[0];
    game.character = invocation.operands.value(1, game.character);
    game.stage = invocation.operands.value(2, game.stage);
    game.templateName = invocation.templateName;
    return finish(Operations::createGame(game), output);
}

int newCharacter(const Invocation& invocation, Output& output)
{
    return newProject(invocation, Family::FileKind::Character, output);
}

int newStage(const Invocation& invocation, Output& output)
{
    return newProject(invocation, Family::FileKind::Stage, output);
}

int newFile(const Invocation& invocation, Output& output)
{
    return finish(Operations::createFile(invocation.operands[0], invocation.templateName), output);
}

}  // namespace Cli
