#include "family/assets/assetreload.h"

#include "family/assets/assethistory.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/projectfile.h>

#include <QCoreApplication>
#include <QDir>

namespace Family {

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::AssetReload)
};

}  // namespace

bool reloadAssets(Zorv::ProjectFile& file, const AssetHistory& history, const QString& title)
{
    // The question for it can come up over the progress of a longer work.
    const bool isHeld = history.isHeld();
    const bool done = !isHeld && file.fromFile(*file.archive(), file.fileName(), false);
    if (!done) {
        const QString held = Text::tr("%1 is being worked with, and was not read again. Close its "
                                      "project and open it to see what has changed on the disk.")
                                 .arg(QDir::toNativeSeparators(file.fileName()));
        Zorv::Dialogs::instance()->error(title, isHeld ? held : file.errorString());
    }
    return done;
}

}  // namespace Family
