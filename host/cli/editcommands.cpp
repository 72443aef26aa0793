#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/jsonlist.h"
#include "cli/output.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodepath.h"
#include "family/nodes/animationnode.h"
#include "family/project/familyparentproject.h"
#include "operations/animationedits.h"
#include "operations/check/uses.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonObject>

namespace Cli {

namespace {

using Family::AnimationNode;
using Family::FamilyAnimations;
using Family::FamilyDocument;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QStringList animationColumns(int index, const AnimationNode& animation)
{
    return {QLatin1Char('#') + QString::number(index),
            animation.identifier(),
            animation.name(),
            QString::number(animation.childCount()),
            QString::number(animation.duration()),
            QString::number(animation.firstLine() + 1)};
}

QJsonObject animationObject(int index, const AnimationNode& animation, const QString& path)
{
    return {{QStringLiteral("index"), index},
            {QStringLiteral("identifier"), animation.identifier()},
            {QStringLiteral("name"), animation.name()},
            {QStringLiteral("frames"), animation.childCount()},
            {QStringLiteral("duration"), animation.duration()},
            {QStringLiteral("loopFrame"), animation.loopFrame()},
            {QStringLiteral("line"), animation.firstLine() + 1},
            {QStringLiteral("path"), path}};
}

void writeAnimations(const FamilyDocument* document, Output& output)
{
    const FamilyAnimations* list = document->animations();
    for (int i = 0; i < list->count(); ++i) {
        output.writeLine(animationColumns(i, *list->animation(i)));
    }
}

void writeJsonAnimations(const FamilyDocument* document, Output& output)
{
    const FamilyAnimations* list = document->animations();
    const auto paths = Family::nodePaths(document);
    JsonList json(output);
    for (int i = 0; i < list->count(); ++i) {
        const AnimationNode* animation = list->animation(i);
        json.add(animationObject(i, *animation, paths.value(animation)));
    }
}

bool toPosition(const QString& text, int count, int* position, QString* error)
{
    bool isNumber = false;
    *position = text.toInt(&isNumber);
    if (isNumber && *position >= 0 && *position < count) {
        return true;
    }
    *error =
        tr("Expected a position from 0 to %1; found '%2'.").arg(QString::number(count - 1), text);
    return false;
}

/// Warns about places that use what is removed. That is not an error.
void tellUses(const Operations::Removal& removal)
{
    const QDir game(Family::FamilyParentProject::folderOf(removal.path));
    QVector<Family::NamedPlace> places =
        Operations::usesOf(removal, Operations::projectsNaming(removal.path));
    for (Family::NamedPlace& place : places) {
        place.file = QDir::current().relativeFilePath(game.absoluteFilePath(place.file));
    }
    const QStringList lines = Operations::inWords(places);
    for (const QString& line : lines) {
        complain(tr("Still used: %1").arg(line));
    }
}

}  // namespace

int setCommand(const Invocation& invocation, Output& output)
{
    return editFile(invocation, output, [&](FamilyDocument* document, QString* error) {
        return Family::setValue(document, invocation.operands.at(1), invocation.operands.at(2),
                                error);
    });
}

int listAnimations(const Invocation& invocation, Output& output)
{
    return readFile(invocation, [&](FamilyDocument* document, QString*) {
        invocation.json ? writeJsonAnimations(document, output) : writeAnimations(document, output);
        return true;
    });
}

int duplicateAnimation(const Invocation& invocation, Output& output)
{
    QString chosen;
    const int status =
        arrangeFile(invocation, output, [&](FamilyDocument* document, QString* error) {
            FamilyAnimations* list = document->animations();
            const int index = Operations::findAnimation(list, invocation.operands.at(1), error);
            if (index < 0) {
                return false;
            }
            QString identifier = invocation.operands.value(2);
            if (invocation.operands.size() < 3) {
                identifier = Operations::freeIdentifier(list, list->animation(index)->identifier());
                chosen = identifier;
            }
            return Operations::duplicateAnimation(list, index, identifier, error);
        });
    if (status == Fine && !chosen.isEmpty() && !invocation.dryRun) {
        output.write(chosen + QLatin1Char('\n'));
    }
    return status;
}

int moveAnimation(const Invocation& invocation, Output& output)
{
    return arrangeFile(invocation, output, [&](FamilyDocument* document, QString* error) {
        FamilyAnimations* list = document->animations();
        const int from = Operations::findAnimation(list, invocation.operands.at(1), error);
        int to = 0;
        return from >= 0 && toPosition(invocation.operands.at(2), list->count(), &to, error) &&
               Family::moveAnimation(list, from, to);
    });
}

int removeAnimations(const Invocation& invocation, Output& output)
{
    Operations::Removal removal;
    const auto edit = [&](FamilyDocument* document, QString* error) {
        QVector<int> indexes;
        for (const QString& reference : invocation.operands.mid(1)) {
            const int index = Operations::findAnimation(document->animations(), reference, error);
            if (index < 0) {
                return false;
            }
            indexes.append(index);
        }
        removal = Operations::removalOf(*document, indexes);
        Operations::removeAnimations(document->animations(), indexes);
        return true;
    };
    const int status = arrangeFile(invocation, output, edit);
    if (status == Fine) {
        tellUses(removal);
    }
    return status;
}

int sortAnimations(const Invocation& invocation, Output& output)
{
    return arrangeFile(invocation, output, [](FamilyDocument* document, QString*) {
        document->animations()->autoOrganize();
        return true;
    });
}

}  // namespace Cli
