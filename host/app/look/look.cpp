#include "app/look/look.h"

#include "app/look/codefont.h"
#include "app/look/theme.h"
#include "operations/language.h"

#include <zorv/core/interface.h>

#include <QVariant>

namespace App {

void applyLook()
{
    const Zorv::Interface* host = Zorv::Interface::instance();
    Operations::Language::use(host->option(QStringLiteral("language")).toString());
    Theme::use(Theme::kindOf(host->option(QStringLiteral("theme")).toString()));
    setCodeFont(host->option(QStringLiteral("font_name")).toString(),
                host->option(QStringLiteral("font_size")).toInt());
}

}  // namespace App
