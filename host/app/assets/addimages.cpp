#include "app/assets/addimages.h"

#include "app/assets/imagesdialog.h"
#include "app/assets/mediadialogs.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/animationedits.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace App {

using Family::FamilyAnimations;
using Family::FamilyDocument;
using Family::FamilyProject;
using Operations::ImportedId;
using Operations::MediaResult;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::AddImages)
};

/// The destination of a new animation: the current text if it has animations, else the first text
/// with animations, else the first text meant for them. Null if there is none.
FamilyDocument* placeOfAnimations(const FamilyProject& project, FamilyDocument* front)
{
    QList<FamilyDocument*> documents = project.documents();
    if (documents.removeOne(front)) {
        documents.prepend(front);
    }
    FamilyDocument* forThem = nullptr;
    for (FamilyDocument* document : qAsConst(documents)) {
        if (document->animations()->count() > 0) {
            return document;
        }
        const bool isForThem = document->fileName().endsWith(QLatin1String(".anim"));
        forThem = !forThem && isForThem ? document : forThem;
    }
    return forThem ? forThem : documents.value(0);
}

QVector<Operations::NewFrame> framesOf(const QVector<ImportedId>& ids, const QVector<int>& ticks)
{
    QVector<Operations::NewFrame> frames;
    for (const ImportedId& id : ids) {
        frames.append({id.id, ticks.value(id.image, 1)});
    }
    return frames;
}

}  // namespace

void addImages(const WindowServices& services, Family::SpriteCollection* into,
               const QStringList& files)
{
    const QPointer<Family::SpriteCollection> sprites = into;
    const auto* project = dynamic_cast<const FamilyProject*>(into->project());
    const FamilyDocument* place =
        project ? placeOfAnimations(*project, services.parts->document()) : nullptr;
    const QPointer<FamilyAnimations> animations = place ? place->animations() : nullptr;
    ImagesDialog dialog({into, animations,
                         place ? QFileInfo(place->fileName()).fileName() : QString(),
                         project ? project->gameSize() : QSize()},
                        services.window);
    dialog.addPaths(files);
    if (dialog.exec() != QDialog::Accepted || !sprites) {
        return;
    }
    QVector<ImportedId> ids;
    MediaResult result =
        Operations::importSprites(sprites, dialog.images(), dialog.request(), &ids);
    QString error;
    if (!dialog.animation().isEmpty() && !ids.isEmpty() && animations) {
        Operations::addAnimation(animations, dialog.animation(), framesOf(ids, dialog.ticks()),
                                 &error);
    }
    // A skipped image is no reason to report failure: the others were added. So errors become
    // warnings.
    result.warnings = result.errors + result.warnings;
    result.warnings += error.isEmpty() ? QStringList() : QStringList(error);
    result.errors.clear();
    tellResult(Text::tr("Add images"), Text::tr("%n sprite(s) came in.", nullptr, result.done),
               result);
}

}  // namespace App
