#pragma once

#include "app/assets/mediadialogs.h"
#include "family/assets/assetid.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

#include <QVector>

#include <functional>

namespace App {

/// What the person decides about files that are to become sprites or sounds.
struct ImportChoice
{
    QStringList files;  ///< empty if the person gave up
    int group = -1;     ///< for new numbers; negative to go by the names of the files
    bool force = false;
};

/// Asks for files. Those without numbers in their names go to `group`; `contains` tells what is
/// there already, which the person is asked about.
ImportChoice askForImport(const QString& title, int group,
                          const std::function<bool(Family::AssetId)>& contains);

/// What leaves a list: asks for a file if that is one, else for a folder, and has it written.
/// `write` is called again with the leave to replace if the person gives it.
void exportSelected(const QString& title, const QVector<Family::AssetId>& ids,
                    const QString& suffix,
                    const std::function<Operations::MediaResult(
                        const Operations::Selection&, const Operations::OutputRequest&)>& write);

}  // namespace App
