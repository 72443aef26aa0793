#include "app/assets/mediadialogs.h"

#include "operations/media/mediaresult.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>

#include <QCoreApplication>

namespace App {

using Zorv::Dialogs;
using Zorv::Interface;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(App::MediaDialogs)
};

}  // namespace

void tellResult(const QString& title, const QString& done, const Operations::MediaResult& result)
{
    const QString text = (result.errors + result.warnings).mid(0, 12).join(QLatin1Char('\n'));
    if (!result.errors.isEmpty()) {
        Dialogs::instance()->error(title, text);
    } else if (!text.isEmpty()) {
        Dialogs::instance()->warning(title, text);
    } else if (result.isCanceled) {
        Interface::instance()->showStatus(0, Text::tr("Given up."));
    } else {
        Interface::instance()->showStatus(0, done);
    }
}

}  // namespace App
