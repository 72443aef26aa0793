#include "cli/paletteselection.h"

#include "cli/options.h"
#include "cli/output.h"
#include "family/assets/spritecollection.h"

#include <QCoreApplication>

namespace Cli {

QVector<int> chosenPalettes(const Family::SpriteCollection& sprites, const Invocation& invocation)
{
    QVector<int> chosen;
    for (const auto& palette : sprites.palettes()->items()) {
        if (invocation.selection.contains(palette->id().group, palette->id().number)) {
            chosen.append(palette->row);
        }
    }
    if (chosen.isEmpty()) {
        complain(QCoreApplication::translate("Cli", "There is no such palette."));
    } else if (chosen.size() > 1 && invocation.selection.isAll() && !invocation.hasCostumes) {
        complain(QCoreApplication::translate("Cli", "'%1' has %2 palettes. Tell which one is "
                                                    "meant, as in '--select 1,1'.")
                     .arg(sprites.fileName(), QString::number(chosen.size())));
        chosen.clear();
    }
    return chosen;
}

}  // namespace Cli
