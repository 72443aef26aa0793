#include "family/assets/assetreload.h"

#include "family/assets/assethistory.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/projectfile.h>

#include <QCoreApplication>
#include <QDir>

namespace Family {

namespace {

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::AssetReload)
};

}  // namespace

bool reloadAssets(Zorv::ProjectFile& file, const AssetHistory& history, const QString& title)
{
    // The question to reload can appear on top of the progress dialog of a long operation.
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
