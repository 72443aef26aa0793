#include "core/dialogs/failures_p.h"

#include "core/dialogs/dialogs.h"

#include <QCoreApplication>

namespace Zorv {

namespace {

constexpr int ToldErrors = 10;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::Failures)
};

}  // namespace

void tellFailures(const QString& title, const QStringList& errors, const QString& last)
{
    if (errors.isEmpty()) {
        return;
    }
    QStringList lines = errors.mid(0, ToldErrors);
    if (errors.size() > ToldErrors) {
        lines.append(Text::tr("... and %1 more.").arg(errors.size() - ToldErrors));
    }
    if (!last.isEmpty()) {
        lines.append(last);
    }
    Dialogs::instance()->error(title, lines.join(QLatin1Char('\n')));
}

}  // namespace Zorv
