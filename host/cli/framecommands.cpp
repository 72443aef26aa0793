#include "cli/cli.h"
#include "cli/command.h"
#include "cli/editing.h"
#include "cli/output.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "operations/animationedits.h"
#include "operations/frameedits.h"

#include <zorv/animation/edits/boxedits.h>

#include <QCoreApplication>

namespace Cli {

namespace {

using Family::FamilyAnimations;
using Family::FamilyDocument;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

/// Finds the referenced animations; all if there are no references.
bool findAnimations(const FamilyAnimations* list, const QStringList& references,
                    QVector<int>* indexes, QString* error)
{
    for (const QString& reference : references) {
        indexes->append(Operations::findAnimation(list, reference, error));
        if (indexes->last() < 0) {
            return false;
        }
    }
    for (int i = 0; references.isEmpty() && i < list->count(); ++i) {
        indexes->append(i);
    }
    return true;
}

/// The frames that receive the boxes of another frame.
bool findTargets(const FamilyAnimations* list, const Zorv::FramePlace& source,
                 const Invocation& invocation, QVector<Zorv::FramePlace>* targets, QString* error)
{
    const QStringList references = invocation.operands.mid(2);
    if (references.isEmpty() != invocation.hasInstances) {
        *error = tr("Expected the frames that get the boxes, as in '200/3', or '--instances'.");
        return false;
    }
    for (const QString& reference : references) {
        const QVector<Zorv::FramePlace> frames = Operations::findFrames(list, reference, error);
        if (frames.isEmpty()) {
            return false;
        }
        *targets += frames;
    }
    if (invocation.hasInstances) {
        *targets = Zorv::instancesOf(list, source);
    }
    return true;
}

}  // namespace

int alignAnimations(const Invocation& invocation, Output& output)
{
    return editFile(invocation, output, [&](FamilyDocument* document, QString* error) {
        Zorv::Alignment alignment;
        QVector<int> indexes;
        return Operations::readAlignment(invocation.operands.at(1), invocation.operands.at(2),
                                         &alignment, error) &&
               findAnimations(document->animations(), invocation.operands.mid(3), &indexes,
                              error) &&
               Operations::alignAnimations(document->animations(), indexes, alignment, error);
    });
}

int copyBoxes(const Invocation& invocation, Output& output)
{
    return editFile(invocation, output, [&](FamilyDocument* document, QString* error) {
        FamilyAnimations* list = document->animations();
        const QString from = invocation.operands.at(1);
        const QVector<Zorv::FramePlace> source = Operations::findFrames(list, from, error);
        QVector<Zorv::FramePlace> targets;
        if (!from.contains(QLatin1Char('/')) && error->isEmpty()) {
            *error = tr("Expected a frame, as in '%1/0'; found '%1'.").arg(from);
        }
        if (!error->isEmpty() || !findTargets(list, source.first(), invocation, &targets, error)) {
            return false;
        }
        Zorv::copyBoxes(list, source.first(), targets);
        return true;
    });
}

int optimizeAnimations(const Invocation& invocation, Output& output)
{
    int count = 0;
    const int status = editFile(invocation, output, [&count](FamilyDocument* document, QString*) {
        count = document->animations()->optimize();
        return true;
    });
    if (status == Fine && !invocation.dryRun) {
        output.write(count == 1 ? tr("1 line removed\n") : tr("%1 lines removed\n").arg(count));
    }
    return status;
}

}  // namespace Cli
