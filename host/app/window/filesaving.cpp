#include "app/window/filesaving.h"

#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"

#include <zorv/core/projectfile.h>

#include <QCoreApplication>

namespace App {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::FileSaving)
};

}  // namespace

void saveFile(const WindowServices& services, Zorv::ProjectFile* file)
{
    if (saveFiles({file})) {
        services.status->showPassing(
            Text::tr("%1 is saved.").arg(services.session->shownPath(file->fileName())));
    }
    services.parts->gameChanged();
}

}  // namespace App
