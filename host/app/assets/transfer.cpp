#include "app/assets/transfer.h"

#include "operations/media/assetnames.h"

#include <QCoreApplication>

#include <algorithm>

namespace App {

using Family::AssetId;
using Operations::ImportTarget;
using Operations::MediaResult;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::Transfer)
};

}  // namespace

ImportChoice askForImport(const QString& title, int group,
                          const std::function<bool(AssetId)>& contains)
{
    ImportChoice choice;
    choice.files = askForFiles(title);
    bool areNamed = true;
    for (const QString& file : qAsConst(choice.files)) {
        ImportTarget target;
        areNamed = areNamed && Operations::importTarget(file, &target);
        choice.force = choice.force || (areNamed && contains(target.id));
    }
    choice.group = areNamed ? -1 : group;
    choice.force = choice.force && areNamed;
    if (choice.force &&
        !mayReplace(title, Text::tr("The numbers in the names of some files are taken already."))) {
        return {};
    }
    return choice;
}

void exportSelected(const QString& title, const QVector<AssetId>& ids, const QString& suffix,
                    const std::function<MediaResult(const Operations::Selection&,
                                                    const Operations::OutputRequest&)>& write)
{
    Operations::Selection selection;
    for (AssetId id : ids) {
        selection.add(id.text());
    }
    Operations::OutputRequest request;
    request.force = ids.size() == 1;
    request.place = request.force
                        ? askForTarget(title, Operations::exportNames(ids).first() + suffix)
                        : askForFolder(title);
    if (request.place.isEmpty()) {
        return;
    }
    MediaResult result = write(selection, request);
    if (result.isTaken) {
        if (!mayReplace(title, result.errors.first())) {
            return;
        }
        request.force = true;
        result = write(selection, request);
    }
    tellResult(title, Text::tr("%n file(s) written.", nullptr, result.done), result);
}

}  // namespace App
